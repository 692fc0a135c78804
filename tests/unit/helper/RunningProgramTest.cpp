// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/RunningProgram.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace quillon {
namespace {

namespace fs = std::filesystem;

class RunningProgramTest : public testing::Test
{
protected:
    RunningProgramTest()
    {
        std::string name = fs::temp_directory_path() / "quillon-program-XXXXXX";
        folder = mkdtemp(name.data());
        tool = folder / "place" / "tool";
        fs::create_directory(tool.parent_path());
        std::ofstream{tool} << "old";
        fs::create_symlink(tool, folder / "link");
    }
    ~RunningProgramTest() override { fs::remove_all(folder); }

    RunningProgram program() const { return RunningProgram{(folder / "link").string()}; }

    fs::path folder;
    fs::path tool;
};

TEST_F(RunningProgramTest, isNotReplacedWhileItsFileStaysWhateverItsTime)
{
    const auto running = program();
    fs::last_write_time(tool, fs::file_time_type{});
    EXPECT_FALSE(running.isReplaced());
}

TEST_F(RunningProgramTest, isReplacedByAnotherFileOfItsName)
{
    const auto running = program();
    // Somebody keeps the older one under another name.
    fs::create_hard_link(tool, folder / "kept");
    std::ofstream{folder / "new"} << "old";
    fs::rename(folder / "new", tool);
    EXPECT_TRUE(running.isReplaced());
    EXPECT_FALSE(program().isReplaced());
}

TEST_F(RunningProgramTest, isReplacedWhenItsFileOrItsFolderIsGone)
{
    const auto running = program();
    fs::remove(tool);
    EXPECT_TRUE(running.isReplaced());
    fs::remove(tool.parent_path());
    std::ofstream{tool.parent_path()} << "no folder";
    EXPECT_TRUE(running.isReplaced());
}

TEST_F(RunningProgramTest, thatCannotBeSeenIsNotReplaced)
{
    EXPECT_FALSE(RunningProgram{(folder / "none").string()}.isReplaced());
}

TEST_F(RunningProgramTest, isThisOneWhenNothingElseIsNamed)
{
    EXPECT_FALSE(RunningProgram{}.isReplaced());
}

} // namespace
} // namespace quillon
