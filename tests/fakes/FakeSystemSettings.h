// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SystemSettings.h"

namespace quillon::test {

class FakeSystemSettings : public SystemSettings
{
public:
    bool openLocationServices() override
    {
        ++locationServicesOpened;
        return true;
    }

    int locationServicesOpened = 0;
};

} // namespace quillon::test
