// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/LinkStack.h"

#include <cstddef>
#include <set>

namespace quillon {

namespace {

bool standsOn(const LinkState &upper, const LinkState &lower)
{
    // Two that name each other are the two ends of a wire (veth).
    const bool isPeer = upper.lower == lower.index && lower.lower == upper.index;
    return (upper.lower == lower.index && !isPeer) || lower.master == upper.index;
}

} // namespace

std::vector<LinkState> linksOnTop(const LinkState &link, const std::vector<LinkState> &all)
{
    std::vector<LinkState> found{link};
    std::set<int> known{link.index};
    for (std::size_t i = 0; i < found.size(); ++i) {
        const auto lower = found[i];
        for (const auto &candidate : all) {
            if (standsOn(candidate, lower) && known.insert(candidate.index).second) {
                found.push_back(candidate);
            }
        }
    }
    found.erase(found.begin());
    return found;
}

} // namespace quillon
