// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace quillon {

// The two saved lists are dictionaries of entries, stored whole. They may have been edited by hand
// or come from another computer: what is no entry is passed over, never removed.

/// The `field` of every entry that has one, in the list's key order.
QStringList fieldOfEach(const QVariantMap &list, const QString &field);
/// The `field` of the entry whose "name" is exactly `name`. Where several share the name, the last
/// one in the list's key order answers.
std::optional<QString> fieldOfNamed(
    const QVariantMap &list, const QString &name, const QString &field);
/// The names of all entries but the one under `key`.
QStringList namesOfOthers(const QVariantMap &list, const QString &key);
/// The name that an entry gets when the user typed `typed`: distinct from `others`, else
/// `fallback`.
QString distinctName(const QString &typed, const QStringList &others, const QString &fallback);

} // namespace quillon
