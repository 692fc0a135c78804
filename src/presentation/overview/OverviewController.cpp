// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/overview/OverviewController.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "helperlink/XPCMethods.h"
#include "networks/WiFiRecord.h"
#include "platform/Scheduler.h"
#include "presence/Presence.h"
#include "rules/CountdownTimers.h"
#include "vendors/VendorList.h"

#include <QSet>

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString newVendorKey = u"newVendor"_s;
const QString newAddressKey = u"newAddress"_s;

} // namespace

OverviewController::OverviewController(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_observedCase(collaborators.settings.addObserver(
          keys::lowerCaseHEX, [this](const SettingsStore::Change &) { reloadArrayController(); }))
{
    listen(notifications::addressUpdated);
    listen(notifications::vendorUpdated);
    connect(&m_deps.changes, &OverviewChanges::changed, this, &OverviewController::look);
    reloadArrayController();
}

OverviewController::~OverviewController()
{
    m_deps.settings.removeObserver(m_observedCase);
    for (const auto token : m_observed) {
        m_deps.notifications.removeObserver(token);
    }
}

void OverviewController::listen(const QString &notification)
{
    const auto later = m_deps.scheduler.replyOnMain<QVariantMap>(
        this, [this](const QVariantMap &userInfo) { refreshRow(userInfo); });
    // An address may be told of on any thread.
    m_observed.push_back(m_deps.notifications.addObserver(
        notification, [this, later, &scheduler = m_deps.scheduler](
                          const NotificationCenter::Notification &posted) {
            if (scheduler.isMainThread()) {
                refreshRow(posted.userInfo);
            } else {
                later(posted.userInfo);
            }
        }));
}

OverviewCell *OverviewController::cell(int row) const
{
    return row >= 0 && row < rowCount() ? m_cells[static_cast<std::size_t>(row)].get() : nullptr;
}

void OverviewController::reloadArrayController()
{
    Q_EMIT rowsGoing();
    m_cells.clear();
    m_deps.changes.forgetOutcomes();
    const DeviceRecords records = m_deps.devices.devices();
    const QVariantMap countdowns = m_deps.timers.timers();
    for (const QString &device : m_deps.devices.sortedDevicesArray()) {
        OverviewRow row = rowOf(device, records.value(device));
        updateObjDefaultStatus(row);
        m_cells.push_back(
            std::make_unique<OverviewCell>(row, m_deps.notifications, m_deps.settings));
        // As the next tick says it: nobody has to wait for that.
        m_cells.back()->updateCell(countdowns);
    }
    look();
    Q_EMIT rowsMade();
}

OverviewRow OverviewController::rowOf(const QString &device, const DeviceRecord &record) const
{
    OverviewRow row{.device = device,
        .interface = record.shownInterface(),
        .icon = record.isWifi() ? u"wifi"_s : u"network"_s,
        .helperInstalled = m_deps.helper.isHelperInstalled(),
        .status = record.status.value_or(QString()),
        .currentAddress = record.current.value_or(QString()),
        .hardwareAddress = record.hardware.value_or(QString()),
        .vendor = record.vendor.value_or(localized(randomAddressChoice)),
        .hasRule = record.hasRule};
    if (record.isWifi()) {
        row.network = WiFiRecord::stored(m_deps.settings).name;
    }
    return row;
}

void OverviewController::updateObjDefaultStatus(OverviewRow &row)
{
    row.addressIsDefault = row.currentAddress.toLower() == row.hardwareAddress.toLower();
    row.addressIcon = row.addressIsDefault ? u"dot.viewfinder"_s : u"viewfinder"_s;
}

void OverviewController::refreshRow(const QVariantMap &userInfo)
{
    const bool hasVendor = userInfo.contains(newVendorKey);
    const QVariant value = userInfo.value(hasVendor ? newVendorKey : newAddressKey);
    const QString device = userInfo.value(record::device).toString();
    if (!value.isValid() || device.isEmpty()) {
        return;
    }
    const qsizetype index = m_deps.devices.sortedDevicesArray().indexOf(device);
    OverviewCell *const shown = cell(static_cast<int>(index));
    if (shown == nullptr) {
        return;
    }
    OverviewRow row = shown->row();
    (hasVendor ? row.vendor : row.currentAddress) = value.toString();
    updateObjDefaultStatus(row);
    shown->setRow(row);
}

void OverviewController::look()
{
    const DeviceRecords records = m_deps.devices.devices();
    QSet<QString> listed;
    bool hasNewAddresses = false;
    for (const auto &each : m_cells) {
        const QString device = each->row().device;
        const OverviewCell::Live live{.isGone = m_deps.devices.isGone(device),
            .currentAddress = records.value(device).current.value_or(QString()),
            .isUnderWay = m_deps.changes.underWay().contains(device),
            .action = m_deps.changes.underWay().requestOf(device),
            .outcome = m_deps.changes.outcomeOf(device)};
        each->setLive(live);
        hasNewAddresses = hasNewAddresses || !each->state().addressNow.isEmpty();
        listed.insert(device);
    }
    const QStringList known = records.keys();
    const bool hasNewInterfaces = std::any_of(known.cbegin(), known.cend(),
        [&listed](const QString &device) { return !listed.contains(device); });
    m_state.update([&](State &state) { state = {hasNewAddresses, hasNewInterfaces}; });
}

void OverviewController::setHelperInstalled(bool installed)
{
    for (const auto &each : m_cells) {
        OverviewRow row = each->row();
        row.helperInstalled = installed;
        each->setRow(row);
    }
}

void OverviewController::changeInterface(int row)
{
    const OverviewCell *const chosen = cell(row);
    if (chosen == nullptr) {
        return;
    }
    // A copy: whoever hears of it may have the rows made anew.
    const QString device = chosen->row().device;
    m_deps.currentInterface.updateInterface(device);
    m_deps.presence.openWindow();
    Q_EMIT madeKey();
}

void OverviewController::randomize(int row)
{
    const OverviewCell *const chosen = cell(row);
    if (chosen == nullptr || !chosen->state().randomize.isEnabled ||
        chosen->state().randomize.isBusy) {
        return;
    }
    const QString device = chosen->row().device;
    m_deps.changes.underWay().ask(device, ChangeRequest::Randomize);
    m_deps.addressChanger.genRandomMacAddressWithVendor(device);
}

void OverviewController::restoreHardwareAddress(int row)
{
    const OverviewCell *const chosen = cell(row);
    if (chosen == nullptr || !chosen->state().restore.isEnabled || chosen->state().restore.isBusy) {
        return;
    }
    const QString device = chosen->row().device;
    const QString address = chosen->row().hardwareAddress.toLower();
    m_deps.changes.underWay().ask(device, ChangeRequest::Restore);
    m_deps.addressChanger.updateMacAddressWithAddress(device, address);
}

void OverviewController::editRules(int row)
{
    if (cell(row) != nullptr) {
        m_deps.presence.goTo(Destination::Rules);
    }
}

void OverviewController::pauseTimer(int row)
{
    if (OverviewCell *const chosen = cell(row)) {
        chosen->disablePauseButton();
        m_deps.timers.pauseCountdownTimer(chosen->state().identifier);
    }
}

void OverviewController::resumeTimer(int row)
{
    if (OverviewCell *const chosen = cell(row)) {
        chosen->disableResumeButton();
        m_deps.timers.resumeCountdownTimer(chosen->state().identifier);
    }
}

} // namespace quillon
