// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ToggleSwitch.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ToggleSwitchTest : public WidgetFixture
{
protected:
    ToggleSwitchTest()
    {
        toggle->setAccessibleName(u"Café"_s);
        column->addWidget(toggle);
        show();
    }

    /// In the middle of where the knob is on the left, or on the right.
    QColor knobColor(bool right) const
    {
        return toggle->grab().toImage().pixelColor(right ? 26 : 10, toggle->height() / 2);
    }

    ToggleSwitch *toggle = new ToggleSwitch(theme);
};

TEST_F(ToggleSwitchTest, IsACheckBox)
{
    EXPECT_EQ(accessible(*toggle).role(), QAccessible::CheckBox);
    EXPECT_EQ(accessible(*toggle).text(QAccessible::Name), u"Café"_s);
    EXPECT_FALSE(accessible(*toggle).state().checked);
    toggle->setChecked(true);
    EXPECT_TRUE(accessible(*toggle).state().checked);
}

TEST_F(ToggleSwitchTest, IsSwitchedByPointerAndKeyboard)
{
    const SignalLog switched(toggle, &ToggleSwitch::toggled);
    click(*toggle, QPoint(33, 14));
    EXPECT_TRUE(toggle->isChecked());
    toggle->setFocus();
    press(Qt::Key_Space);
    EXPECT_FALSE(toggle->isChecked());
    press(Qt::Key_Return);
    EXPECT_TRUE(toggle->isChecked());
    EXPECT_EQ(switched.size(), 3);
}

TEST_F(ToggleSwitchTest, IsAsLargeAsWhatIsClickedHasToBe)
{
    EXPECT_EQ(toggle->size(), QSize(36, Theme::target));
}

TEST_F(ToggleSwitchTest, TheKnobStandsWhereTextEndsWhenItIsOn)
{
    EXPECT_EQ(knobColor(false), theme.colors().controlBorder);
    toggle->setChecked(true);
    EXPECT_EQ(knobColor(true), theme.colors().onAccent);
    EXPECT_EQ(knobColor(false), theme.colors().accent);
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(knobColor(false), theme.colors().onAccent);
    EXPECT_EQ(knobColor(true), theme.colors().accent);
}

TEST_F(ToggleSwitchTest, IsGreyWhileItIsDisabled)
{
    toggle->setEnabled(false);
    EXPECT_EQ(knobColor(false), theme.colors().disabledText);
}

} // namespace
} // namespace quillon::test
