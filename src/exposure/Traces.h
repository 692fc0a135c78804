// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exposure/LinkIdentifiers.h"
#include "exposure/Trace.h"
#include "platform/ExposureSource.h"

#include <QList>

namespace quillon {

/// At most so many IPv6 addresses are listed; a last entry says how many there are beside them.
constexpr qsizetype mostIpv6Addresses = 8;

/// What the network of `device` knows it by beside its link-layer address, in the order in which it
/// is shown. What is known not to be told is left out; what is not known is there without a value.
/// `sinceChange` is how long ago the address was changed, none when that is not known.
QList<Trace> tracesOf(const QString &device, const ExposureFacts &facts, const LinkAddresses &link,
    std::optional<std::chrono::seconds> sinceChange = std::nullopt);

} // namespace quillon
