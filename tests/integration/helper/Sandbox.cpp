// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/helper/Sandbox.h"

#include "Places.h"
#include "contract/Validation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <net/if.h>
#include <pwd.h>
#include <sstream>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {

CommandResult run(const std::string &command)
{
    CommandResult result;
    FILE *pipe = popen(("exec 2>&1; " + command).c_str(), "r");
    std::array<char, 4096> buffer{};
    std::size_t count = 0;
    while ((count = fread(buffer.data(), 1, buffer.size(), pipe)) > 0) {
        result.output.append(buffer.data(), count);
    }
    const int status = pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

std::string outputOf(const std::string &command)
{
    const auto result = run(command);
    EXPECT_EQ(result.exitCode, 0) << command << '\n' << result.output;
    return result.output;
}

uid_t userId(const std::string &name)
{
    const passwd *entry = getpwnam(name.c_str());
    return entry == nullptr ? static_cast<uid_t>(-1) : entry->pw_uid;
}

std::string kernelAddress(const std::string &device)
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq request{};
    std::strncpy(request.ifr_name, device.c_str(), IFNAMSIZ - 1);
    const int status = ioctl(socket, SIOCGIFHWADDR, &request);
    close(socket);
    if (status != 0) {
        return "no such interface";
    }
    contract::LinkLayerAddress address{};
    std::memcpy(address.data(), request.ifr_hwaddr.sa_data, address.size());
    return contract::addressText(address);
}

std::vector<std::string> installedThings()
{
    // The sandbox keeps its own copies and logs under /run.
    std::istringstream lines{outputOf(
        "find /etc /usr/local /usr/share/dbus-1 /usr/share/polkit-1 /usr/lib/systemd /usr/libexec "
        "/run /tmp "
        "-path /run/quillon-sandbox -prune -o -printf '%p %y %m %U:%G\\n' 2>/dev/null | sort")};
    std::vector<std::string> things;
    for (std::string line; std::getline(lines, line);) {
        things.push_back(line);
    }
    return things;
}

std::string builtTool()
{
    return quillon::test::buildFolder().toStdString() + "/helper/Quillon4HelperTool";
}

void startAsTheUnit(const std::string &activation, const std::string &unit)
{
    outputOf(std::string{"sed -i 's|^Exec=.*|Exec="} + QUILLON_AS_THE_UNIT + ' ' + unit +
             "|' /usr/local/share/dbus-1/system-services/" + activation);
    reloadBus();
}

void reloadBus()
{
    outputOf("gdbus call --system --dest org.freedesktop.DBus --object-path / "
             "--method org.freedesktop.DBus.ReloadConfig");
}

void openTheBus()
{
    std::ofstream{"/etc/dbus-1/system.d/zz-open.conf"}
        << "<!DOCTYPE busconfig PUBLIC '-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN' "
           "'http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd'><busconfig>"
           "<policy context='mandatory'><allow send_destination='*' eavesdrop='true'/>"
           "</policy></busconfig>";
    reloadBus();
}

namespace {

/// Every test of this program meets the helper as the service manager would start it, but those
/// that install it anew.
class AsTheUnit : public testing::Environment
{
    void SetUp() override
    {
        startAsTheUnit("com.orvandel.Quillon4HelperTool.service",
            "/etc/systemd/system/quillon4-helper.service");
    }
};

const auto *const asTheUnit = testing::AddGlobalTestEnvironment(new AsTheUnit);

} // namespace

} // namespace quillon::test
