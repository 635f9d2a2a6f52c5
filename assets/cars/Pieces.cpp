// SPDX-License-Identifier: Zlib
#include "assets/cars/Pieces.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>

namespace assets::cars
{
namespace
{
int Flat(Rgb colour)
{
    const auto channel = [](double v) { return std::max(1, base::RoundEven(Clamp01(v) * 255)); };
    return FlatColour(channel(colour.R), channel(colour.G), channel(colour.B));
}
}

ModelMesh FlatMesh(Rgb colour, const std::vector<std::vector<Vec3>>& rows)
{
    ModelMesh mesh(static_cast<int>(rows.size()), static_cast<int>(rows[0].size()));
    mesh.Colour = Flat(colour);
    for (int i = 0; i < mesh.Rows; ++i)
        for (int j = 0; j < mesh.Cols; ++j)
        {
            const Vec3& p = rows[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
            mesh.At(i, j) = {p.X, p.Y, p.Z};
        }
    return mesh;
}

ModelMesh Disc(Rgb colour, const Plane& plane, double radius, int corners)
{
    // Chords from the lowest side to the highest.
    std::vector<std::vector<Vec3>> rows;
    for (int i = 0; i < corners / 2; ++i)
    {
        const double angle = 2 * Pi * (i + 0.5) / corners;
        const double half = radius * std::sin(angle), up = -radius * std::cos(angle);
        rows.push_back({plane.At(-half, up), plane.At(half, up)});
    }
    return FlatMesh(colour, rows);
}

ModelMesh Arc(Rgb colour, const Plane& plane, double inner, double outer, double from, double to, int cells)
{
    std::vector<std::vector<Vec3>> rows(2);
    for (int i = 0; i <= cells; ++i)
    {
        const double angle = Lerp(from, to, static_cast<double>(i) / cells);
        rows[0].push_back(plane.At(inner * std::cos(angle), inner * std::sin(angle)));
        rows[1].push_back(plane.At(outer * std::cos(angle), outer * std::sin(angle)));
    }
    return FlatMesh(colour, rows);
}

ModelMesh Hand(Rgb colour, const Plane& plane, double angle, double from, double to, double half)
{
    const double c = std::cos(angle), s = std::sin(angle);
    const auto at = [&](double out, double aside) { return plane.At(c * out - s * aside, s * out + c * aside); };
    return FlatMesh(colour, {{at(from, -half), at(from, half)}, {at(to, -half), at(to, half)}});
}

ModelMesh Plate(Rgb colour, const Plane& plane, double halfWidth, double halfHeight)
{
    return FlatMesh(colour, {{plane.At(-halfWidth, -halfHeight), plane.At(halfWidth, -halfHeight)},
                             {plane.At(-halfWidth, halfHeight), plane.At(halfWidth, halfHeight)}});
}

std::vector<double> PillarKnots()
{
    return {0, 0.12, 1};
}

ModelMesh Face(Vec3 lowLeft, Vec3 lowRight, Vec3 highLeft, Vec3 highRight, int cells, int width, int height,
               const Painter& painter, Atlas& atlas, const std::string& texture)
{
    Panel panel;
    panel.Shape = [=](double a, double b)
    {
        const Vec3 low = lowLeft + (lowRight - lowLeft) * a, high = highLeft + (highRight - highLeft) * a;
        return low + (high - low) * b;
    };
    panel.KnotsA = panel.KnotsB = Evenly(cells);
    panel.Width = width;
    panel.Height = height;
    return Build(panel, painter, atlas, texture);
}
}
