// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace quillon::test {

/// What a command did.
struct CommandResult
{
    int exitCode = -1;
    /// Standard output and error.
    std::string output;
};

/// Runs a shell command in the sandbox, as root.
CommandResult run(const std::string &command);

/// Runs it and returns what it printed, failing the test when it failed.
std::string outputOf(const std::string &command);

uid_t userId(const std::string &name);

/// The address as the kernel says (SIOCGIFHWADDR), "02:00:00:00:00:09".
std::string kernelAddress(const std::string &device);

/// Every entry in the folders where software is installed: path, kind, rights, owner.
std::vector<std::string> installedThings();

/// No interface of the sandbox has it at the beginning.
inline constexpr char newAddress[] = "02:11:22:33:44:55";

/// Where the helper is after its installation, and in the build.
inline constexpr char installedTool[] = "/usr/local/libexec/quillon4/Quillon4HelperTool";
std::string builtTool();

/// From now on the bus starts the program of the self-installed activation file as the service
/// manager would for `unit` (a path).
void startAsTheUnit(const std::string &activation, const std::string &unit);

/// Lets the bus read its folders again.
void reloadBus();

/// From now on the bus lets everything to everybody through.
void openTheBus();

} // namespace quillon::test
