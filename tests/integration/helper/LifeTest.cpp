// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "helper/HelperDaemon.h"
#include "helper/NetlinkKernelLink.h"
#include "helper/SystemBus.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/DeafBus.h"
#include "integration/helper/FakePolkit.h"
#include "integration/helper/RawBus.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

#include <atomic>
#include <csignal>
#include <functional>
#include <memory>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

/// The daemon's class in this process, with an idle period that a test can wait for.
class LifeTestInProcess : public testing::Test
{
protected:
    explicit LifeTestInProcess(std::chrono::milliseconds period = 300ms)
        : idlePeriod{period}
        , thread{[this] {
            daemon.run(stop);
            ended = true;
        }}
    {
        // Where the machine is busy it may have ended before anybody looks.
        started = waitUntil([this] { return ended || root.hasOwner(contract::helperName); });
    }
    ~LifeTestInProcess() override
    {
        eventfd_write(stop, 1);
        thread.join();
        close(stop);
    }

    const std::chrono::milliseconds idlePeriod;
    BusClient root{"root"};
    BusClient quillon{"quillon"};
    int stop = eventfd(0, EFD_CLOEXEC);
    SystemBus bus = connectToSystemBus();
    NetlinkKernelLink kernel;
    HelperDaemon daemon{*bus, kernel,
        [] { return Outcome{Refusal{contract::error::ownedByPackage, "package"}}; },
        [this] { return superseded && decide(); }, idlePeriod};
    std::atomic<bool> superseded = false;
    /// In the moment in which the daemon finds that it is superseded; set before `superseded`.
    std::function<bool()> decide = [] { return true; };
    std::atomic<bool> ended = false;
    bool started = false;
    std::thread thread;
};

/// With a period that nothing outlasts which a test does within it, however busy the machine is.
class LifeTestWithTime : public LifeTestInProcess
{
protected:
    LifeTestWithTime()
        : LifeTestInProcess{2s}
    {
    }
};

TEST_F(LifeTestInProcess, endsWhenNobodyAsksAnything)
{
    ASSERT_TRUE(started);
    EXPECT_TRUE(waitUntil([this] { return ended.load(); }));
    EXPECT_FALSE(root.hasOwner(contract::helperName));
}

TEST_F(LifeTestWithTime, staysWhileItIsAsked)
{
    ASSERT_TRUE(started);
    for (int i = 0; i < 10; ++i) {
        std::this_thread::sleep_for(idlePeriod / 4);
        ASSERT_FALSE(ended.load());
        ASSERT_EQ(quillon.version(), "2.0");
    }
}

TEST_F(LifeTestWithTime, waitsForAPersonWhoThinks)
{
    ASSERT_TRUE(started);
    FakePolkit polkit{[](const FakePolkit::Question &) { return FakePolkit::Answer::LeaveOpen; }};
    quillon.changeLater("enp1s0", newAddress);
    std::this_thread::sleep_for(idlePeriod * 2);
    // Somebody leaves the bus, which wakes the daemon.
    BusClient{"mallory"};
    std::this_thread::sleep_for(idlePeriod);
    EXPECT_FALSE(ended.load());
    EXPECT_TRUE(root.hasOwner(contract::helperName));
    polkit.openQuestionsAreGranted();
    EXPECT_TRUE(waitUntil([this] { return quillon.answers()[BusClient::done] == 1; }));
    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
    EXPECT_TRUE(waitUntil([this] { return ended.load(); }));
}

TEST_F(LifeTestWithTime, refusesOpenRequestsWhenItIsStopped)
{
    ASSERT_TRUE(started);
    FakePolkit polkit{[](const FakePolkit::Question &) { return FakePolkit::Answer::LeaveOpen; }};
    quillon.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    eventfd_write(stop, 1);
    EXPECT_TRUE(
        waitUntil([this] { return quillon.answers()[contract::error::notAuthorized.name] == 1; }));
    EXPECT_TRUE(waitUntil([this] { return ended.load(); }));
    EXPECT_TRUE(waitUntil([&] { return polkit.cancelled().size() == 1; }));
}

TEST_F(LifeTestWithTime, leavesWhenItIsSupersededWhoeverKeepsAsking)
{
    ASSERT_TRUE(started);
    superseded = true;
    BusClient stranger{"mallory"};
    EXPECT_TRUE(waitUntil([&] {
        stranger.version();
        return ended.load();
    }));
}

TEST_F(LifeTestWithTime, waitsForAPersonWhoThinksAlsoWhenItIsSuperseded)
{
    ASSERT_TRUE(started);
    FakePolkit polkit{[](const FakePolkit::Question &) { return FakePolkit::Answer::LeaveOpen; }};
    quillon.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    superseded = true;
    // It keeps its name: the second call comes after the look that the first one brought about.
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(root.version(), "2.0");
        EXPECT_EQ(root.processOf(contract::helperName), getpid());
    }
    polkit.openQuestionsAreGranted();
    EXPECT_TRUE(waitUntil([this] { return ended.load(); }));
    EXPECT_TRUE(waitUntil([this] { return quillon.answers()[BusClient::done] == 1; }));
    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
}

TEST_F(LifeTestWithTime, servesWhatReachedItBeforeItsNameWasGoneThoughItIsStoppedThen)
{
    ASSERT_TRUE(started);
    FakePolkit polkit{[](const FakePolkit::Question &) { return FakePolkit::Answer::Yes; }};
    RawBus caller{"quillon"};
    decide = [&] {
        caller.send(SD_BUS_MESSAGE_METHOD_CALL, contract::helperName, contract::helper::path,
            contract::helper::interface, contract::helper::changeAddressOfDevice.name,
            [](sd_bus_message *message) {
                const auto bytes = someAuthorization();
                sd_bus_message_append(message, "ssb", "enp1s0", newAddress, 0);
                sd_bus_message_append_array(message, 'y', bytes.data(), bytes.size());
            });
        // Once this is answered the bus has passed the first one on.
        caller.call("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "GetId");
        // The service manager stops who gives its name back.
        eventfd_write(stop, 1);
        return true;
    };
    superseded = true;
    root.version();
    EXPECT_TRUE(waitUntil([this] { return ended.load(); }));
    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
}

/// The daemon's class on a bus that does not do its part.
class LifeTestOnADeafBus : public testing::Test
{
protected:
    ~LifeTestOnADeafBus() override
    {
        // One that still runs ends with its connection.
        deaf.reset();
        thread.join();
        close(stop);
    }

    std::unique_ptr<DeafBus> deaf = std::make_unique<DeafBus>();
    int stop = eventfd(0, EFD_CLOEXEC);
    SystemBus bus = deaf->client();
    NetlinkKernelLink kernel;
    HelperDaemon daemon{*bus, kernel, [] { return Outcome{}; }, [] { return false; }, 10min};
    std::atomic<bool> ended = false;
    std::thread thread{[this] {
        daemon.run(stop);
        // As at the end of the process.
        bus.reset();
        ended = true;
    }};
};

TEST_F(LifeTestOnADeafBus, endsWhenItIsToldToThoughItsNameIsNotTakenBack)
{
    const auto start = std::chrono::steady_clock::now();
    eventfd_write(stop, 1);
    EXPECT_TRUE(waitUntil([this] { return ended.load(); }));
    EXPECT_TRUE(deaf->isLeft());
    // Right are 7 s; the library gives up after 25.
    EXPECT_LT(std::chrono::steady_clock::now() - start, 18s);
}

TEST_F(LifeTestOnADeafBus, endsByItselfWhenTheBusTakesNoMoreAnswers)
{
    ASSERT_TRUE(waitUntil([this] { return deaf->isEntered(); }));
    deaf->readNothing();
    EXPECT_TRUE(waitUntil([this] { return ended.load(); }));
    EXPECT_FALSE(deaf->isLeft());
    EXPECT_GT(deaf->calls(), 0);
}

class LifeTest : public testing::Test
{
protected:
    static std::string groupOf(const std::string &user)
    {
        const auto text = outputOf("id -g " + user);
        return text.substr(0, text.find('\n'));
    }

    BusClient quillon{"quillon"};
};

TEST_F(LifeTest, isStartedByTheFirstCallAndStartsCleanAfterACrash)
{
    ASSERT_FALSE(quillon.hasOwner(contract::helperName));
    ASSERT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    const auto first = quillon.processOf(contract::helperName);
    kill(first, SIGKILL);
    ASSERT_TRUE(waitUntil([this] { return !quillon.hasOwner(contract::helperName); }));
    EXPECT_EQ(quillon.change("enp1s0", "02:11:22:33:44:66"), BusClient::done);
    EXPECT_EQ(kernelAddress("enp1s0"), "02:11:22:33:44:66");
    EXPECT_NE(quillon.processOf(contract::helperName), first);
}

TEST_F(LifeTest, thatIsKilledDuringAPromptAnswersWithAnErrorAndForgetsTheRequest)
{
    FakePolkit polkit{[](const FakePolkit::Question &) { return FakePolkit::Answer::LeaveOpen; }};
    const auto before = kernelAddress("enp1s0");
    BusClient caller{"quillon"};
    caller.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    kill(quillon.processOf(contract::helperName), SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return caller.answers().size() == 1; }));
    EXPECT_EQ(caller.answers().count(BusClient::done), 0U);
    polkit.openQuestionsAreGranted();
    EXPECT_EQ(quillon.version(), "2.0");
    EXPECT_EQ(kernelAddress("enp1s0"), before);
}

TEST_F(LifeTest, endsPolitelyWhenItIsAskedTo)
{
    ASSERT_EQ(quillon.version(), "2.0");
    kill(quillon.processOf(contract::helperName), SIGTERM);
    EXPECT_TRUE(waitUntil([this] { return !quillon.hasOwner(contract::helperName); }));
}

TEST_F(LifeTest, holdsOneCapabilityAndCanGainNone)
{
    // Without a service manager, as root; SystemdUnitTest starts it as the unit does.
    outputOf(std::string{installedTool} + " >/tmp/helper.log 2>&1 &");
    ASSERT_TRUE(waitUntil([this] { return quillon.hasOwner(contract::helperName); }));
    const auto status = outputOf(
        "cat /proc/" + std::to_string(quillon.processOf(contract::helperName)) + "/status");
    for (const char *set : {"CapPrm", "CapEff", "CapBnd"}) {
        EXPECT_THAT(status, HasSubstr(std::string{set} + ":\t0000000000001000\n"));
    }
    for (const char *set : {"CapInh", "CapAmb"}) {
        EXPECT_THAT(status, HasSubstr(std::string{set} + ":\t0000000000000000\n"));
    }
    EXPECT_THAT(status, HasSubstr("NoNewPrivs:\t1\n"));
    const auto user = std::to_string(userId("quillon4-helper"));
    EXPECT_NE(user, "0");
    for (const char *kind : {"Uid", "Gid"}) {
        const auto id = '\t' + (kind == std::string{"Uid"} ? user : groupOf("quillon4-helper"));
        EXPECT_THAT(status, HasSubstr(kind + (':' + id) + id + id + id + '\n'));
    }
    EXPECT_THAT(status, HasSubstr("Groups:\t \n"));
}

TEST_F(LifeTest, startsForNobodyWhenItsUserIsMissing)
{
    outputOf("sed -i /^quillon4-helper:/d /etc/passwd");
    const auto result = run(installedTool);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("there is no system user quillon4-helper"));
}

TEST_F(LifeTest, takesNoBusFromItsEnvironment)
{
    outputOf("env DBUS_SYSTEM_BUS_ADDRESS=unix:path=/tmp/false-bus "
             "DBUS_STARTER_ADDRESS=unix:path=/tmp/false-bus " +
             std::string{installedTool} + " >/tmp/helper.log 2>&1 &");
    ASSERT_TRUE(waitUntil([this] { return quillon.hasOwner(contract::helperName); }));
    EXPECT_EQ(quillon.version(), "2.0");
}

TEST_F(LifeTest, servesWhateverBecomesOfItsLog)
{
    const auto tool = std::string{installedTool};
    // Closed, without a reader, and with one who does not read what has filled the pipe.
    for (const std::string &command : {tool + " <&- >&- 2>&- &", tool + " 2>&1 >/dev/null | true &",
             "mkfifo /tmp/full; (exec 3<>/tmp/full; head -c 65536 /dev/zero >&3;" + tool +
                 " >/dev/null 2>&3 &)"}) {
        outputOf("exec >/dev/null 2>&1; " + command);
        ASSERT_TRUE(waitUntil([this] { return quillon.hasOwner(contract::helperName); }))
            << command;
        const auto process = quillon.processOf(contract::helperName);
        if (command.find(">&- ") != std::string::npos) {
            // Nothing else may come to stand where the log is written.
            const auto places = "/proc/" + std::to_string(process) + "/fd/";
            for (const char *descriptor : {"0", "1", "2"}) {
                EXPECT_EQ(outputOf("readlink " + places + descriptor), "/dev/null\n");
            }
        }
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(quillon.change("enp9s0", newAddress), contract::error::noSuchDevice.name);
            EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
        }
        EXPECT_EQ(quillon.processOf(contract::helperName), process);
        kill(process, SIGTERM);
        ASSERT_TRUE(waitUntil([this] { return !quillon.hasOwner(contract::helperName); }));
    }
}

TEST_F(LifeTest, startsNoOtherProcess)
{
    ASSERT_EQ(quillon.change("enp1s0", newAddress, true), BusClient::done);
    const auto helper = std::to_string(quillon.processOf(contract::helperName));
    EXPECT_EQ(outputOf("cat /proc/" + helper + "/task/*/children"), "");
    EXPECT_EQ(outputOf("ls /proc/" + helper + "/task | wc -l"), "1\n");
}

} // namespace
} // namespace quillon::test
