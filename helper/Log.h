// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quillon {

/// `text` between quotation marks, cut after 64 bytes, with everything but printable ASCII as \xNN:
/// what a caller sends must not be able to forge a line of the log or to fill it.
std::string harmless(std::string_view text);

/// One line to standard error, which the service manager puts into the journal. Callers pass texts
/// from outside through harmless().
void logLine(std::string_view line);

} // namespace quillon
