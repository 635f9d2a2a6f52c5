#include "assets/track/Plan.h"

#include "assets/track/Scatter.h"
#include "assets/track/WallEnds.h"
#include "base/Numbers.h"

#include <algorithm>
#include <stdexcept>

namespace assets::track
{
const std::vector<Kind>& Kinds()
{
    static const std::vector<Kind> kinds{
        {"house_a", 5.0, 4.0, 6.5, Shadow::Block, false},   {"house_b", 4.0, 4.5, 8.5, Shadow::Block, false},
        {"house_c", 6.5, 4.0, 6.0, Shadow::Block, false},   {"house_d", 3.6, 3.6, 9.5, Shadow::Block, false},
        {"villa", 8.0, 5.0, 8.0, Shadow::Block, false},     {"church", 5.0, 9.0, 9.0, Shadow::Block, false},
        {"tower", 2.3, 2.3, 27.0, Shadow::Block, false},    {"stand", 13.0, 5.5, 9.5, Shadow::Block, false},
        {"pits", 38.0, 4.5, 6.5, Shadow::Block, false},     {"gantry", 1.0, 11.6, 12.0, Shadow::None, false},
        {"cypress", 1.2, 1.2, 11.0, Shadow::Cone, false},   {"cypress_r", 1.2, 1.2, 11.0, Shadow::Cone, true},
        {"pine", 4.2, 4.2, 11.5, Shadow::Crown, false},     {"pine_r", 4.2, 4.2, 11.5, Shadow::Crown, true},
        {"oak", 3.4, 3.4, 7.5, Shadow::Crown, false},       {"olive", 2.2, 2.2, 4.4, Shadow::Crown, false},
        {"bush", 1.5, 1.5, 1.8, Shadow::Crown, false},      {"stonewall", 6.0, 0.35, 1.3, Shadow::Block, false},
        {"pitwall", 6.0, 0.25, 1.0, Shadow::Block, false},  {"fence", 6.0, 0.1, 2.6, Shadow::None, false},
        {"tyres", 0.75, 0.75, 1.1, Shadow::Block, true},    {"cone", 0.3, 0.3, 0.75, Shadow::Block, true},
        {"bollard", 0.2, 0.2, 1.0, Shadow::Block, true},    {"bale", 1.0, 0.8, 1.9, Shadow::Block, false},
        {"board_1", 4.0, 0.1, 1.6, Shadow::Block, false},   {"board_2", 4.0, 0.1, 1.6, Shadow::Block, false},
        {"board_3", 4.0, 0.1, 1.6, Shadow::Block, false},   {"board_4", 4.0, 0.1, 1.6, Shadow::Block, false},
        {"board_5", 4.0, 0.1, 1.6, Shadow::Block, false},   {"board_6", 4.0, 0.1, 1.6, Shadow::Block, false},
        {"sign_100", 0.9, 0.1, 2.2, Shadow::None, true},    {"sign_50", 0.9, 0.1, 2.2, Shadow::None, true},
        {"arrows", 3.0, 0.1, 1.8, Shadow::Block, false},    {"arrows_r", 3.0, 0.1, 1.8, Shadow::Block, false},
        {"pier", 1.5, 12.0, 1.2, Shadow::None, false},      {"sailboat", 1.3, 3.2, 9.0, Shadow::None, false},
        {"rowboat", 0.8, 2.0, 0.8, Shadow::None, false},    {"parasol", 1.5, 1.5, 2.4, Shadow::Roof, false},
        {"flag", 0.2, 0.2, 8.0, Shadow::None, false},       {"marshal", 1.2, 1.2, 3.0, Shadow::Block, false},
        {"wallend", 0.55, 0.55, 1.6, Shadow::Block, false}, {"backdrop", 0, 0, 0, Shadow::None, false},
    };
    return kinds;
}

const Kind& KindOf(const std::string& name)
{
    for (const Kind& kind : Kinds())
        if (kind.Name == name)
            return kind;
    throw std::runtime_error("no model kind named " + name);
}

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
    // Pieces of the same length end to end.
    void Row(const std::string& name, const Barrier& run, double guardRadius)
    {
        const double step = 2 * KindOf(name).HalfX;
        for (double s = run.S0 + step / 2; s < run.S1; s += step)
            Beside(name, s, run.Left);
        if (guardRadius > 0)
            GuardRow(run, guardRadius);
    }
    void GuardRow(const Barrier& run, double radius)
    {
        const double behind = run.Left + (run.Left > 0 ? 1 : -1) * (radius - 0.4);
        Point last{-1e9, -1e9};
        for (double s = run.S0 + radius; s < run.S1; s += 0.25)
        {
            const Point p = Layout.Road.Place(s, behind);
            if (std::hypot(p.X - last.X, p.Y - last.Y) < 2 * radius + 0.3)
                continue;
            Layout.Guards.push_back({p.X, p.Y, radius});
            last = p;
        }
    }
    void GuardAt(double x, double z, double radius) { Layout.Guards.push_back({x, z, radius}); }

private:
    Plan& Layout;
};

void PutStraight(Builder& put, Plan& plan)
{
    for (int i = 0; i < 3; ++i)
    {
        const double s = -76 + 28.0 * i;
        put.Beside("stand", s, -22);
        for (const double along : {-8.7, 0.0, 8.7})
        {
            const Point p = plan.Road.Place(s + along, -22);
            put.GuardAt(p.X, p.Y, 4.2);
        }
    }
    put.Row("fence", {-88, 8, -12.6}, 0);
    put.GuardRow({-88, 8, -12.6}, 2.4);
    put.Beside("pits", BoxFirst + BoxLength * 3.5, 30.5);
    for (int i = 0; i < 8; ++i)
    {
        const Point p = plan.Road.Place(BoxFirst + BoxLength * i, 30.5);
        put.GuardAt(p.X, p.Y, 4.2);
    }
    put.Row("pitwall", {PitWallFrom, PitWallTo, PitWallLeft}, 0);
    for (double s = PitWallFrom + 1; s < PitWallTo; s += 4.4)
    {
        const Point p = plan.Road.Place(s, PitWallLeft);
        put.GuardAt(p.X, p.Y, 0.9);
    }
    const RoadPoint start = plan.Road.At(0);
    put.Put("gantry", start.X, start.Z, AngleFacing(-start.DirX, -start.DirZ) + Pi / 2);
    // The left leg stands over the pit wall, whose guards are enough.
    put.GuardAt(plan.Road.Place(0, -10.9).X, plan.Road.Place(0, -10.9).Y, 0.7);
    for (int i = 0; i < 7; ++i)
        put.Beside("flag", -92 + 15.5 * i, -28.5);
    for (const double s : {78.0, 90.0, 120.0, 132.0})
        put.Beside("board_" + std::to_string(1 + base::RoundEven(s) % 6), s, -14);
    put.Against("sign_100", 136, -11.5);
    put.Against("sign_50", 156, -11.5);
}

void PutCorners(Builder& put)
{
    const auto boards = [&](double s0, double s1, double left, int first)
    {
        for (double s = s0; s <= s1; s += 9)
            put.Beside("board_" + std::to_string(1 + first++ % 6), s, left);
    };
    boards(192, 232, 29, 2);
    boards(865, 945, -27, 0);
    boards(1088, 1124, 27, 4);
    boards(520, 538, -15, 1);
    boards(680, 702, -15, 3);
    boards(1290, 1310, -15, 5);
    boards(1630, 1660, 14, 2);
    boards(2020, 2038, 16, 0);
    const auto tyres = [&](double s0, double s1, double step, double left)
    {
        for (double s = s0; s <= s1; s += step)
            put.Beside("tyres", s, left);
    };
    tyres(186, 240, 4.5, 26.5);
    tyres(858, 952, 6, -23.5);
    tyres(1086, 1126, 5, 24.5);
    tyres(356, 412, 7, -17.5);
    put.Beside("arrows", 866, -15.5);
    put.Beside("arrows_r", 1082, 15.5);
    put.Beside("arrows_r", 1352, 15.5);
    put.Beside("arrows", 324, -15.5);
    for (const double s : {1136.0, 1148.0, 1204.0, 1216.0})
    {
        put.Beside("bollard", s, 10.6);
        put.Beside("bollard", s, -10.6);
    }
    for (const double s : {306.0, 312.0, 318.0})
        put.Beside("cone", s, 11.5);
    for (const double s : {1346.0, 1352.0, 1358.0})
        put.Beside("cone", s, -11.2);
    for (const double s : {1546.0, 1552.0, 1558.0})
        put.Beside("cone", s, 11.2);
    put.Against("sign_100", 806, -11);
    put.Against("sign_50", 828, -11);
    for (const double s : {250.0, 430.0, 910.0, 1100.0, 1390.0, 1600.0, 1950.0})
        put.Beside("marshal", s, s == 910.0 ? -30 : s == 1100.0 ? 31 : -19);
}

void PutVillage(Builder& put, const Plan& plan)
{
    struct Place
    {
        const char* Name;
        double X, Z, Angle;
    };
    const Place houses[] = {
        {"tower", 543, 232, 0},      {"church", 553, 243, 0},      {"house_a", 512, 248, 0.08},
        {"house_b", 511, 233, 0.0},  {"house_c", 521, 263, -0.05}, {"house_d", 541, 265, 0.05},
        {"house_b", 533, 206, 0.1},  {"house_a", 551, 212, -0.06}, {"house_c", 522, 190, 0.15},
        {"house_d", 510, 214, 0.05}, {"house_a", 540, 287, 0.03},  {"house_b", 556, 282, 0},
        {"house_c", 558, 300, 0.06}, {"house_d", 536, 304, 0},     {"house_a", 519, 290, -0.12},
        {"house_b", 548, 322, 0.08}, {"house_d", 554, 186, 0.02},  {"house_a", 545, 166, 0.05},
        {"villa", 152, 488, 0.1},    {"house_a", 196, 512, -0.1},  {"house_c", 206, 474, 0.05},
        {"house_d", 186, 492, 0},    {"house_b", 342, 330, 0.06},  {"house_c", 360, 322, 0.06},
        {"house_a", 430, 560, 0.1},  {"house_d", 446, 570, 0.05},  {"house_c", 420, 540, 0.1},
        {"house_a", 312, 590, 0.05}, {"villa", 470, 40, -0.1},     {"house_b", 82, 372, 0.05},
        {"house_d", 90, 384, 0.0},   {"house_a", 86, 356, 0.1},
    };
    for (const Place& house : houses)
    {
        put.Put(house.Name, house.X, house.Z, house.Angle);
        const Kind& kind = KindOf(house.Name);
        const RoadPoint& road = plan.Road.At(plan.Road.Nearest(house.X, house.Z));
        if (std::hypot(road.X - house.X, road.Z - house.Z) < 75) // no car gets farther
            put.GuardAt(house.X, house.Z, std::min(kind.HalfX, kind.HalfZ) + 0.8);
    }
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
    put.Row("stonewall", {1600, 1720, -12.6}, 2.8);
    put.Row("stonewall", {1786, 1910, -12.4}, 2.8);
}

void PutWalls(Builder& put)
{
    put.Row("stonewall", {446, 840, -16.5}, 3.2);
    put.Row("stonewall", {970, 1045, 15}, 0);
    put.Row("stonewall", {1365, 1450, 15.5}, 0);
    put.Row("stonewall", {1220, 1290, -17}, 0);
}

// Things that touch at the start would push each other over: a guard gives way to what stands there before it.
void DropTouchingGuards(Plan& plan)
{
    constexpr double SolidRadius = 0.85, Gap = 0.05;
    std::vector<Guard> kept;
    for (const Guard& guard : plan.Guards)
    {
        const bool meetsGuard =
            std::any_of(kept.begin(), kept.end(),
                        [&](const Guard& other)
                        { return std::hypot(other.X - guard.X, other.Z - guard.Z) < other.R + guard.R + Gap; });
        const bool meetsItem =
            std::any_of(plan.Items.begin(), plan.Items.end(),
                        [&](const Standing& item) {
                            return KindOf(item.Name).Solid &&
                                   std::hypot(item.X - guard.X, item.Z - guard.Z) < SolidRadius + guard.R + Gap;
                        });
        if (!meetsGuard && !meetsItem)
            kept.push_back(guard);
    }
    plan.Guards = kept;
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
        {{{440, 160}, {430, 90}, {458, 50}, {500, 30}, {560, 26}, {634, 30}}, 3.4, false},
        {{{310, 150}, {250, 178}, {190, 178}, {150, 186}, {120, 204}}, 3.4, false},
    };
    plan.Gravels = {{176, 256, 10.5, 26},   {856, 954, -22.5, -10.5}, {1072, 1132, 10.5, 24},
                    {352, 418, -17, -10.5}, {1336, 1380, 10.5, 22},   {1990, 2040, -18, -10.5}};
    Builder put(plan);
    PutStraight(put, plan);
    PutCorners(put);
    PutVillage(put, plan);
    PutShore(put);
    PutWalls(put);
    ScatterTrees(plan);
    PutWallEnds(plan);
    plan.Items.push_back({"backdrop", WorldSize / 2, WorldSize / 2});
    DropTouchingGuards(plan);
    std::stable_sort(plan.Items.begin(), plan.Items.end(),
                     [](const Standing& a, const Standing& b) { return a.Name < b.Name; });
    return plan;
}
}
