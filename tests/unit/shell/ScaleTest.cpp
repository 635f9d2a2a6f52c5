// SPDX-License-Identifier: Zlib
// The scaling of pictures for a form.
#include "shell/forms/Scale.h"
#include "base/Numbers.h"
#include "tests/support/Pixels.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace
{
using support::Checker;

// The share of each source pixel in a destination one, from the first that has any.
std::vector<float> Shares(int at, int from, int to, int& first)
{
    const double step = static_cast<double>(from) / to, centre = (at + 0.5) * step - 0.5, reach = std::max(step, 1.0);
    std::vector<float> shares;
    double sum = 0;
    first = std::max(0, base::Floor(centre - reach) + 1);
    for (int j = first; j <= std::min(from - 1, base::Floor(centre + reach)); ++j)
    {
        const double share = std::max(0.0, 1 - std::abs(j - centre) / reach);
        shares.push_back(static_cast<float>(share));
        sum += share;
    }
    for (float& share : shares)
        share = static_cast<float>(share / sum);
    return shares;
}

// A pixel of the scaled picture, straight from its definition: across, then down, channel by channel.
forms::ImagePixel PlainPixel(const render::Picture& picture, std::pair<int, int> size, std::pair<int, int> at,
                             bool seeThrough)
{
    int left = 0, top = 0;
    const std::vector<float> across = Shares(at.first, picture.Info.Width, size.first, left);
    const std::vector<float> down = Shares(at.second, picture.Info.Height, size.second, top);
    std::array<float, 4> sum = {};
    for (std::size_t j = 0; j < down.size(); ++j)
    {
        const std::uint8_t* row = picture.Pixels.Row(picture.Info.Height - 1 - top - static_cast<int>(j));
        std::array<float, 4> part = {};
        for (std::size_t i = 0; i < across.size(); ++i)
        {
            const std::uint8_t* pixel = row + 3 * (left + static_cast<int>(i));
            if (seeThrough && pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 0)
                continue;
            for (std::size_t c = 0; c < 3; ++c)
                part[c] += across[i] * static_cast<float>(pixel[c]);
            part[3] += across[i];
        }
        for (std::size_t c = 0; c < 4; ++c)
            sum[c] += down[j] * part[c];
    }
    if (!(sum[3] > 0))
        return {};
    return {{base::RoundByte(sum[2] / sum[3]), base::RoundByte(sum[1] / sum[3]), base::RoundByte(sum[0] / sum[3])},
            base::RoundByte(sum[3] * 255)};
}

TEST(Scale, EveryPixelIsThatOfTheDefinition)
{
    base::Random random;
    random.Seed(11);
    for (const auto& [width, height] : {std::pair{1, 1}, {7, 5}, {20, 33}, {64, 48}, {3, 90}})
        for (const bool seeThrough : {false, true})
        {
            const render::Picture picture = support::Noise(random, 29, 31, 0.6);
            const forms::Image image = forms::Scale(picture, width, height, seeThrough);
            ASSERT_EQ(image.Width, width);
            ASSERT_EQ(image.Height, height);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x)
                {
                    const forms::ImagePixel plain = PlainPixel(picture, {width, height}, {x, y}, seeThrough);
                    const forms::ImagePixel& scaled = image.At(x, y);
                    ASSERT_EQ(scaled.Colour, plain.Colour) << x << "," << y << " of " << width;
                    ASSERT_EQ(scaled.Alpha, plain.Alpha) << x << "," << y << " of " << width;
                }
        }
}

TEST(Scale, BlackCanBeSeenThrough)
{
    const forms::Image keyed = forms::Scale(Checker(4, 4), 4, 4, true);
    ASSERT_EQ(keyed.Cells.size(), 16u);
    EXPECT_EQ(keyed.Cells[1].Alpha + keyed.Cells[0].Alpha, 255);
    const forms::Image opaque = forms::Scale(Checker(4, 4), 4, 4, false);
    for (const forms::ImagePixel& pixel : opaque.Cells)
        EXPECT_EQ(pixel.Alpha, 255);
}

TEST(Scale, ShrinkingAverages)
{
    const forms::Image small = forms::Scale(Checker(64, 64), 8, 8, false);
    for (const forms::ImagePixel& pixel : small.Cells)
        EXPECT_NEAR(pixel.Colour.R, 100, 6);
    const forms::Image keyed = forms::Scale(Checker(64, 64), 8, 8, true);
    for (const forms::ImagePixel& pixel : keyed.Cells)
    {
        EXPECT_EQ(pixel.Colour.R, 200); // black has no part in the colour
        EXPECT_NEAR(pixel.Alpha, 128, 8);
    }
}

TEST(Scale, NothingGivesNothing)
{
    EXPECT_EQ(forms::Scale({}, 10, 10, true).Width, 0);
    EXPECT_EQ(forms::Scale(Checker(2, 2), 0, 10, true).Width, 0);
    EXPECT_EQ(forms::Scale(Checker(1, 1), 3, 2, false).Cells.size(), 6u);
}
}
