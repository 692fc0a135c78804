// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RuleProjection.h"

namespace quillon {

class ReplicaStorage;
struct SyncChanges;

/// The states of all rules that are present.
RuleStates presentRules(const ReplicaStorage &storage);
bool touchesRules(const SyncChanges &changes);

} // namespace quillon
