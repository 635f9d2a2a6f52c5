// assets/cars/Shape.h: the outline of a car as a few curves along z, and the panels that follow from them.
// Metres; nose toward +z, ground y = 0. The front half of the cabin is the same in all cars: the driver sits there.
#pragma once
#include "assets/cars/Surface.h"
#include "assets/common/Vectors.h"

namespace assets::cars
{
// Curves over z.
struct Shape
{
    Curve HalfWidth;  // at the widest height
    Curve Inset;      // how much narrower the shoulder is
    Curve ShoulderY;  // where flank and bonnet meet
    Curve CentreY;    // bonnet and boot lid on the middle line
    Curve SillY;      // lower edge
    double NoseBulge; // how far the middle of the nose stands before its corners
    double BumperOut; // how far the bumper stands before the edge of the bonnet
    double TailBulge;
    double RoofRear;   // z where the rear window begins at the roof
    double WindowRear; // z where it ends on the boot lid
    double WindowHalf; // its half width there
};

inline constexpr double NoseZ = 2.0, TailZ = -2.06; // corners of nose and tail
inline constexpr double FrontAxle = 1.30, RearAxle = -1.27, AxleY = 0.315;
inline constexpr double ArchRadius = 0.375;
inline constexpr double DoorFront = 0.53, DoorRear = -0.60;
inline constexpr double RoofHalf = 0.585; // half width of the roof

// Points of the surfaces. `side` is -1 left, +1 right; a and b from 0 to 1.
Vec3 FlankPoint(const Shape& shape, double side, double z, double up);
Vec3 BonnetPoint(const Shape& shape, double across, double z); // across -1 to 1
double CowlZ(double across);                                   // lower edge of the windscreen
Vec3 WindscreenPoint(const Shape& shape, double across, double up);
Vec3 RoofPoint(const Shape& shape, double across, double back);
Vec3 RearWindowPoint(const Shape& shape, double across, double down);
Vec3 DeckPoint(const Shape& shape, double across, double back);
Vec3 NosePoint(const Shape& shape, double across, double up);
Vec3 TailPoint(const Shape& shape, double across, double up);
Vec3 CabinSidePoint(const Shape& shape, double side, double back, double up);
}
