// SPDX-License-Identifier: Zlib
#include "platform/FindData.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

namespace
{
namespace fs = std::filesystem;

struct FindData : testing::Test
{
    fs::path Root = fs::path(testing::TempDir()) /
                    (std::string("velkar_") + testing::UnitTest::GetInstance()->current_test_info()->name());

    FindData() { fs::create_directories(Root); }
    ~FindData() override { fs::remove_all(Root); }

    void PutDataInto(const fs::path& folder)
    {
        fs::create_directories(folder / "data/maps/map_01");
        std::ofstream(folder / "data/maps/map_01/map.loader") << "";
    }
};
}

TEST_F(FindData, BesideTheProgramComesFirst)
{
    PutDataInto(Root / "tree/build");
    PutDataInto(Root / "tree");
    EXPECT_EQ(platform::FindDataAmong(Root / "tree/build/velkar", {}), Root / "tree/build");
}

TEST_F(FindData, TheNearestParentOfABuildTree)
{
    PutDataInto(Root / "tree");
    PutDataInto(Root);
    EXPECT_EQ(platform::FindDataAmong(Root / "tree/build/release/tools/velkar", {}), Root / "tree");
}

TEST_F(FindData, TheInstalledFolderComesLast)
{
    const std::array<fs::path, 2> installed = {Root / "nowhere", Root / "share/velkar"};
    PutDataInto(Root / "share/velkar");
    EXPECT_EQ(platform::FindDataAmong(Root / "bin/velkar", installed), Root / "share/velkar");
    PutDataInto(Root / "bin");
    EXPECT_EQ(platform::FindDataAmong(Root / "bin/velkar", installed), Root / "bin");
}

TEST_F(FindData, TheProgramsFolderWhereThereIsNone)
{
    fs::create_directories(Root / "bin/data"); // a folder of that name alone is not the game's
    EXPECT_EQ(platform::FindDataAmong(Root / "bin/velkar", {}), Root / "bin");
}

TEST_F(FindData, TheProgramKnowsItself)
{
    EXPECT_EQ(platform::ExecutablePath("ignored").stem(), "test_platform");
}
