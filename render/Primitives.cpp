// SPDX-License-Identifier: Zlib
#include "render/Primitives.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"

#include <limits>
#include <utility>

namespace render
{
namespace
{
template <class Item> std::uint64_t BytesOf(const std::vector<Item>& items)
{
    return items.size() * sizeof(Item);
}

std::uint64_t BytesOf(const ObjMesh& mesh)
{
    return BytesOf(mesh.Pts.Points) + BytesOf(mesh.Undamaged.Points);
}

std::uint64_t BytesOf(const Obj& object)
{
    std::uint64_t bytes = BytesOf(object.Mesh) + BytesOf(object.Sfere);
    for (const ObjMesh& mesh : object.Mesh)
        bytes += BytesOf(mesh);
    for (const Sfera& sphere : object.Sfere)
        bytes += BytesOf(sphere.Links);
    return bytes;
}

// Refuses what would not fit; nothing is counted yet.
void CheckRoom(const Scene& scene, std::uint64_t bytes)
{
    if (bytes > MostListBytes || scene.Bytes + bytes > MostBytes)
        throw base::RuntimeError(base::ErrorMemory);
}

template <class Item> Item& Checked(std::vector<Item>& items, std::int32_t index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= items.size())
        throw base::RuntimeError(base::ErrorIndex);
    return items[static_cast<std::size_t>(index)];
}

ObjMesh& MeshAt(Scene& scene, std::int32_t object, std::int32_t mesh)
{
    return Checked(scene.Objects.At(object).Mesh, mesh);
}

Sfera& SphereAt(Scene& scene, std::int32_t object, std::int32_t sphere)
{
    return Checked(scene.Objects.At(object).Sfere, sphere);
}

// Releases a record of a list whose bytes are counted.
template <class List> void ReleaseCounted(Scene& scene, List& list, std::int32_t index, std::uint64_t bytes)
{
    if (list.At(index).Free != 0)
        return;
    list.Release(index);
    scene.Bytes -= bytes;
}
}

void InitScene(Scene& scene)
{
    scene.Objects = {};
    scene.WorldMeshes.clear();
    scene.Polys = {};
    scene.Sprites = {};
    scene.Particles.clear();
    scene.ParticleCount = 0;
    scene.Pics = {};
    scene.Rects = {};
    scene.Labels = {};
    scene.Textures = {};
    scene.Bytes = 0;
}

std::int16_t MakeObj(Scene& scene, const Placement& at, std::int16_t numMesh, std::int16_t numSfere,
                     std::uint8_t visible, float mass)
{
    if (numMesh < 0 || numSfere < 0)
        throw base::RuntimeError(base::ErrorIndex);
    const std::uint64_t bytes =
        static_cast<std::uint64_t>(numMesh) * sizeof(ObjMesh) + static_cast<std::uint64_t>(numSfere) * sizeof(Sfera);
    CheckRoom(scene, bytes);
    Obj object{.Visible = visible, .Mass = mass};
    PlaceObj(object, at);
    object.Mesh.resize(static_cast<std::size_t>(numMesh));
    object.Sfere.resize(static_cast<std::size_t>(numSfere));
    const std::int16_t index = scene.Objects.Add(std::move(object));
    scene.Bytes += bytes;
    return index;
}

std::int16_t DuplicateObj(Scene& scene, std::int32_t source, const Placement& at, std::uint8_t visible)
{
    const std::uint64_t bytes = BytesOf(scene.Objects.At(source));
    if (scene.Bytes + bytes > MostBytes)
        throw base::RuntimeError(base::ErrorMemory);
    const std::int16_t index = scene.Objects.Add();
    Obj& object = scene.Objects.At(index);
    // A free source slot may be the very one taken: then the copy is a fresh record as well.
    object = Obj(scene.Objects.At(source));
    object.Visible = visible;
    object.Free = 0;
    PlaceObj(object, at);
    scene.Bytes += bytes;
    return index;
}

void PlaceObj(Obj& object, const Placement& at)
{
    object.X = at.X;
    object.Y = at.Y;
    object.Z = at.Z;
    object.AngleA = at.AngleA;
    object.AngleB = at.AngleB;
}

void DeleteObj(Scene& scene, std::int32_t object)
{
    ReleaseCounted(scene, scene.Objects, object, BytesOf(scene.Objects.At(object)));
}

void SetObjR(Scene& scene, std::int32_t object, float radius)
{
    scene.Objects.At(object).Radius = radius;
}

void EditObjSfere(Scene& scene, std::int32_t object, std::int32_t sphere, const Point3& centre, float radius)
{
    Sfera& edited = SphereAt(scene, object, sphere);
    scene.Bytes -= BytesOf(edited.Links);
    edited = Sfera{centre.X, centre.Y, centre.Z, radius, {}};
}

void AddSfereLink(Scene& scene, std::int32_t object, std::int32_t sphere, const SfereLink& link)
{
    std::vector<SfereLink>& links = SphereAt(scene, object, sphere).Links;
    if (links.size() == static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        throw base::RuntimeError(base::ErrorOverflow);
    CheckRoom(scene, sizeof(SfereLink));
    links.push_back(link);
    scene.Bytes += sizeof(SfereLink);
}

void EditObjMesh(Scene& scene, std::int32_t object, std::int32_t mesh, GridSize size, std::int32_t colour,
                 std::int16_t texture)
{
    ObjMesh& edited = MeshAt(scene, object, mesh);
    if (size.Rows < 1 || size.Cols < 1)
        throw base::RuntimeError(base::ErrorIndex);
    const auto points = static_cast<std::size_t>(size.Rows) * static_cast<std::size_t>(size.Cols);
    const std::uint64_t bytes = points * sizeof(MeshPt);
    CheckRoom(scene, bytes);
    scene.Bytes -= BytesOf(edited);
    edited.Undamaged = PointGrid{};
    edited.Pts = PointGrid{size.Rows, size.Cols, std::vector<MeshPt>(points)};
    scene.Bytes += bytes;
    edited.Colour = colour;
    if (colour < 0)
        edited.TexIndex = texture;
    else
        edited.Col = SplitRGB(colour);
}

void EditObjMeshPt(Scene& scene, std::int32_t object, std::int32_t mesh, std::int32_t i, std::int32_t j,
                   const MeshPt& point)
{
    PointGrid& grid = MeshAt(scene, object, mesh).Pts;
    if (!grid.Has(i, j))
        throw base::RuntimeError(base::ErrorIndex);
    grid.At(i, j) = point;
}

void KeepUndamaged(Scene& scene, std::int32_t object)
{
    for (ObjMesh& mesh : scene.Objects.At(object).Mesh)
    {
        const std::uint64_t before = BytesOf(mesh.Undamaged.Points), after = BytesOf(mesh.Pts.Points);
        if (scene.Bytes - before + after > MostBytes)
            throw base::RuntimeError(base::ErrorMemory);
        mesh.Undamaged = mesh.Pts;
        scene.Bytes = scene.Bytes - before + after;
    }
}

std::int16_t MakePoly(Scene& scene, std::int32_t points, std::int32_t colour, std::uint8_t visible)
{
    if (points < 1)
        throw base::RuntimeError(base::ErrorIndex);
    const std::uint64_t bytes = static_cast<std::uint64_t>(points) * sizeof(PolyPt);
    CheckRoom(scene, bytes);
    const std::int16_t index = scene.Polys.Add(
        {.Visible = visible, .Col = SplitRGB(colour), .Pts = std::vector<PolyPt>(static_cast<std::size_t>(points))});
    scene.Bytes += bytes;
    return index;
}

void EditPolyPt(Scene& scene, std::int32_t poly, std::int32_t point, const PolyPt& at)
{
    Checked(scene.Polys.At(poly).Pts, point) = at;
}

std::int16_t MakeSprite3D(Scene& scene, const Sprite3D& sprite)
{
    return scene.Sprites.Add(sprite);
}

void KillSprite3D(Scene& scene, std::int32_t sprite)
{
    PicArrayKill(scene.Sprites.At(sprite).Pixels);
    scene.Sprites.Release(sprite);
}

std::int16_t MakePic2D(Scene& scene, base::MessageSink& messages, Pic2D pic, std::int32_t width, std::int32_t height)
{
    if (width < 1 || height < 1)
        throw base::RuntimeError(base::ErrorIndex);
    const std::int32_t rowBytes = WidthBytes(messages, width);
    CheckRoom(scene, static_cast<std::uint64_t>(rowBytes) * static_cast<std::uint64_t>(height));
    pic.Pic.Info = {width, height, rowBytes, 1, 24};
    pic.Pic.Pixels.Allocate(height, rowBytes);
    return scene.Pics.Add(std::move(pic));
}

void MovePic2D(Scene& scene, std::int32_t pic, float x, float y)
{
    scene.Pics.At(pic).X = x;
    scene.Pics.At(pic).Y = y;
}

std::int16_t MakeLabel2D(Scene& scene, Label2D label)
{
    return scene.Labels.Add(std::move(label));
}

void SetLabelText(Scene& scene, std::int32_t label, std::string_view text)
{
    scene.Labels.At(label).Text.assign(text);
}

std::int16_t MakeRect2D(Scene& scene, const Rect2D& rect)
{
    return scene.Rects.Add(rect);
}

void SetRectW(Scene& scene, std::int32_t rect, std::int16_t value)
{
    scene.Rects.At(rect).W = value;
}
}
