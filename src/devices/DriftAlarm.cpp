// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DriftAlarm.h"

#include "base/Localized.h"
#include "base/Notifier.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "devices/AddressText.h"
#include "devices/DeviceTable.h"
#include "platform/AddressOwner.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <QPointer>

namespace quillon {

namespace {

// The user is to know within a second of the change, whether or not the owner answers; in a storm
// of events half of that has gone before we look.
constexpr std::chrono::milliseconds ownerLimit{500};

// A radio on no network: its owner scans with addresses of its own.
bool isScanning(const DeviceRecord &record)
{
    return record.isWifi() && !record.isUp();
}

} // namespace

DriftAlarm::DriftAlarm(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

DriftAlarm::~DriftAlarm()
{
    for (const QString &device : m_drifts.keys()) {
        endDrift(device);
    }
}

void DriftAlarm::begin()
{
    const QVariantMap stored = m_deps.settings.getDictionary(keys::givenAddresses);
    for (auto given = stored.begin(); given != stored.end(); ++given) {
        const DeviceRecord record = m_deps.devices.record(given.key());
        const QString address = given->toString();
        if (m_deps.devices.isPresent(given.key()) &&
            isSameAddress(record.current.value_or(QString()), address)) {
            m_given.insert(given.key(), address);
        }
    }
    if (m_given.size() != stored.size()) {
        store();
    }
}

void DriftAlarm::look()
{
    for (const QString &device : m_given.keys()) {
        look(device);
    }
}

void DriftAlarm::look(const QString &device)
{
    const DeviceRecord record = m_deps.devices.record(device);
    const QString current = record.current.value_or(QString());
    if (!m_given.contains(device) || m_changesUnderWay.contains(device) ||
        !m_deps.devices.isPresent(device) || current.isEmpty()) {
        return;
    }
    if (isSameAddress(current, m_given.value(device))) {
        endDrift(device);
        return;
    }
    if (isScanning(record) || m_drifts.contains(device)) {
        return;
    }
    m_drifts.insert(device, {current});
    if (m_deps.settings.getBool(keys::driftAlarm)) {
        askWhoOwns(device);
    }
}

void DriftAlarm::askWhoOwns(const QString &device)
{
    m_deps.scheduler.onMainAfter(ownerLimit, this, [this, device] { tell(device, {}); });
    m_deps.owners.find(
        device, [self = QPointer(this), device](const std::unique_ptr<AddressOwner> &owner) {
            if (self) {
                self->tell(device, owner ? owner->name() : QString());
            }
        });
}

void DriftAlarm::tell(const QString &device, const QString &owner)
{
    const auto drift = m_drifts.find(device);
    if (drift == m_drifts.end() || drift->isTold) {
        return;
    }
    drift->isTold = true;
    const QString interface = m_deps.devices.record(device).shownInterface();
    QString body = filled(localized("%@ now has %@ in place of %@."),
        {device, drift->address, m_given.value(device)});
    if (!owner.isEmpty()) {
        body += u' ' + filled(localized("%@ owns this interface."), {owner});
    }
    const auto when = [this](auto act) {
        return [self = QPointer(this), act] {
            if (self) {
                act(*self);
            }
        };
    };
    m_deps.notifier.ask({.identifier = device,
        .title = filled(localized("%@ shows another Address"), {interface}),
        .body = body,
        .actions = {{localized("Apply again"),
                        when([device](DriftAlarm &self) { self.applyAgain(device); })},
            {localized("Accept"), when([device](DriftAlarm &self) { self.forget(device); })}}});
}

void DriftAlarm::applyAgain(const QString &device)
{
    if (m_given.contains(device) && m_drifts.contains(device)) {
        m_deps.changer.updateMacAddressWithAddress(device, m_given.value(device));
    }
}

void DriftAlarm::changeBegan(const QString &device)
{
    ++m_changesUnderWay[device];
}

void DriftAlarm::changeEnded(const QString &device, const ChangeOutcome &outcome)
{
    const auto underWay = m_changesUnderWay.find(device);
    if (underWay != m_changesUnderWay.end() && --*underWay == 0) {
        m_changesUnderWay.erase(underWay);
    }
    const DeviceRecord record = m_deps.devices.record(device);
    const bool isGiven = outcome.isInPlace || (outcome.isConfirmed && isScanning(record));
    if (isGiven && !isSameAddress(outcome.requested, record.hardware.value_or(QString()))) {
        give(device, outcome.requested);
    } else if (outcome.isInPlace || outcome.isConfirmed) {
        // Restored; or what it had was replaced by us, and the user knows what it has instead.
        forget(device);
    }
    look(device);
}

void DriftAlarm::give(const QString &device, const QString &address)
{
    endDrift(device);
    if (m_given.value(device) != address) {
        m_given.insert(device, address);
        store();
    }
}

void DriftAlarm::forget(const QString &device)
{
    endDrift(device);
    if (m_given.remove(device) > 0) {
        store();
    }
}

void DriftAlarm::endDrift(const QString &device)
{
    if (m_drifts.take(device).isTold) {
        m_deps.notifier.withdraw(device);
    }
}

void DriftAlarm::store() const
{
    QVariantMap stored;
    for (auto given = m_given.begin(); given != m_given.end(); ++given) {
        stored.insert(given.key(), *given);
    }
    m_deps.settings.set(keys::givenAddresses, stored);
}

} // namespace quillon
