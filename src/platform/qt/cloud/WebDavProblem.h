// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/cloud/WebDavTransfer.h"

#include <optional>

namespace quillon {

/// What an answer to a request of that method means when it is not what was asked for; none when it
/// is.
std::optional<CloudError> webDavProblem(const QByteArray &method, const WebDavAnswer &answer);

} // namespace quillon
