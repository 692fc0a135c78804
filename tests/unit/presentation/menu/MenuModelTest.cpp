// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/MenuModel.h"

#include "presentation/menu/FileMenuModel.h"
#include "presentation/menu/StatusMenuModel.h"
#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

class MenuModelTest : public DeviceModelsFixture
{
protected:
    static QStringList titlesOf(const MenuModel &model)
    {
        QStringList list;
        for (const MenuEntry &entry : model.entries()) {
            list.append(entry.isSeparator() ? u"-"_s : entry.title);
        }
        return list;
    }
    int rowOf(const QString &title) const
    {
        return static_cast<int>(titlesOf(menu).indexOf(title));
    }
    const MenuEntry &titled(const QString &title) const
    {
        return menu.entries().at(static_cast<size_t>(rowOf(title)));
    }
    /// The titles below the current address of the wired interface, as far as its separator.
    QStringList timerTitles() const
    {
        const QStringList titles = titlesOf(menu);
        const auto from = titles.indexOf(u"    Current Address \u00B7 3C:22:FB:00:00:01"_s) + 1;
        return titles.mid(from, titles.indexOf(u"-"_s, from) - from);
    }
    QVariantMap label(const QString &device)
    {
        return timers.timers().value(device).toMap().value(u"label"_s).toMap();
    }

    StatusMenuModel menu{{settings, devices, current, changer, helper, presence, timers}};
    FileMenuModel fileMenu{{settings, devices, current, changer, helper, presence, timers}};
};

TEST_F(MenuModelTest, ATimerHasItsItemsOnceItHasTicked)
{
    menu.menuWillOpen();
    EXPECT_THAT(timerTitles(), ElementsAre());
    startCountdown(wired);
    menu.menuWillOpen();
    EXPECT_THAT(timerTitles(), ElementsAre(u"    Pause Timer"_s));
    scheduler.advance(1s);
    menu.menuWillOpen();
    EXPECT_THAT(timerTitles(),
        ElementsAre(u"    ...changing MAC Address in 00:01:59"_s, u"    Pause Timer"_s));
    const MenuEntry &countdown = titled(u"    ...changing MAC Address in 00:01:59"_s);
    EXPECT_FALSE(countdown.isEnabled());
    EXPECT_TRUE(titled(u"    Pause Timer"_s).isEnabled());
    EXPECT_EQ(titled(u"    Pause Timer"_s).identifier, wired);
}

TEST_F(MenuModelTest, ATimerIsPausedAndResumedFromTheMenu)
{
    startCountdown(wired);
    scheduler.advance(1s);
    menu.menuWillOpen();
    menu.activate({rowOf(u"    Pause Timer"_s)});
    EXPECT_TRUE(timers.showing(wired)->isPaused);
    scheduler.advance(5s);
    menu.menuWillOpen();
    EXPECT_THAT(timerTitles(),
        ElementsAre(u"    ...changing MAC Address in 00:01:59 (paused)"_s, u"    Resume Timer"_s));
    menu.activate({rowOf(u"    Resume Timer"_s)});
    EXPECT_FALSE(timers.showing(wired)->isPaused);
    menu.menuWillOpen();
    EXPECT_NE(rowOf(u"    Pause Timer"_s), -1);
}

TEST_F(MenuModelTest, OfSeveralTimersTheClickedOneIsPaused)
{
    startCountdown(wired);
    startCountdown(wifi);
    menu.menuWillOpen();
    menu.activate({static_cast<int>(titlesOf(menu).lastIndexOf(u"    Pause Timer"_s))});
    EXPECT_TRUE(timers.showing(wired)->isPaused);
    EXPECT_FALSE(timers.showing(wifi)->isPaused);
}

TEST_F(MenuModelTest, ATimerThatHasGoneMeanwhileIsLeftAlone)
{
    startCountdown(wired);
    menu.menuWillOpen();
    const int pause = rowOf(u"    Pause Timer"_s);
    timers.stopCountdownTimer(wired);
    menu.activate({pause});
    EXPECT_TRUE(timers.timers().isEmpty());
}

TEST_F(MenuModelTest, WhileOpenOnlyTheCountdownIsRetitled)
{
    startCountdown(wired);
    scheduler.advance(1s);
    menu.menuWillOpen();
    const QStringList before = titlesOf(menu);
    QList<int> retitled;
    int changes = 0;
    QObject::connect(&menu, &MenuModel::retitled, [&](int index) { retitled.append(index); });
    QObject::connect(&menu, &MenuModel::changed, [&] { ++changes; });
    menu.showCountdown(wired, u"in 00:01:58"_s);
    menu.showCountdown(wifi, u"it has no item"_s);
    host.plug({u"Ethernet"_s, u"eno1"_s, {}, u"3c:22:fb:00:00:07"_s, {}});
    devices.updateNetWorkInterfaces();
    menu.menuNeedsUpdate();

    QStringList expected = before;
    const auto row = before.indexOf(u"    ...changing MAC Address in 00:01:59"_s);
    expected[row] = u"    in 00:01:58"_s;
    EXPECT_EQ(titlesOf(menu), expected);
    EXPECT_THAT(retitled, ElementsAre(static_cast<int>(row)));
    EXPECT_EQ(changes, 0);

    menu.menuDidClose();
    EXPECT_EQ(changes, 1);
    EXPECT_NE(rowOf(u"Ethernet \u00B7 eno1"_s), -1);
}

TEST_F(MenuModelTest, AClosedMenuIsNotRetitled)
{
    startCountdown(wired);
    scheduler.advance(1s);
    menu.menuWillOpen();
    menu.menuDidClose();
    int retitled = 0;
    QObject::connect(&menu, &MenuModel::retitled, [&] { ++retitled; });
    menu.showCountdown(wired, u"in 00:01:58"_s);
    EXPECT_EQ(retitled, 0);
}

TEST_F(MenuModelTest, AChoiceClosesTheMenuEvenWhereTheDesktopDoesNotSaySo)
{
    menu.menuWillOpen();
    menu.activate({0});
    host.giveAddress(wired, u"02:00:00:00:00:42"_s);
    devices.updateNetWorkInterfaces();
    menu.menuNeedsUpdate();
    EXPECT_NE(rowOf(u"    Current Address \u00B7 02:00:00:00:00:42"_s), -1);
}

TEST_F(MenuModelTest, TheCountdownKnowsItsItem)
{
    startCountdown(wired);
    scheduler.advance(1s);
    EXPECT_FALSE(label(wired).contains(u"menu"_s));
    menu.menuWillOpen();
    EXPECT_EQ(label(wired).value(u"menu"_s), u"    ...changing MAC Address in 00:01:59"_s);
    // A start takes the item away; the next tick of an open menu shows the new countdown in it.
    timers.startCountDownTimer(wired);
    scheduler.advance(1s);
    EXPECT_FALSE(label(wired).contains(u"menu"_s));
    menu.showCountdown(wired, u"...changing MAC Address in 00:01:59"_s);
    EXPECT_TRUE(label(wired).contains(u"menu"_s));
}

TEST_F(MenuModelTest, TheFileMenuHasItsFixedItemsAndTheSameSections)
{
    startCountdown(wired);
    scheduler.advance(1s);
    menu.menuWillOpen();
    fileMenu.menuWillOpen();
    const QStringList titles = titlesOf(fileMenu);
    EXPECT_THAT(titles.mid(0, 5), ElementsAre(u"New Network Rule…"_s, u"New Login Rule…"_s, u"-"_s,
                                      u"Close Window"_s, u"-"_s));
    EXPECT_FALSE(titles.contains(u"Quit Quillon"_s));
    const QStringList status = titlesOf(menu);
    EXPECT_FALSE(status.contains(u"Close Window"_s));
    // Between the fixed part (seven items and a separator) and the end (a separator and Quit).
    EXPECT_EQ(titles.mid(5), status.mid(8, status.size() - 10));
}

TEST_F(MenuModelTest, NoTwoEntriesHaveOneKey)
{
    startCountdown(wired);
    scheduler.advance(1s);
    for (MenuModel *const model :
        {static_cast<MenuModel *>(&menu), static_cast<MenuModel *>(&fileMenu)}) {
        model->menuWillOpen();
        QSet<QString> known;
        for (const MenuEntry &entry : model->entries()) {
            EXPECT_FALSE(known.contains(entry.key)) << entry.key.toStdString();
            known.insert(entry.key);
        }
    }
}

} // namespace
} // namespace quillon::test
