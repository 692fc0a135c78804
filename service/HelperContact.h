// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Interfaces.h"
#include "contract/SdBus.h"

#include <functional>
#include <memory>
#include <string>

namespace quillon::service {

class PollLoop;

/// The service's line to the helper on the system bus. Asking starts the helper if it is installed.
class HelperContact
{
public:
    /// Called once; empty when the helper cannot be reached or answers something else than a text.
    using TextReply = std::function<void(const std::string &text)>;

    explicit HelperContact(PollLoop &loop);
    ~HelperContact();
    HelperContact(const HelperContact &) = delete;
    HelperContact &operator=(const HelperContact &) = delete;

    /// The helper's unique name on the system bus, which must be what the bus says of who answered.
    void askEndpoint(TextReply reply);
    void askVersion(TextReply reply);

private:
    using Accept = std::function<bool(const std::string &text, const std::string &sender)>;

    void ask(const contract::Method &method, Accept accept, TextReply reply);
    bool connect();

    PollLoop &m_loop;
    std::unique_ptr<sdbus::IConnection> m_bus;
    std::unique_ptr<sdbus::IProxy> m_helper;
    bool m_lost = false; ///< the bus broke off; a new connection is made by the next question
};

} // namespace quillon::service
