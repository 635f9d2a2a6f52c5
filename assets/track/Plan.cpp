// SPDX-License-Identifier: Zlib
#include "assets/track/Plan.h"

#include "assets/track/Guards.h"
#include "assets/track/Light.h"
#include "assets/track/Scatter.h"
#include "assets/track/WallEnds.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
double AngleFacing(double dirX, double dirZ)
{
    return std::atan2(dirX, -dirZ);
}

bool InsideOutline(const std::vector<Point>& outline, double x, double z)
{
    bool inside = false;
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        const Point a = outline[i], b = outline[(i + 1) % outline.size()];
        if ((a.Y <= z) != (b.Y <= z) && x < a.X + (b.X - a.X) * (z - a.Y) / (b.Y - a.Y))
            inside = !inside;
    }
    return inside;
}

double LayByEdge(const Plan& plan, double s, double offset)
{
    double least = 1e9;
    for (const LayBy& bay : plan.LayBys)
    {
        const double along = std::abs(std::remainder(s - bay.S, plan.Road.Length));
        if (along > LayByHalf + LayByRamp + 60 || offset * bay.Side < 0)
            continue;
        const double depth = LayByDepth * Clamp01((LayByHalf + LayByRamp - along) / LayByRamp);
        const double out = std::abs(offset) - plan.Road.Along(s).HalfWidth - depth;
        least = std::min(least, std::max(out, along - LayByHalf - LayByRamp));
    }
    return least;
}

namespace
{
// Puts things beside the road.
class Builder
{
public:
    explicit Builder(Plan& plan) : Layout(plan) {}

    void Put(const std::string& name, double x, double z, double angle = 0)
    {
        KindOf(name);
        Layout.Items.push_back({name, x, z, angle});
    }
    // Front toward the road.
    void Beside(const std::string& name, double s, double left)
    {
        const RoadPoint p = Layout.Road.Along(s);
        const Point place = Layout.Road.Place(s, left);
        const double side = left > 0 ? 1 : -1;
        Put(name, place.X, place.Y, AngleFacing(side * p.DirZ, -side * p.DirX));
    }
    // Front toward the oncoming cars.
    void Against(const std::string& name, double s, double left)
    {
        const RoadPoint p = Layout.Road.Along(s);
        const Point place = Layout.Road.Place(s, left);
        Put(name, place.X, place.Y, AngleFacing(-p.DirX, -p.DirZ));
    }
    // Pieces end to end, their middles at the same distance from the middle of the road.
    void Row(const std::string& name, const Barrier& run)
    {
        const double step = 2 * KindOf(name).HalfX;
        for (double s = run.S0 + step / 2; s < run.S1;)
        {
            Beside(name, s, run.Left);
            s += StepAlong(s, run.Left, step);
        }
    }
    void Both(const std::string& name, double s0, double s1, double step, double left)
    {
        for (double s = s0; s <= s1; s += step)
        {
            Beside(name, s, left);
            Beside(name, s, -left);
        }
    }
    double HalfWidth(double s) const { return Layout.Road.Along(s).HalfWidth; }

private:
    // How far along the centre line a piece of that length reaches: less on the outside of a bend, more on its inside.
    double StepAlong(double s, double left, double length) const
    {
        const Point a = Layout.Road.Place(s, left), b = Layout.Road.Place(s + length, left);
        return length * length / std::hypot(b.X - a.X, b.Y - a.Y);
    }
    Plan& Layout;
};

void PutStraight(Builder& put, const Plan& plan)
{
    for (int i = 0; i < 3; ++i)
        put.Beside("stand", -76 + 28.0 * i, -21);
    put.Row("fence", {-88, 8, -11.9});
    put.Beside("pits", BoxFirst + BoxLength * 3.5, 30.5);
    put.Row("pitwall", {PitWallFrom, PitWallTo, PitWallLeft});
    const RoadPoint start = plan.Road.At(0);
    put.Put("gantry", start.X, start.Z, AngleFacing(-start.DirX, -start.DirZ) + Pi / 2);
    for (int i = 0; i < 7; ++i)
        put.Beside("flag", -92 + 15.5 * i, -28.5);
    for (int i = 0; i < 12; ++i)
        put.Beside("board_" + std::to_string(1 + (i * 5 + 3) % 6), 20 + 9.5 * i, -10.6);
    put.Row("hedge", {62, 110, -13.5});
    put.Against("sign_100", 136, -9.6);
    put.Against("sign_50", 156, -9.9);
}

void PutCorners(Builder& put)
{
    const auto boards = [&](double s0, double s1, double left, int first)
    {
        for (double s = s0; s <= s1; s += 9)
            put.Beside("board_" + std::to_string(1 + first++ % 6), s, left);
    };
    boards(186, 250, 31, 2);
    boards(868, 945, -26, 0);
    boards(1074, 1116, 26, 4);
    boards(1226, 1240, 9.6, 1);
    boards(1286, 1302, -9.6, 5);
    boards(2044, 2056, 10.4, 0);
    const auto tyres = [&](double s0, double s1, double step, double left)
    {
        for (double s = s0; s <= s1; s += step)
            put.Beside("tyres", s, left);
    };
    tyres(184, 252, 5.5, 28.5);
    tyres(860, 948, 6, -23);
    tyres(1070, 1120, 5, 23.5);
    tyres(366, 430, 7, -17.5);
    put.Beside("arrows", 872, -15.5);
    put.Beside("arrows_r", 1068, 15.5);
    put.Beside("arrows_r", 1340, 15.5);
    put.Beside("arrows", 334, -15.5);
    put.Both("bollard", 1130, 1226, 8, 9.4); // the chicane
    for (const double s : {306.0, 312.0, 318.0, 1546.0, 1552.0, 1558.0})
        put.Beside("cone", s, put.HalfWidth(s) + 2.4);
    for (const double s : {1334.0, 1340.0, 1346.0})
        put.Beside("cone", s, -put.HalfWidth(s) - 2.4);
    put.Against("sign_100", 786, 9);
    put.Against("sign_50", 820, 9);
    for (const double s : {282.0, 448.0, 910.0, 1094.0, 1390.0, 1570.0, 1950.0})
        put.Beside("marshal", s, s == 910.0 ? -29 : s == 1094.0 ? 29 : -19);
}

// Narrow houses wall to wall along both kerbs, a pavement before them, and the gate behind the last.
void PutVillageStreet(Builder& put, Plan& plan)
{
    constexpr double From = 462, To = 558, Pavement = 3;
    const char* const order[] = {"rowhouse_b", "rowhouse_a", "rowhouse_c", "rowhouse_a", "rowhouse_b",
                                 "rowhouse_c", "rowhouse_c", "rowhouse_a", "rowhouse_b"};
    for (const int side : {1, -1})
    {
        int number = side > 0 ? 0 : 4;
        for (double s = From; s < To;)
        {
            const Kind& kind = KindOf(order[number++ % std::size(order)]);
            const RoadPoint p = plan.Road.Along(s);
            const char* const light = Facing(side * p.DirZ, -side * p.DirX) > 0 ? "" : "_s";
            put.Beside(kind.Name + light, s + kind.HalfX, side * (put.HalfWidth(s) + Pavement + kind.HalfZ));
            s += 2 * kind.HalfX + 0.05;
        }
        std::vector<Point> kerb;
        for (double s = From - 2; s <= To + 8; s += 6)
            kerb.push_back(plan.Road.Place(s, side * (put.HalfWidth(s) + Pavement / 2)));
        plan.Paths.push_back({kerb, Pavement + 0.6, true});
    }
    put.Both("bollard", From + 4, To - 4, 9, put.HalfWidth(From) + 1.1);
    put.Against("arch", To + 14, 0);
}

void PutVillage(Builder& put)
{
    struct Place
    {
        const char* Name;
        double X, Z, Angle;
    };
    const Place houses[] = {
        {"tower", 573, 214, 0},       {"church", 568, 229, 0},      {"house_a", 512, 248, 0.08},
        {"house_b", 511, 233, 0.0},   {"house_c", 521, 263, -0.05}, {"house_d", 541, 265, 0.05},
        {"house_b", 533, 206, 0.1},   {"house_a", 554, 208, -0.06}, {"house_c", 522, 190, 0.15},
        {"house_d", 510, 214, 0.05},  {"house_a", 540, 287, 0.03},  {"house_b", 556, 282, 0},
        {"house_c", 558, 300, 0.06},  {"house_d", 536, 304, 0},     {"house_a", 519, 290, -0.12},
        {"house_b", 548, 322, 0.08},  {"house_d", 558, 186, 0.02},  {"house_a", 552, 166, 0.05},
        {"house_d", 554, 244, 0.04},  {"house_c", 552, 262, 0.02},  {"house_b", 625, 184, 0.03},
        {"house_d", 624, 216, -0.04}, {"house_a", 624, 240, 0.05},  {"villa", 152, 488, 0.1},
        {"house_a", 196, 512, -0.1},  {"house_c", 206, 474, 0.05},  {"house_d", 186, 492, 0},
        {"house_b", 342, 330, 0.06},  {"house_c", 360, 322, 0.06},  {"house_a", 430, 560, 0.1},
        {"house_d", 446, 570, 0.05},  {"house_c", 420, 540, 0.1},   {"house_a", 312, 590, 0.05},
        {"villa", 470, 40, -0.1},     {"house_b", 82, 372, 0.05},   {"house_d", 90, 384, 0.0},
        {"house_a", 86, 356, 0.1},
    };
    for (const Place& house : houses)
        put.Put(house.Name, house.X, house.Z, house.Angle);
    const Point parasols[] = {{527, 228}, {531, 236}, {524, 238}, {532, 224}, {528, 244}};
    for (const Point& p : parasols)
        put.Put("parasol", p.X, p.Y);
}

void PutShore(Builder& put)
{
    put.Put("pier", 18, 352, AngleFacing(1, 0.05));
    put.Put("pier", 186, 138, AngleFacing(-0.05, 1));
    put.Put("rowboat", 22, 346, 0.4);
    put.Put("rowboat", 191, 132, 0.2);
    put.Put("rowboat", 181, 128, 2.7);
    put.Put("rowboat", 44, 240, 1.2);
    put.Put("sailboat", 14, 470, 0.5);
    put.Put("sailboat", 22, 236, 2.2);
    put.Put("sailboat", 96, 118, 1.1);
    put.Put("sailboat", 216, 76, 0.3);
    put.Put("sailboat", 52, 610, 2.6);
    put.Put("sailboat", 150, 40, 1.9);
    const Point parasols[] = {{120, 186}, {127, 181}, {133, 179}, {140, 174}, {112, 190}, {104, 196}, {147, 172}};
    for (const Point& p : parasols)
        put.Put("parasol", p.X, p.Y);
    put.Row("stonewall", {1604, 1776, -10.3});
    put.Row("gallery", {1784, 1910, -11.4}); // columns between road and water
}

void PutAlleys(Builder& put)
{
    // The avenue: crowns that all but meet over the road. On the inside of the bend that follows it ends a tree
    // earlier.
    put.Both("plane", 972.4, 1032, 8.4, 9.0);
    put.Beside("plane", 1039.6, 9.0);
    put.Row("hedge", {1384, 1468, 9.6});
    put.Row("hedge", {1384, 1468, -9.6});
    put.Row("stonewall", {596, 836, -10.3});
    put.Row("stonewall", {1222, 1236, -10.3});
}

// A shelter behind each box; cones show where the box ends.
void PutLayBys(Builder& put, const Plan& plan)
{
    for (const LayBy& bay : plan.LayBys)
    {
        const double edge = put.HalfWidth(bay.S) + LayByDepth;
        put.Beside("shedbox", bay.S, bay.Side * (edge + 1.8));
        for (const double end : {-1.0, 1.0})
        {
            put.Beside("cone", bay.S + end * (LayByHalf + 1), bay.Side * (edge - 0.6));
            put.Beside("flag", bay.S + end * 5.5, bay.Side * (edge + 0.8));
        }
    }
}

// Objects are drawn in the order of the map, and what is hidden already costs least: the backdrop comes last.
int DrawingTurn(const std::string& name)
{
    const Shadow cast = KindOf(name).Cast;
    if (name == "backdrop")
        return 3;
    if (name.ends_with(Far))
        return 2;
    return cast == Shadow::Crown || cast == Shadow::Cone ? 1 : 0;
}
}

Plan MakePlan()
{
    Plan plan;
    plan.Road = MakeCircuit();
    plan.Lake = {{140, 900}, {128, 660}, {120, 640}, {110, 612}, {97, 588},   {76, 562},    {57, 532},
                 {44, 500},  {35, 466},  {29, 426},  {27, 385},  {31, 345},   {38, 305},    {45, 272},
                 {57, 238},  {76, 210},  {102, 188}, {136, 170}, {180, 158},  {232, 148},   {280, 128},
                 {318, 100}, {346, 64},  {360, 24},  {364, -30}, {300, -700}, {-900, -700}, {-900, 900}};
    plan.Plaza = {{516, 218}, {537, 220}, {547, 226}, {548, 252}, {538, 256}, {518, 254}, {515, 236}};
    plan.Fields = {
        {Field::Vines, {{118, 262}, {262, 262}, {262, 342}, {118, 336}}, 1.45},
        {Field::Stubble, {{284, 262}, {398, 250}, {404, 338}, {300, 342}}, 0.12},
        {Field::Olives, {{112, 352}, {250, 352}, {240, 440}, {112, 430}}, 0.3},
        {Field::Stubble, {{330, 400}, {440, 404}, {446, 500}, {320, 510}}, 0.9},
        {Field::Vines, {{312, 520}, {410, 512}, {404, 606}, {320, 606}}, 0.2},
        {Field::Vines, {{470, 446}, {532, 446}, {534, 590}, {476, 590}}, 1.5},
        {Field::Meadow, {{430, 258}, {496, 250}, {500, 340}, {436, 342}}, 1.0},
        {Field::Olives, {{384, 20}, {450, 14}, {486, 76}, {440, 150}, {396, 120}}, 0.8},
        {Field::Stubble, {{150, 586}, {240, 586}, {236, 634}, {156, 634}}, 0.1},
    };
    plan.Paths = {
        {{{528, 218}, {524, 200}, {530, 176}, {538, 150}, {536, 128}}, 4.5, true},
        {{{530, 256}, {530, 282}, {547, 308}, {560, 330}, {566, 352}}, 4.5, true},
        {{{516, 236}, {500, 240}, {470, 246}, {420, 246}, {340, 254}, {300, 256}}, 3.6, false},
        {{{270, 256}, {272, 300}, {276, 348}}, 3.4, false},
        {{{104, 262}, {106, 340}, {104, 440}, {130, 480}, {176, 498}, {214, 500}, {240, 480}}, 3.4, false},
        {{{344, 344}, {352, 322}, {372, 310}, {410, 310}}, 3.2, false},
        {{{430, 550}, {456, 520}, {452, 440}, {470, 430}}, 3.2, false},
        {{{440, 160}, {430, 90}, {458, 50}, {500, 30}, {560, 26}, {618, 29}}, 3.4, false},
        {{{310, 150}, {250, 178}, {190, 178}, {150, 186}, {120, 204}}, 3.4, false},
    };
    plan.Gravels = {{172, 262, 11.5, 28}, {856, 954, -22, -10.2}, {1058, 1126, 10, 23},
                    {356, 434, -17, -10}, {1324, 1376, 10, 21},   {1982, 2036, -17, -9.6}};
    plan.LayBys = {{692, 1}, {1262, -1}, {1652, 1}};
    Builder put(plan);
    PutStraight(put, plan);
    PutCorners(put);
    PutVillageStreet(put, plan);
    PutVillage(put);
    PutShore(put);
    PutAlleys(put);
    PutLayBys(put, plan);
    PutBorder(plan);
    ScatterTrees(plan);
    PutWallEnds(plan);
    plan.Items.push_back({"backdrop", WorldSize / 2, WorldSize / 2});
    ThinFarTrees(plan);
    PutGuards(plan);
    std::stable_sort(plan.Items.begin(), plan.Items.end(),
                     [](const Standing& a, const Standing& b)
                     { return std::pair(DrawingTurn(a.Name), a.Name) < std::pair(DrawingTurn(b.Name), b.Name); });
    return plan;
}
}
