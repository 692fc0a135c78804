// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What any user of the machine can do to the helper by asking much, from many connections, without
// reading what it answers. The real helper under the limits of its own unit.
#include "integration/helper/AttackedHelper.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

class FloodTest : public AttackedHelper
{
protected:
    static int count(const std::string &text, const std::string &what)
    {
        int found = 0;
        for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
            ++found;
        }
        return found;
    }
    static std::vector<std::unique_ptr<RawBus>> connectionsOfMallory(int number)
    {
        std::vector<std::unique_ptr<RawBus>> connections;
        for (int i = 0; i < number; ++i) {
            connections.push_back(std::make_unique<RawBus>("mallory"));
        }
        return connections;
    }
    /// Each of them asks for so many changes at once.
    void flood(const std::vector<std::unique_ptr<RawBus>> &connections, int calls) const
    {
        for (const auto &bus : connections) {
            for (int i = 0; i < calls; ++i) {
                bus->send(SD_BUS_MESSAGE_METHOD_CALL, helper, contract::helper::path,
                    contract::helper::interface, contract::helper::changeAddressOfDevice.name,
                    [](sd_bus_message *message) {
                        fillChange(message, "enp1s0", newAddress, someAuthorization());
                    });
            }
            sd_bus_flush(bus->get());
        }
    }
};

TEST_F(FloodTest, withAllConnectionsOfAUserShutsNobodyElseOut)
{
    FakePolkit polkit{onlyFor(quillon)};
    const auto connections = connectionsOfMallory(100);
    for (int i = 0; i < 49; ++i) {
        flood(connections, 4);
        EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done) << i;
        for (const auto &bus : connections) {
            bus->settle();
        }
    }
    EXPECT_EQ(polkit.questions().size(), 8U + 49U);
}

TEST_F(FloodTest, withThousandsOfCallsAtOnceIsAnsweredWhole)
{
    FakePolkit polkit{onlyFor(quillon)};
    const auto daemon = quillonLater.processOf("org.freedesktop.DBus");
    const auto before = timeUsed(process);
    const auto busBefore = timeUsed(daemon);
    const auto connections = connectionsOfMallory(200);
    flood(connections, 60);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    RecordProperty("milliseconds", static_cast<int>(taken.count()));
    RecordProperty("hundredths", static_cast<int>(timeUsed(process) - before));
    EXPECT_LT(timeUsed(process) - before, 100) << "for 12,000 calls";
    RecordProperty("busHundredths", static_cast<int>(timeUsed(daemon) - busBefore));
    // All but the eight that polkit has not answered.
    std::size_t refused = 0;
    EXPECT_TRUE(waitUntil([&] {
        for (const auto &bus : connections) {
            refused += bus->settle().size();
        }
        return refused == 200 * 60 - 8;
    })) << refused;
}

TEST_F(FloodTest, writesOneCountedLineASecondAndEveryDoneOne)
{
    FakePolkit polkit{onlyFor(quillon)};
    const auto start = std::chrono::steady_clock::now();
    constexpr int refused = 3000;
    constexpr int changes = 60;
    for (int i = 0; i < refused; ++i) {
        EXPECT_EQ(
            mallory.call(helper, contract::helper::path, contract::helper::interface,
                contract::helper::changeAddressOfDevice.name,
                [](sd_bus_message *message) { fillChange(message, "enp1s0", newAddress, {}); }),
            contract::error::invalidAuthorization.name);
        if (i % (refused / changes) == 0) {
            EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
        }
    }
    const auto seconds =
        std::chrono::ceil<std::chrono::seconds>(std::chrono::steady_clock::now() - start).count();
    // The last count comes by itself, without another message.
    std::string lines;
    const auto counted = [&] {
        lines = outputOf(std::string{"cat "} + helperLog);
        int sum = count(lines, contract::error::invalidAuthorization.name);
        std::istringstream stream{lines};
        for (std::string line; std::getline(stream, line);) {
            if (line.rfind("in the last second also: ", 0) == 0) {
                sum += std::stoi(line.substr(line.find(": ") + 2));
            }
        }
        return sum;
    };
    EXPECT_TRUE(waitUntil([&] { return counted() == refused; })) << counted();
    EXPECT_EQ(count(lines, ": done\n"), changes);
    EXPECT_LE(count(lines, "\n"), changes + seconds + 2) << lines;
}

TEST_F(FloodTest, withAnswersThatItDoesNotReadSilencesTheHelperForSecondsOnly)
{
    // So that it does not take minutes; the bus gives the limit to who connects from now on.
    outputOf("sed -i 's|</busconfig>|<limit name=\"max_incoming_bytes\">100000</limit>&|' "
             "/etc/dbus-1/system.d/com.orvandel.Quillon4HelperTool.conf");
    reloadBus();
    kill(process, SIGKILL);
    ASSERT_TRUE(waitUntil([this] { return !quillon.hasOwner(contract::helperName); }));
    ASSERT_EQ(quillon.version(), contract::helperVersion);
    process = quillon.processOf(contract::helperName);
    helper = quillon.endpoint();
    const auto isThere = [this] {
        return run("test -e /proc/" + std::to_string(process)).exitCode == 0;
    };
    EXPECT_TRUE(waitUntil([&] {
        for (int i = 0; i < 20; ++i) {
            mallory.send(SD_BUS_MESSAGE_METHOD_CALL, helper, contract::helper::path,
                contract::helper::interface, contract::helper::getVersion.name);
        }
        return !isThere();
    }));
    // Mallory still has not read anything. A bus that reads nothing from the helper sees that it is
    // gone when the next call is to be passed on.
    EXPECT_TRUE(
        waitUntil([this] { return quillon.change("enp1s0", newAddress) == BusClient::done; }));
    process = quillonLater.processOf(contract::helperName);
}

TEST_F(FloodTest, doesNotKeepTheHelperFromEndingWhenItIsToldTo)
{
    std::atomic<bool> over = false;
    std::thread attack{[&] {
        RawBus bus{"mallory"};
        while (!over) {
            for (int i = 0; i < 20; ++i) {
                bus.send(SD_BUS_MESSAGE_METHOD_CALL, helper, contract::helper::path,
                    contract::helper::interface, contract::helper::getVersion.name);
            }
            bus.settle();
        }
    }};
    kill(process, SIGTERM);
    EXPECT_TRUE(
        waitUntil([this] { return run("test -e /proc/" + std::to_string(process)).exitCode; }));
    over = true;
    attack.join();
    EXPECT_EQ(quillon.version(), contract::helperVersion);
    process = quillon.processOf(contract::helperName);
}

} // namespace
} // namespace quillon::test
