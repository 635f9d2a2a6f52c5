// SPDX-License-Identifier: Zlib
#include "tools/preview/Turntable.h"

#include "base/Math.h"
#include "base/Text.h"
#include "render/GroundThreads.h"
#include "render/RenderFrame.h"
#include "tools/preview/Extent.h"
#include "tools/preview/Failure.h"
#include "tools/preview/Limits.h"
#include "tools/preview/Sheet.h"
#include "tools/preview/Stage.h"
#include "world/LoadObject.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace preview
{
namespace
{
constexpr double LowPitch = -0.12, HighPitch = -0.6; // radians
constexpr double Margin = 0.9;                       // of half a tile, that the model may fill
constexpr int MostColumns = 4;

struct Messages final : base::MessageSink
{
    void ShowMessage(base::Icon, const std::string& title, const std::string& text) override
    {
        Text += (Text.empty() ? "" : "; ") + title + ": " + text;
    }
    std::string Text;
};

// As model files name each other: with "\" between folders, so that "<path>" finds the model's own.
std::string GamePath(const Arguments& arguments)
{
    std::filesystem::path file = std::filesystem::absolute(arguments.Model);
    if (!std::filesystem::is_regular_file(file))
        file = std::filesystem::absolute(base::Files(arguments.Root).Resolve(arguments.Model.string()));
    if (!std::filesystem::is_regular_file(file))
        throw Failure{"there is no model " + arguments.Model.string()};
    return base::ReplaceAll(file.lexically_normal().string(), "/", "\\");
}

void LoadModel(render::Scene& scene, const Arguments& arguments)
{
    Messages messages;
    world::LoadObject(scene, messages, base::Files(arguments.Root), GamePath(arguments));
    if (!messages.Text.empty())
        throw Failure{arguments.Model.string() + ": " + messages.Text};
    // The map script shows what it places, hidden or not.
    for (render::Obj& object : scene.Objects.Items)
        object.Visible = 1;
    for (render::Poly& poly : scene.Polys.Items)
        poly.Visible = 1;
}

std::vector<render::Point3> PointsOf(const render::Scene& scene)
{
    std::vector<render::Point3> points;
    for (const render::Obj& object : scene.Objects.Items)
        for (const render::Point3& point : WorldPoints(object))
            points.push_back(point);
    for (const render::Poly& poly : scene.Polys.Items)
        for (const render::PolyPt& point : poly.Pts)
            points.push_back({point.X, point.Y, point.Z});
    return points;
}

// Lines that are counted easily: some of them under every model.
double StepFor(const Box& box)
{
    const double length = std::max({box.Most.X - box.Least.X, box.Most.Z - box.Least.Z, box.Most.Y - box.Least.Y});
    return length <= 16 ? 1 : length <= 80 ? 5 : 25;
}

// The ground begins at the origin: the model goes to its middle.
void MoveBy(render::Scene& scene, float x, float z)
{
    for (render::Obj& object : scene.Objects.Items)
    {
        object.X += x;
        object.Z += z;
    }
    for (render::Poly& poly : scene.Polys.Items)
        for (render::PolyPt& point : poly.Pts)
        {
            point.X += x;
            point.Z += z;
        }
}

// A camera that looks at the middle from `distance`.
void Aim(render::Camera& camera, const render::Point3& middle, double yaw, double pitch, double distance)
{
    camera.CamYaw = static_cast<float>(yaw);
    camera.CamPitch = static_cast<float>(pitch);
    render::UpdateCameraTrig(camera);
    camera.CamX = static_cast<float>(middle.X + distance * base::Sin(yaw) * base::Cos(pitch));
    camera.CamY = static_cast<float>(middle.Y - distance * base::Sin(pitch));
    camera.CamZ = static_cast<float>(middle.Z - distance * base::Cos(yaw) * base::Cos(pitch));
}

class Turntable
{
public:
    explicit Turntable(const Arguments& arguments) : TheArguments(arguments)
    {
        LoadModel(Scene, arguments);
        Points = PointsOf(Scene);
        if (Points.empty())
            throw Failure{arguments.Model.string() + " has nothing to show"};
        const Box box = BoxAround(Points);
        const double step = StepFor(box), centre = StageMiddle(step);
        BuildStage(Scene, step);
        MoveBy(Scene, static_cast<float>(centre - (box.Least.X + box.Most.X) / 2),
               static_cast<float>(centre - (box.Least.Z + box.Most.Z) / 2));
        Middle = {static_cast<float>(centre), (box.Least.Y + box.Most.Y) / 2, static_cast<float>(centre)};
        Points = PointsOf(Scene);
        Messages messages;
        render::ApplyResolution(messages, Screen, Camera, arguments.Size.Width, arguments.Size.Height);
        Screen.GroundLimit = NoGroundLimit;
        Distance = FindDistance();
    }

    Tile Draw(int side, double pitch)
    {
        Aim(Camera, Middle, YawOf(side), pitch, Distance);
        render::RenderFrame(Scene, Camera, Screen, Threads);
        const int degrees = base::RoundEven(360.0 * side / TheArguments.Sides);
        return {Resized(render::FrameSurface(Screen), Screen.ScreenW, Screen.ScreenH),
                std::to_string(degrees) + "\u00B0 " + (pitch == LowPitch ? "low" : "high")};
    }

private:
    // The first looks the model in the face.
    double YawOf(int side) const { return render::Pi + render::TwoPi * side / TheArguments.Sides; }

    // From where every point of the model is in the picture, whichever side is shown: one for all, so that they
    // compare.
    double FindDistance()
    {
        double distance = 0;
        for (int side = 0; side < TheArguments.Sides; ++side)
            for (const double pitch : {LowPitch, HighPitch})
            {
                Aim(Camera, Middle, YawOf(side), pitch, 0);
                for (const render::Point3& point : Points)
                {
                    const render::Point3 seen = render::WorldToCamera(Camera, point.X, point.Y, point.Z);
                    const double across = std::abs(seen.X) / (Screen.CenterX * Margin);
                    const double up = std::abs(seen.Y) / (Screen.CenterY * Margin);
                    distance = std::max(distance, std::max(across, up) * Camera.Zoom - seen.Z);
                }
            }
        return distance + Screen.NearZ;
    }

    const Arguments& TheArguments;
    render::Scene Scene;
    render::Camera Camera;
    render::Screen Screen;
    render::GroundThreads Threads;
    std::vector<render::Point3> Points; // of the model, in the world
    render::Point3 Middle;
    double Distance = 0; // of the eye from the middle
};
}

Canvas DrawTurntable(const Arguments& arguments)
{
    Turntable turntable(arguments);
    const int rows = (arguments.Sides + MostColumns - 1) / MostColumns;
    const int columns = (arguments.Sides + rows - 1) / rows;
    std::vector<Tile> tiles;
    for (const double pitch : {LowPitch, HighPitch})
        for (int side = 0; side < arguments.Sides; ++side)
            tiles.push_back(turntable.Draw(side, pitch));
    return MakeSheet(tiles, columns);
}
}
