// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/rules/RuleFormModel.h"

namespace quillon {

/// What to look at before the rule is saved, in the user's language; "" for nothing. The gravest
/// of several.
QString ruleFormNotice(const RuleFormModel::State &form, const ChosenEntries &chosen);

} // namespace quillon
