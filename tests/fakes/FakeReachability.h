// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Reachability.h"

namespace quillon::test {

/// The internet, there or not.
class FakeReachability : public Reachability
{
public:
    bool isReachable() override
    {
        ++questions;
        return reachable;
    }

    bool reachable = true;
    int questions = 0;
};

} // namespace quillon::test
