// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorCount.h"

#include "base/DurableFolder.h"
#include "base/Isolates.h"
#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "vendors/NullMarker.h"
#include "vendors/VendorFileWriting.h"

#include <QFile>

#include <utility>

namespace quillon {

VendorCount::VendorCount(SettingsStore &settings, Scheduler &scheduler, const VendorFiles &files,
    const VendorDatabase &database)
    : m_settings(settings)
    , m_scheduler(scheduler)
    , m_files(files)
    , m_database(database)
{
}

void VendorCount::createSupportFolderAndVendorDatabase()
{
    makeFolder(m_files.folder);
    installSeed();
    Q_EMIT firstCountBegun();
    updateVendorCount();
}

void VendorCount::installSeed()
{
    const QString live = m_files.liveDatabase();
    if (m_files.seed.isEmpty() || QFile::exists(live)) {
        return;
    }
    QFile seed(m_files.seed);
    if (seed.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        VendorFileWriting::makeFrom(seed, live, VendorFileWriting::TimeOfChange::Now);
    }
}

void VendorCount::updateVendorCount()
{
    const qlonglong known = m_settings.getInteger(keys::vendorCountValue);
    bool wasRead = false;
    const qlonglong count = m_database.count(&wasRead);
    if (!wasRead) {
        // Were it taken for empty, the next count would note all vendors as new ones.
        onMain([known](VendorCount &that) { Q_EMIT that.counted(known); });
        return;
    }
    const qlonglong added = count - known;
    m_settings.set(keys::vendorCountValue, count);
    if (added >= 1) {
        // A missing text has nothing to cut off: the marker stays whole this once.
        const bool isText =
            m_settings.get(keys::vendorIDUpdatedDate).typeId() == QMetaType::QString;
        const QString before = storedUpdateDate(m_settings);
        const QString kept = isText ? before.section(u'(', 0, 0) : before;
        const QString note = withoutIsolates(filled(
            localized("%@ (added %@ new Identifiers)", "%@ (added %@ new Identifiers)", added),
            {kept, QString::number(added)}));
        m_settings.set(keys::vendorIDUpdatedDate, note);
        onMain([note](VendorCount &that) { Q_EMIT that.additionNoted(note); });
    }
    m_settings.synchronize();
    onMain([count](VendorCount &that) { Q_EMIT that.counted(count); });
}

void VendorCount::onMain(std::function<void(VendorCount &)> report)
{
    if (m_scheduler.isMainThread()) {
        report(*this);
        return;
    }
    m_scheduler.onMain(this, [this, report = std::move(report)] { report(*this); });
}

QString storedUpdateDate(const SettingsStore &settings)
{
    const QVariant stored = settings.get(keys::vendorIDUpdatedDate);
    return stored.typeId() == QMetaType::QString ? stored.toString() : nullMarker;
}

} // namespace quillon
