// SPDX-License-Identifier: Zlib
// Check boxes, and picture boxes that the pointer sets.
#include "tests/support/Panel.h"

#include <gtest/gtest.h>

namespace
{
struct CheckBox : testing::Test, support::Panel
{
    std::int16_t& Value() { return At("check").Value; }
    forms::Rect Square() { return forms::TickSquare(At("check"), PlaceOf("check")); }
};

TEST_F(CheckBox, AClickToggles)
{
    Click("check");
    EXPECT_EQ(Value(), 1);
    EXPECT_EQ(Clicks, std::vector<std::string>{"check"}); // its handler hears of it
    Click("check");                                       // no double click: every one counts
    EXPECT_EQ(Value(), 0);
    ClickAt({PlaceOf("check").X + PlaceOf("check").W - 1, MiddleOf("check").Y}); // its caption is part of it
    EXPECT_EQ(Value(), 1);
}

TEST_F(CheckBox, APressThatIsTakenAwayDoesNot)
{
    Input.MouseDown(MiddleOf("check"), Now);
    Input.MouseUp(MiddleOf("caption"));
    EXPECT_EQ(Value(), 0);
    Input.MouseDown(MiddleOf("caption"), Now);
    Input.MouseUp(MiddleOf("check"));
    EXPECT_EQ(Value(), 0);
    Input.MouseDown(MiddleOf("check"), Now);
    Input.MouseMove(false, MiddleOf("check")); // the button came up outside the window
    Input.MouseUp(MiddleOf("check"));
    EXPECT_EQ(Value(), 0);
}

TEST_F(CheckBox, TheSpaceBarAndEnterToggleOnce)
{
    Click("check");
    for (const std::int16_t key : {Space, Enter})
    {
        const std::int16_t before = Value();
        Input.KeyDown(key);
        Input.KeyDown(key); // repeats
        Input.Character(static_cast<std::uint8_t>(key));
        Input.KeyUp(key);
        EXPECT_EQ(Value(), 1 - before);
    }
}

TEST_F(CheckBox, ADisabledOneDoesNothing)
{
    At("check").Enabled = base::False;
    Click("check");
    Press(Space);
    EXPECT_EQ(Value(), 0);
    EXPECT_TRUE(Clicks.empty());
    EXPECT_EQ(Marks().Hot, -1);
}

TEST_F(CheckBox, TheTickIsPaintedInTheAccent)
{
    Form.Focus = -1;
    Paint();
    const platform::Point corner = {Square().X + 3, Square().Y + 3}; // beside the tick
    EXPECT_EQ(CountOf(Square(), forms::Accent), 0);
    Value() = 1;
    Paint();
    EXPECT_EQ(PixelAt(corner.X, corner.Y), support::ToRgb(forms::Accent));
    EXPECT_GT(CountOf(Square(), forms::Night), 3); // the tick itself
    At("check").Enabled = base::False;
    Paint();
    EXPECT_EQ(CountOf(PlaceOf("check"), forms::Accent), 0);
    EXPECT_EQ(CountOf(PlaceOf("check"), forms::Pale), 0);
    EXPECT_GT(CountOf(Square(), forms::Faint), 0); // ticked still
}

TEST_F(CheckBox, PressedItLooksSo)
{
    Value() = 1;
    Input.MouseMove(false, MiddleOf("check"));
    Input.MouseDown(MiddleOf("check"), Now);
    Paint();
    EXPECT_EQ(PixelAt(Square().X + 4, Square().Y + 4), support::ToRgb(forms::AccentDeep));
}

struct PictureBox : testing::Test, support::Panel
{
    std::int32_t Left() { return PlaceOf("level").X; }
    std::int32_t Middle() { return MiddleOf("level").Y; }
};

TEST_F(PictureBox, TheOwnerHearsWhereTheButtonIsHeld)
{
    Input.MouseMove(false, MiddleOf("level"));
    EXPECT_TRUE(Points.empty());
    EXPECT_TRUE(Input.MouseDown({Left() + 30, Middle()}, Now));
    Input.MouseMove(true, {Left() + 31, Middle()});
    Input.MouseMove(true, {Left() + 400, 0}); // beyond the box while the button stays down
    Input.MouseMove(true, {Left() - 25, 0});
    Input.MouseUp({Left() - 25, 0});
    Input.MouseMove(true, {Left() + 5, Middle()});
    EXPECT_EQ(Points, (std::vector<std::int32_t>{30, 31, 400, -25}));
    EXPECT_TRUE(Clicks.empty());
}

TEST_F(PictureBox, ItIsPaintedByItsOwner)
{
    Paint();
    EXPECT_EQ(CountOf(PlaceOf("level"), {1, 2, 3}), 101 * 20);
}

TEST_F(PictureBox, KeysMoveALevel)
{
    At("level").Value = 50;
    Click("level");
    Points.clear();
    Press(Panel::Left);
    Press(Right);
    EXPECT_EQ(Points, (std::vector<std::int32_t>{45, 56})); // of 101 pixels
    At("level").Value = 32767;
    Press(Right);
    EXPECT_EQ(Points.back(), 101);
    At("level").Value = -32768;
    Press(Panel::Left);
    EXPECT_EQ(Points.back(), 0);
}

TEST_F(PictureBox, ADisabledOneHearsNothing)
{
    At("level").Enabled = base::False;
    Input.MouseDown(MiddleOf("level"), Now);
    Input.MouseMove(true, MiddleOf("level"));
    Press(Right);
    EXPECT_TRUE(Points.empty());
}

TEST_F(PictureBox, ALevelIsFilledToItsShare)
{
    Canvas.Resize(120, 20);
    for (const auto& [share, filled] : {std::pair(0.0, 20), {0.5, 70}, {1.0, 120}, {7.0, 120}, {-1.0, 20}})
    {
        forms::Fill(Canvas, {0, 0, 120, 20}, {0, 0, 0});
        forms::DrawLevel(Canvas, {0, 0, 120, 20}, share, true);
        EXPECT_EQ(PixelAt(filled - 10, 10), support::ToRgb(forms::Pale)) << share; // the grip
        if (filled < 120)
        {
            EXPECT_LT(PixelAt(filled + 2, 10)[0], 60) << share;
        }
        if (filled > 20)
        {
            EXPECT_GT(PixelAt(filled - 24, 10)[0], 150) << share;
        }
    }
    forms::DrawLevel(Canvas, {0, 0, 120, 20}, std::numeric_limits<double>::quiet_NaN(), false);
    forms::DrawLevel(Canvas, {110, 15, 1, 40}, 0.5, true); // higher than wide, and off the canvas
}
}
