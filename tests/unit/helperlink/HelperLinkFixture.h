// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakes/FakeHelper.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeScheduler.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "helperlink/XPCMethods.h"
#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

/// What the journal of the fake says of a connection to the service.
inline const QString serviceMade = QStringLiteral("service com.orvandel.Quillon4XPCService");

/// The link with a service and a helper at its other end.
class HelperLinkFixture : public ::testing::Test
{
protected:
    /// The lines that are logged by `work` and by what it sets going.
    template <typename Work>
    QStringList logOf(Work work)
    {
        const LogCapture log;
        work();
        scheduler.runPending();
        return LogCapture::taken();
    }
    template <typename Work>
    QStringList journalOf(Work work)
    {
        helper.clearJournal();
        work();
        scheduler.runPending();
        return helper.journal();
    }

    /// A log line of the link.
    static QString line(const char *text)
    {
        return QStringLiteral("quillon.helperlink: ") + QString::fromUtf8(text);
    }

    XPCMethods::SuccessReply keepSuccess()
    {
        return [this](bool success) {
            successes << success;
            repliedOnMainThread = scheduler.isMainThread();
        };
    }
    XPCMethods::TextReply keepText()
    {
        return [this](const QString &text) {
            texts << text;
            repliedOnMainThread = scheduler.isMainThread();
        };
    }
    void change()
    {
        xpc->changeAddressOfDeviceToAddressDeviceIsWiFiWithReply(
            QStringLiteral("wlp2s0"), QStringLiteral("02:AA:BB:CC:DD:01"), true, keepSuccess());
    }

    FakeScheduler scheduler;
    FakeNetworkHost host{QStringLiteral("laptop")};
    FakeHelper helper{scheduler, host};
    NotificationCenter notifications;
    std::unique_ptr<XPCMethods> xpc =
        std::make_unique<XPCMethods>(helper, scheduler, notifications);
    QList<bool> successes;
    QStringList texts;
    bool repliedOnMainThread = true;
};

} // namespace quillon::test
