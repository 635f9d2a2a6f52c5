// The scaling of pictures for a form.
#include "shell/forms/Scale.h"
#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

namespace
{
using support::Checker;

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
