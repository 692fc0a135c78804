// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelperLinkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class XPCMethodsLog : public HelperLinkFixture
{
};

TEST_F(XPCMethodsLog, IsWrittenInALaterTurnOfTheMainLoop)
{
    const LogCapture log;
    xpc->logText(u"text"_s);
    scheduler.asBackground([this] { xpc->logText(u"from elsewhere"_s); });
    EXPECT_TRUE(LogCapture::taken().isEmpty());
    scheduler.runPending();
    EXPECT_EQ(LogCapture::taken(), (QStringList{line("text"), line("from elsewhere")}));
}

TEST_F(XPCMethodsLog, TakesTheTextForNoFormat)
{
    EXPECT_EQ(logOf([this] { xpc->logText(u"100 %s %@ %d %n"_s); }),
        QStringList{line("100 %s %@ %d %n")});
    EXPECT_EQ(logOf([this] { xpc->logText(u""_s); }), QStringList{line("")});
}

TEST_F(XPCMethodsLog, FillsAFormatInOrder)
{
    EXPECT_EQ(logOf([this] { xpc->logWithFormat(u"%d of %@, %@"_s, {u"1"_s, u"%@"_s, u"x"_s}); }),
        QStringList{line("1 of %@, x")});
    EXPECT_EQ(
        logOf([this] { xpc->logWithFormat(u"%@ %d %"_s, {}); }), QStringList{line("%@ %d %")});
}

TEST_F(XPCMethodsLog, WritesAnErrorAsDomainAndCode)
{
    EXPECT_EQ(logOf([this] { xpc->logError(Error{u"Some.Domain"_s, -7, {}}); }),
        QStringList{line("error Some.Domain / -7\n")});
}

TEST_F(XPCMethodsLog, IsWrittenAlsoWhenTheLinkHasGone)
{
    EXPECT_EQ(logOf([this] {
        xpc->logText(u"last words"_s);
        xpc.reset();
    }),
        QStringList{line("last words")});
}

} // namespace
} // namespace quillon::test
