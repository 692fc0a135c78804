// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/StatusMenu.h"

#include "unit/ui/WindowMachine.h"

#include <QPointer>

namespace quillon::test {
namespace {

using ::testing::ElementsAre;

class StatusMenuTest : public WindowMachine
{
protected:
    QAction *titled(const QString &title) const
    {
        for (QAction *action : view.actions()) {
            if (action->text() == title) {
                return action;
            }
        }
        ADD_FAILURE() << "no item " << title.toStdString();
        return nullptr;
    }

    QAction *insideOf(const QString &title) const
    {
        return titled(title)->menu()->actions().value(0);
    }

    QStringList titles() const
    {
        QStringList list;
        for (const QAction *action : view.actions()) {
            if (action->isVisible()) {
                list.append(action->isSeparator() ? QStringLiteral("-") : action->text());
            }
        }
        return list;
    }

    StatusMenu view{menu};
    const QString wiredItem = QStringLiteral("Ethernet \u00B7 enp1s0");
    const QString wiredFactory = QStringLiteral("    Hardware Address \u00B7 3C:22:FB:00:00:01");
    const QString wiredCurrent = QStringLiteral("    Current Address \u00B7 02:00:00:00:00:01");
};

TEST_F(StatusMenuTest, ShowsASectionForEachInterface)
{
    EXPECT_THAT(titles(), ElementsAre(QStringLiteral("Open Quillon"), QStringLiteral("-"),
                              QStringLiteral("Wi-Fi \u00B7 wlp2s0"),
                              QStringLiteral("    Hardware Address \u00B7 3C:22:FB:00:00:02"),
                              QStringLiteral("    Current Address \u00B7 3C:22:FB:00:00:02"),
                              QStringLiteral("-"), wiredItem, wiredFactory, wiredCurrent,
                              QStringLiteral("-"), QStringLiteral("Quit Quillon")));
    EXPECT_TRUE(titled(wiredItem)->isChecked());
    EXPECT_FALSE(titled(QStringLiteral("Wi-Fi \u00B7 wlp2s0"))->isChecked());
    EXPECT_TRUE(insideOf(wiredFactory)->isEnabled());
    EXPECT_FALSE(
        insideOf(QStringLiteral("    Hardware Address \u00B7 3C:22:FB:00:00:02"))->isEnabled());
}

TEST_F(StatusMenuTest, AnItemThatStaysKeepsItsIdentity)
{
    QAction *const item = titled(wiredCurrent);
    QAction *const randomize = insideOf(wiredCurrent);
    host.giveAddress(wired, QStringLiteral("02:00:00:00:00:99"));
    menu.menuWillOpen();
    EXPECT_EQ(item->text(), QStringLiteral("    Current Address \u00B7 02:00:00:00:00:99"));
    EXPECT_TRUE(view.actions().contains(item));
    EXPECT_EQ(item->menu()->actions().value(0), randomize);
}

TEST_F(StatusMenuTest, ANewInterfaceDoesNotTakeOverTheItemsOfAnother)
{
    QAction *const item = titled(wiredItem);
    QAction *const randomize = insideOf(wiredCurrent);
    host.plug({QStringLiteral("Ethernet"), QStringLiteral("eno1"),
        QStringLiteral("3c:22:fb:00:00:07"), QStringLiteral("3c:22:fb:00:00:07"), {}});
    menu.menuWillOpen();
    EXPECT_EQ(item->text(), wiredItem);
    EXPECT_LT(view.actions().indexOf(titled(QStringLiteral("Ethernet \u00B7 eno1"))),
        view.actions().indexOf(item));

    randomize->trigger();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), QStringLiteral("AA:01:02:03:04:05"));
}

TEST_F(StatusMenuTest, ClicksActOnTheInterfaceOfTheirSection)
{
    bool quit = false;
    QObject::connect(&presence, &Presence::terminated, [&] { quit = true; });
    insideOf(wiredFactory)->trigger();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), QStringLiteral("3C:22:FB:00:00:01"));
    titled(QStringLiteral("Wi-Fi \u00B7 wlp2s0"))->trigger();
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
    titled(QStringLiteral("Quit Quillon"))->trigger();
    EXPECT_TRUE(quit);
}

TEST_F(StatusMenuTest, AClickAloneTicksNothing)
{
    QAction *const other = titled(QStringLiteral("Wi-Fi \u00B7 wlp2s0"));
    other->trigger();
    EXPECT_FALSE(other->isChecked());
    EXPECT_TRUE(titled(wiredItem)->isChecked());
}

TEST_F(StatusMenuTest, WithoutTheHelperTheAddressesHaveNoSubmenus)
{
    machine.helper.installed = false;
    readHelperStatus();
    menu.menuWillOpen();
    EXPECT_EQ(titled(wiredCurrent)->menu(), nullptr);
    EXPECT_FALSE(titled(wiredCurrent)->isEnabled());
    machine.helper.installed = true;
    readHelperStatus();
    menu.menuWillOpen();
    EXPECT_NE(titled(wiredCurrent)->menu(), nullptr);
    EXPECT_TRUE(titled(wiredCurrent)->isEnabled());
}

TEST_F(StatusMenuTest, AnInterfaceThatGoesTakesItsSubmenusAlong)
{
    ASSERT_EQ(view.findChildren<QMenu *>().size(), 4);
    const QPointer<QAction> item = titled(wiredCurrent);
    const QPointer<QAction> randomize = insideOf(wiredCurrent);
    host.unplug(wired);
    QVariantMap known = settings.getDictionary(keys::deviceDict);
    known.remove(wired);
    settings.set(keys::deviceDict, known);
    menu.menuWillOpen();
    // A click that was under way.
    ASSERT_FALSE(randomize.isNull());
    randomize->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(item.isNull());
    EXPECT_TRUE(randomize.isNull());
    EXPECT_EQ(view.findChildren<QMenu *>().size(), 2);
    scheduler.runPending();
    EXPECT_TRUE(machine.helper.changes().isEmpty());
}

TEST_F(StatusMenuTest, ASubmenuThatOutlivesItsItemDoesNothing)
{
    const QPointer<QAction> item = titled(wiredCurrent);
    QAction *const randomize = insideOf(wiredCurrent);
    randomize->trigger();
    scheduler.runPending();
    EXPECT_EQ(machine.helper.changes().size(), 1);
    delete item.data();
    randomize->trigger();
    scheduler.runPending();
    EXPECT_EQ(machine.helper.changes().size(), 1);
}

TEST_F(StatusMenuTest, IsRebuiltWhenItIsAboutToOpen)
{
    host.giveAddress(wired, QStringLiteral("02:00:00:00:00:77"));
    Q_EMIT view.aboutToShow();
    titled(QStringLiteral("    Current Address \u00B7 02:00:00:00:00:77"));
}

TEST_F(StatusMenuTest, AnUnderscoreInANameIsNoMnemonic)
{
    host.plug({QStringLiteral("Bridge"), QStringLiteral("br_0"), {},
        QStringLiteral("02:00:00:00:00:50"), {}});
    menu.menuWillOpen();
    titled(QStringLiteral("Bridge \u00B7 br__0"));
}

} // namespace
} // namespace quillon::test
