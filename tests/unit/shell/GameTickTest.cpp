// SPDX-License-Identifier: Zlib
// The simulation step and its order.
#include "base/Math.h"
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
struct GameTick : testing::Test, support::LoadedForm
{
    void TickAt(std::int32_t time)
    {
        Game().Timers.GameT.Elapsed = time;
        Form.Race().GameT_Tick();
    }
};

TEST_F(GameTick, NoCarMovesBeforeThreeSeconds)
{
    StartRace();
    Form.KeyDown(38);
    Pass(2975);
    EXPECT_EQ(Car(0).Z, 20);
    EXPECT_EQ(Car(1).Z, 20);
    EXPECT_EQ(Player(0).Speed, 0);
    Pass(25); // the tick at exactly 3000 releases them
    EXPECT_GT(Car(0).Z, 20);
    EXPECT_GT(Car(1).Z, 20);
}

TEST_F(GameTick, FortyStepsASecond)
{
    StartRace();
    Pass(1000);
    EXPECT_EQ(Game().Timers.GameT.Ticks, 40);
    EXPECT_EQ(Game().Race.GameTime, 1000);
}

TEST_F(GameTick, TheClockIsReadFromTheTimer)
{
    StartRace();
    TickAt(123456);
    EXPECT_EQ(Game().Race.GameTime, 123456);
}

TEST_F(GameTick, PlacesAreComputedBeforeTheRaceStep)
{
    StartRace();
    // The user passes the last checkpoint in this very tick: the place is the one before it counts.
    Game().Race.Laps = 1;
    Player(0).NextCheckpoint = 2;
    Player(0).Passed = 2;
    Player(1).Passed = 3;
    Player(2).Passed = 3;
    Car(0).X = 100;
    TickAt(500);
    EXPECT_EQ(Player(0).Place, 3);
    EXPECT_EQ(Label(&shell::Hud::Message).Text, "Sei arrivato terzo");
    EXPECT_EQ(Label(&shell::Hud::Message).Visible, 1);
    EXPECT_EQ(Label(&shell::Hud::LapsCaption).Visible, 0);
    EXPECT_EQ(Label(&shell::Hud::LapCounter).Visible, 0);
    EXPECT_EQ(Game().Camera.View, 5);
    EXPECT_NE(Player(0).Control, 0);
}

TEST_F(GameTick, TheTrophyFloatsBeforeTheCameraOnceTheRaceIsOver)
{
    StartRace();
    Game().Camera.View = 7; // the camera stays
    Game().Camera.CamYaw = 0.3f;
    Game().Camera.CamPitch = -0.2f;
    const render::Obj& cup = Game().Scene.Objects.At(Game().Assets.CupObj);
    TickAt(500);
    EXPECT_EQ(cup.AngleA, 0);
    Game().Race.RaceOver = base::True;
    TickAt(525);
    TickAt(550);
    EXPECT_FLOAT_EQ(cup.AngleA, 0.1f);
    EXPECT_FLOAT_EQ(cup.AngleB, -0.1f);
    EXPECT_NEAR(cup.X, 65 - 5 * base::Sin(0.7), 1e-4);
    EXPECT_NEAR(cup.Y, 100 + 5 * base::Sin(0.1), 1e-4);
    EXPECT_NEAR(cup.Z, 35 + 5 * base::Cos(0.7), 1e-4);
}

TEST_F(GameTick, TheShakeFadesButAFastCarKeepsIt)
{
    StartRace();
    Game().Settings.WebcamOn = base::True;
    Game().Run.Shake = 2;
    TickAt(100);
    EXPECT_FLOAT_EQ(Game().Run.Shake, 1.92f);
    Game().Run.Shake = 0.6f;
    TickAt(125);
    EXPECT_FLOAT_EQ(Game().Run.Shake, 0.576f); // standing
    Player(0).Speed = 1;
    TickAt(150);
    EXPECT_FLOAT_EQ(Game().Run.Shake, 0.6f);
    Player(0).Speed = -1;
    Game().Run.Shake = 0;
    TickAt(175);
    EXPECT_FLOAT_EQ(Game().Run.Shake, 0.6f);
    Game().Settings.WebcamOn = base::False;
    Game().Run.Shake = 2;
    TickAt(200);
    EXPECT_EQ(Game().Run.Shake, 2);
}

TEST_F(GameTick, TheSpannerShowsWhileTheFollowedCarStandsInABox)
{
    StartRace();
    const auto shown = [this] { return Game().Scene.Pics.At(Game().Hud.Repair).Visible; };
    EXPECT_EQ(shown(), 0);
    Car(0).X = Car(0).Z = 150;
    TickAt(100);
    EXPECT_EQ(shown(), 1);
    Player(0).Speed = 0.5f;
    TickAt(125);
    EXPECT_EQ(shown(), 0);
    Player(0).Speed = 0;
    TickAt(150);
    EXPECT_EQ(shown(), 1);
    Game().Camera.ViewPlayer = 1;
    TickAt(175);
    EXPECT_EQ(shown(), 0);
}

TEST_F(GameTick, ThePlacementOfTheCameraComesLast)
{
    StartRace();
    Game().Camera.View = 5;
    Player(0).Speed = 2;
    Form.KeyDown(38);
    TickAt(3000);
    // The side view sits at once where the car has moved to.
    EXPECT_FLOAT_EQ(Game().Camera.CamZ, Car(0).Z - 1.3f * static_cast<float>(base::Sin(Car(0).AngleA)));
}

TEST_F(GameTick, IndicesOutOfRangeAreSurvived)
{
    StartRace();
    Game().Camera.ViewPlayer = 30000;
    Game().Race.UserPlayer = -7;
    Game().Settings.WebcamOn = base::True;
    Player(1).Obj = 31000;
    Player(2).NextCheckpoint = -5;
    for (std::int32_t time = 3000; time < 4000; time += 25)
        TickAt(time);
    Form.Race().RenderT_Tick();
    EXPECT_EQ(Machine.Boxes.size(), 0u);
}
}
