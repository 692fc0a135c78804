// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFlags>
#include <QString>

#include <functional>
#include <memory>

namespace quillon {

/// The program that owns the address of one interface, for one change: it would put an address of
/// its own back, or keep the lease of the old one, unless it takes part. prepare() once, before the
/// change; settle() once, after it, whatever came of it. Main thread, callbacks as well, never
/// before the call returns. When it goes between the two, it has the owner take the interface back.
class AddressOwner
{
public:
    enum class Outcome
    {
        Settled = 0, ///< the interface is back on its network, or was on none
        NotBack = 1, ///< it was on a network, and is not back on it in time
        Untold = 2,  ///< the owner takes no word from this session: it may put its own address back
        KeepsIPAddress = 4,   ///< an IPv4 address of before, for a lease of the old address
        KeepsIPv6Address = 8, ///< one that was formed from the link-layer address of before
    };
    Q_DECLARE_FLAGS(Outcomes, Outcome)
    /// False: the owner did not let go, and has the interface again; nothing may be changed.
    using Prepared = std::function<void(bool ready)>;
    /// What is missing when the time is over, Outcome::Settled alone when nothing is.
    using Settled = std::function<void(Outcomes outcomes)>;

    AddressOwner() = default;
    virtual ~AddressOwner() = default;
    AddressOwner(const AddressOwner &) = delete;
    AddressOwner &operator=(const AddressOwner &) = delete;

    /// For the user, "NetworkManager"; "" when nobody is known to own the interface.
    virtual QString name() const = 0;
    virtual void prepare(Prepared prepared) = 0;
    virtual void settle(bool isChanged, Settled settled) = 0;
};

/// Finds the owner of an interface by asking those who may be it. Main thread.
class AddressOwners
{
public:
    /// Null where nobody needs to take part in a change.
    using Found = std::function<void(std::unique_ptr<AddressOwner> owner)>;

    virtual ~AddressOwners() = default;

    /// `found` is called once, within seconds, perhaps before the call returns.
    virtual void find(const QString &device, Found found) = 0;
    /// Has owners take back what a program that died between prepare() and settle() had them let go
    /// of. To be called at the start.
    virtual void finishInterrupted() = 0;
};

} // namespace quillon

// Not in the namespace, where they would hide those of Qt's own enumerations.
Q_DECLARE_OPERATORS_FOR_FLAGS(quillon::AddressOwner::Outcomes)
