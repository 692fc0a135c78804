// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

class Scheduler;

/// Has the owner of an interface take part in a change of its address. When this goes, owners take
/// back what they have let go of, and nothing more is called. Main thread.
class OwnerParticipation : public QObject
{
    Q_OBJECT

public:
    struct Result
    {
        bool isChanged = false;
        QString owner = {}; ///< who took part, "" where nobody needs to
        /// The owner did not let go, and nothing was carried out.
        bool isRefused = false;
        std::optional<AddressOwner::Outcome> settlement = {};
    };
    /// Changes the address, and says once, on any thread, whether that was done.
    using Change = std::function<void(std::function<void(bool isChanged)> done)>;
    /// On the thread of the change's answer where nobody takes part, else on the main thread.
    using End = std::function<void(const Result &result)>;

    OwnerParticipation(AddressOwners &owners, Scheduler &scheduler);

    void carryOut(const QString &device, Change change, End end);

private:
    void carryOut(std::unique_ptr<AddressOwner> owner, const Change &change, const End &end);
    void settle(AddressOwner &owner, bool isChanged, const End &end);
    void finish(AddressOwner &owner, const Result &result, const End &end);

    AddressOwners &m_owners;
    Scheduler &m_scheduler;
    std::vector<std::unique_ptr<AddressOwner>> m_takingPart;
};

} // namespace quillon
