// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"

namespace quillon {

/// Why the records could not be opened or saved, as a sentence for the user where we know one;
/// otherwise what the error says.
QString reasonOf(const Error &error);

} // namespace quillon
