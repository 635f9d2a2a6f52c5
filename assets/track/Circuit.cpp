// SPDX-License-Identifier: Zlib
#include "assets/track/Circuit.h"

#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
// The corners of the course as a polygon; each is rounded with its radius.
struct Corner
{
    double X, Z, Radius;
};
const Corner Corners[] = {
    {76, 236, 66},   // from the shore onto the main straight
    {452, 198, 88},  // end of the main straight, right: opens out, a whole field comes here at once
    {512, 92, 40},   // bottom of the east side, two lefts
    {602, 86, 44},   //
    {590, 330, 220}, // a kink on the east side
    {606, 582, 27},  // hairpin
    {549, 582, 27},  //
    {545, 404, 46},  // into the infield, right
    {462, 408, 36},  // chicane
    {428, 366, 36},  //
    {292, 362, 42},  // right, up to the village
    {250, 556, 58},  // left, down to the lake
    {76, 596, 130},  // the long bend along the water
    {46, 400, 170},  //
};
constexpr int CornerCount = static_cast<int>(std::size(Corners));

const Corner& CornerAt(int index)
{
    return Corners[Wrap(index, CornerCount)];
}

Point Toward(Point from, Point to, double distance)
{
    const double length = std::hypot(to.X - from.X, to.Y - from.Y);
    return {from.X + (to.X - from.X) * distance / length, from.Y + (to.Y - from.Y) * distance / length};
}

// The rounded polygon as a dense polyline.
std::vector<Point> Outline()
{
    std::vector<Point> line;
    for (int i = 0; i < CornerCount; ++i)
    {
        const Point before{CornerAt(i - 1).X, CornerAt(i - 1).Z}, here{CornerAt(i).X, CornerAt(i).Z};
        const Point after{CornerAt(i + 1).X, CornerAt(i + 1).Z};
        const double in = std::atan2(here.Y - before.Y, here.X - before.X);
        double turn = std::atan2(after.Y - here.Y, after.X - here.X) - in;
        turn = std::remainder(turn, 2 * Pi);
        const double tangent = CornerAt(i).Radius * std::tan(std::abs(turn) / 2);
        const Point begin = Toward(here, before, tangent);
        const double side = turn > 0 ? 1 : -1;
        const double radius = CornerAt(i).Radius;
        const Point centre{begin.X - std::sin(in) * radius * side, begin.Y + std::cos(in) * radius * side};
        const int steps = 24;
        for (int k = 0; k <= steps; ++k)
        {
            const double angle = in - side * Pi / 2 + turn * k / steps;
            line.push_back({centre.X + std::cos(angle) * radius, centre.Y + std::sin(angle) * radius});
        }
    }
    return line;
}

// The same closed line as `count` points at equal distances, the first where the line passes `first`.
std::vector<Point> Even(const std::vector<Point>& line, int count)
{
    double total = 0;
    for (std::size_t i = 0; i < line.size(); ++i)
    {
        const Point a = line[i], b = line[(i + 1) % line.size()];
        total += std::hypot(b.X - a.X, b.Y - a.Y);
    }
    std::vector<Point> result;
    double walked = 0;
    std::size_t i = 0;
    double begin = 0;
    for (int k = 0; k < count; ++k)
    {
        walked = total * k / count;
        for (;;)
        {
            const Point a = line[i], b = line[(i + 1) % line.size()];
            const double length = std::hypot(b.X - a.X, b.Y - a.Y);
            if (walked <= begin + length || i + 1 == line.size())
            {
                const double t = length > 0 ? (walked - begin) / length : 0;
                result.push_back({Lerp(a.X, b.X, t), Lerp(a.Y, b.Y, t)});
                break;
            }
            begin += length;
            ++i;
        }
    }
    return result;
}

// Softens the change from straight to arc, as road builders do.
void Ease(std::vector<double>& values, int reach)
{
    const int count = static_cast<int>(values.size());
    const std::vector<double> before = values;
    for (int i = 0; i < count; ++i)
    {
        double sum = 0;
        for (int k = -reach; k <= reach; ++k)
            sum += before[static_cast<std::size_t>(Wrap(i + k, count))];
        values[static_cast<std::size_t>(i)] = sum / (2 * reach + 1);
    }
}

void Ease(std::vector<Point>& line, int reach)
{
    std::vector<double> xs, ys;
    for (const Point& p : line)
    {
        xs.push_back(p.X);
        ys.push_back(p.Y);
    }
    Ease(xs, reach);
    Ease(ys, reach);
    for (std::size_t i = 0; i < line.size(); ++i)
        line[i] = {xs[i], ys[i]};
}

double LengthOf(const std::vector<Point>& line)
{
    double total = 0;
    for (std::size_t i = 0; i < line.size(); ++i)
        total += std::hypot(line[(i + 1) % line.size()].X - line[i].X, line[(i + 1) % line.size()].Y - line[i].Y);
    return total;
}

void RotateToStart(std::vector<Point>& line)
{
    const auto nearest = std::min_element(line.begin(), line.end(),
                                          [](Point a, Point b) {
                                              return std::hypot(a.X - StartLine.X, a.Y - StartLine.Y) <
                                                     std::hypot(b.X - StartLine.X, b.Y - StartLine.Y);
                                          });
    std::rotate(line.begin(), nearest, line.end());
}

// The half width of the road: a little more room where the road bends hard, on the
// grid, and in the first bend, where the whole field arrives side by side.
void SetWidths(Circuit& circuit)
{
    constexpr double Plain = 6.7, Grid = 7.1, FirstBend = 8.0;
    constexpr int GridFrom = -140, FirstBendFrom = 140, FirstBendTo = 275;
    const int count = circuit.Count();
    std::vector<double> widths;
    for (int i = 0; i < count; ++i)
    {
        const double bend = Plain + std::min(1.0, 26 * std::abs(circuit.At(i).Bend));
        const double least = i >= FirstBendFrom && i < FirstBendTo        ? FirstBend
                             : i < FirstBendFrom || i >= count + GridFrom ? Grid
                                                                          : Plain;
        widths.push_back(std::max(bend, least));
    }
    Ease(widths, 25);
    for (int i = 0; i < count; ++i)
        circuit.Points[static_cast<std::size_t>(i)].HalfWidth = widths[static_cast<std::size_t>(i)];
}

// The racing line swings out before a bend and cuts its inside: the bend itself, smoothed twice over and subtracted.
void AddRacingLine(Circuit& circuit)
{
    std::vector<double> inside, outside;
    for (const RoadPoint& p : circuit.Points)
    {
        const double bend = std::clamp(p.Bend * 42, -1.0, 1.0);
        inside.push_back(bend);
        outside.push_back(bend);
    }
    Ease(inside, 14);
    Ease(inside, 10);
    Ease(outside, 40);
    Ease(outside, 30);
    for (std::size_t i = 0; i < circuit.Points.size(); ++i)
        circuit.Points[i].Line = std::clamp(9 * inside[i] - 7 * outside[i], -4.2, 4.2);
}
}

Circuit MakeCircuit()
{
    std::vector<Point> line = Even(Outline(), 2200);
    Ease(line, 9);
    Ease(line, 6);
    const int count = base::RoundEven(LengthOf(line));
    line = Even(line, count);
    RotateToStart(line);
    Circuit circuit;
    circuit.Length = LengthOf(line);
    const auto at = [&](int i) { return line[static_cast<std::size_t>(Wrap(i, count))]; };
    for (int i = 0; i < count; ++i)
    {
        RoadPoint p;
        p.X = at(i).X;
        p.Z = at(i).Y;
        const Point a = at(i - 2), b = at(i + 2);
        const double length = std::hypot(b.X - a.X, b.Y - a.Y);
        p.DirX = (b.X - a.X) / length;
        p.DirZ = (b.Y - a.Y) / length;
        const double in = std::atan2(at(i).Y - at(i - 4).Y, at(i).X - at(i - 4).X);
        const double out = std::atan2(at(i + 4).Y - at(i).Y, at(i + 4).X - at(i).X);
        p.Bend = std::remainder(out - in, 2 * Pi) / 4;
        circuit.Points.push_back(p);
    }
    SetWidths(circuit);
    AddRacingLine(circuit);
    return circuit;
}

RoadPoint Circuit::Along(double s) const
{
    const double place = s / Length * Count();
    const int i = base::Floor(place);
    const double t = place - i;
    const RoadPoint &a = At(i), &b = At(i + 1);
    RoadPoint p = a;
    p.X = Lerp(a.X, b.X, t);
    p.Z = Lerp(a.Z, b.Z, t);
    const double dx = Lerp(a.DirX, b.DirX, t), dz = Lerp(a.DirZ, b.DirZ, t), length = std::hypot(dx, dz);
    p.DirX = dx / length;
    p.DirZ = dz / length;
    return p;
}

Point Circuit::Place(double s, double left) const
{
    const RoadPoint p = Along(s);
    return {p.X - p.DirZ * left, p.Z + p.DirX * left};
}

int Circuit::Nearest(double x, double z) const
{
    int best = 0;
    double least = 1e18;
    for (int i = 0; i < Count(); ++i)
    {
        const double dx = At(i).X - x, dz = At(i).Z - z;
        if (const double d = dx * dx + dz * dz; d < least)
        {
            least = d;
            best = i;
        }
    }
    return best;
}

double Circuit::Offset(double x, double z) const
{
    const RoadPoint& p = At(Nearest(x, z));
    return (z - p.Z) * p.DirX - (x - p.X) * p.DirZ;
}
}
