// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/CloudKeyValueStore.h"
#include "sync/Replica.h"

#include <QObject>
#include <QSet>

#include <mutex>

namespace quillon {

class RecordMirror;
class Scheduler;

/// The account's settings as the replica has them. Of dictionaries whose entries are independent
/// (saved networks and addresses) each entry is a value of its own, and there is one more for the
/// dictionary, so that an empty one is not a missing one.
class SettingsMirror : public QObject, public CloudKeyValueStore
{
    Q_OBJECT

public:
    SettingsMirror(RecordMirror &mirror, Scheduler &scheduler);

    /// On the main thread it is kept when this returns, if it can be: until the replica is there,
    /// and after a failure, it waits in memory.
    void set(const QString &key, const QVariant &value) override;
    QVariantMap dictionaryRepresentation() const override;
    void synchronize() override;
    void observe(ChangedExternally changed) override;

private:
    void writeSoon();
    void write();
    void load();
    void take(const QSet<QString> &keys);
    QMap<QString, QMap<QString, SyncValue>> known(const QSet<QString> &keys) const;

    RecordMirror &m_mirror;
    Scheduler &m_scheduler;
    ChangedExternally m_changed;

    mutable std::mutex m_mutex; ///< of what follows
    QVariantMap m_values;
    QSet<QString> m_unwritten;
};

} // namespace quillon
