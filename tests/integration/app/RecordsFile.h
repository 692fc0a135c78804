// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

namespace quillon::test {

// The program's records in a file of it, by its own store code. Attributes are those of
// store/QuillonModel.h. The program may have the file open.

/// An enabled rule that gives `device` a random address once, on any network.
QVariantMap randomOnceRule(const QString &device);
/// The same again and again, after so many minutes.
QVariantMap randomEveryRule(const QString &device, int minutes);
/// The same at every launch at login.
QVariantMap randomLoginRule(const QString &device);

/// Adds a rule to the file, which is made when it is missing; false when that fails.
bool addRule(const QString &path, const QVariantMap &values);
/// The attributes of all rules, or of all history records, in the order in which they were made.
QList<QVariantMap> savedRules(const QString &path);
QList<QVariantMap> savedHistory(const QString &path);

} // namespace quillon::test
