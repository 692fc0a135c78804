// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramOnFakes.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString en0 = u"en0"_s;

class CountdownAudienceTest : public ProgramOnFakes
{
protected:
    CountdownAudienceTest()
    {
        run();
        QObject::connect(&features().rules.timers, &CountdownTimers::ticked, [this] { ++ticks; });
        features().devices.table.update(
            en0, [](DeviceRecord &record) { record.rule = QVariantMap{{u"timerMinutes"_s, 30}}; });
        features().rules.timers.startCountDownTimer(en0);
    }

    int ticksWithin(std::chrono::milliseconds time)
    {
        ticks = 0;
        machine.scheduler.advance(time);
        return ticks;
    }

    int ticks = 0;
};

TEST_F(CountdownAudienceTest, IsTakenForGrantedWithoutAUserInterface)
{
    EXPECT_EQ(ticksWithin(10s), 10);
}

TEST_F(CountdownAudienceTest, IsWhoSeesTheWindow)
{
    features().presence.setWindowInSight(false);
    EXPECT_EQ(ticksWithin(10s), 0);
    features().presence.setWindowInSight(true);
    EXPECT_EQ(ticksWithin(10s), 10);
}

TEST_F(CountdownAudienceTest, IsWhoSeesTheOverview)
{
    features().presence.setWindowInSight(false);
    features().overview.setInSight(true);
    EXPECT_EQ(ticksWithin(10s), 10);
    features().overview.setInSight(false);
    EXPECT_EQ(ticksWithin(10s), 0);
}

TEST_F(CountdownAudienceTest, IsWhoHasAMenuOpen)
{
    features().presence.setWindowInSight(false);
    machine.scheduler.advance(90s);
    features().statusMenu.menuWillOpen();
    EXPECT_TRUE(menuTitles().contains(u"    ...changing MAC Address in 00:28:30"_s))
        << "what is left now, not when it was last seen: " << qPrintable(menuTitles().join(u'\n'));
    features().fileMenu.menuWillOpen();
    features().fileMenu.menuDidClose();
    EXPECT_EQ(ticksWithin(10s), 10);
    features().statusMenu.menuDidClose();
    EXPECT_EQ(ticksWithin(10s), 0);
}

} // namespace
} // namespace quillon::test
