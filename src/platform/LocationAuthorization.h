// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

/// The platform's permission to see which network the computer has joined. Callbacks come on the
/// main thread, in a later turn of its loop. Main thread.
class LocationAuthorization
{
public:
    enum class Status
    {
        NotDetermined = 0,
        Restricted = 1,
        Denied = 2,
        Authorized = 3,
    };
    /// The failure code that says the user refused.
    static constexpr int denied = 1;

    struct Delegate
    {
        std::function<void(Status)> didChangeAuthorization;
        std::function<void(int code)> didFailWithError;
    };

    virtual ~LocationAuthorization() = default;

    /// Whether the service is switched on for the whole system.
    virtual bool servicesEnabled() const = 0;
    virtual void setDelegate(Delegate delegate) = 0;
    /// Asks for the permission while the program is in use; the answer comes to the delegate.
    virtual void requestWhenInUseAuthorization() = 0;
};

} // namespace quillon
