// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/LocationAuthorization.h"
#include "platform/Scheduler.h"
#include "platform/linux/wifi/Nl80211Socket.h"

#include <functional>
#include <memory>

namespace quillon {

/// Linux asks nobody before it tells which network is joined: the permission is there unless a
/// sandbox keeps the process from asking the kernel. A machine without Wi-Fi refuses nothing.
class Nl80211LocationAuthorization : public LocationAuthorization
{
public:
    using Access = std::function<WiFiAccess()>;

    explicit Nl80211LocationAuthorization(Scheduler &scheduler, Access access = &wiFiAccess);
    /// Answers that are under way are dropped.
    ~Nl80211LocationAuthorization() override;

    /// True: there is no switch for the whole system.
    bool servicesEnabled() const override;
    void setDelegate(Delegate delegate) override;
    /// The delegate hears Authorized or Denied, at each request; it never hears of a failure.
    void requestWhenInUseAuthorization() override;

private:
    Scheduler &m_scheduler;
    Access m_access;
    std::shared_ptr<Delegate> m_delegate; ///< whose life is that of this object
};

} // namespace quillon
