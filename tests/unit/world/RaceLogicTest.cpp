// SPDX-License-Identifier: Zlib
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{
struct Sink : world::FinishSink
{
    std::vector<std::string> Messages;
    void Finished(const std::string& message) override { Messages.push_back(message); }
};

// Two checkpoints of radius 5: at (0, 100) and at (100, 100).
struct RaceLogic : testing::Test
{
    support::World World;
    Sink Finish;
    void SetUp() override { World.SetCheckpoints({{0, 9, 100, 5}, {100, 9, 100, 5}}); }
    world::Player& Car(std::int32_t index = 0) { return World.Player(index); }
    void Step()
    {
        world::Simulation sim = World.Sim();
        world::RaceStep(sim, Finish);
    }
    std::vector<int> Places()
    {
        world::Simulation sim = World.Sim();
        world::ComputePlaces(sim);
        std::vector<int> places;
        for (const world::Player& player : World.Race.Players)
            places.push_back(player.Place);
        return places;
    }
    // The user's car at the last checkpoint of the last lap.
    void BringToFinish(std::int16_t place)
    {
        World.AddCar(100, 100);
        World.Race.Laps = 1;
        Car().NextCheckpoint = 1;
        Car().Place = place;
        World.Assets.CupObj = render::MakeObj(World.Scene, {0, 0, 0, 0, 0}, 8, 0, 0, 1);
    }
    render::Obj& Cup() { return World.Object(World.Assets.CupObj); }
};

using Ints = std::vector<int>;
}

TEST_F(RaceLogic, MoreCheckpointsPassedRanksFirstThenNearness)
{
    World.AddCar(0, 0);   // 100 to go
    World.AddCar(0, 50);  // 50 to go
    World.AddCar(50, 50); // passed one more, far away
    Car(2).Passed = 1;
    Car(2).NextCheckpoint = 1;
    EXPECT_EQ(Places(), (Ints{3, 2, 1}));
}

TEST_F(RaceLogic, EachCarIsMeasuredToItsOwnCheckpoint)
{
    World.AddCar(0, 90);   // 10 to the first
    World.AddCar(95, 100); // 5 to the second
    Car(1).NextCheckpoint = 1;
    EXPECT_EQ(Places(), (Ints{2, 1}));
}

TEST_F(RaceLogic, EqualCarsShareAPlaceAndTheNextIsThird)
{
    World.AddCar(0, 80);
    World.AddCar(20, 100);
    World.AddCar(0, 50);
    EXPECT_EQ(Places(), (Ints{1, 1, 3}));
}

TEST_F(RaceLogic, PlacesAgreeWithTheirDefinition)
{
    base::Random random;
    random.Seed(3);
    for (int n = 0; n < 60; ++n)
    {
        World.AddCar(static_cast<float>(base::Floor(random.Next() * 6)), 0);
        Car(n).Passed = static_cast<std::int16_t>(base::Floor(random.Next() * 4));
        if (n % 9 == 0)
            Car(n).NextCheckpoint = 77;
        if (n % 11 == 0)
            World.Object(n).Z = std::numeric_limits<float>::quiet_NaN();
    }
    const auto toGo = [&](std::int32_t n)
    {
        return Car(n).NextCheckpoint == 77 ? std::numeric_limits<double>::quiet_NaN()
                                           : render::Dist2D(World.Object(n).X, World.Object(n).Z, 0, 100);
    };
    const Ints places = Places();
    for (int i = 0; i < 60; ++i)
    {
        int place = 1;
        for (int j = 0; j < 60; ++j)
            if (Car(j).Passed > Car(i).Passed || (Car(j).Passed == Car(i).Passed && toGo(j) < toGo(i)))
                ++place;
        EXPECT_EQ(places[static_cast<std::size_t>(i)], place) << i;
    }
}

TEST_F(RaceLogic, WithoutCheckpointsAllShareTheFirstPlace)
{
    World.SetCheckpoints({});
    World.AddCar(0, 0);
    World.AddCar(10, 0);
    EXPECT_EQ(Places(), (Ints{1, 1}));
}

TEST_F(RaceLogic, ManyPlayersStopAtTheGreatestPlace)
{
    World.AddCar(0, 0);
    World.Race.Players.resize(32767, World.Race.Players[0]);
    World.AddBall(0, 200, 1, 1);
    for (world::Player& player : World.Race.Players)
        player.Passed = 1;
    Car(0).Passed = 0;
    EXPECT_EQ(Places()[0], 32767);
}

TEST_F(RaceLogic, ACheckpointIsPassedOnceInsideItsZone)
{
    World.AddCar(3, 97);
    Step();
    EXPECT_EQ(Car().Passed, 1);
    EXPECT_EQ(Car().NextCheckpoint, 1);
    EXPECT_EQ(Car().Lap, 0);
    Step();
    EXPECT_EQ(Car().Passed, 1);
}

TEST_F(RaceLogic, TheEdgeOfTheZoneIsOutside)
{
    World.AddCar(0, 95);
    Step();
    EXPECT_EQ(Car().Passed, 0);
}

TEST_F(RaceLogic, TheAlternativeZonePassesAsWell)
{
    World.Race.Map.ACheckpoints.Items = {{50, 0, 50, 3}};
    World.AddCar(50, 48);
    Step();
    EXPECT_EQ(Car().Passed, 1);
    EXPECT_EQ(Car().NextCheckpoint, 1);
    World.Object(0).X = 0.0f; // the list is too short for checkpoint 1
    Step();
    EXPECT_EQ(Car().Passed, 1);
}

TEST_F(RaceLogic, TheLastCheckpointCompletesTheLap)
{
    World.AddCar(100, 100);
    Car().NextCheckpoint = 1;
    Car().Passed = 1;
    Step();
    EXPECT_EQ(Car().NextCheckpoint, 0);
    EXPECT_EQ(Car().Lap, 1);
    EXPECT_EQ(Car().Passed, 2);
}

TEST_F(RaceLogic, ThePaceOfTheNextLegIsDrawn)
{
    for (const auto& [draws, pace, used] : {std::tuple{std::vector<double>{0.2}, 1.0f, 1u},
                                            {{0.1999, 0.0}, 0.75f, 2u},
                                            {{0.0, 0.5}, 1.0f, 2u},
                                            {{0.1, 0.999999}, 1.2499995f, 2u}})
    {
        World.Scene.Objects = {};
        World.Race.Players.clear();
        World.AddCar(0, 100);
        World.Random.Script = draws;
        World.Random.ScriptNext = 0;
        Car().Pace = 7.0f;
        Step();
        EXPECT_FLOAT_EQ(Car().Pace, pace);
        EXPECT_EQ(World.Random.ScriptNext, used);
        Step(); // not passed again, not drawn again
        EXPECT_EQ(World.Random.ScriptNext, used);
    }
}

TEST_F(RaceLogic, OneLapIsFinishedAtItsLastCheckpoint)
{
    BringToFinish(1);
    Step();
    EXPECT_EQ(Finish.Messages, std::vector<std::string>{"Sei arrivato primo"});
    EXPECT_EQ(World.Race.RaceOver, -1);
    EXPECT_EQ(Car().Control, 1);
    EXPECT_EQ(World.Camera.View, 5);
    Step(); // only once
    EXPECT_EQ(Finish.Messages.size(), 1u);
}

TEST_F(RaceLogic, TheRaceGoesOnBeforeTheLastLap)
{
    BringToFinish(1);
    World.Race.Laps = 2;
    Step();
    EXPECT_TRUE(Finish.Messages.empty());
    EXPECT_EQ(World.Race.RaceOver, 0);
    EXPECT_EQ(Cup().Visible, 0);
}

TEST_F(RaceLogic, TheFinishIsLookedAtInEveryTick)
{
    World.AddCar(0, 0); // near no checkpoint
    Car().Lap = 5;
    Car().Place = 2;
    Step();
    EXPECT_EQ(Finish.Messages, std::vector<std::string>{"Sei arrivato secondo"});
}

TEST_F(RaceLogic, OnlyTheUserFinishes)
{
    BringToFinish(1);
    World.Race.UserPlayer = 1;
    Step();
    EXPECT_EQ(Car().Lap, 1);
    EXPECT_TRUE(Finish.Messages.empty());
    EXPECT_EQ(Car().Control, 0);
}

TEST_F(RaceLogic, TheTrophyShowsItsMetal)
{
    struct Medal
    {
        std::int16_t Place;
        int R, G, B;
        std::int32_t Colour;
        const char* Message;
    };
    for (const Medal& medal : {Medal{1, 255, 255, 0, 65535, "Sei arrivato primo"},
                               {2, 210, 216, 219, 14407890, "Sei arrivato secondo"},
                               {3, 198, 82, 26, 1725126, "Sei arrivato terzo"}})
    {
        World.Scene.Objects = {};
        World.Race.Players.clear();
        World.Race.RaceOver = 0;
        Finish.Messages.clear();
        BringToFinish(medal.Place);
        Step();
        EXPECT_EQ(Cup().Visible, 1);
        for (const std::size_t mesh : {6u, 7u})
        {
            EXPECT_EQ(Cup().Mesh[mesh].Colour, medal.Colour);
            EXPECT_EQ(Cup().Mesh[mesh].Col.R, medal.R);
            EXPECT_EQ(Cup().Mesh[mesh].Col.G, medal.G);
            EXPECT_EQ(Cup().Mesh[mesh].Col.B, medal.B);
        }
        EXPECT_EQ(Cup().Mesh[5].Colour, 0);
        EXPECT_EQ(Finish.Messages, std::vector<std::string>{medal.Message});
    }
}

TEST_F(RaceLogic, FromFourthPlaceOnThereIsNoTrophy)
{
    BringToFinish(5);
    Step();
    EXPECT_EQ(Cup().Visible, 0);
    EXPECT_EQ(Finish.Messages, std::vector<std::string>{"Sei arrivato 5°"});
}

TEST_F(RaceLogic, ATrophyThatIsNotThereOrHasFewMeshes)
{
    BringToFinish(1);
    Cup().Mesh.resize(7);
    Step();
    EXPECT_EQ(Cup().Mesh[6].Colour, 65535);
    World.Race.RaceOver = 0;
    World.Assets.CupObj = -1;
    Step();
    EXPECT_EQ(Finish.Messages.size(), 2u);
}

TEST_F(RaceLogic, TheStepAppliesTheZonesOfEveryCar)
{
    World.Race.Map.Grass.Items = {{0, 0, 0, 10}};
    for (int n = 0; n < 3; ++n)
    {
        World.AddCar(0, static_cast<float>(n));
        Car(n).Speed = 2.0f;
    }
    Step();
    for (int n = 0; n < 3; ++n)
        EXPECT_EQ(Car(n).Speed, 1.96f);
}

TEST_F(RaceLogic, AFollowedCarThatDoesNotExistStandsInNoBox)
{
    World.AddCar(0, 0);
    World.InBox = true;
    World.Camera.ViewPlayer = 9;
    Step();
    EXPECT_FALSE(World.InBox);
}

TEST_F(RaceLogic, CountersStopAtTheirGreatestValue)
{
    World.AddCar(100, 100);
    Car().NextCheckpoint = 1;
    Car().Passed = Car().Lap = 32767;
    World.Race.Laps = 32767;
    World.Race.RaceOver = -1;
    Step();
    EXPECT_EQ(Car().Passed, 32767);
    EXPECT_EQ(Car().Lap, 32767);
    EXPECT_EQ(Car().NextCheckpoint, 0);
}

TEST_F(RaceLogic, IndicesOutOfRangePassNothing)
{
    World.AddCar(0, 100);
    World.Race.Map.ACheckpoints.Items.assign(5, world::Target{0, 0, 100, 50});
    for (const std::int16_t next : std::initializer_list<std::int16_t>{-1, 2, 3, 32767, -32768})
    {
        Car().NextCheckpoint = next;
        Step();
        EXPECT_EQ(Car().NextCheckpoint, next);
    }
    EXPECT_EQ(Car().Passed, 0);
    Car().NextCheckpoint = 0;
    Car().Obj = 99;
    Step();
    EXPECT_EQ(Car().Passed, 0);
    World.SetCheckpoints({});
    Car().Obj = 0;
    Step();
    EXPECT_EQ(Car().Passed, 0);
}
