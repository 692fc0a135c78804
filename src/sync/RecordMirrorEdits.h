// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/Replica.h"

namespace quillon {

class RecordMirrorStorage;

/// The edits that the file has noted in the transactions that made them, and that the replica has
/// not been told of. Within a transaction of the storage.
class RecordMirrorEdits
{
public:
    explicit RecordMirrorEdits(RecordMirrorStorage &storage)
        : m_storage(storage)
    {
    }

    /// The oldest of them, at most `count`, which are noted no longer. Values are those of now: a
    /// later edit of the same record says no more than the first.
    QList<LocalEdit> take(int count);
    bool isEmpty() const;
    void forget();

private:
    RecordMirrorStorage &m_storage;
};

} // namespace quillon
