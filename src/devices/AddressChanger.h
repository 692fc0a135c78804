// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/ChangeMessages.h"
#include "devices/ChangeOutcome.h"
#include "devices/HexValueTransformer.h"
#include "devices/OwnerParticipation.h"
#include "platform/SerialQueue.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

class CurrentInterface;
class DeviceTable;
class MenuItem;
class NotificationCenter;
class Notifier;
class RandomAddress;
class SettingsStore;
class XPCMethods;
struct InterfaceInfo;

/// Every change of an address, whoever asks, ends here: it serializes changes, refuses a change to
/// the address in use, has the helper do it and the interface's owner take part, reads the address
/// back, updates the device table, tells the user and announces it.
///
/// The queue serializes the test and the hand-over to the helper, not the helper's work: a second
/// change may start before the first one's reply has come.
class AddressChanger : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        Notifier &notifier;
        XPCMethods &helper;
        AddressOwners &owners;
        DeviceTable &devices;
        CurrentInterface &currentInterface;
        const RandomAddress &random;
    };

    /// Called once for each request, also one that is refused at once, unless the changer goes
    /// before. On any thread.
    using Reply = std::function<void(const ChangeOutcome &outcome)>;

    explicit AddressChanger(const Collaborators &collaborators);
    /// Changes that have not reached the helper are dropped, later replies ignored. Waits for a
    /// reply that is being handled.
    ~AddressChanger() override;

    /// Queues one change and returns at once. An empty `device` is the current interface. Any
    /// thread.
    void updateMacAddressWithAddress(
        const QString &device, const QString &address, Reply reply = {});

    /// The same with a random address, made now. Without `vendor` inside the prefix of the
    /// manufacturer that was chosen for the device, if any; "" for none. When no random number can
    /// be had the address is empty, and the outcome says so. Any thread.
    void genRandomMacAddressWithVendor(const QString &device,
        const std::optional<QString> &vendor = std::nullopt, Reply reply = {});

    /// Tells the user that another program keeps setting an address of its own on `device`. Any
    /// thread.
    void tellUndone(const QString &device);

    /// The main window's buttons: they act on the current interface.
    void randomizeAddress();
    /// Puts `fieldText` into display case, requests it, and returns it for the field.
    QString changeMacAddress(const QString &fieldText);
    void restoreDefaultAddress();

    /// The items of a menu's per-interface section: they find their device and address by the
    /// titles around them, and do nothing when what they find is unknown or malformed.
    void randomizeAddress(const MenuItem &sender);
    void restoreDefaultAddress(const MenuItem &sender);

Q_SIGNALS:
    /// A restore was asked for, in the window or the menu: whatever shows the factory address may
    /// close. Before anything else of it happens.
    void restoreRequested();
    /// After the user was told of a successful change and before "addressUpdated" is posted; on the
    /// thread of the helper's reply.
    void addressChanged(const QString &device, const QString &requestedAddress);
    /// Nothing was done for a request, as `device` has that address; the user was told so. On the
    /// thread of the change queue.
    void changeSpared(const QString &device);
    /// The helper is about to be asked to change `device`; on the main thread. Every one is
    /// followed by changeEnded().
    void changeBegan(const QString &device);
    /// The helper has answered and the table says what is true now, however the change went; before
    /// the reply to whoever asked, on the thread of the helper's reply.
    void changeEnded(const QString &device, const ChangeOutcome &outcome);

private:
    /// One change between the test of its address and the helper's reply.
    struct Request
    {
        QString device;
        bool isCurrent = false;
        bool isWifi = false;
        QString interface;
        QString oldAddress;
        QString address;
        Reply reply;
    };
    struct Life;

    SerialQueue &changeAddressQueue();
    void requestChange(const QString &requestedDevice, const QString &address, const Reply &reply);
    void carryOut(const Request &request);
    ChangeOutcome finish(
        const Request &request, const OwnerParticipation::Result &result, bool wasAsked);
    InterfaceInfo readBack(const QString &device) const;

    Collaborators m_deps;
    HexValueTransformer m_displayCase;
    std::shared_ptr<Life> m_life;
    std::optional<SerialQueue> m_changeAddressQueue;
    ChangeMessages m_messages;
    OwnerParticipation m_participation;
};

} // namespace quillon
