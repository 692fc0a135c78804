// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Places.h"
#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/FakePolkit.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

#include <sys/mount.h>

namespace quillon::test {
namespace {

using testing::Contains;
using testing::HasSubstr;

/// The sandbox has installed the helper; these tests begin without it.
class InstallTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const auto folders = outputOf("grep ^/ /usr/local/libexec/quillon4/folders");
        outputOf(builtTool() + " uninstall");
        // Some releases come with it; these tests make it themselves.
        outputOf("rmdir --ignore-fail-on-non-empty /usr/local/libexec 2>/dev/null || true");
        // Otherwise what is "clean" here would not be.
        EXPECT_EQ(outputOf("ls -d $(echo '" + folders + "') 2>/dev/null || true"), "");
        clean = installedThings();
    }

    /// Somebody who asks so often that no idle period is ever over.
    static bool endsWhileAsked(pid_t helper, BusClient &stranger)
    {
        return waitUntil([&] {
            stranger.version();
            return run("test -e /proc/" + std::to_string(helper)).exitCode != 0;
        });
    }

    /// It ends with `exitCode` and says `text`; `things` are installed then.
    static void expectOutcome(const std::string &command, int exitCode, const std::string &text,
        const std::vector<std::string> &things)
    {
        const auto result = run(command);
        EXPECT_EQ(result.exitCode, exitCode) << command;
        EXPECT_THAT(result.output, HasSubstr(text)) << command;
        EXPECT_EQ(installedThings(), things) << command;
    }

    std::vector<std::string> clean;
};

TEST_F(InstallTest, leavesNothingBehindWhenItIsRemovedByHand)
{
    outputOf(builtTool() + " install");
    EXPECT_NE(installedThings(), clean);
    outputOf(builtTool() + " uninstall");
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(InstallTest, leavesNothingBehindWhenItIsRemovedOverTheBus)
{
    outputOf(builtTool() + " install");
    BusClient administrator{"root"};
    ASSERT_EQ(administrator.version(), "2.0");
    const auto helper = administrator.processOf(contract::helperName);
    EXPECT_EQ(administrator.uninstall(), BusClient::done);
    EXPECT_TRUE(waitUntil([&] { return !administrator.hasOwner(contract::helperName); }));
    EXPECT_TRUE(
        waitUntil([&] { return run("test -e /proc/" + std::to_string(helper)).exitCode != 0; }));
    EXPECT_EQ(installedThings(), clean);
    EXPECT_EQ(administrator.version(), "org.freedesktop.DBus.Error.ServiceUnknown");
}

TEST_F(InstallTest, doesItsWorkWhateverBecomesOfItsOutput)
{
    outputOf(builtTool() + " install");
    const auto installed = installedThings();
    const auto content = outputOf(std::string{"cat "} + installedTool + " | sha256sum");
    for (const std::string &output :
        {std::string{"<&- >&- 2>&-"}, std::string{"2>&-"}, std::string{"2>&1 | true"}}) {
        outputOf(builtTool() + " uninstall");
        const auto result = run("bash -o pipefail -c '" + builtTool() + " install " + output + "'");
        EXPECT_EQ(result.exitCode, 0) << output;
        EXPECT_EQ(installedThings(), installed) << output;
        EXPECT_EQ(outputOf(std::string{"cat "} + installedTool + " | sha256sum"), content);
    }
}

TEST_F(InstallTest, isUsableAtOnce)
{
    outputOf(builtTool() + " install");
    BusClient quillon{"quillon"};
    EXPECT_EQ(quillon.version(), "2.0");
    // polkit notices its new action by itself, some milliseconds later.
    EXPECT_TRUE(waitUntil(
        [&] { return quillon.change("enp1s0", "02:11:22:33:44:55") == BusClient::done; }));
}

TEST_F(InstallTest, overAnOlderOneTakesEffectWhileAStrangerKeepsAsking)
{
    outputOf(builtTool() + " install");
    BusClient stranger{"mallory"};
    for (const bool likeTheUnit : {false, true}) {
        if (likeTheUnit) {
            startAsTheUnit("com.orvandel.Quillon4HelperTool.service",
                "/etc/systemd/system/quillon4-helper.service");
        }
        ASSERT_EQ(stranger.version(), "2.0");
        const auto older = stranger.processOf(contract::helperName);
        outputOf(builtTool() + " install");
        EXPECT_TRUE(endsWhileAsked(older, stranger)) << likeTheUnit;
        EXPECT_EQ(stranger.version(), "2.0");
    }
    outputOf(builtTool() + " uninstall");
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(InstallTest, copiesTheProgramThatRunsAndNotWhatLiesInItsPlace)
{
    outputOf("cp " + builtTool() + " /tmp/tool");
    // The file is exchanged after the start: the shell holds the old one open and executes it.
    outputOf("exec 9</tmp/tool; rm /tmp/tool; echo evil >/tmp/tool; /proc/self/fd/9 install");
    EXPECT_EQ(outputOf("cmp " + builtTool() + ' ' + installedTool), "");
}

TEST_F(InstallTest, thatFailsAtTheFirstLookMakesNoUser)
{
    outputOf("sed -i /^quillon4-helper:/d /etc/passwd");
    outputOf("ln -s /dev/null /etc/systemd/system/quillon4-helper.service");
    const auto result = run(builtTool() + " install");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("refusing to replace it"));
    EXPECT_NE(run("grep ^quillon4-helper: /etc/passwd").exitCode, 0);
}

TEST_F(InstallTest, whoseFolderCannotBeRemovedSaysSoAndRemembersIt)
{
    const std::string folder = "/usr/local/libexec/quillon4";
    outputOf(builtTool() + " install");
    ASSERT_EQ(mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr), 0);
    const auto result = run(builtTool() + " uninstall");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr(folder + ": "));
    ASSERT_EQ(umount(folder.c_str()), 0);
    outputOf(builtTool() + " uninstall");
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(InstallTest, isRefusedToOrdinaryUsers)
{
    EXPECT_EQ(run("runuser -u mallory -- " + builtTool() + " install").exitCode, 3);
    EXPECT_EQ(run("runuser -u mallory -- " + builtTool() + " uninstall").exitCode, 3);
    EXPECT_EQ(run("runuser -u mallory -- " + builtTool()).exitCode, 3);
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(InstallTest, acceptsNoPathAndNoOption)
{
    for (const char *arguments : {"install /tmp", "--install", "install --prefix=/tmp", "/tmp",
             "''", "--help", "uninstall install", "serve"}) {
        EXPECT_EQ(run(builtTool() + ' ' + arguments).exitCode, 2) << arguments;
    }
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(InstallTest, goesIntoNoFolderThatAnOrdinaryUserControls)
{
    const struct
    {
        const char *preparation;
        const char *complaint;
        const char *undo;
    } cases[] = {
        {"install -d -o mallory /usr/local/libexec", "belongs to another user",
            "rmdir /usr/local/libexec"},
        {"install -d -m 0777 /usr/local/libexec", "writable by other users",
            "rmdir /usr/local/libexec"},
        {"install -d -o mallory /home/mallory/x; ln -s /home/mallory/x /usr/local/libexec",
            "symbolic links are not followed", "rm /usr/local/libexec; rmdir /home/mallory/x"},
        {"chown mallory /etc/dbus-1/system.d", "belongs to another user",
            "chown root /etc/dbus-1/system.d"},
        {"ln -s /home/mallory/p /usr/share/polkit-1/actions/com.orvandel.quillon4.policy",
            "refusing to replace it",
            "rm /usr/share/polkit-1/actions/com.orvandel.quillon4.policy"},
    };
    for (const auto &attempt : cases) {
        outputOf(attempt.preparation);
        const auto prepared = installedThings();
        const auto result = run(builtTool() + " install");
        EXPECT_EQ(result.exitCode, 1) << attempt.preparation;
        EXPECT_THAT(result.output, HasSubstr(attempt.complaint)) << attempt.preparation;
        EXPECT_EQ(installedThings(), prepared) << attempt.preparation;
        outputOf(attempt.undo);
        EXPECT_EQ(installedThings(), clean);
    }
}

TEST_F(InstallTest, worksWhereStaffMayInstallProgramsButNobodyIsStaff)
{
    const std::string shared = "/usr/local /usr/local/share";
    outputOf("chgrp staff " + shared + "; chmod 2775 " + shared);
    clean = installedThings();
    outputOf(builtTool() + " install");
    BusClient quillon{"quillon"};
    EXPECT_EQ(quillon.version(), "2.0");
    EXPECT_EQ(outputOf("find /usr/local/libexec -perm /022 ! -type l -o ! -group root"), "");
    EXPECT_EQ(BusClient{"root"}.uninstall(), BusClient::done);
    EXPECT_TRUE(waitUntil([&] { return !quillon.hasOwner(contract::helperName); }));
    EXPECT_EQ(installedThings(), clean);
}

TEST_F(InstallTest, refusesWhereSomebodyIsStaff)
{
    outputOf("chgrp staff /usr/local; chmod 2775 /usr/local");
    for (const char *membership : {"sed -i 's/^staff:.*/staff:x:50:mallory/' /etc/group",
             "sed -i 's/^staff:.*/staff:x:50:/' /etc/group;"
             "sed -i 's/^\\(mallory:x:[0-9]*\\):[0-9]*/\\1:50/' /etc/passwd"}) {
        outputOf(membership);
        clean = installedThings();
        expectOutcome(builtTool() + " install", 1,
            "/usr/local is writable by other users (the group staff)", clean);
    }
}

TEST_F(InstallTest, makesTheHelpersUserWhenThereIsNone)
{
    outputOf("sed -i /^quillon4-helper:/d /etc/passwd /etc/group /etc/shadow");
    outputOf(builtTool() + " install");
    EXPECT_THAT(outputOf("getent passwd quillon4-helper"), HasSubstr("nologin"));
    EXPECT_EQ(BusClient{"quillon"}.version(), "2.0");
}

TEST_F(InstallTest, saysSoWhenItsUserCannotBeMade)
{
    outputOf("sed -i /^quillon4-helper:/d /etc/passwd; mount --bind /bin/false "
             "/usr/bin/systemd-sysusers");
    clean = installedThings();
    expectOutcome(
        builtTool() + " install", 1, "the system user quillon4-helper cannot be made", clean);
}

TEST_F(InstallTest, onAReadOnlySystemSaysSoAndChangesNothing)
{
    outputOf("mount -o remount,bind,ro /usr/share/polkit-1");
    clean = installedThings();
    expectOutcome(builtTool() + " install", 1,
        "/usr/share/polkit-1/actions/com.orvandel.quillon4.policy.new: Read-only", clean);
}

TEST_F(InstallTest, thatCannotBeRemovedEntirelyStaysEntirely)
{
    outputOf(builtTool() + " install");
    outputOf("mount -o remount,bind,ro /usr/share/polkit-1");
    const auto installed = installedThings();
    BusClient administrator{"root"};
    EXPECT_EQ(administrator.uninstall(), contract::error::uninstallFailed.name);
    EXPECT_EQ(installedThings(), installed);
    EXPECT_EQ(administrator.version(), "2.0");
}

/// As the distribution's package would put it.
class InstallTestWithPackage : public InstallTest
{
protected:
    void SetUp() override
    {
        InstallTest::SetUp();
        const auto files = buildFolder().toStdString() + "/data/helper/packaged/";
        outputOf("for folder in /usr/libexec /usr/lib/systemd/system; do mount -t tmpfs -o "
                 "mode=0755 none $folder; done;"
                 "install -D " +
                 builtTool() +
                 " /usr/libexec/quillon4/Quillon4HelperTool;"
                 "install -m 0644 " +
                 files +
                 "quillon4-helper.service /usr/lib/systemd/system/;"
                 "install -m 0644 " +
                 files +
                 "com.orvandel.Quillon4HelperTool.conf /usr/share/dbus-1/system.d/;"
                 "install -m 0644 " +
                 files +
                 "com.orvandel.Quillon4HelperTool.service /usr/share/dbus-1/system-services/;"
                 "install -m 0644 " +
                 files + "com.orvandel.quillon4.policy /usr/share/polkit-1/actions/");
        reloadBus();
        packaged = installedThings();
    }

    std::vector<std::string> packaged;
};

TEST_F(InstallTestWithPackage, isNeverRemovedOverTheBus)
{
    BusClient administrator{"root"};
    EXPECT_EQ(administrator.version(), "2.0");
    EXPECT_EQ(administrator.uninstall(), contract::error::ownedByPackage.name);
    EXPECT_EQ(administrator.version(), "2.0");
    EXPECT_EQ(installedThings(), packaged);
}

TEST_F(InstallTestWithPackage, isNeverRemovedByHand)
{
    for (const auto &tool :
        {builtTool(), std::string{"/usr/libexec/quillon4/Quillon4HelperTool"}}) {
        expectOutcome(tool + " uninstall", 1, "remove that package", packaged);
    }
}

TEST_F(InstallTestWithPackage, removesNothingElseEither)
{
    // Left from before the package came.
    outputOf("install -D " + builtTool() + ' ' + installedTool);
    const auto both = installedThings();
    EXPECT_EQ(BusClient{"root"}.uninstall(), contract::error::ownedByPackage.name);
    EXPECT_EQ(installedThings(), both);
}

TEST_F(InstallTestWithPackage, needsNoInstallation)
{
    expectOutcome(builtTool() + " install", 0, "package", packaged);
}

TEST_F(InstallTestWithPackage, getsItsUserFromAnInstallation)
{
    outputOf("sed -i /^quillon4-helper:/d /etc/passwd /etc/group /etc/shadow");
    EXPECT_EQ(run(builtTool() + " install").exitCode, 0);
    EXPECT_THAT(outputOf("getent passwd quillon4-helper"), HasSubstr("nologin"));
    EXPECT_EQ(BusClient{"quillon"}.version(), "2.0");
}

/// A self-installed helper from before the package came, whose files hide the package's.
class InstallTestBeforePackage : public InstallTestWithPackage
{
protected:
    void SetUp() override
    {
        InstallTestWithPackage::SetUp();
        outputOf("mv /usr/libexec/quillon4 /tmp/packaged");
        outputOf(builtTool() + " install");
        outputOf("mv /tmp/packaged /usr/libexec/quillon4");
        ASSERT_NE(installedThings(), packaged);
    }

    static std::string pathOf(pid_t process)
    {
        return outputOf("readlink /proc/" + std::to_string(process) + "/exe");
    }

    const std::string packagedTool = "/usr/libexec/quillon4/Quillon4HelperTool\n";
};

TEST_F(InstallTestBeforePackage, stepsAsideWhenItIsStarted)
{
    // Whoever calls notices nothing.
    BusClient quillon{"quillon"};
    EXPECT_EQ(quillon.version(), "2.0");
    EXPECT_EQ(pathOf(quillon.processOf(contract::helperName)), packagedTool);
    EXPECT_EQ(installedThings(), packaged);
    EXPECT_EQ(quillon.change("enp1s0", "02:11:22:33:44:55"), BusClient::done);
    EXPECT_EQ(BusClient{"root"}.uninstall(), contract::error::ownedByPackage.name);
}

TEST_F(InstallTestBeforePackage, stepsAsideUnderTheUnitToo)
{
    startAsTheUnit(
        "com.orvandel.Quillon4HelperTool.service", "/etc/systemd/system/quillon4-helper.service");
    startAsTheUnit("com.orvandel.Quillon4HelperTool.Removal.service",
        "/etc/systemd/system/quillon4-helper-removal.service");
    BusClient quillon{"quillon"};
    EXPECT_EQ(quillon.version(), "2.0");
    // As seen from outside of its root folder.
    EXPECT_THAT(pathOf(quillon.processOf(contract::helperName)), testing::EndsWith(packagedTool));
    EXPECT_EQ(installedThings(), packaged);
    EXPECT_EQ(quillon.change("enp1s0", "02:11:22:33:44:55"), BusClient::done);
}

TEST_F(InstallTestBeforePackage, stepsAsideWhileAStrangerKeepsAsking)
{
    outputOf("mv /usr/libexec/quillon4 /tmp/packaged");
    BusClient stranger{"mallory"};
    ASSERT_EQ(stranger.version(), "2.0");
    const auto older = stranger.processOf(contract::helperName);
    ASSERT_NE(pathOf(older), packagedTool);
    outputOf("mv /tmp/packaged /usr/libexec/quillon4");
    EXPECT_TRUE(endsWhileAsked(older, stranger));
    EXPECT_EQ(stranger.version(), "2.0");
    EXPECT_EQ(pathOf(stranger.processOf(contract::helperName)), packagedTool);
    EXPECT_EQ(installedThings(), packaged);
}

TEST_F(InstallTestBeforePackage, saysSoInTheLog)
{
    const auto result = run(std::string{"timeout 2 "} + installedTool);
    EXPECT_THAT(result.output, HasSubstr("package has brought the helper"));
    EXPECT_EQ(installedThings(), packaged);
}

TEST_F(InstallTestBeforePackage, isRemovedByAnInstallation)
{
    for (const auto &tool :
        {std::string{"/usr/libexec/quillon4/Quillon4HelperTool"}, builtTool()}) {
        expectOutcome(tool + " install", 0, "package", packaged);
    }
    BusClient quillon{"quillon"};
    EXPECT_EQ(quillon.version(), "2.0");
    EXPECT_EQ(pathOf(quillon.processOf(contract::helperName)), packagedTool);
}

} // namespace
} // namespace quillon::test
