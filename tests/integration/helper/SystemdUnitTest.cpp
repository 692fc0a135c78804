// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The service manager's restrictions are narrow, but leave the helper what it needs.
#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using test::BusClient;
using test::installedThings;
using test::kernelAddress;
using test::outputOf;
using test::waitUntil;
using testing::HasSubstr;

constexpr char newAddress[] = "02:11:22:33:44:55";
constexpr char activation[] =
    "/usr/local/share/dbus-1/system-services/com.orvandel.Quillon4HelperTool.service";

class SystemdUnitTest : public testing::Test
{
protected:
    /// From now on the bus starts the helper as the service manager would for `unit`.
    static void restrictTo(const std::string &unit)
    {
        outputOf(std::string{"sed -i 's|^Exec=.*|Exec="} + QUILLON_AS_THE_UNIT + ' ' + unit +
                 "|' " + activation);
        test::reloadBus();
    }
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
        EXPECT_THAT(status, HasSubstr("CapEff:\t0000000000001000\n"));
        EXPECT_THAT(status, HasSubstr("CapBnd:\t0000000000001000\n"));
    }

    BusClient quillon{"quillon"};
};

TEST_F(SystemdUnitTest, changesAddressesAndCanRemoveItself)
{
    outputOf(test::builtTool() + " uninstall");
    const auto clean = installedThings();
    outputOf(test::builtTool() + " install");
    restrictTo("/etc/systemd/system/quillon4-helper.service");
    expectThatItWorks();
    EXPECT_EQ(BusClient{"root"}.uninstall(), BusClient::done);
    EXPECT_TRUE(waitUntil([this] { return !quillon.hasOwner(contract::helperName); }));
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(SystemdUnitTest, ofThePackageChangesAddressesAndCanWriteNothing)
{
    const auto unit = std::string{QUILLON_BUILD} + "/data/helper/packaged/quillon4-helper.service";
    // The package's unit, with the program where this sandbox has it.
    outputOf("sed 's|^ExecStart=.*|ExecStart=" + std::string{test::installedTool} + "|' " + unit +
             " >/tmp/unit");
    restrictTo("/tmp/unit");
    expectThatItWorks();
    const auto before = installedThings();
    EXPECT_EQ(BusClient{"root"}.uninstall(), contract::error::uninstallFailed.name);
    EXPECT_EQ(installedThings(), before);
}

} // namespace
} // namespace quillon
