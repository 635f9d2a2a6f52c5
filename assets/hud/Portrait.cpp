// SPDX-License-Identifier: Zlib
#include "assets/hud/Portrait.h"

#include "assets/cars/Body.h"
#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace assets::hud
{
Vec3 SceneView::ToCamera(Vec3 p) const
{
    const Vec3 d = p - Eye;
    const double c = std::cos(Yaw), s = std::sin(Yaw);
    return {c * d.X + s * d.Z, d.Y, c * d.Z - s * d.X};
}

Vec3 SceneView::Ray(double x, double y) const
{
    const double right = (x - CentreX) / Focal, up = (y - HorizonY) / Focal;
    const double c = std::cos(Yaw), s = std::sin(Yaw);
    return {c * right - s, up, s * right + c};
}

Vec3 CarPose::Turned(Vec3 d) const
{
    const double c = std::cos(Heading), s = std::sin(Heading);
    return {c * d.X - s * d.Z, d.Y, s * d.X + c * d.Z};
}

Vec3 CarPose::ToWorld(Vec3 p) const
{
    return Turned(p) + Vec3{X, 0, Z};
}

namespace
{
constexpr int Fine = 3; // samples a pixel and axis

struct Corner
{
    Vec3 At; // car
    double A = 0, B = 0;
};
// The colour of a place given by its (A, B) and its place on the car; false: see-through.
using Shader = std::function<bool(double a, double b, Vec3 at, Rgb& colour)>;

class Raster
{
public:
    Raster(const SceneView& view, const CarPose& pose, int width, int height)
        : View(view), Pose(pose), Picture(width * Fine, height * Fine), Depth(width * Fine, height * Fine, 1e9f)
    {
        View.Focal *= Fine;
        View.CentreX *= Fine;
        View.HorizonY *= Fine;
    }

    void Triangle(const std::array<Corner, 3>& corners, const Shader& shader)
    {
        Placed at;
        if (!Place(corners, at))
            return;
        const auto [lowX, highX] = std::minmax({at.Screen[0].X, at.Screen[1].X, at.Screen[2].X});
        const auto [lowY, highY] = std::minmax({at.Screen[0].Y, at.Screen[1].Y, at.Screen[2].Y});
        for (int y = std::max(0, base::Floor(lowY)); y <= std::min(Picture.Height - 1, base::Floor(highY)); ++y)
            for (int x = std::max(0, base::Floor(lowX)); x <= std::min(Picture.Width - 1, base::Floor(highX)); ++x)
                Draw(x, y, corners, at, shader);
    }

    void PasteInto(Canvas& canvas) const { Paste(canvas, Resized(Picture, canvas.Width, canvas.Height), 0, 0); }

private:
    SceneView View;
    CarPose Pose;
    Canvas Picture;
    Mask Depth;

    // The corners as the camera sees them.
    struct Placed
    {
        std::array<double, 3> Depth;
        std::array<Point, 3> Screen;
        double Area; // twice the triangle's, negative when it turns the other way round
    };

    static double Twice(Point a, Point b, Point c) { return (b.X - a.X) * (c.Y - a.Y) - (c.X - a.X) * (b.Y - a.Y); }

    // False where a corner is too near, or nothing of the triangle to be seen.
    bool Place(const std::array<Corner, 3>& corners, Placed& at) const
    {
        for (std::size_t i = 0; i < 3; ++i)
        {
            const Vec3 camera = View.ToCamera(Pose.ToWorld(corners[i].At));
            if (camera.Z < 0.1)
                return false;
            at.Depth[i] = camera.Z;
            at.Screen[i] = View.Project(camera);
        }
        at.Area = Twice(at.Screen[0], at.Screen[1], at.Screen[2]);
        return std::abs(at.Area) >= 1e-9;
    }

    // One sample, where it lies in the triangle and nothing nearer has been drawn. What a corner carries is shared out
    // by its weight over its depth, so that it runs evenly in space.
    void Draw(int x, int y, const std::array<Corner, 3>& corners, const Placed& at, const Shader& shader)
    {
        const Point p{x + 0.5, y + 0.5};
        std::array<double, 3> weights{Twice(at.Screen[1], at.Screen[2], p) / at.Area,
                                      Twice(at.Screen[2], at.Screen[0], p) / at.Area, 0};
        weights[2] = 1 - weights[0] - weights[1];
        if (weights[0] < -1e-6 || weights[1] < -1e-6 || weights[2] < -1e-6)
            return;
        double inverse = 0;
        for (std::size_t i = 0; i < 3; ++i)
            inverse += weights[i] /= at.Depth[i];
        const double depth = 1 / inverse;
        if (depth >= Depth.At(x, y))
            return;
        Corner here;
        for (std::size_t i = 0; i < 3; ++i)
        {
            const double share = weights[i] * depth;
            here.A += corners[i].A * share;
            here.B += corners[i].B * share;
            here.At = here.At + corners[i].At * share;
        }
        Rgb colour;
        if (!shader(here.A, here.B, here.At, colour))
            return;
        Depth.At(x, y) = static_cast<float>(depth);
        Picture.Set(x, y, colour);
    }
};

// The corners of a grid, drawn as two triangles a cell.
template <class CornerAt> void DrawGrid(Raster& raster, int rows, int cols, CornerAt&& corner, const Shader& shader)
{
    for (int i = 0; i + 1 < rows; ++i)
        for (int j = 0; j + 1 < cols; ++j)
        {
            raster.Triangle({corner(i, j), corner(i + 1, j), corner(i, j + 1)}, shader);
            raster.Triangle({corner(i + 1, j + 1), corner(i + 1, j), corner(i, j + 1)}, shader);
        }
}

// The panels in finer cells than the game's, every sample painted from the smooth surface.
void DrawBody(Raster& raster, const std::vector<cars::BodyPanel>& panels, const CarPose& pose, const CarLight& light)
{
    constexpr int Cells = 40;
    for (std::size_t k = 0; k < panels.size(); ++k)
    {
        const cars::BodyPanel& panel = panels[k];
        const Shader shader = [&](double a, double b, Vec3 at, Rgb& colour)
        {
            const cars::Sample sample = cars::SampleAt(panel.Skin, Clamp01(a), Clamp01(b));
            const cars::Ink ink = panel.Paint(sample);
            if (ink.Clear && k < cars::FirstWindow)
                return false;
            colour = light(ink.Colour, ink.Clear ? Surfacing::Glass : Surfacing::Paint, pose.Turned(sample.N),
                           pose.ToWorld(at));
            return true;
        };
        const auto corner = [&](int i, int j)
        {
            const double a = static_cast<double>(j) / Cells, b = static_cast<double>(i) / Cells;
            return Corner{panel.Skin.Shape(a, b), a, b};
        };
        DrawGrid(raster, Cells + 1, Cells + 1, corner, shader);
    }
}

// The texel that the game would show; false: see-through.
bool TexelColour(const Canvas& texture, double u, double v, Rgb& colour)
{
    const int x = std::clamp(base::RoundEven(u), 0, texture.Width - 1);
    const int y = std::clamp(base::RoundEven(v), 0, texture.Height - 1);
    if (texture.At(x, y).A < 0.5f)
        return false;
    colour = texture.Colour(x, y);
    return true;
}

// A mesh of the game's model; panes are dark glass like the windows of the body.
void DrawMesh(Raster& raster, const ModelMesh& mesh, const Canvas& texture, const CarPose& pose, const CarLight& light)
{
    const bool glass = mesh.Texture.find("glass") != std::string::npos;
    const auto corner = [&](int i, int j)
    {
        const ModelPoint& p = mesh.At(i, j);
        return Corner{{p.X, p.Y, p.Z}, static_cast<double>(p.U), static_cast<double>(p.V)};
    };
    const Vec3 first = corner(0, 0).At;
    const Vec3 normal =
        pose.Turned(Unit(Cross(corner(mesh.Rows - 1, 0).At - first, corner(0, mesh.Cols - 1).At - first)));
    const Shader shader = [&](double a, double b, Vec3 at, Rgb& colour)
    {
        if (mesh.Colour >= 0)
            colour = ColourOf(mesh.Colour);
        else if (!glass && !TexelColour(texture, a, b, colour))
            return false;
        const Vec3 facing = glass ? pose.Turned(Unit({at.X * 0.5, 0.75, 0.7})) : normal;
        colour = light(colour, glass ? Surfacing::Glass : Surfacing::Matte, facing, pose.ToWorld(at));
        return true;
    };
    DrawGrid(raster, mesh.Rows, mesh.Cols, corner, shader);
}
}

void DrawCar(Canvas& canvas, const cars::Design& design, const SceneView& view, const CarPose& pose,
             const CarLight& light)
{
    Raster raster(view, pose, canvas.Width, canvas.Height);
    const std::vector<cars::BodyPanel> panels = cars::BodyPanels(design);
    DrawBody(raster, panels, pose, light);
    // Everything else comes from the model itself, but for its shadow.
    const cars::Car car = cars::BuildCar(design);
    for (std::size_t k = panels.size(); k < car.Shadow; ++k)
        DrawMesh(raster, car.Form.Meshes[k], car.Texture, pose, light);
    raster.PasteInto(canvas);
}
}
