// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How long the overview takes with COUNT interfaces, on a machine of fakes, until everything that
// follows has been drawn:
//   measure-overview [-platform offscreen] COUNT
// One line each: what, median, longest, and the median that the processor was busy with it;
// milliseconds.
#include "base/SettingsKeys.h"
#include "face/FaceProgram.h"
#include "platform/NotificationCenter.h"
#include "ui/overview/OverviewTable.h"
#include "ui/overview/OverviewTableCellView.h"

#include <QApplication>
#include <QScrollBar>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using namespace quillon;
using quillon::test::FaceProgram;
using Clock = std::chrono::steady_clock;

constexpr int fewCountdowns = 10;

void draw()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

template <typename Act>
void measure(const char *what, int times, Act act)
{
    QList<double> taken;
    QList<double> busy;
    for (int turn = 0; turn < times; ++turn) {
        const auto begin = Clock::now();
        const std::clock_t busyBegin = std::clock();
        act(turn);
        draw();
        busy.append(1000.0 * static_cast<double>(std::clock() - busyBegin) / CLOCKS_PER_SEC);
        taken.append(std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
    }
    std::ranges::sort(taken);
    std::ranges::sort(busy);
    std::printf("%-28s %8.2f %8.2f %8.2f\n", what, taken[taken.size() / 2], taken.last(),
        busy[busy.size() / 2]);
    std::fflush(stdout);
}

QString nameOf(int index)
{
    return u"eth%1"_s.arg(index);
}

void plug(FaceProgram &program, int count)
{
    for (int index = 0; index < count; ++index) {
        const QString address = u"00:00:5e:%1:%2:01"_s.arg(index / 100, 2, 10, QChar(u'0'))
                                    .arg(index % 100, 2, 10, QChar(u'0'));
        program.machine.host.plug(
            {u"Ethernet"_s, nameOf(index), address, address, {}, index % 3 == 0});
    }
}

/// As a rule that gives a new address every hour: one that were of no length would start again, and
/// have the menus made anew, with every tick.
void startCountdown(Features &features, const QString &device)
{
    features.devices.table.update(
        device, [](DeviceRecord &record) { record.rule = QVariantMap{{u"timerMinutes"_s, 60}}; });
    features.rules.timers.startCountDownTimer(device);
}

void measureAll(FaceProgram &program, int count)
{
    Features &features = program.features();
    const auto table = [] { return &FaceProgram::part<OverviewTable>(u"overviewTable"_s); };
    const auto window = [] { return &FaceProgram::part<QWidget>(u"overview"_s); };
    measure("opened for the first time", 1,
        [&](int) { features.presence.goTo(Destination::Overview); });
    measure("closed and opened", 9, [&](int) {
        window()->close();
        features.presence.goTo(Destination::Overview);
    });
    measure("rows made anew", 9,
        [&](int turn) { program.machine.settings.set(keys::lowerCaseHEX, turn % 2 == 0); });
    measure("a vendor of one row", count, [&](int turn) {
        program.machine.notifications.post(u"vendorUpdated"_s, nullptr,
            {{u"device"_s, nameOf(turn)}, {u"newVendor"_s, u"Vendor %1 (02A005)"_s.arg(turn)}});
    });
    measure("rules of one row", count, [&](int turn) {
        program.machine.notifications.post(u"updateOverview"_s, nullptr,
            {{nameOf(turn), QVariantMap{{u"hasRule"_s, turn % 3}, {u"status"_s, u"active"_s}}}});
    });
    measure("a look at all interfaces", 9, [&](int) { features.overview.look(); });
    measure("a tick in the first row", 20, [&](int turn) {
        const QVariantMap label{{u"display"_s, u"...changing MAC Address in 00:00:%1"_s.arg(turn)}};
        program.machine.notifications.post(
            u"updateOverview"_s, nullptr, {{nameOf(0), QVariantMap{{u"label"_s, label}}}});
    });
    measure("one countdown, a second", 9, [&](int turn) {
        if (turn == 0) {
            startCountdown(features, nameOf(0));
        }
        program.machine.scheduler.advance(1s);
    });
    measure("made wider", 9, [&](int turn) { window()->resize(900 + 10 * turn, 700); });
    measure("scrolled by a page", 20, [&](int) {
        QScrollBar &bar = *table()->verticalScrollBar();
        bar.setValue(bar.value() + bar.pageStep());
    });
    for (int index = 0; index < std::min(count, fewCountdowns); ++index) {
        startCountdown(features, nameOf(index));
    }
    draw();
    measure("ten countdowns, a second", 9, [&](int) { program.machine.scheduler.advance(1s); });
    for (int index = 0; index < count; ++index) {
        startCountdown(features, nameOf(index));
    }
    draw();
    measure("countdowns of all, a second", 9, [&](int) { program.machine.scheduler.advance(1s); });
    measure("all rows filled", 1, [&](int) {
        for (int row = 0; row < count; ++row) {
            table()->cell(row)->fill();
        }
    });
    measure("the same, all filled", 9, [&](int) { program.machine.scheduler.advance(1s); });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const int count = application.arguments().value(1).toInt();
    if (count < 1) {
        std::fprintf(stderr, "usage: measure-overview COUNT\n");
        return 2;
    }
    FaceProgram program({.scheme = ColorScheme::Light, .isStill = true});
    plug(program, count);
    program.start();
    measureAll(program, count);
    return 0;
}
