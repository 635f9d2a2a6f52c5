// SPDX-License-Identifier: Zlib
#include "render/Primitives.h"

#include "render/Textures.h"
#include "tests/support/Messages.h"
#include "tests/support/Scenes.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>

using render::Scene;
using namespace render;

namespace
{
// The number of the error that body throws; 0 for none.
template <class Body> int ErrorOf(Body&& body)
{
    try
    {
        body();
    }
    catch (const base::RuntimeError& error)
    {
        return error.Number;
    }
    return 0;
}

std::int16_t Object(Scene& scene, int meshes = 1, int spheres = 1)
{
    return MakeObj(scene, {1, 2, 3, 4, 5}, static_cast<std::int16_t>(meshes), static_cast<std::int16_t>(spheres), 1, 6);
}

struct Textures : testing::Test
{
    support::TempFolder Folder;
    support::Messages Messages;
    render::Scene Scene;

    void SetUp() override
    {
        for (const char* name : {"a.bmp", "b.bmp", "c.bmp"})
            Folder.Write(name, support::Bitmap(2, 3, 1, 2, 3));
    }
    std::int16_t Load(const std::string& path) { return LoadTexture(Scene, Messages, Folder.Files(), path); }
    std::int16_t Find(const std::string& path, bool load)
    {
        return FindTexture(Scene, Messages, Folder.Files(), path, load);
    }
};
}

TEST(Slots, ADeletedRecordIsUsedAgainTheFirstOneFirst)
{
    Scene scene;
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Object(scene), i);
    EXPECT_EQ(scene.Objects.Count, 4);
    DeleteObj(scene, 2);
    DeleteObj(scene, 1);
    EXPECT_EQ(scene.Objects.Count, 2);
    EXPECT_EQ(scene.Objects.At(1).Free, 1);
    EXPECT_TRUE(scene.Objects.At(1).Mesh.empty());
    EXPECT_EQ(scene.Objects.At(3).X, 1.0f); // the others stay where they are
    EXPECT_EQ(Object(scene), 1);
    EXPECT_EQ(Object(scene), 2);
    EXPECT_EQ(Object(scene), 4);
    EXPECT_EQ(scene.Objects.Count, 5);
}

TEST(Slots, DeletingTwiceCountsOnce)
{
    Scene scene;
    Object(scene);
    DeleteObj(scene, 0);
    DeleteObj(scene, 0);
    EXPECT_EQ(scene.Objects.Count, 0);
    EXPECT_EQ(scene.Bytes, 0u);
}

TEST(Slots, TheIndexEndsAt32767)
{
    Scene scene;
    for (int i = 0; i <= 32767; ++i)
        MakeRect2D(scene, {.Visible = 1});
    EXPECT_EQ(scene.Rects.Items.size(), 32768u);
    EXPECT_EQ(ErrorOf([&] { MakeRect2D(scene, {.Visible = 1}); }), 6);
    EXPECT_EQ(scene.Rects.Items.size(), 32768u);
}

TEST(MakeObj, TakesItsFieldsAndLists)
{
    Scene scene;
    const render::Obj& object = scene.Objects.At(MakeObj(scene, {1, 2, 3, 4, 5}, 6, 7, 8, 9));
    EXPECT_EQ(object.X, 1.0f);
    EXPECT_EQ(object.Y, 2.0f);
    EXPECT_EQ(object.Z, 3.0f);
    EXPECT_EQ(object.AngleA, 4.0f);
    EXPECT_EQ(object.AngleB, 5.0f);
    EXPECT_EQ(object.Mesh.size(), 6u);
    EXPECT_EQ(object.Mesh.size(), 6u);
    EXPECT_EQ(object.Sfere.size(), 7u);
    EXPECT_EQ(object.Sfere.size(), 7u);
    EXPECT_EQ(object.Visible, 8);
    EXPECT_EQ(object.Free, 0);
    EXPECT_EQ(object.Mass, 9.0f);
    SetObjR(scene, 0, 10);
    EXPECT_EQ(object.Radius, 10.0f);
}

TEST(MakeObj, NegativeCountsTakeNoSlotAndNoneIsFine)
{
    Scene scene;
    EXPECT_EQ(ErrorOf([&] { Object(scene, -1, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { Object(scene, 0, -1); }), 9);
    EXPECT_TRUE(scene.Objects.Items.empty());
    EXPECT_EQ(ErrorOf([&] { Object(scene, 0, 0); }), 0);
}

TEST(EditObjMesh, SplitsColoursAndKeepsTextureSlots)
{
    Scene scene;
    Object(scene, 2);
    EditObjMesh(scene, 0, 0, {3, 2}, 0x123456, 9);
    const render::ObjMesh& flat = scene.Objects.At(0).Mesh[0];
    EXPECT_EQ(flat.Pts.Rows, 3);
    EXPECT_EQ(flat.Pts.Cols, 2);
    EXPECT_EQ(flat.Pts.Points.size(), 6u);
    EXPECT_EQ(flat.Col.R, 0x56);
    EXPECT_EQ(flat.Col.G, 0x34);
    EXPECT_EQ(flat.Col.B, 0x12);
    EXPECT_EQ(flat.TexIndex, 0);
    EditObjMesh(scene, 0, 1, {2, 2}, -1, 9);
    EXPECT_EQ(scene.Objects.At(0).Mesh[1].Colour, -1);
    EXPECT_EQ(scene.Objects.At(0).Mesh[1].TexIndex, 9);
}

TEST(EditObjMeshPt, IRunsOverRowsAndJOverColumns)
{
    Scene scene;
    Object(scene);
    EditObjMesh(scene, 0, 0, {3, 2}, 0, 0);
    EditObjMeshPt(scene, 0, 0, 2, 1, {1, 2, 3, 4, 5});
    const render::MeshPt& point = scene.Objects.At(0).Mesh[0].Pts.At(2, 1);
    EXPECT_EQ(point.X, 1.0f);
    EXPECT_EQ(point.Z, 3.0f);
    EXPECT_EQ(point.U, 4);
    EXPECT_EQ(point.V, 5);
    const int outside[][2] = {{3, 0}, {0, 2}, {-1, 0}, {0, -1}, {1, 2}, {2147483647, 2147483647}};
    for (const auto& place : outside)
        EXPECT_EQ(ErrorOf([&] { EditObjMeshPt(scene, 0, 0, place[0], place[1], {0, 0, 0, 0, 0}); }), 9);
}

TEST(EditObjMesh, GridsBelowOneByOneAreIndexErrorsAndLeaveTheMesh)
{
    Scene scene;
    Object(scene);
    EditObjMesh(scene, 0, 0, {3, 2}, 7, 0);
    EXPECT_EQ(ErrorOf([&] { EditObjMesh(scene, 0, 0, {0, 2}, 1, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { EditObjMesh(scene, 0, 0, {2, -1}, 1, 0); }), 9);
    EXPECT_EQ(scene.Objects.At(0).Mesh[0].Pts.Rows, 3);
    EXPECT_EQ(scene.Objects.At(0).Mesh[0].Colour, 7);
}

TEST(Spheres, EditingEmptiesTheLinks)
{
    Scene scene;
    Object(scene);
    AddSfereLink(scene, 0, 0, {1, 2, 3});
    AddSfereLink(scene, 0, 0, {4, 5, 6});
    const render::Sfera& sphere = scene.Objects.At(0).Sfere[0];
    EXPECT_EQ(sphere.Links.size(), 2u);
    EXPECT_EQ(sphere.Links[0].M, 1);
    EXPECT_EQ(sphere.Links[1].J, 6);
    const std::uint64_t withLinks = scene.Bytes;
    EditObjSfere(scene, 0, 0, {1, 2, 3}, 4);
    EXPECT_EQ(sphere.X, 1.0f);
    EXPECT_EQ(sphere.R, 4.0f);
    EXPECT_EQ(sphere.Links.size(), 0u);
    EXPECT_TRUE(sphere.Links.empty());
    EXPECT_EQ(scene.Bytes, withLinks - 2 * sizeof(render::SfereLink));
}

TEST(Spheres, LinksEndAt32767)
{
    Scene scene;
    Object(scene);
    for (int i = 0; i < 32767; ++i)
        AddSfereLink(scene, 0, 0, {0, 0, 0});
    EXPECT_EQ(ErrorOf([&] { AddSfereLink(scene, 0, 0, {0, 0, 0}); }), 6);
    EXPECT_EQ(scene.Objects.At(0).Sfere[0].Links.size(), 32767u);
}

TEST(Primitives, IndicesThatDoNotExistAreError9)
{
    Scene scene;
    Object(scene);
    for (const std::int32_t index : {-1, 1, 40000, -40000})
    {
        EXPECT_EQ(ErrorOf([&] { DeleteObj(scene, index); }), 9);
        EXPECT_EQ(ErrorOf([&] { SetObjR(scene, index, 1); }), 9);
        EXPECT_EQ(ErrorOf([&] { DuplicateObj(scene, index, {0, 0, 0, 0, 0}, 1); }), 9);
        EXPECT_EQ(ErrorOf([&] { EditObjSfere(scene, 0, index, {0, 0, 0}, 0); }), 9);
        EXPECT_EQ(ErrorOf([&] { AddSfereLink(scene, 0, index, {0, 0, 0}); }), 9);
        EXPECT_EQ(ErrorOf([&] { EditObjMesh(scene, 0, index, {2, 2}, 0, 0); }), 9);
        EXPECT_EQ(ErrorOf([&] { EditPolyPt(scene, index, 0, {0, 0, 0}); }), 9);
        EXPECT_EQ(ErrorOf([&] { KillSprite3D(scene, index); }), 9);
        EXPECT_EQ(ErrorOf([&] { MovePic2D(scene, index, 0, 0); }), 9);
        EXPECT_EQ(ErrorOf([&] { SetLabelText(scene, index, ""); }), 9);
        EXPECT_EQ(ErrorOf([&] { SetRectW(scene, index, 0); }), 9);
        EXPECT_EQ(ErrorOf([&] { FreeTexture(scene, index); }), 9);
        EXPECT_EQ(ErrorOf([&] { KeepUndamaged(scene, index); }), 9);
    }
    EXPECT_EQ(scene.Objects.Count, 1);
}

TEST(DuplicateObj, CopiesMeshesAndSpheresAtAnotherPlace)
{
    Scene scene;
    Object(scene);
    SetObjR(scene, 0, 7);
    EditObjMesh(scene, 0, 0, {2, 2}, 5, 0);
    EditObjMeshPt(scene, 0, 0, 1, 1, {1, 2, 3, 4, 5});
    KeepUndamaged(scene, 0);
    AddSfereLink(scene, 0, 0, {1, 2, 3});
    const std::int16_t copy = DuplicateObj(scene, 0, {10, 20, 30, 40, 50}, 0);
    EXPECT_EQ(copy, 1);
    EXPECT_EQ(scene.Objects.Count, 2);
    EditObjMeshPt(scene, 0, 0, 1, 1, {9, 9, 9, 9, 9}); // the copy has its own points
    const render::Obj& object = scene.Objects.At(copy);
    EXPECT_EQ(object.X, 10.0f);
    EXPECT_EQ(object.AngleB, 50.0f);
    EXPECT_EQ(object.Visible, 0);
    EXPECT_EQ(object.Mass, 6.0f);
    EXPECT_EQ(object.Radius, 7.0f);
    EXPECT_EQ(object.Mesh[0].Pts.At(1, 1).X, 1.0f);
    EXPECT_EQ(object.Mesh[0].Undamaged.At(1, 1).X, 1.0f);
    EXPECT_EQ(object.Sfere[0].Links[0].M, 1);
    const std::uint64_t both = scene.Bytes;
    DeleteObj(scene, copy);
    EXPECT_EQ(scene.Bytes, both / 2);
}

TEST(Limits, OneListOfMoreThan64MegabytesIsError7)
{
    Scene scene;
    Object(scene);
    // 20 bytes a point: 1832 x 1832 is just above 64 MB.
    EXPECT_EQ(ErrorOf([&] { EditObjMesh(scene, 0, 0, {1832, 1832}, 0, 0); }), 7);
    EXPECT_EQ(ErrorOf([&] { EditObjMesh(scene, 0, 0, {32767, 32767}, 0, 0); }), 7);
    EXPECT_EQ(scene.Objects.At(0).Mesh[0].Pts.Rows, 0);
    EXPECT_EQ(ErrorOf([&] { MakePoly(scene, 2147483647, 0, 1); }), 7);
    EXPECT_TRUE(scene.Polys.Items.empty());
}

TEST(Limits, TheSceneEndsAt512Megabytes)
{
    Scene scene;
    scene.Bytes = render::MostBytes - 1000; // as if other records held it
    EXPECT_EQ(ErrorOf([&] { Object(scene, 100, 0); }), 7);
    EXPECT_EQ(ErrorOf([&] { MakePoly(scene, 100, 0, 1); }), 7);
    EXPECT_TRUE(scene.Objects.Items.empty());
    EXPECT_EQ(ErrorOf([&] { Object(scene, 1, 0); }), 0);
    scene.Bytes = render::MostBytes;
    EXPECT_EQ(ErrorOf([&] { DuplicateObj(scene, 0, {0, 0, 0, 0, 0}, 1); }), 7);
    EXPECT_EQ(ErrorOf([&] { EditObjMesh(scene, 0, 0, {2, 2}, 0, 0); }), 7);
    EXPECT_EQ(scene.Objects.Count, 1);
}

TEST(Limits, WhatIsGivenBackCountsNoMore)
{
    Scene scene;
    Object(scene, 3, 2);
    for (int i = 0; i < 5; ++i)
        EditObjMesh(scene, 0, 1, {100, 100}, 0, 0); // replaced, not added
    KeepUndamaged(scene, 0);
    AddSfereLink(scene, 0, 1, {0, 0, 0});
    EXPECT_EQ(scene.Bytes, 3 * sizeof(render::ObjMesh) + 2 * sizeof(render::Sfera) +
                               2 * 10000 * sizeof(render::MeshPt) + sizeof(render::SfereLink));
    DeleteObj(scene, 0);
    EXPECT_EQ(scene.Bytes, 0u);
}

TEST(MakePoly, TakesColourAndPoints)
{
    Scene scene;
    EXPECT_EQ(MakePoly(scene, 3, 0x030201, 1), 0);
    EditPolyPt(scene, 0, 2, {4, 5, 6});
    EXPECT_EQ(scene.Polys.At(0).Col.R, 1);
    EXPECT_EQ(scene.Polys.At(0).Col.B, 3);
    EXPECT_EQ(scene.Polys.At(0).Pts[2].Y, 5.0f);
    EXPECT_EQ(ErrorOf([&] { EditPolyPt(scene, 0, 3, {0, 0, 0}); }), 9);
    EXPECT_EQ(ErrorOf([&] { MakePoly(scene, 0, 0, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { MakePoly(scene, -1, 0, 1); }), 9);
    EXPECT_EQ(scene.Polys.Count, 1);
}

TEST(Sprites, ShareThePixelsOfTheirPicture)
{
    Scene scene;
    const auto picture = std::make_shared<const render::Picture>(support::Blank(3, 2));
    EXPECT_EQ(MakeSprite3D(scene, {.Visible = 1, .X = 1, .Y = 2, .Z = 3, .Scale = 4, .Alpha = 5, .Pixels = picture}),
              0);
    EXPECT_EQ(MakeSprite3D(scene, {.Visible = 1, .X = 1, .Y = 2, .Z = 3, .Scale = 4, .Alpha = 5, .Pixels = picture}),
              1);
    EXPECT_EQ(scene.Sprites.At(0).Width(), 3);
    EXPECT_EQ(scene.Sprites.At(0).Height(), 2);
    EXPECT_EQ(scene.Sprites.At(1).Pixels.get(), picture.get());
    KillSprite3D(scene, 0);
    EXPECT_EQ(picture.use_count(), 2);
    EXPECT_EQ(scene.Sprites.Count, 1);
    EXPECT_EQ(MakeSprite3D(scene, {.Visible = 1, .X = 1, .Y = 2, .Z = 3, .Scale = 4, .Alpha = 5, .Pixels = nullptr}),
              0);
    EXPECT_EQ(scene.Sprites.At(0).Width(), 0);
}

TEST(MakePic2D, HasABlankPictureOfItsOwn)
{
    Scene scene;
    support::Messages messages;
    EXPECT_EQ(MakePic2D(scene, messages, {.Visible = 1, .X = 1, .Y = 2}, 5, 3), 0);
    const render::Pic2D& pic = scene.Pics.At(0);
    EXPECT_EQ(pic.Pic.Info.Width, 5);
    EXPECT_EQ(pic.Pic.Info.RowBytes, 16);
    EXPECT_EQ(pic.Pic.Pixels.Bytes, std::vector<std::uint8_t>(48, 0));
    MovePic2D(scene, 0, 7, 8);
    EXPECT_EQ(pic.X, 7.0f);
    EXPECT_EQ(pic.Y, 8.0f);
    EXPECT_EQ(ErrorOf([&] { MakePic2D(scene, messages, {.Visible = 1}, 0, 1); }), 9);
    EXPECT_EQ(ErrorOf([&] { MakePic2D(scene, messages, {.Visible = 1}, 60000, 60000); }), 7);
    EXPECT_EQ(scene.Pics.Count, 1);
}

TEST(Labels, TakeTheirFieldsAndText)
{
    Scene scene;
    const render::Label2D& label = scene.Labels.At(MakeLabel2D(
        scene,
        {.Visible = 1, .X = 1, .Y = 2, .Style = EndsAtX, .Text = "uno", .Scale = 3, .TabWidth = 4, .Col = {5, 6, 7}}));
    EXPECT_EQ(label.X, 1);
    EXPECT_EQ(label.Y, 2);
    EXPECT_EQ(label.Style, 1);
    EXPECT_EQ(label.Scale, 3.0f);
    EXPECT_EQ(label.TabWidth, 4);
    EXPECT_EQ(label.Col.B, 7);
    EXPECT_EQ(label.Fade, 1.0f);
    EXPECT_EQ(label.Text, "uno");
    SetLabelText(scene, 0, "due");
    EXPECT_EQ(label.Text, "due");
}

TEST(Rects, TakeTheirFields)
{
    Scene scene;
    const render::Rect2D& rect = scene.Rects.At(
        MakeRect2D(scene, {.Visible = 1, .X = 1, .Y = 2, .W = 3, .H = 4, .Hidden = 5, .Col = {6, 7, 8}}));
    EXPECT_EQ(rect.X, 1);
    EXPECT_EQ(rect.H, 4);
    EXPECT_EQ(rect.Hidden, 5);
    EXPECT_EQ(rect.Col.R, 6);
    SetRectW(scene, 0, 99);
    EXPECT_EQ(rect.W, 99);
}

TEST(InitScene, EmptiesTheListsAndKeepsPicturesAndFont)
{
    Scene scene;
    Object(scene);
    MakePoly(scene, 2, 0, 1);
    scene.WorldMeshes.resize(2);
    scene.Particles.resize(2);
    scene.ParticleCount = 2;
    scene.Font.LineHeight = 9;
    scene.Sky = support::Blank(1, 1);
    InitScene(scene);
    EXPECT_TRUE(scene.Objects.Items.empty());
    EXPECT_EQ(scene.Objects.Count, 0);
    EXPECT_TRUE(scene.Polys.Items.empty());
    EXPECT_TRUE(scene.WorldMeshes.empty());
    EXPECT_TRUE(scene.Particles.empty());
    EXPECT_EQ(scene.ParticleCount, 0);
    EXPECT_EQ(scene.Bytes, 0u);
    EXPECT_EQ(scene.Font.LineHeight, 9);
    EXPECT_EQ(scene.Sky.Info.Width, 1);
}

TEST_F(Textures, TheSamePathIsLoadedOnce)
{
    EXPECT_EQ(Load("a.bmp"), 0);
    EXPECT_EQ(Load("b.bmp"), 1);
    EXPECT_EQ(Load("a.bmp"), 0);
    EXPECT_EQ(Load("A.bmp"), 2); // another letter case is another path
    EXPECT_EQ(Scene.Textures.Count, 3);
    EXPECT_EQ(Scene.Textures.At(0).Pic.Info.Width, 2);
    EXPECT_EQ(Scene.Textures.At(0).Pic.Info.Height, 3);
    EXPECT_EQ(Scene.Textures.At(2).Path, "A.bmp");
    EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(Textures, UnlikeOtherListsTheLastFreeSlotIsTaken)
{
    for (const char* name : {"a.bmp", "b.bmp", "c.bmp"})
        Load(name);
    FreeTexture(Scene, 0);
    FreeTexture(Scene, 1);
    EXPECT_EQ(Scene.Textures.Count, 1);
    EXPECT_EQ(Load("a.bmp"), 1);
    EXPECT_EQ(Load("b.bmp"), 0);
    EXPECT_EQ(Scene.Textures.Items.size(), 3u);
}

TEST_F(Textures, AFreeSlotIsNotFoundByItsPath)
{
    Load("a.bmp");
    FreeTexture(Scene, 0);
    EXPECT_EQ(Find("a.bmp", false), -1);
    EXPECT_EQ(Scene.Bytes, 0u);
}

TEST_F(Textures, FindLoadsOnlyWhenAsked)
{
    EXPECT_EQ(Find("a.bmp", false), -1);
    EXPECT_TRUE(Scene.Textures.Items.empty());
    EXPECT_EQ(Find("a.bmp", true), 0);
    EXPECT_EQ(Find("a.bmp", false), 0);
}

TEST_F(Textures, ABitmapThatFailsKeepsItsSlotAndPathAndDrawsNothing)
{
    EXPECT_EQ(Load("none.bmp"), 0);
    ASSERT_EQ(Messages.Boxes.size(), 1u);
    EXPECT_EQ(Messages.Boxes[0].Text, "Impossibile trovare il file in LoadPicArray2D");
    EXPECT_EQ(Scene.Textures.At(0).Path, "none.bmp");
    EXPECT_EQ(Scene.Textures.At(0).Pic.Info.Width, 0);
    EXPECT_EQ(Load("none.bmp"), 0); // reported once
    EXPECT_EQ(Messages.Boxes.size(), 1u);
    Folder.Write("short.bmp", support::BitmapHeader(2, 3));
    EXPECT_EQ(Load("short.bmp"), 1);
    EXPECT_EQ(Scene.Textures.At(1).Pic.Info.Width, 0);
    EXPECT_TRUE(Scene.Textures.At(1).Pic.Pixels.Empty());
}

TEST_F(Textures, TheyCountTowardTheScenesLimit)
{
    Load("a.bmp");
    EXPECT_EQ(Scene.Bytes, 24u);
    Scene.Bytes = render::MostBytes;
    EXPECT_EQ(ErrorOf([&] { Load("b.bmp"); }), 7);
    EXPECT_EQ(Scene.Textures.At(1).Pic.Info.Width, 0);
    EXPECT_TRUE(Scene.Textures.At(1).Pic.Pixels.Empty());
    EXPECT_EQ(Scene.Bytes, render::MostBytes);
}
