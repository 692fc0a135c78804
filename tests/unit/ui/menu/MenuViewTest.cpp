// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/MenuView.h"

#include "unit/ui/WindowFixture.h"

#include <QPointer>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

class MenuViewTest : public WindowFixture
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
                list.append(action->isSeparator() ? u"-"_s : action->text());
            }
        }
        return list;
    }

    MenuView view{menu};
    const QString wiredItem = u"Ethernet \u00B7 enp1s0"_s;
    const QString wiredFactory = u"    Hardware Address \u00B7 3C:22:FB:00:00:01"_s;
    const QString wiredCurrent = u"    Current Address \u00B7 02:00:00:00:00:01"_s;
};

TEST_F(MenuViewTest, ShowsASectionForEachInterface)
{
    EXPECT_THAT(titles(),
        ElementsAre(u"Open Quillon"_s, u"Overview"_s, u"History"_s, u"Rules"_s,
            u"Saved Networks and Addresses"_s, u"Preferences"_s, u"About Quillon"_s, u"-"_s,
            u"Wi-Fi \u00B7 wlp2s0"_s, u"    Hardware Address \u00B7 3C:22:FB:00:00:02"_s,
            u"    Current Address \u00B7 3C:22:FB:00:00:02"_s, u"-"_s, wiredItem, wiredFactory,
            wiredCurrent, u"-"_s, u"Quit Quillon"_s));
    EXPECT_TRUE(titled(wiredItem)->isChecked());
    EXPECT_FALSE(titled(u"Wi-Fi \u00B7 wlp2s0"_s)->isChecked());
    EXPECT_TRUE(insideOf(wiredFactory)->isEnabled());
    EXPECT_FALSE(insideOf(u"    Hardware Address \u00B7 3C:22:FB:00:00:02"_s)->isEnabled());
}

TEST_F(MenuViewTest, AnItemThatStaysKeepsItsIdentity)
{
    QAction *const item = titled(wiredCurrent);
    QAction *const randomize = insideOf(wiredCurrent);
    host.giveAddress(wired, u"02:00:00:00:00:99"_s);
    menu.menuWillOpen();
    EXPECT_EQ(item->text(), u"    Current Address \u00B7 02:00:00:00:00:99"_s);
    EXPECT_TRUE(view.actions().contains(item));
    EXPECT_EQ(item->menu()->actions().value(0), randomize);
}

TEST_F(MenuViewTest, ANewInterfaceDoesNotTakeOverTheItemsOfAnother)
{
    QAction *const item = titled(wiredItem);
    QAction *const randomize = insideOf(wiredCurrent);
    host.plug({u"Ethernet"_s, u"eno1"_s, u"3c:22:fb:00:00:07"_s, u"3c:22:fb:00:00:07"_s, {}});
    menu.menuWillOpen();
    EXPECT_EQ(item->text(), wiredItem);
    EXPECT_LT(
        view.actions().indexOf(titled(u"Ethernet \u00B7 eno1"_s)), view.actions().indexOf(item));

    randomize->trigger();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"AA:01:02:03:04:05"_s);
}

TEST_F(MenuViewTest, ClicksActOnTheInterfaceOfTheirSection)
{
    bool quit = false;
    QObject::connect(&presence, &Presence::terminated, [&] { quit = true; });
    insideOf(wiredFactory)->trigger();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    titled(u"Wi-Fi \u00B7 wlp2s0"_s)->trigger();
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
    titled(u"Quit Quillon"_s)->trigger();
    EXPECT_TRUE(quit);
}

TEST_F(MenuViewTest, AClickAloneTicksNothing)
{
    QAction *const other = titled(u"Wi-Fi \u00B7 wlp2s0"_s);
    other->trigger();
    EXPECT_FALSE(other->isChecked());
    EXPECT_TRUE(titled(wiredItem)->isChecked());
}

TEST_F(MenuViewTest, WithoutTheHelperTheAddressesHaveNoSubmenus)
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

TEST_F(MenuViewTest, AnInterfaceThatGoesTakesItsSubmenusAlong)
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

TEST_F(MenuViewTest, ASubmenuThatOutlivesItsItemDoesNothing)
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

TEST_F(MenuViewTest, ACountdownIsRetitledInPlaceWhileTheMenuIsOpen)
{
    startCountdown(wired);
    scheduler.advance(std::chrono::seconds(1));
    const QStringList without = titles();
    Q_EMIT view.aboutToShow();
    QAction *const countdown =
        view.actions().value(view.actions().indexOf(titled(wiredCurrent)) + 1);
    ASSERT_TRUE(countdown->text().startsWith(u"    ...changing MAC Address in "_s))
        << countdown->text().toStdString();
    EXPECT_FALSE(countdown->isEnabled());
    titled(u"    Pause Timer"_s);
    menu.showCountdown(wired, u"in 00:00:07"_s);
    EXPECT_EQ(countdown->text(), u"    in 00:00:07"_s);
    Q_EMIT view.aboutToHide();
    menu.showCountdown(wired, u"in 00:00:06"_s);
    EXPECT_EQ(countdown->text(), u"    in 00:00:07"_s) << "nobody sees it: nobody is woken";
    EXPECT_EQ(titles().size(), without.size() + 2);
}

TEST_F(MenuViewTest, ATimerDoesNotTurnTheItemsOfItsInterfaceIntoOthers)
{
    QList<QPair<QAction *, bool>> before;
    for (QAction *action : view.actions()) {
        before.append({action, action->isSeparator()});
    }
    startCountdown(wired);
    scheduler.advance(std::chrono::seconds(1));
    menu.menuNeedsUpdate();
    for (const auto &[action, isSeparator] : std::as_const(before)) {
        EXPECT_TRUE(view.actions().contains(action));
        EXPECT_EQ(action->isSeparator(), isSeparator) << action->text().toStdString();
    }
    QAction *const pause = titled(u"    Pause Timer"_s);
    timers.pauseCountdownTimer(wired);
    menu.menuNeedsUpdate();
    EXPECT_FALSE(view.actions().contains(pause)) << "it must never come to mean the opposite";
    titled(u"    Resume Timer"_s);
}

TEST_F(MenuViewTest, WhatChangesWhileItIsOpenIsShownOnceItIsClosed)
{
    Q_EMIT view.aboutToShow();
    host.giveAddress(wired, u"02:00:00:00:00:88"_s);
    devices.updateNetWorkInterfaces();
    menu.menuNeedsUpdate();
    titled(wiredCurrent);
    Q_EMIT view.aboutToHide();
    titled(u"    Current Address \u00B7 02:00:00:00:00:88"_s);
}

TEST_F(MenuViewTest, IsRebuiltWhenItIsAboutToOpen)
{
    host.giveAddress(wired, u"02:00:00:00:00:77"_s);
    Q_EMIT view.aboutToShow();
    titled(u"    Current Address \u00B7 02:00:00:00:00:77"_s);
}

TEST_F(MenuViewTest, AnAmpersandInANameIsNoMnemonic)
{
    host.plug({u"Bridge"_s, u"b&r_0&"_s, {}, u"02:00:00:00:00:50"_s, {}});
    menu.menuWillOpen();
    titled(u"Bridge \u00B7 b&&r_0&&"_s);
}

/// What Qt gives to a tray host, and what the host makes of it.
QString readByAHost(QString text)
{
    const auto mark = text.indexOf(u'&');
    if (mark >= 0 && mark < text.size() - 1) {
        text[mark] = u'_';
    }
    return text.replace(u"__"_s, u"\n"_s).remove(u'_').replace(u'\n', u'_');
}

TEST(MenuViewExported, ATitleReadsInATrayHostAsItIs)
{
    for (const QString &title : {u"Bridge \u00B7 br_0"_s, u"_a__b_"_s, u"AT&T"_s, u"&File"_s,
             u"a&b&c & d"_s, u"end&"_s, u"both&ends&"_s, u"&&"_s, u"&"_s, u"a_&_b"_s}) {
        EXPECT_EQ(readByAHost(exportedMenuText(title)), title);
    }
}

TEST(MenuViewExported, ATitleIsOneLine)
{
    EXPECT_EQ(exportedMenuText(u"a\tb\nc\u202Ed"_s), u"a b c\uFFFDd"_s);
    EXPECT_EQ(menuText(u"a\tb\nc\u202Ed"_s), u"a b c\uFFFDd"_s);
    EXPECT_EQ(menuText(QString(10'000, u'x')).size(), 120);
}

} // namespace
} // namespace quillon::test
