// How settings take effect.
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
struct SettingsTest : testing::Test, support::LoadedForm
{
};

TEST_F(SettingsTest, TheFrameRateSetsTheInterval)
{
    Load();
    const std::pair<std::int16_t, std::int32_t> rates[] = {{5, 200}, {20, 50}, {25, 40}, {30, 33}};
    for (const auto& [fps, interval] : rates)
    {
        Form.ApplyFrameRate(fps);
        EXPECT_EQ(Game().Timers.RenderT.interval, interval);
        EXPECT_EQ(Game().Settings.TargetFps, fps);
    }
}

TEST_F(SettingsTest, AResolutionMovesTheDisplayAndKeepsItsOwnTexts)
{
    Load();
    Form.ApplyResolution(320, 240);
    EXPECT_EQ(Game().Screen.ScreenW, 320);
    EXPECT_EQ(Game().Screen.Frame.Rows, 240);
    EXPECT_EQ(Game().Camera.MinZoom, 120);
    EXPECT_EQ(Game().Camera.Zoom, 240);
    EXPECT_EQ(Label(&shell::Hud::Message).X, 160);
    EXPECT_EQ(Label(&shell::Hud::Message).Y, 100);
    EXPECT_EQ(Label(&shell::Hud::Unit).Text, "Km/h");
}

TEST_F(SettingsTest, TheSameResolutionRebuildsNothing)
{
    Load();
    Game().Camera.Zoom = 777;
    Label(&shell::Hud::Message).X = 5;
    Form.ApplyResolution(600, 312);
    EXPECT_EQ(Game().Camera.Zoom, 777);
    EXPECT_EQ(Label(&shell::Hud::Message).X, 5);
    Form.ApplyResolution(600, 313);
    EXPECT_EQ(Label(&shell::Hud::Message).X, 300);
}

TEST_F(SettingsTest, OnceTheRaceHasBegunAFrameOfTheNewSizeIsDrawn)
{
    StartRace();
    Pass(100);
    PressAndRelease(27);
    const auto isBlack = [this]
    {
        for (const std::uint8_t byte : Game().Screen.Frame.Bytes)
            if (byte != 0)
                return false;
        return true;
    };
    Form.ApplyResolution(320, 240);
    EXPECT_FALSE(isBlack());
    Game().Race.GameTime = 0;
    Form.ApplyResolution(640, 480);
    EXPECT_TRUE(isBlack());
}

TEST_F(SettingsTest, TheWindowTakesTheSizeOfTheFrameOrTheScreen)
{
    Load();
    Form.ApplyResolution(640, 480);
    Form.ApplyFullScreen(false);
    EXPECT_EQ(Window().ClientSize().Width, 640);
    EXPECT_EQ(Window().ClientSize().Height, 480);
    EXPECT_EQ(Control("panelOption").Place.W, 640);
    Form.ApplyFullScreen(true);
    EXPECT_EQ(Game().Settings.FullScreen, base::True);
    EXPECT_EQ(Window().ClientSize().Width, 1280);
    EXPECT_EQ(Control("panelOption").Place.W, 1280);
    EXPECT_EQ(Window().Screenshot().Width, 1280);
    Form.ApplyFullScreen(false);
    EXPECT_EQ(Window().ClientSize().Width, 640);
    EXPECT_EQ(Control("panelOption").Place.W, 640);
}
}
