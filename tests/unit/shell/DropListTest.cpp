// SPDX-License-Identifier: Zlib
// The open list of a combo box, without anybody's hands: what is seen of it and what is highlighted.
#include "shell/forms/DropList.h"

#include <gtest/gtest.h>

namespace
{
// A box of twenty items at the top of a window with room for some of them below.
struct DropListTest : testing::Test
{
    forms::Form Form;
    forms::Marks Marks;
    forms::DropList List{Form, Marks};

    DropListTest()
    {
        Form.Client = {200, 140};
        forms::Control box;
        box.Type = forms::Kind::ComboBox;
        box.Place = {10, 10, 120, 20};
        for (int item = 0; item < 20; ++item)
            box.Items.push_back(std::to_string(item));
        box.Text = "12";
        Form.Add(box);
    }
    forms::Control& Box() { return Form.Controls[0]; }
    std::int32_t Rows() { return List.Place().Rows; }
    platform::Point MiddleOfRow(std::int32_t row)
    {
        const forms::Rect place = List.Place().Row(row);
        return {place.X + place.W / 2, place.Y + place.H / 2};
    }
};

TEST_F(DropListTest, OpensWithTheTextsItemInSight)
{
    EXPECT_FALSE(List.IsOpen());
    ASSERT_TRUE(List.Open(Box()));
    EXPECT_TRUE(List.IsOpen());
    EXPECT_EQ(&List.Box(), &Box());
    EXPECT_EQ(List.Item(), 12);
    EXPECT_EQ(Marks.List.First, 12 - Rows() + 1);
    EXPECT_TRUE(List.Close());
    EXPECT_FALSE(List.Close());
}

TEST_F(DropListTest, WithoutItemsItStaysClosed)
{
    Box().Items.clear();
    EXPECT_FALSE(List.Open(Box()));
    EXPECT_FALSE(List.IsOpen());
}

TEST_F(DropListTest, StepsEndAtTheEndsAndScrollNoMoreThanNeeded)
{
    Box().Text = "another text";
    List.Open(Box());
    EXPECT_EQ(List.Item(), -1);
    EXPECT_EQ(Marks.List.First, 0);
    List.Step(-1);
    EXPECT_EQ(List.Item(), 19); // the nearer end
    EXPECT_EQ(Marks.List.First, 20 - Rows());
    List.Step(1);
    EXPECT_EQ(List.Item(), 19);
    List.Step(-1);
    EXPECT_EQ(Marks.List.First, 20 - Rows()); // is still seen
    List.Show(3);
    EXPECT_EQ(Marks.List.First, 3);
}

TEST_F(DropListTest, ThePointerHighlightsARowAndNothingBesideThem)
{
    List.Open(Box());
    const std::int32_t first = Marks.List.First;
    EXPECT_EQ(List.ItemAt(MiddleOfRow(1)), first + 1);
    List.PointAt(MiddleOfRow(1));
    EXPECT_EQ(List.Item(), first + 1);
    EXPECT_EQ(List.ItemAt({0, 0}), -1);
    List.PointAt({0, 0});
    EXPECT_EQ(List.Item(), first + 1);
}

TEST_F(DropListTest, TheBarScrollsFromEndToEnd)
{
    List.Open(Box());
    List.ScrollTo(139);
    EXPECT_EQ(Marks.List.First, 20 - Rows());
    List.ScrollTo(0);
    EXPECT_EQ(Marks.List.First, 0);
    EXPECT_EQ(List.Item(), 12); // is out of sight
}

TEST_F(DropListTest, FewerItemsAreFollowed)
{
    List.Open(Box());
    Box().Items.resize(4);
    List.Fit();
    EXPECT_EQ(List.Item(), 3);
    EXPECT_EQ(Marks.List.First, 0);
}

TEST_F(DropListTest, WithoutAListTheTextsItemIsStepped)
{
    EXPECT_EQ(forms::NextItem(Box(), 1), 13);
    EXPECT_EQ(forms::NextItem(Box(), -1), 11);
    Box().Text = "another text";
    EXPECT_EQ(forms::NextItem(Box(), 1), 0);
    EXPECT_EQ(forms::NextItem(Box(), -1), 19);
}
}
