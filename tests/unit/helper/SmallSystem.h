// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/Installation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace quillon::test {

/// A small system in a folder of its own, in which the test's user stands for root.
class SmallSystem : public testing::Test
{
protected:
    SmallSystem()
    {
        // In memory where it can be: an installation waits for the disk many times.
        const std::filesystem::path memory = "/dev/shm";
        std::string name =
            (access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path()) /
            "quillon-installation-XXXXXX";
        root = mkdtemp(name.data());
        for (const char *folder : {"/usr/local/share", "/etc/dbus-1/system.d",
                 "/etc/systemd/system", "/usr/share/polkit-1/actions", "/usr/lib/systemd/system"}) {
            makeFolders(root + folder);
        }
        write("/tool", "the program");
        layout = helperLayout();
    }
    ~SmallSystem() override { std::filesystem::remove_all(root); }

    static void makeFolders(const std::filesystem::path &path)
    {
        if (!std::filesystem::exists(path)) {
            makeFolders(path.parent_path());
            mkdir(path.c_str(), 0755);
            chmod(path.c_str(), 0755);
        }
    }
    void write(const std::string &path, const std::string &text) const
    {
        makeFolders(std::filesystem::path{root + path}.parent_path());
        std::ofstream{root + path} << text;
    }
    std::string read(const std::string &path) const
    {
        std::ifstream file{root + path};
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }
    /// Every entry with its kind, rights and content.
    std::vector<std::string> listing() const
    {
        std::vector<std::string> lines;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(root)) {
            struct stat status{};
            lstat(entry.path().c_str(), &status);
            const auto path = entry.path().string().substr(root.size());
            lines.push_back(path + ' ' + std::to_string(status.st_mode) + ' ' +
                            (S_ISREG(status.st_mode) ? read(path) : std::string{}));
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }
    Installation installation() const { return {root, layout, geteuid(), getegid(), sharedGroup}; }
    Outcome install() const
    {
        const Descriptor program{open((root + "/tool").c_str(), O_RDONLY)};
        return installation().install(program.number());
    }
    static std::string messageOf(const Outcome &outcome)
    {
        return outcome ? std::string{outcome->error.name} + ": " + outcome->message : "done";
    }

    static constexpr char tool[] = "/usr/local/libexec/quillon4/Quillon4HelperTool";
    static constexpr char unit[] = "/etc/systemd/system/quillon4-helper.service";
    static constexpr char policy[] = "/usr/share/polkit-1/actions/com.orvandel.quillon4.policy";

    std::string root;
    InstallationLayout layout;
    std::optional<gid_t> sharedGroup;
};

} // namespace quillon::test
