// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopPlatform.h"
#include "UserInterfaceModels.h"
#include "base/Languages.h"
#include "base/Log.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/bus/SessionInstance.h"
#include "platform/linux/desktop/DisplayCompositing.h"
#include "platform/linux/desktop/PortalAppearance.h"
#include "platform/linux/desktop/Preload.h"
#include "platform/linux/desktop/TrayHostWatch.h"
#include "platform/linux/desktop/X11TaskBar.h"
#include "platform/qt/settings/PropertyListFile.h"

#include <QApplication>
#include <QLocale>
#include <QSessionManager>

using namespace Qt::StringLiterals;

using namespace quillon;

namespace {

QVariantMap packagedDefaults()
{
    const auto defaults = readPropertyListFile(u":/Defaults.plist"_s);
    if (!defaults) {
        qCWarning(logSettings, "the packaged defaults cannot be read: %s",
            qUtf8Printable(defaults.error().message));
        return {};
    }
    return defaults.value();
}

void describe(QApplication &application)
{
    application.setApplicationName(u"Quillon"_s);
    application.setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    application.setDesktopFileName(u"com.orvandel.Quillon4"_s);
    application.setQuitOnLastWindowClosed(false);
    // A session that restores its programs would start us beside the login item.
    QObject::connect(&application, &QGuiApplication::saveStateRequest,
        [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
}

int bringOtherToTheFront(QApplication &application, SessionInstance &instance)
{
    instance.activateOther([&application](bool reached) { application.exit(reached ? 0 : 1); });
    return application.exec();
}

int guard(const QString &device, int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QtScheduler scheduler;
    return TakeBackGuard::standGuard(device, scheduler);
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto device = TakeBackGuard::guardedDevice(argc, argv)) {
        return guard(*device, argc, argv);
    }
    QApplication application(argc, argv);
    const UserLanguage language(QLocale::system().uiLanguages());
    // Qt turns the windows by itself only where its own translations are installed.
    if (language.isRightToLeft()) {
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
    WindowPreload windowPreload;
    describe(application);

    SessionInstance instance;
    if (instance.claim() == SessionInstance::Claim::AlreadyRunning) {
        return bringOtherToTheFront(application, instance);
    }

    DesktopPlatform desktop;
    const Platform platform = desktop.platform();
    QuillonAppDelegate::initialize(platform.settings, packagedDefaults());
    QuillonAppDelegate delegate(platform);
    desktop.setNotifier(&delegate.userNotifications());

    TrayHostWatch trayHost;
    X11TaskBar taskBar;
    PortalAppearance appearance;
    const DisplayCompositing compositing;
    const UserInterface userInterface(modelsOf(delegate.features()),
        {trayHost, taskBar, appearance, compositing, platform.scheduler});

    LaunchSequence &launch = delegate.launch();
    QObject::connect(
        &instance, &SessionInstance::activated, [&] { launch.applicationShouldHandleReopen(); });
    Termination &termination = delegate.termination();
    // Not quit(): that asks the windows first, and ours answers with a wish of its own to end.
    QObject::connect(
        &termination, &Termination::granted, &application, [] { QCoreApplication::exit(0); });
    const TerminationSignals signals([&termination] { termination.terminate(); });

    launch.awakeFromNib();
    launch.applicationWillFinishLaunching();
    launch.applicationDidFinishLaunching();
    // From now on another start may bring a token, which goes into the environment.
    windowPreload.wait();
    const int code = application.exec();
    launch.applicationWillTerminate();
    desktop.shutDown();
    return code;
}
