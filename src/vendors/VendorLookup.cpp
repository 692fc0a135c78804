// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorLookup.h"

#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype identifierLength = 6;

const QString pending =
    QStringLiteral(QT_TRANSLATE_NOOP("Quillon", "Getting Vendor infomation..."));
const QString unknown = QStringLiteral(QT_TRANSLATE_NOOP("Quillon", "Unknown..."));
const QString noInformation =
    QStringLiteral(QT_TRANSLATE_NOOP("Quillon", "No Vendor Information available..."));

} // namespace

VendorLookup::VendorLookup(
    SettingsStore &settings, Scheduler &scheduler, const VendorDatabase &database)
    : m_settings(settings)
    , m_scheduler(scheduler)
    , m_database(database)
{
}

void VendorLookup::updateVendor(const QString &address)
{
    QVariantMap data = m_settings.getDictionary(keys::currentVendorData);
    data[vendordata::vendorCurrentString] = pending;
    data[vendordata::vendorCurrentAddress] = QString();
    data[vendordata::vendorCurrentAssignment] = QString();
    data[vendordata::vendorCurrentRegistry] = QString();
    if (address.size() >= identifierLength) {
        const QString key = QString(address).remove(u':').toUpper().left(identifierLength);
        QString name = noInformation;
        QString organizationAddress = unknown;
        QString registry = unknown;
        if (const auto row = m_database.lookup(key)) {
            name = row->organizationName.value_or(QString()).trimmed();
            organizationAddress = row->organizationAddress.value_or(QString());
            registry = row->registry.value_or(QString());
        }
        data[vendordata::vendorCurrentString] = name;
        data[vendordata::vendorCurrentAddress] = organizationAddress;
        data[vendordata::vendorCurrentAssignment] = key;
        data[vendordata::vendorCurrentRegistry] = registry;
        showVendorButton(name != noInformation);
    }
    m_settings.set(keys::currentVendorData, data);
    m_settings.synchronize();
}

void VendorLookup::showVendorButton(bool shown)
{
    if (m_scheduler.isMainThread()) {
        Q_EMIT vendorButtonShown(shown);
        return;
    }
    m_scheduler.onMain(this, [this, shown] { Q_EMIT vendorButtonShown(shown); });
}

} // namespace quillon
