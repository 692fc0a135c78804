// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesRow.h"

#include "base/NotificationNames.h"
#include "presence/Presence.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "ui/rules/RuleSwitchLine.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/ToggleSwitch.h"
#include "unit/rules/RuleFixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RulesRowTest : public RuleFixture
{
protected:
    QList<RuleSwitchLine *> lines()
    {
        QList<RuleSwitchLine *> shown;
        for (auto *line : row.popover().content()->findChildren<RuleSwitchLine *>()) {
            if (!line->isHidden()) {
                shown.append(line);
            }
        }
        return shown;
    }
    /// From top to bottom.
    QList<RuleSwitchLine *> inOrder()
    {
        QCoreApplication::processEvents();
        QList<RuleSwitchLine *> shown = lines();
        std::ranges::sort(shown, {}, [](const RuleSwitchLine *line) { return line->y(); });
        return shown;
    }
    QStringList struckThrough()
    {
        QStringList texts;
        for (const auto *label : row.popover().content()->findChildren<QLabel *>()) {
            if (label->font().strikeOut()) {
                texts.append(label->text());
            }
        }
        return texts;
    }
    void setHasRule(int hasRule)
    {
        QVariantMap devices = settings.getDictionary(keys::deviceDict);
        QVariantMap changed = devices.value(en0).toMap();
        changed[record::hasRule] = hasRule;
        devices[en0] = changed;
        settings.set(keys::deviceDict, devices);
        status.updateRuleStatusForDevice(en0);
    }

    Theme theme;
    RuleStatusModel status{table};
    RulesListModel list{{settings, notifications, current, queries}};
    Presence presence{settings};
    RulesRow row{{status, list, presence}, theme};
};

TEST_F(RulesRowTest, LeadsToTheEditorOrToTheFirstRule)
{
    QList<Destination> chosen;
    QObject::connect(&presence, &Presence::destinationChosen,
        [&](Destination destination) { chosen << destination; });
    presence.offer(Destination::Rules);
    presence.offer(Destination::NewNetworkRule);
    list.toggleRulesPopover();
    auto *edit = row.popover().content()->findChild<QPushButton *>(u"editRules"_s);
    EXPECT_EQ(edit->text(), u"New Network Rule…"_s);
    edit->click();
    EXPECT_FALSE(list.state().popoverShown);
    addRule({.name = u"a"_s});
    list.toggleRulesPopover();
    EXPECT_EQ(edit->text(), u"Edit Rules"_s);
    edit->click();
    EXPECT_EQ(chosen, (QList<Destination>{Destination::NewNetworkRule, Destination::Rules}));
}

TEST_F(RulesRowTest, TellsWhetherARuleHolds)
{
    EXPECT_EQ(row.value(), u"No rules"_s);
    setHasRule(1);
    EXPECT_EQ(row.value(), u"Active rule"_s);
    EXPECT_EQ(struckThrough(), (QStringList{u"No active rules"_s, u"No rules"_s}));
    setHasRule(2);
    EXPECT_EQ(row.value(), u"No active rules"_s);
    EXPECT_EQ(struckThrough(), (QStringList{u"Active rule"_s, u"No rules"_s}));
    setHasRule(0);
    EXPECT_EQ(struckThrough(), (QStringList{u"Active rule"_s, u"No active rules"_s}));
}

TEST_F(RulesRowTest, WhatIsStruckThroughIsPaleAsWellAndSaysTheSame)
{
    setHasRule(1);
    QStringList said;
    for (const auto *label : row.popover().content()->findChildren<QLabel *>()) {
        if (label->text().contains(u"rule"_s, Qt::CaseInsensitive)) {
            said.append(label->text());
            EXPECT_EQ(label->isEnabled(), !label->font().strikeOut())
                << label->text().toStdString();
        }
    }
    for (const auto &text : {u"Active rule"_s, u"No active rules"_s, u"No rules"_s}) {
        EXPECT_TRUE(said.contains(text)) << text.toStdString();
    }
}

TEST_F(RulesRowTest, ItsToolTipSaysHowTheRulesStand)
{
    setHasRule(1);
    EXPECT_EQ(row.toolTip(), u"has an Active rule"_s);
    setHasRule(2);
    EXPECT_EQ(row.toolTip(), u"no rules are currently Active"_s);
    setHasRule(0);
    EXPECT_EQ(row.toolTip(), u"no rules have been configured"_s);
}

TEST_F(RulesRowTest, ListsTheRulesOfTheInterfaceWithTheirSwitches)
{
    addRule({.name = u"Café"_s});
    addRule({.name = u"Home"_s});
    row.click();
    EXPECT_TRUE(list.state().popoverShown);
    ASSERT_EQ(lines().size(), 2);
    const auto *first = lines().first()->findChild<ToggleSwitch *>();
    EXPECT_EQ(first->accessibleName(), list.state().rows.first().name);
    EXPECT_EQ(first->isChecked(), list.state().rows.first().enabled);
}

TEST_F(RulesRowTest, ASwitchIsToldWithItsRule)
{
    addRule({.name = u"Café"_s});
    list.filterRulesArrayController();
    QVariantMap told;
    notifications.addObserver(notifications::toggleCheckbox,
        [&told](const auto &notification) { told = notification.userInfo; });
    auto *button = lines().first()->findChild<ToggleSwitch *>();
    const bool before = button->isChecked();
    button->click();
    EXPECT_EQ(told.value(u"objID"_s).toString(), list.state().rows.first().objID);
    EXPECT_EQ(told.value(u"state"_s).toBool(), !before);
}

TEST_F(RulesRowTest, AssistiveTechnologySwitchesWithoutAClick)
{
    addRule({.name = u"Café"_s});
    list.filterRulesArrayController();
    int told = 0;
    notifications.addObserver(notifications::toggleCheckbox, [&told](const auto &) { ++told; });
    auto *button = lines().first()->findChild<ToggleSwitch *>();
    button->toggle();
    EXPECT_EQ(told, 1);
    // The row follows the rule, which nobody changed here.
    list.filterRulesArrayController();
    lines().first()->setRule(list.state().rows.first());
    EXPECT_EQ(told, 1) << "only what the user does is told";
}

TEST_F(RulesRowTest, ManyRulesAreScrolledSoThatThePopoverFitsTheScreen)
{
    constexpr int many = 60;
    for (int number = 0; number < many; ++number) {
        addRule({.name = u"Rule %1"_s.arg(number)});
    }
    row.show();
    row.click();
    QCoreApplication::processEvents();
    EXPECT_EQ(lines().size(), many);
    EXPECT_LT(row.popover().height(), row.screen()->availableGeometry().height());
}

TEST_F(RulesRowTest, RowsFollowTheRules)
{
    addRule({.name = u"Café"_s});
    list.filterRulesArrayController();
    EXPECT_EQ(lines().size(), 1);
    select(en1);
    list.filterRulesArrayController();
    EXPECT_TRUE(lines().isEmpty());
}

TEST_F(RulesRowTest, ARuleKeepsItsLineAndTheKeyboard)
{
    addRule({.name = u"A"_s, .enabled = false});
    const Rule last = addRule({.name = u"B"_s, .enabled = false});
    row.show();
    row.click();
    ASSERT_EQ(lines().size(), 2);
    RuleSwitchLine *const line = lines().last();
    ASSERT_EQ(line->objID(), last.objID());
    auto *button = line->findChild<ToggleSwitch *>();
    button->setFocus();
    notifications.addObserver(notifications::toggleCheckbox,
        [this](const auto &posted) { switches.toggleRule(posted.userInfo); });
    QObject::connect(
        &switches, &RuleSwitches::ruleToggled, [this] { list.filterRulesArrayController(); });
    button->click();
    ASSERT_EQ(list.state().rows.first().objID, last.objID()) << "what is on stands first";
    EXPECT_TRUE(button->isChecked());
    EXPECT_EQ(button->accessibleName(), u"B"_s);
    EXPECT_EQ(row.popover().focusWidget(), button);
    EXPECT_EQ(inOrder().first(), line);
    button->click();
    EXPECT_EQ(list.state().rows.last().objID, last.objID());
    EXPECT_FALSE(last.enabled());
    row.hide();
}

TEST_F(RulesRowTest, TabFollowsTheOrderOfTheRules)
{
    addRule({.name = u"B"_s, .enabled = false});
    row.show();
    row.click();
    addRule({.name = u"A"_s, .enabled = false});
    list.reload();
    ASSERT_EQ(inOrder().first()->findChild<ToggleSwitch *>()->accessibleName(), u"A"_s);
    QStringList names;
    for (QWidget *next = row.popover().nextInFocusChain(); next != &row.popover();
        next = next->nextInFocusChain()) {
        if (qobject_cast<ToggleSwitch *>(next) != nullptr) {
            names.append(next->accessibleName());
        }
    }
    EXPECT_EQ(names, (QStringList{u"A"_s, u"B"_s}));
    row.hide();
}

TEST_F(RulesRowTest, ManyRulesScroll)
{
    for (int index = 0; index < 30; ++index) {
        addRule({.name = u"Rule %1"_s.arg(index), .enabled = false});
    }
    row.show();
    row.click();
    EXPECT_EQ(lines().size(), 30);
    EXPECT_LT(row.popover().height(), 450);
    const QRect screen = row.screen()->availableGeometry();
    EXPECT_LT(row.popover().height(), screen.height());
    row.hide();
}

} // namespace
} // namespace quillon::test
