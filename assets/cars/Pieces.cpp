#include "assets/cars/Pieces.h"

#include "base/Numbers.h"

#include <algorithm>

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
