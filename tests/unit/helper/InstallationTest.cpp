// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/helper/SmallSystem.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

using InstallationTest = test::SmallSystem;

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

TEST_F(InstallationTest, worksWhereAGroupMayInstallPrograms)
{
    // As Debian used to make it, root:staff 2775, with the test's own group for staff.
    for (const char *folder : {"/usr/local", "/usr/local/share"}) {
        chmod((root + folder).c_str(), 02775);
    }
    const auto before = listing();
    EXPECT_THAT(
        messageOf(install()), HasSubstr("/usr/local is writable by other users (the group"));
    EXPECT_EQ(listing(), before);
    sharedGroup = getegid();
    ASSERT_EQ(messageOf(install()), "done");
    struct stat status{};
    for (const char *made : {"/usr/local/libexec", "/usr/local/libexec/quillon4"}) {
        stat((root + made).c_str(), &status);
        EXPECT_EQ(status.st_mode & 07777U, 0755U) << made;
    }
    EXPECT_EQ(messageOf(installation().uninstall()), "done");
    EXPECT_EQ(listing(), before);
}

TEST_F(InstallationTest, letsThatGroupWriteNowhereElseAndEverybodyNowhere)
{
    sharedGroup = getegid();
    const struct
    {
        const char *folder;
        mode_t mode;
    } cases[] = {{"/etc/dbus-1/system.d", 02775}, {"/usr", 02775}, {"/usr/local", 02777}};
    for (const auto &attempt : cases) {
        chmod((root + attempt.folder).c_str(), attempt.mode);
        EXPECT_THAT(messageOf(install()),
            HasSubstr(std::string{attempt.folder} + " is writable by other users"));
        chmod((root + attempt.folder).c_str(), 0755);
    }
    ASSERT_EQ(messageOf(install()), "done");
}

TEST_F(InstallationTest, seesAnObstacleWithoutChangingAnything)
{
    const auto clean = listing();
    EXPECT_EQ(installation().obstacle(), "");
    EXPECT_EQ(listing(), clean);
    fs::create_symlink("/dev/null", root + unit);
    const auto masked = listing();
    EXPECT_THAT(installation().obstacle(), HasSubstr("refusing to replace it"));
    fs::remove(root + unit);
    chmod((root + "/usr/local").c_str(), 0777);
    EXPECT_THAT(installation().obstacle(), HasSubstr("/usr/local is writable by other users"));
    chmod((root + "/usr/local").c_str(), 0755);
    EXPECT_EQ(listing(), clean);
    EXPECT_NE(masked, clean);
}

TEST_F(InstallationTest, letsThatGroupWriteNowhereWhereAListNamesFurtherUsers)
{
    // user::rwx, user:12345:rwx, group::r-x, mask::rwx, other::r-x: shown like rwx of the group.
    struct Entry
    {
        std::uint16_t tag;
        std::uint16_t rights;
        std::uint32_t id;
    };
    struct
    {
        std::uint32_t version = 2;
        std::array<Entry, 5> entries{
            {{0x01, 7, ~0U}, {0x02, 7, 12345}, {0x04, 5, ~0U}, {0x10, 7, ~0U}, {0x20, 5, ~0U}}};
    } const list;
    sharedGroup = getegid();
    const auto folder = root + "/usr/local";
    ASSERT_EQ(setxattr(folder.c_str(), "system.posix_acl_access", &list, sizeof(list), 0), 0);
    struct stat status{};
    stat(folder.c_str(), &status);
    ASSERT_NE(status.st_mode & S_IWGRP, 0U);
    EXPECT_THAT(messageOf(install()), HasSubstr("/usr/local may be writable by other users"));
    removexattr(folder.c_str(), "system.posix_acl_access");
    EXPECT_EQ(messageOf(install()), "done");
}

TEST_F(InstallationTest, isPackagedToolByWhatTheFileIs)
{
    write(layout.packagedTool, "packaged");
    const Descriptor packaged{open((root + layout.packagedTool).c_str(), O_RDONLY)};
    const Descriptor other{open((root + "/tool").c_str(), O_RDONLY)};
    EXPECT_TRUE(installation().isPackagedTool(packaged.number()));
    EXPECT_FALSE(installation().isPackagedTool(other.number()));
}

TEST_F(InstallationTest, isThereAlsoWhenOnlyPartOfItIs)
{
    EXPECT_FALSE(installation().isInstalled());
    write(policy, "of a package");
    EXPECT_FALSE(installation().isInstalled());
    write(unit, "left over");
    EXPECT_TRUE(installation().isInstalled());
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
