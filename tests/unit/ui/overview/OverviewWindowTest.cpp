// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/overview/OverviewWindow.h"

#include "app/features/Features.h"
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "ui/overview/OverviewFacts.h"
#include "ui/overview/OverviewName.h"
#include "ui/overview/OverviewTable.h"
#include "ui/overview/OverviewTableCellView.h"
#include "ui/widgets/BusyButton.h"
#include "ui/widgets/EmptyState.h"
#include "ui/widgets/InlineLine.h"
#include "ui/widgets/Strip.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSet>
#include <gmock/gmock.h>

#include <algorithm>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The overview of a laptop: its radio is the first row, its wire the second.
class OverviewWindowTest : public ::testing::Test
{
protected:
    void open()
    {
        program.start();
        ask();
    }
    void ask()
    {
        program.features().presence.goTo(Destination::Overview);
        program.settle();
    }
    void plug(int count)
    {
        for (int index = 0; index < count; ++index) {
            const QString address = u"00:00:5e:00:54:%1"_s.arg(index, 2, 16, QChar(u'0'));
            program.machine.host.plug({u"Ethernet"_s, u"eth%1"_s.arg(index), address, address, {}});
        }
    }
    static QWidget &window() { return FaceProgram::part<QWidget>(u"overview"_s); }
    static OverviewTable &table() { return FaceProgram::part<OverviewTable>(u"overviewTable"_s); }
    static OverviewTableCellView &cell(int row) { return *table().cell(row); }
    template <typename T = QPushButton>
    static T &part(int row, const QString &name)
    {
        return *cell(row).findChild<T *>(name);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            QCoreApplication::sendEvent(window().focusWidget(), &event);
        }
        program.settle();
    }
    static QString focused() { return window().focusWidget()->accessibleName(); }
    static QString line(int row) { return cell(row).findChild<InlineLine *>()->text(); }
    Overview &overview() { return program.features().overview; }

    FaceProgram program{{.scheme = ColorScheme::Light, .isStill = true}};
};

TEST_F(OverviewWindowTest, IsReadWhenItIsOpenedAndReleasedWhenItIsClosed)
{
    open();
    EXPECT_TRUE(window().isVisible());
    ASSERT_NE(overview().controller(), nullptr);
    EXPECT_EQ(cell(0).row().device, FaceProgram::radio);
    EXPECT_EQ(cell(1).row().device, FaceProgram::wire);
    EXPECT_EQ(cell(1).objectName(), u"mainCell"_s);
    EXPECT_EQ(table().cell(2), nullptr);
    window().close();
    EXPECT_EQ(overview().controller(), nullptr);
    EXPECT_EQ(table().cell(0), nullptr);
    plug(1);
    program.features().devices.table.updateNetWorkInterfaces();
    ask();
    EXPECT_NE(table().cell(2), nullptr);
}

TEST_F(OverviewWindowTest, SaysOfEachRowAndActionWhichInterfaceItIsAbout)
{
    open();
    EXPECT_EQ(cell(1).accessibleName(), u"Ethernet · enp1s0, Inactive"_s);
    EXPECT_TRUE(cell(1).accessibleDescription().contains(u"Hardware, Vendor Random Address"_s))
        << qPrintable(cell(1).accessibleDescription());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&cell(1))->role(), QAccessible::ListItem);
    QSet<QString> names;
    for (int row = 0; row < 2; ++row) {
        for (auto *button : cell(row).findChildren<QPushButton *>()) {
            EXPECT_TRUE(button->accessibleName().contains(cell(row).row().device))
                << qPrintable(button->accessibleName());
            EXPECT_FALSE(button->toolTip().isEmpty()) << qPrintable(button->accessibleName());
            names.insert(button->accessibleName());
        }
    }
    EXPECT_EQ(names.size(), 12);
    EXPECT_TRUE(names.contains(u"Randomize enp1s0"_s));
    EXPECT_EQ(part(1, u"configButton"_s).toolTip(), u"Configure enp1s0"_s);
    EXPECT_EQ(part(1, u"rulesButton"_s).toolTip(), u"no rules have been configured"_s);
}

TEST_F(OverviewWindowTest, IsOneStopOfTheKeyboardWithArrowsFromRowToRow)
{
    plug(30);
    open();
    EXPECT_TRUE(cell(0).hasFocus());
    press(Qt::Key_Down);
    EXPECT_TRUE(cell(1).hasFocus());
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"Rules of enp1s0"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"Randomize enp1s0"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Randomize wlp2s0"_s) << "the same of the row above";
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(cell(0).hasFocus());
    press(Qt::Key_End);
    EXPECT_TRUE(cell(31).hasFocus());
    EXPECT_TRUE(cell(31).isFilled());
    EXPECT_FALSE(cell(31).visibleRegion().isEmpty()) << "it came into sight";
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"Configure eth9"_s) << "nothing can be restored there";
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"Reload"_s) << "not the next row";
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), u"Configure eth9"_s);
    press(Qt::Key_PageUp);
    EXPECT_FALSE(cell(31).isAncestorOf(window().focusWidget()));
    press(Qt::Key_Home);
    EXPECT_EQ(focused(), u"Configure wlp2s0"_s);
}

TEST_F(OverviewWindowTest, ShowsTheInterfaceInTheMainWindowByReturn)
{
    open();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(program.features().devices.currentInterface.device(), FaceProgram::wire);
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(cell(1).hasFocus()) << "it keeps the keyboard";
}

TEST_F(OverviewWindowTest, RandomizesAndRestoresByTheKeyboard)
{
    open();
    const QString before = cell(0).row().currentAddress;
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    const QString now = program.machine.host.addressOf(FaceProgram::radio);
    EXPECT_NE(now, before);
    EXPECT_EQ(line(0), u"The address is now %1."_s.arg(now.toUpper()));
    EXPECT_EQ(cell(0).row().currentAddress, before);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"Restore the hardware address of wlp2s0"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(program.machine.host.addressOf(FaceProgram::radio), before);
}

TEST_F(OverviewWindowTest, IsBusyWhileAnAddressIsChanged)
{
    open();
    program.machine.helper.mood = FakeHelper::Mood::Hanging;
    auto &randomize = part<BusyButton>(0, u"randomizeRow"_s);
    randomize.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_TRUE(randomize.isBusy());
    EXPECT_EQ(randomize.text(), u"Randomizing…"_s);
    EXPECT_EQ(randomize.accessibleName(), u"Randomizing wlp2s0"_s);
    EXPECT_TRUE(randomize.hasFocus());
    EXPECT_FALSE(part<BusyButton>(0, u"restoreRow"_s).isUsable());
    EXPECT_TRUE(part<BusyButton>(1, u"randomizeRow"_s).isUsable());
}

TEST_F(OverviewWindowTest, SaysThatAChangeWasRefused)
{
    open();
    program.machine.helper.mood = FakeHelper::Mood::Refusing;
    part(1, u"randomizeRow"_s).click();
    program.settle();
    EXPECT_EQ(line(1), u"Not changed: Please make sure you have installed the HelperTool."_s);
    EXPECT_TRUE(cell(1).findChild<InlineLine *>()->isVisible());
}

TEST_F(OverviewWindowTest, HasTheCountdownOfARowWithTheKeyboardOnTheButtonThatCanBeUsed)
{
    program.saveRule(FaceProgram::repeatedRule(u"Repeated"_s));
    open();
    program.machine.scheduler.advance(2s);
    auto &label = part<QLabel>(0, u"timerLabel"_s);
    auto &pause = part<BusyButton>(0, u"timerPause"_s);
    auto &resume = part<BusyButton>(0, u"timerResume"_s);
    EXPECT_TRUE(label.text().startsWith(u"...changing MAC Address in 00:04:"_s));
    EXPECT_TRUE(pause.isUsable() && !resume.isUsable());
    EXPECT_EQ(pause.accessibleName(), u"Pause the countdown of wlp2s0"_s);
    pause.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_TRUE(pause.hasFocus() && !pause.isUsable()) << "until the next tick";
    program.machine.scheduler.advance(1s);
    program.settle();
    EXPECT_TRUE(resume.hasFocus() && resume.isUsable());
    EXPECT_TRUE(label.text().endsWith(u"(paused)"_s));
    press(Qt::Key_Space);
    program.machine.scheduler.advance(1s);
    program.settle();
    EXPECT_TRUE(pause.hasFocus());
    EXPECT_FALSE(label.text().endsWith(u"(paused)"_s));
    EXPECT_FALSE(part<QLabel>(1, u"timerLabel"_s).isVisible());
}

TEST_F(OverviewWindowTest, GivesTheKeyboardBackToAButtonThatWasHiddenForAMoment)
{
    program.saveRule(FaceProgram::repeatedRule(u"Repeated"_s));
    open();
    program.machine.scheduler.advance(2s);
    auto &pause = part<BusyButton>(0, u"timerPause"_s);
    pause.setFocus(Qt::TabFocusReason);
    program.features().rules.evaluation.rulesWereChanged();
    EXPECT_FALSE(pause.isVisible());
    EXPECT_TRUE(cell(0).hasFocus());
    program.machine.scheduler.advance(1s);
    program.settle();
    EXPECT_TRUE(pause.isVisible());
    EXPECT_TRUE(pause.hasFocus());
}

/// Which parts of a window were drawn, and which were laid out.
class Touched : public QObject
{
public:
    explicit Touched(const QWidget &window)
        : m_window(window)
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *part = qobject_cast<QWidget *>(watched);
        if (part != nullptr && part->window() == &m_window) {
            if (event->type() == QEvent::Paint) {
                drawn.insert(part);
            } else if (event->type() == QEvent::LayoutRequest && part->layout() != nullptr) {
                laidOut.insert(part);
            }
        }
        return false;
    }

    QSet<QWidget *> drawn;
    QSet<QWidget *> laidOut;

private:
    const QWidget &m_window;
};

TEST_F(OverviewWindowTest, DrawsNothingButTheCountdownWhenItTicks)
{
    program.saveRule(FaceProgram::repeatedRule(u"Repeated"_s));
    plug(30);
    open();
    // Until no digits come that are wider than all before.
    for (int second = 0; second < 30; ++second) {
        program.machine.scheduler.advance(1s);
        program.settle();
    }
    auto &label = part<QLabel>(0, u"timerLabel"_s);
    const QString before = label.text();
    Touched touched(window());
    program.machine.scheduler.advance(1s);
    program.settle();
    EXPECT_NE(label.text(), before);
    EXPECT_TRUE(touched.drawn.remove(&label));
    for (QWidget *part : std::as_const(touched.drawn)) {
        EXPECT_TRUE(part->isAncestorOf(&label)) << part->metaObject()->className();
    }
    EXPECT_TRUE(touched.laidOut.isEmpty()) << (*touched.laidOut.begin())->metaObject()->className();
}

TEST_F(OverviewWindowTest, HasTheRowsInSightDrawThemselvesWhenTheyAreReloaded)
{
    plug(30);
    open();
    Touched touched(window());
    table().reloadVisibleRows();
    program.settle();
    EXPECT_TRUE(touched.drawn.contains(&cell(0)));
    EXPECT_TRUE(touched.drawn.contains(&cell(1)));
    EXPECT_FALSE(touched.drawn.contains(&cell(20)));
}

TEST_F(OverviewWindowTest, PutsADeviceBelowItsPortWhereThereIsNoRoomBesideIt)
{
    program.machine.host.plug({u"USB 10/100/1000 LAN of the dock"_s, u"enx00005e005310"_s,
        u"00:00:5e:00:53:10"_s, u"00:00:5e:00:53:10"_s, {}});
    open();
    ASSERT_EQ(cell(2).row().device, u"enx00005e005310"_s);
    const auto shows = [](int row, const QString &text) {
        const QList<QLabel *> labels = cell(row).findChildren<QLabel *>();
        return std::ranges::any_of(labels,
            [&text](const QLabel *label) { return label->isVisible() && label->text() == text; });
    };
    EXPECT_TRUE(shows(1, u"Ethernet · enp1s0"_s));
    EXPECT_FALSE(shows(1, u"enp1s0"_s));
    EXPECT_TRUE(shows(2, u"enx00005e005310"_s)) << "in full";
    EXPECT_GT(cell(2).findChild<OverviewFacts *>()->geometry().bottom(),
        part(2, u"randomizeRow"_s).parentWidget()->geometry().bottom())
        << "its actions are beside it";
    window().resize(1600, 500);
    program.settle();
    EXPECT_TRUE(shows(2, u"USB 10/100/1000 LAN of the dock · enx00005e005310"_s));
    EXPECT_FALSE(shows(2, u"enx00005e005310"_s));
}

class OverviewWindowMirrored : public OverviewWindowTest, public ::testing::WithParamInterface<bool>
{
protected:
    OverviewWindowMirrored()
    {
        QApplication::setLayoutDirection(GetParam() ? Qt::RightToLeft : Qt::LeftToRight);
    }
    ~OverviewWindowMirrored() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
    /// How far from where the card begins.
    static int beginOf(const QWidget &part)
    {
        const QRect place(part.mapTo(&cell(0), QPoint(0, 0)), part.size());
        return GetParam() ? cell(0).width() - 1 - place.right() : place.left();
    }
};

INSTANTIATE_TEST_SUITE_P(OverviewWindow, OverviewWindowMirrored, ::testing::Bool(),
    [](const auto &mirrored) { return mirrored.param ? "RightToLeft" : "LeftToRight"; });

TEST_P(OverviewWindowMirrored, HasAllLinesOfACardBeginWhereItsNameDoes)
{
    program.saveRule(FaceProgram::repeatedRule(u"Repeated"_s));
    open();
    program.machine.scheduler.advance(2s);
    program.machine.helper.mood = FakeHelper::Mood::Refusing;
    part(0, u"randomizeRow"_s).click();
    window().resize(1, 1);
    program.settle();
    const int name = beginOf(*cell(0).findChild<OverviewName *>());
    EXPECT_GT(name, Theme::headerIconSize);
    EXPECT_EQ(beginOf(part<QLabel>(0, u"timerLabel"_s)), name);
    EXPECT_EQ(beginOf(*cell(0).findChild<InlineLine *>()), name);
    // Its first letter, not its padding.
    EXPECT_NEAR(beginOf(part(0, u"rulesButton"_s)), name, Theme::unit + Theme::spacing / 2);
}

TEST_F(OverviewWindowTest, IsMovedByItsGround)
{
    open();
    window().resize(900, 700);
    program.settle();
    const auto ground = [](const QWidget &part, QPoint place) {
        return isGround(window(), part.mapTo(&window(), place));
    };
    EXPECT_TRUE(isGround(window(), QPoint(2, 2)));
    const QWidget &below = *table().viewport();
    EXPECT_TRUE(ground(below, QPoint(below.width() / 2, below.height() - 2))) << "below the cards";
    EXPECT_FALSE(ground(cell(0), cell(0).rect().center()));
    EXPECT_FALSE(ground(part(0, u"restoreRow"_s), QPoint(4, 4))) << "though it is disabled";
}

TEST_F(OverviewWindowTest, LetsCountdownsTickOnlyWhileItIsSeen)
{
    open();
    EXPECT_TRUE(overview().isInSight());
    window().showMinimized();
    program.settle();
    // A display tells of it; there is none here.
    QHideEvent hidden;
    QCoreApplication::sendEvent(&window(), &hidden);
    EXPECT_FALSE(overview().isInSight());
    EXPECT_NE(overview().controller(), nullptr) << "it is still open";
    ask();
    window().close();
    EXPECT_FALSE(overview().isInSight());
}

TEST_F(OverviewWindowTest, FillsOnlyWhatIsInSight)
{
    plug(100);
    open();
    EXPECT_TRUE(cell(0).isFilled());
    EXPECT_FALSE(cell(50).isFilled());
    EXPECT_EQ(cell(50).accessibleName().section(u' ', 0, 1), u"Ethernet ·"_s);
    table().verticalScrollBar()->setValue(table().verticalScrollBar()->maximum());
    program.settle();
    EXPECT_TRUE(cell(101).isFilled());
    EXPECT_FALSE(cell(50).isFilled());
    EXPECT_EQ(cell(50).height(), cell(101).height());
}

TEST_F(OverviewWindowTest, StaysWhereItWasScrolledWhenItsRowsAreMadeAnew)
{
    plug(40);
    open();
    press(Qt::Key_End);
    press(Qt::Key_Tab);
    const int scrolled = table().verticalScrollBar()->value();
    ASSERT_GT(scrolled, 0);
    const QString name = focused();
    program.machine.settings.set(keys::lowerCaseHEX, true);
    program.settle();
    EXPECT_EQ(table().verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(focused(), name);
    overview().loadAnew();
    program.settle();
    EXPECT_EQ(table().verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(focused(), name);
}

TEST_F(OverviewWindowTest, ListsANewInterfaceWhenItIsReloaded)
{
    open();
    plug(1);
    program.machine.networkChanges.networkChanges();
    program.settle();
    EXPECT_EQ(table().cell(2), nullptr);
    const QList<InlineLine *> lines = window().findChildren<InlineLine *>();
    EXPECT_TRUE(std::ranges::any_of(lines, [](const InlineLine *each) {
        return each->isVisible() &&
               each->text() == u"There are interfaces that are not listed here yet."_s;
    }));
    ask();
    ASSERT_NE(table().cell(2), nullptr) << "it was asked for again";
    EXPECT_EQ(cell(1).row().device, FaceProgram::wire);
    EXPECT_EQ(cell(2).row().device, u"eth0"_s);
}

TEST_F(OverviewWindowTest, OffersTheHelper)
{
    program.machine.helper.installed = false;
    open();
    auto *strip = window().findChild<Strip *>();
    ASSERT_TRUE(strip->isVisible());
    EXPECT_FALSE(part<BusyButton>(0, u"randomizeRow"_s).isUsable());
    EXPECT_EQ(part(0, u"randomizeRow"_s).toolTip(), u"The helper tool is not installed"_s);
    EXPECT_TRUE(part(0, u"configButton"_s).isEnabled());
    strip->button().click();
    program.settle();
    EXPECT_FALSE(strip->isVisible());
    EXPECT_TRUE(part<BusyButton>(0, u"randomizeRow"_s).isUsable());
}

TEST_F(OverviewWindowTest, SaysThatThereIsNoInterface)
{
    program.machine.host.unplug(FaceProgram::radio);
    program.machine.host.unplug(FaceProgram::wire);
    program.machine.wifi.interface.reset();
    open();
    EXPECT_TRUE(window().findChild<EmptyState *>()->isVisible());
    EXPECT_FALSE(table().isVisible());
}

TEST_F(OverviewWindowTest, MakesNothingWiderThatItCannotShow)
{
    program.machine.host.plug(
        {QString(300, u'W'), u"enx0"_s, u"00:00:5e:00:53:10"_s, u"00:00:5e:00:53:10"_s, {}});
    open();
    EXPECT_LE(window().minimumWidth(), 480);
    for (int width = window().minimumWidth(); width < 1000; width += 40) {
        window().resize(width, 500);
        program.settle();
        for (int row = 0; row < 3; ++row) {
            EXPECT_LE(cell(row).geometry().right(), table().viewport()->width()) << width;
            EXPECT_TRUE(cell(row).rect().contains(part(row, u"configButton"_s)
                    .mapTo(&cell(row), part(row, u"configButton"_s).rect().bottomRight())))
                << width;
        }
    }
}

} // namespace
} // namespace quillon::test
