// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/TextualHost.h"

#include "fakes/FakeCommandRunner.h"
#include "fakes/QtPrinting.h"
#include "unit/platform/textual/RecordedOutput.h"

namespace quillon::test {
namespace {

class TextualHostOnAMachine : public ::testing::Test
{
protected:
    TextualHostOnAMachine()
    {
        commands.teach(QStringLiteral("networksetup -listallhardwareports"),
            recordedOutput(QStringLiteral("listallhardwareports.txt")));
        commands.teach(
            QStringLiteral("ifconfig en0"), recordedOutput(QStringLiteral("ifconfig-en0.txt")));
    }

    FakeCommandRunner commands;
    TextualHost host{commands};
};

TEST_F(TextualHostOnAMachine, AsksOncePerKeptPortInOrder)
{
    const QList<PortRecord> ports = host.ports();
    EXPECT_EQ(
        commands.journal(), (QStringList{QStringLiteral("networksetup -listallhardwareports"),
                                QStringLiteral("ifconfig en0"), QStringLiteral("ifconfig en1"),
                                QStringLiteral("ifconfig bridge0")}));
    ASSERT_EQ(ports.size(), 3);
    EXPECT_EQ(ports.at(0).device, QLatin1String("en0"));
    EXPECT_EQ(ports.at(0).interface, QLatin1String("Wi-Fi"));
    EXPECT_EQ(ports.at(0).hardware, QLatin1String("00:16:3e:44:55:66"));
    EXPECT_EQ(ports.at(0).info.macAddress, QLatin1String("02:16:3e:44:55:66"));
    EXPECT_EQ(ports.at(1).info, InterfaceInfo{});
}

TEST_F(TextualHostOnAMachine, ReadsOneInterface)
{
    EXPECT_EQ(host.info(QStringLiteral("en0")).ipAddress, QLatin1String("198.51.100.7"));
    EXPECT_EQ(host.info(QStringLiteral("en9")), InterfaceInfo{});
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
    EXPECT_TRUE(bare.ports().isEmpty());
}

} // namespace
} // namespace quillon::test
