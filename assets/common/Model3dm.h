// SPDX-License-Identifier: Zlib
// assets/common/Model3dm.h: a model as the generators build it, and its text form ("3DM - VER 1.0.0").
// World units, y up, ground at y = 0; a car's nose points toward +z. Texels: column 0 left, row 0 at the picture's
// bottom.
#pragma once
#include "assets/common/Colour.h"

#include <string>
#include <vector>

namespace assets
{
struct ModelPoint
{
    double X = 0, Y = 0, Z = 0; // object-local
    int U = 0, V = 0;           // texel; unused in a flat mesh
};

// A grid of points; each cell is drawn as two triangles, seen from both sides.
struct ModelMesh
{
    int Rows = 0, Cols = 0;
    int Colour = -1;     // red in the low byte, then green, then blue; negative: textured
    std::string Texture; // as written in the file, for example "<path>side.bmp"
    std::vector<ModelPoint> Points;

    ModelMesh() = default;
    ModelMesh(int rows, int cols); // both at least 1
    ModelPoint& At(int row, int col);
    const ModelPoint& At(int row, int col) const;
};

struct SphereLink
{
    int Mesh = 0, Row = 0, Col = 0; // the grid point dented when the sphere is hit
};

struct ModelSphere
{
    double X = 0, Y = 0, Z = 0, R = 0;
    std::vector<SphereLink> Links;
};

struct Model
{
    bool Visible = true;
    double Mass = 1;
    std::vector<ModelMesh> Meshes;
    std::vector<ModelSphere> Spheres;

    // Distance of the farthest point or sphere edge from the origin.
    double Reach() const;
    // Links every grid point of the meshes first … last that lies within `reach` of the sphere's surface.
    void LinkNear(ModelSphere& sphere, int first, int last, double reach) const;
};

// The packed colour of a flat mesh; channels 0 to 255.
constexpr int FlatColour(int r, int g, int b)
{
    return r + g * 256 + b * 65536;
}

// The same from a colour, limited to 0 .. 1.
int FlatColour(Rgb colour);
// The way back.
Rgb ColourOf(int flatColour);

// Writes the model's commands. Makes the folder. Throws std::runtime_error when the file cannot be written.
void WriteModel(const Model& model, const std::string& path);
}
