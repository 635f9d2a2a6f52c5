// The scaling of pictures for a form.
#include "shell/forms/Paint.h"
#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

namespace
{
using support::Checker;

TEST(Scale, BlackCanBeSeenThrough)
{
    const forms::Image keyed = forms::Scale(Checker(4, 4), 4, 4, true);
    ASSERT_EQ(keyed.Pixels.size(), 16u);
    EXPECT_EQ(keyed.Pixels[1].A + keyed.Pixels[0].A, 255);
    const forms::Image opaque = forms::Scale(Checker(4, 4), 4, 4, false);
    for (const forms::Image::Pixel& pixel : opaque.Pixels)
        EXPECT_EQ(pixel.A, 255);
}

TEST(Scale, ShrinkingAverages)
{
    const forms::Image small = forms::Scale(Checker(64, 64), 8, 8, false);
    for (const forms::Image::Pixel& pixel : small.Pixels)
        EXPECT_NEAR(pixel.R, 100, 6);
    const forms::Image keyed = forms::Scale(Checker(64, 64), 8, 8, true);
    for (const forms::Image::Pixel& pixel : keyed.Pixels)
    {
        EXPECT_EQ(pixel.R, 200); // black has no part in the colour
        EXPECT_NEAR(pixel.A, 128, 8);
    }
}

TEST(Scale, NothingGivesNothing)
{
    EXPECT_EQ(forms::Scale({}, 10, 10, true).Width, 0);
    EXPECT_EQ(forms::Scale(Checker(2, 2), 0, 10, true).Width, 0);
    EXPECT_EQ(forms::Scale(Checker(1, 1), 3, 2, false).Pixels.size(), 6u);
}
}
