// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/InterfaceOwners.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Answers when it is told to, and counts.
class SlowOwners : public AddressOwners
{
public:
    void find(const QString &device, Found found) override
    {
        asked.append(device);
        m_waiting.append(std::move(found));
    }
    void finishInterrupted() override {}
    void answer()
    {
        const auto waiting = std::exchange(m_waiting, {});
        for (const Found &found : waiting) {
            found(nullptr);
        }
    }

    QStringList asked;

private:
    QList<Found> m_waiting;
};

class InterfaceOwnersTest : public DeviceModelsFixture
{
protected:
    using Row = InterfaceOwners::Row;

    QList<Row> rows() const { return owners.state().rows; }

    const QString nobody = u"no program that is known"_s;
    InterfaceOwners owners{devices, machine.owners, scheduler};
};

TEST_F(InterfaceOwnersTest, NobodyIsAskedBeforeAnybodyLooks)
{
    owners.interfacesWereRead();
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(InterfaceOwnersTest, EachInterfaceIsListedInTheOrderOfAllLists)
{
    machine.owners.own(wired);
    owners.setShown(true);
    EXPECT_EQ(rows().size(), 2);
    EXPECT_EQ(rows().first(), (Row{wifi, nobody}));
    EXPECT_EQ(rows().last(), (Row{wired, QString()})) << "asked in a turn of its own";
    scheduler.runPending();
    EXPECT_EQ(rows(), (QList<Row>{{wifi, nobody}, {wired, u"NetworkManager"_s}}));
}

TEST_F(InterfaceOwnersTest, FollowsTheInterfacesWhileSomebodyLooks)
{
    owners.setShown(true);
    scheduler.runPending();
    host.unplug(wifi);
    machine.owners.own(wired);
    devices.updateNetWorkInterfaces();
    owners.interfacesWereRead();
    scheduler.runPending();
    EXPECT_EQ(rows(), (QList<Row>{{wired, u"NetworkManager"_s}}));
}

TEST_F(InterfaceOwnersTest, AsksAnewEachTimeThatSomebodyBeginsToLook)
{
    owners.setShown(true);
    scheduler.runPending();
    owners.setShown(false);
    machine.owners.own(wired);
    scheduler.runPending();
    EXPECT_EQ(rows().last().owner, nobody);
    owners.setShown(true);
    EXPECT_EQ(rows().last().owner, nobody) << "what was known stands until the answer comes";
    scheduler.runPending();
    EXPECT_EQ(rows().last().owner, u"NetworkManager"_s);
}

TEST_F(InterfaceOwnersTest, AnOwnerThatNeverAnswersHoldsUpNobodyElse)
{
    machine.owners.hang();
    owners.setShown(true);
    scheduler.runPending();
    EXPECT_EQ(rows(), (QList<Row>{{wifi, QString()}, {wired, QString()}}));
}

TEST_F(InterfaceOwnersTest, OneQuestionIsUnderWayAtATimeAndAnOldAnswerDoesNotCount)
{
    for (int index = 0; index < 200; ++index) {
        const QString name = u"eth%1"_s.arg(index);
        host.plug({u"Ethernet"_s, name, u"3c:22:fb:00:01:02"_s, u"3c:22:fb:00:01:02"_s, {}});
    }
    devices.updateNetWorkInterfaces();
    SlowOwners slow;
    InterfaceOwners many(devices, slow, scheduler);
    int changes = 0;
    QObject::connect(&many, &InterfaceOwners::changed, [&changes] { ++changes; });
    many.setShown(true);
    scheduler.runPending();
    EXPECT_EQ(slow.asked, QStringList{wifi});
    EXPECT_EQ(many.state().rows.size(), 202);
    // The network changes again and again meanwhile.
    many.interfacesWereRead();
    many.interfacesWereRead();
    scheduler.runPending();
    EXPECT_EQ(slow.asked, (QStringList{wifi, wifi, wifi}));
    EXPECT_EQ(changes, 1);
    slow.answer();
    scheduler.runPending();
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(slow.asked.size(), 4) << "only the newest round goes on";
    many.setShown(false);
    slow.answer();
    scheduler.runPending();
    EXPECT_EQ(slow.asked.size(), 4);
}

TEST_F(InterfaceOwnersTest, AnAnswerAfterItsEndReachesNobody)
{
    SlowOwners slow;
    {
        InterfaceOwners gone(devices, slow, scheduler);
        gone.setShown(true);
    }
    slow.answer();
    scheduler.runPending();
    EXPECT_EQ(slow.asked.size(), 1);
}

} // namespace
} // namespace quillon::test
