// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Removal.h"

#include "contract/Names.h"
#include "helper/SystemBus.h"
#include "integration/helper/RawBus.h"
#include "integration/helper/Sandbox.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

/// The removal's class in this process, without any time.
TEST(RemovalTest, endsInTimeThoughMessagesWait)
{
    openTheBus();
    const auto bus = connectToSystemBus();
    const char *name = nullptr;
    ASSERT_GE(sd_bus_get_unique_name(bus.get(), &name), 0);
    RawBus mallory{"mallory"};
    constexpr int sent = 200;
    for (int i = 0; i < sent; ++i) {
        mallory.send(SD_BUS_MESSAGE_SIGNAL, name, contract::removal::path,
            contract::removal::interface, contract::removal::remove.name);
    }
    // Once this is answered the bus has passed all of them on.
    ASSERT_EQ(mallory.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetId"), "done");
    bool isRemoved = false;
    RemovalService removal{*bus, [&] {
                               isRemoved = true;
                               return Outcome{};
                           }};
    EXPECT_FALSE(removal.serve(std::chrono::milliseconds{0}));
    EXPECT_FALSE(isRemoved);
    int left = 0;
    while (sd_bus_process(bus.get(), nullptr) > 0) {
        ++left;
    }
    EXPECT_GT(left, sent / 2);
}

} // namespace
} // namespace quillon::test
