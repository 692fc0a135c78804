// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/ClearingUp.h"
#include "sync/FileReading.h"
#include "sync/FileSending.h"
#include "sync/HeadFile.h"
#include "sync/RoundState.h"

#include <QObject>

#include <functional>

namespace quillon {

/// One run over an account: reads what is new there, writes what was done here, clears up. What it
/// has come to is in the replica's storage after each step, so it may end at any moment and the
/// next one goes on; nothing of it relies on what the account promises, only its speed does. Used
/// once. Main thread.
class SyncRound : public QObject
{
public:
    enum class Look
    {
        Head,    ///< one request where nothing is new and nothing was done; two to write something
        Listing, ///< at everything: the first time after the program was started, and now and then
    };
    /// Called once, unless the round has gone before; maybe before start() returns. The round may
    /// be destroyed in there.
    using Done = std::function<void(const SyncOutcome &)>;

    explicit SyncRound(const SyncDeps &deps, const SyncLimits &limits = {});

    void start(Look look, Done done);
    const SyncOutcome &outcome() const { return m_state.outcome; }

private:
    void lookAtHead(bool alwaysList);
    void list();
    bool lookAtKey(const QByteArray &revision);
    void proceed();
    bool readSomething(const SyncPlan &plan);
    void readManifests(const QStringList &names);
    void readSnapshot(const SnapshotFiles &files);
    void readChanges(const QStringList &names);
    void rememberHead();
    bool knowsOurNumbers() const;
    bool sendSomething();
    bool clearUp();
    bool tellOthers();
    bool lookNevertheless();
    void finish();
    SyncPlan plan() const;
    QStringList untried(const QStringList &names) const;

    RoundState m_state;
    HeadFile m_head;
    FileReading m_reading;
    FileSending m_sending;
    ClearingUp m_clearing;
    Done m_done;
    int m_listings = 0;
    bool m_hasLooked = false;
};

} // namespace quillon
