// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/SyncValue.h"

#include <QHashFunctions>
#include <QMap>
#include <QString>
#include <QUuid>

#include <optional>
#include <tuple>

namespace quillon {

struct RecordId
{
    QString entity;
    QUuid id;

    bool operator==(const RecordId &) const = default;
    friend bool operator<(const RecordId &a, const RecordId &b)
    {
        return std::tie(a.entity, a.id) < std::tie(b.entity, b.id);
    }
};

/// Values by attribute; an attribute that is not there holds nothing.
using RecordValues = QMap<QString, SyncValue>;

/// Everything that is known of one record, also of one that is no more. Merging two states gives
/// the same in every order and however often it is done. What was written to an attribute before
/// the last deletion is forgotten: whoever takes a deletion back writes all values anew.
struct RecordState
{
    Stamp inserted; ///< or taken back after a deletion
    Stamp deleted;
    QMap<QString, SyncRegister> attributes;

    bool isPresent() const { return inserted > deleted; }
    RecordValues values() const;
    /// Nothing where nobody wrote.
    SyncValue value(const QString &attribute) const { return attributes.value(attribute).value; }

    bool operator==(const RecordState &) const = default;
};

/// Whether `into` changed.
bool join(RecordState &into, const RecordState &other);

/// A setting, or one entry of a setting that is a dictionary of independent entries (saved networks
/// and addresses): two computers that each add one both keep both. A setting as a whole has an
/// empty entry.
struct SettingId
{
    QString key;
    QString entry;

    bool operator==(const SettingId &) const = default;
    friend bool operator<(const SettingId &a, const SettingId &b)
    {
        return std::tie(a.key, a.entry) < std::tie(b.key, b.entry);
    }
};

/// What files carry: some records and settings, each as its state or the part of it that changed.
struct SyncChanges
{
    QMap<RecordId, RecordState> records;
    QMap<SettingId, SyncRegister> settings;

    bool isEmpty() const { return records.isEmpty() && settings.isEmpty(); }
    bool operator==(const SyncChanges &) const = default;
};

void join(SyncChanges &into, const SyncChanges &other);
/// About how many bytes it takes in a file before that is compressed.
qsizetype approximateSize(const RecordState &record);
qsizetype approximateSize(const SyncRegister &setting);
qsizetype approximateSize(const SyncChanges &changes);
/// The latest of all stamps in it.
Stamp latestStamp(const SyncChanges &changes);

} // namespace quillon
