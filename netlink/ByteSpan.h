// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>

namespace quillon {

using ByteSpan = std::span<const std::byte>;

} // namespace quillon
