// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Compositing.h"

namespace quillon::test {

/// A display whose compositor is started and ended by hand.
class FakeCompositing : public Compositing
{
public:
    bool isActive() const override { return active; }

    bool active = true;
};

} // namespace quillon::test
