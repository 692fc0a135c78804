// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/Request.h"

namespace quillon::bench {

/// Answers requests as serve() does, from Qt's event loop: between them it turns, as the program's
/// own does. Requests of other kinds may turn it too. Returns what main() is to return.
int serveInLoop(const std::function<Words(const Words &)> &handle);

} // namespace quillon::bench
