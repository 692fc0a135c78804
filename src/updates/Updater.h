// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "updates/AcceptedFeed.h"
#include "updates/UpdateAnnouncement.h"
#include "updates/UpdateProblem.h"
#include "updates/UpdateRequest.h"
#include "updates/UpdateSchedule.h"
#include "updates/UpdateSource.h"

#include <QObject>

namespace quillon {

class Reachability;

/// Looks for new versions of this program, on the schedule of the settings or when the user wants
/// it, and tells of one. It fetches a signed list of versions, nothing else: getting a version and
/// installing it is the system's affair. Where the user has not switched it on there is no request,
/// no alarm and nothing to wait for. Main thread.
class Updater : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        HttpClient &http;
        Reachability &reachability;
        Notifier &notifier;
        SoftwareCenter &softwareCenter;
        UpdateSource source;
    };

    explicit Updater(const Collaborators &collaborators);

    // What the settings say.
    bool automaticallyChecksForUpdates() const;
    void setAutomaticallyChecksForUpdates(bool on);
    /// Whether the page of a new version is opened as soon as it is found. Nothing is downloaded.
    bool automaticallyDownloadsUpdates() const;
    void setAutomaticallyDownloadsUpdates(bool on);
    /// Whole seconds, as they are stored.
    qlonglong updateCheckInterval() const;
    void setUpdateCheckInterval(qlonglong seconds);

    /// Of a package: the system brings new versions, and there is nothing to choose here.
    bool isLeftToSystem() const;
    /// Whether this build, with these settings, knows whom to ask and whom to believe.
    bool canCheck() const;
    bool isChecking() const { return m_request.isRunning(); }
    /// Invalid before the first.
    QDateTime lastCheck() const { return m_schedule.lastRequest(); }
    /// The last look of this run brought a list that was accepted.
    bool hasAnswer() const { return m_hasAnswer; }
    /// Why the last look of this run brought nothing.
    std::optional<UpdateProblem> problem() const { return m_problem; }
    /// The newest version that is known of, if it is newer than this program.
    std::optional<UpdateRelease> offer() const { return m_accepted.offer(); }

    /// From now on it looks when it is time. Once, at the end of the start.
    void begin();
    /// One of the settings that a look depends on.
    void settingsChanged();
    /// The internet may be in reach now.
    void networkChanged();
    /// The user wants to know. Nothing while it looks.
    void checkForUpdates();
    /// The user wants the version on offer. False when there is no page of it to open.
    bool openOffer();

Q_SIGNALS:
    /// Something that the above say of a look has changed.
    void changed();

private:
    enum class Occasion
    {
        Schedule,
        User,
    };

    QString otherFeed() const;
    void schedule();
    void checkWhenDue();
    void check(Occasion occasion);
    void checked(Occasion occasion, const Result<QByteArray> &file);
    void fail(const Error &error);

    Collaborators m_deps;
    UpdateSchedule m_schedule;
    AcceptedFeed m_accepted;
    UpdateAnnouncement m_announcement;
    UpdateRequest m_request;
    Occasion m_occasion = Occasion::User; ///< of the last request
    std::unique_ptr<Scheduler::Alarm> m_alarm;
    bool m_hasBegun = false;
    bool m_awaitsInternet = false;
    bool m_hasAnswer = false;
    std::optional<UpdateProblem> m_problem;
};

} // namespace quillon
