// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/BusCall.h"
#include "helper/Outcome.h"

namespace quillon {

/// What it takes to answer a method call later: who asked and the number of the call. The call
/// itself, which may be of any size, is not kept.
class PendingReply
{
public:
    /// Of a call that the bus has delivered. isValid() is false when there is no memory for it.
    explicit PendingReply(sd_bus_message &call);

    bool isValid() const { return m_call != nullptr; }
    /// Sends an empty reply or the refusal, once. The errno value when that fails: the caller may
    /// have gone.
    int send(const Outcome &outcome);

private:
    /// A call with the same sender and number and nothing else.
    BusMessage m_call;
};

} // namespace quillon
