// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/CountdownRow.h"

#include "presentation/rules/CountdownModel.h"
#include "rules/CountdownTimers.h"
#include "ui/theme/Theme.h"
#include "unit/ui/WindowFixture.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class CountdownRowTest : public WindowFixture
{
protected:
    CountdownRowTest()
    {
        QObject::connect(&timers, &CountdownTimers::ticked, &model,
            [this](const QString &device, const QString &text, bool isPaused) {
                model.showCountdown(device, text, isPaused);
            });
        QObject::connect(
            &timers, &CountdownTimers::stopped, &model, [this] { model.hideTimerLabel(); });
    }

    template <typename T>
    T *part(const char *name) const
    {
        return row.findChild<T *>(QString::fromLatin1(name));
    }
    Theme theme;
    CountdownModel model{timers, current};
    CountdownRow row{model, theme};
};

TEST_F(CountdownRowTest, ComesAndGoesWithTheCountdown)
{
    EXPECT_TRUE(row.isHidden());
    startCountdown(wired);
    scheduler.advance(1s);
    EXPECT_FALSE(row.isHidden());
    EXPECT_EQ(part<QLabel>("timerLabel")->text(), u"...changing MAC Address in 00:01:59"_s);
    EXPECT_FALSE(part<QToolButton>("pauseButton")->isHidden());
    timers.stopCountdownTimer(wired);
    EXPECT_TRUE(row.isHidden());
}

TEST_F(CountdownRowTest, OnlyItsEndIsAnnouncedNotThatItIsOutOfSight)
{
    row.show();
    startCountdown(wired);
    scheduler.advance(1s);
    model.hideTimerLabel();
    EXPECT_EQ(row.accessibleName(), QString()) << "another interface is being looked at";
    scheduler.advance(1s);
    ASSERT_TRUE(row.isVisible());
    timers.stopCountdownTimer(wired);
    EXPECT_EQ(row.accessibleName(), u"Countdown ended"_s);
    EXPECT_FALSE(row.isVisible());
}

TEST_F(CountdownRowTest, ThatOfAnotherInterfaceIsNotShown)
{
    startCountdown(wifi);
    scheduler.advance(1s);
    EXPECT_TRUE(row.isHidden());
}

TEST_F(CountdownRowTest, OneOfPauseAndResumeCanBePressed)
{
    startCountdown(wired);
    scheduler.advance(1s);
    auto *pause = part<QToolButton>("pauseButton");
    auto *resume = part<QToolButton>("resumeButton");
    EXPECT_EQ((QList<bool>{pause->isEnabled(), resume->isEnabled()}), (QList<bool>{true, false}));
    pause->click();
    EXPECT_FALSE(pause->isEnabled());
    scheduler.advance(2s);
    EXPECT_EQ((QList<bool>{pause->isEnabled(), resume->isEnabled()}), (QList<bool>{false, true}));
    const QString paused = part<QLabel>("timerLabel")->text();
    EXPECT_TRUE(paused.contains(u"(paused)"_s));
    scheduler.advance(5s);
    EXPECT_EQ(part<QLabel>("timerLabel")->text(), paused);
    resume->click();
    EXPECT_FALSE(resume->isEnabled());
    scheduler.advance(2s);
    EXPECT_EQ((QList<bool>{pause->isEnabled(), resume->isEnabled()}), (QList<bool>{true, false}));
    EXPECT_FALSE(part<QLabel>("timerLabel")->text().contains(u"(paused)"_s));
}

TEST_F(CountdownRowTest, WhoeverPausesByAKeyCanResumeByTheNext)
{
    QWidget view;
    QVBoxLayout column(&view);
    auto *neighbor = new QPushButton(u"Refresh"_s);
    CountdownRow shown(model, theme);
    column.addWidget(&shown);
    column.addWidget(neighbor);
    view.show();
    view.activateWindow();
    QCoreApplication::processEvents();
    startCountdown(wired);
    scheduler.advance(1s);
    auto *pause = shown.findChild<QToolButton *>(u"pauseButton"_s);
    auto *resume = shown.findChild<QToolButton *>(u"resumeButton"_s);
    pause->setFocus(Qt::TabFocusReason);
    scheduler.advance(2s);
    EXPECT_TRUE(pause->hasFocus());
    press(*pause, Qt::Key_Space);
    EXPECT_FALSE(pause->isEnabled() || resume->isEnabled()) << "until the next tick";
    EXPECT_EQ(view.focusWidget(), &shown) << "the next key does nothing";
    scheduler.advance(1s);
    EXPECT_TRUE(resume->hasFocus());
    press(*resume, Qt::Key_Space);
    scheduler.advance(1s);
    EXPECT_TRUE(pause->hasFocus());

    // It is hidden and shown again when the interface is read anew.
    model.hideTimerLabel();
    EXPECT_FALSE(pause->isVisible());
    scheduler.advance(1s);
    EXPECT_TRUE(pause->hasFocus());
    model.hideTimerLabel();
    neighbor->clearFocus();
    scheduler.advance(1s);
    EXPECT_FALSE(pause->hasFocus()) << "the user went elsewhere";
}

TEST_F(CountdownRowTest, ItsButtonsSayWhatTheyDo)
{
    EXPECT_EQ(part<QToolButton>("pauseButton")->accessibleName(), u"Pause"_s);
    EXPECT_EQ(part<QToolButton>("resumeButton")->accessibleName(), u"Resume"_s);
    for (const char *name : {"pauseButton", "resumeButton"}) {
        EXPECT_NE(part<QToolButton>(name)->focusPolicy() & Qt::TabFocus, 0) << name;
    }
}

TEST_F(CountdownRowTest, DoesNotWidenTheWindow)
{
    const QString text = u"...changing MAC Address in 166:39:59 (paused)"_s;
    model.showCountdown(wired, text + text, true);
    EXPECT_LE(row.minimumSizeHint().width(), Theme::windowWidth - 2 * Theme::windowMargin);
}

} // namespace
} // namespace quillon::test
