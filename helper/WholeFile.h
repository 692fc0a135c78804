// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace quillon {

/// Writes everything, also when the kernel takes it in pieces. False with errno set.
bool writeWhole(int descriptor, const char *data, std::size_t size);

/// Appends the content of the file `from`, whatever its position, to `to`. False when that failed
/// (with errno set), and when there was nothing to copy.
bool copyWhole(int from, int to);

} // namespace quillon
