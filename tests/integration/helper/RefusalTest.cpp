// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the real helper refuses, one class of mistakes after another, asked by users who have no
// rights ("mallory") or who have ("quillon").
#include "Places.h"
#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/FakePolkit.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fstream>
#include <regex>
#include <set>
#include <thread>

namespace quillon::test {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::ElementsAre;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Lt;
using testing::Pair;

const std::string notAuthorized = contract::error::notAuthorized.name;
const std::string invalidAuthorization = contract::error::invalidAuthorization.name;
const std::string invalidDevice = contract::error::invalidDevice.name;
const std::string invalidAddress = contract::error::invalidAddress.name;
const std::string tooManyRequests = contract::error::tooManyRequests.name;

class RefusalTest : public testing::Test
{
protected:
    void TearDown() override
    {
        if (!changeIsExpected) {
            EXPECT_EQ(kernelAddress("enp1s0"), original);
        }
    }

    /// Resident memory of the helper, in kilobytes.
    static long memoryOf(pid_t process)
    {
        std::ifstream status{"/proc/" + std::to_string(process) + "/status"};
        for (std::string line; std::getline(status, line);) {
            if (line.rfind("VmRSS:", 0) == 0) {
                return std::stol(line.substr(6));
            }
        }
        return 0;
    }
    static FakePolkit::Decision always(FakePolkit::Answer answer)
    {
        return [answer](const FakePolkit::Question &) { return answer; };
    }

    std::string original = kernelAddress("enp1s0");
    bool changeIsExpected = false;
    BusClient mallory{"mallory"};
    BusClient quillon{"quillon"};
};

TEST_F(RefusalTest, refusesEveryPrivilegedMethodToAnUnauthorizedUser)
{
    const auto xml = BusClient{"root"}.call(contract::helperName, contract::helper::path,
        "org.freedesktop.DBus.Introspectable", "Introspect");
    const auto ours =
        xml.substr(xml.find(std::string{"<interface name=\""} + contract::helper::interface));
    const std::regex method{"<method name=\"(\\w+)\""};
    const std::set<std::string> open{
        contract::helper::connectWithEndpoint.name, contract::helper::getVersion.name};
    const std::map<std::string, std::function<std::string()>> privileged{
        {contract::helper::changeAddressOfDevice.name,
            [&] { return mallory.change("enp1s0", newAddress); }},
        {contract::helper::uninstall.name, [&] { return mallory.uninstall(); }}};
    int refused = 0;
    const auto end = ours.substr(0, ours.find("</interface>"));
    for (std::sregex_iterator match{end.begin(), end.end(), method};
        match != std::sregex_iterator{}; ++match) {
        const auto name = (*match)[1].str();
        if (open.count(name) == 0) {
            // A method that is added later must be added here, and refuse.
            ASSERT_EQ(privileged.count(name), 1U) << name;
            EXPECT_EQ(privileged.at(name)(), notAuthorized) << name;
            ++refused;
        }
    }
    EXPECT_EQ(refused, 2);
}

TEST_F(RefusalTest, namesTheSenderToPolkitAndNeverAProcess)
{
    FakePolkit polkit{always(FakePolkit::Answer::No)};
    EXPECT_EQ(mallory.change("enp1s0", newAddress), notAuthorized);
    EXPECT_EQ(quillon.uninstall(), notAuthorized);
    const auto questions = polkit.questions();
    ASSERT_EQ(questions.size(), 2U);
    EXPECT_EQ(questions[0].subjectKind, "system-bus-name");
    EXPECT_THAT(questions[0].subject, ElementsAre(Pair("name", mallory.uniqueName())));
    EXPECT_EQ(questions[0].action, contract::actionChange);
    EXPECT_EQ(questions[1].subjectKind, "system-bus-name");
    EXPECT_THAT(questions[1].subject, ElementsAre(Pair("name", quillon.uniqueName())));
    EXPECT_EQ(questions[1].action, contract::actionUninstall);
}

TEST_F(RefusalTest, believesNothingThatACallerSaysOfHimself)
{
    FakePolkit polkit{[this](const FakePolkit::Question &question) {
        return question.subject.at("name") == quillon.uniqueName() ? FakePolkit::Answer::Yes
                                                                   : FakePolkit::Answer::No;
    }};
    // 32 bytes that name the other caller in every way that comes to mind.
    auto name = quillon.uniqueName();
    name.resize(contract::authorizationSize);
    EXPECT_EQ(
        mallory.change("enp1s0", newAddress, false, {name.begin(), name.end()}), notAuthorized);
    std::vector<std::uint8_t> zeros(contract::authorizationSize);
    EXPECT_EQ(mallory.change("enp1s0", newAddress, false, zeros), notAuthorized);
    for (const auto &question : polkit.questions()) {
        EXPECT_EQ(question.subject.at("name"), mallory.uniqueName());
    }
}

TEST_F(RefusalTest, gainsNothingFromReplayedAuthorizationBytes)
{
    changeIsExpected = true;
    const auto bytes = someAuthorization();
    EXPECT_EQ(quillon.change("enp1s0", newAddress, false, bytes), BusClient::done);
    EXPECT_EQ(mallory.change("enp1s0", "02:00:00:00:00:66", false, bytes), notAuthorized);
    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
}

TEST_F(RefusalTest, refusesAuthorizationBytesOfAnyOtherSizeBeforePolkitIsAsked)
{
    FakePolkit polkit{always(FakePolkit::Answer::Yes)};
    for (std::size_t size : {0U, 1U, 31U, 33U, 64U, 1U << 20U}) {
        const std::vector<std::uint8_t> bytes(size, 7);
        EXPECT_EQ(quillon.change("enp1s0", newAddress, false, bytes), invalidAuthorization) << size;
        EXPECT_EQ(quillon.uninstall(bytes), invalidAuthorization) << size;
    }
    EXPECT_THAT(polkit.questions(), IsEmpty());
}

TEST_F(RefusalTest, refusesNamesThatNoInterfaceMayHaveBeforePolkitIsAsked)
{
    FakePolkit polkit{always(FakePolkit::Answer::Yes)};
    for (const std::string name : {"", ".", "..", "-a", "--help", "../enp1s0", "/enp1s0", "a/b",
             "abcdefghijklmnop", "enp1s0\n", "enp1s0 ", "enp 1s0", "enp1s0\xc3\xa9", "$(reboot)",
             "a;b", "enp%d", "enp1s0:1", "*"}) {
        EXPECT_EQ(quillon.change(name, newAddress), invalidDevice) << name;
    }
    EXPECT_EQ(quillon.change(std::string(1 << 20, 'a'), newAddress), invalidDevice);
    EXPECT_THAT(polkit.questions(), IsEmpty());
}

TEST_F(RefusalTest, judgesANameCutAtAZeroByteAsTheNameThatIsLeft)
{
    // The bus protocol has no text with a zero byte inside: client libraries cut it there, and what
    // is left is judged as the name that it is.
    EXPECT_EQ(mallory.change(std::string{"enp1s0\0/../x", 12}, newAddress), notAuthorized);
}

TEST_F(RefusalTest, refusesAddressesThatNoInterfaceMayHaveBeforePolkitIsAsked)
{
    FakePolkit polkit{always(FakePolkit::Answer::Yes)};
    for (const std::string address : {"", "00:00:00:00:00:00", "ff:ff:ff:ff:ff:ff",
             "01:00:5e:00:00:01", "02:00:00:00:01", "02:00:00:00:00:00:01", "02:00:00:00:00:0g",
             "020000000001", "02:00:00:00:00:01\n", "02:00:00:00:00:-1"}) {
        EXPECT_EQ(quillon.change("enp1s0", address), invalidAddress) << address;
    }
    EXPECT_THAT(polkit.questions(), IsEmpty());
}

TEST_F(RefusalTest, refusesWhenPolkitIsAbsent)
{
    outputOf("rm -f /usr/share/dbus-1/system-services/org.freedesktop.PolicyKit1.service");
    reloadBus();
    ASSERT_FALSE(quillon.hasOwner("org.freedesktop.PolicyKit1"));
    EXPECT_EQ(quillon.change("enp1s0", newAddress), notAuthorized);
    EXPECT_EQ(BusClient{"root"}.uninstall(), notAuthorized);
    EXPECT_FALSE(quillon.hasOwner("org.freedesktop.PolicyKit1"));
}

TEST_F(RefusalTest, refusesWhenPolkitFailsOrIsNotUnderstood)
{
    for (auto answer :
        {FakePolkit::Answer::Error, FakePolkit::Answer::Nonsense, FakePolkit::Answer::No}) {
        FakePolkit polkit{always(answer)};
        EXPECT_EQ(quillon.change("enp1s0", newAddress), notAuthorized);
        EXPECT_EQ(polkit.questions().size(), 1U);
    }
}

TEST_F(RefusalTest, refusesWhenPolkitDiesDuringThePrompt)
{
    auto polkit = std::make_unique<FakePolkit>(always(FakePolkit::Answer::LeaveOpen));
    quillon.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit->questions().size() == 1; }));
    polkit.reset();
    EXPECT_TRUE(waitUntil([&] { return quillon.answers()[notAuthorized] == 1; }));
}

TEST_F(RefusalTest, doesNothingForACallerWhoVanishedDuringThePrompt)
{
    FakePolkit polkit{always(FakePolkit::Answer::LeaveOpen)};
    auto caller = std::make_unique<BusClient>("quillon");
    caller->changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    caller.reset();
    // The prompt is taken away, and a yes that comes all the same changes nothing.
    EXPECT_TRUE(waitUntil([&] { return !polkit.cancelled().empty(); }));
    EXPECT_THAT(polkit.cancelled(), ElementsAre(polkit.questions().at(0).cancellation));
    polkit.openQuestionsAreGranted();
    EXPECT_EQ(mallory.version(), "2.0");
    EXPECT_EQ(kernelAddress("enp1s0"), original);
}

TEST_F(RefusalTest, takesTheRealPromptAwayWhenItsCallerVanishes)
{
    // A person who never answers sits in front of this process, and with it in front of its
    // clients.
    outputOf("rm -f /etc/polkit-1/rules.d/10-sandbox.rules /tmp/agent.log /tmp/agent.ready");
    const auto agent =
        testData().toStdString() + "/../../tools/sandbox.d/sandbox-polkit-agent --pid " +
        std::to_string(getpid()) + " --log /tmp/agent.log --ready /tmp/agent.ready hang";
    outputOf(agent + " >/tmp/agent.out 2>&1 & ");
    ASSERT_TRUE(waitUntil([] { return run("test -e /tmp/agent.ready").exitCode == 0; }));
    auto caller = std::make_unique<BusClient>("mallory");
    caller->changeLater("enp1s0", newAddress);
    const auto log = [] { return run("cat /tmp/agent.log").output; };
    ASSERT_TRUE(waitUntil([&] { return log().find(contract::actionChange) != std::string::npos; }))
        << log();
    EXPECT_THAT(log(), HasSubstr("change the MAC address of enp1s0 to 02:11:22:33:44:55"));
    caller.reset();
    EXPECT_TRUE(waitUntil([&] { return log().find("cancelled") != std::string::npos; })) << log();
}

TEST_F(RefusalTest, leavesAnInterfaceAloneThatTookTheNameDuringThePrompt)
{
    FakePolkit polkit{always(FakePolkit::Answer::LeaveOpen)};
    const auto other = kernelAddress("enp2s0");
    quillon.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    outputOf("ip link set enp1s0 down; ip link set enp2s0 down; ip link set enp1s0 name asked0;"
             "ip link set enp2s0 name enp1s0");
    polkit.openQuestionsAreGranted();
    EXPECT_TRUE(
        waitUntil([&] { return quillon.answers()[contract::error::noSuchDevice.name] == 1; }));
    EXPECT_EQ(kernelAddress("enp1s0"), other);
    EXPECT_EQ(kernelAddress("asked0"), original);
    outputOf("ip link set enp1s0 name enp2s0; ip link set asked0 name enp1s0");
}

TEST_F(RefusalTest, asksNobodyAboutAnInterfaceThatIsNotThere)
{
    FakePolkit polkit{always(FakePolkit::Answer::Yes)};
    EXPECT_EQ(quillon.change("enp9s0", newAddress), contract::error::noSuchDevice.name);
    EXPECT_EQ(quillon.change("lo", newAddress), contract::error::unsupportedDevice.name);
    EXPECT_THAT(polkit.questions(), IsEmpty());
}

TEST_F(RefusalTest, givesEveryRequestANameThatNobodyCanGuessOrCancel)
{
    changeIsExpected = true;
    FakePolkit polkit{always(FakePolkit::Answer::LeaveOpen)};
    quillon.changeLater("enp1s0", newAddress);
    ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == 1; }));
    std::set<std::string> names{polkit.questions().at(0).cancellation};
    for (int i = 0; i < 8; ++i) {
        // Somebody else asks and leaves, again and again.
        auto other = std::make_unique<BusClient>("mallory");
        other->changeLater("enp1s0", "02:00:00:00:00:66");
        ASSERT_TRUE(waitUntil([&] { return polkit.questions().size() == names.size() + 1; }));
        names.insert(polkit.questions().back().cancellation);
        other.reset();
        ASSERT_TRUE(waitUntil([&] { return polkit.cancelled().size() == names.size() - 1; }));
    }
    EXPECT_EQ(names.size(), 9U);
    for (const auto &name : names) {
        EXPECT_TRUE(std::regex_match(name, std::regex{"quillon-[0-9a-f]{32}"})) << name;
    }
    // Of all these only quillon's own request is still open.
    polkit.openQuestionsAreGranted();
    EXPECT_TRUE(waitUntil([&] { return quillon.answers()[BusClient::done] == 1; }));
    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
}

TEST_F(RefusalTest, staysSmallAndServesOthersDuringAFlood)
{
    changeIsExpected = true;
    std::set<std::string> quillons{quillon.uniqueName()};
    FakePolkit polkit{[&](const FakePolkit::Question &question) {
        return quillons.count(question.subject.at("name")) != 0 ? FakePolkit::Answer::Yes
                                                                : FakePolkit::Answer::LeaveOpen;
    }};
    const auto helper = quillon.processOf(quillon.endpoint());
    std::vector<std::unique_ptr<BusClient>> flood;
    constexpr int connections = 20;
    constexpr int requests = 250;
    // The bus refuses some by itself, when too many of a connection's calls are without an answer.
    const auto refused = [&] {
        int count = 0;
        for (const auto &client : flood) {
            count += client->answers()[tooManyRequests];
            count += client->answers()["org.freedesktop.DBus.Error.LimitsExceeded"];
        }
        return count;
    };
    for (int i = 0; i < connections; ++i) {
        flood.push_back(std::make_unique<BusClient>("mallory"));
    }
    // A first round, so that what grows once has grown.
    for (const auto &client : flood) {
        for (int i = 0; i < 10; ++i) {
            client->changeLater("enp1s0", newAddress);
        }
    }
    constexpr int mallorysShare = 8;
    ASSERT_TRUE(waitUntil([&] { return refused() == connections * 10 - mallorysShare; }))
        << refused();
    const auto before = memoryOf(helper);
    for (const auto &client : flood) {
        for (int i = 0; i < requests; ++i) {
            client->changeLater("enp1s0", newAddress);
        }
    }
    ASSERT_TRUE(waitUntil([&] {
        return refused() == connections * (10 + requests) - mallorysShare;
    })) << refused();
    EXPECT_LT(memoryOf(helper) - before, 1024);
    EXPECT_EQ(polkit.questions().size(), std::size_t{mallorysShare});
    EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    EXPECT_EQ(quillon.processOf(contract::helperName), helper);
}

TEST_F(RefusalTest, cannotBeReplacedOnTheBus)
{
    EXPECT_EQ(run("runuser -u mallory -- gdbus call --system --dest org.freedesktop.DBus "
                  "--object-path / --method org.freedesktop.DBus.RequestName "
                  "com.orvandel.Quillon4HelperTool 0")
                  .exitCode,
        1);
}

TEST_F(RefusalTest, offersNothingElseOnTheBus)
{
    EXPECT_THAT(mallory.call(contract::helperName, contract::helper::path,
                    "org.freedesktop.DBus.Properties", "GetAll"),
        "org.freedesktop.DBus.Error.AccessDenied");
    EXPECT_THAT(mallory.call(contract::helperName, contract::helper::path,
                    "org.freedesktop.DBus.Introspectable", "Introspect"),
        "org.freedesktop.DBus.Error.AccessDenied");
    EXPECT_THAT(mallory.call(contract::helperName, contract::helper::path,
                    "org.freedesktop.DBus.Peer", "Ping"),
        "org.freedesktop.DBus.Error.AccessDenied");
    EXPECT_THAT(mallory.call(contract::helperName, contract::helper::path,
                    "org.freedesktop.DBus.ObjectManager", "GetManagedObjects"),
        "org.freedesktop.DBus.Error.AccessDenied");
    for (const char *path : {"/", "/com", "/com/orvandel/Quillon4HelperTool/Removal"}) {
        EXPECT_THAT(mallory.call(contract::helperName, path, contract::helper::interface,
                        contract::helper::getVersion.name),
            "org.freedesktop.DBus.Error.AccessDenied")
            << path;
    }
}

} // namespace
} // namespace quillon::test
