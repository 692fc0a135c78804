// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelperLinkFixture.h"

namespace quillon::test {
namespace {

class XPCMethodsLog : public HelperLinkFixture
{
};

TEST_F(XPCMethodsLog, IsWrittenInALaterTurnOfTheMainLoop)
{
    const LogCapture log;
    xpc->logText(QStringLiteral("text"));
    scheduler.asBackground([this] { xpc->logText(QStringLiteral("from elsewhere")); });
    EXPECT_TRUE(LogCapture::taken().isEmpty());
    scheduler.runPending();
    EXPECT_EQ(LogCapture::taken(), (QStringList{line("text"), line("from elsewhere")}));
}

TEST_F(XPCMethodsLog, TakesTheTextForNoFormat)
{
    EXPECT_EQ(logOf([this] { xpc->logText(QStringLiteral("100 %s %@ %d %n")); }),
        QStringList{line("100 %s %@ %d %n")});
    EXPECT_EQ(logOf([this] { xpc->logText(QStringLiteral("")); }), QStringList{line("")});
}

TEST_F(XPCMethodsLog, FillsAFormatInOrder)
{
    EXPECT_EQ(logOf([this] {
        xpc->logWithFormat(QStringLiteral("%d of %@, %@"),
            {QStringLiteral("1"), QStringLiteral("%@"), QStringLiteral("x")});
    }),
        QStringList{line("1 of %@, x")});
    EXPECT_EQ(logOf([this] { xpc->logWithFormat(QStringLiteral("%@ %d %"), {}); }),
        QStringList{line("%@ %d %")});
}

TEST_F(XPCMethodsLog, WritesAnErrorAsDomainAndCode)
{
    EXPECT_EQ(logOf([this] {
        xpc->logError(Error{QStringLiteral("Some.Domain"), -7, {}});
    }),
        QStringList{line("error Some.Domain / -7\n")});
}

TEST_F(XPCMethodsLog, IsWrittenAlsoWhenTheLinkHasGone)
{
    EXPECT_EQ(logOf([this] {
        xpc->logText(QStringLiteral("last words"));
        xpc.reset();
    }),
        QStringList{line("last words")});
}

} // namespace
} // namespace quillon::test
