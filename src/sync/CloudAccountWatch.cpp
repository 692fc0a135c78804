// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/CloudAccountWatch.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/desktop/AlertPresenter.h"
#include "sync/CloudSync.h"

#include <QPointer>

#include <utility>

namespace quillon {

CloudAccountWatch::CloudAccountWatch(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

CloudAccountWatch::~CloudAccountWatch()
{
    stopCloudObservers();
    if (m_accountObserver) {
        m_deps.account.removeObserver(*m_accountObserver);
    }
}

void CloudAccountWatch::checkiCloudSync()
{
    m_deps.scheduler.onMain(this, [this] { check(); });
}

void CloudAccountWatch::check()
{
    const bool isOn = m_deps.settings.getBool(keys::iCloudSync);
    const QVariant token = normalizedPropertyList(m_deps.account.identityToken());
    if (token.isValid() && !m_deps.settings.get(keys::iCloudToken).isValid()) {
        m_deps.settings.set(keys::iCloudToken, token);
        m_deps.settings.synchronize();
    }
    if (token.isValid() && isSamePropertyList(token, m_deps.settings.get(keys::iCloudToken))) {
        if (isOn) {
            m_deps.cloudSync.start();
            startCloudObservers();
        } else if (m_deps.cloudSync.isRunning()) {
            m_deps.cloudSync.stop();
            stopCloudObservers();
        }
        return;
    }
    if (!isOn) {
        return;
    }
    if (m_deps.cloudSync.isRunning()) {
        m_deps.cloudSync.stop();
        stopCloudObservers();
    }
    if (token.isValid()) {
        showchangedUserCloudAlert();
    } else {
        showCloudAlert();
    }
}

void CloudAccountWatch::startCloudObservers()
{
    if (!m_accountObserver) {
        m_accountObserver = m_deps.account.addObserver([this] { checkiCloudSync(); });
    }
    for (const QString &key : CloudSync::synchronizedKeys()) {
        if (!m_observers.contains(key)) {
            m_observers.insert(key, m_deps.settings.addObserver(key, [this](const auto &change) {
                updateCloudSetting(change.key);
            }));
        }
    }
}

void CloudAccountWatch::stopCloudObservers()
{
    for (const SettingsStore::Token token : std::exchange(m_observers, {})) {
        m_deps.settings.removeObserver(token);
    }
}

void CloudAccountWatch::updateCloudSetting(const QString &key)
{
    if (m_deps.settings.getBool(keys::iCloudSync) && CloudSync::synchronizedKeys().contains(key) &&
        !m_deps.cloudSync.isPaused()) {
        m_deps.cloudSync.updateObjToiCloudForKey(m_deps.settings.get(key), key);
    }
}

// MARK: alerts

void CloudAccountWatch::ask(const Alert &alert, const std::function<void(int button)> &answer)
{
    if (std::exchange(m_isAsking, true)) {
        return;
    }
    m_deps.scheduler.onMain(this, [this, alert, answer] { run(alert, answer); });
}

void CloudAccountWatch::run(const Alert &alert, const std::function<void(int button)> &answer)
{
    Q_EMIT alertShown();
    // Events go on while the alert is open: the program may end under it.
    const QPointer self(this);
    const int button = m_deps.alerts.runModal(alert);
    if (!self) {
        return;
    }
    m_isAsking = false;
    answer(button);
}

void CloudAccountWatch::showCloudAlert()
{
    const Alert alert{
        .message = localized("Please sign in to iCloud"),
        .informativeText = localized("Open System Settings, and login into your iCloud account to "
                                     "enable sync across all your devices."),
        .buttons = {localized("OK")},
    };
    ask(alert, [this](int) {
        m_deps.settings.setBool(keys::iCloudSync, false);
        m_deps.settings.synchronize();
    });
}

void CloudAccountWatch::showchangedUserCloudAlert()
{
    constexpr int okButton = 0;
    const Alert alert{
        .message = localized("Your iCloud account has changed. Do you want to synchronise with the "
                             "new account?"),
        .informativeText =
            localized("You are asked this after you have logged in to a new iCloud account, and "
                      "after the computer was restored from a backup."),
        .buttons = {localized("OK"), localized("Cancel")},
    };
    ask(alert, [this](int button) {
        if (button == okButton) {
            const QVariant token = m_deps.account.identityToken();
            if (token.isValid()) {
                m_deps.settings.set(keys::iCloudToken, token);
                checkiCloudSync();
            } else {
                m_deps.settings.setBool(keys::iCloudSync, false);
            }
        }
        m_deps.settings.synchronize();
    });
}

} // namespace quillon
