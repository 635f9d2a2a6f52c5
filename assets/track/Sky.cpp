#include "assets/track/Sky.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Noise.h"
#include "assets/track/Light.h"
#include "base/Numbers.h"

#include <algorithm>

namespace assets::track
{
namespace
{
constexpr int SkyWidth = 820, SkyHeight = 512;
constexpr double Horizon = 0.588 * SkyHeight;
constexpr double CentreColumn = 300; // what the middle of the usual 600 pixel screen shows at yaw 0
constexpr double ColumnsPerRadian = 131;
constexpr double SunRow = 0.83 * SkyHeight;

double ColumnOfYaw(double yaw)
{
    return CentreColumn - ColumnsPerRadian * yaw;
}

// Signed way round from column b to column a, -410 .. 410.
double Around(double a, double b)
{
    const double d = std::fmod(a - b, SkyWidth);
    return d > SkyWidth / 2.0 ? d - SkyWidth : d < -SkyWidth / 2.0 ? d + SkyWidth : d;
}

// Noise over the panorama that closes after one turn; `cells` lattice cells go round it.
double Turning(double column, double y, int cells, std::uint32_t seed, int octaves, double gain = 0.5)
{
    return Fbm(column * cells / SkyWidth, y, seed, octaves, cells, 0, gain);
}

// How near a column is to the sun: 1 there, 0 far round.
double SunSide(double column, double width)
{
    const double d = Around(column, ColumnOfYaw(SunYaw)) / width;
    return std::exp(-d * d);
}

// 1 where one looks over the lake (west and south), 0 over land, soft between.
double LakeSide(double column)
{
    const double d = std::abs(Around(column, ColumnOfYaw(2.0)));
    return SmoothStep(200, 150, d + 18 * Turning(column, 3.3, 16, 71, 2));
}

Rgb HazeColour(double column)
{
    return Mix(Hex(0xC9D6DC), Hex(0xFFE6BC), 0.25 + 0.75 * SunSide(column, 150));
}

Rgb ClearSky(double column, double row)
{
    const double height = Clamp01((row - Horizon) / (SkyHeight - Horizon));
    const Rgb zenith = Mix(Hex(0x3F7FC4), Hex(0x5B93C8), SunSide(column, 200));
    const Rgb middle = Mix(Hex(0x8FBCE0), Hex(0xBFD2DA), SunSide(column, 160));
    Rgb sky = height < 0.45 ? Mix(HazeColour(column), middle, SmoothStep(0, 0.45, height))
                            : Mix(middle, zenith, SmoothStep(0.3, 1.1, height));
    const double dx = Around(column, ColumnOfYaw(SunYaw)), dy = (row - SunRow) * 0.8;
    const double d = std::sqrt(dx * dx + dy * dy);
    sky = Mix(sky, Hex(0xFFE9B8), 0.62 * std::exp(-d / 62));
    sky = Mix(sky, Hex(0xFFF4D2), 0.85 * std::exp(-d * d / 700));
    return Mix(sky, Hex(0xFFFDF0), SmoothStep(17, 5, d));
}

double CloudDensity(double column, double row)
{
    const double height = std::max(2.0, row - Horizon);
    const double v = height / 46;
    const double warp = Turning(column, v * 0.8, 10, 40, 3);
    const double heaps = Turning(column + 26 * warp, v * 1.5 + 0.4 * warp, 14, 41, 6, 0.52);
    const double banks = Turning(column, v * 0.35 + 7, 5, 42, 2);
    const double low = SmoothStep(18, 60, height) * SmoothStep(190, 90, height);
    return low * SmoothStep(0.02, 0.42, heaps + 0.55 * banks - 0.02);
}

double Cirrus(double column, double row)
{
    const double height = std::max(0.0, row - Horizon);
    const double bend = 30 * Turning(column, height / 90, 6, 50, 3);
    const double fibres = Turning(column + bend, height / 9 + bend / 20, 9, 51, 5, 0.6);
    const double patches = Turning(column, height / 70 + 3, 6, 52, 2);
    return SmoothStep(50, 120, height) * SmoothStep(0.05, 0.55, fibres + 0.9 * patches) * 0.5;
}

Rgb WithClouds(Rgb sky, double column, double row)
{
    sky = Mix(sky, Mix(Hex(0xF4F2F0), Hex(0xFFF0D0), SunSide(column, 140)), Cirrus(column, row));
    const double density = CloudDensity(column, row);
    if (density <= 0)
        return sky;
    // Lit where the cloud thins out toward the sun and upward.
    const double toward = Around(ColumnOfYaw(SunYaw), column) > 0 ? 1 : -1;
    const double lit = density - CloudDensity(column + 5 * toward, row + 9);
    const double top = Clamp01(0.55 + 1.3 * lit);
    const Rgb shade = Mix(Hex(0x9FB0C6), Hex(0xD8C4AC), SunSide(column, 150));
    const Rgb light = Mix(Hex(0xFFF3E0), Hex(0xFFF0CC), SunSide(column, 150));
    return Mix(sky, Mix(shade, light, top), 0.9 * density);
}

struct Ridge
{
    double Base, Swing; // rows above the horizon
    int Cells;
    std::uint32_t Seed;
    Rgb Colour;
    double Haze; // 0 clear, 1 gone
    double Lake; // share of the height left over the lake
};

double RidgeTop(const Ridge& ridge, double column)
{
    const double broad = Turning(column, 0.5, ridge.Cells, ridge.Seed, 2);
    // Sharp crests: the ridged form of the noise.
    double crest = 0, strength = 0.5;
    for (int octave = 0, cells = ridge.Cells * 2; octave < 5; ++octave, cells *= 2, strength *= 0.5)
        crest += strength * (1 - 2 * std::abs(Turning(column, 1.5 + octave, cells, ridge.Seed + 9, 1)));
    const double scale = Lerp(1, ridge.Lake, LakeSide(column));
    return Horizon + scale * std::max(0.0, ridge.Base + ridge.Swing * (0.6 * broad + 0.4 * crest));
}

const Ridge Ridges[] = {
    {44, 66, 4, 11, Hex(0x7D93B4), 0.50, 0.9},
    {30, 52, 6, 22, Hex(0x6A86A0), 0.36, 1.0},
    {15, 36, 8, 33, Hex(0x5C7C74), 0.25, 0.75},
    {7, 20, 13, 44, Hex(0x56733F), 0.14, 0.3},
};

Rgb RidgeColour(const Ridge& ridge, double column, double row, double top)
{
    // Slopes toward the sun are warm, the others blue; gullies run down from the crest.
    const double slope = RidgeTop(ridge, column + 3) - RidgeTop(ridge, column - 3);
    const double toward = Around(ColumnOfYaw(SunYaw), column) > 0 ? 1 : -1;
    const double gully = Turning(column + (top - row) * 0.35, row / 26, 70, ridge.Seed + 5, 4);
    const double lit = Clamp01(0.5 - 0.07 * slope * toward + 0.9 * gully);
    Rgb colour = ridge.Colour * Lerp(0.78, 1.0, lit) + Rgb{0.13, 0.085, 0.02} * (lit * (1 - SunSide(column, 110)));
    if (ridge.Seed == 11)
        colour = Mix(colour, Hex(0xF3ECE8), 0.75 * SmoothStep(64, 84, row - Horizon + 14 * gully) * (0.4 + 0.6 * lit));
    const double mist = SmoothStep(26, 0, row - Horizon) * 0.45;
    return Mix(colour, HazeColour(column), Clamp01(ridge.Haze + mist + 0.35 * SunSide(column, 120)));
}

// Country or water below the horizon: what shows beyond the edge of the ground.
Rgb Below(double column, double row)
{
    const double down = Horizon - row;
    const double near = Clamp01(down / Horizon);
    const double patches = Turning(column, std::sqrt(down + 1) * 0.9, 28, 61, 4);
    const Rgb fields = Mix(Mix(Hex(0x8C9A5A), Hex(0xB9AA66), SmoothStep(-0.6, 0.7, patches)), Hex(0x6E8A4A),
                           0.4 * SmoothStep(0.0, 0.5, Turning(column, std::sqrt(down + 1) * 1.6, 60, 62, 3)));
    const double ripple = Turning(column, down * (0.9 - 0.5 * near), 60, 63, 3);
    Rgb water = Mix(Hex(0x9FBCC8), Hex(0x4F8296), SmoothStep(0, 0.9, near)) + Rgb{0.03, 0.035, 0.035} * ripple;
    const double glitter = SunSide(column, 26 + 40 * near) * SmoothStep(-0.1, 0.5, ripple + 0.25 * (1 - near));
    water = Mix(water, Hex(0xFFF0CC), 0.8 * glitter * (1 - 0.6 * near));
    const Rgb country = Mix(fields, water, LakeSide(column));
    const double haze = 0.25 + 0.6 * std::exp(-down / 20) * (1 - 0.35 * LakeSide(column));
    return Mix(country, HazeColour(column), haze);
}

Rgb Panorama(double column, double row)
{
    if (row < Horizon)
        return Below(column, row);
    Rgb colour = WithClouds(ClearSky(column, row), column, row);
    for (const Ridge& ridge : Ridges)
    {
        const double top = RidgeTop(ridge, column);
        if (row < top + 1)
            colour = Mix(colour, RidgeColour(ridge, column, row, top), Clamp01(top + 0.5 - row));
    }
    return colour;
}

// Villages on the far shore: a few pale walls and red roofs along the waterline.
void FarVillages(Canvas& sky)
{
    Sequence dice(77);
    for (int village = 0; village < 9; ++village)
    {
        const double middle = ColumnOfYaw(dice.Between(0.7, 3.2));
        const int houses = 6 + base::RoundEven(dice.Next() * 9);
        for (int i = 0; i < houses; ++i)
        {
            const int x = Wrap(base::RoundEven(middle + (dice.Next() + dice.Next() - 1) * 26), SkyWidth);
            const int y = base::RoundEven(Horizon + 1 + dice.Next() * 6);
            const int tall = i == 0 ? 7 : 2 + base::RoundEven(dice.Next());
            const Rgb haze = HazeColour(x);
            const Rgb wall = Mix(Mix(Hex(0xF2E2C4), Hex(0xE0B890), dice.Next()), haze, 0.35);
            const Rgb roof = Mix(Hex(0xB8694A), haze, 0.35);
            for (int h = 0; h < tall; ++h)
            {
                sky.Blend(x, y + h, h == tall - 1 ? roof : wall, 0.85);
                if (i > 0)
                    sky.Blend(Wrap(x + 1, SkyWidth), y + h, h == tall - 1 ? roof : wall * 0.85, 0.85);
            }
        }
    }
}
}

void WriteSky(const std::string& path)
{
    Canvas sky(SkyWidth, SkyHeight, {});
    for (int y = 0; y < SkyHeight; ++y)
        for (int x = 0; x < SkyWidth; ++x)
            sky.Set(x, y, Panorama(x + 0.5, y + 0.5));
    FarVillages(sky);
    WriteBmp(path, sky, Black::Avoid, true);
}
}
