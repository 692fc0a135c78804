// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/AppearanceSource.h"

#include <utility>

namespace quillon::test {

/// A desktop whose user changes its appearance by hand.
class FakeAppearance : public AppearanceSource
{
public:
    void watch(std::function<void(const Appearance &)> observer) override
    {
        m_observer = std::move(observer);
    }
    void become(const Appearance &appearance) { m_observer(appearance); }

private:
    std::function<void(const Appearance &)> m_observer;
};

} // namespace quillon::test
