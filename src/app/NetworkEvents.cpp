// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/NetworkEvents.h"

#include "app/NetworkChange.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "platform/NetworkChangeSource.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/Reachability.h"
#include "platform/Scheduler.h"
#include "platform/SystemSleep.h"

#include <QPointer>

#include <utility>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds readingAgainDelay{1000};
constexpr int readingsAgain = 5;

} // namespace

NetworkEvents::NetworkEvents(const Platform &platform, NetworkChange &networkChange)
    : m_platform(platform)
    , m_networkChange(networkChange)
{
}

void NetworkEvents::begin()
{
    // The sources outlive this.
    const auto lookAgain = [self = QPointer(this)] {
        if (self) {
            self->m_failedReadings = 0;
            self->dealWithEvent();
        }
    };
    m_platform.networkChanges.start(lookAgain);
    // Much can have happened in a sleep, and not all of it is told of.
    m_platform.sleep.watch([self = QPointer(this), lookAgain] {
        if (self) {
            Q_EMIT self->machineSlept();
        }
        lookAgain();
    });
    m_platform.reachability.watch(lookAgain);
}

void NetworkEvents::dealWithEvent()
{
    // One change of the network is about one interface. The system tells of several at once.
    const QPointer self(this);
    const std::optional<QStringList> read = m_networkChange.readInterfaces();
    if (read) {
        Q_EMIT interfacesRead();
    } else {
        readInterfacesAgain();
    }
    QStringList changed = read.value_or(QStringList());
    if (changed.isEmpty()) {
        changed.append(QString());
    }
    for (const QString &device : std::as_const(changed)) {
        if (self) {
            m_platform.notifications.post(
                notifications::networkChanged, this, {{record::device, device}});
        }
    }
    if (self) {
        m_networkChange.makeUpForWithheld();
        Q_EMIT eventEnded();
    }
}

// The system told of something, and will not tell of it again.
void NetworkEvents::readInterfacesAgain()
{
    if (m_isReadingAgain || m_failedReadings == readingsAgain) {
        return;
    }
    ++m_failedReadings;
    m_isReadingAgain = true;
    m_platform.scheduler.onMainAfter(readingAgainDelay, this, [this] {
        m_isReadingAgain = false;
        dealWithEvent();
    });
}

} // namespace quillon
