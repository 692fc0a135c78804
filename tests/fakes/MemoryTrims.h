// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon::test {

/// How often this program has asked the C library to give freed memory back to the system, which
/// then does not do it. Only in a program that calls this function.
int memoryTrims();

} // namespace quillon::test
