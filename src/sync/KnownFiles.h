// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/Stamp.h"

#include <QMap>
#include <QSet>

namespace quillon {

/// For each writer the number up to which all of its change files are meant.
using VersionVector = QMap<WriterId, quint64>;

/// Whether everything that `inner` means is meant by `outer` too.
bool covers(const VersionVector &outer, const VersionVector &inner);

/// Which change files have been merged here. They may come in any order; a file is only counted as
/// passed when none before it is missing.
class KnownFiles
{
public:
    KnownFiles() = default;
    KnownFiles(const VersionVector &whole, const QMap<WriterId, QSet<quint64>> &scattered);

    bool contains(WriterId writer, quint64 number) const;
    void add(WriterId writer, quint64 number);
    void add(const VersionVector &vector);

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
