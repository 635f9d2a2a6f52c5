// SPDX-License-Identifier: Zlib
#include "tools/preview/MapPicture.h"

#include "base/Numbers.h"
#include "tools/preview/Extent.h"
#include "tools/preview/Failure.h"
#include "tools/preview/Legend.h"
#include "tools/preview/Limits.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace preview
{
namespace
{
constexpr base::Rgb Grass = {150, 235, 70}, Water = {70, 150, 255}, Boxes = {255, 90, 220};
constexpr base::Rgb Checkpoint = {255, 222, 64}, Alternative = {255, 140, 40};
constexpr base::Rgb Scenery = {240, 240, 236}, Sphere = {255, 64, 56}, Start = {60, 235, 235};
constexpr base::Rgb Veil = {20, 22, 28};
// One a car, over and over.
constexpr std::array<base::Rgb, 8> Drivers = {{{255, 255, 255},
                                               {255, 80, 70},
                                               {90, 220, 255},
                                               {255, 170, 40},
                                               {150, 255, 120},
                                               {220, 130, 255},
                                               {255, 240, 110},
                                               {110, 150, 255}}};
constexpr double NumberSize = 14; // of letters

base::ConstSurface GroundOf(const shell::Game& game)
{
    const render::Ground& ground = game.Scene.Ground;
    if (ground.Width <= 0 || !(ground.GroundScale > 0))
        throw Failure{"the map has no ground"};
    return render::MakeSurface(ground.Sharp);
}

// A little darker than it is, so that marks stand out.
Canvas GroundPicture(const shell::Game& game, double scale)
{
    const base::ConstSurface ground = GroundOf(game);
    const double factor = scale / game.Scene.Ground.GroundScale;
    const double width = std::max(ground.Width * factor, 1.0), height = std::max(ground.Height * factor, 1.0);
    RequireSize(width, height);
    Canvas picture(base::RoundEven(width), base::RoundEven(height), Paper);
    picture.Paste(Resized(ground, picture.Width(), picture.Height()).View(), 0, 0);
    picture.Fill({0, 0}, {width + 1, height + 1}, {Veil, 0.3});
    return picture;
}

// The ground of the game at `scale` pixels a unit, and what is drawn on it. World coordinates and lengths.
class MapPicture
{
public:
    // Failure where there is no ground, or its picture would be too large.
    MapPicture(const shell::Game& game, double scale);

    void MarkZones(); // grass, water, boxes, checkpoints and their lines, alternative checkpoints
    void MarkObjects();
    void MarkStart(); // the cars where they stand
    void MarkLines(std::span<const DrivenLine> lines);

    Canvas Finish() const { return WithLegend(Picture, Legend); }

private:
    Spot ToPicture(double x, double z) const { return {x * Scale, Picture.Height() - z * Scale}; }
    Spot Centre(const world::Target& target) const { return ToPicture(target.X, target.Z); }
    void MarkTinted(const world::TargetList& list, base::Rgb colour, const char* text);
    void MarkCheckpoints();
    void MarkAlternatives();
    void MarkObject(const render::Obj& object);
    // The rectangle that holds the object, turned as it is.
    void Outline(const render::Obj& object, double width, Ink ink);
    bool IsScenery(std::int16_t object) const;

    void Explain(base::Rgb colour, const char* what, std::size_t count);

    const shell::Game& TheGame;
    double Scale; // pixels a unit
    Canvas Picture;
    std::vector<LegendEntry> Legend;
};

MapPicture::MapPicture(const shell::Game& game, double scale)
    : TheGame(game), Scale(scale), Picture(GroundPicture(game, scale))
{
}

// An entry of the legend: what there is and how many.
void MapPicture::Explain(base::Rgb colour, const char* what, std::size_t count)
{
    std::string text = what;
    text.append(" (").append(std::to_string(count)).append(")");
    Legend.push_back({colour, std::move(text)});
}

void MapPicture::MarkTinted(const world::TargetList& list, base::Rgb colour, const char* text)
{
    // Where zones overlap the ground is to be seen as well: they are tinted together, once.
    Canvas zones(Picture.Width(), Picture.Height(), {});
    for (const world::Target& target : list.Targets())
        zones.Disc(Centre(target), target.R * Scale, {{255, 255, 255}, 1});
    Picture.Tint(zones, {colour, 0.2});
    for (const world::Target& target : list.Targets())
        Picture.Ring(Centre(target), target.R * Scale, 1, {colour, 0.4});
    if (list.Count() > 0)
        Explain(colour, text, static_cast<std::size_t>(list.Count()));
}

// A straight line from each to its checkpoint.
void MapPicture::MarkAlternatives()
{
    const std::span<const world::Target> checkpoints = TheGame.Race.Map.Checkpoints.Targets();
    const std::span<const world::Target> alternatives = TheGame.Race.Map.ACheckpoints.Targets();
    for (std::size_t i = 0; i < alternatives.size(); ++i)
    {
        Picture.Ring(Centre(alternatives[i]), alternatives[i].R * Scale, 1.2, {Alternative, 0.8});
        if (i < checkpoints.size())
            Picture.Line(Centre(alternatives[i]), Centre(checkpoints[i]), 1, {Alternative, 0.6});
    }
    if (!alternatives.empty())
        Explain(Alternative, "alternative checkpoints", alternatives.size());
}

void MapPicture::MarkCheckpoints()
{
    const std::span<const world::Target> checkpoints = TheGame.Race.Map.Checkpoints.Targets();
    for (std::size_t i = 0; i < checkpoints.size(); ++i)
        Picture.Line(Centre(checkpoints[i]), Centre(checkpoints[(i + 1) % checkpoints.size()]), 1.5, {Checkpoint, 0.8});
    for (const world::Target& target : checkpoints)
    {
        Picture.Disc(Centre(target), target.R * Scale, {Checkpoint, 0.12});
        Picture.Ring(Centre(target), target.R * Scale, 2, {Checkpoint, 1});
    }
    for (std::size_t i = 0; i < checkpoints.size(); ++i)
        Picture.WriteCentred(Centre(checkpoints[i]), NumberSize, Checkpoint, std::to_string(i));
    if (!checkpoints.empty())
        Explain(Checkpoint, "checkpoints", checkpoints.size());
}

void MapPicture::MarkZones()
{
    const world::Map& map = TheGame.Race.Map;
    MarkTinted(map.Grass, Grass, "grass");
    MarkTinted(map.Water, Water, "water");
    MarkTinted(map.Boxes, Boxes, "repair boxes");
    MarkAlternatives();
    MarkCheckpoints();
}

void MapPicture::Outline(const render::Obj& object, double width, Ink ink)
{
    const Box box = BoxAround(MeshPoints(object));
    const std::array<render::Point3, 4> corners = {{{box.Least.X, 0, box.Least.Z},
                                                    {box.Most.X, 0, box.Least.Z},
                                                    {box.Most.X, 0, box.Most.Z},
                                                    {box.Least.X, 0, box.Most.Z}}};
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        const render::Point3 from = ToWorld(object, corners[i]), to = ToWorld(object, corners[(i + 1) % 4]);
        Picture.Line(ToPicture(from.X, from.Z), ToPicture(to.X, to.Z), width, ink);
    }
}

// Neither a car nor one of what the game itself shows here and there.
bool MapPicture::IsScenery(std::int16_t object) const
{
    const auto drives = [object](const world::Player& player) { return player.Obj == object; };
    const std::vector<world::Player>& players = TheGame.Race.Players;
    return object != TheGame.Assets.ArrowObj && object != TheGame.Assets.CupObj &&
           std::none_of(players.begin(), players.end(), drives);
}

void MapPicture::MarkObject(const render::Obj& object)
{
    Outline(object, 1, {Scenery, 0.55});
    Picture.Disc(ToPicture(object.X, object.Z), 1.2, {Scenery, 0.9});
    for (const render::Sfera& sphere : object.Sfere)
    {
        const render::Point3 centre = ToWorld(object, {sphere.X, sphere.Y, sphere.Z});
        Picture.Ring(ToPicture(centre.X, centre.Z), sphere.R * Scale, 1, {Sphere, 0.8});
    }
}

void MapPicture::MarkObjects()
{
    const render::SlotList<render::Obj>& objects = TheGame.Scene.Objects;
    std::size_t count = 0, spheres = 0;
    for (std::int16_t i = 0; i < objects.Size(); ++i)
        if (render::IsDrawn(objects.At(i)) && IsScenery(i))
        {
            MarkObject(objects.At(i));
            ++count;
            spheres += objects.At(i).Sfere.size();
        }
    if (count > 0)
        Explain(Scenery, "objects", count);
    if (spheres > 0)
        Explain(Sphere, "collision spheres", spheres);
}

void MapPicture::MarkStart()
{
    const std::vector<world::Player>& players = TheGame.Race.Players;
    for (std::size_t i = 0; i < players.size(); ++i)
    {
        if (!TheGame.Scene.Objects.Has(players[i].Obj))
            continue;
        const render::Obj& car = TheGame.Scene.Objects.At(players[i].Obj);
        Outline(car, 1.5, {Start, 1});
        const render::Point3 nose = ToWorld(car, {0, 0, car.Radius * 2});
        Picture.Line(ToPicture(car.X, car.Z), ToPicture(nose.X, nose.Z), 1.5, {Start, 1});
        const render::Point3 beside = ToWorld(car, {car.Radius * 2, 0, 0});
        Picture.WriteCentred(ToPicture(beside.X, beside.Z), NumberSize, Start, std::to_string(i));
    }
    if (!players.empty())
        Explain(Start, "start, by player", players.size());
}

void MapPicture::MarkLines(std::span<const DrivenLine> lines)
{
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const base::Rgb colour = Drivers[i % Drivers.size()];
        for (const std::vector<Spot>& drive : lines[i].Drives)
            for (std::size_t k = 1; k < drive.size(); ++k)
                Picture.Line(ToPicture(drive[k - 1].X, drive[k - 1].Y), ToPicture(drive[k].X, drive[k].Y), 2,
                             {colour, 0.9});
        Legend.push_back({colour, std::string("driven: car ").append(std::to_string(lines[i].Car))});
    }
}
}

Canvas DrawMap(const shell::Game& game, double scale, std::span<const DrivenLine> lines)
{
    MapPicture picture(game, scale);
    picture.MarkObjects();
    picture.MarkZones();
    picture.MarkLines(lines);
    picture.MarkStart();
    return picture.Finish();
}
}
