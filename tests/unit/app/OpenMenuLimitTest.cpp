// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpenMenuLimit.h"

#include "unit/app/ProgramOnFakes.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The window is hidden, and a countdown runs.
class OpenMenuLimitTest : public ProgramOnFakes
{
protected:
    OpenMenuLimitTest()
    {
        run();
        features().presence.setWindowInSight(false);
        features().devices.table.update(enp1s0,
            [](DeviceRecord &record) { record.rule = QVariantMap{{u"timerMinutes"_s, 30}}; });
        features().rules.timers.startCountDownTimer(enp1s0);
        // What else a start has put off is over.
        machine.scheduler.advance(60s);
    }

    int wakeUpsWithin(std::chrono::milliseconds time)
    {
        const int before = machine.scheduler.wakeUps();
        machine.scheduler.advance(time);
        return machine.scheduler.wakeUps() - before;
    }
};

TEST_F(OpenMenuLimitTest, APanelThatNeverSaysThatItClosedTheMenuLetsTheProgramSleep)
{
    features().statusMenu.menuWillOpen();
    EXPECT_GE(wakeUpsWithin(119s), 119);
    machine.scheduler.advance(2s);
    EXPECT_EQ(wakeUpsWithin(60s), 0);
    machine.host.giveAddress(enp2s0, u"02:00:00:00:00:77"_s);
    machine.networkChanges.networkChanges();
    EXPECT_TRUE(menuTitles().contains(u"    Current Address \u00B7 02:00:00:00:00:77"_s));
}

TEST_F(OpenMenuLimitTest, CountsFromTheLastOpening)
{
    features().statusMenu.menuWillOpen();
    machine.scheduler.advance(100s);
    features().statusMenu.menuWillOpen();
    EXPECT_GE(wakeUpsWithin(100s), 100);
}

TEST_F(OpenMenuLimitTest, OfAMenuThatWasClosedIsOver)
{
    features().statusMenu.menuWillOpen();
    features().statusMenu.menuDidClose();
    int closings = 0;
    QObject::connect(&features().statusMenu, &StatusMenuModel::didClose, [&] { ++closings; });
    EXPECT_EQ(wakeUpsWithin(150s), 0);
    EXPECT_EQ(closings, 0);
}

} // namespace
} // namespace quillon::test
