// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace quillon {

/// `name` and " (%d)" filled with `number`.
QString numberedName(const QString &name, int number);
/// `name` when `taken` does not hold it, else `name` with the first of " (2)", " (3)", ... that
/// makes it free. Exact comparison; an existing suffix is part of the name.
QString getOriginalNameFromArray(const QString &name, const QStringList &taken);

} // namespace quillon
