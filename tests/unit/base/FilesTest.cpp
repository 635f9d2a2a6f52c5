// SPDX-License-Identifier: Zlib
#include "base/Files.h"
#include "base/RuntimeError.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace
{
struct FilesTest : testing::Test
{
    std::filesystem::path Folder;
    void SetUp() override
    {
        Folder = std::filesystem::path(testing::TempDir()) /
                 (std::string("velkar-") + testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::create_directories(Folder / "data" / "Models");
        std::ofstream(Folder / "data" / "Models" / "Cup.3dm") << "text";
    }
    void TearDown() override { std::filesystem::remove_all(Folder); }

    static int ErrorOf(const base::Files& files, const char* path)
    {
        try
        {
            files.Read(path);
        }
        catch (const base::RuntimeError& error)
        {
            return error.Number;
        }
        return 0;
    }
};
}

TEST_F(FilesTest, BothSeparatorsAndAnyCase)
{
    const base::Files files(Folder);
    EXPECT_EQ(files.Read("data\\Models\\Cup.3dm"), "text");
    EXPECT_EQ(files.Read("data/models\\CUP.3DM"), "text");
    EXPECT_TRUE(files.Exists("DATA\\models\\cup.3dm"));
}

TEST_F(FilesTest, TheExactNameComesFirst)
{
    if (!support::KnowsCapitals(Folder))
        GTEST_SKIP() << "this file system does not tell capitals from small letters";
    std::ofstream(Folder / "data" / "Models" / "cup.3dm") << "other";
    EXPECT_EQ(base::Files(Folder).Read("data\\Models\\cup.3dm"), "other");
    EXPECT_EQ(base::Files(Folder).Read("data\\Models\\Cup.3dm"), "text");
}

TEST_F(FilesTest, ErrorsByNumber)
{
    const base::Files files(Folder);
    EXPECT_EQ(ErrorOf(files, "data\\Models\\none.3dm"), 53);
    EXPECT_EQ(ErrorOf(files, "data\\nowhere\\none.3dm"), 76);
    EXPECT_EQ(ErrorOf(files, "data\\Models"), 75);
    EXPECT_EQ(ErrorOf(files, ""), 75);
}

TEST_F(FilesTest, AnOpenFileIsReadPieceByPiece)
{
    base::OpenFile file = base::Files(Folder).Open("data\\models\\cup.3dm");
    EXPECT_EQ(file.Size(), 4u);
    std::string first(3, '?'), none, second(1, '?'), beyond(1, '?');
    file.Read(first);
    EXPECT_EQ(first, "tex");
    file.Read(none);
    file.Read(second);
    EXPECT_EQ(second, "t");
    EXPECT_THROW(file.Read(beyond), base::RuntimeError);
}

TEST_F(FilesTest, AFileThatShrinksWhileItIsReadIsError75)
{
    base::OpenFile file = base::Files(Folder).Open("data\\models\\cup.3dm");
    std::filesystem::resize_file(Folder / "data" / "Models" / "Cup.3dm", 2);
    std::string bytes(4, '?');
    try
    {
        file.Read(bytes);
        FAIL() << "two of four bytes are there";
    }
    catch (const base::RuntimeError& error)
    {
        EXPECT_EQ(error.Number, 75);
    }
}

TEST_F(FilesTest, FolderKeepsItsLastSeparator)
{
    EXPECT_EQ(base::FolderOf("data\\obj\\car.3dm"), "data\\obj\\");
    EXPECT_EQ(base::FolderOf("car.3dm"), "car.3dm");
}

TEST_F(FilesTest, NamesAreThoseOfRegularFiles)
{
    const base::Files files(Folder);
    std::ofstream(Folder / "data" / "Models" / ".hidden");
    std::filesystem::create_directories(Folder / "data" / "Models" / "folder.3dm");
    std::vector<std::string> names = files.Names("data\\models\\");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{".hidden", "Cup.3dm"}));
    EXPECT_TRUE(files.Names("nowhere\\").empty());
    EXPECT_TRUE(files.Names("data\\Models\\Cup.3dm").empty());
}
