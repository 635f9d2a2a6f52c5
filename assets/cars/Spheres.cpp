// SPDX-License-Identifier: Zlib
#include "assets/cars/Spheres.h"

#include "assets/cars/Fittings.h"

namespace assets::cars
{
namespace
{
// Where two cars touch. How far a touch throws them apart grows with the depth to which spheres meet, and what it costs
// with the angle between their headings, which in a bend is the larger the farther one is ahead: small spheres abreast
// of the car's middle are what a field of eight, whose computer drivers see nobody, lives with. Found by racing many
// seeds.
struct TouchSizes
{
    double Aside = 0.6, Low = 0.55, Ahead = 0, Radius = 0.06; // of the six on the body
    double High = 1.00, Cabin = 0.06;                         // height and radius of those in the cabin
};
constexpr TouchSizes Touch;

// Where a touch shows: on the visible body, around the place that the sphere stands for.
struct DentSizes
{
    double Aside = 0.62, Low = 0.58, Ahead = 1.85, Reach = 0.92; // the corners, and the doors between them
    double High = 1.10, CabinReach = 1.10;
};
constexpr DentSizes Dent;

constexpr double CabinZ[] = {0.35, -0.75};

// The roof stays where it is as far as the driver sees it: pressed in, it would hang before his eyes.
void SpareRoof(const Model& model, ModelSphere& dented)
{
    constexpr double BelowEye = 0.98, BehindEye = -0.45;
    std::erase_if(dented.Links,
                  [&](const SphereLink& link)
                  {
                      const ModelMesh& mesh = model.Meshes.at(static_cast<std::size_t>(link.Mesh));
                      const ModelPoint& point = mesh.At(link.Row, link.Col);
                      return point.Y > BelowEye && point.Z > BehindEye;
                  });
}

ModelSphere Touching(double x, double y, double z, double radius, const ModelSphere& dented)
{
    return {x, y, z, radius, dented.Links};
}
}

void AddSpheres(Model& model, int panels)
{
    for (const double ahead : {1.0, 0.0, -1.0})
        for (const double side : {-1.0, 1.0})
        {
            ModelSphere dented{side * Dent.Aside, Dent.Low, ahead * Dent.Ahead, Dent.Reach, {}};
            model.LinkNear(dented, 0, panels - 1, 0);
            SpareRoof(model, dented);
            model.Spheres.push_back(Touching(side * Touch.Aside, Touch.Low, ahead * Touch.Ahead, Touch.Radius, dented));
        }
    for (const double z : CabinZ)
    {
        ModelSphere dented{0, Dent.High, z, Dent.CabinReach, {}};
        model.LinkNear(dented, 0, panels - 1, 0);
        model.LinkNear(dented, GlassMesh, GlassMesh, 0);
        SpareRoof(model, dented);
        model.Spheres.push_back(Touching(0, Touch.High, z, Touch.Cabin, dented));
    }
}
}
