// SPDX-License-Identifier: Zlib
#include "assets/hud/Glass.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Shapes.h"

#include <cmath>

namespace assets::hud
{
namespace
{
constexpr int Width = 512, Height = 256;

// The seal below and the shade strip along the top, which both whole and broken glass have: from the seat, dashboard
// and roof hide them. All else stays clear, for a seal beside a pillar or a reflection would be a splinter in the
// driver's view.
void PaintFrame(Canvas& glass)
{
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
        {
            const double top = Height - 1 - y;
            if (y < 8 || top < 3)
                glass.Set(x, y, Hex(0x121316));
            else if (top < 14)
                glass.Set(x, y, Mix(Hex(0x16262C), Hex(0x24404A), (14 - top) / 11));
        }
}

// Cracks run out from where the glass was hit, wander a little and are tied together by rings.
void PaintCracks(Canvas& glass, Point hit, int count, double reach, std::uint32_t seed)
{
    Sequence random(seed);
    std::vector<std::vector<Point>> rays;
    for (int i = 0; i < count; ++i)
    {
        double angle = 2 * Pi * (i + random.Between(0.1, 0.9)) / count;
        const double length = reach * random.Between(0.55, 1.3);
        Point at = hit;
        std::vector<Point> ray{at};
        for (double gone = 0; gone < length; gone += 20)
        {
            angle += random.Between(-0.16, 0.16);
            at = {at.X + 20 * std::cos(angle), at.Y + 20 * std::sin(angle)};
            ray.push_back(at);
        }
        rays.push_back(ray);
    }
    const Rgb bright = Hex(0xE2ECEE), dim = Hex(0x9FB0B6);
    for (std::size_t i = 0; i < rays.size(); ++i)
    {
        Stroke(glass, rays[i], 2.6, bright);
        for (const std::size_t step : {1u, 2u, 4u})
            if (const auto& next = rays[(i + 1) % rays.size()];
                step < rays[i].size() && step < next.size() && random.Next() < 0.8)
                Stroke(glass, std::vector<Point>{rays[i][step], next[step]}, 2.2, dim);
    }
    FillDisc(glass, hit, 6, Hex(0xF4FAFA));
}
}

void WriteGlass(const std::string& folder)
{
    Canvas whole(Width, Height);
    PaintFrame(whole);
    WriteBmp(folder + "/glass.bmp", whole, Black::Key);

    Canvas broken(Width, Height);
    PaintCracks(broken, {352, 160}, 13, 160, 5);
    PaintCracks(broken, {120, 64}, 8, 80, 11);
    PaintFrame(broken);
    WriteBmp(folder + "/glass_b.bmp", broken, Black::Key);
}
}
