// SPDX-License-Identifier: Zlib
#include "assets/track/Models.h"

#include "base/Numbers.h"

namespace assets::track
{
namespace
{
Vec3 Between(Vec3 a, Vec3 b, double t)
{
    return {Lerp(a.X, b.X, t), Lerp(a.Y, b.Y, t), Lerp(a.Z, b.Z, t)};
}
}

ModelMesh Face(const std::string& texture, const Region& region, Vec3 lowLeft, Vec3 lowRight, Vec3 upRight, Vec3 upLeft,
               int across, int up)
{
    ModelMesh mesh(up + 1, across + 1);
    mesh.Texture = ModelFolder::PathOf(texture);
    for (int i = 0; i <= up; ++i)
        for (int j = 0; j <= across; ++j)
        {
            const double u = 1.0 * j / across, v = 1.0 * i / up;
            const Vec3 p = Between(Between(lowLeft, lowRight, u), Between(upLeft, upRight, u), v);
            mesh.At(i, j) = {p.X, p.Y, p.Z, region.Left + base::RoundEven(u * (region.Width - 1)),
                             region.Low + base::RoundEven(v * (region.Height - 1))};
        }
    return mesh;
}

ModelMesh FlatFace(Rgb colour, Vec3 lowLeft, Vec3 lowRight, Vec3 upRight, Vec3 upLeft)
{
    ModelMesh mesh(2, 2);
    mesh.Colour = FlatColour(colour);
    mesh.At(0, 0) = {lowLeft.X, lowLeft.Y, lowLeft.Z};
    mesh.At(0, 1) = {lowRight.X, lowRight.Y, lowRight.Z};
    mesh.At(1, 1) = {upRight.X, upRight.Y, upRight.Z};
    mesh.At(1, 0) = {upLeft.X, upLeft.Y, upLeft.Z};
    return mesh;
}

ModelMesh Upright(const std::string& texture, const Region& region, double x0, double z0, double x1, double z1,
                  double low, double high, int across, int up)
{
    return Face(texture, region, {x0, low, z0}, {x1, low, z1}, {x1, high, z1}, {x0, high, z0}, across, up);
}

ModelMesh Turned(const std::string& texture, const Region& region, const std::vector<Ring>& rings, int sides, double x,
                 double z, double uneven)
{
    const int rows = static_cast<int>(rings.size());
    ModelMesh mesh(rows, sides + 1);
    mesh.Texture = ModelFolder::PathOf(texture);
    for (int i = 0; i < rows; ++i)
        for (int j = 0; j <= sides; ++j)
        {
            const Ring& ring = rings[static_cast<std::size_t>(i)];
            const double turn = 1.0 * j / sides, around = 2 * Pi * turn;
            const double r = ring.R * (1 + uneven * (HashUnit(j % sides, i, 881) - 0.5));
            mesh.At(i, j) = {x + r * std::cos(around), ring.Y, z + r * std::sin(around),
                             region.Left + base::RoundEven(turn * (region.Width - 1)),
                             region.Low + base::RoundEven(1.0 * i / (rows - 1) * (region.Height - 1))};
        }
    return mesh;
}

void SetRows(ModelMesh& turned, const Region& region, const std::vector<int>& rows)
{
    for (int i = 0; i < turned.Rows; ++i)
        for (int j = 0; j < turned.Cols; ++j)
            turned.At(i, j).V = region.Low + rows.at(static_cast<std::size_t>(i));
}

ModelSphere SphereAt(double x, double y, double z, double radius)
{
    ModelSphere sphere;
    sphere.X = x;
    sphere.Y = y;
    sphere.Z = z;
    sphere.R = radius;
    return sphere;
}

void ModelFolder::Texture(const std::string& name, const Canvas& picture, Black black) const
{
    WriteBmp(Folder + "/" + name + ".bmp", picture, black);
}

void ModelFolder::Write(const std::string& name, const Model& model) const
{
    WriteModel(model, Folder + "/" + name + ".3dm");
}
}
