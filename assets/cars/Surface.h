// SPDX-License-Identifier: Zlib
// assets/cars/Surface.h: curved body panels: each is a smooth surface over (a, b), cut into a grid and painted into a
// texture. Texels are coloured from the smooth surface, so that a coarse grid still looks round.
#pragma once
#include "assets/common/Canvas.h"
#include "assets/common/Model3dm.h"
#include "assets/common/Vectors.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace assets::cars
{
// A smooth curve through (position, value) keys; flat beyond the ends. Positions rise.
class Curve
{
public:
    Curve(std::initializer_list<std::pair<double, double>> keys) : Keys(keys) {}
    double operator()(double at) const;

private:
    std::vector<std::pair<double, double>> Keys; // at least one
};

using Surface = std::function<Vec3(double a, double b)>; // a across the texture, b up it; both 0 to 1

// What the painter is asked about.
struct Sample
{
    Vec3 P, N;           // the place and the outward direction, of unit length
    double A = 0, B = 0; // where on the panel, 0 to 1
};
struct Ink
{
    Rgb Colour;
    bool Clear = false; // see-through
};
using Painter = std::function<Ink(const Sample&)>;

// One texture shared by many panels, filled shelf by shelf from the bottom.
class Atlas
{
public:
    Atlas(int width, int height) : Sheet(width, height) {}

    // Texels; (X, Y) is its lower left one.
    struct Area
    {
        int X, Y, Width, Height;
    };
    // Throws std::runtime_error when there is no room left.
    Area Reserve(int width, int height);
    Canvas& Picture() { return Sheet; }

private:
    Canvas Sheet;
    int NextX = 0, NextY = 0; // where the next area goes, if it still fits on the shelf
    int ShelfHeight = 0;      // of the highest area on it
};

struct Panel
{
    Surface Shape;
    std::vector<double> KnotsA, KnotsB; // where the grid is cut, rising from 0 to 1
    int Width = 0, Height = 0;          // texels
    Vec3 Inside;                        // a point behind the surface: normals point away from it
};

// The surface at (a, b) with its outward direction.
Sample SampleAt(const Panel& panel, double a, double b);

// Reserves the panel's texels, paints them and returns the grid, textured by the file that `texture` names.
ModelMesh Build(const Panel& panel, const Painter& painter, Atlas& atlas, const std::string& texture);

// 0 to 1 in `cells` equal steps, both ends included.
std::vector<double> Evenly(int cells);
}
