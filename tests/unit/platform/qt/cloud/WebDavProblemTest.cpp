// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/cloud/WebDavProblem.h"

#include "integration/cloud/Answers.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

/// What a status means.
std::optional<CloudProblem> meaning(const char *method, int status, bool isPage = false)
{
    WebDavAnswer answer;
    answer.status = status;
    answer.isPage = isPage;
    return problemIn(webDavProblem(method, answer));
}

TEST(WebDavProblemTest, EachStatusHasItsMeaning)
{
    for (const char *const method : {"PROPFIND", "GET", "PUT", "DELETE", "MKCOL"}) {
        EXPECT_EQ(meaning(method, 401), CloudProblem::WrongPassword);
        EXPECT_EQ(meaning(method, 403), CloudProblem::NotAllowed);
        EXPECT_EQ(meaning(method, 423), CloudProblem::NotAllowed);
        EXPECT_EQ(meaning(method, 404), CloudProblem::NotThere);
        EXPECT_EQ(meaning(method, 412), CloudProblem::Changed);
        EXPECT_EQ(meaning(method, 413), CloudProblem::TooLarge);
        EXPECT_EQ(meaning(method, 429), CloudProblem::Failed);
        EXPECT_EQ(meaning(method, 500), CloudProblem::Failed);
        EXPECT_EQ(meaning(method, 503), CloudProblem::Failed);
        EXPECT_EQ(meaning(method, 507), CloudProblem::Full);
        EXPECT_EQ(meaning(method, 302), CloudProblem::NotAnAccount);
        EXPECT_EQ(meaning(method, 200, true), CloudProblem::NotAnAccount);
        EXPECT_EQ(meaning(method, 501), CloudProblem::NotAnAccount);
    }
    EXPECT_EQ(meaning("PROPFIND", 207), std::nullopt);
    EXPECT_EQ(meaning("PROPFIND", 200), CloudProblem::NotAnAccount);
    EXPECT_EQ(meaning("PROPFIND", 405), CloudProblem::NotAnAccount);
    EXPECT_EQ(meaning("GET", 200), std::nullopt);
    EXPECT_EQ(meaning("GET", 304), std::nullopt);
    EXPECT_EQ(meaning("PUT", 201, true), std::nullopt) << "some say so in a page";
    EXPECT_EQ(meaning("PUT", 204), std::nullopt);
    EXPECT_EQ(meaning("DELETE", 207), CloudProblem::Failed);
}

} // namespace
} // namespace quillon::test
