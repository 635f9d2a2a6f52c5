// SPDX-License-Identifier: Zlib
// assets/cars/Shape.h: the outline of a car as a few curves along z, and the panels that follow from them.
// Metres; nose toward +z, ground y = 0. The front half of the cabin is the same in all cars: the driver sits there.
// The game's models are UnitsPerMetre as large: its roads are wider than real ones.
#pragma once
#include "assets/cars/Surface.h"
#include "assets/common/Vectors.h"

namespace assets::cars
{
inline constexpr double UnitsPerMetre = 1.18;

// Curves over z.
struct Shape
{
    bool Open = false; // no roof: a windscreen in its frame, and fairings behind the two seats
    Curve HalfWidth;   // at the widest height
    Curve Inset;       // how much narrower the shoulder is
    Curve ShoulderY;   // where flank and bonnet meet
    Curve CentreY;     // bonnet and boot lid on the middle line
    Curve SillY;       // lower edge
    double NoseBulge;  // how far the middle of the nose stands before its corners
    double BumperOut;  // how far the bumper stands before the edge of the bonnet
    double TailBulge;
    double RoofY;      // of the roof at its edge, or of the windscreen's upper corners
    double RoofRear;   // z where the rear window begins at the roof
    double WindowRear; // z where it ends on the boot lid, or where the open cockpit ends
    double WindowHalf; // half width of the rear window there
};

inline constexpr double NoseZ = 2.0, TailZ = -2.06; // corners of nose and tail
inline constexpr double FrontAxle = 1.30, RearAxle = -1.27, AxleY = 0.315;
inline constexpr double ArchRadius = 0.375;
inline constexpr double DoorFront = 0.80, DoorRear = -0.60;
inline constexpr double RoofHalf = 0.575;                     // half width of the roof
inline constexpr double CowlCorner = 0.88, CowlMiddle = 1.06; // z of the windscreen's foot
inline constexpr double RoofFront = 0.60;                     // z of its upper corners

// Where the flanks are cut: at the ends of the wheel arches above all. What lies close behind them is cut there too:
// the game finds depths along a face by a rule that errs in long cells, and then both err alike.
inline constexpr double FlankStations[] = {TailZ, -1.66, RearAxle, -0.88, -0.2, 0.40, 0.92, FrontAxle, 1.66, NoseZ};

// Points of the surfaces. `side` is -1 left, +1 right; a and b from 0 to 1.
Vec3 FlankPoint(const Shape& shape, double side, double z, double up);
Vec3 BonnetPoint(const Shape& shape, double across, double z); // across -1 to 1
double CowlZ(double across);                                   // lower edge of the windscreen
Vec3 BonnetEdge(const Shape& shape, double across);            // where the bonnet begins, a strip before the windscreen
Vec3 WindscreenPoint(const Shape& shape, double across, double up);
Vec3 RoofPoint(const Shape& shape, double across, double back);
Vec3 RearWindowPoint(const Shape& shape, double across, double down);
Vec3 DeckPoint(const Shape& shape, double across, double back);
Vec3 NosePoint(const Shape& shape, double across, double up);
Vec3 TailPoint(const Shape& shape, double across, double up);
Vec3 CabinSidePoint(const Shape& shape, double side, double back, double up);
// Where the post behind the door begins at its foot, as CabinSidePoint's `back`.
double DoorEnd(const Shape& shape);
// Where the last side window ends at its top, as CabinSidePoint's `back`.
double QuarterEnd(const Shape& shape);
// The hump behind a seat of an open car.
Vec3 FairingPoint(const Shape& shape, double side, double around, double back);
}
