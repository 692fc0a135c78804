// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

class SettingsStore;

/// The display case of addresses: lower case when the setting `lowerCaseHEX` is on, else upper
/// case; nothing else is changed.
class HexValueTransformer
{
public:
    explicit HexValueTransformer(const SettingsStore &settings);

    QString transformedValue(const QString &text) const;

private:
    const SettingsStore &m_settings;
};

} // namespace quillon
