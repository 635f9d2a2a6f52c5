// SPDX-License-Identifier: Zlib
#include "assets/cars/Paint.h"

#include "assets/cars/Lettering.h"
#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

namespace assets::cars
{
namespace
{
constexpr Rgb Rubber = Hex(0x16171A);
constexpr Rgb Chrome = Hex(0xC9CED4);
constexpr Rgb LampGlass = Hex(0xF4F2E4);
constexpr Rgb RedLamp = Hex(0xE01420);
constexpr Rgb AmberLamp = Hex(0xF08A18);

// Where the low sun stands as the cars wait on the grid: behind them, to their left. The light turns with the car, so
// it is only leaned that way.
constexpr Vec3 SunSide{-0.62, 0.52, -0.59};
constexpr Rgb InSun{1.13, 1.07, 0.97};
constexpr Rgb InShade{0.76, 0.80, 0.90};

bool Within(double value, double low, double high)
{
    return value >= low && value <= high;
}

bool Near(double value, double centre, double half)
{
    return std::abs(value - centre) <= half;
}

bool InBox(double x, double y, double centreX, double centreY, double halfX, double halfY)
{
    return Near(x, centreX, halfX) && Near(y, centreY, halfY);
}

double Ring(double x, double y, double centreX, double centreY)
{
    return std::hypot(x - centreX, y - centreY);
}

Rgb Matte(Rgb colour, Vec3 normal)
{
    return Lit(colour, normal, 0.1);
}

// A lamp glows by itself: a bright middle, a darker rim.
Rgb Lamp(Rgb colour, double fromMiddle)
{
    return Mix(Mix(colour, {1, 1, 1}, 0.35), colour * 0.62, SmoothStep(0.1, 1.0, fromMiddle));
}

// The number on the body: on a disc with a thin rim, or outlined on the bare paint. False: nothing here.
bool NumberInk(const Design& design, const Lettering& figures, double x, double y, double radius, Rgb& colour)
{
    if (figures.Inside(x, y))
    {
        colour = design.Figures;
        return true;
    }
    const double from = std::hypot(x, y);
    if (design.Roundel && from <= radius)
    {
        colour = from > radius * 0.93 ? design.Figures : design.Plate;
        return true;
    }
    if (!design.Roundel && figures.Inside(x, y, radius * 0.1))
    {
        colour = design.Plate;
        return true;
    }
    return false;
}

std::shared_ptr<Lettering> Figures(const Design& design, double height)
{
    // Two figures are smaller on a disc, so that both fit.
    const bool tight = design.Roundel && design.Number > 9;
    return std::make_shared<Lettering>(std::to_string(design.Number), tight ? height * 0.80 : height, tight ? 1.7 : 2.0,
                                       design.Roundel ? 0.0 : 0.14);
}

Rgb TailLamps(const Design& design, double x, double y, Rgb lit)
{
    constexpr double Middle = 0.635;
    const double side = std::abs(x);
    switch (design.Rear)
    {
    case Rear::FourRounds:
        for (const double centre : {0.60, 0.40})
            if (const double from = Ring(side, y, centre, Middle) / 0.088; from < 1)
                return from > 0.86 ? Chrome * 0.8 : Lamp(centre > 0.5 ? RedLamp : Mix(RedLamp, AmberLamp, 0.35), from);
        break;
    case Rear::Band:
        if (Near(y, Middle, 0.058) && side < 0.74)
            return Near(std::fmod(side, 0.148), 0, 0.008)
                       ? RedLamp * 0.35
                       : Lamp(side > 0.59 ? AmberLamp : RedLamp, std::abs(y - Middle) * 15);
        break;
    case Rear::Blocks:
        if (Near(y, Middle, 0.075) && Within(side, 0.36, 0.75))
        {
            if (Near(side, 0.49, 0.008) || Near(side, 0.62, 0.008) || side < 0.368 || side > 0.742)
                return Rubber;
            return Lamp(side > 0.62 ? AmberLamp : side > 0.49 ? RedLamp : Hex(0xE8E4DC), std::abs(y - Middle) * 11);
        }
        break;
    case Rear::Slim:
        if (Near(y, Middle + 0.03, 0.032) && Within(side, 0.22, 0.76))
            return Lamp(RedLamp, std::abs(y - Middle - 0.03) * 24);
        break;
    }
    return lit;
}
}

Rgb Lit(Rgb paint, Vec3 normal, double gloss)
{
    // From below: asphalt light; from above: open sky; a band of bright horizon on shoulders and edges.
    const double hemisphere = 0.5 + 0.5 * normal.Y;
    const double light = 0.40 + 0.62 * SmoothStep(-0.15, 1.0, hemisphere);
    const double horizon = SmoothStep(0.05, 0.0, std::abs(normal.Y + 0.02)) * 0.10 * gloss;
    const double sky = SmoothStep(0.0, 0.35, normal.Y) * 0.07 * gloss;
    const double edge = SmoothStep(0.22, 0.0, std::abs(normal.Y - 0.62)) * 0.20 * gloss;
    const double flare = SmoothStep(0.93, 1.0, normal.Y) * 0.06 * gloss;
    const double sun = SmoothStep(-0.35, 0.80, Dot(normal, SunSide));
    const double gleam = SmoothStep(0.80, 1.0, Dot(normal, SunSide)) * 0.16 * gloss;
    const Rgb reflected = Rgb{0.92, 0.96, 1.0} * (sky + edge + flare) + Rgb{1.0, 0.92, 0.74} * gleam;
    const Rgb body = paint * (light - horizon) * Mix(InShade, InSun, sun);
    return {std::min(1.0, body.R + reflected.R), std::min(1.0, body.G + reflected.G),
            std::min(1.0, body.B + reflected.B)};
}

Painter FlankPainter(const Design& design, double side)
{
    const auto figures = Figures(design, 0.25);
    return [&design, side, figures](const Sample& s) -> Ink
    {
        const double z = s.P.Z, y = s.P.Y;
        const double arch = std::min(Ring(z, y, FrontAxle, AxleY), Ring(z, y, RearAxle, AxleY));
        // Open, but dark around the upper half of the tyre: the inside of the bonnet must not show.
        if (arch < ArchRadius)
            return {Hex(0x09090A), arch < AxleY + 0.006 || y < 0.40};
        Rgb colour = design.Livery(design, Part::Flank, s.P);
        double gloss = 1;
        // Seen from the left the nose points left, so text runs toward -z there and toward +z on the right.
        const double door = (DoorFront + DoorRear) / 2;
        if (Rgb ink; NumberInk(design, *figures, side * (z - door), y - 0.455, 0.215, ink))
        {
            colour = ink;
            gloss = 0.7;
        }
        const double sill = design.Shape.SillY(z);
        if (y < sill + 0.075)
        {
            colour = Rubber;
            gloss = 0.3;
        }
        Rgb lit = Lit(colour, s.N, gloss);
        // Lower body: less sky. Around the wheels: dirt and a rolled lip.
        lit = lit * Lerp(0.70, 1.0, SmoothStep(sill, 0.52, y));
        if (arch < ArchRadius + 0.022)
            lit = Rubber;
        else
            lit = lit * Lerp(0.82, 1.0, SmoothStep(ArchRadius, ArchRadius + 0.11, arch));
        const bool gap = (Near(z, DoorFront, 0.009) || Near(z, DoorRear, 0.009)) && y > sill + 0.07;
        if (gap)
            lit = lit * 0.42;
        if (InBox(z, y, DoorRear + 0.12, design.Shape.ShoulderY(DoorRear) - 0.075, 0.075, 0.017))
            lit = Rubber;
        if (InBox(z, y, 1.80, 0.47, 0.05, 0.020))
            lit = Lamp(AmberLamp, 0.5);
        if (InBox(z, y, -1.82, 0.55, 0.05, 0.020))
            lit = Lamp(RedLamp, 0.5);
        return {lit};
    };
}

Painter BonnetPainter(const Design& design)
{
    const auto figures = Figures(design, 0.36);
    return [&design, figures](const Sample& s) -> Ink
    {
        const double x = s.P.X, z = s.P.Z;
        Rgb colour = design.Livery(design, Part::Bonnet, s.P);
        double gloss = 1;
        if (design.Roundel) // read from the front
            if (Rgb ink; NumberInk(design, *figures, -x, 1.52 - z, 0.30, ink))
                colour = ink;
        Rgb lit = Lit(colour, s.N, gloss);
        const double lid = 0.60 - 0.05 * (z - 0.8);
        if ((Near(std::abs(x), lid, 0.009) && z < 1.86) || (Near(z, 1.86, 0.009) && std::abs(x) < lid))
            lit = lit * 0.45;
        for (const double middle : {-0.44, 0.44}) // hot air outlets
            if (InBox(x, z, middle, 1.22, 0.10, 0.055))
                lit = Near(std::fmod(z, 0.05), 0.0125, 0.0125) ? Rubber : lit * 0.55;
        if (design.Front == Front::HiddenLamps)
            for (const double middle : {-0.52, 0.52})
            {
                const bool outer = InBox(x, z, middle, 1.90, 0.165, 0.115),
                           inner = InBox(x, z, middle, 1.90, 0.150, 0.100);
                if (outer && !inner)
                    lit = lit * 0.40;
            }
        return {lit};
    };
}

Painter DeckPainter(const Design& design)
{
    const auto figures = Figures(design, 0.44);
    return [&design, figures](const Sample& s) -> Ink
    {
        const double x = s.P.X, z = s.P.Z;
        Rgb colour = design.Livery(design, Part::Deck, s.P);
        if (design.Shape.Open) // where others have it on the roof
            if (Rgb ink; NumberInk(design, *figures, x, z + 1.70, 0.36, ink))
                colour = ink;
        Rgb lit = Lit(colour, s.N, 1);
        if (Near(std::abs(x), 0.66, 0.009))
            lit = lit * 0.45;
        if (design.Spoiler == Spoiler::Lip && z < TailZ + 0.04)
            lit = Matte(Rubber, s.N);
        // Just behind the window the deck lies in its shadow.
        return {lit * Lerp(0.72, 1.0, SmoothStep(0.0, 0.22, design.Shape.WindowRear - z))};
    };
}

Painter RoofPainter(const Design& design)
{
    const auto figures = Figures(design, 0.46);
    const double middle = (RoofFront + std::max(design.Shape.RoofRear, -0.6)) / 2;
    return [&design, figures, middle](const Sample& s) -> Ink
    {
        const double across = 2 * s.A - 1;
        Rgb colour = design.Livery(design, Part::Roof, s.P);
        if (Rgb ink; NumberInk(design, *figures, s.P.X, s.P.Z - middle, 0.40, ink)) // read from behind
            colour = ink;
        Rgb lit = Lit(colour, s.N, 1);
        if (std::abs(across) > 0.965)
            lit = Matte(Rubber, s.N);
        if (s.B < 0.035 || s.B > 0.96)
            lit = lit * 0.35;
        return {lit};
    };
}

Painter NosePainter(const Design& design)
{
    return [&design](const Sample& s) -> Ink
    {
        const double x = std::abs(s.P.X), up = s.B;
        Rgb lit = Lit(design.Livery(design, Part::Nose, s.P), s.N, 1);
        lit = lit * Lerp(0.68, 1.0, SmoothStep(0.0, 0.5, up));
        if (up < 0.13)
            return {Matte(Rubber, s.N)};
        if (up < 0.40 && up > 0.16 && x < 0.46) // air intake
            lit = Near(std::fmod(up, 0.08), 0.02, 0.015) ? Hex(0x3A3C40) : Hex(0x0D0E10);
        if (design.Front != Front::RoundLamps && Near(up, 0.47, 0.045)) // bumper strip
            lit = Matte(Rubber, s.N);
        switch (design.Front)
        {
        case Front::RoundLamps:
            for (const double middle : {0.60, 0.40})
            {
                const double from = Ring(x, s.P.Y, middle, 0.435) / (middle > 0.5 ? 0.088 : 0.068);
                if (from < 1.0)
                    lit = from > 0.84 ? Chrome : Lamp(LampGlass, from);
            }
            break;
        case Front::SquareLamps:
            if (Within(x, 0.36, 0.72) && Within(up, 0.60, 0.90))
                lit = Within(x, 0.385, 0.70) && Within(up, 0.64, 0.87) && !Near(x, 0.545, 0.014)
                          ? Lamp(LampGlass, std::abs(up - 0.76) * 7)
                          : Rubber;
            if (Within(x, 0.0, 0.34) && Within(up, 0.60, 0.90))
                lit = Near(std::fmod(up, 0.06), 0.015, 0.012) ? Hex(0x44474C) : Hex(0x101114);
            break;
        case Front::HiddenLamps:
            if (Within(x, 0.42, 0.74) && Within(up, 0.56, 0.70))
                lit = x > 0.62 ? Lamp(AmberLamp, 0.4) : Lamp(LampGlass, 0.5);
            break;
        }
        return {lit};
    };
}

Painter TailPainter(const Design& design)
{
    const auto plate = std::make_shared<Lettering>("VK " + std::to_string(design.Number), 0.062, 1.5);
    return [&design, plate](const Sample& s) -> Ink
    {
        const double x = s.P.X, y = s.P.Y;
        Rgb lit = Lit(design.Livery(design, Part::Tail, s.P), s.N, 1);
        lit = lit * Lerp(0.70, 1.0, SmoothStep(0.25, 0.55, y));
        if (s.B < 0.24) // lower apron with the exhausts
        {
            for (const double middle : {-0.40, -0.29})
                if (const double from = Ring(x, y, middle, 0.35) / 0.045; from < 1)
                    return {from > 0.68 ? Chrome * 0.85 : Hex(0x060607)};
            return {Matte(Rubber, s.N)};
        }
        if (Near(y, 0.635, 0.105) && std::abs(x) < 0.78)
            lit = Hex(0x1B1C20) * Lerp(0.8, 1.3, SmoothStep(0.53, 0.74, y));
        lit = TailLamps(design, x, y, lit);
        if (Near(y, 0.475, 0.026)) // bumper strip
            lit = Matte(Rubber, s.N);
        if (InBox(x, y, 0, 0.475, 0.20, 0.052))
            lit = plate->Inside(x, y - 0.475) ? Hex(0x14151A) : Hex(0xDADDD8);
        return {lit};
    };
}

Painter CabinPainter(const Design& design)
{
    // The windows in the panel's own (a, b): a pillar in front, one behind the door, a pane, the quarter panel.
    const Shape& shape = design.Shape;
    const double doorAt = DoorEnd(shape);
    const double quarterEnd = QuarterEnd(shape);
    return [&design, doorAt, quarterEnd](const Sample& s) -> Ink
    {
        const double a = s.A, b = s.B;
        const double front = 0.020 + 0.004 * b, doorEnd = doorAt - 0.02 * b;
        const double last = design.Louvres ? doorEnd + 0.07 : Lerp(std::max(0.80, quarterEnd + 0.06), quarterEnd, b);
        const bool doorGlass = Within(a, front + 0.011, doorEnd - 0.012) && Within(b, 0.10, 0.86);
        const bool paneGlass = Within(a, doorEnd + 0.030, last - 0.014) && Within(b, 0.12, 0.82);
        if (doorGlass || paneGlass)
        {
            // Two slanting reflections of the sky.
            const double slant = a - b * 0.12;
            const bool streak = Within(slant, 0.25, 0.272) || Within(slant, 0.282, 0.289);
            return streak ? Ink{Hex(0x92A5B1)} : Ink{{}, true};
        }
        // All frames are dark, because they are seen from inside too.
        if (a < last)
            return {Matte(Rubber, s.N)};
        Rgb lit = Lit(design.Livery(design, Part::Cabin, s.P), s.N, 1);
        if (design.Louvres && Within(a, last + 0.05, 0.90) && Within(b, 0.12, 0.80) &&
            Near(std::fmod(a, 0.04), 0.012, 0.012))
            lit = Rubber;
        return {lit};
    };
}

Painter RearWindowPainter(const Design& design)
{
    return [&design](const Sample& s) -> Ink
    {
        const double across = std::abs(2 * s.A - 1), down = s.B;
        if (across > 0.90 || down < 0.075 || down > 0.92)
            return {Hex(0x0C0D10)};
        if (design.Louvres && std::fmod(down * 6.0, 1.0) < 0.58)
            return {Lit(design.Livery(design, Part::Deck, s.P), s.N, 0.6) *
                    Lerp(1.0, 0.55, std::fmod(down * 6.0, 1.0) / 0.58)};
        return {{}, true};
    };
}

Painter FairingPainter(const Design& design)
{
    return [&design](const Sample& s) -> Ink { return {Lit(design.Livery(design, Part::Deck, s.P), s.N, 1)}; };
}

Painter WingPainter(const Design& design)
{
    const auto word = std::make_shared<Lettering>("VELKAR", 0.17, 1.5, 0.12);
    return [&design, word](const Sample& s) -> Ink
    {
        Rgb colour = design.Livery(design, Part::Wing, s.P);
        if (word->Inside(s.P.X, (0.5 - s.B) * 0.34)) // read from behind
            colour = design.Base;
        const Rgb lit = Lit(colour, s.N, 1);
        return {s.B < 0.06 || s.B > 0.94 ? lit * 0.5 : lit};
    };
}
}
