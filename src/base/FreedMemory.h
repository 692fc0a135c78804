// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// Gives memory that was freed back to the system. The C library keeps it for later allocations,
/// which a program that then waits for days does not make: call it where something large was let go
/// or many small things have been done with. Takes about a millisecond. Any thread.
void returnFreedMemory();

} // namespace quillon
