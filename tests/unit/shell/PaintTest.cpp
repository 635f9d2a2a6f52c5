// SPDX-License-Identifier: Zlib
// The painting of a form's canvas: fills, boxes, strokes, lines of text.
#include "shell/forms/Paint.h"
#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

namespace
{
using forms::Canvas;
using support::Checker;
using support::PixelAt;
using support::Rgb;

TEST(Paint, RowsLieBottomUpAndPadded)
{
    Canvas canvas;
    canvas.Resize(5, 3);
    EXPECT_EQ(canvas.RowBytes, 16);
    EXPECT_EQ(canvas.Bytes.size(), 48u);
    forms::Fill(canvas, {0, 0, 5, 1}, {1, 2, 3});
    EXPECT_EQ(canvas.Bytes[32], 3); // the top row comes last
    EXPECT_EQ(canvas.Bytes[0], 0);
}

TEST(Paint, FillsAreClippedAndMixed)
{
    Canvas canvas;
    canvas.Resize(8, 8);
    forms::Fill(canvas, {-5, -5, 100, 7}, {200, 100, 50});
    EXPECT_EQ(PixelAt(canvas, 7, 1), (Rgb{200, 100, 50}));
    EXPECT_EQ(PixelAt(canvas, 0, 2), (Rgb{0, 0, 0}));
    forms::Fill(canvas, {0, 0, 1, 1}, {0, 0, 0}, 128);
    EXPECT_NEAR(PixelAt(canvas, 0, 0)[0], 100, 1);
    forms::Fill(canvas, {50, 50, 10, 10}, {9, 9, 9});
}

TEST(Paint, RoundedBoxesKeepTheirCornersFree)
{
    Canvas canvas;
    canvas.Resize(40, 40);
    forms::FillRounded(canvas, {4, 4, 32, 32}, 10, {255, 255, 255});
    EXPECT_EQ(PixelAt(canvas, 4, 4), (Rgb{0, 0, 0}));
    EXPECT_EQ(PixelAt(canvas, 20, 4), (Rgb{255, 255, 255}));
    EXPECT_EQ(PixelAt(canvas, 20, 20), (Rgb{255, 255, 255}));
    EXPECT_EQ(PixelAt(canvas, 3, 20), (Rgb{0, 0, 0}));
}

TEST(Paint, OutlinesAreHollow)
{
    Canvas canvas;
    canvas.Resize(60, 50);
    forms::OutlineRounded(canvas, {4, 4, 50, 40}, 6, 1, {255, 255, 255});
    int lit = 0;
    for (std::int32_t x = 0; x < 60; ++x)
        lit += PixelAt(canvas, x, 24)[0] > 0 ? 1 : 0;
    EXPECT_EQ(lit, 2);
    EXPECT_EQ(PixelAt(canvas, 4, 24), (Rgb{255, 255, 255}));
    EXPECT_EQ(PixelAt(canvas, 53, 24), (Rgb{255, 255, 255}));
    EXPECT_EQ(PixelAt(canvas, 30, 4), (Rgb{255, 255, 255}));
    EXPECT_EQ(PixelAt(canvas, 30, 43), (Rgb{255, 255, 255}));
}

TEST(Paint, TheFrameIsStretchedToTheCanvas)
{
    Canvas canvas;
    canvas.Resize(6, 4);
    const render::Picture picture = Checker(3, 2);
    forms::Stretch(canvas, {0, 0, canvas.Width, canvas.Height},
                   {picture.Pixels.Bytes.data(), picture.Pixels.RowBytes, 3, 2});
    EXPECT_EQ(PixelAt(canvas, 0, 0)[0], 0); // source row 1, the top one
    EXPECT_EQ(PixelAt(canvas, 1, 1)[0], 0);
    EXPECT_EQ(PixelAt(canvas, 2, 0)[0], 200);
    EXPECT_EQ(PixelAt(canvas, 0, 3)[0], 200);
    EXPECT_EQ(PixelAt(canvas, 5, 3)[0], 200);
}

TEST(Paint, TextStaysInItsRectangle)
{
    for (const forms::Align align : {forms::Align::Left, forms::Align::Centre, forms::Align::Right})
    {
        Canvas canvas;
        canvas.Resize(200, 60);
        forms::DrawText(canvas, {50, 20, 80, 20}, "Freno/Retromarcia: Freccia", 15, 1, {255, 255, 255}, align);
        int inside = 0, outside = 0;
        for (std::int32_t y = 0; y < 60; ++y)
            for (std::int32_t x = 0; x < 200; ++x)
                if (PixelAt(canvas, x, y)[0] > 0)
                    ++(x >= 49 && x <= 131 && y >= 18 && y <= 42 ? inside : outside);
        EXPECT_GT(inside, 50);
        EXPECT_EQ(outside, 0);
    }
}

TEST(Paint, AlignmentMovesTheText)
{
    const auto firstColumn = [](forms::Align align)
    {
        Canvas canvas;
        canvas.Resize(100, 30);
        forms::DrawText(canvas, {0, 0, 100, 30}, "OK", 14, 1, {255, 255, 255}, align);
        for (std::int32_t x = 0; x < 100; ++x)
            for (std::int32_t y = 0; y < 30; ++y)
                if (PixelAt(canvas, x, y)[0] > 0)
                    return x;
        return 100;
    };
    EXPECT_LT(firstColumn(forms::Align::Left), 4);
    EXPECT_NEAR(firstColumn(forms::Align::Centre), 40, 6);
    EXPECT_GT(firstColumn(forms::Align::Right), 70);
}
TEST(Paint, StrokesAreAsThickAsTheyAreSaidToBe)
{
    Canvas canvas;
    canvas.Resize(40, 20);
    forms::DrawStroke(canvas, 5, 10, 35, 10, 4, {200, 100, 50});
    for (std::int32_t y = 0; y < 20; ++y)
        EXPECT_EQ(PixelAt(canvas, 20, y)[0], y >= 8 && y < 12 ? 200 : 0) << y;
    EXPECT_EQ(PixelAt(canvas, 1, 10), (Rgb{0, 0, 0}));
    EXPECT_GT(PixelAt(canvas, 3, 10)[0], 0); // the round end
    forms::DrawStroke(canvas, -100, -50, 300, 90, 3, {9, 9, 9}, 128);
    forms::DrawStroke(canvas, 7, 7, 7, 7, 2, {9, 9, 9}); // a dot
}

TEST(Paint, LinesAreCutOffAtTheirRectangle)
{
    Canvas canvas;
    canvas.Resize(200, 60);
    forms::DrawLine(canvas, {50, 20, 80, 20}, 30, std::string(5000, 'W'), 15, {255, 255, 255});
    for (std::int32_t y = 0; y < 60; ++y)
        for (std::int32_t x = 0; x < 200; ++x)
            ASSERT_TRUE(PixelAt(canvas, x, y)[0] == 0 || forms::Contains({50, 20, 80, 20}, x, y)) << x << "," << y;
    EXPECT_GT(PixelAt(canvas, 50, 29)[0] + PixelAt(canvas, 51, 29)[0] + PixelAt(canvas, 52, 29)[0], 0);
}
}
