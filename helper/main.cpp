// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage:
//   Quillon4HelperTool            serves on the system bus; the bus or systemd starts it
//   Quillon4HelperTool install    puts this very program and what it needs into the system
//   Quillon4HelperTool uninstall  takes it away again
// Exit codes: 0 done, 1 failed (the reason is on standard error), 2 wrong use, 3 not root.
#include "helper/HelperDaemon.h"
#include "helper/Installation.h"
#include "helper/Log.h"
#include "helper/NetlinkKernelLink.h"
#include "helper/Privileges.h"
#include "helper/SystemBus.h"

#include <chrono>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace quillon;

constexpr std::chrono::seconds idlePeriod{30};

constexpr int exitDone = 0;
constexpr int exitFailed = 1;
constexpr int exitWrongUse = 2;
constexpr int exitNotRoot = 3;

/// The program that is running now: what lies at its path may have been exchanged meanwhile.
Descriptor ownProgram()
{
    return Descriptor{open("/proc/self/exe", O_RDONLY | O_CLOEXEC)};
}

Installation systemInstallation()
{
    return Installation{"/", helperLayout(), 0, 0};
}

Outcome uninstallFiles()
{
    auto installation = systemInstallation();
    if (installation.isPackagedTool(ownProgram().number())) {
        return Refusal{contract::error::ownedByPackage,
            "The helper was installed by a package of the distribution: remove that package."};
    }
    return installation.uninstall();
}

/// Readable when the helper is asked to stop.
int stopSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

int serve()
{
    if (const auto problem = keepNetworkAdministrationOnly()) {
        logLine(*problem);
        return exitFailed;
    }
    const int stop = stopSignals();
    try {
        const auto connection = connectToSystemBus();
        NetlinkKernelLink kernel;
        HelperDaemon daemon{*connection, kernel, uninstallFiles, idlePeriod};
        daemon.run(stop);
        if (daemon.isUninstalled()) {
            announceChangedFiles(*connection);
        }
    } catch (const std::exception &error) {
        logLine(std::string{"ended: "} + harmless(error.what()));
        return exitFailed;
    }
    return exitDone;
}

int finishInstallation(const Outcome &outcome, const char *success)
{
    if (outcome) {
        logLine(outcome->message);
        return exitFailed;
    }
    try {
        announceChangedFiles(*connectToSystemBus());
    } catch (const sdbus::Error &) {
        logLine("No system bus is running; it will find the files when it starts.");
    }
    logLine(success);
    return exitDone;
}

int install()
{
    auto installation = systemInstallation();
    const auto tool = ownProgram();
    if (installation.isPackaged() || installation.isPackagedTool(tool.number())) {
        logLine("The distribution's package has installed the helper already.");
        return exitDone;
    }
    if (!tool.isOpen()) {
        logLine("The running program cannot be read.");
        return exitFailed;
    }
    return finishInstallation(installation.install(tool.number()), "The helper is installed.");
}

} // namespace

int main(int argc, char **argv)
{
    const std::string_view mode = argc == 2 ? argv[1] : "";
    if (argc > 2 || (argc == 2 && mode != "install" && mode != "uninstall")) {
        logLine("usage: Quillon4HelperTool [install | uninstall]");
        return exitWrongUse;
    }
    if (getuid() != 0 || geteuid() != 0) {
        logLine("Quillon4HelperTool must be run as root.");
        return exitNotRoot;
    }
    if (mode.empty()) {
        return serve();
    }
    clearenv();
    umask(022);
    return mode == "install" ? install()
                             : finishInstallation(uninstallFiles(), "The helper is removed.");
}
