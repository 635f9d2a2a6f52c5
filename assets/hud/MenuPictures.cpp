// SPDX-License-Identifier: Zlib
#include "assets/hud/MenuPictures.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Shapes.h"
#include "assets/hud/Dusk.h"
#include "assets/hud/Neon.h"
#include "base/Numbers.h"
#include "typeface/Typeface.h"

#include <algorithm>
#include <cmath>

namespace assets::hud
{
namespace
{
void AddGlow(Canvas& canvas, Point at, double radius, Rgb colour)
{
    for (int y = base::Floor(at.Y - radius * 3); y < at.Y + radius * 3; ++y)
        for (int x = base::Floor(at.X - radius * 3); x < at.X + radius * 3; ++x)
            if (canvas.Has(x, y))
            {
                const double d = std::hypot(x + 0.5 - at.X, y + 0.5 - at.Y) / radius;
                canvas.Set(x, y, canvas.Colour(x, y) + colour * (std::exp(-d * d * 1.4) + 0.25 * std::exp(-d * 1.6)));
            }
}

// The car's paint under the dusk sky: a dull fill, and the mirrored sky where the view grazes the skin.
CarLight DuskLight(const Dusk& dusk, const SceneView& view)
{
    return [dusk, eye = view.Eye](Rgb paint, Surfacing kind, Vec3 normal, Vec3 at)
    {
        const Vec3 look = Unit(at - eye);
        if (Dot(normal, look) > 0)
            normal = normal * -1;
        const double facing = Clamp01(-Dot(look, normal));
        const Vec3 mirrored = look - normal * (2 * Dot(look, normal));
        const double graze = std::pow(1 - facing, 4.0);
        const Rgb sky = SkyColour(dusk, mirrored);
        const Rgb fill = Mix(Mix({0.22, 0.17, 0.20}, {0.52, 0.44, 0.60}, 0.5 + 0.5 * normal.Y), {0.22, 0.24, 0.36},
                             dusk.Night * 0.7);
        switch (kind)
        {
        case Surfacing::Glass:
            return Mix(Hex(0x0A0A10), sky, 0.22 + 0.6 * graze);
        case Surfacing::Paint:
            return paint * (fill + Rgb{0.20, 0.18, 0.18}) + sky * (0.07 + 0.75 * graze);
        case Surfacing::Matte:
            break;
        }
        return paint * (fill + Rgb{0.10, 0.09, 0.10});
    };
}

void TailGlow(Canvas& canvas, const SceneView& view, const CarPose& pose, double size)
{
    for (const double x : {-0.60, -0.40, 0.40, 0.60})
    {
        const Vec3 lamp = view.ToCamera(pose.ToWorld({x, 0.635, -2.16 + 0.04 * std::abs(x)}));
        const Point at = view.Project(lamp);
        AddGlow(canvas, at, size * 0.45 * view.Focal / lamp.Z, {0.52, 0.07, 0.05});
        AddGlow(canvas, at, size * 0.09 * view.Focal / lamp.Z, {0.70, 0.40, 0.30});
    }
}

void HeadGlow(Canvas& canvas, const SceneView& view, const CarPose& pose, double y, double size)
{
    for (const double x : {-0.56, 0.56})
    {
        const Vec3 lamp = view.ToCamera(pose.ToWorld({x, y, 2.12}));
        const Point at = view.Project(lamp);
        AddGlow(canvas, at, size * 0.50 * view.Focal / lamp.Z, {0.62, 0.50, 0.30});
        AddGlow(canvas, at, size * 0.13 * view.Focal / lamp.Z, {1.0, 0.95, 0.80});
    }
}

Canvas MenuScene(const std::vector<cars::Design>& designs)
{
    Canvas canvas(1000, 520);
    const SceneView view{{0, 1.55, 0}, 0, 760, 500, 262};
    const CarPose pose{3.05, 10.4, 0.30};
    const Dusk dusk{-0.285, 0.036, 0.30, 1.9, 10.05, 0};
    PaintLake(canvas, dusk, view);
    PaintRoad(canvas, dusk, view, pose);
    DrawCar(canvas, designs[0], view, pose, DuskLight(dusk, view));
    TailGlow(canvas, view, pose, 0.55);
    Develop(canvas, 0.9);
    return canvas;
}

// A line of small letters, its left end at (x, y).
void Write(Canvas& canvas, std::string_view text, double x, double y, double size, Rgb colour)
{
    Mask ink(canvas.Width, canvas.Height);
    for (const typeface::Segment& s : typeface::Outline(text, {size, 1, 0.01}))
        Stroke(ink, std::vector<Point>{{x + s.X1, y + s.Y1}, {x + s.X2, y + s.Y2}}, 2 * s.Radius);
    for (int row = 0; row < canvas.Height; ++row)
        for (int column = 0; column < canvas.Width; ++column)
            canvas.Blend(column, row, colour, ink.At(column, row));
}

Canvas SplashScene(const std::vector<cars::Design>& designs)
{
    constexpr int Fine = 2;
    Canvas canvas(600 * Fine, 312 * Fine);
    const SceneView view{{0, 1.05, 0}, 0, 470 * Fine, 300 * Fine, 140 * Fine};
    const Dusk dusk{-0.42, 0.02, -0.16, 0.35, 9.0, 0.55};
    const CarPose first{1.02, 6.9, Pi - 0.42}, second{-2.55, 12.4, Pi - 0.24};
    PaintLake(canvas, dusk, view);
    PaintRoad(canvas, dusk, view, first);
    DrawCar(canvas, designs[4], view, second, DuskLight(dusk, view));
    HeadGlow(canvas, view, second, 0.44, 0.55);
    DrawCar(canvas, designs[0], view, first, DuskLight(dusk, view));
    HeadGlow(canvas, view, first, 0.44, 0.60);
    Develop(canvas, 0.9);
    const Canvas title = NeonWord("VELKAR", canvas.Width, 150 * Fine,
                                  {Hex(0xFF8A2C), Hex(0x2CC8FF), 104.0 * Fine, 18.0 * Fine, 5.2 * Fine});
    Paste(canvas, title, 0, 172 * Fine);
    Canvas splash = Resized(canvas, 600, 312);
    Write(splash, "Velkar Team", 12, 12, 15, Hex(0xF2E2D0));
    return splash;
}
}

void WriteMenuPictures(const std::string& folder)
{
    const std::vector<cars::Design> designs = cars::Designs();
    WriteBmp(folder + "/menu.bmp", MenuScene(designs), Black::Avoid, true);
    WriteBmp(folder + "/splash.bmp", SplashScene(designs), Black::Avoid, true);
    const Canvas title = NeonWord("VELKAR", 1368, 318, {Hex(0xFF8A2C), Hex(0x2CC8FF), 262, 44, 13});
    WriteBmp(folder + "/logo.bmp", Dotted(title), Black::Key);
}
}
