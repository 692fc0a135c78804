// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/InterfaceSelector.h"

#include "unit/ui/window/MainWindowFixture.h"

#include <QComboBox>
#include <QStyleOptionComboBox>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class InterfaceSelectorTest : public MainWindowFixture
{
};

QStyle::State stateOf(const QComboBox &selector)
{
    // What a style is told of a button is protected.
    struct Told : QComboBox
    {
        using QComboBox::initStyleOption;
    };
    QStyleOptionComboBox told;
    (selector.*&Told::initStyleOption)(&told);
    return told.state;
}

TEST_F(InterfaceSelectorTest, AChoiceSelectsTheInterfaceAndIsShownOnceItIsSelected)
{
    auto *selector = named<QComboBox>("Interface");
    selector->setCurrentIndex(0);
    Q_EMIT selector->activated(selector->findData(wifi));
    EXPECT_EQ(selector->currentText(), wired) << "still the selected one";
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
    window.populateSelectionButton();
    EXPECT_EQ(selector->currentText(), wifi);
}

TEST_F(InterfaceSelectorTest, ItsListHoldsTheInterfacesThatAreKnownWhenItOpens)
{
    host.plug({u"Ethernet"_s, u"enp9s0"_s, {}, u"3c:22:fb:00:00:09"_s, {}});
    devices.updateNetWorkInterfaces();
    auto *selector = named<QComboBox>("Interface");
    EXPECT_EQ(selector->count(), 2);
    selector->showPopup();
    EXPECT_EQ(selector->count(), 3);
    selector->hidePopup();
}

TEST_F(InterfaceSelectorTest, LosesItsEmphasisWhenTheModelSaysSo)
{
    auto *selector = named<QComboBox>("Interface");
    selector->setAttribute(Qt::WA_UnderMouse);
    ASSERT_TRUE(stateOf(*selector).testFlag(QStyle::State_MouseOver));
    window.resetInfoButtons();
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_MouseOver));
}

TEST_F(InterfaceSelectorTest, LosesItsEmphasisWhenItsListCloses)
{
    auto *selector = named<QComboBox>("Interface");
    selector->setAttribute(Qt::WA_UnderMouse);
    selector->showPopup();
    ASSERT_TRUE(stateOf(*selector).testFlag(QStyle::State_On));
    selector->hidePopup();
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_On));
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_MouseOver));
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_Sunken));
}

} // namespace
} // namespace quillon::test
