// SPDX-License-Identifier: Zlib
#include "render/Bands.h"

#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <vector>

using render::Band;

TEST(Bands, FollowTheRoundedQuotients)
{
    // 240 / 7 = 34.2857…: 0, 34.29, 68.57, 102.86, …
    const std::vector<Band> bands = render::MakeBands(240, 7);
    const int firsts[] = {0, 34, 69, 103, 137, 171, 206}, lasts[] = {33, 68, 102, 136, 170, 205, 239};
    ASSERT_EQ(bands.size(), 7u);
    for (std::size_t i = 0; i < 7; ++i)
    {
        EXPECT_EQ(bands[i].First, firsts[i]);
        EXPECT_EQ(bands[i].Last, lasts[i]);
    }
}

// The last columns are round((i + 1) b - 1) for every count that processors can give: 2 x processors + 1.
TEST(Bands, LastColumnsAreThoseOfTheirOwnFormula)
{
    for (int width = 240; width <= 1200; width += 7)
        for (int count = 3; count <= 65; count += 2)
        {
            const std::vector<Band> bands = render::MakeBands(width, static_cast<std::int16_t>(count));
            const double b = static_cast<float>(width) / static_cast<float>(count);
            for (int i = 0; i < count; ++i)
                ASSERT_EQ(bands[static_cast<std::size_t>(i)].Last, base::RoundEven((i + 1) * b - 1.0))
                    << width << " " << count << " " << i;
        }
}

TEST(Bands, CoverEveryColumnOnceAtAnyCount)
{
    for (int width = 1; width <= 1200; width += 13)
        for (const int count : {-5, 0, 1, 2, 3, 4, 5, 8, 16, 48, 1999})
        {
            std::int32_t next = 0;
            for (const Band& band : render::MakeBands(width, static_cast<std::int16_t>(count)))
            {
                ASSERT_EQ(band.First, next) << width << " " << count;
                next = band.Last + 1;
            }
            ASSERT_EQ(next, width) << width << " " << count;
        }
}

TEST(Bands, HalvesCoverThemToo)
{
    for (const int width : {1, 2, 3, 7, 240, 1200})
        for (const int count : {1, 3, 5, 48, 1999})
        {
            const std::vector<Band> bands = render::MakeBands(width, static_cast<std::int16_t>(count));
            const std::vector<Band> halves = render::Halved(bands);
            ASSERT_EQ(halves.size(), 2 * bands.size());
            for (std::size_t i = 0; i < bands.size(); ++i)
            {
                const Band &first = halves[2 * i], &second = halves[2 * i + 1];
                ASSERT_EQ(first.First, bands[i].First) << width << " " << count;
                ASSERT_EQ(second.First, first.Last + 1) << width << " " << count;
                ASSERT_EQ(second.Last, bands[i].Last) << width << " " << count;
                const int difference = (first.Last - first.First) - (second.Last - second.First);
                ASSERT_TRUE(difference == 0 || difference == 1) << width << " " << count;
            }
        }
}
