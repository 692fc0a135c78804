// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

/// The text under `key` of a stored dictionary; none when there is none or it is no text: settings
/// can be edited by hand and come from other computers.
std::optional<QString> storedText(const QVariantMap &dictionary, const QString &key);

} // namespace quillon
