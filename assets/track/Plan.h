// SPDX-License-Identifier: Zlib
// assets/track/Plan.h: what stands where. The ground paints the shadows of it, the map script places it.
// x is east, z is north, world units. A model's front is its local -z side.
#pragma once
#include "assets/common/Vectors.h"
#include "assets/track/Circuit.h"

#include <string>
#include <vector>

namespace assets::track
{
enum class Shadow
{
    None,
    Block, // a box of footprint and height
    Cone,  // a cypress
    Crown, // a round crown on a trunk
    Roof   // a thin roof high up
};

// What follows a tree's name in the simpler model for places far from the road.
inline constexpr const char* Far = "_far";
bool HasFarModel(const std::string& name);

// What stops cars: a ground sphere without a picture. `Angle` is its heading, an AngleA.
struct Guard
{
    double X = 0, Z = 0, R = 1;
    double Angle = 0;
};

// One model of the world.
struct Kind
{
    std::string Name;    // file name without ".3dm"
    double HalfX, HalfZ; // footprint around the origin
    double Height;
    Shadow Cast;
    bool Solid; // its own model carries collision spheres
};

struct Standing
{
    std::string Name; // of its Kind
    double X = 0, Z = 0;
    double Angle = 0; // AngleA: the local z axis points along (-sin, cos)
};

// A tilled piece of land.
struct Field
{
    enum Crop
    {
        Vines,
        Stubble,
        Olives,
        Meadow
    };
    Crop Grows;
    std::vector<Point> Outline;
    double RowAngle; // radians from the x axis
};

// A way beside the circuit.
struct Path
{
    std::vector<Point> Line;
    double Width;
    bool Paved; // pale stone; otherwise a farm track
};

// A gravel bed along the road, from s0 to s1, between two distances from the centre line (left positive).
struct Gravel
{
    double S0, S1, Near, Far;
};

// A place beside the road where cars are mended.
struct LayBy
{
    double S;    // its middle along the lap
    double Side; // +1 left of the road, -1 right
};

// A barrier along the road.
struct Barrier
{
    double S0, S1, Left;
};

struct Plan
{
    Circuit Road;
    std::vector<Point> Lake; // outline; runs outside the world
    std::vector<Point> Plaza;
    std::vector<Field> Fields;
    std::vector<Path> Paths;
    std::vector<Gravel> Gravels;
    std::vector<LayBy> LayBys;
    std::vector<Standing> Items;
    std::vector<Guard> Guards;
};

const std::vector<Kind>& Kinds();
const Kind& KindOf(const std::string& name);
// AngleA of a model whose front shall look along this direction.
double AngleFacing(double dirX, double dirZ);
bool InsideOutline(const std::vector<Point>& outline, double x, double z);
// Distance to the paved ground of the nearest lay-by, negative on it; `s` along the lap, `offset` to the left of the
// centre line.
double LayByEdge(const Plan& plan, double s, double offset);
Plan MakePlan();

inline constexpr double WorldSize = 640;

// The grid: the front of the first slot behind the start line, the step to the next, their distance from the middle.
inline constexpr double GridFront = -3.4, GridStep = 16, GridLeft = 3.4;

// The pit lane lies to the left of the main straight.
inline constexpr double PitFrom = -88, PitTo = 112; // along the lap
inline constexpr double PitLeft = 15.2, PitHalfWidth = 3.2;
inline constexpr int PitBoxes = 8;
inline constexpr double BoxLength = 9, BoxFirst = -34; // centre of the first box along the lap
inline constexpr double BoxLeft = 21.4;
inline constexpr double PitWallLeft = 11.2, PitWallFrom = -58, PitWallTo = 50;

// A lay-by: half its length at full depth, the ramps at both ends, its depth from the edge of the road, and the middle
// of its box from there.
inline constexpr double LayByHalf = 9, LayByRamp = 15, LayByDepth = 6.6, LayByBox = 3.8;
inline constexpr double LayByBoxHalfX = 5, LayByBoxHalfZ = 2.2;
}
