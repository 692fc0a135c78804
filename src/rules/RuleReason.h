// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

class DeviceTable;
class Rule;
class RuleQueries;
class SettingsStore;

/// One sentence in the user's language: that the rule is in force, or why it is not. Reads what
/// evaluation has marked, and asks as it does which rules apply now; fetches records.
QString ruleReason(const Rule &rule, const RuleQueries &queries, const DeviceTable &devices,
    const SettingsStore &settings);

} // namespace quillon
