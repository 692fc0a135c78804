// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/PreferencesWindow.h"

#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeTaskBar.h"
#include "platform/NotificationCenter.h"
#include "presence/Presence.h"
#include "presentation/preferences/PreferencesWindowModel.h"
#include "unit/ui/WidgetFixture.h"

#include <QAction>
#include <QLabel>
#include <QToolButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using testing::ElementsAre;

class PreferencesWindowTest : public WidgetFixture
{
protected:
    PreferencesWindowTest()
    {
        for (const PreferencesPaneInfo &info : preferencesPanes()) {
            preferences.addPane(info.pane, new QLabel(u"About "_s + info.label));
        }
        preferences.bringUp();
        settle();
    }

    QToolButton &button(PreferencesPane pane)
    {
        const QString name = preferencesPanes().at(static_cast<qsizetype>(pane)).identifier;
        return *preferences.findChild<QToolButton *>(name);
    }
    QStringList shown() const
    {
        QStringList texts;
        for (const auto *label : preferences.findChildren<QLabel *>()) {
            if (label->isVisible()) {
                texts.append(label->text());
            }
        }
        return texts;
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    Presence presence{settings};
    FakeTaskBar taskBar;
    PreferencesWindowModel model{settings, notifications};
    PreferencesWindow preferences{{model, presence}, theme, taskBar};
};

TEST_F(PreferencesWindowTest, ItsTitleIsThatOfThePane)
{
    EXPECT_EQ(preferences.windowTitle(), u"General"_s);
    EXPECT_THAT(shown(), ElementsAre(u"About General"_s));
    click(button(PreferencesPane::VendorData));
    EXPECT_EQ(preferences.windowTitle(), u"Vendor Data"_s);
    EXPECT_THAT(shown(), ElementsAre(u"About Vendor Data"_s));
    EXPECT_EQ(model.pane(), PreferencesPane::VendorData);
}

TEST_F(PreferencesWindowTest, FollowsTheModel)
{
    model.showPane(PreferencesPane::About);
    EXPECT_THAT(shown(), ElementsAre(u"About About"_s));
    EXPECT_TRUE(button(PreferencesPane::About).isChecked());
    EXPECT_FALSE(button(PreferencesPane::General).isChecked());
}

TEST_F(PreferencesWindowTest, APaneThatIsPressedAgainStaysChosen)
{
    click(button(PreferencesPane::Display));
    click(button(PreferencesPane::Display));
    EXPECT_TRUE(button(PreferencesPane::Display).isChecked());
}

TEST_F(PreferencesWindowTest, TheToolbarIsOneStopWithinWhichArrowsChoose)
{
    button(PreferencesPane::General).setFocus();
    press(Qt::Key_Left);
    EXPECT_EQ(model.pane(), PreferencesPane::General);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(model.pane(), PreferencesPane::Display);
    EXPECT_EQ(QApplication::focusWidget(), &button(PreferencesPane::Display));
    press(Qt::Key_End);
    EXPECT_EQ(model.pane(), PreferencesPane::About);
    press(Qt::Key_Home);
    EXPECT_EQ(model.pane(), PreferencesPane::General);
    int stops = 0;
    for (const PreferencesPaneInfo &info : preferencesPanes()) {
        stops += (button(info.pane).focusPolicy() & Qt::TabFocus) != 0 ? 1 : 0;
    }
    EXPECT_EQ(stops, 1);
}

TEST_F(PreferencesWindowTest, InAMirroredWindowArrowsLeadTheOtherWay)
{
    preferences.setLayoutDirection(Qt::RightToLeft);
    button(PreferencesPane::General).setFocus();
    press(Qt::Key_Left);
    EXPECT_EQ(model.pane(), PreferencesPane::Advanced);
}

TEST_F(PreferencesWindowTest, EachPaneHasAKey)
{
    for (int number = 1; number <= 7; ++number) {
        const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + number));
        for (QAction *action : preferences.actions()) {
            if (action->shortcut() == keys) {
                action->trigger();
            }
        }
        EXPECT_EQ(static_cast<int>(model.pane()), number - 1);
    }
}

TEST_F(PreferencesWindowTest, ToAssistiveTechnologyThePanesAreTabs)
{
    QToolButton &rules = button(PreferencesPane::Rules);
    EXPECT_EQ(accessible(rules).role(), QAccessible::PageTab);
    EXPECT_EQ(accessible(*rules.parentWidget()).role(), QAccessible::PageTabList);
    EXPECT_EQ(accessible(rules).text(QAccessible::Name), u"Rules"_s);
    EXPECT_FALSE(accessible(rules).state().selected);
    accessible(rules).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(accessible(rules).state().selected);
}

TEST_F(PreferencesWindowTest, IsHiddenWhenItIsClosedAndComesBackAsItWas)
{
    model.showPane(PreferencesPane::Updates);
    preferences.close();
    EXPECT_FALSE(preferences.isVisible());
    preferences.bringUp();
    EXPECT_THAT(shown(), ElementsAre(u"About Updates"_s));
}

} // namespace
} // namespace quillon::test
