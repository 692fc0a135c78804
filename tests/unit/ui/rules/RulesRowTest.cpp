// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesRow.h"

#include "base/NotificationNames.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "ui/rules/RuleSwitchLine.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/ToggleSwitch.h"
#include "unit/rules/RuleFixture.h"

#include <QLabel>
#include <QScreen>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RulesRowTest : public RuleFixture
{
protected:
    QList<RuleSwitchLine *> lines() const
    {
        QList<RuleSwitchLine *> shown;
        for (auto *line : row.popover().content()->findChildren<RuleSwitchLine *>()) {
            if (!line->isHidden()) {
                shown.append(line);
            }
        }
        return shown;
    }
    QStringList struckThrough() const
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
    RulesRow row{{status, list}, theme};
};

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

} // namespace
} // namespace quillon::test
