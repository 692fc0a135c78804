// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/TextualHost.h"

#include "fakes/FakeCommandRunner.h"
#include "fakes/QtPrinting.h"
#include "unit/platform/textual/RecordedOutput.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class TextualHostOnAMachine : public ::testing::Test
{
protected:
    TextualHostOnAMachine()
    {
        commands.teach(
            u"networksetup -listallhardwareports"_s, recordedOutput(u"listallhardwareports.txt"_s));
        commands.teach(u"ifconfig en0"_s, recordedOutput(u"ifconfig-en0.txt"_s));
    }

    FakeCommandRunner commands;
    TextualHost host{commands};
};

TEST_F(TextualHostOnAMachine, AsksOncePerKeptPortInOrder)
{
    const QList<PortRecord> ports = host.ports().value();
    EXPECT_EQ(
        commands.journal(), (QStringList{u"networksetup -listallhardwareports"_s, u"ifconfig en0"_s,
                                u"ifconfig en1"_s, u"ifconfig bridge0"_s}));
    ASSERT_EQ(ports.size(), 3);
    EXPECT_EQ(ports.at(0).device, "en0"_L1);
    EXPECT_EQ(ports.at(0).interface, "Wi-Fi"_L1);
    EXPECT_EQ(ports.at(0).hardware, "00:16:3e:44:55:66"_L1);
    EXPECT_EQ(ports.at(0).info.macAddress, "02:16:3e:44:55:66"_L1);
    EXPECT_EQ(ports.at(1).info, InterfaceInfo{});
}

TEST_F(TextualHostOnAMachine, ReadsOneInterface)
{
    EXPECT_EQ(host.info(u"en0"_s).ipAddress, "198.51.100.7"_L1);
    EXPECT_EQ(host.info(u"en9"_s), InterfaceInfo{});
}

TEST_F(TextualHostOnAMachine, NeverHandsAShellMoreThanAName)
{
    for (const char *name :
        {"", "en0; true", "$(true)", "en0 en1", "-a", "en0\ntrue", "`true`", "en\u00e4"}) {
        EXPECT_EQ(host.info(QString::fromUtf8(name)), InterfaceInfo{}) << name;
    }
    EXPECT_TRUE(commands.journal().isEmpty());
}

TEST_F(TextualHostOnAMachine, WithoutTheCommandsHasNoPorts)
{
    FakeCommandRunner bareShell;
    TextualHost bare(bareShell);
    EXPECT_FALSE(bare.ports()) << "nothing was told";
}

} // namespace
} // namespace quillon::test
