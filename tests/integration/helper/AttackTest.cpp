// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What any user of the machine can do to the helper with messages. The real helper under the limits
// of its own unit, and for most of it a bus that lets everything through: what the bus's policy
// keeps away today the helper must bear anyway.
#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/FakePolkit.h"
#include "integration/helper/RawBus.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <thread>
#include <unistd.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr char log[] = "/tmp/helper.log";
const std::string invalidAuthorization = contract::error::invalidAuthorization.name;
const std::string tooManyRequests = contract::error::tooManyRequests.name;
constexpr std::size_t mebibyte = std::size_t{1} << 20;
// What the system bus lets pass in one message is a little more.
constexpr std::size_t hugeSize = 31 * mebibyte;

class AttackTest : public testing::Test
{
protected:
    void SetUp() override
    {
        outputOf(std::string{QUILLON_AS_THE_UNIT} +
                 " /etc/systemd/system/quillon4-helper.service >/dev/null 2>" + log + " &");
        ASSERT_TRUE(waitUntil([this] { return quillon.hasOwner(contract::helperName); }));
        helper = quillon.endpoint();
        process = quillon.processOf(helper);
    }
    void TearDown() override
    {
        // The same one as at the beginning.
        EXPECT_EQ(quillonLater.processOf(contract::helperName), process);
        EXPECT_EQ(quillonLater.version(), contract::helperVersion);
    }

    FakePolkit::Decision onlyFor(const BusClient &client)
    {
        return [name = client.uniqueName()](const FakePolkit::Question &question) {
            return question.subject.at("name") == name ? FakePolkit::Answer::Yes
                                                       : FakePolkit::Answer::LeaveOpen;
        };
    }
    /// A number of /proc/PID/status, in kilobytes.
    long statusOf(const std::string &field) const
    {
        std::ifstream status{"/proc/" + std::to_string(process) + "/status"};
        for (std::string line; std::getline(status, line);) {
            if (line.rfind(field + ":", 0) == 0) {
                return std::stol(line.substr(field.size() + 1));
            }
        }
        return 0;
    }
    /// At any time since its start: one huge message and no copy of it.
    void expectLittleMemory() const
    {
#ifndef __SANITIZE_ADDRESS__ // which keeps freed memory for a while
        EXPECT_LT(statusOf("VmHWM"), 64 * 1024);
#endif
    }
    /// Of the processor, in hundredths of a second.
    static long timeUsed(pid_t of)
    {
        std::ifstream file{"/proc/" + std::to_string(of) + "/stat"};
        std::string text;
        std::getline(file, text);
        std::istringstream fields{text.substr(text.rfind(')') + 2)};
        std::string skipped;
        for (int i = 0; i < 11; ++i) {
            fields >> skipped;
        }
        long user = 0;
        long system = 0;
        fields >> user >> system;
        return user + system;
    }
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
    static void fillChange(sd_bus_message *message, const char *device, const char *address,
        const std::vector<std::uint8_t> &authorization)
    {
        sd_bus_message_append(message, "ssb", device, address, 0);
        sd_bus_message_append_array(message, 'y', authorization.data(), authorization.size());
    }

    BusClient quillon{"quillon"};
    BusClient quillonLater{"quillon"};
    RawBus mallory{"mallory"};
    std::string helper;
    pid_t process = 0;
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
    EXPECT_THAT(outputOf(std::string{"cat "} + log), Not(HasSubstr("could not be read")));
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
    EXPECT_LT(outputOf(std::string{"cat "} + log).size(), 4096U);
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

TEST_F(AttackTest, withAllConnectionsOfAUserShutsNobodyElseOut)
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

TEST_F(AttackTest, withThousandsOfCallsAtOnceIsAnsweredWhole)
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

TEST_F(AttackTest, writesOneCountedLineASecondAndEveryDoneOne)
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
            invalidAuthorization);
        if (i % (refused / changes) == 0) {
            EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
        }
    }
    const auto seconds =
        std::chrono::ceil<std::chrono::seconds>(std::chrono::steady_clock::now() - start).count();
    // The last count comes by itself, without another message.
    std::string lines;
    const auto counted = [&] {
        lines = outputOf(std::string{"cat "} + log);
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

TEST_F(AttackTest, withAnswersThatItDoesNotReadSilencesTheHelperForSecondsOnly)
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

TEST_F(AttackTest, doesNotKeepTheHelperFromEndingWhenItIsToldTo)
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
