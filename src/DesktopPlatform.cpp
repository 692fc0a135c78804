// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "DesktopPlatform.h"

#include "app/SettingsProblemMessage.h"
#include "base/Notifier.h"
#include "vendors/VendorFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// A folder of its own, so that watching it does not wake us for everybody else's settings.
QString settingsPath(const QString &name)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + u"/Quillon/"_s + name;
}

/// What is installed with the program, or made with it in the build folder; "" when it is not
/// there.
QString besideProgram(const QString &name)
{
    for (const char *const place : {"/../share/quillon4/", "/../data/"}) {
        const QString path =
            QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String(place) + name);
        if (QFile::exists(path)) {
            return path;
        }
    }
    return {};
}

Places places()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return {
        .supportFolder = data + u"/Quillon"_s,
        .shippedVendorDatabase = shippedVendorDatabase(QCoreApplication::applicationDirPath()),
        .externalAddressService = QUrl(QStringLiteral("https://" QUILLON_EXTERNAL_ADDRESS_HOST)),
        .vendorRegistry = QUrl(QStringLiteral(QUILLON_REGISTRY_URL)),
        .licenseFile = besideProgram(u"LICENSE"_s),
        .version = QCoreApplication::applicationVersion(),
        .areUpdatesLeftToSystem = QUILLON_UPDATES_LEFT_TO_SYSTEM,
        .updateFeed = QUrl(QStringLiteral(QUILLON_UPDATE_FEED)),
        .updateKey = QByteArray::fromBase64(QUILLON_UPDATE_KEY),
    };
}

} // namespace

DesktopPlatform::DesktopPlatform()
    : m_settings(settingsPath(u"com.orvandel.Quillon4.plist"_s), m_scheduler,
          [this](const SettingsProblem &problem) { tellOfSettings(problem); })
    , m_groupSettings(settingsPath(u"orvandel.com.orvandel.Quillon4.plist"_s), m_scheduler,
          [this](const SettingsProblem &problem) { tellOfSettings(problem); })
    , m_userNotifications(m_scheduler)
    , m_addressOwners(m_scheduler, m_settings, TakeBackGuard::ownCommand())
    , m_networkChanges(m_scheduler)
    , m_location(m_scheduler)
    , m_softwareCenter(QUILLON_IS_PACKAGED)
    , m_loginItem(AutostartLoginItem::folders(),
          AutostartLoginItem::besideProgram(QCoreApplication::applicationDirPath()))
    , m_helperLink(m_random)
{
}

Platform DesktopPlatform::platform()
{
    return {
        .scheduler = m_scheduler,
        .settings = m_settings,
        .groupSettings = m_groupSettings,
        .notifications = m_notifications,
        .distributedNotifications = m_distributedNotifications,
        .userNotifications = m_userNotifications,
        .alerts = m_alerts,
        .network = m_network,
        .interfaceAddresses = m_interfaceAddresses,
        .addressOwners = m_addressOwners,
        .exposure = m_exposure,
        .networkChanges = m_networkChanges,
        .reachability = m_reachability,
        .sleep = m_sleep,
        .wifi = m_wifi,
        .radioSwitch = m_radioSwitch,
        .location = m_location,
        .systemSettings = m_systemSettings,
        .softwareCenter = m_softwareCenter,
        .hotKeys = m_hotKeys,
        .loginItem = m_loginItem,
        .links = m_links,
        .http = m_http,
        .helperLink = m_helperLink,
        .random = m_random,
        .runningApplications = m_runningApplications,
        .cloud = m_cloud,
        .secrets = m_secrets,
        .powerSaving = m_powerSaving,
        .places = places(),
    };
}

void DesktopPlatform::shutDown()
{
    m_scheduler.shutDown();
    m_notifier = nullptr;
}

void DesktopPlatform::tellOfSettings(const SettingsProblem &problem) const
{
    if (m_notifier) {
        const SettingsProblemMessage message = settingsProblemMessage(problem);
        m_notifier->sendNotificationWithBody(message.title, message.body);
    }
}

} // namespace quillon
