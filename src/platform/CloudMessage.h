// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CloudAccount.h"
#include "platform/CloudStorage.h"

namespace quillon {

/// What is told the person of it, in their language: one sentence or two, without a fingerprint.
QString cloudMessage(CloudProblem problem, CloudAccount::Kind kind);

} // namespace quillon
