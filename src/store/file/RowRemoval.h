// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"
#include "store/model/Entity.h"

#include <QList>

#include <atomic>
#include <functional>
#include <optional>

namespace quillon {

/// Deletes the rows of these keys for good, on a connection of its own and in parts, so that others
/// can save in between: a removal that ends early, by an Error or because it was cancelled, leaves
/// whole records. `progress` is told how many keys are done. Any thread; the file is one that
/// RecordFile has opened.
std::optional<Error> removeRows(const QString &path, const Entity &entity,
    const QList<qint64> &keys, const std::atomic_bool &isCancelled,
    const std::function<void(qsizetype done)> &progress);

} // namespace quillon
