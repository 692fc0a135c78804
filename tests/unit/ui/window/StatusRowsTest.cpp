// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/StatusRows.h"

#include "networks/ExternalIPAddress.h"
#include "presentation/networks/ExternalAddressModel.h"
#include "presentation/rules/CountdownModel.h"
#include "presentation/rules/RuleStatusModel.h"
#include "rules/CountdownTimers.h"
#include "ui/theme/Theme.h"
#include "ui/window/InterfaceDetails.h"
#include "unit/ui/WindowFixture.h"

#include <QLabel>
#include <QToolButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class StatusRowsTest : public WindowFixture
{
protected:
    StatusRowsTest()
    {
        theme.apply();
        details = std::make_unique<InterfaceDetails>(window);
        new StatusRows({externalAddressShown, status, countdown}, theme, *details);
        details->resize(Theme::windowWidth - 2 * Theme::windowMargin, 300);
        details->show();
        QObject::connect(&timers, &CountdownTimers::ticked, &countdown,
            [this](const QString &device, const QString &text, bool isPaused) {
                countdown.showCountdown(device, text, isPaused);
            });
        QObject::connect(
            &timers, &CountdownTimers::stopped, &countdown, [this] { countdown.hideTimerLabel(); });
    }

    template <typename T>
    T *part(const char *name) const
    {
        return details->findChild<T *>(QString::fromLatin1(name));
    }
    void setRecord(const QString &device, const QString &key, const QVariant &value)
    {
        QVariantMap table = settings.getDictionary(keys::deviceDict);
        QVariantMap changed = table.value(device).toMap();
        changed[key] = value;
        table[device] = changed;
        settings.set(keys::deviceDict, table);
    }
    void startCountdown(const QString &device)
    {
        setRecord(device, record::rule, QVariantMap{{u"timerMinutes"_s, 5}});
        timers.startCountDownTimer(device);
        scheduler.advance(1s);
    }

    Theme theme;
    FakeHttpClient &http = machine.http;
    ExternalIPAddress externalAddress{http, settings, QUrl(u"https://ip.test"_s)};
    ExternalAddressModel externalAddressShown{settings, externalAddress};
    RuleStatusModel status{devices};
    CountdownTimers timers{{scheduler, notifications, notifier, devices, changer}};
    CountdownModel countdown{timers, current};
    std::unique_ptr<InterfaceDetails> details;
};

TEST_F(StatusRowsTest, AnExternalAddressThatNobodyKnowsIsADash)
{
    EXPECT_EQ(part<QLabel>("externalAddress")->text(), u"–"_s);
    EXPECT_EQ(part<QLabel>("externalAddress")->accessibleName(), u"None"_s);
}

TEST_F(StatusRowsTest, FollowsTheExternalAddress)
{
    settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    EXPECT_EQ(part<QLabel>("externalAddress")->text(), u"198.51.100.7"_s);
    EXPECT_EQ(part<QLabel>("externalAddress")->accessibleName(), u"198.51.100.7"_s);
}

TEST_F(StatusRowsTest, ItsButtonAsksForTheExternalAddress)
{
    auto *button = part<QToolButton>("refreshExternalIP");
    EXPECT_EQ(button->accessibleName(), u"Refresh external address"_s);
    button->click();
    EXPECT_EQ(http.requests().size(), 1);
}

TEST_F(StatusRowsTest, TellsWhetherARuleIsInForce)
{
    const auto shownFor = [this](int hasRule) {
        setRecord(wired, record::hasRule, hasRule);
        status.updateRuleStatusForDevice(wired);
        return part<QLabel>("rulesLabel")->text();
    };
    EXPECT_EQ(part<QLabel>("rulesLabel")->text(), u"No rules"_s);
    EXPECT_EQ(shownFor(1), u"Active rule"_s);
    EXPECT_EQ(part<QLabel>("rulesLabel")->toolTip(), u"has an Active rule"_s);
    EXPECT_EQ(shownFor(2), u"No active rules"_s);
    EXPECT_EQ(part<QLabel>("rulesLabel")->accessibleName(), u"No active rules"_s);
    EXPECT_EQ(shownFor(0), u"No rules"_s);
}

TEST_F(StatusRowsTest, TheCountdownComesAndGoes)
{
    auto *label = part<QLabel>("timerLabel");
    EXPECT_FALSE(label->isVisible());
    const int without = details->sizeHint().height();
    startCountdown(wired);
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(label->text(), u"...changing MAC Address in 00:04:59"_s);
    EXPECT_TRUE(part<QToolButton>("pauseButton")->isVisible());
    EXPECT_GT(details->sizeHint().height(), without);
    timers.stopCountdownTimer(wired);
    EXPECT_FALSE(label->isVisible());
    EXPECT_FALSE(part<QToolButton>("resumeButton")->isVisible());
    EXPECT_EQ(details->sizeHint().height(), without);
}

TEST_F(StatusRowsTest, TheCountdownOfAnotherInterfaceIsNotShown)
{
    startCountdown(wifi);
    EXPECT_FALSE(part<QLabel>("timerLabel")->isVisible());
}

TEST_F(StatusRowsTest, OneOfPauseAndResumeCanBePressed)
{
    startCountdown(wired);
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

TEST_F(StatusRowsTest, ItsButtonsSayWhatTheyDo)
{
    EXPECT_EQ(part<QToolButton>("pauseButton")->accessibleName(), u"Pause"_s);
    EXPECT_EQ(part<QToolButton>("resumeButton")->accessibleName(), u"Resume"_s);
    for (const char *name : {"pauseButton", "resumeButton", "refreshExternalIP"}) {
        EXPECT_NE(part<QToolButton>(name)->focusPolicy() & Qt::TabFocus, 0) << name;
    }
}

TEST_F(StatusRowsTest, AllRowsAreOfOneHeightAndTheirValuesInOneColumn)
{
    settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    details->adjustSize();
    QCoreApplication::processEvents();
    QList<int> middles, lefts;
    for (const char *name : {"currentAddress", "hardwareAddress", "ipAddress", "externalAddress"}) {
        const auto *label = part<QLabel>(name);
        middles << label->mapTo(details.get(), label->rect().center()).y();
        lefts << label->mapTo(details.get(), QPoint()).x();
    }
    EXPECT_EQ(lefts, QList<int>(4, lefts.first()));
    for (qsizetype row = 2; row < middles.size(); ++row) {
        EXPECT_EQ(middles[row] - middles[row - 1], middles[1] - middles[0]) << row;
    }
}

TEST_F(StatusRowsTest, ACountdownDoesNotWidenTheWindow)
{
    const QString text = u"...changing MAC Address in 166:39:59 (paused)"_s;
    countdown.showCountdown(wired, text + text, true);
    EXPECT_LE(details->minimumSizeHint().width(), Theme::windowWidth - 2 * Theme::windowMargin);
}

} // namespace
} // namespace quillon::test
