// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccountStatus.h"
#include "platform/SettingsStore.h"

#include <QMap>
#include <QObject>
#include <QVariant>

#include <functional>
#include <optional>

namespace quillon {

class AlertPresenter;
class CloudSync;
class Scheduler;
struct Alert;

/// Starts and stops the sync of settings with the setting `iCloudSync` and the account that is
/// signed in, and asks the user when the two do not fit. Main thread.
class CloudAccountWatch : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        CloudSync &cloudSync;
        CloudAccountStatus &account;
        SettingsStore &settings;
        Scheduler &scheduler;
        AlertPresenter &alerts;
    };

    explicit CloudAccountWatch(const Collaborators &collaborators);
    ~CloudAccountWatch() override;

    /// At launch, after every change of `iCloudSync` and of the account, and once the user has
    /// accepted another account; in a later turn. Any number of times.
    void checkiCloudSync();
    /// Changes of settings are written into the account from now on, and those of the account are
    /// looked at.
    void startCloudObservers();
    /// Changes of settings are no longer observed; those of the account are for good.
    void stopCloudObservers();
    /// A setting has changed.
    void updateCloudSetting(const QString &key);

Q_SIGNALS:
    /// The user is about to be asked: the program comes to the front.
    void alertShown();

private:
    void check();
    void showCloudAlert();
    void showchangedUserCloudAlert();
    /// Shows it in a later turn unless one is shown; `answer` gets the index of the button.
    void ask(const Alert &alert, const std::function<void(int button)> &answer);
    void run(const Alert &alert, const std::function<void(int button)> &answer);

    Collaborators m_deps;
    QMap<QString, SettingsStore::Token> m_observers;
    std::optional<CloudAccountStatus::Token> m_accountObserver;
    bool m_isAsking = false;
};

} // namespace quillon
