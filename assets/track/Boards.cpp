// SPDX-License-Identifier: Zlib
// Adverts, direction boards and braking signs beside the road. Fronts look along local -z.
#include "assets/track/Models.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Lettering.h"

namespace assets::track
{
namespace
{
struct Advert
{
    const char* Text;
    Rgb Ground, Ink, Band;
};
const Advert Adverts[] = {
    {"MOTORI BRENNA", Hex(0xC63A2B), Hex(0xFBF6E8), Hex(0xF2C744)},
    {"CAFFE SERENA", Hex(0x4A2C1C), Hex(0xF6E2B8), Hex(0xC98A3C)},
    {"GOMME TORRE", Hex(0xF2C744), Hex(0x22242A), Hex(0x22242A)},
    {"ACQUA LARIA", Hex(0x2C7FB8), Hex(0xF6FBFF), Hex(0x8FD0EA)},
    {"OLIO RONDINE", Hex(0x2E7D4F), Hex(0xFBF6E8), Hex(0xF2C744)},
    {"CICLI VALMARA", Hex(0xF4F0E4), Hex(0x1F3D66), Hex(0xC63A2B)},
};

// A picture on a panel that stands on feet, its back in shade.
struct Panel
{
    double HalfWide, Low, High, HalfThick;
    int Across, Feet;
};

Model PanelModel(const std::string& texture, const Region& region, const Panel& p)
{
    const Rgb back = Hex(0x9C9078), rim = Hex(0xC2BCAE), foot = Hex(0x6E665C);
    const double x = p.HalfWide, z = p.HalfThick;
    Model model;
    model.Meshes.push_back(Upright(texture, region, -x, -z, x, -z, p.Low, p.High, p.Across, 1));
    // Cut as the front is: the game finds depths along a face by a rule that errs in long cells, and a back in one
    // piece would let the picture through.
    for (int cell = 0; cell < p.Across; ++cell)
    {
        const double a = x * (2.0 * cell / p.Across - 1), b = x * (2.0 * (cell + 1) / p.Across - 1);
        model.Meshes.push_back(FlatFace(back, {a, p.Low, z}, {b, p.Low, z}, {b, p.High, z}, {a, p.High, z}));
    }
    model.Meshes.push_back(FlatFace(rim, {-x, p.High, -z}, {x, p.High, -z}, {x, p.High, z}, {-x, p.High, z}));
    for (const double end : {-x, x})
        model.Meshes.push_back(
            FlatFace(rim * 0.8, {end, p.Low, -z}, {end, p.Low, z}, {end, p.High, z}, {end, p.High, -z}));
    for (int i = 0; i < p.Feet; ++i)
    {
        const double at = x * 0.86 * (2.0 * i / (p.Feet - 1) - 1);
        model.Meshes.push_back(FlatFace(foot, {at - 0.09, 0, z * 0.5}, {at + 0.09, 0, z * 0.5},
                                        {at + 0.09, p.Low + 0.05, z * 0.5}, {at - 0.09, p.Low + 0.05, z * 0.5}));
        // A strut that leans against the back.
        model.Meshes.push_back(
            FlatFace(foot, {at, 0, z + 0.75}, {at, 0, z + 0.95}, {at, p.High * 0.8, z}, {at, p.High * 0.7, z}));
    }
    return model;
}

// Sun-bleached print with a dusty foot.
void Weather(Canvas& picture)
{
    for (int y = 0; y < picture.Height; ++y)
        for (int x = 0; x < picture.Width; ++x)
            picture.Set(
                x, y, picture.Colour(x, y) * (0.94 + 0.05 * HashUnit(x, y, 1141)) * (1 - 0.12 * SmoothStep(12, 0, y)));
}

void WriteAdverts(const ModelFolder& folder)
{
    int number = 0;
    for (const Advert& advert : Adverts)
    {
        const std::string name = "board_" + std::to_string(++number);
        Canvas picture(240, 56, advert.Ground);
        FillRect(picture, 0, 0, 240, 5, advert.Band);
        FillRect(picture, 0, 51, 240, 5, advert.Band);
        PaintText(picture, advert.Text, {120, 28}, 27, 4.6, advert.Ink, 1, 226 / (LettersWidth(advert.Text) * 27));
        Weather(picture);
        folder.Texture(name, picture);
        Model model = PanelModel(name, {0, 0, 240, 56}, {4, 0.1, 1.7, 0.1, 5, 2});
        model.Mass = HeavyMass;
        folder.Write(name, model);
    }
}

// A board of foam on two canes: nothing that a car would feel.
void WriteSigns(const ModelFolder& folder)
{
    for (const char* text : {"100", "50"})
    {
        const std::string name = std::string("sign_") + text;
        Canvas picture(64, 80);
        FillRect(picture, 14, 0, 2, 40, Hex(0xD8D2C2));
        FillRect(picture, 48, 0, 2, 40, Hex(0xD8D2C2));
        FillRect(picture, 0, 34, 64, 46, Hex(0xF6F2E6));
        FillRect(picture, 3, 37, 58, 40, Hex(0xC63A2B));
        FillRect(picture, 6, 40, 52, 34, Hex(0xF6F2E6));
        PaintText(picture, text, {32, 57}, 24, 5, Hex(0x22242A), 1, 0.95);
        folder.Texture(name, picture, Black::Key);
        Model model;
        model.Mass = LightMass;
        model.Meshes.push_back(Upright(name, {0, 0, 64, 80}, -0.9, 0, 0.9, 0, 0, 2.3, 3, 3));
        model.Meshes.push_back(
            FlatFace(Hex(0xA8A49A), {-0.88, 1.0, 0.05}, {0.88, 1.0, 0.05}, {0.88, 2.28, 0.05}, {-0.88, 2.28, 0.05}));
        folder.Write(name, model);
    }
}

void WriteArrows(const ModelFolder& folder)
{
    Canvas picture(192, 56, Hex(0xF6F2E6));
    for (int i = 0; i < 4; ++i)
    {
        const double x = 8 + i * 46;
        const Point arrow[] = {{x + 34, 4}, {x + 16, 28}, {x + 34, 52}, {x + 18, 52}, {x, 28}, {x + 18, 4}};
        FillPolygon(picture, arrow, Hex(0xC63A2B));
    }
    Weather(picture);
    folder.Texture("arrows", picture);
    folder.Texture("arrows_r", FlippedX(picture));
    for (const char* name : {"arrows", "arrows_r"})
    {
        Model model = PanelModel(name, {0, 0, 192, 56}, {3, 0.3, 2.0, 0.1, 4, 2});
        model.Mass = HeavyMass;
        folder.Write(name, model);
    }
}
}

void WriteBoards(const ModelFolder& folder)
{
    WriteAdverts(folder);
    WriteSigns(folder);
    WriteArrows(folder);
}
}
