// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Installation.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A small system in a folder of its own, in which the test's user stands for root.
class InstallationTest : public testing::Test
{
protected:
    InstallationTest()
    {
        std::string name = fs::temp_directory_path() / "quillon-installation-XXXXXX";
        root = mkdtemp(name.data());
        for (const char *folder : {"/usr/local/share", "/etc/dbus-1/system.d",
                 "/etc/systemd/system", "/usr/share/polkit-1/actions", "/usr/lib/systemd/system"}) {
            makeFolders(root + folder);
        }
        write("/tool", "the program");
        layout = helperLayout();
    }
    ~InstallationTest() override { fs::remove_all(root); }

    static void makeFolders(const fs::path &path)
    {
        if (!fs::exists(path)) {
            makeFolders(path.parent_path());
            mkdir(path.c_str(), 0755);
            chmod(path.c_str(), 0755);
        }
    }
    void write(const std::string &path, const std::string &text) const
    {
        makeFolders(fs::path{root + path}.parent_path());
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
        for (const auto &entry : fs::recursive_directory_iterator(root)) {
            struct stat status{};
            lstat(entry.path().c_str(), &status);
            const auto path = entry.path().string().substr(root.size());
            lines.push_back(path + ' ' + std::to_string(status.st_mode) + ' ' +
                            (S_ISREG(status.st_mode) ? read(path) : std::string{}));
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }
    Installation installation() const { return {root, layout, geteuid(), getegid()}; }
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
};

TEST_F(InstallationTest, putsTheProgramAndItsFilesInPlace)
{
    ASSERT_EQ(messageOf(install()), "done");
    EXPECT_EQ(read(tool), "the program");
    EXPECT_THAT(read(unit), HasSubstr(std::string{"ExecStart="} + tool + '\n'));
    EXPECT_THAT(
        read("/usr/local/share/dbus-1/system-services/com.orvandel.Quillon4HelperTool.service"),
        HasSubstr(std::string{"Exec="} + tool + '\n'));
    EXPECT_THAT(read(policy), HasSubstr(tool));
    EXPECT_THAT(
        read("/etc/dbus-1/system.d/com.orvandel.Quillon4HelperTool.conf"), HasSubstr("busconfig"));
    struct stat status{};
    stat((root + tool).c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0755U);
    stat((root + unit).c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0644U);
}

TEST_F(InstallationTest, andItsRemovalLeaveNothingBehind)
{
    const auto before = listing();
    ASSERT_EQ(messageOf(install()), "done");
    ASSERT_NE(listing(), before);
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, removesOnlyFoldersThatItMade)
{
    makeFolders(root + "/usr/local/libexec");
    const auto before = listing();
    ASSERT_EQ(messageOf(install()), "done");
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, keepsAFolderThatIsInUseByOthersMeanwhile)
{
    ASSERT_EQ(messageOf(install()), "done");
    write("/usr/local/libexec/other", "another program");
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_EQ(read("/usr/local/libexec/other"), "another program");
    EXPECT_FALSE(fs::exists(root + "/usr/local/libexec/quillon4"));
}

TEST_F(InstallationTest, replacesAnOlderOneAndStillRemembersItsFolders)
{
    const auto before = listing();
    ASSERT_EQ(messageOf(install()), "done");
    write("/tool", "a newer program");
    ASSERT_EQ(messageOf(install()), "done");
    EXPECT_EQ(read(tool), "a newer program");
    EXPECT_FALSE(fs::exists(root + tool + ".new"));
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    write("/tool", "the program");
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, leavesARunningOlderProgramItsFile)
{
    ASSERT_EQ(messageOf(install()), "done");
    const Descriptor running{open((root + tool).c_str(), O_RDONLY)};
    write("/tool", "a newer program");
    ASSERT_EQ(messageOf(install()), "done");
    std::string text(11, ' ');
    ASSERT_EQ(::read(running.number(), text.data(), text.size()), 11);
    EXPECT_EQ(text, "the program");
}

TEST_F(InstallationTest, cleansUpAfterOneThatWasKilled)
{
    const auto before = listing();
    write(std::string{unit} + ".new", "half");
    ASSERT_EQ(messageOf(install()), "done");
    EXPECT_THAT(read(unit), HasSubstr("ExecStart="));
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, thatIsNotThereIsRemovedAlready)
{
    const auto before = listing();
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, refusesAFolderThatOthersCanWrite)
{
    for (const char *folder :
        {"/usr/local", "/etc/dbus-1/system.d", "/usr/share/polkit-1", "/etc"}) {
        for (mode_t mode : {mode_t{0775}, mode_t{0757}}) {
            chmod((root + folder).c_str(), mode);
            const auto before = listing();
            EXPECT_THAT(messageOf(install()), HasSubstr("InstallFailed: ")) << folder;
            EXPECT_THAT(messageOf(install()),
                HasSubstr(std::string{folder} + " is writable by other users"))
                << folder;
            EXPECT_EQ(listing(), before);
            chmod((root + folder).c_str(), 0755);
        }
    }
}

TEST_F(InstallationTest, refusesAFolderThatIsALink)
{
    makeFolders(root + "/home/mallory/libexec");
    fs::create_directory_symlink(root + "/home/mallory/libexec", root + "/usr/local/libexec");
    const auto before = listing();
    EXPECT_THAT(messageOf(install()), HasSubstr("/usr/local/libexec is not a folder"));
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, refusesAFolderOfSomebodyElse)
{
    const auto before = listing();
    const Descriptor program{open((root + "/tool").c_str(), O_RDONLY)};
    const auto outcome =
        Installation{root, layout, geteuid() + 1, getegid()}.install(program.number());
    EXPECT_THAT(messageOf(outcome), HasSubstr("belongs to another user"));
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, refusesToReplaceALinkOrAFolderInAFilesPlace)
{
    write("/home/mallory/target", "precious");
    fs::create_symlink(root + "/home/mallory/target", root + policy);
    const auto before = listing();
    EXPECT_THAT(messageOf(install()), HasSubstr("refusing to replace it"));
    EXPECT_EQ(listing(), before);
    fs::remove(root + policy);
    makeFolders(root + policy);
    EXPECT_THAT(messageOf(install()), HasSubstr("refusing to replace it"));
}

TEST_F(InstallationTest, thatFailsHalfwayOverAnOlderOneLeavesTheOlderOne)
{
    ASSERT_EQ(messageOf(install()), "done");
    const auto before = listing();
    write("/tool", "");
    EXPECT_THAT(messageOf(install()), HasSubstr("InstallFailed"));
    write("/tool", "the program");
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, ofAPackageIsNotRemoved)
{
    write(layout.packagedTool, "packaged");
    write(layout.packagedUnit, "packaged");
    write(policy, "packaged");
    const auto before = listing();
    EXPECT_TRUE(installation().isPackaged());
    EXPECT_THAT(messageOf(installation().uninstall()), HasSubstr("OwnedByPackage"));
    EXPECT_THAT(messageOf(installation().uninstall()), HasSubstr("remove that package"));
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, besideAPackageLeavesThePackagesFilesWhenItIsRemoved)
{
    ASSERT_EQ(messageOf(install()), "done");
    write(layout.packagedTool, "packaged");
    write(layout.packagedUnit, "packaged");
    write(policy, "packaged");
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_EQ(read(policy), "packaged");
    EXPECT_FALSE(fs::exists(root + tool));
    EXPECT_FALSE(fs::exists(root + unit));
}

TEST_F(InstallationTest, isRemovedEntirelyOrNotAtAll)
{
    ASSERT_EQ(messageOf(install()), "done");
    chmod((root + "/usr/share/polkit-1").c_str(), 0777);
    const auto before = listing();
    EXPECT_THAT(messageOf(installation().uninstall()), HasSubstr("UninstallFailed"));
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, believesNoRecordThatNamesOtherFolders)
{
    ASSERT_EQ(messageOf(install()), "done");
    makeFolders(root + "/srv/empty");
    write("/usr/local/libexec/quillon4/folders", "#\n/srv/empty\n/usr/local/libexec/quillon4\n");
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_TRUE(fs::exists(root + "/srv/empty"));
}

} // namespace
} // namespace quillon
