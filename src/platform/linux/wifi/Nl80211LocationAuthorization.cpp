// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211LocationAuthorization.h"

#include <utility>

namespace quillon {

Nl80211LocationAuthorization::Nl80211LocationAuthorization(Scheduler &scheduler, Access access)
    : m_scheduler(scheduler)
    , m_access(std::move(access))
    , m_delegate(std::make_shared<Delegate>())
{
}

Nl80211LocationAuthorization::~Nl80211LocationAuthorization() = default;

bool Nl80211LocationAuthorization::servicesEnabled() const
{
    return true;
}

void Nl80211LocationAuthorization::setDelegate(Delegate delegate)
{
    *m_delegate = std::move(delegate);
}

void Nl80211LocationAuthorization::requestWhenInUseAuthorization()
{
    m_scheduler.onMain([delegate = std::weak_ptr(m_delegate), access = m_access] {
        const auto living = delegate.lock();
        if (!living) {
            return;
        }
        const Status status = access() == WiFiAccess::Refused ? Status::Denied : Status::Authorized;
        // A copy: the delegate may set another one while it hears.
        if (const auto changed = living->didChangeAuthorization) {
            changed(status);
        }
    });
}

} // namespace quillon
