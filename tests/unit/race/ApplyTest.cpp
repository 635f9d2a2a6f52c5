// SPDX-License-Identifier: Zlib
#include "tools/race/Apply.h"

#include "tests/support/SmallWorld.h"
#include "tools/race/Stage.h"

#include <gtest/gtest.h>

namespace
{
struct Applied : testing::Test
{
    support::SmallWorld World;
    drive::Session Session{World.Files(), drive::WriteToDisk, {}};

    Applied()
    {
        Session.Application = std::make_unique<shell::Application>(Session.Machine);
        Session.Application->Start();
    }
    world::Race& Race() { return Session.Form()->State().Race; }
    render::Obj& Car(std::size_t player)
    {
        return Session.Form()->State().Scene.Objects.At(Race().Players.at(player).Obj);
    }
    void Set(const char* setting) { race::Apply(Session, race::ParseSetting(setting)); }
    std::string Refusal(const char* setting)
    {
        try
        {
            Set(setting);
        }
        catch (const drive::Refusal& refusal)
        {
            return refusal.Why;
        }
        return "none";
    }
};
}

TEST_F(Applied, OneValueIsPutMultipliedOrAddedTo)
{
    Set("checkpoints[1].R=7.5");
    EXPECT_EQ(Race().Map.Checkpoints.Items[1].R, 7.5f);
    Set("checkpoints[1].R=*0.5");
    EXPECT_EQ(Race().Map.Checkpoints.Items[1].R, 3.75f);
    Set("checkpoints[1].R=+-1");
    EXPECT_EQ(Race().Map.Checkpoints.Items[1].R, 2.75f);
    Set("race.Laps=*2");
    EXPECT_EQ(Race().Laps, 10);
}

TEST_F(Applied, AStarIsEveryIndex)
{
    Set("checkpoints[*].R=*0.5");
    for (const world::Target& checkpoint : Race().Map.Checkpoints.Items)
        EXPECT_EQ(checkpoint.R, 6);
    Set("cars[*].Sfere[*].R=0.25");
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(Car(i).Sfere[0].R, 0.25f);
}

TEST_F(Applied, ACarIsItsPlayersObject)
{
    Set("cars[2].Mass=3");
    EXPECT_EQ(Car(2).Mass, 3);
    EXPECT_EQ(Car(1).Mass, 10);
}

TEST_F(Applied, TheEffectiveValueFollowsTheBase)
{
    Set("players[1].MaxSpeed=*0.5");
    EXPECT_EQ(Race().Players[1].CurMaxSpeed, 2);
    Set("players[*].WRS=0.05");
    EXPECT_EQ(Race().Players[2].CurWRS, 0.05f);
    Set("players[1].Damage=1");
    EXPECT_EQ(Race().Players[1].CurMaxSpeed, 1);
    EXPECT_EQ(Race().Players[1].MaxSpeed, 2);
    Set("players[1].CurMaxSpeed=4");
    EXPECT_EQ(Race().Players[1].CurMaxSpeed, 4);
}

TEST_F(Applied, ListsThatLackTheFieldAreLeftOut)
{
    // The arrow and the trophy have no spheres.
    Set("objects[*].Sfere[0].R=0.5");
    EXPECT_EQ(Car(0).Sfere[0].R, 0.5f);
}

TEST_F(Applied, WhatCannotBeSetIsSaid)
{
    EXPECT_EQ(Refusal("players[7].Brake=1"), "players[7].Brake=1: there is no such path");
    EXPECT_EQ(Refusal("players[*].Brakes=1"), "players[*].Brakes=1: there is no such path");
    EXPECT_EQ(Refusal("cars[7].Mass=1"), "cars[7].Mass=1: there is no such path");
    EXPECT_EQ(Refusal("cars[x].Mass=1"), "cars[x].Mass=1: there is no such path");
    EXPECT_EQ(Refusal("cars[=1"), "cars[=1: there is no such path");
    EXPECT_EQ(Refusal("race.NumPlayers=1"), "race.NumPlayers=1: the field cannot be set");
    EXPECT_EQ(Refusal("race.Laps=1.5"), "race.Laps=1.5: the value does not fit the field");
    EXPECT_EQ(Refusal("race.Laps=*0.3"), "race.Laps=*0.3: the value does not fit the field");
    EXPECT_EQ(Refusal("players[0]=1"), "players[0]=1: only one number or text can be set");
    EXPECT_EQ(Refusal("players[0]=*2"), "players[0]=*2: only one finite number can be changed by *2");
}
