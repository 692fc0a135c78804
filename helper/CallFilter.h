// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Interfaces.h"

#include <string>
#include <systemd/sd-bus.h>
#include <vector>

namespace quillon {

/// Keeps all method calls but those of one object's methods away from the bus library, and answers
/// them with a short error. The library would repeat in its own errors what the caller wrote, of
/// any length, and the bus counts an answer that its caller does not read as the helper's.
class CallFilter
{
public:
    /// Introspection of the object and ping are let through as well.
    explicit CallFilter(std::string path);
    ~CallFilter();
    CallFilter(const CallFilter &) = delete;
    CallFilter &operator=(const CallFilter &) = delete;

    /// Lets calls of this method through, with arguments of exactly its signature. `interface` and
    /// the texts of `method` outlive this.
    void allow(const char *interface, const contract::Method &method);
    /// From now on, until this is gone. False when there is no memory for it.
    bool begin(sd_bus &bus);

private:
    struct Call
    {
        const char *interface;
        const char *member;
        const char *signature;
    };

    static int received(sd_bus_message *message, void *self, sd_bus_error *error);
    /// The name of the error; none for a call that is let through.
    const char *errorFor(sd_bus_message &call) const;

    std::string m_path;
    std::vector<Call> m_calls;
    sd_bus_slot *m_slot = nullptr;
};

} // namespace quillon
