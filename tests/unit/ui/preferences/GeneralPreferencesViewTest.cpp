// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/GeneralPreferencesView.h"

#include "fakes/FakeCloudSignIn.h"
#include "ui/widgets/InlineLine.h"
#include "unit/ui/preferences/PanesFixture.h"

#include <QAccessible>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The pane, on a desktop with a tray.
class GeneralPreferencesViewTest : public PanesFixture
{
protected:
    GeneralPreferencesViewTest()
    {
        desktop->trayHost.become(true);
        open(PreferencesPane::General);
    }

    bool says(const QString &text) const
    {
        for (const auto *line : window->findChildren<InlineLine *>()) {
            if (line->isVisible() && line->text() == text) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(GeneralPreferencesViewTest, EveryControlIsNamed)
{
    expectNamed();
}

TEST_F(GeneralPreferencesViewTest, EveryBoxIsItsSettingInBothDirections)
{
    for (const char *name :
        {"loginStart", "hideOnLaunch", "showInMenu", "hideDock", "displayNotifications"}) {
        const QString key = QLatin1String(name);
        const bool before = box(name).isChecked();
        EXPECT_EQ(before, machine.settings.getBool(key)) << name;
        box(name).click();
        EXPECT_EQ(machine.settings.getBool(key), !before) << name;
        machine.settings.setBool(key, before);
        EXPECT_EQ(box(name).isChecked(), before) << name;
        machine.settings.setBool(key, !before);
        EXPECT_EQ(box(name).isChecked(), !before) << name;
        machine.settings.set(key, before);
    }
}

TEST_F(GeneralPreferencesViewTest, AssistiveTechnologySwitchesItAsWell)
{
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(&box("hideOnLaunch"));
    ASSERT_NE(found->actionInterface(), nullptr);
    found->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(box("hideOnLaunch").isChecked());
    EXPECT_TRUE(machine.settings.getBool(keys::hideOnLaunch));
}

TEST_F(GeneralPreferencesViewTest, TheSwitchesOfTheShortcutsAreTheirs)
{
    box("showButton").click();
    EXPECT_TRUE(machine.settings.getBool(keys::showKeyEnabled));
    EXPECT_FALSE(machine.settings.getBool(keys::randomKeyEnabled));
    machine.settings.setBool(keys::randomKeyEnabled, true);
    EXPECT_TRUE(box("randButton").isChecked());
}

TEST_F(GeneralPreferencesViewTest, WithoutAStatusItemTheTaskBarIsNotLeft)
{
    EXPECT_TRUE(box("hideDock").isEnabled());
    box("showInMenu").click();
    EXPECT_FALSE(box("hideDock").isEnabled());
    EXPECT_TRUE(says(u"Only with the icon in the status bar."_s));
    EXPECT_EQ(box("hideDock").accessibleDescription(), u"Only with the icon in the status bar."_s);
}

TEST_F(GeneralPreferencesViewTest, TheDesktopIsAskedToStartTheProgram)
{
    box("loginStart").click();
    EXPECT_EQ(machine.loginItem.current, LoginItem::Entry::Ours);
    machine.settings.setBool(keys::loginStart, false);
    EXPECT_EQ(machine.loginItem.current, LoginItem::Entry::None);
}

TEST_F(GeneralPreferencesViewTest, AnEntryThatWasSwitchedOffMeanwhileIsSeenWhenTheWindowIsBack)
{
    box("loginStart").click();
    machine.loginItem.current = LoginItem::Entry::SwitchedOff;
    QEvent back(QEvent::WindowActivate);
    QApplication::sendEvent(window, &back);
    EXPECT_TRUE(says(u"The desktop has Quillon switched off in its own list. Switch this off and "
                     "on again to have it started."_s));
}

TEST_F(GeneralPreferencesViewTest, TheSwitchOfTheCloudIsThatOfTheSetting)
{
    EXPECT_TRUE(box("iCloudSync").isEnabled());
    machine.settings.setBool(keys::iCloudSync, true);
    EXPECT_TRUE(box("iCloudSync").isChecked());
}

/// With somebody who signs in to accounts when the test says so.
class GeneralPreferencesViewAccount : public GeneralPreferencesViewTest
{
protected:
    GeneralPreferencesViewAccount()
    {
        features().preferences.cloudAccount.use(signIn);
        features().preferences.cloudSignIn.use(signIn);
        settle();
    }
    // The windows go before whom they use.
    ~GeneralPreferencesViewAccount() override { desktop.reset(); }

    const CloudAccount account{.kind = CloudAccount::Kind::WebDav,
        .server = QUrl(u"https://cloud.example/files"_s),
        .user = u"mila"_s,
        .folder = u"Quillon"_s};
    FakeCloudSignIn signIn;
};

TEST_F(GeneralPreferencesViewAccount, SigningInSwitchesSyncOn)
{
    EXPECT_TRUE(says(u"No account yet: there is nowhere to sync with."_s));
    box("accountButton").click();
    settle();
    CloudSignInModel &form = features().preferences.cloudSignIn;
    ASSERT_TRUE(form.state().isOpen);
    form.choose(CloudAccount::Kind::Folder);
    form.edit(CloudSignInModel::Field::Folder, u"/srv/mila"_s);
    form.edit(CloudSignInModel::Field::Passphrase, u"a long passphrase"_s);
    form.signIn();
    // What the sign-in does by itself.
    features().cloud.accounts.set(account);
    signIn.succeed(account, u"This account can be used."_s);
    settle();
    EXPECT_TRUE(box("iCloudSync").isChecked());
    EXPECT_TRUE(machine.settings.getBool(keys::iCloudSync));
    EXPECT_FALSE(says(u"No account yet: there is nowhere to sync with."_s));
    EXPECT_TRUE(says(u"This account can be used."_s));
    expectNamed();
}

TEST_F(GeneralPreferencesViewAccount, WhoIsSignedInAlreadySwitchesNothing)
{
    signIn.become(account);
    settle();
    EXPECT_FALSE(says(u"No account yet: there is nowhere to sync with."_s));
    EXPECT_FALSE(machine.settings.getBool(keys::iCloudSync));
    box("signOutButton").click();
    settle();
    EXPECT_TRUE(says(u"No account yet: there is nowhere to sync with."_s));
}

TEST_F(GeneralPreferencesViewAccount, TabGoesFromTheSwitchToTheAccount)
{
    signIn.become(account);
    settle();
    box("iCloudSync").setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(box("accountButton").hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(box("changePassphraseButton").hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(box("signOutButton").hasFocus());
}

TEST_F(GeneralPreferencesViewTest, ABroadcastFromTheCloudRefreshesIt)
{
    struct Paints : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    } paints;
    box("hideOnLaunch").installEventFilter(&paints);
    settle();
    ASSERT_EQ(paints.count, 0);
    machine.notifications.post(notifications::icloudUpdated);
    settle();
    EXPECT_GE(paints.count, 1) << "every part is drawn anew";
}

TEST_F(GeneralPreferencesViewTest, SettingsOfAnotherTypeAreOff)
{
    machine.settings.set(keys::hideOnLaunch, u"yes"_s);
    machine.settings.set(keys::showKeyCombo, QVariantList{1, 2});
    EXPECT_FALSE(box("hideOnLaunch").isChecked());
    EXPECT_EQ(box("showButtonRecorder").text(), u"Record Shortcut"_s);
}

} // namespace
} // namespace quillon::test
