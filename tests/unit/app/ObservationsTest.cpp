// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Observations.h"

#include "fakes/FakePlatform.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ObservationsTest : public ::testing::Test
{
protected:
    ObservationsTest()
    {
        observations.emplace(platform);
        observations->onSetting(u"key"_s, [this] { seen << u"setting"_s; });
        observations->onBroadcast(u"news"_s,
            [this](const auto &posted) { seen << posted.userInfo.value(u"of"_s).toString(); });
        observations->onBroadcastOfOthers(u"news"_s, u"helper"_s, [this] { seen << u"helper"_s; });
    }

    /// Changes and posts everything that can be observed, and more.
    void happen()
    {
        machine.settings.set(u"key"_s, QVariant::fromValue(++value));
        machine.settings.set(u"other key"_s, true);
        machine.notifications.post(u"news"_s, nullptr, {{u"of"_s, u"window"_s}});
        machine.notifications.post(u"other news"_s);
        machine.distributed.post(u"news"_s, u"helper"_s);
        machine.distributed.post(u"news"_s, u"stranger"_s);
        machine.scheduler.runPending();
    }

    FakePlatform machine;
    const Platform platform = machine.platform();
    std::optional<Observations> observations;
    QStringList seen;
    qlonglong value = 0;
};

TEST_F(ObservationsTest, AreOfWhatWasNamed)
{
    happen();
    EXPECT_EQ(seen, (QStringList{u"setting"_s, u"window"_s, u"helper"_s}));
    happen();
    EXPECT_EQ(seen.size(), 6) << "each time";
}

TEST_F(ObservationsTest, EndWithIt)
{
    observations.reset();
    EXPECT_FALSE(machine.settings.hasObservers());
    EXPECT_FALSE(machine.notifications.hasObservers());
    EXPECT_FALSE(machine.distributed.hasObservers());
    happen();
    EXPECT_EQ(seen, QStringList());
}

} // namespace
} // namespace quillon::test
