// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/app/ProgramOnFakes.h"

#include <functional>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using Line = AddressFieldLine;

const QString wanted = u"02:00:5E:00:53:0A"_s;
const QString foreign = u"02:00:5e:00:53:99"_s;

const Line inUse = Line::forText({}, {});
const Line changed = Line::forResult({.isInPlace = true, .address = foreign});
const Line refused{
    Line::Kind::Failure, u"Not changed: Please make sure you have installed the HelperTool."_s};
const Line unread = Line::forResult({});

/// What can happen to an address, in any order: our changes and what becomes of them, other
/// programs that set one, an interface that goes and comes. At each step the line below the field
/// tells of the address that the interface has, and the field shows it.
class AddressInUseTest : public ProgramOnFakes
{
public:
    // The steps of an order.
    void apply()
    {
        features().mainWindow.editField(wanted);
        features().mainWindow.changeMacAddress();
        machine.scheduler.advance(100ms);
    }
    void randomize()
    {
        features().mainWindow.randomizeAddress();
        machine.scheduler.advance(100ms);
    }
    void refuse() { machine.helper.mood = FakeHelper::Mood::Refusing; }
    void oblige() { machine.helper.mood = FakeHelper::Mood::Obliging; }
    void takeLong() { machine.helper.changeTakes = 10s; }
    void wait() { machine.scheduler.advance(1min); }
    void another(const QString &address = foreign)
    {
        machine.host.giveAddress(enp1s0, address);
        happen();
    }
    void original() { another(factory.value(enp1s0)); }
    void again() { another(wanted.toLower()); }
    void unplug()
    {
        machine.host.unplug(enp1s0);
        happen();
    }
    void plugWith(const QString &address)
    {
        const QString hardware = factory.value(enp1s0);
        machine.host.plug({u"Ethernet"_s, enp1s0, hardware, address, {u"192.0.2.10"_s}});
        happen();
    }
    void plug() { plugWith(factory.value(enp1s0)); }
    void plugWithAnother() { plugWith(foreign); }
    void happen()
    {
        machine.networkChanges.networkChanges();
        machine.scheduler.advance(100ms);
    }

protected:
    AddressInUseTest()
    {
        run();
        select(enp1s0);
    }

    struct Step
    {
        std::function<void(AddressInUseTest &)> happens;
        Line line;
    };
    void expect(const char *order, const QList<Step> &steps)
    {
        SCOPED_TRACE(order);
        for (qsizetype number = 0; number < steps.size(); ++number) {
            SCOPED_TRACE("step " + std::to_string(number));
            const Step &step = steps.at(number);
            step.happens(*this);
            EXPECT_EQ(window().fieldLine.text, step.line.text);
            EXPECT_EQ(window().fieldLine, step.line);
            const QString real = machine.host.addressOf(enp1s0).toUpper();
            if (!real.isEmpty() && step.line != Line::changing()) {
                EXPECT_EQ(window().currentAddress, real);
                EXPECT_EQ(window().fieldText, real);
            }
        }
    }
};

using It = AddressInUseTest;

TEST_F(AddressInUseTest, AChangeOfAnotherProgramEndsWhatOursHadToSay)
{
    expect("changed, replaced, set again by somebody",
        {{&It::apply, changed}, {[](It &it) { it.another(); }, inUse}, {&It::again, inUse}});
}

TEST_F(AddressInUseTest, ARefusalIsOverOnceTheAddressWasAnother)
{
    expect("refused, replaced, put back",
        {{&It::refuse, inUse}, {&It::apply, refused}, {[](It &it) { it.another(); }, inUse},
            {&It::original, inUse}});
}

TEST_F(AddressInUseTest, ARefusalIsOverOnceTheInterfaceWasAway)
{
    expect("refused, unplugged, plugged in with the same address",
        {{&It::refuse, inUse}, {&It::apply, refused}, {&It::unplug, Line::interfaceGone()},
            {&It::plug, inUse}});
}

TEST_F(AddressInUseTest, ARefusalIsOverOnceTheInterfaceIsBackWithAnotherAddress)
{
    expect("refused, unplugged, plugged in with another address",
        {{&It::refuse, inUse}, {&It::apply, refused}, {&It::unplug, Line::interfaceGone()},
            {&It::plugWithAnother, inUse}});
}

TEST_F(AddressInUseTest, AChangeIsOverOnceTheInterfaceWasAway)
{
    expect("changed, unplugged, plugged in with its factory address",
        {{&It::apply, changed}, {&It::unplug, Line::interfaceGone()}, {&It::plug, inUse}});
}

TEST_F(AddressInUseTest, AnotherProgramIsFasterThanOurChange)
{
    expect("another program sets one while ours is under way, ours comes last",
        {{&It::takeLong, inUse}, {&It::apply, Line::changing()},
            {[](It &it) { it.another(); }, Line::changing()}});
    machine.scheduler.advance(1min);
    happen();
    EXPECT_EQ(window().currentAddress, machine.host.addressOf(enp1s0).toUpper());
    EXPECT_EQ(window().fieldText, window().currentAddress);
    EXPECT_NE(window().fieldLine, changed) << "what was asked for is not in use";
}

TEST_F(AddressInUseTest, AnInterfaceThatLeavesDuringItsChangeSaysNothingOfItWhenItIsBack)
{
    expect("unplugged while the change is under way, plugged in after its end",
        {{&It::takeLong, inUse}, {&It::apply, Line::changing()},
            {&It::unplug, Line::interfaceGone()}, {&It::wait, Line::interfaceGone()},
            {&It::plugWithAnother, inUse}});
}

TEST_F(AddressInUseTest, AnInterfaceThatIsBackBeforeItsChangeEndsTellsTheAddressThatItHas)
{
    expect("unplugged and plugged in while the change is under way",
        {{&It::takeLong, inUse}, {&It::apply, Line::changing()},
            {&It::unplug, Line::interfaceGone()}, {&It::plug, Line::changing()}});
    machine.scheduler.advance(1min);
    EXPECT_EQ(window().currentAddress, machine.host.addressOf(enp1s0).toUpper());
    EXPECT_NE(window().fieldLine, changed);
}

TEST_F(AddressInUseTest, AnAddressThatCouldNotBeReadIsKnownWithTheNextReading)
{
    takeLong();
    apply();
    machine.host.at(enp1s0).broken = true;
    wait();
    EXPECT_EQ(window().fieldLine, unread);
    machine.host.at(enp1s0).broken = false;
    happen();
    EXPECT_NE(window().fieldLine, unread);
    EXPECT_EQ(window().fieldText, machine.host.addressOf(enp1s0).toUpper());
}

TEST_F(AddressInUseTest, TheNextChangeReplacesWhatTheLastOneSaid)
{
    expect("refused, then done, then refused",
        {{&It::refuse, inUse}, {&It::apply, refused}, {&It::oblige, refused},
            {&It::randomize, changed}, {&It::refuse, changed}, {&It::apply, refused}});
}

} // namespace
} // namespace quillon::test
