// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/PreferencesWindowModel.h"

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "platform/NotificationCenter.h"

#include <gmock/gmock.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using testing::ElementsAre;

class PreferencesWindowModelTest : public testing::Test
{
protected:
    PreferencesWindowModelTest()
    {
        QObject::connect(
            &model, &PreferencesWindowModel::windowOpened, [this] { told.append(u"opened"_s); });
        notifications.addObserver(
            notifications::changePrefsTab, [this](const NotificationCenter::Notification &posted) {
                told.append(posted.userInfo.value(u"tab"_s).toString());
                model.changePrefsTab(posted.userInfo);
            });
        notifications.addObserver(notifications::changeRulesTab, [this](const auto &) {
            told.append(u"tab %1"_s.arg(settings.getInteger(keys::customTabIndex)));
        });
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    PreferencesWindowModel model{settings, notifications};
    QStringList told;
};

TEST_F(PreferencesWindowModelTest, TheToolbarHasSevenPanesInTheirOrder)
{
    QStringList shown;
    for (const PreferencesPaneInfo &info : preferencesPanes()) {
        EXPECT_EQ(static_cast<qsizetype>(info.pane), shown.size());
        shown.append(info.label + u' ' + info.identifier + u' ' + info.symbol);
    }
    EXPECT_THAT(shown,
        ElementsAre(u"General GeneralPreferences_en gearshape"_s,
            u"Advanced AdvancedPreferences_en slider.vertical.3"_s,
            u"Display DisplayPreferences_en display"_s,
            u"Vendor Data VendorPreferences_en building.2"_s, u"Rules RulesPreferences_en pencil"_s,
            u"Updates UpdatePreferences_en arrow.triangle.2.circlepath"_s,
            u"About AboutPreferences_en info.circle"_s));
}

TEST_F(PreferencesWindowModelTest, OpensOnThePaneThatWasShownLast)
{
    model.showPane(PreferencesPane::Display);
    model.goTo(Destination::Preferences);
    EXPECT_THAT(told, ElementsAre(u"opened"_s));
    EXPECT_EQ(model.pane(), PreferencesPane::Display);
}

TEST_F(PreferencesWindowModelTest, AboutOpensItsPane)
{
    model.goTo(Destination::About);
    EXPECT_THAT(told, ElementsAre(u"opened"_s, u"AboutPreferences_en"_s));
    EXPECT_EQ(model.pane(), PreferencesPane::About);
}

TEST_F(PreferencesWindowModelTest, TheRuleEditorIsTheSecondTabOfTheRules)
{
    for (const auto destination :
        {Destination::Rules, Destination::NewNetworkRule, Destination::NewLoginRule}) {
        told.clear();
        settings.set(keys::customTabIndex, 0);
        model.goTo(destination);
        EXPECT_THAT(told, ElementsAre(u"opened"_s, u"RulesPreferences_en"_s, u"tab 1"_s));
        EXPECT_EQ(model.pane(), PreferencesPane::Rules);
    }
}

TEST_F(PreferencesWindowModelTest, TheSavedItemsAreTheFirstTabOfTheRules)
{
    settings.set(keys::customTabIndex, 1);
    model.goTo(Destination::SavedItems);
    EXPECT_THAT(told, ElementsAre(u"opened"_s, u"RulesPreferences_en"_s, u"tab 0"_s));
}

TEST_F(PreferencesWindowModelTest, OtherWindowsAreNoneOfItsBusiness)
{
    model.goTo(Destination::Overview);
    model.goTo(Destination::History);
    EXPECT_THAT(told, ElementsAre());
}

TEST_F(PreferencesWindowModelTest, ABroadcastThatNamesNoPaneChangesNothing)
{
    int changes = 0;
    QObject::connect(&model, &PreferencesWindowModel::paneChanged, [&changes] { ++changes; });
    model.changePrefsTab({});
    model.changePrefsTab({{u"tab"_s, u"NoSuchPane"_s}});
    model.changePrefsTab({{u"tab"_s, QVariantList{1}}});
    EXPECT_EQ(model.pane(), PreferencesPane::General);
    model.changePrefsTab({{u"tab"_s, u"VendorPreferences_en"_s}});
    model.changePrefsTab({{u"tab"_s, u"VendorPreferences_en"_s}});
    EXPECT_EQ(model.pane(), PreferencesPane::VendorData);
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace quillon::test
