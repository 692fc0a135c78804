// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/AdvancedPreferencesView.h"

#include "ui/widgets/BusyButton.h"
#include "unit/ui/preferences/PanesFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AdvancedPreferencesViewTest : public PanesFixture
{
protected:
    AdvancedPreferencesViewTest() { machine.settings.set(keys::defaultTimerMinutes, 30); }

    void open() { PanesFixture::open(PreferencesPane::Advanced); }
    QString status() const { return part<QLabel>("helperStatus").text(); }
    BusyButton &install() const { return part<BusyButton>("installButton"); }
    BusyButton &uninstall() const { return part<BusyButton>("uninstallButton"); }
    QLineEdit &minutes() const { return part<QLineEdit>("defaultTimerMinutes"); }
    QStringList owners() const
    {
        const auto &list = part<QListWidget>("owners");
        QStringList rows;
        for (int row = 0; row < list.count(); ++row) {
            rows.append(list.item(row)->text());
        }
        return rows;
    }
    void type(const QString &text)
    {
        minutes().setFocus();
        minutes().selectAll();
        for (const QChar character : text) {
            QKeyEvent event(QEvent::KeyPress, character.unicode(), Qt::NoModifier, character);
            QApplication::sendEvent(&minutes(), &event);
        }
    }
};

TEST_F(AdvancedPreferencesViewTest, EveryControlIsNamed)
{
    open();
    expectNamed();
}

TEST_F(AdvancedPreferencesViewTest, TheHelperIsUninstalledAndInstalled)
{
    open();
    EXPECT_EQ(status(), u"Helper: installed, version 2.0"_s);
    EXPECT_FALSE(install().isUsable());
    ASSERT_TRUE(uninstall().isUsable());
    uninstall().click();
    EXPECT_TRUE(uninstall().isBusy());
    EXPECT_FALSE(install().isUsable());
    settle();
    EXPECT_EQ(status(), u"Helper: not installed"_s);
    EXPECT_FALSE(uninstall().isBusy());
    EXPECT_FALSE(uninstall().isUsable());
    ASSERT_TRUE(install().isUsable());
    install().click();
    settle();
    EXPECT_EQ(status(), u"Helper: installed, version 2.0"_s);
    EXPECT_TRUE(window->isActiveWindow()) << "the prompt stood before it";
}

TEST_F(AdvancedPreferencesViewTest, AnOldHelperIsOutdated)
{
    machine.helper.version = u"1.9"_s;
    features().helper.updateHelperInstalledStatus();
    open();
    EXPECT_EQ(status(), u"Helper: outdated, version 1.9"_s);
    EXPECT_TRUE(install().isUsable());
}

TEST_F(AdvancedPreferencesViewTest, MinutesAreTypedWithinTheirLimits)
{
    open();
    EXPECT_EQ(minutes().text(), u"30"_s);
    type(u"4x5678"_s);
    EXPECT_EQ(minutes().text(), u"456"_s);
    EXPECT_EQ(machine.settings.getInteger(keys::defaultTimerMinutes), 30);
    press(Qt::Key_Return);
    EXPECT_EQ(machine.settings.getInteger(keys::defaultTimerMinutes), 456);
}

TEST_F(AdvancedPreferencesViewTest, LeavingTheFieldStoresAndNoNumberGivesWay)
{
    open();
    type(u"45"_s);
    box("driftAlarm").setFocus();
    EXPECT_EQ(machine.settings.getInteger(keys::defaultTimerMinutes), 45);
    minutes().setFocus();
    minutes().selectAll();
    QKeyEvent remove(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    QApplication::sendEvent(&minutes(), &remove);
    EXPECT_EQ(minutes().text(), QString());
    box("driftAlarm").setFocus();
    EXPECT_EQ(minutes().text(), u"45"_s);
}

TEST_F(AdvancedPreferencesViewTest, FollowsSettingsThatOthersChange)
{
    open();
    machine.settings.set(keys::defaultTimerMinutes, 90);
    EXPECT_EQ(minutes().text(), u"90"_s);
    const bool before = box("driftAlarm").isChecked();
    machine.settings.setBool(keys::driftAlarm, !before);
    EXPECT_EQ(box("driftAlarm").isChecked(), !before);
    box("driftAlarm").click();
    EXPECT_EQ(machine.settings.getBool(keys::driftAlarm), before);
}

TEST_F(AdvancedPreferencesViewTest, SaysWhoManagesEachInterface)
{
    machine.owners.own(enp1s0);
    open();
    settle();
    EXPECT_EQ(owners(), (QStringList{u"enp1s0 \u00b7 NetworkManager"_s,
                            u"enp2s0 \u00b7 no program that is known"_s}));
    machine.host.unplug(enp2s0);
    machine.networkChanges.networkChanges();
    settle();
    EXPECT_EQ(owners(), QStringList{u"enp1s0 \u00b7 NetworkManager"_s});
}

TEST_F(AdvancedPreferencesViewTest, NobodyIsAskedWhileAnotherPaneIsShown)
{
    open();
    settle();
    features().preferencesWindow.showPane(PreferencesPane::Display);
    settle();
    machine.owners.own(enp1s0);
    machine.networkChanges.networkChanges();
    settle();
    EXPECT_EQ(owners().first(), u"enp1s0 \u00b7 no program that is known"_s);
    features().preferencesWindow.showPane(PreferencesPane::Advanced);
    settle();
    settle();
    EXPECT_EQ(owners().first(), u"enp1s0 \u00b7 NetworkManager"_s);
}

} // namespace
} // namespace quillon::test
