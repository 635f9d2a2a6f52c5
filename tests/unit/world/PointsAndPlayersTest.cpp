// SPDX-License-Identifier: Zlib
#include "world/PointsAndPlayers.h"
#include "tests/support/Messages.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace
{
struct PointsAndPlayers : testing::Test
{
    support::TempFolder Folder;
    support::Messages Messages;
    world::TargetList List = {{{9, 9, 9, 9}, {8, 8, 8, 8}}};
    world::Race Race;

    std::int16_t Targets(const std::string& text)
    {
        Folder.Write("f", text);
        return world::LoadTargets(Messages, Folder.Files(), "f", List);
    }
    std::int16_t Player(const std::string& text, std::int16_t object = 5)
    {
        Folder.Write("f", text);
        return world::MakePlayer(Messages, Folder.Files(), "f", object, Race);
    }
    void ExpectBox(const std::string& title, const std::string& text) const
    {
        ASSERT_EQ(Messages.Boxes.size(), 1u);
        EXPECT_EQ(Messages.Boxes[0].Title, title);
        EXPECT_EQ(Messages.Boxes[0].Text, text);
    }
};
}

TEST_F(PointsAndPlayers, TheListIsReplacedByTheRecords)
{
    EXPECT_EQ(Targets("1,2,3,4\n5\n6\n7\n8\n"), 2);
    ASSERT_EQ(List.Items.size(), 2u);
    EXPECT_EQ(List.Items[0].X, 1.0f);
    EXPECT_EQ(List.Items[0].R, 4.0f);
    EXPECT_EQ(List.Items[1].Y, 6.0f);
    EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(PointsAndPlayers, AnEmptyFileLeavesOneZeroedRecord)
{
    EXPECT_EQ(Targets(""), 0);
    ASSERT_EQ(List.Items.size(), 1u);
    EXPECT_EQ(List.Items[0].X, 0.0f);
    EXPECT_EQ(List.Items[0].R, 0.0f);
    EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(PointsAndPlayers, TheZeroedRecordIsNoTarget)
{
    Targets("");
    EXPECT_TRUE(List.Targets().empty());
    EXPECT_EQ(Targets("1,2,3,4\n"), 1);
    EXPECT_EQ(List.Targets().size(), 1u);
}

TEST_F(PointsAndPlayers, AFailingListKeepsItsCompleteRecords)
{
    EXPECT_EQ(Targets("1,2,3,4,5,6,7\n"), 1);
    ExpectBox("Errore 62", "Input oltre la fine del file in LoadTargets");
    EXPECT_EQ(List.Items.size(), 1u);
    Messages.Boxes.clear();
    EXPECT_EQ(Targets("1,2,3,4,5,x,7,8\n"), 1);
    ExpectBox("Errore 13", "Tipo non corrispondente in LoadTargets");
}

TEST_F(PointsAndPlayers, AMissingListIsEmpty)
{
    EXPECT_EQ(world::LoadTargets(Messages, Folder.Files(), "none", List), 0);
    ExpectBox("Errore 53", "Impossibile trovare il file in LoadTargets");
    ASSERT_EQ(List.Items.size(), 1u);
    EXPECT_EQ(List.Items[0].R, 0.0f);
}

TEST_F(PointsAndPlayers, RecordsBeyondThe16BitCountOverflow)
{
    std::string text;
    for (int i = 0; i < 32768; ++i)
        text += "1,2,3,4\n";
    EXPECT_EQ(Targets(text), 32767);
    ExpectBox("Errore 6", "Overflow in LoadTargets");
    EXPECT_EQ(List.Items.size(), 32767u);
}

TEST_F(PointsAndPlayers, APlayerTakesSevenFieldsInTheirOrder)
{
    EXPECT_EQ(Player("0.5,5,2,0.25,0.125,0.0625,3"), 0);
    EXPECT_TRUE(Messages.Boxes.empty());
    ASSERT_EQ(Race.NumPlayers(), 1);
    const world::Player& player = Race.Players[0];
    EXPECT_EQ(player.WRS, 0.5f);
    EXPECT_EQ(player.MaxSpeed, 5.0f);
    EXPECT_EQ(player.MaxSpeedR, 2.0f);
    EXPECT_EQ(player.Acceleration, 0.25f);
    EXPECT_EQ(player.Brake, 0.125f);
    EXPECT_EQ(player.Deceleration, 0.0625f);
    EXPECT_EQ(player.Control, 3);
    EXPECT_EQ(player.CurWRS, 0.5f);
    EXPECT_EQ(player.CurMaxSpeed, 5.0f);
    EXPECT_EQ(player.CurMaxSpeedR, 2.0f);
    EXPECT_EQ(player.CurAcceleration, 0.25f);
    EXPECT_EQ(player.CurBrake, 0.125f);
    EXPECT_EQ(player.CurDeceleration, 0.0625f);
    EXPECT_EQ(player.NextCheckpoint, 0);
    EXPECT_EQ(player.Pace, 1.0f);
    EXPECT_EQ(player.Obj, 5);
}

TEST_F(PointsAndPlayers, FieldsBehindTheSeventhAreNotRead)
{
    EXPECT_EQ(Player("1,1,1,1,1,1,0,what,ever"), 0);
    EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(PointsAndPlayers, APlayerFileThatFailsIsNotCounted)
{
    EXPECT_EQ(Player("1,1,1,1,1,1,0"), 0);
    EXPECT_EQ(Player("1,2,3"), -1);
    ExpectBox("Errore 62", "Input oltre la fine del file in MakePlayer");
    EXPECT_EQ(Race.NumPlayers(), 1);
    EXPECT_EQ(Player("2,2,2,2,2,2,0"), 1);
    EXPECT_EQ(Race.Players[1].WRS, 2.0f);
}

TEST_F(PointsAndPlayers, ControlIsAByte)
{
    EXPECT_EQ(Player("1,1,1,1,1,1,256"), -1);
    ExpectBox("Errore 6", "Overflow in MakePlayer");
}
