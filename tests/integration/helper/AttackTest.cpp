// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What any user of the machine can do to the helper with messages. The real helper under the limits
// of its own unit, and for most of it a bus that lets everything through: what the bus's policy
// keeps away today the helper must bear anyway.
#include "integration/helper/AttackedHelper.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string invalidAuthorization = contract::error::invalidAuthorization.name;
constexpr std::size_t mebibyte = std::size_t{1} << 20;
// What the system bus lets pass in one message is a little more.
constexpr std::size_t hugeSize = 31 * mebibyte;

class AttackTest : public AttackedHelper
{
};

TEST_F(AttackTest, withDeparturesOfWrongFormLosesNoAnswer)
{
    openTheBus();
    std::atomic<bool> over = false;
    std::atomic<int> sent = 0;
    std::thread attack{[&] {
        RawBus bus{"mallory"};
        while (!over) {
            bus.signalAsTheBus(helper, "NameOwnerChanged", [](sd_bus_message *message) {
                sd_bus_message_append(message, "asss", 1, "x", ":1.1", "");
            });
            bus.settle();
            ++sent;
            std::this_thread::sleep_for(1ms);
        }
    }};
    for (int i = 0; i < 100; ++i) {
        // Not faster than the signals come.
        const int before = sent;
        ASSERT_TRUE(waitUntil([&] { return sent > before; }));
        EXPECT_EQ(quillon.change("enp1s0", i % 2 == 0 ? newAddress : "02:11:22:33:44:66"),
            BusClient::done)
            << i;
    }
    over = true;
    attack.join();
    EXPECT_GE(sent, 100);
}

TEST_F(AttackTest, withDeparturesOfOthersTakesNoPromptAway)
{
    openTheBus();
    FakePolkit polkit{[](const FakePolkit::Question &) { return FakePolkit::Answer::LeaveOpen; }};
    quillon.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    const auto victim = quillon.uniqueName();
    for (int i = 0; i < 200; ++i) {
        mallory.signalAsTheBus(helper, "NameOwnerChanged", [&](sd_bus_message *message) {
            sd_bus_message_append(message, "sss", victim.c_str(), victim.c_str(), "");
        });
    }
    // Answered after the signals.
    EXPECT_EQ(mallory.call(helper, contract::helper::path, contract::helper::interface,
                  contract::helper::getVersion.name),
        "done");
    EXPECT_THAT(polkit.cancelled(), IsEmpty());
    EXPECT_THAT(quillon.answers(), IsEmpty());
    polkit.openQuestionsAreGranted();
    EXPECT_TRUE(waitUntil([&] { return quillon.answers()[BusClient::done] == 1; }));
}

TEST_F(AttackTest, withMessagesOfEveryFormIsRefused)
{
    openTheBus();
    const std::vector<std::string> signatures{"", "s", "ss", "sss", "as", "asss", "u", "v", "a{sv}",
        "(bba{ss})", "b", "ay", "sub", "ssbayay", "sssss", "ssb", "ssbas"};
    const auto fill = [](const std::string &signature, sd_bus_message *message) {
        const std::map<char, std::function<void()>> kinds{
            {'s', [&] { sd_bus_message_append(message, "s", ":1.1"); }},
            {'u', [&] { sd_bus_message_append(message, "u", 7U); }},
            {'b', [&] { sd_bus_message_append(message, "b", 1); }},
            {'v', [&] { sd_bus_message_append(message, "v", "v", "v", "s", "deep"); }}};
        if (signature == "(bba{ss})") {
            sd_bus_message_append(message, "(bba{ss})", 1, 1, 1, "a", "b");
            return;
        }
        for (std::size_t i = 0; i < signature.size(); ++i) {
            if (signature[i] != 'a') {
                kinds.at(signature[i])();
                continue;
            }
            const auto end = signature[i + 1] == '{' ? signature.find('}', i) : i + 1;
            sd_bus_message_open_container(message, 'a', signature.substr(i + 1, end - i).c_str());
            sd_bus_message_close_container(message);
            i = end;
        }
    };
    for (const auto &signature : signatures) {
        const auto body = [&](sd_bus_message *message) { fill(signature, message); };
        for (const char *member : {"NameOwnerChanged", "NameLost", "NameAcquired"}) {
            mallory.signalAsTheBus(helper, member, body);
            mallory.signalAsTheBus(contract::helperName, member, body);
        }
        mallory.send(SD_BUS_MESSAGE_SIGNAL, helper, contract::helper::path,
            contract::helper::interface, contract::helper::uninstall.name, body);
        for (const char *path : {contract::helper::path, "/", "/com", "/org/freedesktop/DBus"}) {
            for (const char *interface :
                {contract::helper::interface, "org.freedesktop.DBus.Properties",
                    "org.freedesktop.DBus.ObjectManager", "org.freedesktop.DBus.Peer",
                    "org.freedesktop.DBus", "org.freedesktop.PolicyKit1.Authority"}) {
                for (const char *member : {"ChangeAddressOfDevice", "Uninstall", "GetAll", "Set",
                         "GetManagedObjects", "NameOwnerChanged", "Nonsense"}) {
                    EXPECT_NE(mallory.call(helper, path, interface, member, body), BusClient::done)
                        << path << interface << member << signature;
                }
            }
        }
    }
    EXPECT_EQ(quillon.processOf(contract::helperName), process);
}

TEST_F(AttackTest, withLongNamesGetsShortAnswersThatRepeatNothing)
{
    openTheBus();
    const std::string path = '/' + std::string(60'000, 'a');
    const std::string member(255, 'a');
    const std::string interface = "a." + std::string(253, 'a');
    const char *ours = contract::helper::path;
    const char *version = contract::helper::getVersion.name;
    const auto manyArguments = [](sd_bus_message *message) {
        for (int i = 0; i < 250; ++i) {
            sd_bus_message_append(message, "y", 'a');
        }
    };
    const struct
    {
        const char *path;
        const char *interface;
        const char *member;
        RawBus::Fill fill;
        const char *error;
    } calls[] = {{path.c_str(), contract::helper::interface, version, {}, "UnknownObject"},
        {ours, interface.c_str(), version, {}, "UnknownMethod"},
        {ours, contract::helper::interface, member.c_str(), {}, "UnknownMethod"},
        {ours, contract::helper::interface, version, manyArguments, "InvalidArgs"},
        {ours, "org.freedesktop.DBus.Properties", "GetAll", {}, "UnknownMethod"},
        {ours, "org.freedesktop.DBus.Peer", "GetMachineId", {}, "UnknownMethod"},
        {path.c_str(), "org.freedesktop.DBus.Peer", "Ping", {}, "UnknownObject"},
        {ours, "org.freedesktop.DBus.Introspectable", "Introspect", manyArguments, "InvalidArgs"}};
    for (const auto &call : calls) {
        EXPECT_EQ(mallory.call(helper, call.path, call.interface, call.member, call.fill),
            std::string{"org.freedesktop.DBus.Error."} + call.error);
        EXPECT_LT(mallory.lastErrorText().size(), 40U) << mallory.lastErrorText();
    }
    EXPECT_THAT(outputOf(std::string{"cat "} + helperLog), Not(HasSubstr("could not be read")));
}

TEST_F(AttackTest, withRepliesToNothingDecidesNothing)
{
    // Here the bus's policy is what holds: a reply that was not asked of its sender goes nowhere.
    const auto original = kernelAddress("enp1s0");
    FakePolkit polkit{[](const FakePolkit::Question &) { return FakePolkit::Answer::LeaveOpen; }};
    BusClient asker{"mallory"};
    asker.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    // All numbers that the helper's question to polkit can have by now.
    constexpr std::uint32_t most = 100;
    for (std::uint32_t number = 1; number < most; ++number) {
        mallory.replyToNothing(helper, number);
    }
    std::size_t turnedDown = 0;
    EXPECT_TRUE(waitUntil([&] {
        for (const auto &error : mallory.settle()) {
            turnedDown += error == "org.freedesktop.DBus.Error.AccessDenied" ? 1U : 0U;
        }
        return turnedDown == most - 1;
    })) << turnedDown;
    EXPECT_EQ(quillon.version(), contract::helperVersion);
    EXPECT_EQ(kernelAddress("enp1s0"), original);
    EXPECT_THAT(asker.answers(), IsEmpty());
}

TEST_F(AttackTest, withHugeSignalsCostsOthersNothing)
{
    openTheBus();
    const std::string text(hugeSize, 'x');
    for (int i = 0; i < 4; ++i) {
        mallory.signalAsTheBus(helper, "NameOwnerChanged", [&](sd_bus_message *message) {
            sd_bus_message_append(message, "sss", text.c_str(), "", "");
        });
        mallory.settle();
        EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    }
    expectLittleMemory();
}

TEST_F(AttackTest, withAHugeAuthorizationIsRefusedAfterOneLook)
{
    const std::vector<std::uint8_t> bytes(hugeSize, 7);
    const auto before = timeUsed(process);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(
            mallory.call(helper, contract::helper::path, contract::helper::interface,
                contract::helper::changeAddressOfDevice.name,
                [&](sd_bus_message *message) { fillChange(message, "enp1s0", newAddress, bytes); }),
            invalidAuthorization);
        EXPECT_EQ(mallory.call(helper, contract::helper::path, contract::helper::interface,
                      contract::helper::uninstall.name,
                      [&](sd_bus_message *message) {
                          sd_bus_message_append_array(message, 'y', bytes.data(), bytes.size());
                      }),
            invalidAuthorization);
    }
    RecordProperty("hundredths", static_cast<int>(timeUsed(process) - before));
    RecordProperty("kilobytes", static_cast<int>(statusOf("VmHWM")));
    expectLittleMemory();
    // Receiving it is what remains, 0.02 s a call; to look at each byte took 0.7 s.
    EXPECT_LT(timeUsed(process) - before, 8 * 30);
}

TEST_F(AttackTest, withHugeTextsIsRefusedAndLogsLittle)
{
    const std::string text(hugeSize, 'x');
    const auto authorization = someAuthorization();
    EXPECT_EQ(mallory.call(helper, contract::helper::path, contract::helper::interface,
                  contract::helper::changeAddressOfDevice.name,
                  [&](sd_bus_message *message) {
                      fillChange(message, text.c_str(), newAddress, authorization);
                  }),
        contract::error::invalidDevice.name);
    EXPECT_EQ(mallory.call(helper, contract::helper::path, contract::helper::interface,
                  contract::helper::changeAddressOfDevice.name,
                  [&](sd_bus_message *message) {
                      fillChange(message, "enp1s0", text.c_str(), authorization);
                  }),
        contract::error::invalidAddress.name);
    expectLittleMemory();
    EXPECT_LT(outputOf(std::string{"cat "} + helperLog).size(), 4096U);
}

TEST_F(AttackTest, withDescriptorsReachesNobody)
{
    const auto openFiles = [&] {
        return outputOf("ls /proc/" + std::to_string(process) + "/fd | wc -l");
    };
    std::string before;
    {
        FakePolkit polkit{onlyFor(quillon)};
        ASSERT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
        before = openFiles();
    }
    for (bool open : {false, true}) {
        if (open) {
            openTheBus();
        }
        FakePolkit polkit{onlyFor(quillon)};
        for (int i = 0; i < 8; ++i) {
            const auto withDescriptors = [&](sd_bus_message *message) {
                for (int j = 0; j < 16; ++j) {
                    sd_bus_message_append(message, "h", STDIN_FILENO);
                }
            };
            const auto error = mallory.call(helper, contract::helper::path,
                contract::helper::interface, contract::helper::getVersion.name, withDescriptors);
            EXPECT_THAT(error, AnyOf("org.freedesktop.DBus.Error.AccessDenied",
                                   "org.freedesktop.DBus.Error.NotSupported"));
            mallory.signalAsTheBus(helper, "NameOwnerChanged", withDescriptors);
        }
        mallory.settle();
        EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
        EXPECT_EQ(openFiles(), before);
    }
}

TEST_F(AttackTest, withSignalsIsKeptAwayByTheBus)
{
    for (const auto &destination : {helper, std::string{contract::helperName}}) {
        mallory.signalAsTheBus(destination, "NameOwnerChanged", [](sd_bus_message *message) {
            sd_bus_message_append(message, "sss", ":1.1", ":1.1", "");
        });
        std::vector<std::string> errors;
        EXPECT_TRUE(waitUntil([&] {
            errors = mallory.settle();
            return !errors.empty();
        })) << destination;
        EXPECT_THAT(errors, testing::ElementsAre("org.freedesktop.DBus.Error.AccessDenied"));
    }
}

} // namespace
} // namespace quillon::test
