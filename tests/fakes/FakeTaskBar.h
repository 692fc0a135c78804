// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/TaskBar.h"

namespace quillon::test {

/// A task bar that remembers.
class FakeTaskBar : public TaskBar
{
public:
    void setSkipped(quintptr, bool isSkipped) override { skipped = isSkipped; }

    bool skipped = false;
};

} // namespace quillon::test
