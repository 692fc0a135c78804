// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/InterfaceAddresses.h"

namespace quillon {

/// getifaddrs(3).
class GetifaddrsAddresses : public InterfaceAddresses
{
public:
    QList<Entry> ipv4() const override;
};

} // namespace quillon
