// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon::test {

// Functions, not definitions of each test: a compiler cache then serves every checkout.

/// The folder tests/data of this checkout.
QString testData();
/// The folder that this program was built in.
QString buildFolder();

} // namespace quillon::test
