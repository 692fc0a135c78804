// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage:
//   Quillon4HelperTool            serves on the system bus; the bus or systemd starts it
//   Quillon4HelperTool install    puts this very program and what it needs into the system
//   Quillon4HelperTool uninstall  takes it away again
//   Quillon4HelperTool remove-on-request   the same for a helper that asks; the bus starts it
// Exit codes: 0 done, 1 failed (the reason is on standard error), 2 wrong use, 3 without the
// rights.
#include "helper/HelperDaemon.h"
#include "helper/Installation.h"
#include "helper/Log.h"
#include "helper/NetlinkKernelLink.h"
#include "helper/Privileges.h"
#include "helper/Removal.h"
#include "helper/RunningProgram.h"
#include "helper/SystemAccounts.h"
#include "helper/SystemBus.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <string>
#include <string_view>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace quillon;

constexpr std::chrono::seconds idlePeriod{30};
constexpr int largeAllocation = 64 * 1024;
/// The helper asks for its removal as soon as the bus has started the process that removes it.
constexpr std::chrono::seconds removalPeriod{30};

constexpr int exitDone = 0;
constexpr int exitFailed = 1;
constexpr int exitWrongUse = 2;
constexpr int exitWithoutRights = 3;

constexpr char noBus[] = "ended: there is no system bus";

constexpr char installMode[] = "install";
constexpr char uninstallMode[] = "uninstall";
constexpr char removalMode[] = "remove-on-request";

// Debian's group of those who may install programs for the whole machine.
constexpr char localPrograms[] = "staff";

/// The program that is running now: what lies at its path may have been exchanged meanwhile.
Descriptor ownProgram()
{
    return Descriptor{open("/proc/self/exe", O_RDONLY | O_CLOEXEC)};
}

Installation systemInstallation()
{
    return Installation{"/", helperLayout(), 0, 0, groupWithoutMembers(localPrograms)};
}

Refusal ownedByPackage()
{
    return {contract::error::ownedByPackage,
        "The helper was installed by a package of the distribution: remove that package."};
}

Outcome uninstallFiles()
{
    auto installation = systemInstallation();
    if (installation.isPackagedTool(ownProgram().number())) {
        return ownedByPackage();
    }
    return installation.uninstall();
}

void announce()
{
    if (const auto bus = connectToSystemBus()) {
        reloadBus(*bus);
        reloadServiceManager(*bus);
    } else {
        logLine("No system bus is running; it will find the files when it starts.");
    }
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

/// A package has brought its own helper, which ours would hide for ever. Returns only when the
/// package's cannot be executed.
void stepAside(const std::string &packagedTool)
{
    logLine(
        "The distribution's package has brought the helper: the self-installed one is removed.");
    if (const auto outcome = requestRemoval()) {
        logLine("It could not be removed: " + harmless(outcome->message));
    }
    logLine(continueAs(packagedTool.c_str()));
}

int serve()
{
    const auto layout = helperLayout();
    const Installation installation{"/", layout, 0, 0};
    const bool isPackages = installation.isPackagedTool(ownProgram().number());
    if (const auto problem = keepNetworkAdministrationOnly()) {
        logLine(*problem);
        return exitFailed;
    }
    if (installation.isPackaged() && !isPackages) {
        stepAside(layout.packagedTool);
    }
    // A large message's memory goes back to the system with the message.
    mallopt(M_MMAP_THRESHOLD, largeAllocation);
    const auto uninstallation = [isPackages] {
        return isPackages ? Outcome{ownedByPackage()} : requestRemoval();
    };
    const int stop = stopSignals();
    const auto bus = connectToSystemBus();
    if (!bus) {
        logLine(noBus);
        return exitFailed;
    }
    const RunningProgram program;
    const auto superseded = [&] {
        return program.isReplaced() || (!isPackages && installation.isPackaged());
    };
    NetlinkKernelLink kernel;
    if (!HelperDaemon{*bus, kernel, uninstallation, superseded, idlePeriod}.run(stop)) {
        logLine("ended: the bus has gone away, or does not give the name");
        return exitFailed;
    }
    return exitDone;
}

int removeOnRequest()
{
    const auto bus = connectToSystemBus();
    if (!bus) {
        logLine(noBus);
        return exitFailed;
    }
    RemovalService removal{*bus, [] {
                               auto outcome = uninstallFiles();
                               if (const auto own = connectToSystemBus(); own && !outcome) {
                                   reloadBus(*own);
                               }
                               return outcome;
                           }};
    if (!removal.serve(removalPeriod)) {
        return exitFailed;
    }
    // A unit that runs while the service manager forgets it would leave its root folder behind.
    waitUntilGone(*bus, contract::helperName, removalPeriod);
    reloadServiceManager(*bus);
    return exitDone;
}

int finishInstallation(const Outcome &outcome, const char *success)
{
    if (outcome) {
        logLine(outcome->message);
        return exitFailed;
    }
    announce();
    logLine(success);
    return exitDone;
}

/// The package's helper is the one to use: what was installed beside it goes.
int yieldToPackage(Installation &installation)
{
    if (!installation.isInstalled()) {
        return finishInstallation(
            std::nullopt, "The distribution's package has installed the helper already.");
    }
    return finishInstallation(installation.uninstall(),
        "The distribution's package has installed the helper: the self-installed one is removed.");
}

int install()
{
    auto installation = systemInstallation();
    const auto tool = ownProgram();
    if (!tool.isOpen()) {
        logLine("The running program cannot be read.");
        return exitFailed;
    }
    const bool isPackages = installation.isPackaged() || installation.isPackagedTool(tool.number());
    if (const auto obstacle = isPackages ? std::string{} : installation.obstacle();
        !obstacle.empty()) {
        logLine(obstacle);
        return exitFailed;
    }
    // The bus reads its policy, which names the user, only after that. A package that was not
    // installed by a package manager has no user yet either.
    if (const auto problem = makeHelperAccount(helperLayout().accountLine); !problem.empty()) {
        logLine(problem);
        return exitFailed;
    }
    if (isPackages) {
        return yieldToPackage(installation);
    }
    return finishInstallation(installation.install(tool.number()), "The helper is installed.");
}

} // namespace

int main(int argc, char **argv)
{
    // A log that nobody reads is no reason to fail, and no file of ours may be taken for it.
    std::signal(SIGPIPE, SIG_IGN);
    if (const auto problem = openStandardDescriptors()) {
        logLine(*problem);
        return exitFailed;
    }
    static constexpr std::array<std::string_view, 3> modes{installMode, uninstallMode, removalMode};
    const std::string_view mode = argc == 2 ? argv[1] : "";
    if (argc > 2 || (argc == 2 && std::find(modes.begin(), modes.end(), mode) == modes.end())) {
        logLine("usage: Quillon4HelperTool [install | uninstall | remove-on-request]");
        return exitWrongUse;
    }
    const bool isRoot = getuid() == 0 && geteuid() == 0;
    if (mode.empty() ? !mayAdministerNetworks() : !isRoot) {
        logLine("Quillon4HelperTool must be run as root.");
        return exitWithoutRights;
    }
    if (mode.empty()) {
        return serve();
    }
    clearenv();
    umask(022);
    if (mode == removalMode) {
        return removeOnRequest();
    }
    return mode == installMode ? install()
                               : finishInstallation(uninstallFiles(), "The helper is removed.");
}
