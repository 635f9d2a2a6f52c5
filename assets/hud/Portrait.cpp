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
        std::array<Vec3, 3> camera;
        std::array<Point, 3> screen;
        for (std::size_t i = 0; i < 3; ++i)
        {
            camera[i] = View.ToCamera(Pose.ToWorld(corners[i].At));
            if (camera[i].Z < 0.1)
                return;
            screen[i] = View.Project(camera[i]);
        }
        const double area = Twice(screen[0], screen[1], screen[2]);
        if (std::abs(area) < 1e-9)
            return;
        const auto [lowX, highX] = std::minmax({screen[0].X, screen[1].X, screen[2].X});
        const auto [lowY, highY] = std::minmax({screen[0].Y, screen[1].Y, screen[2].Y});
        for (int y = std::max(0, base::Floor(lowY)); y <= std::min(Picture.Height - 1, base::Floor(highY)); ++y)
            for (int x = std::max(0, base::Floor(lowX)); x <= std::min(Picture.Width - 1, base::Floor(highX)); ++x)
            {
                const Point p{x + 0.5, y + 0.5};
                std::array<double, 3> w{Twice(screen[1], screen[2], p) / area, Twice(screen[2], screen[0], p) / area,
                                        0};
                w[2] = 1 - w[0] - w[1];
                if (w[0] < -1e-6 || w[1] < -1e-6 || w[2] < -1e-6)
                    continue;
                double inverse = 0;
                for (std::size_t i = 0; i < 3; ++i)
                    inverse += w[i] /= camera[i].Z;
                const double depth = 1 / inverse;
                if (depth >= Depth.At(x, y))
                    continue;
                double a = 0, b = 0;
                Vec3 at;
                for (std::size_t i = 0; i < 3; ++i)
                {
                    const double share = w[i] * depth;
                    a += corners[i].A * share;
                    b += corners[i].B * share;
                    at = at + corners[i].At * share;
                }
                Rgb colour;
                if (!shader(a, b, at, colour))
                    continue;
                Depth.At(x, y) = static_cast<float>(depth);
                Picture.Set(x, y, colour);
            }
    }

    void PasteInto(Canvas& canvas) const { Paste(canvas, Resized(Picture, canvas.Width, canvas.Height), 0, 0); }

private:
    SceneView View;
    CarPose Pose;
    Canvas Picture;
    Mask Depth;

    static double Twice(Point a, Point b, Point c) { return (b.X - a.X) * (c.Y - a.Y) - (c.X - a.X) * (b.Y - a.Y); }
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
}

void DrawCar(Canvas& canvas, const cars::Design& design, const SceneView& view, const CarPose& pose,
             const CarLight& light)
{
    Raster raster(view, pose, canvas.Width, canvas.Height);
    const std::vector<cars::BodyPanel> panels = cars::BodyPanels(design);
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
        constexpr int Cells = 40;
        DrawGrid(
            raster, Cells + 1, Cells + 1,
            [&](int i, int j)
            {
                const double a = static_cast<double>(j) / Cells, b = static_cast<double>(i) / Cells;
                return Corner{panel.Skin.Shape(a, b), a, b};
            },
            shader);
    }
    // Everything else comes from the model itself; the windscreen is dark glass like the other windows.
    const cars::Car car = cars::BuildCar(design);
    for (std::size_t k = panels.size(); k < car.Form.Meshes.size(); ++k)
    {
        const ModelMesh& mesh = car.Form.Meshes[k];
        const bool glass = mesh.Texture.find("glass") != std::string::npos;
        if (k == car.Shadow)
            continue;
        const auto place = [&](int i, int j)
        {
            const ModelPoint& p = mesh.At(i, j);
            return Corner{{p.X, p.Y, p.Z}, static_cast<double>(p.U), static_cast<double>(p.V)};
        };
        const Vec3 p00 = place(0, 0).At;
        const Vec3 normal =
            pose.Turned(Unit(Cross(place(mesh.Rows - 1, 0).At - p00, place(0, mesh.Cols - 1).At - p00)));
        const Shader shader = [&](double a, double b, Vec3 at, Rgb& colour)
        {
            if (mesh.Colour >= 0)
                colour = Rgb{(mesh.Colour & 255) / 255.0, (mesh.Colour >> 8 & 255) / 255.0,
                             (mesh.Colour >> 16 & 255) / 255.0};
            else if (!glass)
            {
                const int x = std::clamp(base::RoundEven(a), 0, car.Texture.Width - 1),
                          y = std::clamp(base::RoundEven(b), 0, car.Texture.Height - 1);
                if (car.Texture.At(x, y).A < 0.5f)
                    return false;
                colour = car.Texture.Colour(x, y);
            }
            const Vec3 facing = glass ? pose.Turned(Unit({at.X * 0.5, 0.75, 0.7})) : normal;
            colour = light(colour, glass ? Surfacing::Glass : Surfacing::Matte, facing, pose.ToWorld(at));
            return true;
        };
        DrawGrid(raster, mesh.Rows, mesh.Cols, place, shader);
    }
    raster.PasteInto(canvas);
}
}
