// SPDX-License-Identifier: Zlib
#include "assets/cars/Body.h"

#include "assets/cars/Fittings.h"
#include "assets/cars/Paint.h"
#include "assets/cars/Pieces.h"
#include "assets/cars/Spheres.h"

namespace assets::cars
{
namespace
{
const std::string Texture = "<path>body.bmp";
constexpr Vec3 BodyMiddle{0, 0.45, 0};

double Across(double a)
{
    return 2 * a - 1;
}

std::vector<double> FlankKnots()
{
    std::vector<double> knots;
    for (const double z : FlankStations)
        knots.push_back((z - TailZ) / (NoseZ - TailZ));
    return knots;
}

void AddUpperPanels(std::vector<BodyPanel>& panels, const Design& design)
{
    const Shape& shape = design.Shape;
    const auto bonnet = [&shape](double a, double b)
    {
        const double x = Across(a);
        return BonnetPoint(shape, x, Lerp(BonnetEdge(shape, x).Z, NoseZ + shape.NoseBulge * (1 - x * x), b));
    };
    const auto deck = [&shape](double a, double b) { return DeckPoint(shape, Across(a), b); };
    panels.push_back({{bonnet, Evenly(4), {0, 0.24, 0.50, 0.76, 1}, 160, 116, BodyMiddle}, BonnetPainter(design)});
    panels.push_back({{deck, {0, 0.25, 0.75, 1}, Evenly(shape.Open ? 4 : 2), 160, shape.Open ? 128 : 56, BodyMiddle},
                      DeckPainter(design)});
    if (shape.Open)
        return;
    const auto roof = [&shape](double a, double b) { return RoofPoint(shape, Across(a), b); };
    panels.push_back({{roof, Evenly(4), {0, 0.35, 1}, 128, 128, BodyMiddle}, RoofPainter(design)});
}

void AddSides(std::vector<BodyPanel>& panels, const Design& design)
{
    const Shape& shape = design.Shape;
    for (const double side : {-1.0, 1.0})
    {
        const auto flank = [&shape, side](double a, double b)
        { return FlankPoint(shape, side, Lerp(TailZ, NoseZ, a), b); };
        panels.push_back({{flank, FlankKnots(), {0, 0.34, 0.66, 1}, 440, 72, BodyMiddle}, FlankPainter(design, side)});
    }
    const auto nose = [&shape](double a, double b) { return NosePoint(shape, Across(a), b); };
    const auto tail = [&shape](double a, double b) { return TailPoint(shape, Across(a), b); };
    panels.push_back({{nose, Evenly(4), {0, 0.42, 1}, 160, 48, BodyMiddle}, NosePainter(design)});
    panels.push_back({{tail, Evenly(4), {0, 0.3, 1}, 160, 56, BodyMiddle}, TailPainter(design)});
}

void AddWindows(std::vector<BodyPanel>& panels, const Design& design)
{
    // Cut before the door's post, so that no part of it lies in the long cell beside the eye.
    const Shape& shape = design.Shape;
    for (const double side : {-1.0, 1.0})
    {
        const auto window = [&shape, side](double a, double b) { return CabinSidePoint(shape, side, a, b); };
        panels.push_back(
            {{window, {0, 0.032, 0.15, DoorEnd(shape) - 0.035, 0.75, 1}, PillarKnots(), 200, 44, BodyMiddle},
             CabinPainter(design)});
    }
    const auto rear = [&shape](double a, double b) { return RearWindowPoint(shape, Across(a), b); };
    panels.push_back({{rear, Evenly(4), Evenly(2), 112, 64, BodyMiddle}, RearWindowPainter(design)});
}

void AddFairings(std::vector<BodyPanel>& panels, const Design& design)
{
    const Shape& shape = design.Shape;
    for (const double side : {-1.0, 1.0})
    {
        const auto hump = [&shape, side](double a, double b) { return FairingPoint(shape, side, a, b); };
        const Vec3 inside{side * 0.30, 0.60, 0};
        panels.push_back({{hump, Evenly(4), {0, 0.4, 1}, 64, 64, inside}, FairingPainter(design)});
    }
}

Model InUnits(Model model)
{
    for (ModelMesh& mesh : model.Meshes)
        for (ModelPoint& p : mesh.Points)
        {
            p.X *= UnitsPerMetre;
            p.Y *= UnitsPerMetre;
            p.Z *= UnitsPerMetre;
        }
    return model;
}
}

std::vector<BodyPanel> BodyPanels(const Design& design)
{
    std::vector<BodyPanel> panels;
    AddUpperPanels(panels, design);
    AddSides(panels, design);
    if (design.Shape.Open)
        AddFairings(panels, design);
    else
        AddWindows(panels, design);
    return panels;
}

Car BuildCar(const Design& design)
{
    Model model;
    Atlas atlas(512, 512);
    for (const BodyPanel& panel : BodyPanels(design))
        model.Meshes.push_back(Build(panel.Skin, panel.Paint, atlas, Texture));
    AddCabin(model, design);
    AddDashboard(model, design);
    AddWindscreen(model, design); // as mesh 20
    AddOutside(model, design, atlas, Texture);
    AddDriver(model, design, atlas, Texture);
    const std::size_t shadow = model.Meshes.size();
    AddShadow(model, design);
    return {model, atlas.Picture(), shadow};
}

Model GameModel(const Design& design, const Car& car)
{
    Model model = InUnits(car.Form);
    AddSpheres(model, static_cast<int>(BodyPanels(design).size()));
    return model;
}
}
