// SPDX-License-Identifier: Zlib
// What is painted, worn or laid into the road.
#include "assets/track/Ground.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Lettering.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr Rgb White{0.93, 0.92, 0.88}, Yellow{0.93, 0.76, 0.22}, Dark{0.16, 0.155, 0.15};

class Brush
{
public:
    Brush(Canvas& ground, const Circuit& road) : Ground(ground), Road(road) {}

    Point Texel(double s, double left) const
    {
        const Point p = Road.Place(s, left);
        return {p.X * TexelsPerUnit, p.Y * TexelsPerUnit};
    }
    double HalfWidth(double s) const { return Road.Along(s).HalfWidth; }
    const RoadPoint& Near(double s) const { return Road.At(base::RoundEven(s / Road.Length * Road.Count())); }

    // A line that keeps its distance; worn unevenly.
    void Line(double s0, double s1, double left0, double left1, double width, Rgb colour, double opacity = 0.9)
    {
        std::vector<Point> line;
        const int steps = std::max(1, base::RoundEven((s1 - s0) / 2));
        for (int i = 0; i <= steps; ++i)
            line.push_back(Texel(Lerp(s0, s1, 1.0 * i / steps), Lerp(left0, left1, 1.0 * i / steps)));
        Worn(line, width, colour, opacity);
    }
    void Worn(const std::vector<Point>& line, double width, Rgb colour, double opacity)
    {
        CoverStroke(Ground.Width, Ground.Height, line, width * TexelsPerUnit, false,
                    [&](int x, int y, double c)
                    {
                        const double wear = 0.8 + 0.35 * Fbm(x / 14.0, y / 14.0, 701, 3) - 0.15 * HashUnit(x, y, 702);
                        Ground.Blend(x, y, colour, c * opacity * Clamp01(wear));
                    });
    }
    void Patch(double s0, double s1, double left0, double left1, Rgb colour, double opacity)
    {
        const Point corners[] = {Texel(s0, left0), Texel(s1, left0), Texel(s1, left1), Texel(s0, left1)};
        CoverPolygon(Ground.Width, Ground.Height, corners,
                     [&](int x, int y, double c)
                     { Ground.Blend(x, y, colour, c * opacity * (0.85 + 0.15 * HashUnit(x, y, 703))); });
    }
    // The pale line round a lay-by.
    void BayLine(const LayBy& bay)
    {
        const double half = HalfWidth(bay.S), outer = bay.Side * (half + LayByDepth), inner = bay.Side * (half - 0.2);
        const double end = LayByHalf + LayByRamp;
        std::vector<Point> edge;
        for (const auto& [s, left] : {std::pair{bay.S - end, inner},
                                      {bay.S - LayByHalf, outer},
                                      {bay.S, outer},
                                      {bay.S + LayByHalf, outer},
                                      {bay.S + end, inner}})
            edge.push_back(Texel(s, left));
        Worn(edge, 0.36, White, 0.9);
    }
    // Letters `tall` units long along `up` (+1: read along the lap, -1: against it, 0: from the left side).
    void Text(std::string_view text, double s, double left, double tall, double stretch, int up, Rgb colour,
              double thickness)
    {
        const double width = LettersWidth(text) * tall * stretch;
        for (const std::vector<Point>& stroke : Letters(text))
        {
            std::vector<Point> line;
            for (const Point& p : stroke)
            {
                const double run = p.X * tall * stretch - width / 2, rise = (p.Y - 0.5) * tall;
                line.push_back(up == 0 ? Texel(s - run, left - rise) : Texel(s + up * rise, left - up * run));
            }
            Worn(line, thickness, colour, 0.85);
        }
    }
    // A dark tyre mark that fades in and out.
    void Skid(double s0, double s1, double left0, double left1, double strength, std::uint32_t seed)
    {
        const int steps = std::max(4, base::RoundEven((s1 - s0) / 1.5));
        for (int i = 0; i < steps; ++i)
        {
            const double t = (i + 0.5) / steps, s = Lerp(s0, s1, t);
            const double wander = 0.5 * Noise(s / 14, seed, 711);
            const double left = Lerp(left0, left1, SmoothStep(0, 1, t)) + wander;
            const double fade = std::sin(Pi * std::min(1.0, 1.6 * t) * 0.5) * SmoothStep(1.0, 0.75, t);
            for (const double wheel : {-0.8, 0.8})
            {
                const Point a = Texel(s - 0.8, left + wheel), b = Texel(s + 0.8, left + wheel);
                const Point piece[] = {a, b};
                CoverStroke(Ground.Width, Ground.Height, piece, 0.32 * TexelsPerUnit, false,
                            [&](int x, int y, double c) {
                                Ground.Shade(x, y, {0.72, 0.72, 0.73}, c * fade * strength);
                            });
            }
        }
    }

private:
    Canvas& Ground;
    const Circuit& Road;
};

void EdgeLines(Brush& brush, double length)
{
    for (double s = 0; s < length; s += 10)
    {
        const double signedS = s > length / 2 ? s - length : s;
        const double a = brush.Near(s).HalfWidth - 0.6, b = brush.Near(s + 10).HalfWidth - 0.6;
        brush.Line(s, s + 10, -a, -b, 0.36, White);
        const bool ramp = (signedS > PitFrom - 34 && signedS < PitFrom) || (signedS > PitTo && signedS < PitTo + 30);
        brush.Line(s, ramp ? s + 5 : s + 10, a, b, 0.36, White);
    }
}

void StartAndGrid(Brush& brush)
{
    const double half = brush.HalfWidth(0) - 0.8, square = 0.8;
    const int across = base::Floor(2 * half / square);
    for (int row = 0; row < 4; ++row)
        for (int i = 0; i < across; ++i)
            brush.Patch(row * square, (row + 1) * square, -half + i * square, -half + (i + 1) * square,
                        (row + i) % 2 == 0 ? White : Dark, 0.95);
    for (int slot = 0; slot < 8; ++slot)
    {
        const double front = GridFront - GridStep * slot, middle = slot % 2 == 0 ? GridLeft : -GridLeft;
        brush.Line(front, front, middle - 1.5, middle + 1.5, 0.3, White);
        brush.Line(front - 1.8, front, middle - 1.5, middle - 1.5, 0.3, White);
        brush.Line(front - 1.8, front, middle + 1.5, middle + 1.5, 0.3, White);
        brush.Text(std::string(1, static_cast<char>('1' + slot)), front - 5.2, middle, 1.3, 1.0, 1, White, 0.22);
    }
}

// A place where cars are mended: red ground in a yellow frame.
void RepairBox(Brush& brush, double s0, double s1, double left0, double left1)
{
    brush.Patch(s0, s1, left0, left1, Hex(0x9A4B34), 0.35);
    brush.Line(s0, s1, left0, left0, 0.3, Yellow);
    brush.Line(s0, s1, left1, left1, 0.3, Yellow);
    brush.Line(s0, s0, left0, left1, 0.3, Yellow);
    brush.Line(s1, s1, left0, left1, 0.3, Yellow);
}

void Spanner(Brush& brush, double s, double left, double size)
{
    const double jaw = s + 2.3 * size, tip = s + 3.1 * size;
    brush.Line(s, jaw, left, left, 0.45 * size, White);
    brush.Line(jaw, tip, left, left - 0.7 * size, 0.4 * size, White);
    brush.Line(jaw, tip, left, left + 0.7 * size, 0.4 * size, White);
}

void PitLane(Brush& brush)
{
    brush.Line(PitFrom, PitTo, PitLeft - PitHalfWidth + 0.3, PitLeft - PitHalfWidth + 0.3, 0.3, White);
    const double last = BoxFirst + BoxLength * (PitBoxes - 0.5), first = BoxFirst - BoxLength / 2;
    brush.Line(PitFrom, first, PitLeft + PitHalfWidth - 0.3, PitLeft + PitHalfWidth - 0.3, 0.3, White);
    brush.Line(last, PitTo, PitLeft + PitHalfWidth - 0.3, PitLeft + PitHalfWidth - 0.3, 0.3, White);
    for (double s = first; s < last; s += 3)
        brush.Line(s, s + 1.5, PitLeft + PitHalfWidth - 0.3, PitLeft + PitHalfWidth - 0.3, 0.25, White);
    for (int box = 0; box < PitBoxes; ++box)
    {
        const double s = BoxFirst + BoxLength * box;
        const double near = BoxLeft - 2.2, far = BoxLeft + 2.6, s0 = s - 3.7, s1 = s + 3.7;
        RepairBox(brush, s0, s1, near, far);
        brush.Text(std::string(1, static_cast<char>('1' + box)), s - 2.2, BoxLeft + 0.2, 2.2, 1.0, 1, White, 0.32);
        Spanner(brush, s - 0.2, BoxLeft + 0.2, 1);
    }
    brush.Text("BOX", PitFrom + 12, PitLeft, 5, 0.45, 1, White, 0.45);
    brush.Text("60", PitFrom + 24, PitLeft, 4.5, 0.5, 1, Yellow, 0.45);
    brush.Text("BOX", PitFrom - 26, 4.4, 6, 0.32, 1, White, 0.4);
}

// The same box and spanner as in the pit lane, on asphalt beside the road, announced on the road.
void PaintLayBy(Brush& brush, const LayBy& bay)
{
    const double half = brush.HalfWidth(bay.S), side = bay.Side, middle = side * (half + LayByBox);
    brush.BayLine(bay);
    const double s0 = bay.S - LayByBoxHalfX, s1 = bay.S + LayByBoxHalfX;
    RepairBox(brush, s0, s1, middle - LayByBoxHalfZ, middle + LayByBoxHalfZ);
    Spanner(brush, bay.S - 1.6, middle, 1.5);
    for (double s = bay.S - LayByHalf - LayByRamp; s < bay.S + LayByHalf + LayByRamp; s += 3)
        brush.Line(s, s + 1.5, side * (half - 0.6), side * (half - 0.6), 0.3, Yellow);
    brush.Text("BOX", bay.S - LayByHalf - LayByRamp - 12, side * (half - 2.4), 5, 0.3, 1, Yellow, 0.4);
}

void TyreMarks(Brush& brush, const Circuit& road)
{
    Sequence dice(801);
    const double brakes[] = {156, 278, 296, 822, 836, 1050, 1132, 1176, 1312, 1480, 1940, 1080, 880};
    std::uint32_t seed = 1;
    for (const double begin : brakes)
        for (int i = 0; i < 6; ++i)
        {
            const double s = begin + dice.Between(-12, 10), run = dice.Between(14, 34);
            const double a = road.Along(s).Line + dice.Between(-2.2, 2.2);
            const double b = road.Along(s + run).Line + dice.Between(-1.2, 1.2);
            brush.Skid(s, s + run, a, b, dice.Between(0.25, 0.8), seed++);
        }
    for (int slot = 0; slot < 8; ++slot) // wheel spin from the grid
        brush.Skid(GridFront - 5 - GridStep * slot, GridFront + 8 - GridStep * slot,
                   slot % 2 == 0 ? GridLeft : -GridLeft, slot % 2 == 0 ? GridLeft - 0.3 : 0.3 - GridLeft, 0.9, seed++);
    for (int i = 0; i < 12; ++i) // off into the gravel and back
    {
        const double s = i < 6 ? 184 + 4.0 * i : 1066 + 4.0 * (i - 6);
        brush.Skid(s, s + dice.Between(16, 30), 6, dice.Between(12, 21), 0.55, seed++);
    }
}

void Drains(Brush& brush, double length)
{
    int number = 0;
    for (double s = 30; s < length - 20; s += 47, ++number)
    {
        const double side = number % 2 == 0 ? 1 : -1, left = side * (brush.HalfWidth(s) - 1.5);
        brush.Patch(s, s + 1.5, left - 0.5, left + 0.5, {0.30, 0.29, 0.28}, 0.95);
        for (int bar = 0; bar < 3; ++bar)
            brush.Patch(s + 0.15 + bar * 0.48, s + 0.39 + bar * 0.48, left - 0.38, left + 0.38, {0.12, 0.12, 0.12},
                        0.95);
    }
}

void Lettering(Brush& brush)
{
    brush.Text("VELKAR", 62, -21.5, 8, 1.0, 0, White, 1.1);
    brush.Text("LARIANO", 1730, 17.5, 6, 1.0, 0, White, 0.8);
    // Arrows that ask for more speed on the east side, chevrons into the hairpin.
    for (const double s : {448.0, 640.0})
    {
        brush.Line(s, s + 7, 0, 0, 0.5, White, 0.55);
        brush.Line(s + 4.5, s + 7, -1.2, 0, 0.5, White, 0.55);
        brush.Line(s + 4.5, s + 7, 1.2, 0, 0.5, White, 0.55);
    }
    brush.Text("PIANO", 798, 0, 5, 0.55, 1, White, 0.5);
}
}

void PaintMarkings(Canvas& ground, const Plan& plan)
{
    Brush brush(ground, plan.Road);
    TyreMarks(brush, plan.Road);
    Drains(brush, plan.Road.Length);
    EdgeLines(brush, plan.Road.Length);
    StartAndGrid(brush);
    PitLane(brush);
    for (const LayBy& bay : plan.LayBys)
        PaintLayBy(brush, bay);
    Lettering(brush);
}
}
