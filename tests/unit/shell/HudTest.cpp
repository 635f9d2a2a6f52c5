// SPDX-License-Identifier: Zlib
// The read-outs of the frame tick.
#include "shell/HudElements.h"
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
using shell::Hud;

struct HudTest : testing::Test, support::LoadedForm
{
    std::string TextOf(std::int16_t Hud::*which)
    {
        Form.Race().RenderT_Tick();
        return Label(which).Text;
    }
    render::Rect2D& Bar() { return Game().Scene.Rects.At(Game().Hud.DamageBar); }
    std::string ColourAt(float damage)
    {
        Player(0).Damage = damage;
        Form.Race().RenderT_Tick();
        return std::to_string(Bar().Col.R) + "," + std::to_string(Bar().Col.G) + "," + std::to_string(Bar().Col.B);
    }
    std::int16_t RightEdgeAt(float damage)
    {
        Player(0).Damage = damage;
        Form.Race().RenderT_Tick();
        return Bar().W;
    }
};

TEST_F(HudTest, SpeedTakesTheFloorBeforeTheSignIsDropped)
{
    StartRace();
    const auto shown = [this](float speed)
    {
        Player(0).Speed = speed;
        return TextOf(&Hud::Speed);
    };
    EXPECT_EQ(shown(0), "0");
    EXPECT_EQ(shown(-0.01f), "1");
    EXPECT_EQ(shown(0.01f), "0");
    EXPECT_EQ(shown(2.5f), "90");
    EXPECT_EQ(shown(-0.5f), "18");
    EXPECT_EQ(shown(std::numeric_limits<float>::quiet_NaN()), "18"); // a read-out that fails keeps its text
    EXPECT_EQ(shown(1), "36");
}

TEST_F(HudTest, GearAndPlaceDescribeTheFollowedCar)
{
    StartRace();
    Player(1).Speed = 2;
    Player(1).Place = 3;
    EXPECT_EQ(TextOf(&Hud::Gear), "N");
    Game().Camera.ViewPlayer = 1;
    EXPECT_EQ(TextOf(&Hud::Gear), "4");
    EXPECT_EQ(TextOf(&Hud::Place), "3/3");
    Player(1).Speed = -1;
    EXPECT_EQ(TextOf(&Hud::Gear), "R");
}

TEST_F(HudTest, LapsCountFromOneUntilTheFinish)
{
    StartRace();
    EXPECT_EQ(TextOf(&Hud::LapCounter), "1/5");
    Player(0).Lap = 11;
    Game().Race.Laps = 99;
    EXPECT_EQ(TextOf(&Hud::LapCounter), "12/99");
    Game().Race.RaceOver = base::True;
    Player(0).Lap = 20;
    EXPECT_EQ(TextOf(&Hud::LapCounter), "12/99");
}

TEST_F(HudTest, TheLapsCaptionStandsSixPixelsLeftOfTheCounter)
{
    StartRace();
    Form.Race().RenderT_Tick();
    // "1/5": three glyphs of 10 pixels at scale 0.7, one pixel between.
    EXPECT_EQ(Label(&Hud::LapsCaption).X, 600 - 24 - 6);
    Player(0).Lap = 9;
    Form.Race().RenderT_Tick();
    EXPECT_EQ(Label(&Hud::LapsCaption).X, 600 - 32 - 6);
}

TEST_F(HudTest, TheCountdownCountsToFourSeconds)
{
    StartRace();
    const auto shown = [this](std::int32_t time)
    {
        Game().Race.GameTime = time;
        const std::string text = TextOf(&Hud::Countdown);
        return Label(&Hud::Countdown).Visible != 0 ? text : "hidden";
    };
    EXPECT_EQ(shown(0), "3");
    EXPECT_EQ(shown(999), "3");
    EXPECT_EQ(shown(1000), "2");
    EXPECT_EQ(shown(1999), "2");
    EXPECT_EQ(shown(2000), "1");
    EXPECT_EQ(shown(2999), "1");
    EXPECT_EQ(shown(3000), "Via!");
    EXPECT_EQ(shown(3999), "Via!");
    EXPECT_EQ(shown(4000), "hidden");
    EXPECT_EQ(shown(-5), "3"); // the clock set back
}

TEST_F(HudTest, TheDamageBarChangesItsColour)
{
    StartRace();
    EXPECT_EQ(ColourAt(0), "0,180,0");
    EXPECT_EQ(ColourAt(1), "0,180,0");
    EXPECT_EQ(ColourAt(1.01f), "230,230,0");
    EXPECT_EQ(ColourAt(3), "230,230,0");
    EXPECT_EQ(ColourAt(3.01f), "180,0,0");
    EXPECT_EQ(ColourAt(9), "180,0,0");
}

TEST_F(HudTest, TheDamageBarShrinksToAStub)
{
    StartRace();
    EXPECT_EQ(RightEdgeAt(0), 599);
    EXPECT_EQ(RightEdgeAt(2.5f), 307);
    EXPECT_EQ(RightEdgeAt(5), 15);
    EXPECT_EQ(RightEdgeAt(5.1f), 15);
    EXPECT_EQ(RightEdgeAt(1000), 15);
    Bar().Visible = 0;
    EXPECT_EQ(RightEdgeAt(0), 15); // hidden, it is left alone
}

TEST_F(HudTest, TheDebugLabelCountsWhileItShows)
{
    StartRace();
    EXPECT_EQ(TextOf(&Hud::Debug), "");
    Label(&Hud::Debug).Visible = 1;
    Game().Scene.ParticleCount = 12;
    EXPECT_EQ(TextOf(&Hud::Debug), "Particles:\t12\r\nRender int:\t50");
}

TEST_F(HudTest, TheNoticeFadesInAndOut)
{
    StartRace();
    Label(&Hud::Notice).Visible = 1;
    Game().Run.NoticeTime = 10000;
    const auto fade = [this](std::int32_t time)
    {
        Game().Race.GameTime = 10000 + time;
        Form.Race().RenderT_Tick();
        return Label(&Hud::Notice).Visible != 0 ? Label(&Hud::Notice).Fade : -1;
    };
    EXPECT_FLOAT_EQ(fade(0), 0);
    EXPECT_FLOAT_EQ(fade(750), 0.5f);
    EXPECT_FLOAT_EQ(fade(1500), 1);
    EXPECT_FLOAT_EQ(fade(3499), 1);
    EXPECT_FLOAT_EQ(fade(3500), 1);
    EXPECT_FLOAT_EQ(fade(4250), 0.5f);
    EXPECT_FLOAT_EQ(fade(-400), 0);
    EXPECT_FLOAT_EQ(fade(5000), -1);
    EXPECT_FLOAT_EQ(fade(100), -1); // hidden for good
}

TEST_F(HudTest, TheFrameRateIsMeasuredEveryHalfSecond)
{
    StartRace();
    Pass(2000);
    EXPECT_EQ(Game().Run.Fps, 20);
    EXPECT_EQ(Label(&Hud::FrameRate).Text, "20 fps");
    EXPECT_EQ(Label(&Hud::FrameRate).Col.G, 200);
    EXPECT_EQ(Label(&Hud::FrameRate).Col.R, 0);
}

TEST_F(HudTest, TheNextMeasurementComesFiveHundredMillisecondsLater)
{
    StartRace();
    Pass(50); // the first frame measures itself
    EXPECT_EQ(Game().Timers.RenderT.Ticks, 0);
    Pass(450);
    EXPECT_EQ(Game().Timers.RenderT.Ticks, 9);
    Pass(50);
    EXPECT_EQ(Game().Timers.RenderT.Ticks, 0);
}

TEST_F(HudTest, TwoBelowTheTargetIsStillGreen)
{
    StartRace();
    Pass(60);
    const auto measure = [this](std::int32_t ticks)
    {
        Machine.Clock += 500;
        Game().Run.FpsLastTime = Machine.Clock - 500;
        Game().Run.FpsNextTime = Machine.Clock;
        Game().Timers.RenderT.Ticks = ticks - 1; // the tick itself counts
        Form.Race().RenderT_Tick();
        return Label(&Hud::FrameRate).Text + (Label(&Hud::FrameRate).Col.G == 200 ? " green" : " red");
    };
    EXPECT_EQ(measure(9), "18 fps green");
    EXPECT_EQ(measure(8), "16 fps red");
    Game().Settings.TargetFps = 18;
    EXPECT_EQ(measure(8), "16 fps green");
}

TEST_F(HudTest, PausingKeepsTheDisplayAlive)
{
    StartRace();
    Pass(1000);
    PressAndRelease(80);
    const std::int32_t time = Game().Race.GameTime;
    Pass(2000);
    EXPECT_EQ(Game().Race.GameTime, time);
    EXPECT_EQ(Label(&Hud::Countdown).Text, "2");
    EXPECT_EQ(Label(&Hud::FrameRate).Text, "20 fps");
    Player(0).Speed = 1;
    Pass(60);
    EXPECT_EQ(Label(&Hud::Speed).Text, "36");
    PressAndRelease(80);
    Pass(25);
    EXPECT_EQ(Game().Race.GameTime, time + 25);
}

TEST_F(HudTest, OneFailingReadOutNeverStopsTheFrame)
{
    StartRace();
    Game().Camera.ViewPlayer = 99;
    Game().Race.GameTime = 2500;
    EXPECT_EQ(TextOf(&Hud::Countdown), "1");
    Game().Hud.Speed = 999;
    Game().Camera.ViewPlayer = 0;
    Player(0).Speed = 1;
    EXPECT_EQ(TextOf(&Hud::Gear), "2");
}

TEST_F(HudTest, SixteenElementsStandAtTheirAnchors)
{
    Load();
    const render::Scene& scene = Game().Scene;
    EXPECT_EQ(scene.Pics.Items.size() + scene.Rects.Items.size() + scene.Labels.Items.size(), 16u);
    const auto at = [&](std::int16_t Hud::*which)
    { return std::to_string(Label(which).X) + "," + std::to_string(Label(which).Y); };
    EXPECT_EQ(at(&Hud::Unit), "599,18");
    EXPECT_EQ(at(&Hud::Speed), "565,13");
    EXPECT_EQ(at(&Hud::Gear), "599,1");
    EXPECT_EQ(at(&Hud::Place), "599,281");
    EXPECT_EQ(at(&Hud::Message), "300,136");
    EXPECT_EQ(at(&Hud::LapsCaption), "560,264");
    EXPECT_EQ(at(&Hud::LapCounter), "599,262");
    EXPECT_EQ(at(&Hud::FrameRate), "1,292");
    EXPECT_EQ(at(&Hud::Countdown), "300,136");
    EXPECT_EQ(at(&Hud::Notice), "1,15");
    EXPECT_EQ(at(&Hud::Console), "1,272");
    EXPECT_EQ(at(&Hud::Pause), "300,234");
    EXPECT_EQ(at(&Hud::Debug), "599,232");
    EXPECT_EQ(scene.Pics.At(Game().Hud.Webcam).X, 5);
    EXPECT_EQ(scene.Pics.At(Game().Hud.Webcam).Y, 222);
    EXPECT_EQ(scene.Pics.At(Game().Hud.Repair).Y, 14);
    EXPECT_EQ(Bar().X, 0);
    EXPECT_EQ(Bar().Y, 3);
    EXPECT_EQ(Bar().H, 5);
    EXPECT_EQ(Label(&Hud::Unit).Text, "Km/h");
    EXPECT_EQ(Label(&Hud::Countdown).Scale, 2);
    EXPECT_EQ(Label(&Hud::Debug).TabWidth, 3);
    EXPECT_EQ(Label(&Hud::Pause).Text, "PAUSA");
    EXPECT_EQ(Label(&Hud::Console).Text, "\\");
}

TEST_F(HudTest, AnotherResolutionMovesThem)
{
    Load();
    shell::PlaceHud(Game().Scene, Game().Hud, 241, 201);
    EXPECT_EQ(Label(&Hud::Message).X, 120);
    EXPECT_EQ(Label(&Hud::Message).Y, 80);
    EXPECT_EQ(Label(&Hud::Pause).Y, 151); // 150.75
    EXPECT_EQ(Label(&Hud::Unit).X, 240);
    EXPECT_EQ(Game().Scene.Pics.At(Game().Hud.Webcam).Y, 111);
}

TEST_F(HudTest, TheSpannerIsAPictureOfSeveralColours)
{
    Load();
    const render::Pic2D& pic = Game().Scene.Pics.At(Game().Hud.Repair);
    EXPECT_EQ(pic.Pic.Info.Width, 32);
    EXPECT_EQ(pic.Pic.Info.Height, 32);
    EXPECT_EQ(pic.Visible, 0);
    const auto brightness = [&](std::int32_t x, std::int32_t row) { return pic.Pic.Pixels.Row(row)[3 * x + 1]; };
    EXPECT_GT(brightness(16, 16), 150); // the shaft
    EXPECT_LT(brightness(16, 26), 80);  // the tile
}
}
