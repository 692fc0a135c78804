// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/Authority.h"
#include "helper/BusCall.h"

namespace quillon {

class RequestLog;

/// Authority by polkit (org.freedesktop.PolicyKit1.Authority). The subject is always the sender of
/// the message as a "system-bus-name", which polkit resolves with the bus. A prompt may stay open
/// for two minutes. Answers come while the bus is processed.
class PolkitAuthority : public Authority
{
public:
    PolkitAuthority(sd_bus &bus, RequestLog &log);

    void authorize(const std::string &caller, const std::string &action, const Details &details,
        const std::string &check, Answer answer) override;
    void cancel(const std::string &check) override;

private:
    bool isYes(sd_bus_message &reply);

    sd_bus &m_bus;
    RequestLog &m_log;
};

} // namespace quillon
