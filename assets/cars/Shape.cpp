// SPDX-License-Identifier: Zlib
#include "assets/cars/Shape.h"

#include <algorithm>
#include <cmath>

namespace assets::cars
{
namespace
{
constexpr double CowlStrip = 0.05; // length of the strip between windscreen and bonnet

double Power(double base, double exponent)
{
    return base <= 0 ? 0 : std::pow(base, exponent);
}

double ShoulderHalf(const Shape& shape, double z)
{
    return shape.HalfWidth(z) - shape.Inset(z);
}

double RoofCrown(double across)
{
    return 0.034 * (1 - across * across);
}

// The upper edge of the cabin's side: along the roof, then down beside the rear window.
Vec3 CabinEdge(const Shape& shape, double z)
{
    if (z >= shape.RoofRear)
        return {RoofHalf, shape.RoofY, z};
    const double t = Clamp01((z - shape.RoofRear) / (shape.WindowRear - shape.RoofRear));
    return RearWindowPoint(shape, 1, t);
}
}

Vec3 FlankPoint(const Shape& shape, double side, double z, double up)
{
    const double widest = shape.HalfWidth(z);
    const double sill = shape.SillY(z), top = shape.ShoulderY(z);
    const double in = up < 0.55 ? 0.06 * Power(1 - up / 0.55, 2) : shape.Inset(z) * Power((up - 0.55) / 0.45, 2.2);
    return {side * (widest - in), Lerp(sill, top, up), z};
}

Vec3 BonnetPoint(const Shape& shape, double across, double z)
{
    const double rise = 1 - across * across;
    return {across * ShoulderHalf(shape, z), shape.ShoulderY(z) + (shape.CentreY(z) - shape.ShoulderY(z)) * rise, z};
}

double CowlZ(double across)
{
    return Lerp(CowlMiddle, CowlCorner, across * across);
}

Vec3 BonnetEdge(const Shape& shape, double across)
{
    return BonnetPoint(shape, across, CowlZ(across) + CowlStrip);
}

Vec3 WindscreenPoint(const Shape& shape, double across, double up)
{
    const Vec3 low = BonnetPoint(shape, across, CowlZ(across));
    const Vec3 high = RoofPoint(shape, across, 0);
    // None at the pillars, which are straight.
    const double bulge = 0.10 * up * (1 - up) * (1 - across * across);
    return {Lerp(low.X, high.X, up), Lerp(low.Y, high.Y, up) + bulge, Lerp(low.Z, high.Z, up) + bulge};
}

Vec3 RoofPoint(const Shape& shape, double across, double back)
{
    const double front = RoofFront + 0.06 * (1 - across * across);
    const double rear = shape.RoofRear - 0.05 * (1 - across * across);
    return {across * RoofHalf, shape.RoofY + RoofCrown(across) + 0.012 * (1 - Power(2 * back - 1, 2)),
            Lerp(front, rear, back)};
}

Vec3 RearWindowPoint(const Shape& shape, double across, double down)
{
    const Vec3 high = RoofPoint(shape, across, 1);
    const double z = shape.WindowRear - 0.05 * (1 - across * across);
    const double half = shape.WindowHalf;
    const double reach = across * half / ShoulderHalf(shape, z);
    const Vec3 low = BonnetPoint(shape, reach, z);
    const double bulge = 0.16 * down * (1 - down);
    return {Lerp(high.X, low.X, down), Lerp(high.Y, low.Y, down) + bulge, Lerp(high.Z, low.Z, down)};
}

Vec3 DeckPoint(const Shape& shape, double across, double back)
{
    const double front = shape.WindowRear + 0.03;
    const double rear = TailZ - shape.TailBulge * (1 - across * across);
    return BonnetPoint(shape, across, Lerp(front, rear, back));
}

Vec3 NosePoint(const Shape& shape, double across, double up)
{
    const double half = FlankPoint(shape, 1, NoseZ, up).X;
    const double middle = 1 - across * across;
    const double top = BonnetPoint(shape, across, NoseZ + shape.NoseBulge * middle).Y;
    const double profile = shape.BumperOut * Power(std::sin(Pi * Clamp01(up * 1.05)), 0.8) - 0.05 * Power(1 - up, 4);
    return {across * half, Lerp(shape.SillY(NoseZ), top, up),
            NoseZ + shape.NoseBulge * middle + profile * (1 - std::pow(across, 6))};
}

Vec3 TailPoint(const Shape& shape, double across, double up)
{
    const double half = FlankPoint(shape, 1, TailZ, up).X;
    const double middle = 1 - across * across;
    const double top = BonnetPoint(shape, across, TailZ - shape.TailBulge * middle).Y;
    const double profile = 0.05 * Power(std::sin(Pi * Clamp01(up * 1.15)), 0.8) - 0.07 * Power(1 - up, 4);
    return {across * half, Lerp(shape.SillY(TailZ), top, up),
            TailZ - shape.TailBulge * middle - profile * (1 - std::pow(across, 6))};
}

Vec3 CabinSidePoint(const Shape& shape, double side, double back, double up)
{
    const Vec3 low = FlankPoint(shape, side, Lerp(CowlCorner, shape.WindowRear, back), 1);
    Vec3 high = CabinEdge(shape, Lerp(RoofFront, shape.WindowRear, Power(back, 0.9)));
    high.X *= side;
    const double bulge = 0.05 * up * (1 - up) * SmoothStep(0, 0.2, back);
    return {Lerp(low.X, high.X, up) + side * bulge, Lerp(low.Y, high.Y, up), Lerp(low.Z, high.Z, up)};
}

double DoorEnd(const Shape& shape)
{
    return (CowlCorner - DoorRear) / (CowlCorner - shape.WindowRear) - 0.01;
}

double QuarterEnd(const Shape& shape)
{
    const double roofEnd = (RoofFront - shape.RoofRear) / (RoofFront - shape.WindowRear);
    return std::max(0.66, roofEnd - 0.03);
}

Vec3 FairingPoint(const Shape& shape, double side, double around, double back)
{
    const double z = Lerp(shape.WindowRear + 0.02, -1.36, back);
    const double half = Lerp(0.20, 0.10, back), height = Lerp(0.23, 0.0, back * back);
    const double angle = Pi * (1 - around);
    const double x = side * 0.30 + half * std::cos(angle);
    const double foot = BonnetPoint(shape, x / ShoulderHalf(shape, z), z).Y - 0.012;
    return {x, foot + height * Power(std::sin(angle), 0.7), z};
}
}
