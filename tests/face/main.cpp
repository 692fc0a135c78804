// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the program's windows in one state after the other, on a machine of fakes.
//
// usage: quillon-face-scenes [--dark] [--high-contrast] [--mirrored] [--large-text] [--wordy]
// [--announcements] [--list] Reads the name of a state per line and answers "shown" when it is on
// its way to the screen. To a "?" it answers with the place of its windows there, in pixels: "at X
// Y WIDTH HEIGHT", to a "!" with that of the window in use. Ends with its input. --list tells the
// names. With --announcements it also says "announced TEXT" for each text that the program says
// unasked to assistive technology.
#include "base/Languages.h"
#include "face/Announcements.h"
#include "face/FaceLook.h"
#include "face/FaceProgram.h"
#include "face/FaceScenes.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QScreen>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace quillon;
using namespace quillon::test;
using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds turnInterval{20};

void say(const QString &text)
{
    QTextStream(stdout) << text << Qt::endl;
}

FaceLook lookOf(const QStringList &arguments, const UserLanguage &language)
{
    return {.name = {},
        .appearance = {.scheme =
                           arguments.contains(u"--dark"_s) ? ColorScheme::Dark : ColorScheme::Light,
            .isHighContrast = arguments.contains(u"--high-contrast"_s),
            .isStill = true},
        .textScale = arguments.contains(u"--large-text"_s) ? 2 : 1,
        .wordy = arguments.contains(u"--wordy"_s),
        .mirrored = arguments.contains(u"--mirrored"_s) || language.isRightToLeft()};
}

bool isExposed(const QWidget *window)
{
    return window->windowHandle() != nullptr && window->windowHandle()->isExposed();
}

/// The display takes a moment to show what is asked of it, and to put a window where it stays: then
/// it has the keyboard.
void waitUntilShown()
{
    const auto isShown = [] {
        const auto windows = FaceProgram::windows();
        return QApplication::activeWindow() != nullptr &&
               std::all_of(windows.cbegin(), windows.cend(), isExposed);
    };
    while (!isShown()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// To the middle of the upper edge: there is room on both sides and below, wherever the window
/// manager has put it.
void placeWindow()
{
    waitUntilShown();
    QWidget &window = *FaceProgram::windows().constFirst();
    const QRect screen = window.screen()->availableGeometry();
    window.move(
        screen.left() + (screen.width() - window.frameGeometry().width()) / 2, screen.top());
}

/// Where on the screen the windows are, in its own pixels.
QRect placeOf(const QWidgetList &windows)
{
    QRect all;
    for (const QWidget *window : windows) {
        all |= window->frameGeometry();
    }
    const qreal ratio = qApp->devicePixelRatio();
    return {(QPointF(all.topLeft()) * ratio).toPoint(), all.size() * ratio};
}

void show(
    const FaceScene &scene, std::unique_ptr<FaceProgram> &program, const Appearance &appearance)
{
    program.reset();
    program = std::make_unique<FaceProgram>(appearance);
    enter(scene, *program, placeWindow);
    waitUntilShown();
    say(u"shown"_s);
}

void tellPlace(const QWidgetList &windows)
{
    const QRect shown = placeOf(windows);
    say(u"at %1 %2 %3 %4"_s.arg(shown.x()).arg(shown.y()).arg(shown.width()).arg(shown.height()));
}

const FaceScene *sceneNamed(const QString &name)
{
    const auto &scenes = faceScenes();
    const auto found = std::find_if(scenes.cbegin(), scenes.cend(),
        [&name](const FaceScene &scene) { return scene.name == name; });
    return found == scenes.cend() ? nullptr : &*found;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Quillon"_s);
    QApplication::setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    if (arguments.contains(u"--list"_s)) {
        for (const FaceScene &scene : faceScenes()) {
            say(scene.name);
        }
        return 0;
    }
    const UserLanguage language(QLocale::system().uiLanguages());
    // A cursor that blinks is there or not, as it happens.
    QApplication::setCursorFlashTime(0);
    const FaceLook look = lookOf(arguments, language);
    const DressedApplication dressed(look);
    if (arguments.contains(u"--announcements"_s)) {
        listenToAnnouncements([](const QString &text) { say(u"announced "_s + text); });
    }
    std::unique_ptr<FaceProgram> program;
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return 1;
    }
    // The machine's clock stands still, but what is used answers.
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, &application, [&program] {
        if (program != nullptr) {
            program->machine.scheduler.runPending();
        }
    });
    turns.start(turnInterval);
    QSocketNotifier notifier(input.handle(), QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &application, [&] {
        const QString name = QString::fromUtf8(input.readLine()).trimmed();
        const FaceScene *scene = sceneNamed(name);
        if (name == "?"_L1) {
            tellPlace(FaceProgram::windows());
            return;
        }
        if (name == "!"_L1 && QApplication::activeWindow() != nullptr) {
            tellPlace({QApplication::activeWindow()});
            return;
        }
        if (scene == nullptr) {
            notifier.setEnabled(false);
            QCoreApplication::exit(name.isEmpty() ? 0 : 1);
            return;
        }
        show(*scene, program, look.appearance);
    });
    return QApplication::exec();
}
