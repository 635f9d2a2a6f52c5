#include "render/Ground.h"

#include "render/RenderFrame.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>

using Mod3D::Band;
using Mod3D::GroundView;

namespace
{
struct GroundCase
{
    int Width, Height;
};

// Draws the ground of one view twice, by the plain and by the fast routines, over frames of rubbish, and compares every
// byte and depth cell.
void Compare(const Mod3D::Scene& scene, scenes::View& view)
{
    Mod3D::Screen& screen = view.Screen;
    Mod3D::UpdateSkyOffset(view.Camera, screen);
    Mod3D::UpdateRowTables(view.Camera, screen);
    std::fill(screen.Frame.Bytes.begin(), screen.Frame.Bytes.end(), std::uint8_t{77});
    std::fill(screen.Depth.begin(), screen.Depth.end(), 1.0f);
    Mod3D::GroundPlain(Mod3D::MakeGroundView(scene, view.Camera, screen), {0, screen.ScreenMaxX}, screen.TxtFilter);
    const std::vector<std::uint8_t> plain = screen.Frame.Bytes;
    const std::vector<float> depth = screen.Depth;
    std::fill(screen.Frame.Bytes.begin(), screen.Frame.Bytes.end(), std::uint8_t{77});
    std::fill(screen.Depth.begin(), screen.Depth.end(), 1.0f);
    Mod3D::DrawGround(scene, view.Camera, screen);
    const auto differs = std::mismatch(plain.begin(), plain.end(), screen.Frame.Bytes.begin());
    ASSERT_EQ(differs.first, plain.end())
        << "first other byte in row " << (differs.first - plain.begin()) / screen.Frame.RowBytes << ", column "
        << (differs.first - plain.begin()) % screen.Frame.RowBytes / 3;
    ASSERT_EQ(depth, screen.Depth);
}
}

TEST(Ground, FastIsPlainForRandomViews)
{
    base::Random random;
    random.Seed(1);
    const GroundCase sizes[] = {{240, 200}, {241, 201}, {333, 257}, {600, 312}, {1200, 900}};
    for (int round = 0; round < 120; ++round)
    {
        const GroundCase size = round % 40 == 39 ? sizes[4] : sizes[round % 4];
        Mod3D::Scene scene;
        scene.Sky = scenes::Noise(random, Mod3D::SkyWidth, scenes::DrawWhole(random, 1, 300));
        scenes::SetGround(scene,
                          scenes::Noise(random, scenes::DrawWhole(random, 1, 300), scenes::DrawWhole(random, 20, 300)),
                          static_cast<float>(scenes::Draw(random, 0.3, 3.0)));
        scenes::View view(size.Width, size.Height, round % 3, scenes::DrawWhole(random, 1, 16));
        if (round % 5 == 0)
            view.Camera.Zoom *= static_cast<float>(scenes::Draw(random, 0.5, 8.0));
        view.Look(
            static_cast<float>(scenes::Draw(random, -100.0, 300.0)),
            static_cast<float>(scenes::Draw(random, 0.5, 120.0)),
            static_cast<float>(scenes::Draw(random, -100.0, 300.0)),
            static_cast<float>(scenes::Draw(random, -7.0, 7.0)),
            static_cast<float>(round % 7 == 0 ? scenes::Draw(random, -3.2, 3.2) : scenes::Draw(random, -1.6, 0.2)));
        SCOPED_TRACE(testing::Message() << "round " << round);
        ASSERT_NO_FATAL_FAILURE(Compare(scene, view));
    }
}
