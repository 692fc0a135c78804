// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/ExternalAddressModel.h"

#include "base/Languages.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeHttpClient.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "networks/ExternalIPAddress.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ExternalAddressModelTest : public ::testing::Test
{
protected:
    QString shownFor(const QString &stored)
    {
        settings.set(keys::externalIPAddress, stored);
        return model.text();
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeHttpClient http{scheduler};
    ExternalIPAddress externalAddress{http, settings, QUrl(u"https://ip.test"_s)};
    ExternalAddressModel model{settings, externalAddress};
};

TEST_F(ExternalAddressModelTest, ShowsWhatIsStored)
{
    EXPECT_EQ(model.text(), QString());
    EXPECT_EQ(shownFor(u"198.51.100.7"_s), u"198.51.100.7"_s);
    EXPECT_EQ(shownFor(u"2001:db8::7"_s), u"2001:db8::7"_s);
    EXPECT_EQ(shownFor(QString()), QString());
    EXPECT_EQ(shownFor(u"Unknown..."_s), u"Unknown..."_s);
}

TEST_F(ExternalAddressModelTest, SaysThatItIsUnknownInTheLanguageOfToday)
{
    EXPECT_EQ(shownFor(u"Unbekannt..."_s), u"Unknown..."_s);
    const UserLanguage german({u"de"_s});
    EXPECT_EQ(shownFor(u"Unbekannt..."_s), u"Unbekannt..."_s);
    EXPECT_EQ(shownFor(u"Unknown..."_s), u"Unbekannt..."_s);
    EXPECT_EQ(shownFor(u"198.51.100.7"_s), u"198.51.100.7"_s);
    EXPECT_EQ(shownFor(QString()), QString());
}

TEST_F(ExternalAddressModelTest, SaysThatNobodyLooksItUp)
{
    settings.set(keys::externalIPAddress, u"Unknown..."_s);
    EXPECT_EQ(model.note(), u"Look-up is off"_s);
    EXPECT_TRUE(model.explanation().contains(u"The button asks a public service once."_s));
    settings.setBool(keys::shouldUpdateExternalIP, true);
    EXPECT_EQ(model.note(), QString());
    settings.setBool(keys::shouldUpdateExternalIP, false);
    EXPECT_EQ(model.note(), u"Look-up is off"_s);
    settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    EXPECT_EQ(model.note(), QString()) << "the user asked for it";
    EXPECT_EQ(model.explanation(), QString());
}

TEST_F(ExternalAddressModelTest, SaysThatItIsBeingLookedUpAndKeepsTheAddressMeanwhile)
{
    settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    int changes = 0;
    QObject::connect(&model, &ExternalAddressModel::changed, [&] { ++changes; });
    model.refreshExternalIP();
    EXPECT_GT(changes, 0);
    EXPECT_EQ(model.text(), u"198.51.100.7"_s);
    EXPECT_EQ(model.note(), u"Looking it up…"_s);
    http.deliver(http.last(), R"({"ip":"203.0.113.7"})");
    changes = 0;
    http.finish(http.last());
    scheduler.runPending();
    EXPECT_GT(changes, 0);
    EXPECT_EQ(model.text(), u"203.0.113.7"_s);
    EXPECT_EQ(model.note(), QString());
}

TEST_F(ExternalAddressModelTest, SaysThatNoAnswerCameAndWhatIsShownThen)
{
    settings.setBool(keys::shouldUpdateExternalIP, true);
    settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    model.refreshExternalIP();
    http.fail(http.last(), {httpErrorDomain, 1, u"Connection refused"_s});
    scheduler.runPending();
    EXPECT_EQ(model.text(), u"198.51.100.7"_s);
    EXPECT_EQ(model.note(), u"No answer"_s);
    EXPECT_TRUE(model.explanation().contains(u"This is what it said before."_s));
    model.refreshExternalIP();
    http.finish(http.last(), 503);
    scheduler.runPending();
    EXPECT_EQ(model.text(), u"Unknown..."_s);
    EXPECT_EQ(model.note(), u"No answer"_s);
    EXPECT_FALSE(model.explanation().contains(u"before"_s));
}

} // namespace
} // namespace quillon::test
