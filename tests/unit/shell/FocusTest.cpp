// SPDX-License-Identifier: Zlib
// The keys' way over a panel, the panel that covers the rest, and what stands out.
#include "tests/support/Panel.h"

#include <gtest/gtest.h>

namespace
{
struct Focusing : testing::Test, support::Panel
{
    std::vector<std::string> WalkBy(std::int16_t key, int steps)
    {
        std::vector<std::string> walk;
        for (int i = 0; i < steps; ++i)
        {
            Press(key);
            walk.push_back(Focus());
        }
        return walk;
    }
    using Names = std::vector<std::string>;
};

TEST_F(Focusing, APanelThatOpensWaitsForItsFirstText)
{
    EXPECT_EQ(Focus(), "text");
    EXPECT_EQ(forms::Selected(Edit(), At("text").Text), "abc");
    Type("7");
    EXPECT_EQ(At("text").Text, "7");
    At("panel").Visible = base::False;
    Settle();
    EXPECT_EQ(Focus(), "");
}

TEST_F(Focusing, TabWalksOverWhatTakesTheFocusAndRound)
{
    EXPECT_EQ(WalkBy(Tab, 6), (Names{"combo", "check", "level", "ok", "text", "combo"}));
    Input.KeyDown(Shift);
    EXPECT_EQ(WalkBy(Tab, 3), (Names{"text", "ok", "level"}));
    Input.KeyUp(Shift);
    EXPECT_EQ(WalkBy(Tab, 1), (Names{"ok"}));
}

TEST_F(Focusing, ArrowsWalkTooWhereTheyMeanNothingElse)
{
    EXPECT_EQ(WalkBy(Down, 1), (Names{"combo"}));
    Press(Down); // steps through the items
    EXPECT_EQ(Focus(), "combo");
    Press(Tab);
    EXPECT_EQ(WalkBy(Down, 3), (Names{"level", "ok", "text"}));
    EXPECT_EQ(WalkBy(Up, 2), (Names{"ok", "level"}));
}

TEST_F(Focusing, HiddenAndDisabledControlsArePassedOver)
{
    At("combo").Visible = base::False;
    At("check").Enabled = base::False;
    At("level").Place.W = 0;
    EXPECT_EQ(WalkBy(Tab, 3), (Names{"ok", "text", "ok"}));
}

TEST_F(Focusing, WithNothingToFocusTabDoesNothing)
{
    for (forms::Control& control : Form.Controls)
        control.Enabled = base::False;
    EXPECT_EQ(WalkBy(Tab, 2), (Names{"", ""}));
    EXPECT_EQ(WalkBy(Up, 1), (Names{""}));
    Press(Enter);
    Press(Space);
    Press(Esc);
    EXPECT_TRUE(Clicks.empty());
    Form.Controls.clear();
    Form.Focus = 40; // no such control
    for (const std::int16_t key : {Tab, Up, Down, Enter, Space, Esc, Left})
        Press(key);
    Type("abc");
    ClickAt({5, 5});
    Paint();
}

TEST_F(Focusing, EnterClicksTheButtonOrTheOkOfAText)
{
    Press(Enter);
    EXPECT_EQ(Clicks, (Names{"ok"}));
    Add(forms::Kind::Button, "other", {10, 160, 50, 20});
    Click("other");
    Clicks.clear();
    WalkBy(Tab, 1);
    Press(Tab);
    while (Focus() != "other")
        Press(Tab);
    Press(Enter);
    Press(Space);
    EXPECT_EQ(Clicks, (Names{"other", "other"}));
    Form.Focus = -1;
    Input.MouseMove(false, {299, 199});
    Press(Enter);
    EXPECT_EQ(Clicks.back(), "ok");
    At("ok").Enabled = base::False;
    Clicks.clear();
    Press(Enter);
    Press(Esc);
    EXPECT_TRUE(Clicks.empty());
}

TEST_F(Focusing, AHeldKeyClicksOnce)
{
    for (const std::int16_t key : {Enter, Esc})
    {
        Clicks.clear();
        Input.KeyDown(key);
        Input.KeyDown(key);
        Input.KeyDown(key);
        EXPECT_EQ(Clicks, (Names{"ok"}));
        Input.KeyUp(key);
        Press(key);
        EXPECT_EQ(Clicks, (Names{"ok", "ok"}));
    }
}

TEST_F(Focusing, EscDoesNothingWithoutAPanel)
{
    At("panel").Visible = base::False;
    At("below").IsDefault = true;
    Press(Esc);
    Press(Enter);
    EXPECT_TRUE(Clicks.empty());
    EXPECT_EQ(WalkBy(Down, 2), (Names{"below", "below"}));
    Press(Enter);
    EXPECT_EQ(Clicks, (Names{"below"}));
}

TEST_F(Focusing, TheSpaceBarThatOpensAPanelTypesNothingIntoIt)
{
    Input.KeyDown(Space);
    Input.Character(32);
    EXPECT_EQ(At("text").Text, " "); // in a text it is a character
    At("panel").Visible = base::False;
    Settle();
    Press(Down);
    Input.KeyUp(Space);
    Input.KeyDown(Space); // on the button
    At("panel").Visible = base::True;
    Settle();
    At("text").Text = "abc";
    Input.Character(32);
    EXPECT_EQ(At("text").Text, "abc");
    Input.KeyUp(Space);
    Input.Character(32);
    EXPECT_NE(At("text").Text, "abc");
}

TEST_F(Focusing, APanelTakesEveryClickOverWhatIsBelow)
{
    const platform::Point below = {PlaceOf("below").X + 2, PlaceOf("below").Y + PlaceOf("below").H - 1};
    At("caption").Visible = base::False;
    Input.MouseMove(false, below);
    EXPECT_EQ(Marks().Hot, -1);
    EXPECT_FALSE(Input.MouseDown(below, Now)); // as bare as any other place of the panel
    Input.MouseUp(below);
    EXPECT_TRUE(Clicks.empty());
    At("panel").Visible = base::False;
    ClickAt(below);
    EXPECT_EQ(Clicks, (Names{"below"}));
}

TEST_F(Focusing, APressOnNothingTakesTheFocusAway)
{
    EXPECT_EQ(Focus(), "text");
    EXPECT_FALSE(Input.MouseDown({299, 199}, Now));
    EXPECT_EQ(Focus(), "");
    EXPECT_EQ(Losses, (Names{"text"}));
    EXPECT_FALSE(Input.MouseDown(MiddleOf("caption"), Now)); // labels are nothing to press
    EXPECT_FALSE(Input.MouseDown({-5, 9000}, Now));
}

TEST_F(Focusing, ThePointerTakesOverFromTheKeys)
{
    while (Focus() != "ok")
        Press(Tab);
    Input.MouseMove(false, MiddleOf("check"));
    EXPECT_EQ(Focus(), "");
    EXPECT_EQ(Marks().Hot, IndexOf("check"));
    Press(Tab); // on from where the pointer was
    EXPECT_EQ(Focus(), "level");
    EXPECT_EQ(Marks().Hot, -1);
    Click("text");
    Input.MouseMove(false, MiddleOf("check"));
    EXPECT_EQ(Focus(), "text"); // but not from what is being typed
}

TEST_F(Focusing, ThePressedButtonAloneIsHot)
{
    Input.MouseMove(false, MiddleOf("ok"));
    Input.MouseDown(MiddleOf("ok"), Now);
    Input.MouseMove(true, MiddleOf("check"));
    EXPECT_EQ(Marks().Hot, -1);
    Input.MouseMove(true, MiddleOf("ok"));
    EXPECT_EQ(Marks().Hot, IndexOf("ok"));
    EXPECT_EQ(Marks().Pressed, IndexOf("ok"));
    Input.MouseUp(MiddleOf("ok"));
    EXPECT_EQ(Marks().Pressed, -1);
    EXPECT_EQ(Clicks, (Names{"ok"}));
}

TEST_F(Focusing, EveryStateOfAButtonLooksItsOwn)
{
    const forms::Rect place = PlaceOf("ok");
    const platform::Point inside = {place.X + 12, place.Y + 3};
    Form.Focus = -1;
    Paint();
    const support::Rgb plain = PixelAt(inside.X, inside.Y);
    Input.MouseMove(false, MiddleOf("ok"));
    Paint();
    EXPECT_EQ(PixelAt(inside.X, inside.Y), support::ToRgb(forms::Accent));
    Input.MouseDown(MiddleOf("ok"), Now);
    Paint();
    EXPECT_EQ(PixelAt(inside.X, inside.Y), support::ToRgb(forms::AccentDeep));
    Input.MouseUp(MiddleOf("ok"));
    Input.MouseMove(false, {299, 199});
    At("ok").Enabled = base::False;
    Paint();
    EXPECT_NE(PixelAt(inside.X, inside.Y), plain);
    EXPECT_NE(PixelAt(inside.X, inside.Y), support::ToRgb(forms::Accent));
    EXPECT_EQ(CountOf(place, forms::Pale), 0);
}

TEST_F(Focusing, TheFocusIsRinged)
{
    for (const char* name : {"check", "level", "ok"})
    {
        Form.Focus = IndexOf(name);
        Paint();
        const forms::Rect place =
            std::string(name) == "check" ? forms::TickSquare(At("check"), PlaceOf("check")) : PlaceOf(name);
        const auto accentBeside = [&]
        {
            for (std::int32_t x = place.X - 6; x < place.X; ++x)
            {
                const support::Rgb pixel = PixelAt(x, place.Y + place.H / 2);
                if (pixel[0] > 200 && pixel[2] < 90)
                    return true;
            }
            return false;
        };
        EXPECT_TRUE(accentBeside()) << name;
        Form.Focus = -1;
        Paint();
        EXPECT_FALSE(accentBeside()) << name;
    }
}

TEST_F(Focusing, ABoxWithoutAPlaceKeepsTheFocusUntilAPress)
{
    Add(forms::Kind::TextBox, "keys", {});
    Form.Focus = IndexOf("keys");
    Input.MouseMove(false, MiddleOf("ok"));
    Paint();
    Type("abc");
    EXPECT_EQ(Focus(), "keys");
    EXPECT_EQ(At("keys").Text, "");
    Input.MouseDown(MiddleOf("check"), Now);
    EXPECT_EQ(Losses.back(), "keys");
    EXPECT_EQ(Focus(), "check");
}
}
