// SPDX-License-Identifier: Zlib
#include "render/Lines.h"

#include "base/Numbers.h"

namespace render
{
namespace
{
bool IsSeen(const Screen& screen, float depth)
{
    return depth > 0.0f && depth <= screen.FarZ;
}

// Whether a line that goes in a direction has left 0 … most for good.
bool HasLeft(std::int32_t place, double direction, std::int32_t most)
{
    return direction > 0.0 ? place > most : (direction < 0.0 ? place < 0 : place < 0 || place > most);
}
}

void DrawLine3D(const Scene& scene, const Camera& camera, Screen& screen, const Point3& from, const Point3& to,
                base::Rgb colour)
{
    const Point3 a = WorldToCamera(camera, from.X, from.Y, from.Z), b = WorldToCamera(camera, to.X, to.Y, to.Z);
    if (!IsSeen(screen, a.Z) || !IsSeen(screen, b.Z))
        return;
    const ScreenPoint p = Project(a.X, a.Y, a.Z, camera.Zoom, screen.CenterX, screen.CenterY);
    const ScreenPoint q = Project(b.X, b.Y, b.Z, camera.Zoom, screen.CenterX, screen.CenterY);
    if (p.X < 0 || p.X > screen.ScreenW || p.Y < 0 || p.Y > screen.ScreenH || q.X == base::OutOfRange ||
        q.Y == base::OutOfRange)
        return;
    const double length = Dist2D(p.X, p.Y, q.X, q.Y);
    if (length == 0.0)
        return;
    const double stepX = (static_cast<double>(q.X) - p.X) / length, stepY = (static_cast<double>(q.Y) - p.Y) / length;
    const double stepZ = (static_cast<double>(b.Z) - a.Z) / length;
    const base::Rgb lit{base::RoundByte(static_cast<double>(colour.R) * scene.LightR),
                        base::RoundByte(static_cast<double>(colour.G) * scene.LightG),
                        base::RoundByte(static_cast<double>(colour.B) * scene.LightB)};
    const base::Surface frame = FrameSurface(screen);
    for (double t = 0.0; t <= length; t += 1.0)
    {
        const std::int32_t x = base::RoundEven(p.X + stepX * t), y = base::RoundEven(p.Y + stepY * t);
        // However far the other end is, nothing is drawn any more once the line has left the screen.
        if (HasLeft(x, stepX, screen.ScreenMaxX) || HasLeft(y, stepY, screen.ScreenMaxY))
            return;
        if (x < 0 || x > screen.ScreenMaxX || y < 0 || y > screen.ScreenMaxY)
            continue;
        const auto z = static_cast<float>(a.Z + stepZ * t);
        float& cell = screen.Depth.At(x, y);
        if (!(z < cell))
            continue;
        cell = z;
        base::Put(frame.At(x, y), lit);
    }
}
}
