#include "render/Screen.h"

#include "render/RenderFrame.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <string>

using render::Band;

TEST(ApplyResolution, DerivesEverythingFromTheSize)
{
    const scenes::View view(601, 313, 0, 5);
    const render::Screen& screen = view.Screen;
    EXPECT_EQ(screen.ScreenMaxX, 600);
    EXPECT_EQ(screen.ScreenMaxY, 312);
    EXPECT_EQ(screen.RowBytes, 1803);
    EXPECT_EQ(screen.RowBytesLast, 1800);
    EXPECT_EQ(screen.CenterX, 300.0f); // cut, not rounded
    EXPECT_EQ(screen.CenterY, 156.0f);
    EXPECT_EQ(view.Camera.MinZoom, 156.0f);
    EXPECT_EQ(view.Camera.Zoom, 312.0f);
    EXPECT_EQ(screen.Header.biWidth, 601);
    EXPECT_EQ(screen.Header.biHeight, 313);
    EXPECT_EQ(screen.Frame.RowBytes, 1804); // padded to four bytes
    EXPECT_EQ(screen.Frame.Rows, 313);
    EXPECT_EQ(screen.Depth.size(), 601u * 313u);
    EXPECT_EQ(screen.RowAngle.size(), 313u);
    EXPECT_EQ(screen.Bands.size(), 5u);
    EXPECT_TRUE(view.Messages.Boxes.empty());
}

TEST(ApplyResolution, TheNarrowSideGivesTheZoom)
{
    const scenes::View view(240, 900);
    EXPECT_EQ(view.Camera.MinZoom, 120.0f);
}

TEST(ApplyResolution, ANewSizeReplacesTheOldOne)
{
    scenes::View view(240, 200);
    render::ApplyResolution(view.Messages, view.Screen, view.Camera, 600, 312);
    EXPECT_EQ(view.Screen.Frame.Rows, 312);
    EXPECT_EQ(view.Screen.RowDist.size(), 312u);
    EXPECT_EQ(view.Screen.Bands.back().Last, 599);
}

TEST(ApplyResolution, AnImpossibleSizeIsReportedAndDrawsNothing)
{
    for (const int width : {0, -3, 100000000})
    {
        scenes::View view(width, 200);
        EXPECT_EQ(view.Messages.Boxes.size(), 1u);
        EXPECT_EQ(view.Screen.ScreenW, 0);
        render::RenderFrame(render::Scene(), view.Camera, view.Screen, nullptr);
    }
}

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

TEST(FilterName, IsItalianAndEmptyForOthers)
{
    EXPECT_EQ(std::string(render::FilterName(0)), "nessuno");
    EXPECT_EQ(std::string(render::FilterName(1)), "lineare");
    EXPECT_EQ(std::string(render::FilterName(2)), "anisotropico");
    EXPECT_EQ(std::string(render::FilterName(3)), "");
    EXPECT_EQ(std::string(render::FilterName(-1)), "");
}
