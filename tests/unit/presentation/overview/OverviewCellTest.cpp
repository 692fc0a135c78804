// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/OverviewCell.h"

#include "OverviewFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString twelve = u"...changing MAC Address in 00:12:31"_s;

class OverviewCellTest : public OverviewFixture
{
protected:
    OverviewCellTest() { open(); }
    OverviewCell &cell() { return *overview.controller()->cell(1); }
    const OverviewCell::State &shown() { return cell().state(); }
    void live(const OverviewCell::Live &live) { cell().setLive(live); }
    QString text(OverviewCell::LineKind kind)
    {
        return shown().line.kind == kind ? shown().line.text
                                         : u"of another kind: "_s + shown().line.text;
    }
};

TEST_F(OverviewCellTest, SaysWhatItsButtonsActOn)
{
    EXPECT_EQ(shown().configureToolTip, u"Configure enp1s0"_s);
    EXPECT_EQ(shown().identifier, wired);
    EXPECT_EQ(shown().title, u"Ethernet · enp1s0"_s);
}

TEST_F(OverviewCellTest, ShowsACountdownWithTheButtonThatCanBeUsed)
{
    tellOverview(wired, ticking(twelve));
    EXPECT_EQ(shown().row.timerDisplay, twelve);
    EXPECT_EQ(shown().timerLabel, twelve);
    EXPECT_TRUE(shown().timerButtonsVisible);
    EXPECT_TRUE(shown().pauseEnabled && !shown().resumeEnabled);
    tellOverview(wired, ticking(twelve, true));
    EXPECT_TRUE(shown().row.isPaused);
    EXPECT_TRUE(!shown().pauseEnabled && shown().resumeEnabled);
    tellOverview(wired, ticking(twelve));
    EXPECT_FALSE(shown().row.isPaused);
    EXPECT_TRUE(shown().pauseEnabled && !shown().resumeEnabled);
}

TEST_F(OverviewCellTest, HidesTheCountdownWithoutALabel)
{
    tellOverview(wired, ticking(twelve));
    tellOverview(wired, {{u"interval"_s, 5}});
    EXPECT_EQ(shown().row.timerDisplay, QString());
    EXPECT_EQ(shown().timerLabel, QString());
    EXPECT_FALSE(shown().timerButtonsVisible);
}

TEST_F(OverviewCellTest, HidesACountdownWhoseTextIsEmpty)
{
    tellOverview(wired, ticking(twelve));
    tellOverview(wired, {{u"label"_s, QVariantMap{{u"menu"_s, u"    "_s}}}});
    EXPECT_EQ(shown().timerLabel, QString());
    EXPECT_FALSE(shown().timerButtonsVisible);
}

TEST_F(OverviewCellTest, IsLeftAsItIsByWhatIsToldOfOthers)
{
    tellOverview(wired, ticking(twelve));
    const auto before = shown();
    tellOverview(wifi, {{u"hasRule"_s, 1}, {u"status"_s, u"active"_s}});
    tellOverview(u"nowhere0"_s, {});
    notifications.post(notifications::updateOverview);
    EXPECT_EQ(shown(), before);
}

TEST_F(OverviewCellTest, ShowsWhatIsKnownOfTheRules)
{
    EXPECT_EQ(
        shown().rules, (RuleStatusSign{u"NSStatusNone"_s, u"no rules have been configured"_s}));
    tellOverview(wired, {{u"hasRule"_s, 1}});
    EXPECT_EQ(shown().rules, (RuleStatusSign{u"NSStatusAvailable"_s, u"has an Active rule"_s}));
    tellOverview(wired, {{u"hasRule"_s, 2}});
    EXPECT_EQ(shown().rules,
        (RuleStatusSign{u"NSStatusPartiallyAvailable"_s, u"no rules are currently Active"_s}));
    tellOverview(wired, {{u"status"_s, u"active"_s}});
    EXPECT_EQ(shown().rules.image, u"NSStatusPartiallyAvailable"_s) << "nothing new was told";
    for (const QVariant &value : {QVariant(0), QVariant(3), QVariant(-1), QVariant(u"1x"_s)}) {
        tellOverview(wired, {{u"hasRule"_s, 1}});
        tellOverview(wired, {{u"hasRule"_s, value}});
        EXPECT_EQ(
            shown().rules, (RuleStatusSign{u"NSStatusNone"_s, u"no rules have been configured"_s}));
    }
}

TEST_F(OverviewCellTest, CopiesStatusAndNetwork)
{
    tellOverview(wired, {{u"status"_s, u"inactive"_s}, {u"network"_s, u"Harbor"_s}});
    EXPECT_EQ(shown().row.status, u"inactive"_s);
    EXPECT_EQ(shown().row.network, u"Harbor"_s);
    EXPECT_FALSE(shown().linkActive);
    EXPECT_EQ(shown().linkText, u"Inactive"_s) << "a wire is on no Wi-Fi network";
}

TEST_F(OverviewCellTest, NamesTheNetworkOfItsOwnRadio)
{
    settings.set(keys::currentWiFiDict,
        QVariantMap{{wifirecord::name, u"Harbor"_s}, {wifirecord::BSSID, u"a4:2b:b0:11:22:33"_s}});
    tellOverview(wifi, {{u"status"_s, u"active"_s}, {u"network"_s, u"Harbor"_s}});
    EXPECT_EQ(wifiRow().linkText, u"Harbor"_s);
    EXPECT_TRUE(wifiRow().linkActive);
    settings.set(keys::currentWiFiDict,
        QVariantMap{{wifirecord::name, u"Harbor"_s}, {wifirecord::device, u"wlx0"_s}});
    tellOverview(wifi, {{u"status"_s, u"active"_s}, {u"network"_s, u"Harbor"_s}});
    EXPECT_EQ(wifiRow().linkText, u"Active"_s);
}

TEST_F(OverviewCellTest, TakesWhatIsOfAnotherTypeForNothing)
{
    tellOverview(wired, ticking(twelve));
    notifications.post(notifications::updateOverview, nullptr, {{wired, u"text"_s}});
    EXPECT_FALSE(shown().timerButtonsVisible);
    tellOverview(wired, {{u"label"_s, 7}, {u"status"_s, QVariantList{1}}, {u"network"_s, 3}});
    EXPECT_EQ(shown().timerLabel, QString());
    EXPECT_FALSE(shown().linkActive);
}

TEST_F(OverviewCellTest, TellsOfAChangeOnlyOnce)
{
    const auto changes = count(cell(), &OverviewCell::changed);
    tellOverview(wired, ticking(twelve));
    EXPECT_EQ(*changes, 1);
    tellOverview(wired, ticking(twelve));
    EXPECT_EQ(*changes, 1);
}

TEST_F(OverviewCellTest, GivesAButtonThatWasUsedBackWithTheNextTick)
{
    tellOverview(wired, ticking(twelve));
    cell().disablePauseButton();
    EXPECT_FALSE(shown().pauseEnabled);
    tellOverview(wired, ticking(twelve));
    EXPECT_TRUE(shown().pauseEnabled) << "the countdown was not paused";
    tellOverview(wired, ticking(twelve, true));
    cell().disableResumeButton();
    EXPECT_FALSE(shown().resumeEnabled);
    tellOverview(wired, ticking(twelve, true));
    EXPECT_TRUE(shown().resumeEnabled);
}

TEST_F(OverviewCellTest, SaysWhichAddressItHasNow)
{
    const QString now = u"02:00:00:00:00:0a"_s;
    live({.currentAddress = now});
    EXPECT_EQ(shown().addressNow, now.toUpper());
    EXPECT_EQ(text(OverviewCell::LineKind::Hint), u"The address is now 02:00:00:00:00:0A."_s);
    live({.currentAddress = shown().row.currentAddress.toUpper()});
    EXPECT_EQ(shown().addressNow, QString());
    EXPECT_EQ(shown().line, OverviewCell::Line());
    live({.currentAddress = QString()});
    EXPECT_EQ(shown().addressNow, QString()) << "nothing is known of it";
}

TEST_F(OverviewCellTest, SaysWhatBecameOfAChange)
{
    using Kind = OverviewCell::LineKind;
    const QString old = shown().row.currentAddress;
    const QString now = u"02:00:00:00:00:01"_s;
    live({.currentAddress = now,
        .outcome = ChangeOutcome{.isInPlace = true, .address = now, .requested = now}});
    EXPECT_EQ(text(Kind::Done), u"The address is now 02:00:00:00:00:01."_s);
    live({.currentAddress = old,
        .outcome = ChangeOutcome{.address = old, .requested = now, .failure = u"It is off"_s}});
    EXPECT_EQ(text(Kind::Failure), u"Not changed: It is off."_s);
    live({.currentAddress = old, .outcome = ChangeOutcome{.address = old, .requested = now}});
    EXPECT_EQ(text(Kind::Failure), u"The address was not changed."_s);
    live({.currentAddress = old, .outcome = ChangeOutcome{.requested = now}});
    EXPECT_EQ(text(Kind::Failure), u"The interface does not say which address it has now."_s);
    live({.currentAddress = old,
        .outcome = ChangeOutcome{.address = old, .requested = now, .isSettled = false}});
    EXPECT_EQ(text(Kind::Notice), u"Not connected again: look at the address when it is."_s);
    live({.currentAddress = old,
        .outcome = ChangeOutcome{.address = old, .requested = now, .isConfirmed = true}});
    EXPECT_EQ(text(Kind::Notice), u"Changed, but to another address than you asked for."_s);
    live({.currentAddress = u"02:00:00:00:00:02"_s,
        .outcome = ChangeOutcome{.address = old, .requested = now, .failure = u"It is off"_s}});
    EXPECT_EQ(text(Kind::Hint), u"The address is now 02:00:00:00:00:02."_s) << "it came later";
}

TEST_F(OverviewCellTest, SaysWhyAButtonCannotBeUsed)
{
    const QString other = u"02:00:00:00:00:01"_s;
    live({.currentAddress = other});
    EXPECT_TRUE(shown().randomize.isEnabled && shown().restore.isEnabled);
    live({.currentAddress = other, .isUnderWay = true, .action = ChangeRequest::Restore});
    EXPECT_EQ(text(OverviewCell::LineKind::Hint), QString()) << "its button says it";
    EXPECT_TRUE(shown().restore.isBusy && shown().restore.isEnabled);
    EXPECT_FALSE(shown().randomize.isBusy || shown().randomize.isEnabled);
    EXPECT_EQ(shown().randomize.hint, u"The address is being changed"_s);
    live({.isGone = true, .currentAddress = other});
    EXPECT_EQ(shown().randomize.hint, u"The interface is not there"_s);
    EXPECT_EQ(shown().restore.hint, u"The interface is not there"_s);
    EXPECT_EQ(shown().linkText, u"Not there"_s);
    live({.currentAddress = shown().row.hardwareAddress});
    EXPECT_EQ(shown().restore.hint, u"The interface has its factory address"_s);
    EXPECT_TRUE(shown().randomize.isEnabled);
    OverviewRow row = shown().row;
    row.hardwareAddress = u"N/A"_s;
    cell().setRow(row);
    EXPECT_EQ(shown().restore.hint, u"The interface has no factory address that is known"_s);
}

TEST_F(OverviewCellTest, IsCalledByItsDeviceAloneWhereThePortHasNoName)
{
    OverviewRow row = shown().row;
    row.interface.clear();
    cell().setRow(row);
    EXPECT_EQ(shown().title, wired);
}

TEST_F(OverviewCellTest, TakesAVendorWithoutANameForAnyVendor)
{
    OverviewRow row = shown().row;
    row.vendor.clear();
    cell().setRow(row);
    EXPECT_EQ(shown().vendorText, u"Random Address"_s);
    EXPECT_EQ(shown().row.vendor, QString());
}

TEST_F(OverviewCellTest, EndsWithItsController)
{
    overview.releaseOverviewWindow();
    tellOverview(wired, ticking(twelve));
    EXPECT_EQ(overview.controller(), nullptr);
}

} // namespace
} // namespace quillon::test
