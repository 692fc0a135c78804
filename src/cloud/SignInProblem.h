// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/AccountUnlocking.h"
#include "cloud/CloudSignIn.h"

namespace quillon {

/// What is told the person when signing in did not succeed, in their language.
CloudSignIn::Problem signInProblem(const CloudError &error, CloudAccount::Kind kind);
CloudSignIn::Problem signInProblem(AccountUnlocking::Obstacle obstacle);
CloudSignIn::Problem signInProblem(SecretStore::Problem problem);
/// Why the account's key file is of no use.
QString keyFileMessage(KeyFileProblem problem);
/// What has to be said and was not.
std::optional<CloudSignIn::Problem> missingOf(const CloudSignIn::Wanted &wanted);

} // namespace quillon
