// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Interfaces.h"

#include <gmock/gmock.h>

namespace quillon::contract {
namespace {

using ::testing::ElementsAre;
using ::testing::StrEq;

TEST(InterfacesTest, AnObjectHasThePathAndTheInterfaceOfItsDescription)
{
    EXPECT_STREQ(helper::path, "/com/orvandel/Quillon4HelperTool");
    EXPECT_STREQ(helper::interface, "com.orvandel.Quillon4HelperTool");
}

TEST(InterfacesTest, AMethodHasTheSignaturesAndNamesOfItsArguments)
{
    const Method &change = helper::changeAddressOfDevice;
    EXPECT_STREQ(change.name, "ChangeAddressOfDevice");
    EXPECT_STREQ(change.inputSignature, "ssbay");
    EXPECT_THAT(change.inputNames, ElementsAre(StrEq("device"), StrEq("address"),
                                       StrEq("deviceIsWiFi"), StrEq("authorization")));
    EXPECT_STREQ(change.outputSignature, "");
    EXPECT_THAT(change.outputNames, ElementsAre());
    const Method &connect = service::connectWithEndpointAndAuthorization;
    EXPECT_STREQ(connect.inputSignature, "");
    EXPECT_STREQ(connect.outputSignature, "say");
    EXPECT_THAT(connect.outputNames, ElementsAre(StrEq("endpoint"), StrEq("authorization")));
}

TEST(InterfacesTest, ASignalHasTheSignatureAndNamesOfItsArguments)
{
    EXPECT_STREQ(distributed::posted.name, "Posted");
    EXPECT_STREQ(distributed::posted.signature, "ss");
    EXPECT_THAT(distributed::posted.names, ElementsAre(StrEq("name"), StrEq("object")));
}

// Logs and their readers know the errors by these numbers.
TEST(InterfacesTest, ErrorsAreCountedFromOne)
{
    int code = 0;
    for (const ErrorName &error : allErrors) {
        EXPECT_EQ(error.code, ++code) << error.name;
    }
    EXPECT_EQ(code, 12);
    EXPECT_STREQ(error::notAuthorized.name, "com.orvandel.Quillon4.Error.NotAuthorized");
    EXPECT_EQ(error::notAuthorized.code, 1);
    EXPECT_EQ(error::uninstallFailed.code, 12);
}

} // namespace
} // namespace quillon::contract
