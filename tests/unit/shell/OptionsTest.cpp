// SPDX-License-Identifier: Zlib
// The option panels: every message, what is in force after it, and how the settings take effect.
#include "shell/panels/VideoOptions.h"
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
constexpr const char* NotLaps = "Il numero di giri deve essere un numero";
constexpr const char* LapsRange = "Il numero di giri deve essere compreso tra 1 e 99";
constexpr const char* NotRate = "La frequenza di aggiornamento deve essere un numero";
constexpr const char* RateRange = "La frequenza di aggiornamento deve essere compresa tra 5 e 30 fps";
constexpr const char* NoMark = "La risoluzione deve essere nel formato WxH";
constexpr const char* NotSizes = "I termini della risoluzione devono essere numeri";
constexpr const char* WidthRange = "La risoluzione orizzontale deve essere compresa tra 240 e 1200";
constexpr const char* HeightRange = "La risoluzione verticale deve essere compresa tra 200 e 900";

struct OptionsTest : testing::Test, support::LoadedForm
{
    OptionsTest() { Load(); }

    void Open(const char* panel, const char* button)
    {
        Form.Click("cOPZIONI");
        Form.Click(button);
        ASSERT_NE(Control(panel).Visible, base::False);
    }
    // The panel stays open with one message, and the wrong text in its box.
    void ExpectRefusal(const char* panel, const char* box, const std::string& typed, const std::string& text)
    {
        ASSERT_EQ(Machine.Boxes.size(), 1u) << typed;
        EXPECT_EQ(Machine.Boxes[0].Text, text) << typed;
        EXPECT_EQ(Machine.Boxes[0].Title, "Velkar") << typed;
        EXPECT_EQ(Machine.Boxes[0].Icon, base::Icon::Exclamation) << typed;
        EXPECT_NE(Control(panel).Visible, base::False) << typed;
        EXPECT_EQ(Control(box).Text, typed);
        Machine.Boxes.clear();
    }
    void Confirm(const char* button, const char* panel)
    {
        Form.Click(button);
        EXPECT_TRUE(Machine.Boxes.empty()) << Machine.Boxes[0].Text;
        EXPECT_EQ(Control(panel).Visible, base::False);
    }
};

TEST_F(OptionsTest, TheDesignedTextsAreTheDefaults)
{
    EXPECT_EQ(Game().Race.Laps, 5);
    EXPECT_EQ(Game().Settings.TargetFps, 20);
    EXPECT_EQ(Game().Timers.RenderT.interval, 50);
    EXPECT_EQ(Game().Screen.ScreenW, 600);
    EXPECT_EQ(Game().Screen.ScreenH, 312);
    EXPECT_EQ(Game().Settings.FullScreen, base::False);
    EXPECT_EQ(Game().Settings.WebcamOn, base::False);
    EXPECT_EQ(Control("txtRes").Items.size(), 5u);
    for (const char* panel : {"panelGameOpt", "panelVidOpt", "panelAudOpt", "panelWebcam"})
        EXPECT_EQ(Control(panel).Visible, base::False) << panel;
}

TEST_F(OptionsTest, LapsAreCheckedAndRounded)
{
    const std::pair<const char*, const char*> wrong[] = {
        {"", NotLaps},       {"cinque", NotLaps}, {" 5", NotLaps},      {"5 ", NotLaps},       {"5,5.5", NotLaps},
        {"inf", NotLaps},    {"0", LapsRange},    {"0,99", LapsRange},  {"-1", LapsRange},     {"100", LapsRange},
        {"99.5", LapsRange}, {"1e9", LapsRange},  {"1e999", LapsRange}, {"-1e999", LapsRange},
    };
    Open("panelGameOpt", "cGameOpt");
    for (const auto& [typed, text] : wrong)
    {
        Control("txtLap").Text = typed;
        Form.Click("cGameOptOK");
        ExpectRefusal("panelGameOpt", "txtLap", typed, text);
        EXPECT_EQ(Game().Race.Laps, 5);
    }
    const std::pair<const char*, int> right[] = {{"1", 1},  {"99", 99},  {"2.5", 2}, {"3,5", 4},
                                                 {"+7", 7}, {"1E1", 10}, {"12.", 12}};
    for (const auto& [typed, laps] : right)
    {
        Form.Click("cGameOpt");
        Control("txtLap").Text = typed;
        Confirm("cGameOptOK", "panelGameOpt");
        EXPECT_EQ(Game().Race.Laps, laps) << typed;
    }
}

TEST_F(OptionsTest, TheLapsBoxKeepsWhatItHeld)
{
    Open("panelGameOpt", "cGameOpt");
    Control("txtLap").Text = "7,0";
    Confirm("cGameOptOK", "panelGameOpt");
    Form.Click("cGameOpt");
    EXPECT_EQ(Control("txtLap").Text, "7,0");
}

TEST_F(OptionsTest, TheFrameRateIsChecked)
{
    const std::pair<const char*, const char*> wrong[] = {{"", NotRate},       {"venti", NotRate}, {"4", RateRange},
                                                         {"4.9", RateRange},  {"31", RateRange},  {"30,1", RateRange},
                                                         {"1e999", RateRange}};
    Open("panelVidOpt", "cVidOpt");
    for (const auto& [typed, text] : wrong)
    {
        Control("txtFreq").Text = typed;
        Form.Click("cVidOptOK");
        ExpectRefusal("panelVidOpt", "txtFreq", typed, text);
        EXPECT_EQ(Game().Settings.TargetFps, 20);
    }
}

TEST_F(OptionsTest, TheFrameRateSetsTheInterval)
{
    const std::tuple<const char*, int, int> rates[] = {
        {"5", 5, 200}, {"20", 20, 50}, {"25", 25, 40}, {"30", 30, 33}, {"12.5", 12, 83}};
    for (const auto& [typed, fps, interval] : rates)
    {
        Control("txtFreq").Text = typed;
        Confirm("cVidOptOK", "panelVidOpt");
        EXPECT_EQ(Game().Settings.TargetFps, fps);
        EXPECT_EQ(Game().Timers.RenderT.interval, interval);
    }
}

TEST_F(OptionsTest, TheResolutionIsCheckedWidthFirst)
{
    const std::pair<const char*, const char*> wrong[] = {{"", NoMark},
                                                         {"640*480", NoMark},
                                                         {"640X480", NoMark},
                                                         {"5x", NotSizes},
                                                         {"x", NotSizes},
                                                         {"x480", NotSizes},
                                                         {"640 x 480", NotSizes},
                                                         {"640x480x2", NotSizes},
                                                         {"axb", NotSizes},
                                                         {"239x100", WidthRange},
                                                         {"1201x900", WidthRange},
                                                         {"1201x901", WidthRange},
                                                         {"1200.5x900", WidthRange},
                                                         {"240x199", HeightRange},
                                                         {"240x901", HeightRange},
                                                         {"600x-312", HeightRange},
                                                         {"1e999x300", WidthRange},
                                                         {"300x1e999", HeightRange}};
    Open("panelVidOpt", "cVidOpt");
    for (const auto& [typed, text] : wrong)
    {
        Control("txtRes").Text = typed;
        Form.Click("cVidOptOK");
        ExpectRefusal("panelVidOpt", "txtRes", typed, text);
        EXPECT_EQ(Game().Screen.ScreenW, 600);
        EXPECT_EQ(Game().Screen.ScreenH, 312);
    }
}

TEST_F(OptionsTest, AfterARefusedResolutionTheNewFrameRateIsInForceAndNothingElse)
{
    Open("panelVidOpt", "cVidOpt");
    Control("txtFreq").Text = "25";
    Control("txtRes").Text = "5x";
    Control("chkFS").Value = 1;
    Form.Click("cVidOptOK");
    ExpectRefusal("panelVidOpt", "txtRes", "5x", NotSizes);
    EXPECT_EQ(Game().Timers.RenderT.interval, 40);
    EXPECT_EQ(Game().Settings.FullScreen, base::False);
}

TEST_F(OptionsTest, TheExtremeResolutionsAreAccepted)
{
    const std::tuple<const char*, int, int> sizes[] = {
        {"1200x900", 1200, 900}, {"240x200", 240, 200}, {"640.5x480,5", 640, 480}, {"1024x768", 1024, 768}};
    for (const auto& [typed, width, height] : sizes)
    {
        Control("txtRes").Text = typed;
        Confirm("cVidOptOK", "panelVidOpt");
        EXPECT_EQ(Game().Screen.ScreenW, width);
        EXPECT_EQ(Game().Screen.ScreenH, height);
        EXPECT_EQ(Window().ClientSize().Width, width);
        EXPECT_EQ(Window().ClientSize().Height, height);
        EXPECT_EQ(Control("panelOption").Place.W, width);
    }
}

TEST_F(OptionsTest, AResolutionMovesTheDisplayAndKeepsItsOwnTexts)
{
    Control("txtRes").Text = "320x240";
    Form.Click("cVidOptOK");
    EXPECT_EQ(Game().Screen.Frame.Rows, 240);
    EXPECT_EQ(Game().Camera.MinZoom, 120);
    EXPECT_EQ(Game().Camera.Zoom, 240);
    EXPECT_EQ(Label(&shell::Hud::Message).X, 160);
    EXPECT_EQ(Label(&shell::Hud::Message).Y, 100);
    EXPECT_EQ(Label(&shell::Hud::Unit).Text, "Km/h");
}

TEST_F(OptionsTest, TheSameResolutionRebuildsNothing)
{
    Game().Camera.Zoom = 777;
    Label(&shell::Hud::Message).X = 5;
    Form.Click("cVidOptOK");
    EXPECT_EQ(Game().Camera.Zoom, 777);
    EXPECT_EQ(Label(&shell::Hud::Message).X, 5);
    Control("txtRes").Text = "600x313";
    Form.Click("cVidOptOK");
    EXPECT_EQ(Label(&shell::Hud::Message).X, 300);
}

TEST_F(OptionsTest, OnceTheRaceHasBegunAFrameOfTheNewSizeIsDrawn)
{
    Form.Click("cSTART");
    Pass(100);
    PressAndRelease(27);
    const auto isBlack = [this]
    {
        const auto& bytes = Game().Screen.Frame.Bytes;
        return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
    };
    Control("txtRes").Text = "320x240";
    Form.Click("cVidOptOK");
    EXPECT_FALSE(isBlack());
    Game().Race.GameTime = 0;
    Control("txtRes").Text = "640x480";
    Form.Click("cVidOptOK");
    EXPECT_TRUE(isBlack());
}

TEST_F(OptionsTest, FullScreenCoversTheScreenAndGivesItBack)
{
    Control("txtRes").Text = "640x480";
    Control("chkFS").Value = 1;
    Confirm("cVidOptOK", "panelVidOpt");
    EXPECT_EQ(Game().Settings.FullScreen, base::True);
    EXPECT_EQ(Window().ClientSize().Width, 1280);
    EXPECT_EQ(Control("panelOption").Place.W, 1280);
    EXPECT_EQ(Window().Screenshot().Width, 1280);
    Control("chkFS").Value = 0;
    Confirm("cVidOptOK", "panelVidOpt");
    EXPECT_EQ(Game().Settings.FullScreen, base::False);
    EXPECT_EQ(Window().ClientSize().Width, 640);
    EXPECT_EQ(Window().ClientSize().Height, 480);
    EXPECT_EQ(Control("panelOption").Place.W, 640);
}

TEST_F(OptionsTest, TheCyclingLabelsActAtOnce)
{
    Open("panelVidOpt", "cVidOpt");
    EXPECT_EQ(Control("lblTxtFilter").Caption, "anisotropico");
    EXPECT_EQ(Control("lblEffQ").Caption, "alta");
    const std::pair<int, const char*> filters[] = {{0, "nessuno"}, {1, "lineare"}, {2, "anisotropico"}};
    for (const auto& [filter, name] : filters)
    {
        Form.Click("lblTxtFilter");
        EXPECT_EQ(Game().Screen.TxtFilter, filter);
        EXPECT_EQ(Control("lblTxtFilter").Caption, name);
    }
    const std::pair<float, const char*> qualities[] = {
        {0.0f, "nessuno"}, {0.3f, "bassa"}, {0.5f, "media"}, {1.0f, "alta"}};
    for (const auto& [quality, name] : qualities)
    {
        Form.Click("lblEffQ");
        EXPECT_EQ(Game().Settings.EffQuality, quality);
        EXPECT_EQ(Control("lblEffQ").Caption, name);
    }
}

TEST_F(OptionsTest, OpeningTheVideoPanelShowsWhatIsInForce)
{
    Game().Screen.TxtFilter = 7;
    Game().Settings.EffQuality = 2;
    Game().Settings.WebcamOn = base::True;
    Form.Click("cVidOpt");
    EXPECT_EQ(Control("lblTxtFilter").Caption, "");
    EXPECT_EQ(Control("lblEffQ").Caption, "");
    EXPECT_EQ(Control("chkWebcam").Value, 1);
}

TEST_F(OptionsTest, TheWebcamIsOnWhileItsBoxIsTicked)
{
    Control("chkWebcam").Value = 1;
    Form.Click("cVidOptOK");
    EXPECT_EQ(Game().Settings.WebcamOn, base::True);
    Control("chkWebcam").Value = 0;
    Form.Click("cVidOptOK");
    EXPECT_EQ(Game().Settings.WebcamOn, base::False);
}

TEST(OneProcessor, ItsQualityIsHighAndTheFirstClickSwitchesItOff)
{
    support::LoadedForm one;
    one.Machine.Processors = 1;
    one.Load();
    one.Form.Click("cVidOpt");
    EXPECT_EQ(one.Control("lblTxtFilter").Caption, "lineare");
    EXPECT_EQ(one.Game().Settings.EffQuality, 0.75f);
    EXPECT_EQ(one.Control("lblEffQ").Caption, "alta");
    one.Form.Click("lblEffQ");
    EXPECT_EQ(one.Game().Settings.EffQuality, 0.0f);
    EXPECT_EQ(one.Control("lblEffQ").Caption, "nessuno");
}

TEST(OneThread, ItsDefaultsAreModest)
{
    support::LoadedForm one;
    one.Game().Screen.SingleThread = true;
    one.Load();
    EXPECT_EQ(one.Control("txtFreq").Text, "6");
    EXPECT_EQ(one.Game().Settings.TargetFps, 6);
    EXPECT_EQ(one.Game().Timers.RenderT.interval, 166);
    EXPECT_EQ(one.Game().Settings.EffQuality, 0.0f);
}

TEST(OptionNames, EachBoundBelongsToTheLowerName)
{
    EXPECT_EQ(panels::QualityName(0.0f), "nessuno");
    EXPECT_EQ(panels::QualityName(0.001f), "bassa");
    EXPECT_EQ(panels::QualityName(0.3f), "bassa");
    EXPECT_EQ(panels::QualityName(std::nextafter(0.3f, 1.0f)), "media");
    EXPECT_EQ(panels::QualityName(0.5f), "media");
    EXPECT_EQ(panels::QualityName(0.51f), "alta");
    EXPECT_EQ(panels::QualityName(1.0f), "alta");
    EXPECT_EQ(panels::QualityName(std::nextafter(1.0f, 2.0f)), "");
    EXPECT_EQ(panels::FilterName(-1), "");
    EXPECT_EQ(panels::FilterName(3), "");
}

TEST(OptionNames, ALargerQualityIsLeftAsItIs)
{
    EXPECT_EQ(panels::NextQuality(2.0f), 2.0f);
    EXPECT_EQ(panels::NextQuality(0.2f), 0.5f);
}
}
