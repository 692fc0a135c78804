// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QuillonAppDelegate.h"
#include "app/SettingsProblemMessage.h"
#include "app/Termination.h"
#include "base/Log.h"
#include "platform/linux/GetrandomSource.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/bus/BusRunningApplications.h"
#include "platform/linux/bus/DBusHelperLink.h"
#include "platform/linux/bus/FreedesktopNotifications.h"
#include "platform/linux/bus/SessionBusNotificationCenter.h"
#include "platform/linux/bus/SessionInstance.h"
#include "platform/linux/desktop/DesktopSystemSettings.h"
#include "platform/linux/desktop/PortalColorScheme.h"
#include "platform/linux/desktop/TrayHostWatch.h"
#include "platform/linux/desktop/X11TaskBar.h"
#include "platform/linux/netlink/GetifaddrsAddresses.h"
#include "platform/linux/netlink/NetlinkChangeSource.h"
#include "platform/linux/netlink/NetlinkHost.h"
#include "platform/linux/netlink/RouteReachability.h"
#include "platform/linux/wifi/Nl80211LocationAuthorization.h"
#include "platform/linux/wifi/Nl80211WiFiClient.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/settings/PlistSettingsStore.h"
#include "platform/qt/settings/PropertyListFile.h"
#include "platform/qt/web/NetworkHttpClient.h"
#include "ui/UserInterface.h"
#include "ui/widgets/MessageAlerts.h"
#include "ui/window/MainWindow.h"
#include "vendors/VendorFiles.h"

#include <QApplication>
#include <QSessionManager>
#include <QStandardPaths>

using namespace quillon;

namespace {

/// A folder of its own, so that watching it does not wake us for everybody else's settings.
QString settingsPath(const QString &name)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + QStringLiteral("/Quillon/") + name;
}

Places places()
{
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                QStringLiteral("/Quillon"),
        shippedVendorDatabase(QCoreApplication::applicationDirPath()),
        QUrl(QStringLiteral("https://" QUILLON_EXTERNAL_ADDRESS_HOST)),
        QUrl(QStringLiteral(QUILLON_REGISTRY_URL))};
}

QVariantMap packagedDefaults()
{
    const auto defaults = readPropertyListFile(QStringLiteral(":/Defaults.plist"));
    if (!defaults) {
        qCWarning(logSettings, "the packaged defaults cannot be read: %s",
            qUtf8Printable(defaults.error().message));
        return {};
    }
    return defaults.value();
}

void describe(QApplication &application)
{
    application.setApplicationName(QStringLiteral("Quillon"));
    application.setApplicationVersion(QStringLiteral(QUILLON_VERSION));
    application.setDesktopFileName(QStringLiteral("com.orvandel.Quillon4"));
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

void connectWindow(MainWindow &window, QuillonAppDelegate &delegate)
{
    QObject::connect(&window, &MainWindow::randomisePressed, [&] { delegate.randomizeAddress(); });
    QObject::connect(&window, &MainWindow::applyPressed, [&] { delegate.changeMacAddress(); });
    QObject::connect(
        &window, &MainWindow::restorePressed, [&] { delegate.restoreDefaultAddress(); });
    QObject::connect(&window, &MainWindow::installPressed, [&] { delegate.installHelper(); });
    QObject::connect(&window, &MainWindow::interfacePicked,
        [&](const QString &title) { delegate.changeInterfacefromPopup(title); });
    QObject::connect(&window, &MainWindow::selectionPopupShown,
        [&] { delegate.mainWindow().popupButtonClicked(); });
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    describe(application);

    SessionInstance instance;
    if (instance.claim() == SessionInstance::Claim::AlreadyRunning) {
        return bringOtherToTheFront(application, instance);
    }

    // From the ground up; destroyed in the opposite order.
    QtScheduler scheduler;
    Notifier *notifier = nullptr;
    const auto tellOfSettings = [&notifier](const SettingsProblem &problem) {
        if (notifier) {
            const SettingsProblemMessage message = settingsProblemMessage(problem);
            notifier->sendNotificationWithBody(message.title, message.body);
        }
    };
    PlistSettingsStore settings(
        settingsPath(QStringLiteral("com.orvandel.Quillon4.plist")), scheduler, tellOfSettings);
    PlistSettingsStore groupSettings(
        settingsPath(QStringLiteral("orvandel.com.orvandel.Quillon4.plist")), scheduler,
        tellOfSettings);
    NotificationCenter notifications;
    SessionBusNotificationCenter distributedNotifications;
    FreedesktopNotifications userNotifications(scheduler);
    MessageAlerts alerts;
    NetlinkHost network;
    GetifaddrsAddresses interfaceAddresses;
    NetlinkChangeSource networkChanges(scheduler);
    RouteReachability reachability;
    Nl80211WiFiClient wifi;
    Nl80211LocationAuthorization location(scheduler);
    DesktopSystemSettings systemSettings;
    NetworkHttpClient http;
    GetrandomSource random;
    DBusHelperLink helperLink(random);
    BusRunningApplications runningApplications;

    QuillonAppDelegate::initialize(settings, packagedDefaults());
    QuillonAppDelegate delegate({scheduler, settings, groupSettings, notifications,
        distributedNotifications, userNotifications, alerts, network, interfaceAddresses,
        networkChanges, reachability, wifi, location, systemSettings, http, helperLink, random,
        runningApplications, places()});
    notifier = &delegate.userNotifications();
    LaunchSequence &launch = delegate.launch();

    TrayHostWatch trayHost;
    X11TaskBar taskBar;
    PortalColorScheme colorScheme;
    UserInterface userInterface({delegate.mainWindow(), delegate.statusMenu(), delegate.presence(),
                                    {delegate.networks().externalAddressShown,
                                        delegate.rules().status, delegate.rules().countdown},
                                    delegate.vendors().field, delegate.vendors().pane},
        {trayHost, taskBar, colorScheme});
    connectWindow(userInterface.mainWindow(), delegate);
    QObject::connect(
        &instance, &SessionInstance::activated, [&] { launch.applicationShouldHandleReopen(); });
    Termination termination(delegate.records().saving);
    // Not quit(): that asks the windows first, and ours answers with a wish of its own to end.
    QObject::connect(
        &termination, &Termination::granted, &application, [] { QCoreApplication::exit(0); });
    QObject::connect(
        &delegate.presence(), &Presence::terminated, &termination, &Termination::terminate);
    const TerminationSignals signals([&termination] { termination.terminate(); });

    launch.awakeFromNib();
    launch.applicationWillFinishLaunching();
    launch.applicationDidFinishLaunching();
    const int code = application.exec();
    launch.applicationWillTerminate();
    // Background work ends before the components that it uses, and nobody is left to be told.
    scheduler.shutDown();
    notifier = nullptr;
    return code;
}
