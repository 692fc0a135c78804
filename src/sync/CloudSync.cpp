// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/CloudSync.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "base/Notifier.h"
#include "base/SettingsKeys.h"
#include "platform/NotificationCenter.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "sync/CloudKeyValueStore.h"

#include <mutex>

namespace quillon {

using namespace Qt::StringLiterals;

/// What runs in the background holds the lock and looks whether there is anybody left.
struct CloudSync::Life
{
    std::mutex mutex;
    bool isOver = false;
};

CloudSync::CloudSync(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_life(std::make_shared<Life>())
{
}

CloudSync::~CloudSync()
{
    CloudSync::stop();
    const std::lock_guard lock(m_life->mutex);
    m_life->isOver = true;
}

const QStringList &CloudSync::synchronizedKeys()
{
    static const QStringList keys{keys::showInMenu, keys::hideDock, keys::loginStart,
        keys::hideOnLaunch, keys::displayNotifications, keys::showKeyEnabled,
        keys::randomKeyEnabled, keys::updateKeyEnabled, keys::showKeyCombo, keys::randomKeyCombo,
        keys::savedNetworks, keys::savedAddresses, keys::defaultTimerMinutes, keys::timerEnabled,
        keys::timerMinutes, keys::lowerCaseHEX, keys::shouldUpdateExternalIP,
        keys::SUEnableAutomaticChecks, keys::SUFeedURL, keys::SUAutomaticallyUpdate,
        keys::SUScheduledCheckInterval};
    return keys;
}

void CloudSync::start()
{
    m_deps.cloud.observe([this](const QStringList &keys) { updateFromiCloud(keys); });
    m_isRunning = true;
    m_isPaused = false;
    m_deps.scheduler.onMain(this, [this] {
        if (m_isRunning) {
            m_deps.cloud.synchronize();
            updateFromiCloud(std::nullopt);
        }
    });
}

void CloudSync::stop()
{
    m_deps.cloud.observe({});
    m_isRunning = false;
    m_isPaused = true;
}

void CloudSync::inBackground(const std::function<void()> &work)
{
    m_deps.scheduler.inBackground([life = m_life, work] {
        const std::lock_guard lock(life->mutex);
        if (!life->isOver) {
            work();
        }
    });
}

void CloudSync::sync()
{
    inBackground([this] { m_deps.cloud.synchronize(); });
}

void CloudSync::syncFromCurrentState()
{
    inBackground([this] {
        for (const QString &key : icloudKeysArray()) {
            m_deps.cloud.set(key, {});
        }
        for (const QString &key : synchronizedKeys()) {
            m_deps.cloud.set(key, m_deps.settings.get(key));
        }
        m_deps.cloud.synchronize();
    });
}

QStringList CloudSync::icloudKeysArray() const
{
    return m_deps.cloud.dictionaryRepresentation().keys();
}

void CloudSync::updateObjToiCloudForKey(const QVariant &object, const QString &key)
{
    m_deps.cloud.set(key, object);
}

bool CloudSync::isOriginalObjDifferentToNewObjForKeyUpdateDict(
    const QVariant &original, const QVariant &other, const QString &key, SettingsStore &settings)
{
    if (!other.isValid() || isSamePropertyList(original, normalizedPropertyList(other))) {
        return false;
    }
    settings.set(key, other);
    return true;
}

void CloudSync::updateFromiCloud(const std::optional<QStringList> &changedKeys)
{
    inBackground([this, changedKeys] { pull(changedKeys); });
}

void CloudSync::pull(const std::optional<QStringList> &changedKeys)
{
    const QVariantMap snapshot = m_deps.cloud.dictionaryRepresentation();
    QList<QVariantMap> pending;
    m_isPaused = true;
    for (const QString &key : changedKeys.value_or(snapshot.keys())) {
        if (const QVariant value = snapshot.value(key); value.isValid()) {
            pending << QVariantMap{{u"obj"_s, value}, {u"key"_s, key}};
        }
    }
    // Not over the writing: what it writes is written back into the account, where it is already.
    m_isPaused = !m_isRunning;
    bool hasWritten = false;
    for (const QVariantMap &change : pending) {
        const QString key = change[u"key"_s].toString();
        const bool isDifferent = isOriginalObjDifferentToNewObjForKeyUpdateDict(
            m_deps.settings.get(key), change[u"obj"_s], key, m_deps.settings);
        hasWritten = hasWritten || isDifferent;
    }
    m_deps.settings.synchronize();
    if (hasWritten) {
        m_deps.scheduler.onMain(this, [this] { tellOfUpdates(); });
    }
}

void CloudSync::tellOfUpdates()
{
    m_deps.notifier.sendNotificationWithBody(localized("iCloud"), localized("updates received"));
    m_deps.notifications.post(notifications::icloudUpdated, this);
}

} // namespace quillon
