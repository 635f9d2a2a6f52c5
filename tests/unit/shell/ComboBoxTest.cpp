// SPDX-License-Identifier: Zlib
// Combo boxes: free text, and a list that stays within the window.
#include "tests/support/Panel.h"

#include <gtest/gtest.h>

namespace
{
struct ComboBox : testing::Test, support::Panel
{
    std::string& Text() { return At("combo").Text; }
    platform::Point RowPoint(std::int32_t row) { return MiddleOf(List().Row(row)); }
    void AddItems(int count)
    {
        for (int i = 0; i < count; ++i)
            At("combo").Items.push_back("voce " + std::to_string(i));
    }
    std::int32_t Items() { return static_cast<std::int32_t>(At("combo").Items.size()); }
};

TEST_F(ComboBox, ItsTextIsTypedFreely)
{
    Click("combo");
    EXPECT_EQ(Focus(), "combo");
    EXPECT_FALSE(IsListOpen());
    Character(CtrlA);
    Type("640x480");
    EXPECT_EQ(Text(), "640x480");
}

TEST_F(ComboBox, TheButtonOpensAndClosesTheList)
{
    OpenList();
    EXPECT_TRUE(IsListOpen());
    EXPECT_EQ(Focus(), "combo");
    EXPECT_EQ(Marks().List.Item, 1); // the item that the text is
    OpenList();
    EXPECT_FALSE(IsListOpen());
    At("combo").Items.clear();
    OpenList();
    EXPECT_FALSE(IsListOpen()); // nothing to offer
}

TEST_F(ComboBox, AClickChoosesAnItem)
{
    OpenList();
    Input.MouseMove(false, RowPoint(2));
    EXPECT_EQ(Marks().List.Item, 2);
    ClickAt(RowPoint(2));
    EXPECT_EQ(Text(), "tre");
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(forms::Selected(Edit(), Text()), "tre");
    EXPECT_TRUE(Clicks.empty());
}

TEST_F(ComboBox, PressingDraggingAndLettingGoChoosesToo)
{
    Input.MouseDown(MiddleOf(forms::DropButton(At("combo"), PlaceOf("combo"))), Now);
    ASSERT_TRUE(IsListOpen());
    Input.MouseMove(true, RowPoint(0));
    Input.MouseUp(RowPoint(0));
    EXPECT_EQ(Text(), "uno");
    EXPECT_FALSE(IsListOpen());
}

TEST_F(ComboBox, AClickElsewhereClosesTheListAndDoesNothingElse)
{
    for (const char* name : {"ok", "check", "text", "caption"})
    {
        OpenList();
        ASSERT_TRUE(IsListOpen());
        EXPECT_TRUE(Input.MouseDown(MiddleOf(name), Now));
        Input.MouseUp(MiddleOf(name));
        EXPECT_FALSE(IsListOpen());
        EXPECT_EQ(Text(), "due");
        EXPECT_EQ(Focus(), "combo");
    }
    EXPECT_TRUE(Clicks.empty());
    EXPECT_EQ(At("check").Value, 0);
}

TEST_F(ComboBox, EscClosesTheListFirstAndThePanelNext)
{
    OpenList();
    Input.KeyDown(Esc);
    Input.KeyDown(Esc); // repeats
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(Clicks.empty());
    Input.KeyUp(Esc);
    Press(Esc);
    EXPECT_EQ(Clicks, std::vector<std::string>{"ok"});
}

TEST_F(ComboBox, ArrowsStepThroughTheItems)
{
    Click("combo");
    Press(Down);
    EXPECT_EQ(Text(), "tre");
    Press(Down);
    EXPECT_EQ(Text(), "tre"); // the last
    Press(Up);
    Press(Up);
    EXPECT_EQ(Text(), "uno");
    Press(Up);
    EXPECT_EQ(Text(), "uno");
    EXPECT_EQ(forms::Selected(Edit(), Text()), "uno");
    Text() = "altro";
    Press(Down);
    EXPECT_EQ(Text(), "uno");
    Text() = "altro";
    Press(Up);
    EXPECT_EQ(Text(), "tre");
    At("combo").Items.clear();
    Press(Down);
    EXPECT_EQ(Text(), "tre");
    EXPECT_EQ(Focus(), "combo");
}

TEST_F(ComboBox, KeysOpenTheListAndEnterChooses)
{
    Click("combo");
    PressWith(Alt, Down);
    EXPECT_TRUE(IsListOpen());
    PressWith(Alt, Up);
    EXPECT_FALSE(IsListOpen());
    Press(F4);
    EXPECT_TRUE(IsListOpen());
    Press(Down);
    EXPECT_EQ(Marks().List.Item, 2);
    EXPECT_EQ(Text(), "due"); // not chosen yet
    Press(Enter);
    EXPECT_EQ(Text(), "tre");
    EXPECT_FALSE(IsListOpen());
    EXPECT_TRUE(Clicks.empty()); // the OK was not meant
    Press(Enter);
    EXPECT_EQ(Clicks, std::vector<std::string>{"ok"});
    PressWith(Alt, F4); // closes windows, not lists
    EXPECT_FALSE(IsListOpen());
}

TEST_F(ComboBox, TypingAndTabCloseTheList)
{
    OpenList();
    Type("x");
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(Text(), "x");
    OpenList();
    Press(Tab);
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(Focus(), "check");
}

TEST_F(ComboBox, TheListGoesWithItsBoxAndItsItems)
{
    AddItems(100);
    OpenList();
    for (int i = 0; i < 90; ++i)
        Press(Down);
    At("combo").Items.resize(2);
    Paint();
    EXPECT_TRUE(IsListOpen());
    EXPECT_EQ(Marks().List.Item, 1);
    EXPECT_EQ(Marks().List.First, 0);
    At("combo").Items.clear();
    Paint();
    EXPECT_FALSE(IsListOpen());
    AddItems(3);
    OpenList();
    At("combo").Enabled = base::False;
    Paint();
    EXPECT_FALSE(IsListOpen());
    At("combo").Enabled = base::True;
    OpenList();
    At("panel").Visible = base::False;
    Settle();
    EXPECT_FALSE(IsListOpen());
}

TEST_F(ComboBox, TheListIsPaintedOverEverything)
{
    OpenList();
    Input.MouseMove(false, RowPoint(0));
    Paint();
    const forms::ListPlace list = List();
    EXPECT_EQ(list.Box.X, PlaceOf("combo").X);
    EXPECT_EQ(list.Box.Y, PlaceOf("combo").Y + PlaceOf("combo").H);
    EXPECT_EQ(list.Box.W, PlaceOf("combo").W);
    EXPECT_EQ(list.Rows, 3);
    ASSERT_TRUE(forms::Contains(list.Box, PlaceOf("level").X + 5, PlaceOf("level").Y + 5)); // it covers the picture
    EXPECT_EQ(CountOf(list.Box, {1, 2, 3}), 0);
    for (std::int32_t row = 0; row < 3; ++row)
    {
        const forms::Rect place = list.Row(row);
        const support::Rgb ground = support::ToRgb(row == 0 ? forms::Accent : forms::Night);
        EXPECT_EQ(PixelAt(place.X, place.Y), ground) << row;
        EXPECT_EQ(PixelAt(place.X + place.W - 1, place.Y + place.H - 1), ground) << row;
    }
    EXPECT_GT(CountOf(list.Row(1), forms::Accent), 0); // the text as it is
    EXPECT_GT(CountOf(list.Row(2), forms::Pale), 0);
    Press(Esc);
    Paint();
    EXPECT_GT(CountOf(list.Box, {1, 2, 3}), 0);
}

TEST_F(ComboBox, TheListStaysInTheWindowWhereverTheBoxIs)
{
    for (const platform::Size client : {platform::Size{240, 200}, {600, 312}, {60, 30}, {1200, 200}})
        for (const int items : {1, 5, 40, 2000})
            for (std::int32_t y = 0; y + 16 <= client.Height; y += 7)
            {
                forms::Control box;
                box.Type = forms::Kind::ComboBox;
                box.Items.assign(static_cast<std::size_t>(items), "x");
                box.TextSize = 10;
                const forms::Rect place = {client.Width / 2, y, client.Width / 2, 16};
                for (const std::int32_t first : {0, 3, items})
                {
                    const forms::ListPlace list = forms::PlaceList(box, place, client, first);
                    EXPECT_GE(list.Box.X, 0);
                    EXPECT_LE(list.Box.X + list.Box.W, client.Width);
                    EXPECT_GE(list.Box.Y, 0) << y;
                    EXPECT_LE(list.Box.Y + list.Box.H, client.Height) << y << " " << items;
                    EXPECT_GE(list.Rows, 1);
                    EXPECT_LE(list.Rows, items);
                    EXPECT_EQ(list.Track.W > 0, list.Rows < items);
                    EXPECT_GE(list.Thumb.Y, list.Track.Y);
                    EXPECT_LE(list.Thumb.Y + list.Thumb.H, list.Track.Y + list.Track.H);
                    const bool hidesBox = list.Box.Y < y + 16 && y < list.Box.Y + list.Box.H;
                    EXPECT_EQ(hidesBox && client.Height >= 200, false) << y;
                }
                // Five items have room above or below even in the smallest window.
                if (items <= 5 && client.Height >= 200)
                {
                    EXPECT_EQ(forms::PlaceList(box, place, client, 0).Rows, items) << client.Height << " " << y;
                }
            }
}

TEST_F(ComboBox, NearTheBottomTheListOpensUpwards)
{
    At("combo").Place.Y = 170;
    OpenList();
    EXPECT_EQ(List().Box.Y + List().Box.H, 170);
    ClickAt(RowPoint(0));
    EXPECT_EQ(Text(), "uno");
}

TEST_F(ComboBox, KeysScrollALongList)
{
    AddItems(50);
    OpenList();
    const std::int32_t rows = List().Rows;
    ASSERT_LT(rows, Items());
    for (std::int32_t item = 2; item < Items(); ++item)
    {
        Press(Down);
        EXPECT_EQ(Marks().List.Item, item);
        EXPECT_LE(Marks().List.First, item);
        EXPECT_LT(item, Marks().List.First + rows);
    }
    EXPECT_EQ(Marks().List.First, Items() - rows);
    for (int i = 0; i < 100; ++i)
        Press(Up);
    EXPECT_EQ(Marks().List.Item, 0);
    EXPECT_EQ(Marks().List.First, 0);
}

TEST_F(ComboBox, TheScrollBarIsDragged)
{
    AddItems(50);
    OpenList();
    const forms::ListPlace list = List();
    const std::int32_t x = list.Track.X + list.Track.W / 2;
    Input.MouseDown({x, list.Track.Y + 1}, Now);
    EXPECT_EQ(Marks().List.First, 0);
    Input.MouseMove(true, {x, list.Track.Y + list.Track.H / 2});
    EXPECT_NEAR(Marks().List.First, (Items() - list.Rows) / 2, 2);
    Input.MouseMove(true, {x, 5000});
    EXPECT_EQ(Marks().List.First, Items() - list.Rows);
    Input.MouseUp({x, 5000});
    EXPECT_TRUE(IsListOpen());
    EXPECT_EQ(Text(), "due");
    ClickAt(RowPoint(list.Rows - 1));
    EXPECT_EQ(Text(), "voce 49");
}

TEST_F(ComboBox, ADisabledComboOpensNothing)
{
    At("combo").Enabled = base::False;
    OpenList();
    EXPECT_FALSE(IsListOpen());
    EXPECT_EQ(Focus(), "");
    Paint();
    EXPECT_EQ(CountOf(PlaceOf("combo"), forms::Pale), 0);
    EXPECT_EQ(CountOf(PlaceOf("combo"), forms::Accent), 0); // its arrow is grey too
}
}
