// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/HexValueTransformer.h"

#include "base/SettingsKeys.h"
#include "platform/SettingsStore.h"

namespace quillon {

HexValueTransformer::HexValueTransformer(const SettingsStore &settings)
    : m_settings(settings)
{
}

QString HexValueTransformer::transformedValue(const QString &text) const
{
    return m_settings.getBool(keys::lowerCaseHEX) ? text.toLower() : text.toUpper();
}

} // namespace quillon
