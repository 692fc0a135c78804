// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SettingsSync.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

class CloudKeyValueStore;
class NotificationCenter;
class Notifier;
class Scheduler;
class SettingsStore;

/// Keeps the settings that a person's computers share equal to what the account holds. There is one
/// for the program. Main thread but where it says otherwise.
class CloudSync : public QObject, public SettingsSync
{
    Q_OBJECT

public:
    struct Collaborators
    {
        CloudKeyValueStore &cloud;
        SettingsStore &settings;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        Notifier &notifier;
    };

    explicit CloudSync(const Collaborators &collaborators);
    /// Stops. Waits for what runs in the background.
    ~CloudSync() override;

    /// The keys that are written into the account and uploaded when sync is switched on, in order.
    static const QStringList &synchronizedKeys();

    /// Listens for what other computers write. Any thread.
    bool isRunning() const { return m_isRunning; }
    /// Changes of this computer are not written into the account. Any thread.
    bool isPaused() const { return m_isPaused; }

    /// Listens, and reads all that the account holds.
    void start();
    void stop();
    void sync();
    void syncFromCurrentState() override;
    /// The keys that the account holds at this moment.
    QStringList icloudKeysArray() const;
    /// Invalid removes the key.
    void updateObjToiCloudForKey(const QVariant &object, const QString &key);
    /// Writes the account's value where it is another one, and answers whether it did. Any thread.
    static bool isOriginalObjDifferentToNewObjForKeyUpdateDict(const QVariant &original,
        const QVariant &other, const QString &key, SettingsStore &settings);
    /// Takes the account's values of these keys over, or of all that it has: also of keys that this
    /// computer writes none of. In the background.
    void updateFromiCloud(const std::optional<QStringList> &changedKeys);

private:
    struct Life;

    void inBackground(const std::function<void()> &work);
    void pull(const std::optional<QStringList> &changedKeys);
    void tellOfUpdates();

    Collaborators m_deps;
    std::shared_ptr<Life> m_life;
    std::atomic_bool m_isRunning = false;
    std::atomic_bool m_isPaused = true;
};

} // namespace quillon
