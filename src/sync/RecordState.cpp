// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordState.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

bool raise(Stamp &into, const Stamp &other)
{
    if (into < other) {
        into = other;
        return true;
    }
    return false;
}

struct SizeOf
{
    qsizetype operator()(const QString &text) const { return 2 + text.size(); }
    qsizetype operator()(const QByteArray &bytes) const { return 2 + bytes.size(); }
    qsizetype operator()(const SyncTree &tree) const { return 2 + tree.bytes.size(); }
    template <typename T>
    qsizetype operator()(const T &) const
    {
        return 8;
    }
};

constexpr qsizetype sizeOfIdentity = 40;

void forgetBefore(const Stamp &deletion, QMap<QString, SyncRegister> &attributes)
{
    for (auto it = attributes.begin(); it != attributes.end();) {
        it = it->stamp <= deletion ? attributes.erase(it) : std::next(it);
    }
}

} // namespace

RecordValues RecordState::values() const
{
    RecordValues values;
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        if (it->value != SyncValue()) {
            values.insert(it.key(), it->value);
        }
    }
    return values;
}

bool join(RecordState &into, const RecordState &other)
{
    bool changed = raise(into.inserted, other.inserted);
    if (raise(into.deleted, other.deleted)) {
        changed = true;
        forgetBefore(into.deleted, into.attributes);
    }
    for (auto it = other.attributes.begin(); it != other.attributes.end(); ++it) {
        if (it->stamp > into.deleted) {
            // Written first, so that a detached copy is made only where something changes.
            const auto known = std::as_const(into.attributes).find(it.key());
            if (known == into.attributes.cend()) {
                into.attributes.insert(it.key(), *it);
                changed = true;
            } else if (SyncRegister joined = *known; join(joined, *it)) {
                into.attributes.insert(it.key(), joined);
                changed = true;
            }
        }
    }
    return changed;
}

void join(SyncChanges &into, const SyncChanges &other)
{
    for (auto it = other.records.begin(); it != other.records.end(); ++it) {
        join(into.records[it.key()], *it);
    }
    for (auto it = other.settings.begin(); it != other.settings.end(); ++it) {
        join(into.settings[it.key()], *it);
    }
}

qsizetype approximateSize(const RecordState &record)
{
    qsizetype size = sizeOfIdentity;
    for (const SyncRegister &attribute : record.attributes) {
        size += std::visit(SizeOf(), attribute.value);
    }
    return size;
}

qsizetype approximateSize(const SyncRegister &setting)
{
    return sizeOfIdentity + std::visit(SizeOf(), setting.value);
}

qsizetype approximateSize(const SyncChanges &changes)
{
    qsizetype size = 0;
    for (const RecordState &record : changes.records) {
        size += approximateSize(record);
    }
    for (const SyncRegister &setting : changes.settings) {
        size += approximateSize(setting);
    }
    return size;
}

Stamp latestStamp(const SyncChanges &changes)
{
    Stamp latest;
    for (const RecordState &record : changes.records) {
        latest = std::max({latest, record.inserted, record.deleted});
        for (const SyncRegister &attribute : record.attributes) {
            latest = std::max(latest, attribute.stamp);
        }
    }
    for (const SyncRegister &setting : changes.settings) {
        latest = std::max(latest, setting.stamp);
    }
    return latest;
}

} // namespace quillon
