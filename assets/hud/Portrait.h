// SPDX-License-Identifier: Zlib
// assets/hud/Portrait.h: cars drawn finely for the menu's pictures, from the same surfaces as the game's models.
#pragma once
#include "assets/cars/Design.h"
#include "assets/common/Canvas.h"
#include "assets/common/Vectors.h"

#include <functional>

namespace assets::hud
{
// A camera that looks along `Yaw` without tilt; the horizon lies at row HorizonY.
struct SceneView
{
    Vec3 Eye;
    double Yaw = 0;   // from +z toward -x, radians
    double Focal = 0; // pixels
    double CentreX = 0, HorizonY = 0;

    // Right, up and depth of a point seen from the eye.
    Vec3 ToCamera(Vec3 p) const;
    // Depth must be above 0.
    Point Project(Vec3 camera) const
    {
        return {CentreX + camera.X / camera.Z * Focal, HorizonY + camera.Y / camera.Z * Focal};
    }
    // The direction through a pixel, not of unit length.
    Vec3 Ray(double x, double y) const;
};

enum class Surfacing
{
    Paint,
    Glass,
    Matte
};
// What a point of the car looks like: its paint as lit from above, world direction and place.
using CarLight = std::function<Rgb(Rgb paint, Surfacing kind, Vec3 normal, Vec3 at)>;

struct CarPose
{
    double X = 0, Z = 0, Heading = 0; // heading as in the game: 0 along +z, positive toward -x
    Vec3 ToWorld(Vec3 p) const;
    Vec3 Turned(Vec3 direction) const;
};

void DrawCar(Canvas& canvas, const cars::Design& design, const SceneView& view, const CarPose& pose,
             const CarLight& light);
}
