// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "HelperLinkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Programming errors end the program with a message that names operation, file and condition.
class XPCMethodsAssertion : public HelperLinkFixture
{
};

#define EXPECT_ASSERTION(statement, operation, condition)                                          \
    EXPECT_DEATH(statement,                                                                        \
        "Assertion failure in -\\[QuillonAppDelegate\\(XPCMethods\\) " operation                   \
        "\\], .*XPCMethods\\.cpp:[0-9]+\n.*" condition)

TEST_F(XPCMethodsAssertion, AuthorizationNeedsTheMainWindow)
{
    EXPECT_ASSERTION(
        xpc->authorizeHelperTool(false), "authorizeHelperTool", "self\\.window != nil");
}

TEST_F(XPCMethodsAssertion, AuthorizationHasToSucceed)
{
    helper.authorizes = false;
    EXPECT_ASSERTION(
        xpc->authorizeHelperTool(true), "authorizeHelperTool", "err == errAuthorizationSuccess");
}

TEST_F(XPCMethodsAssertion, TheServiceIsConnectedOnTheMainThread)
{
    EXPECT_ASSERTION(scheduler.asBackground([this] { xpc->connectToXPCService(); }),
        "connectToXPCService", "\\[NSThread isMainThread\\]");
}

TEST_F(XPCMethodsAssertion, TheHelperIsConnectedOnTheMainThread)
{
    EXPECT_ASSERTION(
        scheduler.asBackground([this] { xpc->connectToHelperToolEndpoint(u":1.1"_s); }),
        "connectToHelperToolEndpoint:", "\\[NSThread isMainThread\\]");
}

TEST_F(XPCMethodsAssertion, AConnectionThatExistsDoesNotExcuseTheWrongThread)
{
    xpc->connectToXPCService();
    EXPECT_ASSERTION(scheduler.asBackground([this] { xpc->connectToXPCService(); }),
        "connectToXPCService", "\\[NSThread isMainThread\\]");
}

TEST_F(XPCMethodsAssertion, ATextIsLogged)
{
    EXPECT_ASSERTION(xpc->logText(QString()), "logText:", "text != nil");
}

TEST_F(XPCMethodsAssertion, AFormatIsLogged)
{
    EXPECT_ASSERTION(xpc->logWithFormat(QString(), {}), "logWithFormat:", "format != nil");
}

TEST_F(XPCMethodsAssertion, AnErrorIsLogged)
{
    EXPECT_ASSERTION(xpc->logError(std::nullopt), "logError:", "error != nil");
}

} // namespace
} // namespace quillon::test
