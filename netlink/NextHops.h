// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <netlink/attr.h>

#include <linux/rtnetlink.h>

namespace quillon {

/// Calls `visit(rtnexthop &)` with each complete hop of a route with several (RTA_MULTIPATH).
template <typename Visit>
void forEachNextHop(nlattr *multipath, Visit visit)
{
    auto *hop = static_cast<rtnexthop *>(nla_data(multipath));
    int left = nla_len(multipath);
    while (left >= static_cast<int>(sizeof *hop) && RTNH_OK(hop, left)) {
        visit(*hop);
        left -= static_cast<int>(RTNH_ALIGN(hop->rtnh_len));
        hop = RTNH_NEXT(hop);
    }
}

} // namespace quillon
