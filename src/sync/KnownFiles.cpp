// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/KnownFiles.h"

#include <algorithm>

namespace quillon {

bool covers(const VersionVector &outer, const VersionVector &inner)
{
    for (auto it = inner.begin(); it != inner.end(); ++it) {
        if (outer.value(it.key()) < *it) {
            return false;
        }
    }
    return true;
}

KnownFiles::KnownFiles(const VersionVector &whole, const QMap<WriterId, QSet<quint64>> &scattered)
    : m_vector(whole)
    , m_scattered(scattered)
{
    const QList<WriterId> writers = scattered.keys();
    for (const WriterId writer : writers) {
        closeGap(writer);
    }
}

bool KnownFiles::contains(WriterId writer, quint64 number) const
{
    return number <= m_vector.value(writer) || m_scattered.value(writer).contains(number);
}

void KnownFiles::add(WriterId writer, quint64 number)
{
    if (!contains(writer, number)) {
        m_scattered[writer].insert(number);
        closeGap(writer);
    }
}

void KnownFiles::add(const VersionVector &vector)
{
    for (auto it = vector.begin(); it != vector.end(); ++it) {
        quint64 &known = m_vector[it.key()];
        known = std::max(known, *it);
        closeGap(it.key());
    }
}

void KnownFiles::closeGap(WriterId writer)
{
    const auto scattered = m_scattered.find(writer);
    if (scattered == m_scattered.end()) {
        return;
    }
    quint64 &known = m_vector[writer];
    scattered->removeIf([&known](quint64 number) { return number <= known; });
    while (scattered->remove(known + 1)) {
        ++known;
    }
    if (scattered->isEmpty()) {
        m_scattered.erase(scattered);
    }
    if (known == 0) {
        m_vector.remove(writer);
    }
}

} // namespace quillon
