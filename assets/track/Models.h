// SPDX-License-Identifier: Zlib
// assets/track/Models.h: the models of the world and their textures, written into one folder. Each group has a .cpp of
// its own. World units, y up; fronts look along local -z. Light is painted into the textures; walls are cut into grids,
// because textures are mapped without perspective.
#pragma once
#include "assets/common/Bitmap.h"
#include "assets/common/Model3dm.h"
#include "assets/common/Vectors.h"

#include <string>

namespace assets::track
{
// Part of a texture: texels Left … Left + Width - 1, and rows likewise from below.
struct Region
{
    int Left = 0, Low = 0, Width = 1, Height = 1;
};

// A four-cornered face: lower left, lower right, upper right, upper left as its texture is read.
// Cut into `across` x `up` cells.
ModelMesh Face(const std::string& texture, const Region& region, Vec3 lowLeft, Vec3 lowRight, Vec3 upRight, Vec3 upLeft,
               int across = 1, int up = 1);
// A flat-coloured face.
ModelMesh FlatFace(Rgb colour, Vec3 lowLeft, Vec3 lowRight, Vec3 upRight, Vec3 upLeft);
// The upright rectangle between two ground points, from height `low` to `high`.
ModelMesh Upright(const std::string& texture, const Region& region, double x0, double z0, double x1, double z1,
                  double low, double high, int across = 1, int up = 1);

// A level of a turned body: its height and its radius there.
struct Ring
{
    double Y, R;
};
// A body turned about the upright through (x, z): `rings` from below, the region once round it from local +x over +z.
// `uneven` makes that share of each radius random.
ModelMesh Turned(const std::string& texture, const Region& region, const std::vector<Ring>& rings, int sides,
                 double x = 0, double z = 0, double uneven = 0);
// Rows of the region's picture at each ring, instead of equal steps.
void SetRows(ModelMesh& turned, const Region& region, const std::vector<int>& rows);

inline constexpr double HeavyMass = 1000000; // does not give way
inline constexpr double LightMass = 0.001;   // flies

ModelSphere SphereAt(double x, double y, double z, double radius);

// Writes NAME.3dm into the folder.
class ModelFolder
{
public:
    explicit ModelFolder(std::string folder) : Folder(std::move(folder)) {}
    void Texture(const std::string& name, const Canvas& picture, Black black = Black::Avoid) const;
    void Write(const std::string& name, const Model& model) const;
    static std::string PathOf(const std::string& texture) { return "<path>" + texture + ".bmp"; }

private:
    std::string Folder;
};

void WriteHouses(const ModelFolder& folder);
void WriteRowhouses(const ModelFolder& folder); // a village street
void WriteGallery(const ModelFolder& folder);   // columns along the shore
void WriteGate(const ModelFolder& folder);      // an arch over the road
void WriteTrees(const ModelFolder& folder);
void WriteHedge(const ModelFolder& folder);
void WriteShelter(const ModelFolder& folder);   // for a car under repair
void WriteStraight(const ModelFolder& folder);  // stand, pits, gantry
void WriteRoadside(const ModelFolder& folder);  // walls, tyres, what is light
void WriteBoards(const ModelFolder& folder);    // adverts, arrows, signs
void WriteWaterside(const ModelFolder& folder); // pier, boats, parasols
}
