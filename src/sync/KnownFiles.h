// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/Stamp.h"

#include <QMap>
#include <QSet>

namespace quillon {

/// For each writer the number up to which all of its change files are meant.
using VersionVector = QMap<WriterId, quint64>;

/// Which change files have been merged here. They may come in any order; a file is only counted as
/// passed when none before it is missing.
class KnownFiles
{
public:
    KnownFiles() = default;
    KnownFiles(const VersionVector &whole, const QMap<WriterId, QSet<quint64>> &scattered);

    bool contains(WriterId writer, quint64 number) const;
    void add(WriterId writer, quint64 number);
    void add(const KnownFiles &files);
    /// Whether it knows every file that `files` knows.
    bool covers(const KnownFiles &files) const;
    bool isEmpty() const { return m_vector.isEmpty() && m_scattered.isEmpty(); }
    /// The highest number of the writer; 0 where none is known.
    quint64 last(WriterId writer) const;
    /// How many of them `others` does not know.
    quint64 countBeyond(const KnownFiles &others) const;

    /// What is known without a gap.
    const VersionVector &vector() const { return m_vector; }
    /// What is known behind a gap.
    const QMap<WriterId, QSet<quint64>> &scattered() const { return m_scattered; }

    bool operator==(const KnownFiles &) const = default;

private:
    void closeGap(WriterId writer);

    VersionVector m_vector;
    QMap<WriterId, QSet<quint64>> m_scattered;
};

} // namespace quillon
