// SPDX-License-Identifier: Zlib
#include "tools/preview/Canvas.h"
#include "tools/preview/Failure.h"
#include "tools/preview/Limits.h"
#include "tools/preview/Sheet.h"

#include <gtest/gtest.h>

namespace
{
constexpr base::Rgb Red = {250, 0, 0}, Blue = {0, 0, 250}, Black = {0, 0, 0};

base::Bitmap Plain(std::int32_t width, std::int32_t height, base::Rgb colour)
{
    base::Bitmap bitmap;
    bitmap.Reset(width, height);
    for (std::int32_t row = 0; row < height; ++row)
        for (std::int32_t x = 0; x < width; ++x)
            base::Put(bitmap.View().At(x, row), colour);
    return bitmap;
}
}

TEST(Canvas, RowsCountFromTheTop)
{
    preview::Canvas canvas(4, 3, Black);
    canvas.Fill({1, 0}, {2, 1}, {Red, 1});
    EXPECT_EQ(canvas.At(1, 0), Red);
    EXPECT_EQ(canvas.At(0, 0), Black);
    EXPECT_EQ(canvas.At(2, 0), Black);
    EXPECT_EQ(canvas.At(1, 1), Black);
    EXPECT_EQ(base::Get(canvas.View().At(1, 2)), Red); // row 2 is the top one in memory
}

TEST(Canvas, AlphaMixesAndWhatLiesOutsideIsLeftOut)
{
    preview::Canvas canvas(4, 4, Black);
    canvas.Fill({-10, -10}, {20, 20}, {Red, 0.5});
    canvas.Disc({-100, 2}, 5, {Blue, 1});
    canvas.Ring({2, 300}, 5, 2, {Blue, 1});
    canvas.Line({-9, -20}, {50, -20}, 3, {Blue, 1});
    for (std::int32_t y = 0; y < 4; ++y)
        for (std::int32_t x = 0; x < 4; ++x)
            EXPECT_EQ(canvas.At(x, y), (base::Rgb{125, 0, 0})) << x << " " << y;
}

TEST(Canvas, ARingLeavesItsInsideAlone)
{
    preview::Canvas canvas(41, 41, Black);
    canvas.Ring({20.5, 20.5}, 15, 3, {Red, 1});
    EXPECT_EQ(canvas.At(20, 20), Black);
    EXPECT_EQ(canvas.At(35, 20), Red);
    EXPECT_EQ(canvas.At(5, 20), Red);
    EXPECT_EQ(canvas.At(20, 35), Red);
    EXPECT_EQ(canvas.At(40, 40), Black);
}

TEST(Canvas, LinesOfEverySlopeReachFromEndToEnd)
{
    for (const preview::Spot end : {preview::Spot{35.5, 20.5}, {20.5, 35.5}, {35.5, 35.5}, {35.5, 5.5}, {5.5, 22.5}})
    {
        preview::Canvas canvas(41, 41, Black);
        canvas.Line({20.5, 20.5}, end, 2, {Red, 1});
        for (const double share : {0.0, 1.0 / 3, 2.0 / 3, 1.0})
            EXPECT_EQ(canvas
                          .At(static_cast<int>(20.5 + (end.X - 20.5) * share),
                              static_cast<int>(20.5 + (end.Y - 20.5) * share))
                          .R,
                      250)
                << end.X << " " << end.Y << " at " << share;
        EXPECT_EQ(canvas.At(1, 1), Black);
    }
}

TEST(Canvas, APictureIsMadeSmallerByTheMeanOfItsPixels)
{
    base::Bitmap chequered = Plain(4, 2, Black);
    for (std::int32_t x = 0; x < 4; x += 2)
        base::Put(chequered.View().At(x, 0), Red);
    const base::Bitmap small = preview::Resized(chequered.View(), 2, 1);
    EXPECT_EQ(base::Get(small.View().At(0, 0)), (base::Rgb{62, 0, 0}));
    EXPECT_EQ(base::Get(small.View().At(1, 0)), (base::Rgb{62, 0, 0}));
    const base::Bitmap large = preview::Resized(chequered.View(), 8, 4);
    EXPECT_EQ(base::Get(large.View().At(0, 0)), Red);
    EXPECT_EQ(base::Get(large.View().At(1, 1)), Red);
    EXPECT_EQ(base::Get(large.View().At(2, 1)), Black);
}

TEST(Sheet, TilesStandInRowsFromTheTop)
{
    const std::vector<preview::Tile> tiles = {
        {Plain(20, 10, Red), "a"}, {Plain(20, 10, Blue), "b"}, {Plain(20, 10, Blue), "c"}};
    const preview::Canvas sheet = preview::MakeSheet(tiles, 2);
    EXPECT_EQ(sheet.Width(), 6 + 2 * 26);
    EXPECT_EQ(sheet.Height(), 6 + 2 * 28);
    EXPECT_EQ(sheet.At(6, 6), Red);
    EXPECT_EQ(sheet.At(32, 6), Blue);
    EXPECT_EQ(sheet.At(6, 34), Blue);
    EXPECT_EQ(sheet.At(32, 34), preview::Paper);
}

TEST(Sheet, PicturesThatAreTooLargeAreRefused)
{
    EXPECT_NO_THROW(preview::RequireSize(10000, 10000));
    EXPECT_THROW(preview::RequireSize(16385, 1), preview::Failure);
    EXPECT_THROW(preview::RequireSize(16000, 16000), preview::Failure);
}
