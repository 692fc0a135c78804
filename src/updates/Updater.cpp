// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/Updater.h"

#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "platform/Reachability.h"
#include "platform/SettingsStore.h"

namespace quillon {

using namespace Qt::StringLiterals;

Updater::Updater(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_schedule(m_deps.settings, m_deps.scheduler)
    , m_accepted(m_deps.settings, m_deps.source)
    , m_announcement(m_deps.settings, m_deps.notifier, m_deps.softwareCenter)
    , m_request(m_deps.http, m_deps.scheduler)
{
}

bool Updater::automaticallyChecksForUpdates() const
{
    return m_deps.settings.getBool(keys::SUEnableAutomaticChecks);
}

void Updater::setAutomaticallyChecksForUpdates(bool on)
{
    m_deps.settings.setBool(keys::SUEnableAutomaticChecks, on);
}

bool Updater::automaticallyDownloadsUpdates() const
{
    return m_deps.settings.getBool(keys::SUAutomaticallyUpdate);
}

void Updater::setAutomaticallyDownloadsUpdates(bool on)
{
    m_deps.settings.setBool(keys::SUAutomaticallyUpdate, on);
}

qlonglong Updater::updateCheckInterval() const
{
    return m_deps.settings.getInteger(keys::SUScheduledCheckInterval);
}

void Updater::setUpdateCheckInterval(qlonglong seconds)
{
    m_deps.settings.set(keys::SUScheduledCheckInterval, seconds);
}

bool Updater::isLeftToSystem() const
{
    return m_deps.source.isLeftToSystem;
}

bool Updater::canCheck() const
{
    return !m_deps.source.key.isEmpty() && !(otherFeed().isEmpty() && m_deps.source.feed.isEmpty());
}

/// The user's own choice. What is no address is not passed over: then nobody is asked.
QString Updater::otherFeed() const
{
    return m_deps.settings.getString(keys::SUFeedURL).trimmed();
}

void Updater::begin()
{
    m_hasBegun = true;
    m_schedule.begin();
    schedule();
}

void Updater::settingsChanged()
{
    if (isChecking() && m_occasion == Occasion::Schedule && !automaticallyChecksForUpdates()) {
        m_request.cancel();
    }
    schedule();
    Q_EMIT changed();
}

void Updater::networkChanged()
{
    if (m_awaitsInternet) {
        checkWhenDue();
    } else if (m_alarm && m_schedule.isClockBehind()) {
        schedule();
    }
}

void Updater::schedule()
{
    m_alarm.reset();
    m_awaitsInternet = false;
    if (m_hasBegun && !isChecking() && canCheck() && automaticallyChecksForUpdates()) {
        m_alarm = m_deps.scheduler.alarmAt(m_schedule.due(), [this] { checkWhenDue(); });
    }
}

void Updater::checkWhenDue()
{
    if (m_schedule.due() > m_deps.scheduler.now()) {
        // The clock was set, or the hour was slept through in part.
        schedule();
    } else if (!m_deps.reachability.isReachable()) {
        m_alarm.reset();
        m_awaitsInternet = true;
    } else {
        check(Occasion::Schedule);
    }
}

void Updater::checkForUpdates()
{
    if (!canCheck() || isChecking()) {
        return;
    }
    if (m_deps.reachability.isReachable()) {
        check(Occasion::User);
    } else {
        fail(updateError(UpdateProblem::NoInternet, u"the internet is out of reach"_s));
        Q_EMIT changed();
    }
}

void Updater::check(Occasion occasion)
{
    m_occasion = occasion;
    m_schedule.noteRequest();
    const QString other = otherFeed();
    const QUrl feed = other.isEmpty() ? m_deps.source.feed : QUrl(other, QUrl::StrictMode);
    if (isUpdateAddress(feed)) {
        m_alarm.reset();
        m_awaitsInternet = false;
        m_request.start(
            feed, [this, occasion](const Result<QByteArray> &file) { checked(occasion, file); });
        Q_EMIT changed();
    } else {
        checked(
            occasion, updateError(UpdateProblem::BadAddress, u"the list has no https address"_s));
    }
}

void Updater::checked(Occasion occasion, const Result<QByteArray> &file)
{
    const std::optional<Error> refusal =
        file ? m_accepted.accept(file.value(), m_deps.scheduler.now()) : file.error();
    if (refusal) {
        fail(*refusal);
    } else {
        m_schedule.noteAnswer();
        m_hasAnswer = true;
        m_problem.reset();
        if (const auto release = offer()) {
            if (occasion == Occasion::User) {
                m_announcement.wasSeen(*release);
            } else {
                m_announcement.tell(*release);
            }
        }
    }
    schedule();
    Q_EMIT changed();
}

void Updater::fail(const Error &error)
{
    m_hasAnswer = false;
    m_problem = static_cast<UpdateProblem>(error.code);
    qCWarning(logUpdates, "no list of versions: %s", qUtf8Printable(error.message));
}

bool Updater::openOffer()
{
    const auto release = offer();
    return release && m_announcement.open(*release);
}

} // namespace quillon
