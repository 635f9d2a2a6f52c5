// SPDX-License-Identifier: Zlib
// A clipped hedge of flowering shrubs along a road; pieces join end to end. It may stand either way to the sun, so its
// top is lit and both its sides lie in open light.
#include "assets/track/Leaves.h"

#include "assets/common/Noise.h"
#include "base/Numbers.h"

#include <array>

namespace assets::track
{
namespace
{
constexpr double HalfHedge = 3.0;
constexpr Region Coat{0, 0, 84, 72}, Fringe{84, 0, 84, 12}, HedgeEnd{84, 14, 22, 36};

// From the foot of the front over the top to the foot of the back: z, y and the share of the way.
struct Contour
{
    double Z, Y, Way;
};
constexpr std::array<Contour, 6> HedgeContour{
    {{-0.68, 0, 0}, {-0.66, 1.95, 0.38}, {-0.28, 2.34, 0.48}, {0.28, 2.34, 0.55}, {0.66, 1.95, 0.64}, {0.68, 0, 1}}};

const Leafage& HedgeLeaves()
{
    static const Leafage leaves{Hex(0xA9B856), Hex(0x64823C), Hex(0x40603A), 601};
    return leaves;
}

void PaintCoat(Canvas& sheet)
{
    constexpr int Count = 190;
    for (int layer = 0; layer < 2; ++layer)
        for (int i = 0; i < Count; ++i)
        {
            const double way = HashUnit(i, layer, 602), along = HashUnit(i, layer, 603);
            const double top = 1 - std::abs(way - 0.51) / 0.5; // 0 at the feet
            const double light = 0.2 + 0.62 * SmoothStep(0.0, 1.0, top) + (way > 0.4 && way < 0.6 ? 0.12 : 0.0);
            PaintTuft(sheet, Coat, {{along * Coat.Width, way * Coat.Height}, 4 + 3 * HashUnit(i, layer, 604), light, 0},
                      HedgeLeaves(), true);
        }
    for (int i = 0; i < 60; ++i) // blossoms
    {
        const int x = Coat.Left + base::Floor(HashUnit(i, 0, 605) * Coat.Width);
        const int y = Coat.Low + base::Floor((0.1 + 0.8 * HashUnit(i, 1, 605)) * Coat.Height);
        const Rgb petal = HashUnit(i, 2, 605) > 0.3 ? Hex(0xE58AA4) : Hex(0xF6EFE6);
        sheet.Set(x, y, petal);
        sheet.Set(std::min(x + 1, Coat.Left + Coat.Width - 1), y, petal * 0.86);
    }
}

Canvas HedgePicture()
{
    Canvas sheet(Fringe.Left + Fringe.Width, Coat.Height);
    for (int y = 0; y < Coat.Height; ++y) // no gap in the coat
        for (int x = 0; x < Coat.Width; ++x)
            sheet.Set(x, y, HedgeLeaves().Dark * (0.9 + 0.2 * HashUnit(x, y, 606)));
    PaintCoat(sheet);
    for (int i = 0; i < 40; ++i)
        PaintTuft(
            sheet, Fringe,
            {{HashUnit(i, 0, 607) * Fringe.Width, 1 + 4 * HashUnit(i, 1, 607)}, 3 + 2 * HashUnit(i, 2, 607), 0.8, 0},
            HedgeLeaves(), true);
    for (int i = 0; i < 60; ++i)
    {
        const double up = i / 60.0;
        PaintTuft(sheet, HedgeEnd,
                  {{HashUnit(i, 0, 608) * HedgeEnd.Width, up * HedgeEnd.Height}, 4, 0.25 + 0.4 * up, 0}, HedgeLeaves());
    }
    return sheet;
}

// `pieces` of it end to end, in `across` cells each; the first `points` of the contour.
Model HedgeModel(int pieces, int across, int points)
{
    Model model;
    model.Mass = HeavyMass;
    for (int piece = 0; piece < pieces; ++piece)
    {
        const double middle = HalfHedge * (2 * piece + 1 - pieces);
        ModelMesh coat(points, across + 1);
        coat.Texture = ModelFolder::PathOf("hedge");
        for (int i = 0; i < coat.Rows; ++i)
            for (int j = 0; j <= across; ++j)
            {
                const Contour& c = HedgeContour[static_cast<std::size_t>(i)];
                const double share = 1.0 * j / across;
                coat.At(i, j) = {middle + HalfHedge * (2 * share - 1), c.Y, c.Z,
                                 base::RoundEven(share * (Coat.Width - 1)), base::RoundEven(c.Way * (Coat.Height - 1))};
            }
        model.Meshes.push_back(coat);
        model.Meshes.push_back(Upright("hedge", Fringe, middle - HalfHedge, 0, middle + HalfHedge, 0, 2.2, 2.72));
    }
    return model;
}

void AddHedgeEnds(Model& model)
{
    for (const double x : {-HalfHedge, HalfHedge})
        model.Meshes.push_back(Face("hedge", HedgeEnd, {x, 0, -0.66}, {x, 0, 0.66}, {x, 2.3, 0.5}, {x, 2.3, -0.5}));
}
}

void WriteHedge(const ModelFolder& folder)
{
    folder.Texture("hedge", HedgePicture(), Black::Key);
    Model hedge = HedgeModel(1, 2, static_cast<int>(HedgeContour.size()));
    AddHedgeEnds(hedge);
    folder.Write("hedge", hedge);
    folder.Write("hedge_rim", HedgeModel(2, 1, 4)); // its back looks out of the world
}
}
