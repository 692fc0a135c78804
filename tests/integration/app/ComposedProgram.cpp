// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/ComposedProgram.h"

#include "base/SettingsKeys.h"
#include "platform/qt/settings/PropertyListFile.h"

#include <stdexcept>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

// Nobody listens there: the external address stays unknown, at once.
const QString nobody = u"https://127.0.0.1:9/"_s;

QVariantMap packagedDefaults()
{
    const auto defaults = readPropertyListFile(QStringLiteral(QUILLON_DEFAULTS));
    if (!defaults) {
        throw std::runtime_error(defaults.error().message.toStdString());
    }
    return defaults.value();
}

} // namespace

ComposedProgram::ComposedProgram(
    const QString &folder, int speed, const QStringList &guard, WiFiClient *radio)
    : m_scheduler(m_real, speed)
    , settings(folder + u"/settings.plist"_s, m_real, {})
    , groupSettings(folder + u"/group-settings.plist"_s, m_real, {})
    , m_addressOwners(m_real, settings, guard)
{
    QuillonAppDelegate::initialize(settings, packagedDefaults());
    m_delegate = std::make_unique<QuillonAppDelegate>(Platform{
        .scheduler = m_scheduler,
        .settings = settings,
        .groupSettings = groupSettings,
        .notifications = notifications,
        .distributedNotifications = m_distributedNotifications,
        .userNotifications = userNotifications,
        .alerts = alerts,
        .network = m_network,
        .interfaceAddresses = m_interfaceAddresses,
        .addressOwners = m_addressOwners,
        .exposure = m_exposure,
        .networkChanges = m_networkChanges,
        .reachability = m_reachability,
        .sleep = m_sleep,
        .wifi = radio != nullptr ? *radio : wifi,
        .radioSwitch = m_radioSwitch,
        .location = m_location,
        .systemSettings = m_systemSettings,
        .softwareCenter = m_softwareCenter,
        .hotKeys = m_hotKeys,
        .loginItem = m_loginItem,
        .links = m_links,
        .http = m_http,
        .helperLink = helperLink,
        .random = m_random,
        .runningApplications = m_runningApplications,
        .cloud = m_cloud,
        .secrets = secrets,
        .powerSaving = m_powerSaving,
        .places = {.supportFolder = folder,
            .shippedVendorDatabase = {},
            .externalAddressService = QUrl(nobody),
            .vendorRegistry = QUrl(nobody),
            .licenseFile = {}},
    });
}

ComposedProgram::~ComposedProgram()
{
    m_delegate->launch().applicationWillTerminate();
    m_real.shutDown();
}

void ComposedProgram::launch()
{
    LaunchSequence &launch = m_delegate->launch();
    launch.awakeFromNib();
    launch.applicationWillFinishLaunching();
    launch.applicationDidFinishLaunching();
}

QString ComposedProgram::recordsPath(const QString &folder)
{
    return folder + u"/Quillon.sqlite"_s;
}

QVariantMap ComposedProgram::devices() const
{
    return settings.getDictionary(keys::deviceDict);
}

QVariantMap ComposedProgram::record(const QString &device) const
{
    return devices().value(device).toMap();
}

QStringList ComposedProgram::messages(const QString &title) const
{
    QStringList bodies;
    for (const UserNotificationRequest &message : userNotifications.everShown) {
        if (message.title == title) {
            bodies.append(message.body);
        }
    }
    return bodies;
}

QStringList ComposedProgram::messageTitles() const
{
    QStringList titles;
    for (const UserNotificationRequest &message : userNotifications.everShown) {
        titles.append(message.title);
    }
    return titles;
}

} // namespace quillon::test
