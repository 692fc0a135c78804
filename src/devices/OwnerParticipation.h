// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"

#include <QObject>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace quillon {

class Scheduler;

/// Has the owner of an interface take part in a change of its address. Another change of the same
/// interface waits meanwhile, as its owner has it in no state to be asked. When this goes, owners
/// take back what they have let go of, and nothing more is called. Main thread.
class OwnerParticipation : public QObject
{
    Q_OBJECT

public:
    struct Result
    {
        bool isChanged = false;
        QString owner = {}; ///< who took part, "" where nobody needs to, or is known
        /// The owner did not let go, and nothing was carried out.
        bool isRefused = false;
        std::optional<AddressOwner::Outcomes> settlement = {};
    };
    /// Changes the address, and says once, on any thread, whether that was done.
    using Change = std::function<void(std::function<void(bool isChanged)> done)>;
    /// On the thread of the change's answer where nobody takes part, else on the main thread.
    using End = std::function<void(const Result &result)>;

    OwnerParticipation(AddressOwners &owners, Scheduler &scheduler);

    void carryOut(const QString &device, Change change, End end);

private:
    struct Request
    {
        QString device;
        Change change;
        End end;
    };

    void begin(const Request &request);
    void begin(const Request &request, std::unique_ptr<AddressOwner> owner);
    void settle(const Request &request, bool isChanged);
    void finish(const Request &request, const Result &result);
    AddressOwner &ownerOf(const Request &request) { return *m_takingPart.at(request.device); }
    void beginNext(const QString &device);

    AddressOwners &m_owners;
    Scheduler &m_scheduler;
    std::map<QString, std::unique_ptr<AddressOwner>> m_takingPart; ///< by interface
    std::deque<Request> m_waiting;
};

} // namespace quillon
