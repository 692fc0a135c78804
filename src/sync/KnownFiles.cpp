// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/KnownFiles.h"

#include <algorithm>

namespace quillon {

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

void KnownFiles::add(const KnownFiles &files)
{
    for (auto it = files.m_vector.begin(); it != files.m_vector.end(); ++it) {
        quint64 &known = m_vector[it.key()];
        known = std::max(known, *it);
        closeGap(it.key());
    }
    for (auto it = files.m_scattered.begin(); it != files.m_scattered.end(); ++it) {
        for (const quint64 number : *it) {
            add(it.key(), number);
        }
    }
}

bool KnownFiles::covers(const KnownFiles &files) const
{
    return files.countBeyond(*this) == 0;
}

quint64 KnownFiles::last(WriterId writer) const
{
    quint64 last = m_vector.value(writer);
    const QSet<quint64> scattered = m_scattered.value(writer);
    for (const quint64 number : scattered) {
        last = std::max(last, number);
    }
    return last;
}

quint64 KnownFiles::countBeyond(const KnownFiles &others) const
{
    quint64 count = 0;
    for (auto it = m_vector.begin(); it != m_vector.end(); ++it) {
        const quint64 whole = others.m_vector.value(it.key());
        if (whole < *it) {
            const QSet<quint64> scattered = others.m_scattered.value(it.key());
            count += *it - whole - quint64(std::ranges::count_if(scattered, [&](quint64 number) {
                return number <= *it;
            }));
        }
    }
    for (auto it = m_scattered.begin(); it != m_scattered.end(); ++it) {
        count += quint64(std::ranges::count_if(
            *it, [&](quint64 number) { return !others.contains(it.key(), number); }));
    }
    return count;
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
