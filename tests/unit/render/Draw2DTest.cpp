// SPDX-License-Identifier: Zlib
#include "render/Draw2D.h"

#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{
// 6 x 4, read as rows from the top: the blue byte of each pixel in hexadecimal digits.
struct Paper : support::View
{
    Paper() : View(6, 4) {}
    base::Surface Surface() { return render::FrameSurface(Screen); }
    std::string Rows() const
    {
        std::string text;
        for (int y = 3; y >= 0; --y)
        {
            for (int x = 0; x < 6; ++x)
                text += "0123456789ABCDEF"[Pixel(x, y)[0] & 15];
            text += '\n';
        }
        return text;
    }
};

// 3 x 2: 1 2 3 below, 4 5 6 above.
render::Picture Six()
{
    render::Picture picture = support::Blank(3, 2);
    for (int i = 0; i < 6; ++i)
        picture.Pixels.Row(i / 3)[i % 3 * 3] = static_cast<std::uint8_t>(i + 1);
    return picture;
}

std::string Pic(std::int32_t x, std::int32_t y)
{
    Paper paper;
    render::DrawPic2D(paper.Surface(), Six(), x, y);
    return paper.Rows();
}

std::string Rect(std::int16_t x, std::int16_t y, std::int16_t w, std::int16_t h)
{
    Paper paper;
    render::FillRect2D(paper.Surface(), x, y, w, h, {3, 2, 1});
    return paper.Rows();
}

const std::string Empty = "000000\n000000\n000000\n000000\n";
}

TEST(DrawPic2D, StandsWithItsBottomLeftPixelAtThePlace)
{
    EXPECT_EQ(Pic(2, 1), "000000\n004560\n001230\n000000\n");
}

TEST(DrawPic2D, BlackIsNotTransparent)
{
    Paper paper;
    render::FillRect2D(paper.Surface(), 0, 0, 5, 3, {1, 1, 1});
    render::DrawPic2D(paper.Surface(), support::Blank(2, 1), 1, 1);
    EXPECT_EQ(paper.Rows(), "111111\n111111\n100111\n111111\n");
}

TEST(DrawPic2D, IsClippedOnAllFourSides)
{
    EXPECT_EQ(Pic(-1, -1), "000000\n000000\n000000\n560000\n");
    EXPECT_EQ(Pic(4, 3), "000012\n000000\n000000\n000000\n");
    EXPECT_EQ(Pic(-3, 0), Empty);
    EXPECT_EQ(Pic(6, 0), Empty);
    EXPECT_EQ(Pic(0, 4), Empty);
    EXPECT_EQ(Pic(0, -2), Empty);
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(Pic(most, most), Empty);
    EXPECT_EQ(Pic(-most - 1, -most - 1), Empty);
}

TEST(DrawPic2D, AnEmptyPictureDrawsNothing)
{
    Paper paper;
    render::DrawPic2D(paper.Surface(), {}, 0, 0);
    EXPECT_EQ(paper.Rows(), Empty);
}

TEST(FillRect2D, BothEndsAreIncluded)
{
    EXPECT_EQ(Rect(1, 1, 2, 1), "000000\n011100\n011100\n000000\n");
    EXPECT_EQ(Rect(2, 3, 0, 0), "001000\n000000\n000000\n000000\n"); // width 0 still covers one column
    EXPECT_EQ(Rect(2, 3, -1, 0), Empty);
}

TEST(FillRect2D, ColourBytesAreBlueGreenRed)
{
    Paper paper;
    render::FillRect2D(paper.Surface(), 0, 0, 0, 0, {3, 2, 1});
    EXPECT_EQ(support::Bytes(paper.Pixel(0, 0)), 0x010203u);
}

TEST(FillRect2D, IsClippedOnAllFourSides)
{
    EXPECT_EQ(Rect(-5, -5, 6, 6), "000000\n000000\n110000\n110000\n");
    EXPECT_EQ(Rect(4, 2, 99, 99), "000011\n000011\n000000\n000000\n");
    EXPECT_EQ(Rect(6, 0, 9, 9), Empty);
}

TEST(FillRect2D, SumsThatDoNotFit16BitsDrawNothing)
{
    EXPECT_EQ(Rect(1, 0, 32767, 0), Empty);
    EXPECT_EQ(Rect(0, 1, 0, 32767), Empty);
    EXPECT_EQ(Rect(-32768, 0, -1, 3), Empty);
    EXPECT_EQ(Rect(0, 0, 32767, 0), "000000\n000000\n000000\n111111\n");
}
