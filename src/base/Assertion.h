// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// Ends the program when `condition` is false: a programming error, not a run-time failure. Active
/// in release builds too. The message names the operation, the source file with its line, and the
/// condition as written.
void assertCondition(
    bool condition, const char *operation, const char *file, int line, const char *text);

} // namespace quillon
