// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/AddressChanger.h"

#include "base/Isolates.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/AddressText.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/MenuItem.h"
#include "devices/RandomAddress.h"
#include "helperlink/XPCMethods.h"
#include "platform/NetworkHost.h"
#include "platform/NotificationCenter.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <atomic>
#include <mutex>
#include <shared_mutex>
#include <utility>

namespace quillon {

/// Shared with the work on other threads: whoever holds it shared and finds `alive` may use the
/// changer.
struct AddressChanger::Life
{
    std::shared_mutex mutex;
    bool alive = true;
    std::mutex queueMutex;
};

namespace {

/// What a menu title says after its separator; the whole title when it has none.
QString valueInTitle(const MenuItem *item)
{
    if (!item) {
        return {};
    }
    const qsizetype separator = item->title().indexOf(titleSeparator);
    return withoutIsolates(
        separator < 0 ? item->title() : item->title().mid(separator + titleSeparator.size()));
}

const MenuItem *itemAboveParent(const MenuItem &sender, int places)
{
    return sender.parentItem() ? sender.parentItem()->itemAbove(places) : nullptr;
}

} // namespace

AddressChanger::AddressChanger(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_displayCase(collaborators.settings)
    , m_life(std::make_shared<Life>())
    , m_messages(collaborators.notifier)
    , m_participation(collaborators.owners, collaborators.scheduler)
{
}

AddressChanger::~AddressChanger()
{
    const std::unique_lock lock(m_life->mutex);
    m_life->alive = false;
}

void AddressChanger::genRandomMacAddressWithVendor(
    const QString &device, const std::optional<QString> &vendor, Reply reply)
{
    updateMacAddressWithAddress(
        device, m_deps.random.addressForDevice(device, vendor), std::move(reply));
}

void AddressChanger::randomizeAddress()
{
    genRandomMacAddressWithVendor(m_deps.currentInterface.device());
}

QString AddressChanger::changeMacAddress(const QString &fieldText)
{
    const QString address = m_displayCase.transformedValue(fieldText);
    updateMacAddressWithAddress(m_deps.currentInterface.device(), address);
    return address;
}

void AddressChanger::restoreDefaultAddress()
{
    Q_EMIT restoreRequested();
    const DeviceRecord current = m_deps.currentInterface.record();
    updateMacAddressWithAddress(
        current.device.value_or(QString()), current.hardware.value_or(QString()));
}

void AddressChanger::randomizeAddress(const MenuItem &sender)
{
    const QString device = valueInTitle(itemAboveParent(sender, 2));
    if (m_deps.devices.contains(device)) {
        genRandomMacAddressWithVendor(device);
    }
}

void AddressChanger::restoreDefaultAddress(const MenuItem &sender)
{
    Q_EMIT restoreRequested();
    const QString address = valueInTitle(sender.parentItem());
    const QString device = valueInTitle(itemAboveParent(sender, 1));
    if (m_deps.devices.contains(device) && isStringValidHEX(address)) {
        updateMacAddressWithAddress(device, address);
    }
}

void AddressChanger::updateMacAddressWithAddress(
    const QString &device, const QString &address, Reply reply)
{
    changeAddressQueue().add([this, life = m_life, device, address, reply = std::move(reply)] {
        const std::shared_lock lock(life->mutex);
        if (life->alive) {
            requestChange(device, address, reply);
        }
    });
}

SerialQueue &AddressChanger::changeAddressQueue()
{
    const std::lock_guard lock(m_life->queueMutex);
    if (!m_changeAddressQueue) {
        m_changeAddressQueue.emplace(m_deps.scheduler);
    }
    return *m_changeAddressQueue;
}

void AddressChanger::requestChange(
    const QString &requestedDevice, const QString &address, const Reply &reply)
{
    const QString current = m_deps.currentInterface.device();
    const QString device = requestedDevice.isEmpty() ? current : requestedDevice;
    const DeviceRecord record = m_deps.devices.record(device);
    const Request request{
        .device = device,
        .isCurrent = device == current,
        .isWifi = record.isWifi(),
        .interface = record.shownInterface(),
        .oldAddress = record.current.value_or(QString()),
        .address = address,
        .reply = reply,
    };
    if (record.current == address) {
        m_messages.tellIdentical(request.interface);
        Q_EMIT changeSpared(request.device);
        if (reply) {
            reply(
                {.isInPlace = true, .address = address, .requested = address, .isReported = true});
        }
        return;
    }
    m_deps.scheduler.onMain(this, [this, request] { carryOut(request); });
}

void AddressChanger::carryOut(const Request &request)
{
    Q_EMIT changeBegan(request.device);
    const auto wasAsked = std::make_shared<std::atomic<bool>>(true);
    const auto change = [this, request, wasAsked](const std::function<void(bool)> &done) {
        *wasAsked = false;
        m_deps.helper.changeAddressOfDeviceToAddressDeviceIsWiFiWithReply(
            request.device, request.address, request.isWifi,
            [life = m_life, done](bool success) {
                const std::shared_lock lock(life->mutex);
                if (life->alive) {
                    done(success);
                }
            },
            [wasAsked] { *wasAsked = true; });
    };
    m_participation.carryOut(request.device, change,
        [this, request, wasAsked](const OwnerParticipation::Result &result) {
            const ChangeOutcome outcome = finish(request, result, *wasAsked);
            Q_EMIT changeEnded(request.device, outcome);
            if (request.reply) {
                request.reply(outcome);
            }
        });
}

ChangeOutcome AddressChanger::finish(
    const Request &request, const OwnerParticipation::Result &result, bool wasAsked)
{
    const InterfaceInfo now = readBack(request.device);
    // An answer can be lost on its way: what counts is the address that the device has.
    ChangeOutcome outcome{.isInPlace = now.readFailed
                                           ? result.isChanged
                                           : isSameAddress(now.macAddress, request.address),
        .address = now.macAddress,
        .requested = request.address,
        .isReported = request.reply != nullptr,
        .isConfirmed = result.isChanged,
        .wasAsked = wasAsked};
    if (now.macAddress.isEmpty()) {
        // The interface has gone, or cannot be read: there is nothing true to say of its address.
        return outcome;
    }
    m_deps.devices.update(
        request.device,
        [&now](DeviceRecord &record) {
            record.current = now.macAddress;
            record.ipAddress = now.ipAddress;
            record.status = now.status;
        },
        outcome.isInPlace ? DeviceTable::AddressOf::Us : DeviceTable::AddressOf::Others);
    if (outcome.isInPlace) {
        m_deps.devices.noteOwnAddress(request.device, now.macAddress);
    }
    if (request.isCurrent) {
        m_deps.currentInterface.updateCurrentInterfaceDict(request.device);
    }
    const auto failure = m_messages.tell({request.interface, request.oldAddress}, result, outcome);
    outcome.failure = failure.value_or(QString());
    outcome.isSettled = failure.has_value();
    if (failure && failure->isEmpty()) {
        Q_EMIT addressChanged(request.device, request.address);
        m_deps.notifications.post(
            notifications::addressUpdated, this, {{record::device, request.device}});
    }
    m_deps.currentInterface.updateHexValues();
    return outcome;
}

void AddressChanger::tellUndone(const QString &device)
{
    m_messages.tellUndone(m_deps.devices.record(device).shownInterface());
}

// What fails once is most often a table that changed while it was read.
InterfaceInfo AddressChanger::readBack(const QString &device) const
{
    const InterfaceInfo info = m_deps.devices.getInfoForDevice(device);
    return info.readFailed ? m_deps.devices.getInfoForDevice(device) : info;
}

} // namespace quillon
