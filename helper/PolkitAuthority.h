// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/SdBus.h"
#include "helper/Authority.h"

#include <memory>

namespace quillon {

/// Authority by polkit (org.freedesktop.PolicyKit1.Authority). The subject is always the sender of
/// the message as a "system-bus-name", which polkit resolves with the bus. A prompt may stay open
/// for two minutes. Answers come from the connection's event loop.
class PolkitAuthority : public Authority
{
public:
    explicit PolkitAuthority(sdbus::IConnection &connection);

    void authorize(const std::string &caller, const std::string &action, const Details &details,
        const std::string &check, Answer answer) override;
    void cancel(const std::string &check) override;

private:
    std::unique_ptr<sdbus::IProxy> m_polkit;
};

} // namespace quillon
