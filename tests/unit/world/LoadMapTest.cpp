// SPDX-License-Identifier: Zlib
#include "world/LoadMap.h"
#include "tests/support/Messages.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace
{
const std::string Model = "3DM - VER 1.0.0\nMakeObj,0,0,0,0,0,0,1,1,2\nSetObjR,3\n";

struct LoadMap : testing::Test
{
    support::TempFolder Folder;
    support::Messages Messages;
    render::Scene Scene;
    world::Race Race;

    LoadMap()
    {
        Folder.Write("data/maps/m/tree.3dm", Model);
        Folder.Write("data/maps/m/empty.3dm", "3DM - VER 1.0.0\n");
        Folder.Write("data/maps/m/bad.3dm", "3DM - VER 1.0.0\nFoo\n");
        Folder.Write("data/maps/m/half.3dm", Model + "Foo\n");
        Folder.Write("data/maps/m/p.player", "0.06,5,1,0.05,0.1,0.01,0");
        Folder.Write("data/maps/m/cpu.player", "0.07,4,1,0.05,0.1,0.01,1\r\n");
        Folder.Write("data/maps/m/points", "1,2,3,4\n5,6,7,8\n");
        Folder.Write("data/maps/m/ground.bmp", support::Bitmap(4, 2, 10, 20, 30));
    }

    void Load(const std::string& script, bool blurred = false)
    {
        Folder.Write("data/maps/m/map.loader", script);
        world::LoadMap(Scene, Race, Messages, Folder.Files(), "data\\maps\\m\\map.loader", blurred);
    }
    void ExpectBoxes(const std::vector<std::string>& texts) const
    {
        std::vector<std::string> shown;
        for (const support::Box& box : Messages.Boxes)
            shown.push_back(box.Text);
        EXPECT_EQ(shown, texts);
    }
};
}

TEST_F(LoadMap, AScriptWithoutHeaderBuildsTheWorld)
{
    Load("LoadMapTexture,<path>ground.bmp,2.5\r\n"
         "LoadObject,<path>tree.3dm,10,1,20,0.5,0.25,1\r\n"
         "DuplicateLastObj,30,2,40,1,0,0\r\n"
         "LoadPlayer,<path>p.player,<path>tree.3dm,50,0,60,1.5,0,1\r\n"
         "LoadCheckpoints,<path>points\r\nLoadACheckpoints,<path>points\r\n"
         "LoadBox,<path>points\r\nLoadGrass,<path>points\r\nLoadWater,<path>points\r\n",
         true);
    ExpectBoxes({});
    EXPECT_EQ(Scene.Ground.Width, 4);
    EXPECT_EQ(Scene.Ground.Height, 2);
    EXPECT_EQ(Scene.Ground.GroundScale, 2.5f);
    EXPECT_FALSE(Scene.Ground.GroundBlur.Empty());
    ASSERT_EQ(Scene.Objects.Size(), 3);
    const render::Obj& tree = Scene.Objects.At(0);
    EXPECT_EQ(tree.X, 10.0f);
    EXPECT_EQ(tree.Y, 1.0f);
    EXPECT_EQ(tree.Z, 20.0f);
    EXPECT_EQ(tree.AngleA, 0.5f);
    EXPECT_EQ(tree.AngleB, 0.25f);
    EXPECT_EQ(tree.Visible, 1);
    EXPECT_EQ(tree.Radius, 3.0f);
    EXPECT_EQ(Scene.Objects.At(1).X, 30.0f);
    EXPECT_EQ(Scene.Objects.At(1).Visible, 0);
    EXPECT_EQ(Scene.Objects.At(1).Radius, 3.0f);
    ASSERT_EQ(Race.NumPlayers(), 1);
    EXPECT_EQ(Race.Players[0].Obj, 2);
    EXPECT_EQ(Scene.Objects.At(2).Z, 60.0f);
    const world::Map& map = Race.Map;
    EXPECT_EQ(map.Checkpoints.Count(), 2);
    EXPECT_EQ(map.Boxes.Count(), 2);
    EXPECT_EQ(map.Grass.Count(), 2);
    EXPECT_EQ(map.Water.Count(), 2);
    EXPECT_EQ(map.ACheckpoints.Items.size(), 2u);
    EXPECT_EQ(map.Checkpoints.Items[1].Z, 7.0f);
}

TEST_F(LoadMap, AnEmptyScriptIsNoError)
{
    Load("");
    ExpectBoxes({});
    EXPECT_EQ(Scene.Objects.Size(), 0);
}

TEST_F(LoadMap, UnknownKeywordEndsTheScript)
{
    Load("Load3DM,<path>tree.3dm\nX\nLoad3DM,<path>tree.3dm\n");
    ASSERT_EQ(Messages.Boxes.size(), 1u);
    EXPECT_EQ(Messages.Boxes[0].Icon, base::Icon::Critical);
    EXPECT_EQ(Messages.Boxes[0].Title, "Errore 514");
    EXPECT_EQ(Messages.Boxes[0].Text, "'X' non è un'istruzione non valida in LoadMap");
    EXPECT_EQ(Scene.Objects.Size(), 1);
}

TEST_F(LoadMap, TheHeaderOfAModelIsNoKeyword)
{
    Load("3DM - VER 1.0.0\n");
    ExpectBoxes({"'3DM - VER 1.0.0' non è un'istruzione non valida in LoadMap"});
}

TEST_F(LoadMap, AMissingScriptIsReported)
{
    world::LoadMap(Scene, Race, Messages, Folder.Files(), "data\\maps\\m\\none.loader", false);
    ExpectBoxes({"Impossibile trovare il file in LoadMap"});
}

TEST_F(LoadMap, ErrorsOfModelsDoNotStopTheScript)
{
    Load("LoadObject,<path>none.3dm,1,2,3,0,0,1\n"
         "LoadObject,<path>bad.3dm,1,2,3,0,0,1\n"
         "LoadPlayer,<path>p.player,<path>bad.3dm,1,2,3,0,0,1\n"
         "LoadObject,<path>tree.3dm,1,2,3,0,0,1\n");
    ExpectBoxes({"Impossibile trovare il file in LoadObject", "'Foo' non è un'istruzione non valida in LoadObject",
                 "'Foo' non è un'istruzione non valida in LoadObject"});
    EXPECT_EQ(Scene.Objects.Size(), 1);
    EXPECT_EQ(Race.NumPlayers(), 0); // no car, no player
}

TEST_F(LoadMap, AModelThatFailsBehindItsObjectIsPlaced)
{
    Load("LoadObject,<path>half.3dm,11,2,3,0,0,1\n");
    ExpectBoxes({"'Foo' non è un'istruzione non valida in LoadObject"});
    EXPECT_EQ(Scene.Objects.At(0).X, 11.0f);
}

TEST_F(LoadMap, PlacingWithoutAnObjectIsAnIndexError)
{
    for (const char* command :
         {"LoadObject,<path>empty.3dm,1,2,3,0,0,1", "LoadPlayer,<path>p.player,<path>empty.3dm,1,2,3,0,0,1",
          "DuplicateLastObj,1,2,3,0,0,1", "Load3DM,<path>empty.3dm\nDuplicateLastObj,1,2,3,0,0,1"})
    {
        Messages.Boxes.clear();
        Load(std::string(command) + "\nLoad3DM,<path>tree.3dm\n");
        ExpectBoxes({"Indice non compreso nell'intervallo in LoadMap"});
        EXPECT_EQ(Scene.Objects.Size(), 0) << command;
    }
}

TEST_F(LoadMap, Load3DMPlacesNothing)
{
    Load("Load3DM,<path>tree.3dm\nLoad3DM,<path>empty.3dm\n");
    ExpectBoxes({});
    EXPECT_EQ(Scene.Objects.At(0).X, 0.0f);
}

TEST_F(LoadMap, DuplicatesAreCopiesOfTheModelNotOfTheCopy)
{
    Load("LoadObject,<path>tree.3dm,1,0,0,0.5,0,1\nDuplicateLastObj,2,0,0,0,0,1\nDuplicateLastObj,3,0,0,0,0,1\n");
    ExpectBoxes({});
    ASSERT_EQ(Scene.Objects.Size(), 3);
    for (int index = 0; index < 3; ++index)
    {
        EXPECT_EQ(Scene.Objects.At(index).X, static_cast<float>(index + 1));
        EXPECT_EQ(Scene.Objects.At(index).Sfere.size(), 1u);
    }
    EXPECT_EQ(Scene.Objects.At(0).AngleA, 0.5f); // the last object is not changed
}

TEST_F(LoadMap, EveryCarGetsACopyOfItsModel)
{
    Load("LoadPlayer,<path>p.player,<path>tree.3dm,1,0,0,0,0,1\nLoadPlayer,<path>cpu.player,<path>tree.3dm,2,0,0,0,0,"
         "1\n");
    ExpectBoxes({});
    ASSERT_EQ(Race.NumPlayers(), 2);
    EXPECT_EQ(Race.Players[0].Obj, 0);
    EXPECT_EQ(Race.Players[1].Obj, 1);
    EXPECT_EQ(Scene.Objects.Size(), 2);
}

TEST_F(LoadMap, APlayerFileThatFailsLeavesTheModelWhereItWasPlaced)
{
    Folder.Write("data/maps/m/short.player", "0.06,5,1");
    Load("LoadPlayer,<path>short.player,<path>tree.3dm,9,0,0,0,0,1\n"
         "LoadPlayer,<path>none.player,<path>tree.3dm,8,0,0,0,0,1\n"
         "LoadPlayer,<path>p.player,<path>tree.3dm,7,0,0,0,0,1\n");
    ExpectBoxes({"Input oltre la fine del file in MakePlayer", "Impossibile trovare il file in MakePlayer"});
    EXPECT_EQ(Scene.Objects.At(0).X, 9.0f);
    ASSERT_EQ(Race.NumPlayers(), 1);
    EXPECT_EQ(Race.Players[0].Obj, 2);
}

TEST_F(LoadMap, AMissingPointListDoesNotStopTheScript)
{
    Load("LoadCheckpoints,<path>none\nLoadBox,<path>points\n");
    ExpectBoxes({"Impossibile trovare il file in LoadTargets"});
    EXPECT_EQ(Race.Map.Checkpoints.Count(), 0);
    EXPECT_EQ(Race.Map.Boxes.Count(), 2);
}

TEST_F(LoadMap, TheBlurredCopyIsMadeOnlyWhenWanted)
{
    Load("LoadMapTexture,<path>ground.bmp,1\n", false);
    ExpectBoxes({});
    EXPECT_TRUE(Scene.Ground.GroundBlur.Empty());
}

TEST_F(LoadMap, ArgumentsAreReadBeforeTheCommandRuns)
{
    Load("LoadObject,<path>tree.3dm,1,2,x,0,0,1\n");
    ExpectBoxes({"Tipo non corrispondente in LoadMap"});
    EXPECT_EQ(Scene.Objects.Size(), 0);
}

TEST_F(LoadMap, ACutOffScriptKeepsWhatItBuilt)
{
    Load("Load3DM,<path>tree.3dm\nLoadObject,<path>tree.3dm,1,2");
    ExpectBoxes({"Input oltre la fine del file in LoadMap"});
    EXPECT_EQ(Scene.Objects.Size(), 1);
}

TEST_F(LoadMap, AScriptThatLoadsItselfOnlyFails)
{
    Load("Load3DM,<path>map.loader\nLoadCheckpoints,<path>map.loader\n");
    ExpectBoxes({"Formato file non supportato in LoadObject", "Tipo non corrispondente in LoadTargets"});
}

TEST_F(LoadMap, ThousandsOfFailingLinesAreAllReported)
{
    std::string script;
    for (int i = 0; i < 3000; ++i)
        script += "LoadObject,<path>none.3dm,1,2,3,0,0,1\n";
    Load(script);
    EXPECT_EQ(Messages.Boxes.size(), 3000u);
}
