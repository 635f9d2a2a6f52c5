// SPDX-License-Identifier: Zlib
// Start-up and shut-down of the main window.
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
struct Start : testing::Test, support::LoadedForm
{
    // The title and text of a box, for comparisons that print both.
    std::string BoxText(std::size_t index)
    {
        return index < Machine.Boxes.size() ? Machine.Boxes[index].Title + "|" + Machine.Boxes[index].Text : "none";
    }
};

constexpr const char* VideoFailed =
    "Velkar|Si è verificato un errore durante l'inizializzazione del modulo video\r\nL'applicazione verrà chiusa";

TEST_F(Start, LoadsWithoutAWordIntoTheMenu)
{
    Load();
    EXPECT_EQ(Machine.Boxes.size(), 0u) << BoxText(0);
    EXPECT_FALSE(Form.Ended());
    EXPECT_TRUE(Window().Visible);
    for (const char* name : {"cSTART", "cOPZIONI", "cCREDIT", "cEXIT", "imgLogo", "imgLogoBG", "cSTART2", "cEXIT2"})
        EXPECT_EQ(Control(name).Visible, base::True) << name;
    EXPECT_EQ(Control("cSTART").Caption, "Avvia partita");
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::False);
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::False);
}

TEST_F(Start, SettingsBeginAtTheirDefaults)
{
    Load();
    EXPECT_EQ(Game().Race.Laps, 5);
    EXPECT_EQ(Game().Settings.TargetFps, 20);
    EXPECT_EQ(Game().Timers.RenderT.interval, 50);
    EXPECT_EQ(Game().Timers.GameT.interval, 25);
    EXPECT_EQ(Game().Timers.RenderT.mininterval, 2);
    EXPECT_EQ(Game().Screen.ScreenW, 600);
    EXPECT_EQ(Game().Screen.ScreenH, 312);
    EXPECT_EQ(Game().Settings.FullScreen, base::False);
    EXPECT_EQ(Window().ClientSize().Width, 600);
    EXPECT_EQ(Window().ClientSize().Height, 312);
    EXPECT_EQ(Game().Run.LastCommand, "\\");
    EXPECT_EQ(Game().Run.AudioReady, -1);
    EXPECT_EQ(Game().Camera.CamX, 65);
    EXPECT_EQ(Game().Camera.CamY, 100);
    EXPECT_EQ(Game().Camera.CamZ, 35);
    EXPECT_EQ(Game().Camera.Radius, 14);
    EXPECT_EQ(Game().Screen.NearZ, 0.01f);
    EXPECT_EQ(Game().Screen.FarZ, 400);
}

TEST_F(Start, WithoutADeviceTheWebcamStaysOff)
{
    Load();
    EXPECT_EQ(Control("chkWebcam").Enabled, base::False);
    EXPECT_EQ(Control("chkWebcam").Value, 0);
    EXPECT_EQ(Game().Settings.WebcamOn, base::False);
}

TEST_F(Start, SeveralProcessorsGiveTheBestPicture)
{
    Machine.Processors = 4;
    Load();
    EXPECT_EQ(Game().Screen.ThreadCount, 9);
    EXPECT_EQ(Game().Screen.TxtFilter, 2);
    EXPECT_EQ(Game().Settings.EffQuality, 1.0f);
}

TEST_F(Start, OneProcessorGivesALighterOne)
{
    Machine.Processors = 1;
    Load();
    EXPECT_EQ(Game().Screen.ThreadCount, 3);
    EXPECT_EQ(Game().Screen.TxtFilter, 1);
    EXPECT_EQ(Game().Settings.EffQuality, 0.75f);
}

TEST_F(Start, TheDevelopmentSwitchAsksForLittle)
{
    Game().Screen.SingleThread = true;
    Load();
    EXPECT_EQ(Game().Screen.ThreadCount, 1);
    EXPECT_EQ(Game().Screen.TxtFilter, 1);
    EXPECT_EQ(Game().Settings.EffQuality, 0.0f);
    EXPECT_EQ(Game().Settings.TargetFps, 6);
    EXPECT_EQ(Game().Timers.RenderT.interval, 166);
}

TEST_F(Start, DrawsAreSeededFromTheClockUnlessAScriptGivesThem)
{
    Machine.Seed = 77;
    Load();
    base::Random other;
    other.Seed(77);
    other.Next(); // the first track
    EXPECT_EQ(Game().Random.Next(), other.Next());

    shell::Form1 scripted(Machine);
    scripted.State().Random.Script = {0.25, 0.5};
    scripted.Form_Load();
    EXPECT_EQ(scripted.State().Random.Next(), 0.5);
}

TEST_F(Start, BindingsComeFromTheTags)
{
    Load();
    const std::array<std::int16_t, 11> expected = {17, 9, 66, 34, 33, 67, 38, 40, 37, 39, 32};
    EXPECT_EQ(Game().Bindings.Bindings, expected);
}

struct MissingPicture : Start, testing::WithParamInterface<const char*>
{
};

TEST_P(MissingPicture, EndsTheProgramAfterTwoBoxes)
{
    World.Remove(GetParam());
    Form.Form_Load();
    ASSERT_EQ(Machine.Boxes.size(), 2u);
    EXPECT_EQ(BoxText(0), "Errore 53|Impossibile trovare il file in LoadPicArray2D");
    EXPECT_EQ(BoxText(1), VideoFailed);
    EXPECT_EQ(Machine.Boxes[1].Icon, base::Icon::Critical);
    EXPECT_TRUE(Form.Ended());
}

INSTANTIATE_TEST_SUITE_P(OfTheVideoModule, MissingPicture,
                         testing::Values("data/images/inside.bmp", "data/images/sky.bmp", "data/sprites/smoke.bmp",
                                         "data/sprites/water.bmp", "data/sprites/fireR.bmp", "data/sprites/fireY.bmp"));

TEST_F(Start, ShortPictureEndsTheProgramToo)
{
    World.Write("data/images/sky.bmp", support::Bitmap(820, 8, 1, 2, 3).substr(0, 100));
    Form.Form_Load();
    ASSERT_EQ(Machine.Boxes.size(), 2u);
    EXPECT_EQ(BoxText(0), "Errore 62|Input oltre la fine del file in LoadPicArray2D");
    EXPECT_EQ(BoxText(1), VideoFailed);
    EXPECT_TRUE(Form.Ended());
}

TEST_F(Start, MissingModelsAndTexturesAreReportedAndPassedOver)
{
    World.Remove("data/models/gps.3dm");
    World.Remove("data/models/cup.3dm");
    World.Remove("data/textures/glass.bmp");
    StartRace();
    ASSERT_EQ(Machine.Boxes.size(), 3u);
    EXPECT_EQ(BoxText(0), "Errore 53|Impossibile trovare il file in LoadPicArray2D");
    EXPECT_EQ(BoxText(1), "Errore 53|Impossibile trovare il file in LoadObject");
    EXPECT_EQ(BoxText(2), "Errore 53|Impossibile trovare il file in LoadObject");
    EXPECT_FALSE(Form.Ended());
    Game().Race.RaceOver = base::True;
    Pass(200); // neither arrow nor trophy is there
    EXPECT_EQ(Game().Race.GameTime, 200);
}

TEST_F(Start, MissingMapLeavesAnEmptyWorldThatRuns)
{
    World.Remove("data/maps/map_01/map.loader");
    StartRace();
    ASSERT_EQ(Machine.Boxes.size(), 1u);
    EXPECT_EQ(BoxText(0), "Errore 53|Impossibile trovare il file in LoadMap");
    for (const int key : {33, 34, 67, 49, 55, 17, 80, 80, 220, 38, 27})
        PressAndRelease(key);
    Pass(5000);
    EXPECT_EQ(Label(&shell::Hud::Speed).Text, "0");
    EXPECT_EQ(Label(&shell::Hud::Countdown).Visible, 0);
}

TEST_F(Start, MissingFontIsNoError)
{
    std::filesystem::remove_all(World.Files().Resolve("data/fonts"));
    StartRace();
    Pass(300);
    EXPECT_EQ(Machine.Boxes.size(), 0u);
    // "Giri" stands left of a counter that has no width.
    EXPECT_EQ(Label(&shell::Hud::LapsCaption).X, 594);
}

TEST_F(Start, ClosingFreesEverything)
{
    Load();
    EXPECT_TRUE(Form.CloseAsked());
    EXPECT_TRUE(Form.Ended());
    EXPECT_TRUE(Game().Scene.Sky.Pixels.Empty());
    EXPECT_TRUE(Game().Pictures.Inside.Pixels.Empty());
    EXPECT_EQ(Game().Assets.Smoke, nullptr);
    EXPECT_EQ(Game().Assets.Water, nullptr);
    EXPECT_EQ(Game().Assets.FireRed, nullptr);
    EXPECT_EQ(Game().Assets.FireYellow, nullptr);
    EXPECT_EQ(Game().Scene.Objects.Count, 0);
    for (const render::Texture& texture : Game().Scene.Textures.Items)
        EXPECT_NE(texture.Free, 0);
    EXPECT_EQ(Machine.Boxes.size(), 0u);
}

TEST_F(Start, ClosingIsRefusedBeforeTheAudioIsReadyAndTheResourcesAreGone)
{
    StartRace();
    Pass(100);
    Game().Run.AudioReady = 0;
    EXPECT_FALSE(Form.CloseAsked());
    EXPECT_FALSE(Form.Ended());
    EXPECT_EQ(Game().Scene.Objects.Count, 0);
    EXPECT_TRUE(Game().Scene.Sky.Pixels.Empty());
    Pass(4000); // goes on with what is left
    Form.Race().Draw();
    EXPECT_EQ(Machine.Boxes.size(), 0u) << BoxText(0);
    Game().Run.AudioReady = -1;
    EXPECT_TRUE(Form.CloseAsked());
    EXPECT_TRUE(Form.Ended());
}

TEST_F(Start, ExitClosesFromTheMenu)
{
    Load();
    EXPECT_TRUE(Form.Click("cEXIT"));
    EXPECT_TRUE(Form.Ended());
    EXPECT_FALSE(Form.Click("cSTART"));
}
}
