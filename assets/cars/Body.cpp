#include "assets/cars/Body.h"

#include "assets/cars/Fittings.h"
#include "assets/cars/Paint.h"

namespace assets::cars
{
namespace
{
const std::string Texture = "<path>body.bmp";
constexpr Vec3 BodyMiddle{0, 0.45, 0};

std::vector<double> KnotsAt(std::initializer_list<double> places, double first, double last)
{
    std::vector<double> knots;
    for (const double at : places)
        knots.push_back((at - first) / (last - first));
    return knots;
}
}

std::vector<BodyPanel> BodyPanels(const Design& design)
{
    std::vector<BodyPanel> panels;
    const Shape& shape = design.Shape;
    const auto add = [&](const Surface& surface, std::vector<double> knotsA, std::vector<double> knotsB, int width,
                         int height, const Painter& painter) {
        panels.push_back({{surface, std::move(knotsA), std::move(knotsB), width, height, BodyMiddle}, painter});
    };
    const auto across = [](double a) { return 2 * a - 1; };

    const auto bonnet = [&shape, across](double a, double b)
    {
        const double x = across(a);
        return BonnetPoint(shape, x, Lerp(CowlZ(x) - 0.02, NoseZ + shape.NoseBulge * (1 - x * x), b));
    };
    add(bonnet, Evenly(4), {0, 0.15, 0.36, 0.58, 0.79, 1}, 128, 100, BonnetPainter(design));
    add([&shape, across](double a, double b) { return DeckPoint(shape, across(a), b); }, {0, 0.25, 0.75, 1}, Evenly(2),
        128, 48, DeckPainter(design));
    add([&shape, across](double a, double b) { return RoofPoint(shape, across(a), b); }, Evenly(4), {0, 0.35, 1}, 96,
        68, RoofPainter(design));
    const std::vector<double> stations =
        KnotsAt({TailZ, -1.72, -1.45, RearAxle, -1.05, -0.80, -0.2, 0.27, 0.50, 0.78, 0.98, FrontAxle, 1.62, NoseZ},
                TailZ, NoseZ);
    for (const double side : {-1.0, 1.0})
        add([&shape, side](double a, double b) { return FlankPoint(shape, side, Lerp(TailZ, NoseZ, a), b); }, stations,
            {0, 0.34, 0.66, 1}, 320, 52, FlankPainter(design, side));
    add([&shape, across](double a, double b) { return NosePoint(shape, across(a), b); }, Evenly(4), {0, 0.42, 1}, 128,
        36, NosePainter(design));
    add([&shape, across](double a, double b) { return TailPoint(shape, across(a), b); }, Evenly(4), {0, 0.3, 1}, 128,
        44, TailPainter(design));
    for (const double side : {-1.0, 1.0})
        add([&shape, side](double a, double b) { return CabinSidePoint(shape, side, a, b); },
            {0, 0.032, 0.15, 0.53, 0.75, 1}, {0, 0.10, 0.90, 1}, 160, 34, CabinPainter(design));
    add([&shape, across](double a, double b) { return RearWindowPoint(shape, across(a), b); }, Evenly(4), Evenly(2), 96,
        64, RearWindowPainter(design));
    return panels;
}

Car BuildCar(const Design& design)
{
    Model model;
    Atlas atlas(384, 512);
    for (const BodyPanel& panel : BodyPanels(design))
        model.Meshes.push_back(Build(panel.Skin, panel.Paint, atlas, Texture));
    AddCabin(model, design, atlas, Texture);
    AddWindscreen(model, design); // as mesh 20
    const std::size_t shadow = AddOutside(model, design, atlas, Texture);
    AddSpheres(model);
    return {model, atlas.Picture(), shadow};
}
}
