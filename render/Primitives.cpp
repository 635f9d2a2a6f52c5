#include "render/Primitives.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"

#include <algorithm>
#include <limits>

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

std::int16_t MakeObj(Scene& scene, float x, float y, float z, float angleA, float angleB, std::int16_t numMesh,
                     std::int16_t numSfere, std::uint8_t visible, float mass)
{
    if (numMesh < 0 || numSfere < 0)
        throw base::RuntimeError(base::ErrorIndex);
    const std::uint64_t bytes =
        static_cast<std::uint64_t>(numMesh) * sizeof(ObjMesh) + static_cast<std::uint64_t>(numSfere) * sizeof(Sfera);
    CheckRoom(scene, bytes);
    const std::int16_t index = scene.Objects.Take();
    Obj& object = scene.Objects.At(index);
    object.Visible = visible;
    object.Mass = mass;
    object.X = x;
    object.Y = y;
    object.Z = z;
    object.AngleA = angleA;
    object.AngleB = angleB;
    object.NumMesh = numMesh;
    object.NumSfere = numSfere;
    object.Mesh.resize(static_cast<std::size_t>(numMesh));
    object.Sfere.resize(static_cast<std::size_t>(numSfere));
    scene.Bytes += bytes;
    return index;
}

std::int16_t DuplicateObj(Scene& scene, std::int32_t source, float x, float y, float z, float angleA, float angleB,
                          std::uint8_t visible)
{
    const std::uint64_t bytes = BytesOf(scene.Objects.At(source));
    if (scene.Bytes + bytes > MostBytes)
        throw base::RuntimeError(base::ErrorMemory);
    const std::int16_t index = scene.Objects.Take();
    Obj& object = scene.Objects.At(index);
    // A free source slot may be the very one taken: then the copy is a fresh record as well.
    object = Obj(scene.Objects.At(source));
    object.Visible = visible;
    object.Free = 0;
    object.X = x;
    object.Y = y;
    object.Z = z;
    object.AngleA = angleA;
    object.AngleB = angleB;
    scene.Bytes += bytes;
    return index;
}

void DeleteObj(Scene& scene, std::int32_t object)
{
    ReleaseCounted(scene, scene.Objects, object, BytesOf(scene.Objects.At(object)));
}

void SetObjR(Scene& scene, std::int32_t object, float radius)
{
    scene.Objects.At(object).Radius = radius;
}

void EditObjSfere(Scene& scene, std::int32_t object, std::int32_t sphere, float x, float y, float z, float radius)
{
    Sfera& edited = SphereAt(scene, object, sphere);
    scene.Bytes -= BytesOf(edited.Links);
    edited = Sfera{};
    edited.X = x;
    edited.Y = y;
    edited.Z = z;
    edited.R = radius;
}

void AddSfereLink(Scene& scene, std::int32_t object, std::int32_t sphere, std::int16_t mesh, std::int16_t i,
                  std::int16_t j)
{
    Sfera& linked = SphereAt(scene, object, sphere);
    if (linked.NumLinks == std::numeric_limits<std::int16_t>::max())
        throw base::RuntimeError(base::ErrorOverflow);
    CheckRoom(scene, sizeof(SfereLink));
    linked.Links.push_back({mesh, i, j});
    ++linked.NumLinks;
    scene.Bytes += sizeof(SfereLink);
}

void EditObjMesh(Scene& scene, std::int32_t object, std::int32_t mesh, std::int16_t rows, std::int16_t cols,
                 std::int32_t colour, std::int16_t texture)
{
    ObjMesh& edited = MeshAt(scene, object, mesh);
    if (rows < 1 || cols < 1)
        throw base::RuntimeError(base::ErrorIndex);
    const auto points = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    const std::uint64_t bytes = points * sizeof(MeshPt);
    CheckRoom(scene, bytes);
    scene.Bytes -= BytesOf(edited);
    edited.Pts = PointGrid{};
    edited.Undamaged = PointGrid{};
    edited.Pts.Points.resize(points);
    scene.Bytes += bytes;
    edited.Pts.Rows = edited.Rows = rows;
    edited.Pts.Cols = edited.Cols = cols;
    edited.Colour = colour;
    if (colour < 0)
    {
        edited.TexIndex = texture;
        return;
    }
    const base::Rgb split = SplitRGB(colour);
    edited.ColR = split.R;
    edited.ColG = split.G;
    edited.ColB = split.B;
}

void EditObjMeshPt(Scene& scene, std::int32_t object, std::int32_t mesh, std::int32_t i, std::int32_t j, float x,
                   float y, float z, std::int32_t u, std::int32_t v)
{
    PointGrid& grid = MeshAt(scene, object, mesh).Pts;
    if (!grid.Has(i, j))
        throw base::RuntimeError(base::ErrorIndex);
    grid.At(i, j) = {x, y, z, u, v};
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
    const std::int16_t index = scene.Polys.Take();
    Poly& poly = scene.Polys.At(index);
    const base::Rgb split = SplitRGB(colour);
    poly.Visible = visible;
    poly.ColR = split.R;
    poly.ColG = split.G;
    poly.ColB = split.B;
    poly.Pts.resize(static_cast<std::size_t>(points));
    scene.Bytes += bytes;
    return index;
}

void EditPolyPt(Scene& scene, std::int32_t poly, std::int32_t point, float x, float y, float z)
{
    Checked(scene.Polys.At(poly).Pts, point) = {x, y, z};
}

std::int16_t MakeSprite3D(Scene& scene, const PicReference& picture, float x, float y, float z, float scale,
                          float alpha, std::uint8_t visible)
{
    const std::int16_t index = scene.Sprites.Take();
    Sprite3D& sprite = scene.Sprites.At(index);
    sprite.Visible = visible;
    sprite.X = x;
    sprite.Y = y;
    sprite.Z = z;
    sprite.Scale = scale;
    sprite.Alpha = alpha;
    sprite.Pixels = picture;
    if (picture != nullptr)
    {
        sprite.Width = picture->Info.Width;
        sprite.Height = picture->Info.Height;
    }
    return index;
}

void KillSprite3D(Scene& scene, std::int32_t sprite)
{
    PicArrayKill(scene.Sprites.At(sprite).Pixels);
    scene.Sprites.Release(sprite);
}

std::int16_t MakePic2D(Scene& scene, base::MessageSink& messages, float x, float y, std::int32_t width,
                       std::int32_t height, std::uint8_t visible)
{
    if (width < 1 || height < 1)
        throw base::RuntimeError(base::ErrorIndex);
    const std::int32_t rowBytes = WidthBytes(messages, width);
    CheckRoom(scene, static_cast<std::uint64_t>(rowBytes) * static_cast<std::uint64_t>(height));
    Picture picture;
    picture.Info = {width, height, rowBytes, 1, 24};
    picture.Pixels.Allocate(height, rowBytes);
    const std::int16_t index = scene.Pics.Take();
    Pic2D& pic = scene.Pics.At(index);
    pic.Visible = visible;
    pic.X = x;
    pic.Y = y;
    pic.Width = width;
    pic.Height = height;
    pic.Pic = std::move(picture);
    return index;
}

void MovePic2D(Scene& scene, std::int32_t pic, float x, float y)
{
    scene.Pics.At(pic).X = x;
    scene.Pics.At(pic).Y = y;
}

std::int16_t MakeLabel2D(Scene& scene, std::int16_t x, std::int16_t y, std::int32_t style, float scale,
                         std::int16_t tabWidth, base::Rgb colour, std::uint8_t visible, std::string_view text)
{
    const std::int16_t index = scene.Labels.Take();
    Label2D& label = scene.Labels.At(index);
    label.Visible = visible;
    label.X = x;
    label.Y = y;
    label.Style = style;
    label.Text = text;
    label.Scale = scale;
    label.TabWidth = tabWidth;
    label.ColR = colour.R;
    label.ColG = colour.G;
    label.ColB = colour.B;
    return index;
}

void SetLabelText(Scene& scene, std::int32_t label, std::string_view text)
{
    scene.Labels.At(label).Text.assign(text);
}

std::int16_t MakeRect2D(Scene& scene, std::int16_t x, std::int16_t y, std::int16_t w, std::int16_t h,
                        std::int32_t hidden, base::Rgb colour, std::uint8_t visible)
{
    const std::int16_t index = scene.Rects.Take();
    Rect2D& rect = scene.Rects.At(index);
    rect.Visible = visible;
    rect.X = x;
    rect.Y = y;
    rect.W = w;
    rect.H = h;
    rect.Hidden = hidden;
    rect.ColR = colour.R;
    rect.ColG = colour.G;
    rect.ColB = colour.B;
    return index;
}

void SetRectW(Scene& scene, std::int32_t rect, std::int16_t value)
{
    scene.Rects.At(rect).W = value;
}

std::int16_t LoadTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path)
{
    const std::vector<Texture>& items = scene.Textures.Items;
    std::size_t slot = items.size(); // Deliberate: unlike the other lists, the last free slot
    for (std::size_t i = 0; i < items.size(); ++i)
    {
        if (items[i].Free != 0)
            slot = i;
        else if (items[i].Path == path)
            return static_cast<std::int16_t>(i);
    }
    const std::int16_t index = scene.Textures.TakeAt(slot);
    Texture& texture = scene.Textures.At(index);
    texture.Path = path;
    if (!LoadPicArray2D(messages, files, path, texture.Pic.Info, texture.Pic.Pixels))
    {
        texture.Pic = {};
        return index;
    }
    const std::uint64_t bytes = BytesOf(texture.Pic.Pixels.Bytes);
    if (scene.Bytes + bytes > MostBytes)
    {
        texture.Pic = {};
        throw base::RuntimeError(base::ErrorMemory);
    }
    texture.Width = texture.Pic.Info.Width;
    texture.Height = texture.Pic.Info.Height;
    scene.Bytes += bytes;
    return index;
}

std::int16_t FindTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path,
                         bool load)
{
    const std::vector<Texture>& items = scene.Textures.Items;
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&](const Texture& texture) { return texture.Free == 0 && texture.Path == path; });
    if (found != items.end())
        return static_cast<std::int16_t>(found - items.begin());
    return load ? LoadTexture(scene, messages, files, path) : std::int16_t{-1};
}

void FreeTexture(Scene& scene, std::int32_t texture)
{
    ReleaseCounted(scene, scene.Textures, texture, BytesOf(scene.Textures.At(texture).Pic.Pixels.Bytes));
}
}
