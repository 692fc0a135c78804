// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/RecordFailure.h"

#include "fakes/QtPrinting.h"
#include "store/file/RecordFile.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

QString reason(RecordFileError code)
{
    return reasonOf(recordFileError(code, QStringLiteral("as SQLite says it")));
}

TEST(RecordFailure, WhatTheUserCanMendIsSaidInHisWords)
{
    EXPECT_EQ(reason(RecordFileError::Full), QStringLiteral("There is no room left on the disk."));
    EXPECT_EQ(
        reason(RecordFileError::Locked), QStringLiteral("Another program is using the file."));
    EXPECT_EQ(reason(RecordFileError::InputOutput),
        QStringLiteral("The disk could not be read or written."));
}

TEST(RecordFailure, EverythingElseSpeaksForItself)
{
    EXPECT_EQ(reason(RecordFileError::Failed), QStringLiteral("as SQLite says it"));
    EXPECT_EQ(reason(RecordFileError::CannotOpen), QStringLiteral("as SQLite says it"));
    // The same number in another domain means something else.
    const Error other{
        posixErrorDomain, static_cast<int>(RecordFileError::Full), QStringLiteral("x")};
    EXPECT_EQ(reasonOf(other), QStringLiteral("x"));
}

} // namespace
} // namespace quillon
