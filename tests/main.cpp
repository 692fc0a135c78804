// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    // Death tests re-run the program, so that threads of the parent cannot hang the child.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ::testing::InitGoogleMock(&argc, argv);
    QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
