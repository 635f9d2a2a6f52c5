// SPDX-License-Identifier: Zlib
// A town gate of stone over the road, with swallow-tailed battlements. Its front (local -z) looks toward the oncoming
// cars; local x runs across the road. Front and back are painted as one half each and mirrored.
#include "assets/track/Gate.h"

#include "assets/track/Facades.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Lettering.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

#include <algorithm>
#include <array>

namespace assets::track
{
namespace
{
constexpr double GateHalf = 13.5, GateOpening = 9.5, GateSpringing = 3.5, GateRise = 3.5;
constexpr double GateWall = 9.7, GateTop = 11.0;
constexpr double FrontScale = 16, BackScale = 8; // a unit

constexpr Region FrontHalf{0, 0, 216, 176}, BackHalf{216, 0, 108, 88}, GateVault{216, 88, 108, 40},
    Plaque{216, 132, 108, 14}, GateWalk{264, 148, 60, 28};
constexpr int GateSheetWidth = 324, GateSheetHeight = 176;

// 1 on the arch's edge, less inside the opening.
double GateArchShare(double x, double y)
{
    return std::hypot(x / GateOpening, std::max(0.0, y - GateSpringing) / GateRise);
}

double GateArch(double x)
{
    const double share = x / GateOpening;
    return GateSpringing + GateRise * std::sqrt(std::max(0.0, 1 - share * share));
}

// Merlons with a notch, the sign of the towns on this shore.
bool IsBattlement(double x, double y)
{
    constexpr double Step = 1.8, Wide = 0.58;
    const double off = std::abs(std::remainder(x + Step / 2, Step));
    if (y < GateWall + 0.25)
        return true;
    return off < Wide && y < GateTop - 0.02 && y < GateTop - 0.55 + off;
}

Rgb StoneBlock(double x, double y, std::uint32_t seed)
{
    const int row = base::Floor(y / 0.5);
    const double along = x / 1.15 + (row % 2) * 0.5 + 0.2 * HashUnit(row, 0, seed);
    const double tone = HashUnit(base::Floor(along), row, seed + 1);
    const double joint = std::min({along - base::Floor(along), 0.5 * (y / 0.5 - row), 1.0});
    Rgb c = Mix(Hex(0xDDC9A0), Hex(0xB09A78), tone);
    if (tone > 0.9)
        c = Hex(0xC7936C); // a brick-coloured stone here and there
    c = c * (1 + 0.12 * Fbm(x * 0.7, y * 0.7, seed + 2, 4));
    return joint < 0.06 ? c * 0.76 : c;
}

// The wedge stones round the arch, and what else stands out of the wall.
Rgb Masonry(double x, double y)
{
    Rgb c = StoneBlock(x, y, 501);
    const double arch = GateArchShare(x, y);
    if (y > GateSpringing && arch < 1.14 && x < GateOpening + 1.2)
    {
        const double turn = std::atan2((y - GateSpringing) / GateRise, x / GateOpening) / (Pi / 2) * 11.5;
        const int wedge = base::Floor(turn);
        c = wedge % 2 == 0 ? Hex(0xBE7650) : Hex(0xE9DAB4);
        c = c * (turn - wedge < 0.1 || arch > 1.125 ? 0.7 : 1.0);
    }
    if (y < 0.9)
        c = Mix(c, Hex(0x8F8468), 0.45);
    const double ivy = 3.6 - 1.5 * std::abs(x - 12.6) + 1.3 * Noise(x * 1.6, y * 0.8, 511);
    if (y < ivy)
        c = Mix(Hex(0x6E8A42), Hex(0x3F5C34),
                HashUnit(base::Floor(x * FrontScale / 2), base::Floor(y * FrontScale / 2), 512));
    return c;
}

// Cornice and the row of small arches that carries it.
Rgb Cornice(Rgb wall, double x, double y)
{
    if (y > GateWall - 0.25 && y < GateWall)
        return Hex(0xEBDDB8);
    if (y < 8.7 || y > GateWall)
        return wall;
    const double off = std::remainder(x, 0.9);
    const bool hollow = std::abs(off) < 0.3 && (y < 9.1 || std::hypot(off, y - 9.1) < 0.3);
    return hollow ? wall * 0.45 : Hex(0xD8C59C);
}

void PaintWall(Canvas& sheet, const Region& r, double texels, Rgb light)
{
    for (int py = 0; py < r.Height; ++py)
        for (int px = 0; px < r.Width; ++px)
        {
            const double x = (px + 0.5) / texels, y = (py + 0.5) / texels;
            if (!IsBattlement(x, y))
                continue;
            const Rgb c = Cornice(Masonry(x, y), x, y) * (0.96 + 0.08 * HashUnit(px, py, 521));
            const double below = y < 8.7 ? SmoothStep(7.9, 8.7, y) : 0; // the cornice's shadow
            const double rim = GateArchShare(x, y) < 1.02 && x < GateOpening ? 0.25 : 0;
            sheet.Set(r.Left + px, r.Low + py, c * light * (1 - 0.3 * below - rim));
        }
    // Slits in the piers.
    FillRect(sheet, r.Left + 11.2 * texels, r.Low + 5.0 * texels, 0.35 * texels, 1.5 * texels, Hex(0x2C2826));
    FillRect(sheet, r.Left + 11.0 * texels, r.Low + 4.85 * texels, 0.75 * texels, 0.2 * texels, Hex(0xEBDDB8) * light);
}

void PaintPlaque(Canvas& sheet)
{
    Canvas plaque(Plaque.Width, Plaque.Height, Hex(0xF3EAD2));
    FillRect(plaque, 0, 0, Plaque.Width, 1, Hex(0xA08C68));
    FillRect(plaque, 0, Plaque.Height - 1, Plaque.Width, 1, Hex(0xA08C68));
    PaintText(plaque, "PORTA DEL LAGO", {Plaque.Width / 2.0, 7}, 8, 1.5, Hex(0x6A2F24), 1, 1.05);
    Paste(sheet, plaque, Plaque.Left, Plaque.Low);
}

Canvas GatePicture()
{
    Canvas sheet(GateSheetWidth, GateSheetHeight);
    PaintWall(sheet, FrontHalf, FrontScale, Mix(ShadeLight, SunLight, 0.85));
    PaintWall(sheet, BackHalf, BackScale, Mix(ShadeLight, SunLight, 0.45));
    PaintPlaque(sheet);
    for (int y = 0; y < GateVault.Height; ++y) // plaster, lighter toward its ends near the ground
        for (int x = 0; x < GateVault.Width; ++x)
        {
            const double up = std::sin(Pi * (x + 0.5) / GateVault.Width);
            const Rgb c = x % 9 == 0 ? Hex(0xA48C66) : Hex(0xC9B48A);
            sheet.Set(GateVault.Left + x, GateVault.Low + y,
                      c * Mix(ShadeLight, SunLight, 0.35 - 0.25 * up) * (0.94 + 0.1 * HashUnit(x, y, 531)));
        }
    PaintStone(sheet, GateWalk, SunLight, 542, 7, 14);
    return sheet;
}

// A face or a part of it: columns at these x, rows from the lower edge at each up to `high`. The picture is that of the
// half wall, so a point's texel follows from its place.
ModelMesh WallPart(const std::vector<double>& columns, bool arched, double high, int rows, double z, const Region& half,
                   double texels)
{
    ModelMesh mesh(rows + 1, static_cast<int>(columns.size()));
    mesh.Texture = ModelFolder::PathOf("arch");
    for (int i = 0; i <= rows; ++i)
        for (std::size_t j = 0; j < columns.size(); ++j)
        {
            const double x = columns[j], low = arched ? GateArch(x) : 0;
            const double y = Lerp(low, high, 1.0 * i / rows);
            mesh.At(i, static_cast<int>(j)) = {
                x, y, z, half.Left + std::min(half.Width - 1, base::RoundEven(std::abs(x) * texels)),
                half.Low + std::min(half.Height - 1, base::RoundEven(y * texels))};
        }
    return mesh;
}

void AddWall(Model& model, double z, const Region& half, double texels)
{
    model.Meshes.push_back(
        WallPart({-9.5, -8.6, -7, -4.8, -2.4, 0, 2.4, 4.8, 7, 8.6, 9.5}, true, GateWall, 3, z, half, texels));
    model.Meshes.push_back(WallPart({-13.5, -11.5, -9.5}, false, GateWall, 4, z, half, texels));
    model.Meshes.push_back(WallPart({9.5, 11.5, 13.5}, false, GateWall, 4, z, half, texels));
    // The battlements have an inner and an outer face.
    for (const double depth : {0.0, 0.5})
        for (const double side : {-1.0, 1.0})
        {
            const Region band{half.Left, half.Low + base::RoundEven(GateWall * texels), half.Width,
                              half.Height - base::RoundEven(GateWall * texels)};
            const double at = z > 0 ? z - depth : z + depth;
            model.Meshes.push_back(Upright("arch", band, 0, at, side * GateHalf, at, GateWall, GateTop, 4));
        }
}

// Once round the opening: up one pier, through the arch, down the other.
std::vector<Point> OpeningOutline()
{
    constexpr int Steps = 10;
    std::vector<Point> path{{-GateOpening, 0}};
    for (int i = 0; i <= Steps; ++i)
    {
        const double x = -GateOpening * std::cos(Pi * i / Steps);
        path.push_back({x, GateArch(x)});
    }
    path.push_back({GateOpening, 0});
    return path;
}

ModelMesh Passage()
{
    const std::vector<Point> path = OpeningOutline();
    ModelMesh mesh(2, static_cast<int>(path.size()));
    mesh.Texture = ModelFolder::PathOf("arch");
    const double last = static_cast<double>(path.size()) - 1;
    for (std::size_t j = 0; j < path.size(); ++j)
    {
        const int u = GateVault.Left + base::RoundEven(static_cast<double>(j) / last * (GateVault.Width - 1));
        mesh.At(0, static_cast<int>(j)) = {path[j].X, path[j].Y, -GateDeep, u, GateVault.Low};
        mesh.At(1, static_cast<int>(j)) = {path[j].X, path[j].Y, GateDeep, u, GateVault.Low + GateVault.Height - 1};
    }
    return mesh;
}
}

std::vector<Point> GateOutline()
{
    std::vector<Point> outline{{-GateHalf, 0}, {-GateHalf, GateTop}, {GateHalf, GateTop}, {GateHalf, 0}};
    const std::vector<Point> opening = OpeningOutline();
    outline.insert(outline.end(), opening.rbegin(), opening.rend());
    return outline;
}

void WriteGate(const ModelFolder& folder)
{
    folder.Texture("arch", GatePicture(), Black::Key);
    Model model;
    model.Mass = HeavyMass;
    AddWall(model, -GateDeep, FrontHalf, FrontScale);
    AddWall(model, GateDeep, BackHalf, BackScale);
    model.Meshes.push_back(Passage());
    // The outer ends show a part of the front's picture.
    constexpr Region outer{FrontHalf.Left + 164, FrontHalf.Low, 48, 155};
    for (const double x : {-GateHalf, GateHalf})
        model.Meshes.push_back(Upright("arch", outer, x, -GateDeep, x, GateDeep, 0, GateWall, 2, 4));
    model.Meshes.push_back(Face("arch", GateWalk, {-GateHalf, GateWall, -GateDeep}, {GateHalf, GateWall, -GateDeep},
                                {GateHalf, GateWall, GateDeep}, {-GateHalf, GateWall, GateDeep}, 6));
    model.Meshes.push_back(Upright("arch", Plaque, -3.4, -GateDeep - 0.05, 3.4, -GateDeep - 0.05, 7.6, 8.48, 4));
    folder.Write("arch", model);
}
}
