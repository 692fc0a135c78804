// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "sync/RecordMirrorCatchUp.h"
#include "sync/RecordMirrorEdits.h"
#include "sync/RecordMirrorStorage.h"

#include <QObject>

#include <optional>

namespace quillon {

class NotificationCenter;
class RecordStore;
class SettingsStore;

/// What a notification "cloudContainerChanged" tells of, in its userInfo.
namespace cloudevent {
inline const QString type = QStringLiteral("type");           ///< Type, as a number
inline const QString succeeded = QStringLiteral("succeeded"); ///< a Boolean
inline const QString endDate = QStringLiteral("endDate");     ///< only once it has ended
enum class Type
{
    Setup = 0,
    Import = 1, ///< records came from elsewhere
    Export = 2,
};
} // namespace cloudevent

/// Mirrors the records of a store while `iCloudSync` is on: edits that the program saves are told
/// to the replica, and what the replica merges is shown in the open context, as no edit and not to
/// be undone. Posts "cloudContainerChanged". Main thread.
class RecordMirror : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        RecordStore &store;
        SettingsStore &settings;
        Scheduler &scheduler;
        NotificationCenter &notifications;
    };

    explicit RecordMirror(const Collaborators &collaborators);
    ~RecordMirror() override;

    /// The records are open, and `iCloudSync` is read: edits are noted from now on, or no longer.
    /// To be called once at launch; follows a store that opens its file anew by itself.
    void containerOpened();
    /// For the replica. Until isReady() it keeps no records of others.
    RecordMirrorStorage &storage() { return m_storage; }
    /// The replica of the account takes edits from now on; `account` tells accounts apart.
    /// Whatever was known of another account is forgotten, and all records are told to this one.
    /// False when that could not be kept.
    bool start(Replica &replica, const QByteArray &account);
    /// The replica goes. Edits are noted on.
    void stop();
    /// Edits of settings are kept.
    bool isStarted() const { return m_replica != nullptr && m_isMirrored; }

    /// The replica knows all that the records have become: now it may merge what others wrote.
    bool isReady() const { return m_isReady; }
    /// What a person did to settings, in one act. False when it was not kept.
    bool edit(const QList<LocalEdit> &edits);
    /// What is noted is told now, as far as a step goes.
    void takeEdits();
    /// All that was received was merged, or some of it could not be.
    void endImport(bool succeeded);

Q_SIGNALS:
    /// The replica of an account was given, or the store has opened its file anew.
    void started();
    /// isReady(), and it was not before.
    void ready();
    /// There is something to send.
    void edited();
    /// The replica merged other values of these settings.
    void settingsMerged(const QSet<QString> &keys);

private:
    bool beginTransaction();
    void showMerged(const RecordMirrorStorage::Shown &shown);
    void mergeSoon();
    void stepSoon();
    void stepAfter(std::chrono::milliseconds pause);
    void step();
    bool catchUp();
    bool setMirrored(bool mirrored);
    bool write(const char *sql);
    bool isSet(const char *sql) const;
    qint64 now() const;
    void postImport(bool succeeded, bool ended);

    Collaborators m_deps;
    RecordMirrorStorage m_storage;
    RecordMirrorEdits m_edits{m_storage};
    std::optional<RecordMirrorCatchUp> m_catchUp;
    Replica *m_replica = nullptr;
    bool m_isMirrored = false;
    bool m_isCaughtUp = false;
    bool m_isReady = false;
    bool m_isOwn = false;      ///< what runs is this computer's
    bool m_hasTaken = false;   ///< edits, in this transaction
    bool m_isMergeDue = false; ///< the context is to follow
    bool m_isImporting = false;
    std::optional<Scheduler::Token> m_nextStep;
};

} // namespace quillon
