// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/LocationAuthorization.h"

#include <utility>

namespace quillon::test {

/// A platform whose user answers the question for the permission when the test says so.
class FakeLocationAuthorization : public LocationAuthorization
{
public:
    bool servicesEnabled() const override { return enabled; }
    void setDelegate(Delegate newDelegate) override { delegate = std::move(newDelegate); }
    void requestWhenInUseAuthorization() override { ++requests; }

    void answer(Status status) const { delegate.didChangeAuthorization(status); }
    void fail(int code) const { delegate.didFailWithError(code); }

    bool enabled = true;
    int requests = 0;
    Delegate delegate;
};

} // namespace quillon::test
