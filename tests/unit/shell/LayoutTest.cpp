// SPDX-License-Identifier: Zlib
// Where the controls stand, for every size of the window.
#include "tests/support/LoadedForm.h"
#include "typeface/Typeface.h"

#include <gtest/gtest.h>

namespace
{
constexpr platform::Size Sizes[] = {{240, 200}, {320, 240},  {600, 312},  {640, 480},   {1200, 200},
                                    {240, 900}, {1024, 768}, {1200, 900}, {1920, 1080}, {3840, 2160}};

std::string Say(const forms::Control& control, const forms::Rect& place)
{
    return control.Name + "(" + std::to_string(control.Index) + ") at " + std::to_string(place.X) + "," +
           std::to_string(place.Y) + " " + std::to_string(place.W) + "x" + std::to_string(place.H);
}

bool Overlap(const forms::Rect& a, const forms::Rect& b)
{
    return a.X < b.X + b.W && b.X < a.X + a.W && a.Y < b.Y + b.H && b.Y < a.Y + a.H;
}

struct Layout : testing::TestWithParam<platform::Size>
{
    support::LoadedForm Window;
    forms::Form& Form = Window.Form.Controls();
    Layout() { Window.Form.Panels().Place(GetParam()); }
};

TEST_P(Layout, EverythingLiesInTheWindow)
{
    for (const forms::Control& control : Form.Controls)
    {
        const forms::Rect place = Form.PlaceOf(control);
        const bool isTwin = control.Style == forms::Look::Shadow; // two pixels off its first
        EXPECT_GE(place.X, 0) << Say(control, place);
        EXPECT_GE(place.Y, 0) << Say(control, place);
        EXPECT_LE(place.X + place.W, GetParam().Width + (isTwin ? 4 : 0)) << Say(control, place);
        EXPECT_LE(place.Y + place.H, GetParam().Height + (isTwin ? 4 : 0)) << Say(control, place);
    }
}

TEST_P(Layout, ControlsOfAFrameDoNotOverlap)
{
    for (const forms::Control& a : Form.Controls)
        for (const forms::Control& b : Form.Controls)
        {
            const bool stands = a.Parent >= 0 && a.Parent == b.Parent && &a < &b;
            const bool isFrame = a.Type == forms::Kind::Frame && b.Type == forms::Kind::Frame;
            if (!stands || isFrame || a.Place.W == 0 || b.Place.W == 0)
                continue;
            EXPECT_FALSE(Overlap(a.Place, b.Place)) << Say(a, a.Place) << " and " << Say(b, b.Place);
        }
}

TEST_P(Layout, TextsFitTheirPlaces)
{
    for (const forms::Control& control : Form.Controls)
    {
        if (control.Place.W <= 0 || control.Caption.empty())
            continue;
        std::vector<std::string_view> lines = {control.Caption};
        if (control.Style == forms::Look::Paragraph)
        {
            lines = forms::BreakLines(control.Caption, control.TextSize, 1, control.Place.W);
            EXPECT_LE(static_cast<double>(lines.size()) * typeface::LineHeight(control.TextSize), control.Place.H)
                << Say(control, control.Place);
        }
        for (const std::string_view line : lines)
            EXPECT_LE(forms::MeasureText(line, control.TextSize, 1), control.Place.W)
                << Say(control, control.Place) << " " << line;
    }
}

TEST_P(Layout, FramesCoverTheWindowAndHeadingsAreCentred)
{
    for (const char* name :
         {"panelOption", "panelGameOpt", "panelVidOpt", "panelAudOpt", "panelWebcam", "panelCredits", "panelCtrOpt"})
    {
        const forms::Rect place = Form.Get(name).Place;
        EXPECT_EQ(place.X, 0);
        EXPECT_EQ(place.Y, 0);
        EXPECT_EQ(place.W, GetParam().Width);
        EXPECT_EQ(place.H, GetParam().Height);
    }
    for (const char* name :
         {"lblOption", "cOptOK", "lblGameOpt", "cGameOptOK", "lblVidOpt", "cVidOptOK", "lblAudOpt", "cAudOptOK",
          "lblWebcam", "cWebcamOK", "lblCredits", "cCreditOK", "lblCtrOpt", "cCtrOptOK"})
    {
        const forms::Rect place = Form.Get(name).Place;
        EXPECT_EQ(place.X, (GetParam().Width - place.W) / 2) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, Layout, testing::ValuesIn(Sizes),
                         [](const auto& test)
                         { return std::to_string(test.param.Width) + "x" + std::to_string(test.param.Height); });

struct Picture : testing::Test, support::LoadedForm
{
};

TEST_F(Picture, TheMenuIsPaintedAtTheSizeOfTheWindow)
{
    Load();
    const base::Bitmap picture = Window().Screenshot();
    EXPECT_EQ(picture.Width, 600);
    EXPECT_EQ(picture.Height, 312);
    bool differs = false;
    for (const std::uint8_t byte : picture.Bytes)
        differs = differs || byte != picture.Bytes[0];
    EXPECT_TRUE(differs);
}

TEST_F(Picture, TheRaceIsPresentedAsItIs)
{
    StartRace();
    Pass(100);
    EXPECT_EQ(Window().Screenshot().Bytes, Game().Screen.Frame.Bytes);
}

TEST_F(Picture, APanelOverARunningRaceStaysOnTop)
{
    StartRace();
    Pass(100);
    Control("panelCredits").Visible = base::True;
    Pass(100);
    EXPECT_NE(Window().Screenshot().Bytes, Game().Screen.Frame.Bytes);
}

TEST_F(Picture, TheBlackOfTheTitleIsSeenThrough)
{
    World.Write("data/images/logo.bmp", support::Bitmap(300, 100, 0, 0, 0));
    World.Write("data/images/menu.bmp", support::Bitmap(600, 312, 40, 80, 120));
    Load();
    const std::vector<std::uint8_t> withLogo = Window().Screenshot().Bytes;
    Control("imgLogo").Visible = base::False;
    Form.Paint();
    EXPECT_EQ(Window().Screenshot().Bytes, withLogo);
    EXPECT_EQ(Machine.Boxes.size(), 0u);
}

TEST_F(Picture, TheMenuStandsOnItsOwnPictureAndThenOnTheRace)
{
    World.Write("data/images/menu.bmp", support::Bitmap(600, 312, 200, 0, 0));
    Load();
    const auto topLeft = [this]
    {
        const base::Bitmap shown = Window().Screenshot();
        const std::size_t at = static_cast<std::size_t>(shown.Width * 3) * static_cast<std::size_t>(shown.Height - 1);
        return std::array<int, 3>{shown.Bytes[at], shown.Bytes[at + 1], shown.Bytes[at + 2]};
    };
    EXPECT_GT(topLeft()[0], 150);
    EXPECT_LT(topLeft()[1], 30);
    Form.Click("cSTART");
    Pass(500);
    PressAndRelease(27);
    EXPECT_GT(topLeft()[1], 30); // the sky of the race, darkened
    EXPECT_LT(topLeft()[1], 140);
}

TEST_F(Picture, ABrokenTitleIsReportedAndPaintedOtherwise)
{
    World.Write("data/images/logo.bmp", "BM");
    Load();
    ASSERT_EQ(Machine.Boxes.size(), 1u);
    EXPECT_EQ(Machine.Boxes[0].Title, "Errore 62");
    EXPECT_FALSE(Form.Ended());
}
}
