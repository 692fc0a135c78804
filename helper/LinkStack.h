// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <vector>

namespace quillon {

/// Of `all` links those on top of `link`, the lower ones first: VLANs and others that stand on it,
/// the bridge or bond that it is a port of, and what is on top of these. They share its fate: a
/// VLAN goes down with it and takes its address over, as a bridge may.
std::vector<LinkState> linksOnTop(const LinkState &link, const std::vector<LinkState> &all);

} // namespace quillon
