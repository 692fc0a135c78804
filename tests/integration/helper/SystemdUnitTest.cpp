// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The service manager's restrictions are narrow, but leave the helper what it needs.
#include "Places.h"
#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/RawBus.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

#include <regex>

namespace quillon::test {
namespace {

using testing::HasSubstr;

const std::string units = "/etc/systemd/system/";

class SystemdUnitTest : public testing::Test
{
protected:
    std::string statusOf(const std::string &name)
    {
        return outputOf("cat /proc/" + std::to_string(quillon.processOf(name)) + "/status");
    }
    void expectThatItWorks()
    {
        EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
        EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
        const auto routes = outputOf("ip route show dev enp1s0");
        EXPECT_EQ(quillon.change("enp1s0", "02:11:22:33:44:66", true), BusClient::done);
        EXPECT_EQ(kernelAddress("enp1s0"), "02:11:22:33:44:66");
        EXPECT_EQ(outputOf("ip route show dev enp1s0"), routes);
        EXPECT_EQ(
            BusClient{"mallory"}.change("enp1s0", newAddress), contract::error::notAuthorized.name);
        const auto status = statusOf(contract::helperName);
        EXPECT_THAT(status, HasSubstr("Seccomp:\t2\n"));
        const auto user = std::to_string(userId("quillon4-helper"));
        EXPECT_THAT(status, HasSubstr("Uid:\t" + user + '\t' + user + '\t' + user));
        EXPECT_THAT(status, HasSubstr("CapEff:\t0000000000001000\n"));
        EXPECT_THAT(status, HasSubstr("CapBnd:\t0000000000001000\n"));
        EXPECT_THAT(status, HasSubstr("CapAmb:\t0000000000000000\n"));
        expectARootFolderOfItsOwn();
    }

    void expectARootFolderOfItsOwn()
    {
        const auto process = "/proc/" + std::to_string(quillon.processOf(contract::helperName));
        const auto root = process + "/root";
        EXPECT_EQ(outputOf("ls " + root + '/'),
            outputOf("cd /tmp; test -e /lib64 && echo 'dev\nlib\nlib64\nproc\nrun\ntmp\nusr\nvar'"
                     " || echo 'dev\nlib\nproc\nrun\ntmp\nusr\nvar'"));
        EXPECT_EQ(outputOf("ls " + root + "/run"), "dbus\n");
        EXPECT_EQ(outputOf("grep -c ' / / ro' " + process + "/mountinfo"), "1\n");
        const auto limits = outputOf("cat " + process + "/limits");
        EXPECT_TRUE(std::regex_search(limits, std::regex{"Max open files +256 +256 "})) << limits;
    }

    BusClient quillon{"quillon"};
};

TEST_F(SystemdUnitTest, changesAddressesAndCanRemoveItself)
{
    outputOf(builtTool() + " uninstall");
    const auto clean = installedThings();
    outputOf(builtTool() + " install");
    startAsTheUnit("com.orvandel.Quillon4HelperTool.service", units + "quillon4-helper.service");
    startAsTheUnit("com.orvandel.Quillon4HelperTool.Removal.service",
        units + "quillon4-helper-removal.service");
    expectThatItWorks();
    EXPECT_EQ(BusClient{"root"}.uninstall(), BusClient::done);
    EXPECT_TRUE(waitUntil([this] { return !quillon.hasOwner(contract::helperName); }));
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(SystemdUnitTest, ofThePackageChangesAddresses)
{
    const auto unit = buildFolder().toStdString() + "/data/helper/packaged/quillon4-helper.service";
    // The package's unit, with the program where this sandbox has it.
    outputOf("sed 's|^ExecStart=.*|ExecStart=" + std::string{installedTool} + "|' " + unit +
             " >/tmp/unit");
    startAsTheUnit("com.orvandel.Quillon4HelperTool.service", "/tmp/unit");
    expectThatItWorks();
}

TEST_F(SystemdUnitTest, ofTheRemovalIsReachableForTheHelperAlone)
{
    startAsTheUnit("com.orvandel.Quillon4HelperTool.Removal.service",
        units + "quillon4-helper-removal.service");
    const auto before = installedThings();
    for (const char *user : {"mallory", "quillon", "polkitd"}) {
        EXPECT_EQ(BusClient{user}.call(contract::removalName, contract::removal::path,
                      contract::removal::interface, contract::removal::remove.name),
            "org.freedesktop.DBus.Error.AccessDenied")
            << user;
    }
    EXPECT_EQ(installedThings(), before);
}

TEST_F(SystemdUnitTest, ofTheRemovalIsKeptFromNobodyByWhoStartsItAndFloodsIt)
{
    startAsTheUnit("com.orvandel.Quillon4HelperTool.Removal.service",
        units + "quillon4-helper-removal.service");
    RawBus mallory{"mallory"};
    // The bus starts it for everybody, but lets nothing of them through to it.
    EXPECT_EQ(mallory.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                  "StartServiceByName",
                  [](sd_bus_message *message) {
                      sd_bus_message_append(message, "su", contract::removalName, 0U);
                  }),
        BusClient::done);
    ASSERT_TRUE(quillon.hasOwner(contract::removalName));
    constexpr int signals = 500;
    for (int i = 0; i < signals; ++i) {
        mallory.send(SD_BUS_MESSAGE_SIGNAL, contract::removalName, contract::removal::path,
            contract::removal::interface, contract::removal::remove.name);
    }
    std::vector<std::string> errors;
    EXPECT_TRUE(waitUntil([&] {
        const auto more = mallory.settle();
        errors.insert(errors.end(), more.begin(), more.end());
        return errors.size() == signals;
    })) << errors.size();
    EXPECT_THAT(errors, testing::Each("org.freedesktop.DBus.Error.AccessDenied"));
    EXPECT_EQ(BusClient{"root"}.uninstall(), BusClient::done);
}

} // namespace
} // namespace quillon::test
