// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/InstalledHelper.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace quillon::service {
namespace {

class InstalledHelperTest : public testing::Test
{
protected:
    void write(const char *name, const std::string &text) const
    {
        std::ofstream{pathOf(name)} << text;
    }
    std::string pathOf(const char *name) const { return folder.filePath(name).toStdString(); }
    InstalledHelper helper() const
    {
        return InstalledHelper(
            {pathOf("seed"), pathOf("installed"), pathOf("packaged"), pathOf("packaged-unit")});
    }
    bool isCurrent() const { return helper().isCurrent(); }
    /// A program that was there long before the test.
    void place(const char *name, const char *program) const
    {
        std::filesystem::remove(pathOf(name));
        std::filesystem::create_symlink(program, pathOf(name));
    }

    QTemporaryDir folder;
};

TEST_F(InstalledHelperTest, IsCurrentWhenItIsTheSeedByteByByte)
{
    const std::string program(100'000, 'p');
    write("seed", program);
    write("installed", program);
    EXPECT_TRUE(isCurrent());
    for (const auto &other : {program + 'p', program.substr(1), program.substr(1) + 'q',
             'q' + program.substr(1), program.substr(0, 65536), std::string{}}) {
        write("installed", other);
        EXPECT_FALSE(isCurrent()) << other.size();
    }
}

TEST_F(InstalledHelperTest, IsLeftToItsVersionWhereNothingCanBeCompared)
{
    EXPECT_TRUE(isCurrent());
    write("seed", "program");
    EXPECT_TRUE(isCurrent());
    std::filesystem::remove(pathOf("seed"));
    write("installed", "program");
    EXPECT_TRUE(isCurrent());
}

TEST_F(InstalledHelperTest, IsThePackagesAloneWhereThereIsOne)
{
    write("seed", "program");
    write("packaged", "another build of it");
    write("packaged-unit", "unit");
    EXPECT_TRUE(isCurrent());
    write("installed", "program");
    EXPECT_FALSE(isCurrent());
    // The rest of a package that was removed is no package.
    std::filesystem::remove(pathOf("packaged"));
    EXPECT_TRUE(isCurrent());
}

TEST_F(InstalledHelperTest, NoticesAReplacementOfWhatItHasCompared)
{
    place("seed", "/usr/bin/env");
    place("installed", "/usr/bin/env");
    auto asked = helper();
    EXPECT_TRUE(asked.isCurrent());
    EXPECT_TRUE(asked.isCurrent());
    for (const char *const name : {"seed", "installed"}) {
        place(name, "/usr/bin/id");
        EXPECT_FALSE(asked.isCurrent()) << name;
        place(name, "/usr/bin/env");
        EXPECT_TRUE(asked.isCurrent()) << name;
    }
    write("packaged", "another build of it");
    write("packaged-unit", "unit");
    EXPECT_FALSE(asked.isCurrent());
}

TEST_F(InstalledHelperTest, NoticesAChangeWithinOneStepOfTheFileSystemsClock)
{
    auto asked = helper();
    for (int i = 0; i < 100; ++i) {
        write("seed", "program");
        write("installed", "program");
        ASSERT_TRUE(asked.isCurrent());
        write("installed", "PROGRAM");
        ASSERT_FALSE(asked.isCurrent());
    }
}

} // namespace
} // namespace quillon::service
