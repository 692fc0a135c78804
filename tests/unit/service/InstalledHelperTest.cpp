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
    bool isCurrent() const
    {
        return InstalledHelper(
            {pathOf("seed"), pathOf("installed"), pathOf("packaged"), pathOf("packaged-unit")})
            .isCurrent();
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

} // namespace
} // namespace quillon::service
