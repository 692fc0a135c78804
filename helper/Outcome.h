// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "contract/Names.h"

#include <optional>
#include <string>

namespace quillon {

/// Why a request was not carried out: one of the contract's errors and a sentence for the person.
struct Refusal
{
    contract::ErrorName error;
    std::string message;
};

/// What became of a request: nothing means that it was carried out.
using Outcome = std::optional<Refusal>;

} // namespace quillon
