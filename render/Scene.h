// render/Scene.h: the records of the world and the head-up display, and the lists that hold them.
// Positions are world units; a record is drawn when Visible is non-zero and Free is zero.
#pragma once
#include "base/Fields.h"
#include "render/Camera.h"
#include "render/Font.h"
#include "render/PicArray.h"
#include "render/SlotList.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace render
{
struct MeshPt
{
    float X = 0, Y = 0, Z = 0; // object-local
    std::int32_t U = 0, V = 0; // texel column and row
};

// A grid of Rows x Cols points, point (i, j) at Pts[i][j].
struct PointGrid
{
    std::int16_t Rows = 0, Cols = 0;
    std::vector<MeshPt> Points;

    bool Has(std::int32_t i, std::int32_t j) const { return i >= 0 && i < Rows && j >= 0 && j < Cols; }
    MeshPt& At(std::int32_t i, std::int32_t j) { return Points[IndexOf(i, j)]; }
    const MeshPt& At(std::int32_t i, std::int32_t j) const { return Points[IndexOf(i, j)]; }
    std::size_t IndexOf(std::int32_t i, std::int32_t j) const
    {
        return static_cast<std::size_t>(i) * static_cast<std::size_t>(Cols) + static_cast<std::size_t>(j);
    }
};

struct ObjMesh
{
    std::uint8_t Visible = 1, Free = 0;
    std::int32_t Colour = 0; // red in the low byte; negative: textured
    std::int16_t Rows = 0, Cols = 0;
    std::uint8_t ColR = 0, ColG = 0, ColB = 0;
    std::int16_t TexIndex = 0;
    PointGrid Pts;
    PointGrid Undamaged; // the points as loaded, from which dents are computed; empty until the model is complete
};

struct SfereLink
{
    std::int16_t M = 0, I = 0, J = 0; // grid point (i, j) of mesh m
};

struct Sfera
{
    float X = 0, Y = 0, Z = 0; // relative to the object
    float R = 0;
    std::vector<SfereLink> Links;
    std::int16_t NumLinks = 0;
};

struct Obj
{
    std::uint8_t Visible = 0, Free = 0;
    float Mass = 0;
    float X = 0, Y = 0, Z = 0;
    float AngleA = 0, AngleB = 0; // about the vertical axis, then the second rotation
    float Radius = 0;             // bounding sphere, for culling and the broad collision test
    std::int16_t NumSfere = 0, NumMesh = 0;
    std::vector<Sfera> Sfere;
    std::vector<ObjMesh> Mesh;
};

struct PolyPt
{
    float X = 0, Y = 0, Z = 0;
};

struct Poly
{
    std::uint8_t Visible = 0, Free = 0;
    std::uint8_t ColR = 0, ColG = 0, ColB = 0;
    std::vector<PolyPt> Pts;
};

struct Sprite3D
{
    std::uint8_t Visible = 0, Free = 0;
    float X = 0, Y = 0, Z = 0;
    float Scale = 0; // world units per pixel of the picture
    float Alpha = 0; // 1 opaque
    std::int32_t Width = 0, Height = 0;
    PicReference Pixels;
};

struct Particle
{
    std::int16_t Life = -1; // ticks left; negative: free
    std::int16_t Sprite = 0;
    std::int32_t Kind = 0; // 1 smoke, 2 rising puff, 3 fire
};

struct Pic2D
{
    std::uint8_t Visible = 0, Free = 0;
    float X = 0, Y = 0; // frame pixels
    std::int32_t Width = 0, Height = 0;
    Picture Pic; // its own pixels
};

struct Rect2D
{
    std::uint8_t Visible = 0, Free = 0;
    std::int16_t X = 0, Y = 0, W = 0, H = 0; // W + 1 columns, H + 1 rows
    std::int32_t Hidden = 0;
    std::uint8_t ColR = 0, ColG = 0, ColB = 0;
};

struct Label2D
{
    std::uint8_t Visible = 0, Free = 0;
    std::int16_t X = 0, Y = 0; // anchor, frame pixels
    std::int32_t Style = 0;    // 0 starts at x, 1 ends at x, 2 centred
    std::string Text;          // UTF-8
    float Scale = 1;
    std::int16_t TabWidth = 4; // cells
    std::uint8_t ColR = 0, ColG = 0, ColB = 0;
    float Fade = 1; // colour factor
};

struct Texture
{
    std::uint8_t Free = 0;
    std::string Path;
    std::int32_t Width = 0, Height = 0; // 0 where the file failed: draws nothing
    Picture Pic;
};

// The plane y = 0: its picture, the blurred copy for the filters, the scale.
struct Ground
{
    std::int32_t Width = 0, Height = 0; // texels
    float GroundScale = 1;              // texels per world unit
    Picture Sharp;
    PicArray2D GroundBlur;
};

inline constexpr std::int32_t SkyWidth = 820; // columns of the panorama, wrapping

struct Scene
{
    SlotList<Obj> Objects;
    std::vector<ObjMesh> WorldMeshes; // points in world coordinates, always flat-coloured
    SlotList<Poly> Polys;
    SlotList<Sprite3D> Sprites;
    std::vector<Particle> Particles;
    std::int16_t ParticleCount = 0;
    SlotList<Pic2D> Pics;
    SlotList<Rect2D> Rects;
    SlotList<Label2D> Labels;
    SlotList<Texture> Textures;
    render::Ground Ground;
    Picture Sky;
    render::Font Font;
    float LightR = 1, LightG = 1, LightB = 1;
    std::uint64_t Bytes = 0; // what objects, polylines and textures hold, against MostBytes
};

inline constexpr std::uint64_t MostListBytes = 64u << 20; // one grid or list
inline constexpr std::uint64_t MostBytes = 512u << 20;    // the whole scene
}
