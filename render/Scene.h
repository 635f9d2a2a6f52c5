// SPDX-License-Identifier: Zlib
// render/Scene.h: the records of the world and the head-up display, and the lists that hold them.
// Positions are world units, y up, the ground at y = 0; angles radians; the display's positions frame pixels, row 0 at
// the bottom. A record is drawn when Visible is non-zero and Free is zero; both are bytes that scripts may set to
// anything. A freed record holds nothing. What a list's length tells is stored nowhere else.
#pragma once
#include "base/Fields.h"
#include "base/Pixels.h"
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
// Where an object stands and how it is turned. At angles 0 its front looks along +z.
struct Placement
{
    float X = 0, Y = 0, Z = 0;    // of its origin
    float AngleA = 0, AngleB = 0; // about the vertical axis, positive toward -x; then the second rotation, that tips it
};

// ---- Objects ----

struct MeshPt
{
    float X = 0, Y = 0, Z = 0; // relative to the object
    std::int32_t U = 0, V = 0; // texel column and row, row 0 at the bottom; outside the texture nothing is drawn
};

// A grid of Rows x Cols points; neighbours span the cells, which are drawn as two triangles each.
struct PointGrid
{
    std::int16_t Rows = 0, Cols = 0; // 0 in a mesh that was never edited
    std::vector<MeshPt> Points;      // Rows x Cols, row by row

    bool Has(std::int32_t i, std::int32_t j) const { return i >= 0 && i < Rows && j >= 0 && j < Cols; }
    // Point (i, j), i over Rows and j over Cols. Has must hold.
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
    std::int32_t Colour = 0;   // as the model gave it, red in the low byte; negative: textured
    base::Rgb Col = {};        // the same in parts; black where the mesh is textured
    std::int16_t TexIndex = 0; // slot of Scene::Textures; read where Colour is negative
    PointGrid Pts;             // as dented
    PointGrid Undamaged;       // as loaded, from which dents are computed; empty until the model is complete
};

// Grid point (I, J) of mesh M. Scripts may name points that do not exist; nothing is dented there.
struct SfereLink
{
    std::int16_t M = 0, I = 0, J = 0;
};

// A collision sphere.
struct Sfera
{
    float X = 0, Y = 0, Z = 0;         // its centre, relative to the object
    float R = 0;                       // world units
    std::vector<SfereLink> Links = {}; // the points that a hit presses in, at most 32767
};

struct Obj
{
    std::uint8_t Visible = 0, Free = 0;
    float Mass = 0; // against the other body of a collision; 1 for a car
    float X = 0, Y = 0, Z = 0;
    float AngleA = 0, AngleB = 0;  // as in Placement
    float Radius = 0;              // world units: bounding sphere, for culling and the broad collision test
    std::vector<Sfera> Sfere = {}; // none: nothing collides with it
    std::vector<ObjMesh> Mesh = {};
};

// ---- Polylines ----

struct PolyPt
{
    float X = 0, Y = 0, Z = 0;
};

// A line from point to point, not closed.
struct Poly
{
    std::uint8_t Visible = 0, Free = 0;
    base::Rgb Col = {};
    std::vector<PolyPt> Pts = {}; // one or more
};

// ---- Sprites and particles ----

// A picture that always faces the camera.
struct Sprite3D
{
    std::uint8_t Visible = 0, Free = 0;
    float X = 0, Y = 0, Z = 0; // its centre
    float Scale = 0;           // world units per pixel of the picture
    float Alpha = 0;           // 1 opaque, 0 not to be seen
    PicReference Pixels = {};  // shared; null draws nothing

    // Pixels; 0 without a picture.
    std::int32_t Width() const { return Pixels != nullptr ? Pixels->Info.Width : 0; }
    std::int32_t Height() const { return Pixels != nullptr ? Pixels->Info.Height : 0; }
};

// How a particle changes from tick to tick. With any other number it only ages.
enum ParticleKind : std::int32_t
{
    Inert = 0, // does not even age
    Smoke = 1, // rises, drifts, grows and fades
    Puff = 2,  // rises straight, grows and fades
    Fire = 3   // rises, drifts and shrinks
};

struct Particle
{
    std::int16_t Life = -1;    // ticks left; negative: a free record
    std::int16_t Sprite = 0;   // slot of Scene::Sprites, which it owns
    ParticleKind Kind = Inert; // scripts may set any number
};

// ---- The display ----

struct Pic2D
{
    std::uint8_t Visible = 0, Free = 0;
    float X = 0, Y = 0; // of its bottom-left corner
    Picture Pic = {};   // its own pixels, all opaque
};

struct Rect2D
{
    std::uint8_t Visible = 0, Free = 0;
    std::int16_t X = 0, Y = 0; // of its bottom-left corner
    std::int16_t W = 0, H = 0; // W + 1 columns, H + 1 rows
    std::int32_t Hidden = 0;   // not 0: not drawn
    base::Rgb Col = {};
};

// On which side of its anchor a label stands. Any other number draws nothing.
enum LabelStyle : std::int32_t
{
    StartsAtX = 0, // further lines below the first
    EndsAtX = 1,   // earlier lines stack above the last; tabs are ignored
    CentredOnX = 2 // each line by itself, further ones below the first
};

struct Label2D
{
    std::uint8_t Visible = 0, Free = 0;
    std::int16_t X = 0, Y = 0;    // anchor; Y is the bottom of the line
    LabelStyle Style = StartsAtX; // scripts may set any number
    std::string Text = {};        // UTF-8, lines separated by "\r\n"
    float Scale = 1;              // frame pixels per pixel of the font
    std::int16_t TabWidth = 4;    // cells of the widest glyph; 0: tabs add nothing
    base::Rgb Col = {};
    float Fade = 1; // colour factor: 0 black, 1 the colour itself
};

// ---- Pictures ----

struct Texture
{
    std::uint8_t Free = 0;
    std::string Path = {}; // the key of the list: exact, case-sensitive
    Picture Pic = {};      // empty where the file failed: draws nothing
};

// The plane y = 0: its picture, the blurred copy for the filters, the scale.
struct Ground
{
    std::int32_t Width = 0, Height = 0; // texels; 0 where there is no picture
    float GroundScale = 1;              // texels per world unit; texel (0, 0) at the origin
    Picture Sharp;                      // tyre marks darken it
    PicArray2D GroundBlur;              // as loaded, of the same size; empty without a filter that wants it
};

inline constexpr std::int32_t SkyWidth = 820; // columns of the panorama, wrapping

// ---- All of it ----

struct Scene
{
    SlotList<Obj> Objects;
    std::vector<ObjMesh> WorldMeshes; // points in world coordinates, always flat-coloured
    SlotList<Poly> Polys;
    SlotList<Sprite3D> Sprites;
    std::vector<Particle> Particles; // those with a negative life are free
    std::int16_t ParticleCount = 0;  // made and not yet removed
    SlotList<Pic2D> Pics;            // drawn first, then Rects, then Labels
    SlotList<Rect2D> Rects;
    SlotList<Label2D> Labels;
    SlotList<Texture> Textures;
    render::Ground Ground;
    Picture Sky; // the panorama, SkyWidth columns or more; no sky below that
    render::Font Font;
    float LightR = 1, LightG = 1, LightB = 1; // factors of every flat colour's and line's channel, 0 to 1
    std::uint64_t Bytes = 0;                  // what objects, polylines and textures hold, against MostBytes
};

inline constexpr std::uint64_t MostListBytes = 64u << 20; // one grid or list
inline constexpr std::uint64_t MostBytes = 512u << 20;    // the whole scene
}
