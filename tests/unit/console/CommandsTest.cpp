// SPDX-License-Identifier: Zlib
// What commands do to the records.
#include "tests/support/Desk.h"

#include <gtest/gtest.h>

namespace
{
struct Commands : testing::Test, support::Desk
{
    using support::Desk::Run;

    Commands()
    {
        for (const float x : {0.0f, 10.0f, 20.0f, 30.0f})
            TheWorld.AddCar(x, 5);
        TheWorld.Camera.MinZoom = 1;
        TheWorld.Camera.Zoom = 2;
    }
    world::Player& Player(int index) { return TheWorld.Player(index); }
    void ExpectDone(std::string_view line)
    {
        Run(line);
        EXPECT_FALSE(IsOpen()) << line << ": " << Line().Text;
    }
    void ExpectFailure(std::string_view line, std::string_view answer)
    {
        Line().Visible = 0;
        console::ExecConsoleCommand(Console, line);
        EXPECT_EQ(Line().Text, answer) << line;
        EXPECT_TRUE(IsOpen()) << line;
    }
};

TEST_F(Commands, EveryPropertyOfAPlayerReachesItsField)
{
    const std::pair<const char*, float world::Player::*> properties[] = {{"maxspeed", &world::Player::MaxSpeed},
                                                                         {"maxspeedr", &world::Player::MaxSpeedR},
                                                                         {"acceleration", &world::Player::Acceleration},
                                                                         {"brake", &world::Player::Brake},
                                                                         {"deceleration", &world::Player::Deceleration},
                                                                         {"wrs", &world::Player::WRS},
                                                                         {"damage", &world::Player::Damage}};
    float value = 0.5f;
    for (const auto& [name, field] : properties)
    {
        value += 1;
        ExpectDone(std::string("\\set player 2 ") + name + " " + std::to_string(value));
        EXPECT_EQ(Player(2).*field, value) << name;
        EXPECT_NE(Player(1).*field, value) << name;
    }
    ExpectDone("\\set player 2 control 7");
    EXPECT_EQ(Player(2).Control, 7);
}

TEST_F(Commands, DamageHalvesTheWorkingValues)
{
    ExpectDone("\\set player 0 damage 1");
    EXPECT_EQ(Player(0).CurMaxSpeed, 2);
    EXPECT_EQ(Player(0).CurMaxSpeedR, 0.5f);
    EXPECT_EQ(Player(0).CurAcceleration, 0.125f);
    EXPECT_EQ(Player(0).CurBrake, 0.25f);
    EXPECT_EQ(Player(0).CurWRS, 0.0625f); // not scaled
    EXPECT_EQ(Player(0).MaxSpeed, 4);
}

TEST_F(Commands, BaseValuesReachTheWorkingOnesAtOnce)
{
    Player(1).Damage = 3;
    ExpectDone("\\set player 1 maxspeed 8");
    EXPECT_EQ(Player(1).CurMaxSpeed, 2);
    ExpectDone("\\set player 1 maxspeedr 6");
    EXPECT_EQ(Player(1).CurMaxSpeedR, 1.5f);
    ExpectDone("\\set player 1 acceleration 1");
    EXPECT_EQ(Player(1).CurAcceleration, 0.25f);
    ExpectDone("\\set player 1 brake 2");
    EXPECT_EQ(Player(1).CurBrake, 0.5f);
    ExpectDone("\\set player 1 wrs 0,5");
    EXPECT_EQ(Player(1).CurWRS, 0.5f);
}

TEST_F(Commands, EveryAssignmentRefreshesAllWorkingValues)
{
    for (const char* rest : {"position 1 2", "control 1", "damage 0"})
    {
        Player(3).CurMaxSpeed = Player(3).CurWRS = -1;
        ExpectDone(std::string("\\set player 3 ") + rest);
        EXPECT_EQ(Player(3).CurMaxSpeed, 4) << rest;
        EXPECT_EQ(Player(3).CurWRS, 0.0625f) << rest;
    }
}

TEST_F(Commands, DecelerationNeverReachesTheDriving)
{
    ExpectDone("\\set player 0 deceleration 0.5");
    EXPECT_EQ(Player(0).Deceleration, 0.5f);
    EXPECT_EQ(Player(0).CurDeceleration, 0.03125f);
}

TEST_F(Commands, APositionIsTheObjectsAndKeepsItsHeight)
{
    render::Obj& car = TheWorld.Object(Player(2).Obj);
    car.Y = 7;
    ExpectDone("\\set player 2 position 3,5 -4.25");
    EXPECT_EQ(car.X, 3.5f);
    EXPECT_EQ(car.Y, 7);
    EXPECT_EQ(car.Z, -4.25f);
    EXPECT_EQ(Run("\\get player 2 position"), "Player(2).Position = (3,5; -4,25)");
}

TEST_F(Commands, APlayerWithoutAnObjectHasNoPosition)
{
    Player(0).Obj = 99;
    ExpectFailure("\\get player 0 position", "Indice non compreso nell'intervallo");
    ExpectFailure("\\set player 0 position 1 2", "Indice non compreso nell'intervallo");
    EXPECT_EQ(Run("\\get player 0 maxspeed"), "Player(0).MaxSpeed = 4");
}

TEST_F(Commands, ZoomKeepsToItsLowerBound)
{
    ExpectDone("\\set camera zoom 0.1");
    EXPECT_EQ(TheWorld.Camera.Zoom, 1);
    ExpectDone("\\SET CAMERA ZOOM 2.5");
    EXPECT_EQ(TheWorld.Camera.Zoom, 2.5f);
    ExpectDone("\\set camera zoom 2,5");
    EXPECT_EQ(TheWorld.Camera.Zoom, 2.5f);
    ExpectDone("\\set camera minzoom 5");
    EXPECT_EQ(TheWorld.Camera.MinZoom, 5);
    EXPECT_EQ(TheWorld.Camera.Zoom, 5);
    ExpectDone("\\set camera minzoom 1");
    EXPECT_EQ(TheWorld.Camera.Zoom, 5);
    ExpectDone("\\set camera radius -3");
    EXPECT_EQ(TheWorld.Camera.Radius, -3);
    TheWorld.Camera.Zoom = 0.5f; // below, from elsewhere
    ExpectDone("\\set camera radius 3");
    EXPECT_EQ(TheWorld.Camera.Zoom, 0.5f); // not the radius' business
}

TEST_F(Commands, TheFilterCyclesOrTakesAnyNumber)
{
    Screen.TxtFilter = 2;
    for (const int filter : {0, 1, 2})
    {
        ExpectDone("\\set camera txtfilter");
        EXPECT_EQ(Screen.TxtFilter, filter);
    }
    ExpectDone("\\set camera txtfilter 7");
    EXPECT_EQ(Screen.TxtFilter, 7);
    ExpectDone("\\set camera txtfilter");
    EXPECT_EQ(Screen.TxtFilter, 2);
    ExpectDone("\\set camera txtfilter -32768");
    EXPECT_EQ(Screen.TxtFilter, -32768);
    ExpectDone("\\set camera txtfilter");
    EXPECT_EQ(Screen.TxtFilter, -32767 % 3);
    ExpectDone("\\set camera txtfilter 32767");
    ExpectFailure("\\set camera txtfilter", "Overflow");
    EXPECT_EQ(Screen.TxtFilter, 32767);
}

TEST_F(Commands, TheTimeIsTheTimers)
{
    TheWorld.Race.GameTime = 1234;
    ExpectDone("\\set game time 60000");
    EXPECT_EQ(Elapsed, 60000);
    EXPECT_EQ(TheWorld.Race.GameTime, 1234); // until the next tick
    EXPECT_EQ(Run("\\get game time"), "Game.Time = 1234");
    ExpectDone("\\set game time -2147483648");
    EXPECT_EQ(Elapsed, std::numeric_limits<std::int32_t>::min());
    ExpectDone("\\set game time 2147483647.4");
    EXPECT_EQ(Elapsed, std::numeric_limits<std::int32_t>::max());
}

TEST_F(Commands, AnotherPlayerCanBeTheUsers)
{
    ExpectDone("\\set userplayer 3");
    EXPECT_EQ(TheWorld.Race.UserPlayer, 3);
    ExpectFailure("\\set userplayer 4", "Indice non valido");
    ExpectFailure("\\set userplayer -1", "Indice non valido");
    EXPECT_EQ(TheWorld.Race.UserPlayer, 3);
}

TEST_F(Commands, AFailureChangesNothing)
{
    const world::Player player = Player(1);
    const float x = TheWorld.Object(player.Obj).X, z = TheWorld.Object(player.Obj).Z;
    Player(1).CurMaxSpeed = 9; // would be refreshed
    ExpectFailure("\\set player 1 position 77 1e39", "Overflow");
    ExpectFailure("\\set player 1 position 1e39 77", "Overflow");
    ExpectFailure("\\set player 1 position 77 x", "Parametro non valido");
    ExpectFailure("\\set player 1 position 77", "Valore non specificato");
    ExpectFailure("\\set player 1 control 256", "Overflow");
    ExpectFailure("\\set player 1 maxspeed 1e39", "Overflow");
    ExpectFailure("\\set player 1 speed 1", "Proprietà non valida");
    EXPECT_EQ(TheWorld.Object(player.Obj).X, x);
    EXPECT_EQ(TheWorld.Object(player.Obj).Z, z);
    EXPECT_EQ(Player(1).Control, player.Control);
    EXPECT_EQ(Player(1).MaxSpeed, player.MaxSpeed);
    EXPECT_EQ(Player(1).CurMaxSpeed, 9);
    ExpectFailure("\\set game time 1e10", "Overflow");
    EXPECT_EQ(Elapsed, std::nullopt);
    ExpectFailure("\\set camera minzoom 1e39", "Overflow");
    ExpectFailure("\\set camera zoom x", "Parametro non valido");
    EXPECT_EQ(TheWorld.Camera.MinZoom, 1);
    EXPECT_EQ(TheWorld.Camera.Zoom, 2);
}

TEST_F(Commands, TabWidthsStay)
{
    EXPECT_EQ(Line().TabWidth, 4);
    Run("\\lst");
    EXPECT_EQ(Line().TabWidth, 4);
    Run("\\lst player");
    EXPECT_EQ(Line().TabWidth, 8);
    Run("\\lst camera");
    EXPECT_EQ(Line().TabWidth, 5);
    Run("\\lst foo");
    Run("\\lst userplayer");
    Run("\\help");
    Run("\\get game time");
    EXPECT_EQ(Line().TabWidth, 5);
    Run("\\lst game");
    EXPECT_EQ(Line().TabWidth, 1);
}

TEST_F(Commands, InformationIsShownAndHidden)
{
    ExpectDone("\\inf");
    EXPECT_EQ(Information().Visible, 1);
    ExpectDone("\\INF and more");
    EXPECT_EQ(Information().Visible, 0);
    Console.Information = 99;
    ExpectFailure("\\inf", "Indice non compreso nell'intervallo");
}

TEST_F(Commands, AClosedConsoleKeepsItsLine)
{
    Line().Text = "\\set camera zoom 3";
    ExpectDone("\\set camera zoom 3");
    EXPECT_EQ(Line().Text, "\\set camera zoom 3");
}

TEST_F(Commands, WithoutPlayersNoIndexIsValid)
{
    TheWorld.Race.Players.clear();
    ExpectFailure("\\set player 0 damage 1", "Indice non valido"); // whatever the count says
    ExpectFailure("\\set userplayer 0", "Indice non valido");
    ExpectFailure("\\get player 0 speed", "Indice non valido");
}

TEST_F(Commands, ADamageOfMinusOneIsTakenAsItIs)
{
    ExpectDone("\\set player 0 damage -1");
    EXPECT_EQ(Player(0).Damage, -1);
    EXPECT_EQ(Player(0).CurMaxSpeed, std::numeric_limits<float>::infinity());
}
}
