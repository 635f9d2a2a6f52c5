// SPDX-License-Identifier: Zlib
#include "render/RenderFrame.h"

#include "render/Draw2D.h"
#include "render/GroundPlain.h"
#include "render/Lines.h"
#include "render/RowTables.h"
#include "render/Sprites.h"
#include "render/Triangles.h"
#include "tests/support/PlainKernels.h"
#include "tests/support/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

using render::Obj;
using render::Scene;

namespace
{
constexpr unsigned Red = 0x0000FF, Green = 0x00FF00, Blue = 0xFF0000; // as Bytes() gives them

// 240 x 200, zoom 200, centre (120, 100), the eye in the origin: at depth 200 a unit is a pixel.
struct Eye : support::View
{
    render::Scene Scene;
    explicit Eye(int threads = 1) : View(240, 200, 0, threads) { Look(0, 0, 0, 0, 0); }
    unsigned At(int x, int y)
    {
        RenderFrame(Scene, Camera, Screen, Threads);
        return support::Bytes(Pixel(x, y));
    }
    // Whether anything but the black sky is in the frame.
    bool Draws()
    {
        RenderFrame(Scene, Camera, Screen, Threads);
        return std::any_of(Screen.Frame.Bytes.begin(), Screen.Frame.Bytes.end(), [](int byte) { return byte != 0; });
    }
};

// A level square of 2 x 2 points from (x, y, z) on, `side` wide and deep: a level face keeps its colour.
render::ObjMesh Square(float x, float y, float z, float side, std::int32_t colour)
{
    render::ObjMesh mesh;
    mesh.Colour = colour;
    mesh.Col = render::SplitRGB(colour);
    mesh.Pts.Rows = mesh.Pts.Cols = 2;
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 2; ++j)
            mesh.Pts.Points.push_back(
                {x + side * static_cast<float>(j), y, z + side * static_cast<float>(i), j * 8, i * 8});
    return mesh;
}

// An object at the place whose one mesh stands below the eye wherever the object is: only culling can hide it.
Obj Visible(float x, float y, float z, float radius)
{
    Obj object;
    object.Visible = 1;
    object.X = x;
    object.Y = y;
    object.Z = z;
    object.Radius = radius;
    object.Mesh.push_back(Square(-20 - x, -20 - y, 180 - z, 40, 0x0000FF));
    return object;
}

void Add(Scene& scene, Obj object)
{
    const std::int16_t slot = scene.Objects.Add();
    scene.Objects.At(slot) = std::move(object);
}
}

TEST(RenderFrame, FillsTheFrameWithItsPaddedRows)
{
    support::View view(241, 201);
    Scene scene;
    std::fill(view.Screen.Frame.Bytes.begin(), view.Screen.Frame.Bytes.end(), std::uint8_t{77});
    RenderFrame(scene, view.Camera, view.Screen, view.Threads);
    EXPECT_EQ(view.Screen.Frame.Bytes.size(), 724u * 201u);
    EXPECT_EQ(support::Bytes(view.Pixel(0, 0)), 0u);
    EXPECT_EQ(support::Bytes(view.Pixel(240, 200)), 0u);
    EXPECT_EQ(view.Screen.Frame.Bytes.back(), 77); // the padding is nobody's
}

TEST(RenderFrame, WithoutAResolutionNothingHappens)
{
    render::Screen screen;
    render::GroundThreads threads;
    RenderFrame(Scene(), render::Camera(), screen, threads);
    EXPECT_TRUE(screen.Frame.Empty());
}

// The time is over before the pass begins: what was in the frame stays, and everything after the ground is drawn.
TEST(RenderFrame, AGroundPassOutOfTimeIsCutOff)
{
    for (const int threads : {1, 3}) // the calling thread alone
    {
        Eye view(threads);
        render::MakeRect2D(view.Scene, {.Visible = 1, .X = 10, .Y = 10, .W = 5, .H = 5, .Col = {255, 0, 0}});
        std::fill(view.Screen.Frame.Bytes.begin(), view.Screen.Frame.Bytes.end(), std::uint8_t{77});
        view.Screen.GroundLimit = 0;
        RenderFrame(view.Scene, view.Camera, view.Screen, view.Threads);
        EXPECT_EQ(support::Bytes(view.Pixel(200, 100)), 0x4D4D4Du);
        EXPECT_EQ(support::Bytes(view.Pixel(12, 12)), Red);
        view.Screen.GroundLimit = 600000;
        RenderFrame(view.Scene, view.Camera, view.Screen, view.Threads);
        EXPECT_EQ(support::Bytes(view.Pixel(200, 100)), 0u); // whole again
    }
}

namespace
{
// A ground that two threads cannot draw in a millisecond: three million pixels.
struct SlowGround : support::View
{
    render::Scene Scene;
    SlowGround() : View(2000, 1500, 2, 5)
    {
        base::Random random;
        random.Seed(1);
        Scene.Sky = support::Noise(random, render::SkyWidth, 50);
        support::SetGround(Scene, support::Noise(random, 500, 500));
        Look(250, 40, 250, 0.5f, -1.5f);
    }
    void Draw() { RenderFrame(Scene, Camera, Screen, Threads); }
};
}

TEST(RenderFrame, ASlowGroundPassLeavesItsLastRowsAsTheyWere)
{
    SlowGround view;
    std::fill(view.Screen.Depth.Cells.begin(), view.Screen.Depth.Cells.end(), 1.0f);
    view.Screen.GroundLimit = 1;
    view.Draw();
    EXPECT_GT(std::count(view.Screen.Depth.Cells.begin(), view.Screen.Depth.Cells.end(), 1.0f), 0);
}

// What stands on a ground that was cut off is hidden by the depths of the frame before where those are nearer, and only
// there; the next frame knows nothing of it.
TEST(RenderFrame, ObjectsStandOnAGroundThatWasCutOff)
{
    SlowGround view;
    Add(view.Scene, Visible(0, 0, 0, 500));
    Obj& object = view.Scene.Objects.At(0);
    object.Mesh = {Square(250, 10, 250, 2, 0x00FF00)};
    const auto green = [&]
    {
        std::vector<bool> is;
        for (int y = 0; y < view.Screen.ScreenH; ++y)
            for (int x = 0; x < view.Screen.ScreenW; ++x)
                is.push_back(support::Bytes(view.Pixel(x, y)) == Green);
        return is;
    };
    view.Draw();
    const std::vector<bool> whole = green();
    EXPECT_GT(std::count(whole.begin(), whole.end(), true), 1000);

    std::fill(view.Screen.Frame.Bytes.begin(), view.Screen.Frame.Bytes.end(), std::uint8_t{77});
    base::Grid<float>& depth = view.Screen.Depth;
    for (int y = 0; y < depth.Height; ++y) // rows before and behind the object by turns
        std::fill_n(depth.Row(y), depth.Width, y % 2 == 0 ? 1.0f : 100.0f);
    view.Screen.GroundLimit = 0;
    view.Draw();
    EXPECT_GT(std::count(depth.Cells.begin(), depth.Cells.end(), 1.0f), 0);
    const std::vector<bool> cut = green();
    EXPECT_GT(std::count(cut.begin(), cut.end(), true), 0);
    for (std::size_t i = 0; i < whole.size(); ++i)
        ASSERT_EQ(cut[i], whole[i] && depth.Cells[i] != 1.0f) << i;

    object.Visible = 0;
    view.Screen.GroundLimit = 600000;
    view.Draw();
    const std::vector<bool> none = green();
    EXPECT_EQ(std::count(none.begin(), none.end(), true), 0);
    EXPECT_TRUE(
        std::all_of(depth.Cells.begin(), depth.Cells.end(), [](float cell) { return cell == render::FarDepth; }));
}

TEST(RenderFrame, TheLimitIs60Milliseconds)
{
    EXPECT_EQ(render::Screen().GroundLimit, 60);
}

TEST(DrawObjects, VisibleAndFreeDecide)
{
    for (const int visible : {0, 1, 255})
        for (const int free : {0, 1})
        {
            Eye view;
            Obj object = Visible(0, 0, 200, 30);
            object.Visible = static_cast<std::uint8_t>(visible);
            object.Free = static_cast<std::uint8_t>(free);
            Add(view.Scene, std::move(object));
            EXPECT_EQ(view.Draws(), visible != 0 && free == 0) << visible << " " << free;
        }
}

// Of a mesh only Free is asked.
TEST(DrawObjects, MeshesAreHiddenByFreeAlone)
{
    Eye view;
    Add(view.Scene, Visible(0, 0, 200, 30));
    render::ObjMesh& mesh = view.Scene.Objects.At(0).Mesh[0];
    mesh.Visible = 0;
    EXPECT_TRUE(view.Draws());
    mesh.Free = 1;
    mesh.Visible = 1;
    EXPECT_FALSE(view.Draws());
}

// Without a radius the centre alone counts; with depth 200 its column is 120 + x, its row 100 + y.
TEST(DrawObjects, CullingIsStrictAtTheUpperBorderOnly)
{
    const auto drawn = [](float x, float y)
    {
        Eye view;
        Add(view.Scene, Visible(x, y, 200, 0));
        return view.Draws();
    };
    EXPECT_TRUE(drawn(0, 0));
    EXPECT_TRUE(drawn(-120, 0));  // column 0
    EXPECT_FALSE(drawn(-121, 0)); // -1
    EXPECT_TRUE(drawn(120, 0));   // column 240, which is no pixel any more
    EXPECT_FALSE(drawn(121, 0));
    EXPECT_TRUE(drawn(0, -100)); // row 0
    EXPECT_FALSE(drawn(0, -101));
    EXPECT_TRUE(drawn(0, 99));
    EXPECT_FALSE(drawn(0, 100)); // row 200: here the border itself is out
}

// The radius counts at the depth of the far side: z + radius, not z.
TEST(DrawObjects, TheFarSideOfTheSphereIsProjected)
{
    const auto drawn = [](float x, float z, float radius)
    {
        Eye view;
        Add(view.Scene, Visible(x, 0, z, radius));
        return view.Draws();
    };
    // d = 200: column 120 + x, radius 100 pixels. At the centre's depth of 100 the column would be 120 + 2 x.
    EXPECT_TRUE(drawn(220, 100, 100));
    EXPECT_FALSE(drawn(221, 100, 100));
    EXPECT_TRUE(drawn(-220, 100, 100));
    EXPECT_FALSE(drawn(-221, 100, 100));
    // A centre behind the eye is no reason to skip, a far side behind it is.
    EXPECT_TRUE(drawn(0, -50, 60));
    EXPECT_FALSE(drawn(0, -50, 50));
    EXPECT_TRUE(drawn(0, -50, 50.02f));
}

TEST(DrawObjects, RotationAndPlaceBringTheMeshIntoTheWorld)
{
    Eye view;
    Obj object;
    object.Visible = 1;
    object.Z = 200;
    object.Radius = 50;
    object.AngleA = 1.57079637f; // local +z becomes world -x
    object.Mesh.push_back(Square(-2, -80, 20, 10, 0x00FF00));
    Add(view.Scene, std::move(object));
    EXPECT_EQ(view.At(95, 21), Green);
    EXPECT_EQ(view.At(145, 21), 0u);
}

TEST(DrawObjects, TexturesThatAreNotThereDrawNothing)
{
    for (const std::int16_t slot : {std::int16_t{-1}, std::int16_t{1}, std::int16_t{32767}})
    {
        Eye view;
        render::Texture& texture = view.Scene.Textures.At(view.Scene.Textures.Add());
        texture.Pic = support::Blank(16, 16);
        std::fill(texture.Pic.Pixels.Bytes.begin(), texture.Pic.Pixels.Bytes.end(), std::uint8_t{200});
        Add(view.Scene, Visible(0, 0, 200, 30));
        render::ObjMesh& mesh = view.Scene.Objects.At(0).Mesh[0];
        mesh.Colour = -1;
        mesh.TexIndex = 0;
        EXPECT_TRUE(view.Draws());
        mesh.TexIndex = slot;
        EXPECT_FALSE(view.Draws());
        mesh.TexIndex = 0;
        texture.Free = 1;
        EXPECT_FALSE(view.Draws());
        texture.Free = 0;
        texture.Pic.Info.Width = 0;
        EXPECT_FALSE(view.Draws());
        texture.Pic.Info.Width = 30000; // more than its bytes: only what is there is read
        EXPECT_TRUE(view.Draws());
    }
}

TEST(RenderFrame, WorldMeshesAreFlatAndInWorldCoordinates)
{
    Eye view;
    view.Scene.WorldMeshes.push_back(Square(-20, -20, 180, 40, 0x00FF00));
    view.Scene.WorldMeshes[0].Colour = -1; // never textured
    EXPECT_EQ(view.At(120, 80), Green);
    view.Scene.WorldMeshes[0].Visible = 0;
    EXPECT_FALSE(view.Draws());
    view.Scene.WorldMeshes[0].Visible = 1;
    view.Scene.WorldMeshes[0].Free = 1;
    EXPECT_FALSE(view.Draws());
}

TEST(RenderFrame, PolylinesJoinConsecutivePoints)
{
    Eye view;
    render::MakePoly(view.Scene, 3, 0x0000FF, 1);
    render::EditPolyPt(view.Scene, 0, 0, {-10, 0, 200});
    render::EditPolyPt(view.Scene, 0, 1, {10, 0, 200});
    render::EditPolyPt(view.Scene, 0, 2, {10, 20, 200});
    EXPECT_EQ(view.At(120, 100), Red);
    EXPECT_EQ(view.At(130, 115), Red);
    EXPECT_EQ(view.At(120, 110), 0u); // not closed
    view.Scene.Polys.At(0).Visible = 0;
    EXPECT_FALSE(view.Draws());
}

// Pictures, then rectangles, then texts, each list in its order, over everything in the world however near.
TEST(RenderFrame, TheDisplayIsDrawnOverTheWorldInItsOrder)
{
    Eye view;
    view.Scene.WorldMeshes.push_back(Square(-2, -0.5f, 1, 4, 0x0000FF));
    EXPECT_EQ(view.At(120, 20), Red);
    support::Messages messages;
    const std::int16_t pic = render::MakePic2D(view.Scene, messages, {.Visible = 1, .X = 99.5f, .Y = 0.0f}, 40, 40);
    auto& pixels = view.Scene.Pics.At(pic).Pic.Pixels;
    std::fill(pixels.Bytes.begin(), pixels.Bytes.end(), std::uint8_t{40});
    EXPECT_EQ(view.At(120, 20), 0x282828u);
    EXPECT_EQ(view.At(99, 20), Red); // 99.5 is column 100, ties to even
    render::MakeRect2D(view.Scene, {.Visible = 1, .X = 110, .Y = 10, .W = 20, .H = 20, .Col = {0, 255, 0}});
    EXPECT_EQ(view.At(120, 20), Green);
    render::MakeRect2D(view.Scene, {.Visible = 1, .X = 115, .Y = 15, .W = 10, .H = 10, .Col = {0, 0, 255}});
    EXPECT_EQ(view.At(120, 20), Blue);
    view.Scene.Rects.At(1).Hidden = 1;
    EXPECT_EQ(view.At(120, 20), Green);
    view.Scene.Rects.At(1).Hidden = 0;
    view.Scene.Rects.At(1).Visible = 0;
    EXPECT_EQ(view.At(120, 20), Green);
    render::Scene& scene = view.Scene;
    render::Glyph& glyph = scene.Font.Glyphs['A' - render::FirstCode];
    glyph = {1, 1, 1, {255}};
    scene.Font.LineHeight = scene.Font.WidestGlyph = 1;
    render::MakeLabel2D(scene, {.Visible = 1,
                                .X = 120,
                                .Y = 20,
                                .Style = render::StartsAtX,
                                .Text = "A",
                                .Scale = 1,
                                .TabWidth = 4,
                                .Col = {9, 8, 7}});
    EXPECT_EQ(view.At(120, 20), 0x070809u);
    scene.Labels.At(0).Fade = 0.5f;
    EXPECT_EQ(view.At(120, 20), 0x030404u);
}

TEST(RenderFrame, LabelsGoByTheirStyle)
{
    Eye view;
    view.Scene.Font.Glyphs['A' - render::FirstCode] = {1, 3, 1, {255, 255, 255}};
    view.Scene.Font.LineHeight = 1;
    view.Scene.Font.WidestGlyph = 3;
    render::MakeLabel2D(view.Scene, {.Visible = 1,
                                     .X = 120,
                                     .Y = 20,
                                     .Style = render::StartsAtX,
                                     .Text = "A\tA",
                                     .Scale = 1,
                                     .TabWidth = 2,
                                     .Col = {0, 255, 0}});
    render::Label2D& label = view.Scene.Labels.At(0);
    EXPECT_EQ(view.At(122, 20), Green); // from x on: 120 … 122
    EXPECT_EQ(view.At(128, 20), Green); // and from the tab stop at 2 x 4
    EXPECT_EQ(view.At(124, 20), 0u);
    EXPECT_EQ(view.At(119, 20), 0u);
    label.Style = render::EndsAtX;
    EXPECT_EQ(view.At(118, 20), Green); // ends at x, a space before it: 112 … 114 and 116 … 118
    EXPECT_EQ(view.At(114, 20), Green);
    EXPECT_EQ(view.At(120, 20), 0u);
    label.Style = render::CentredOnX;
    EXPECT_EQ(view.At(114, 20), Green); // 12 wide: from 114
    EXPECT_EQ(view.At(113, 20), 0u);
    for (const int style : {3, -1})
    {
        label.Style = static_cast<render::LabelStyle>(style);
        EXPECT_FALSE(view.Draws());
    }
}

namespace
{
// A world with something of everything, much of it across the borders of the screen and the near plane.
Scene CrowdedScene(base::Random& random)
{
    Scene scene;
    const auto draw = [&](double least, double most) { return static_cast<float>(support::Draw(random, least, most)); };
    scene.Sky = support::Noise(random, render::SkyWidth, 60);
    support::SetGround(scene, support::Noise(random, 120, 90));
    render::Texture& texture = scene.Textures.At(scene.Textures.Add());
    texture.Pic = support::Noise(random, 30, 20, 0.1);
    for (int n = 0; n < 25; ++n)
    {
        const std::int16_t object =
            render::MakeObj(scene, {draw(0, 120), draw(0, 3), draw(0, 90), draw(-4, 4), draw(-1, 1)}, 2, 0, 1, 1);
        render::SetObjR(scene, object, 5);
        for (int m = 0; m < 2; ++m)
        {
            const auto rows = static_cast<std::int16_t>(support::DrawWhole(random, 1, 4));
            const auto cols = static_cast<std::int16_t>(support::DrawWhole(random, 1, 4));
            render::EditObjMesh(scene, object, m, {rows, cols},
                                n % 3 == m ? -1 : support::DrawWhole(random, 1, 1 << 23), 0);
            for (int i = 0; i < rows; ++i)
                for (int j = 0; j < cols; ++j)
                    render::EditObjMeshPt(scene, object, m, i, j,
                                          {draw(-4, 4), draw(-1, 4), draw(-4, 4), support::DrawWhole(random, -2, 31),
                                           support::DrawWhole(random, -2, 21)});
        }
        scene.Objects.At(object).Mesh[0].Free = n % 8 == 0;
    }
    scene.WorldMeshes.push_back(Square(20, 1, 20, 30, 0x334455));
    for (int n = 0; n < 10; ++n)
    {
        render::MakePoly(scene, 3, support::DrawWhole(random, 1, 1 << 23), 1);
        for (int i = 0; i < 3; ++i)
            render::EditPolyPt(scene, n, i, {draw(0, 120), draw(0, 5), draw(0, 90)});
    }
    const auto smoke = std::make_shared<const render::Picture>(support::Noise(random, 20, 20, 0.3));
    for (int n = 0; n < 10; ++n)
        render::MakeSprite3D(scene, {.Visible = 1,
                                     .X = draw(0, 120),
                                     .Y = draw(0, 4),
                                     .Z = draw(0, 90),
                                     .Scale = 0.05f,
                                     .Alpha = n % 2 == 0 ? 1 : 0.4f,
                                     .Pixels = smoke});
    return scene;
}

// The whole world part of a frame from the plain routines, triangle by triangle, in the order of the lists.
void DrawPlain(const Scene& scene, const render::Camera& camera, render::Screen& screen)
{
    UpdateSkyOffset(camera, screen);
    UpdateRowTables(camera, screen);
    UpdateColumnSlopes(camera, screen);
    GroundPlain(MakeGroundView(scene, camera, screen), {0, screen.ScreenMaxX});
    for (const Obj& object : scene.Objects.Items)
    {
        const render::Point3 c = WorldToCamera(camera, object.X, object.Y, object.Z);
        const double d = static_cast<double>(c.Z) + object.Radius, r = object.Radius / d * camera.Zoom;
        if (d < screen.NearZ)
            continue;
        const double sx = base::RoundEven(c.X / d * camera.Zoom + screen.CenterX);
        const double sy = base::RoundEven(c.Y / d * camera.Zoom + screen.CenterY);
        if (sx + r < 0 || sx - r > screen.ScreenW || sy + r < 0 || sy - r >= screen.ScreenH)
            continue;
        const render::Rotation rotation = render::MakeRotation(object.AngleA, object.AngleB);
        for (const render::ObjMesh& mesh : object.Mesh)
        {
            const auto corner = [&](int i, int j)
            {
                const render::MeshPt& p = mesh.Pts.At(i, j);
                return TransformVertex(
                    camera, screen, RotatePoint(rotation, {object.X, object.Y, object.Z}, {p.X, p.Y, p.Z}), p.U, p.V);
            };
            const auto triangle = [&](const render::Vertex& p, const render::Vertex& q, const render::Vertex& s)
            {
                if (mesh.Colour < 0)
                    DrawTriTex(camera, screen, {p, q, s},
                               render::MakeSurface(scene.Textures.At(mesh.TexIndex).Pic.Pixels, 30, 20));
                else
                    DrawTriFlat(scene, camera, screen, {p, q, s}, mesh.Col);
            };
            for (int i = 0; i <= mesh.Pts.Rows - 2 && mesh.Free == 0; ++i)
                for (int j = 0; j <= mesh.Pts.Cols - 2; ++j)
                {
                    triangle(corner(i, j), corner(i + 1, j), corner(i, j + 1));
                    triangle(corner(i + 1, j + 1), corner(i + 1, j), corner(i, j + 1));
                }
        }
    }
    for (const render::ObjMesh& mesh : scene.WorldMeshes)
    {
        const auto vertex = [&](int i, int j)
        {
            const render::MeshPt& p = mesh.Pts.At(i, j);
            return TransformVertex(camera, screen, {p.X, p.Y, p.Z});
        };
        const base::Rgb colour = mesh.Col;
        DrawTriFlat(scene, camera, screen, {vertex(0, 0), vertex(1, 0), vertex(0, 1)}, colour);
        DrawTriFlat(scene, camera, screen, {vertex(1, 1), vertex(1, 0), vertex(0, 1)}, colour);
    }
    for (const render::Poly& poly : scene.Polys.Items)
        for (std::size_t i = 0; i + 1 < poly.Pts.size(); ++i)
        {
            const render::PolyPt &a = poly.Pts[i], &b = poly.Pts[i + 1];
            DrawLine3D(scene, camera, screen, {a.X, a.Y, a.Z}, {b.X, b.Y, b.Z}, poly.Col);
        }
    for (const render::Sprite3D& sprite : scene.Sprites.Items)
        DrawSprite3DPlain(camera, screen, sprite);
}
}

TEST(RenderFrame, IsThePlainFrameForRandomWorlds)
{
    base::Random random;
    random.Seed(77);
    const int sizes[][2] = {{240, 200}, {333, 257}, {600, 312}};
    for (int round = 0; round < 40; ++round)
    {
        const Scene scene = CrowdedScene(random);
        const int* size = sizes[round % 3];
        const int threads[] = {1, 3, 5, 16};
        support::View fast(size[0], size[1], round / 3 % 3, threads[round % 4]), plain(size[0], size[1], round / 3 % 3);
        for (support::View* view : {&fast, &plain})
        {
            base::Random place;
            place.Seed(static_cast<std::uint64_t>(round));
            const auto draw = [&](double least, double most)
            { return static_cast<float>(support::Draw(place, least, most)); };
            view->Look(draw(0, 120), draw(0.5, 12), draw(0, 90), draw(-4, 4), draw(-0.9, 0.3));
        }
        const auto sets = render::RunnableKernels();
        fast.Screen.Kernels = &sets[sets.size() - 1 - static_cast<std::size_t>(round) % sets.size()];
        plain.Screen.Kernels = &support::PlainKernels;
        render::Camera elsewhere = fast.Camera; // another frame first, of which nothing may be left
        elsewhere.CamX = 30;
        RenderFrame(scene, elsewhere, fast.Screen, fast.Threads);
        RenderFrame(scene, fast.Camera, fast.Screen, fast.Threads);
        DrawPlain(scene, plain.Camera, plain.Screen);
        ASSERT_EQ(fast.Screen.Frame.Bytes, plain.Screen.Frame.Bytes) << round;
        ASSERT_EQ(fast.Screen.Depth.Cells, plain.Screen.Depth.Cells) << round;
    }
}

// Every number of a crowded world in turn becomes none, endless or huge. Nothing crashes, hangs or leaves the frame.
TEST(RenderFrame, NumbersThatAreNoneDoNoHarm)
{
    base::Random random;
    random.Seed(99);
    const float odd[] = {std::numeric_limits<float>::quiet_NaN(),
                         std::numeric_limits<float>::infinity(),
                         -std::numeric_limits<float>::infinity(),
                         3.4e38f,
                         -3.4e38f,
                         1e20f,
                         1e-45f,
                         0.0f,
                         2e9f};
    for (int round = 0; round < 120; ++round)
    {
        Scene scene = CrowdedScene(random);
        const auto spoil = [&](float& field)
        {
            if (support::DrawWhole(random, 0, 3) == 0)
                field = odd[support::DrawWhole(random, 0, 8)];
        };
        for (Obj& object : scene.Objects.Items)
        {
            for (float* field : {&object.X, &object.Y, &object.Z, &object.AngleA, &object.AngleB, &object.Radius})
                spoil(*field);
            for (render::ObjMesh& mesh : object.Mesh)
                for (render::MeshPt& point : mesh.Pts.Points)
                {
                    for (float* field : {&point.X, &point.Y, &point.Z})
                        spoil(*field);
                    point.U = support::DrawWhole(random, 0, 1) == 0 ? std::numeric_limits<std::int32_t>::min()
                                                                    : std::numeric_limits<std::int32_t>::max();
                }
        }
        for (render::Poly& poly : scene.Polys.Items)
            for (render::PolyPt& point : poly.Pts)
                for (float* field : {&point.X, &point.Y, &point.Z})
                    spoil(*field);
        for (render::Sprite3D& sprite : scene.Sprites.Items)
            for (float* field : {&sprite.X, &sprite.Y, &sprite.Z, &sprite.Scale, &sprite.Alpha})
                spoil(*field);
        for (float* field : {&scene.LightR, &scene.LightG, &scene.LightB, &scene.Ground.GroundScale})
            spoil(*field);
        support::View view(240, 200, round % 3, round % 5 == 0 ? 3 : 5);
        view.Look(60, 3, 40, 0.5f, -0.2f);
        if (round % 2 == 0)
        {
            for (float* field : {&view.Camera.CamX, &view.Camera.CamY, &view.Camera.CamZ, &view.Camera.CamYaw,
                                 &view.Camera.CamPitch, &view.Camera.Zoom, &view.Screen.NearZ, &view.Screen.FarZ})
                spoil(*field);
            if (round % 4 == 0)
                UpdateCameraTrig(view.Camera);
        }
        RenderFrame(scene, view.Camera, view.Screen, view.Threads);
    }
}
