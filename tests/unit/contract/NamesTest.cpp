// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace quillon::contract {
namespace {

std::string xmlOf(const std::string &name)
{
    std::ifstream file{std::string{QUILLON_TEST_DATA} + "/../../contract/" + name + ".xml"};
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

TEST(Errors, haveEachTheirOwnNameAndCode)
{
    std::set<std::string> names;
    std::set<int> codes;
    for (const auto &error : allErrors) {
        EXPECT_EQ(std::string{error.name}.rfind("com.orvandel.Quillon4.Error.", 0), 0U)
            << error.name;
        names.insert(error.name);
        codes.insert(error.code);
    }
    EXPECT_EQ(names.size(), std::size(allErrors));
    EXPECT_EQ(codes.size(), std::size(allErrors));
}

TEST(Errors, areEachDocumentedWithTheMethodsThatAnswerThem)
{
    const auto documented = xmlOf(helperInterface) + xmlOf(serviceInterface);
    for (const auto &error : allErrors) {
        const auto shortName =
            std::string{error.name}.substr(std::string{"com.orvandel.Quillon4."}.size());
        EXPECT_NE(documented.find(shortName), std::string::npos) << error.name;
    }
}

} // namespace
} // namespace quillon::contract
