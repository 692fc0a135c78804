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

} // namespace
} // namespace quillon::test
