// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/SettingsKeys.h"
#include "fakes/FakeHttpClient.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeReachability.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeSoftwareCenter.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "fakes/SignedFeed.h"
#include "updates/Updater.h"

#include <gmock/gmock.h>

#include <optional>

namespace quillon::test {

/// The updater of version 4.0.0, with the packaged settings: it is not to look by itself.
class UpdaterFixture : public ::testing::Test
{
protected:
    UpdaterFixture()
    {
        settings.registerDefaults({{keys::SUEnableAutomaticChecks, false},
            {keys::SUAutomaticallyUpdate, false}, {keys::SUScheduledCheckInterval, 604800}});
        // As EventWiring does.
        for (const QString &name : {keys::SUEnableAutomaticChecks, keys::SUScheduledCheckInterval,
                 keys::SUAutomaticallyUpdate, keys::SUFeedURL}) {
            settings.addObserver(name, [this](const SettingsStore::Change &) {
                if (updater) {
                    updater->settingsChanged();
                }
            });
        }
    }

    void create(const UpdateSource &from)
    {
        updater.emplace(Updater::Collaborators{
            settings, scheduler, http, reachability, notifier, center, from});
    }
    void start()
    {
        create(source);
        updater->begin();
    }
    /// The next start of the program.
    void restart()
    {
        updater.reset();
        start();
    }

    static FakeHttpClient::Page page(const QByteArray &body)
    {
        FakeHttpClient::Page page;
        page.body = body;
        page.contentType = "application/rss+xml";
        return page;
    }
    void serve(const QByteArray &version, const QByteArray &issued = "2025-06-01T12:00:00Z")
    {
        http.serve(source.feed, page(key.sign(feedText(feedItem(version), issued))));
    }
    void checkByHand()
    {
        updater->checkForUpdates();
        scheduler.runPending();
    }

    QString offered() const
    {
        const auto offer = updater->offer();
        return offer ? offer->version.text() : QString();
    }
    qsizetype requests() const { return http.requests().size(); }

    LogCapture log;
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeHttpClient http{scheduler};
    FakeReachability reachability;
    FakeNotifier notifier;
    FakeSoftwareCenter center;
    const FeedKey key;
    const UpdateSource source{QUrl(QStringLiteral("https://pages.example/appcast.xml")),
        key.publicKey(), QStringLiteral("4.0.0")};
    std::optional<Updater> updater;
};

} // namespace quillon::test
