// Trees as crossed pictures with see-through gaps. Texture column 0 is the sunny side: the west end of the picture that
// runs west to east, the north end of the other. Crowns that are seen from above carry a lying picture as well.
#include "assets/track/Models.h"

#include "assets/common/Noise.h"
#include "assets/common/Shapes.h"
#include "assets/track/Light.h"

namespace assets::track
{
namespace
{
struct Leafage
{
    Rgb Lit, Middle, Dark;
    std::uint32_t Seed;
};

// A tuft of leaves: dark below and behind, lit toward the left and the top.
void Tuft(Canvas& picture, Point centre, double radius, const Leafage& leaves, double brightness)
{
    CoverDisc(picture.Width, picture.Height, centre, radius * 1.15, 1,
              [&](int x, int y, double cover)
              {
                  const double dx = (x + 0.5 - centre.X) / radius, dy = (y + 0.5 - centre.Y) / radius;
                  const double ragged =
                      Fbm(x / 2.6, y / 2.6, leaves.Seed, 3) * 0.5 + HashUnit(x, y, leaves.Seed + 1) * 0.28 - 0.1;
                  if (dx * dx + dy * dy + ragged > 1 || cover < 0.5)
                      return;
                  const double light =
                      Clamp01(0.5 - 0.42 * dx + 0.42 * dy + 0.4 * Fbm(x / 2.0, y / 2.0, leaves.Seed + 2, 2)) *
                      brightness;
                  Rgb colour = light < 0.5 ? Mix(leaves.Dark, leaves.Middle, light * 2)
                                           : Mix(leaves.Middle, leaves.Lit, light * 2 - 1);
                  colour = colour * (0.9 + 0.2 * HashUnit(x, y, leaves.Seed + 3));
                  picture.Set(x, y, colour);
              });
}

void Trunk(Canvas& picture, Point foot, Point top, double thick, double thin)
{
    const double dx = top.X - foot.X, dy = top.Y - foot.Y, length = std::hypot(dx, dy);
    const double nx = -dy / length, ny = dx / length;
    const Point outline[] = {{foot.X + nx * thick / 2, foot.Y + ny * thick / 2},
                             {foot.X - nx * thick / 2, foot.Y - ny * thick / 2},
                             {top.X - nx * thin / 2, top.Y - ny * thin / 2},
                             {top.X + nx * thin / 2, top.Y + ny * thin / 2}};
    CoverPolygon(picture.Width, picture.Height, outline,
                 [&](int x, int y, double cover)
                 {
                     if (cover < 0.5)
                         return;
                     const double t = Clamp01((y - foot.Y) / std::max(1.0, top.Y - foot.Y));
                     const double across = (x + 0.5 - Lerp(foot.X, top.X, t)) / (Lerp(thick, thin, t) / 2);
                     const Rgb bark = Mix(Hex(0xA67C55), Hex(0x4E3A2C), Clamp01(0.5 + 0.5 * across));
                     picture.Set(x, y, bark * (0.85 + 0.3 * HashUnit(x / 2, y / 3, 77)));
                 });
}

Canvas CypressPicture()
{
    Canvas picture(40, 160);
    const Leafage leaves{Hex(0x8C9E45), Hex(0x48672F), Hex(0x1F3520), 21};
    Trunk(picture, {20, 0}, {20, 14}, 5, 4);
    for (int layer = 0; layer < 2; ++layer)
        for (int i = 0; i < 62; ++i)
        {
            const double t = (i + 0.5) / 62, high = 8 + t * 146;
            const double wide =
                15.5 * std::pow(std::sin(Pi * std::pow(0.06 + 0.94 * (1 - t), 0.75) * 0.62 + 0.02), 0.9);
            const double x = 20 + (HashUnit(i, layer, 22) - 0.5) * wide * 1.15;
            Tuft(picture, {x, high}, 3 + wide * 0.34, leaves, layer == 0 ? 0.7 : 1.0);
        }
    return picture;
}

Canvas PinePicture()
{
    Canvas picture(128, 140);
    const Leafage leaves{Hex(0x9DB04C), Hex(0x5A7C35), Hex(0x27401F), 31};
    Trunk(picture, {62, 0}, {66, 92}, 7, 5);
    for (const double side : {-1.0, -0.45, 0.5, 1.0})
        Trunk(picture, {65, 78}, {65 + side * 40, 104}, 3.4, 1.6);
    for (int layer = 0; layer < 3; ++layer)
        for (int i = 0; i < 34; ++i)
        {
            const double u = HashUnit(i, layer, 32) * 2 - 1;
            const double dome = std::sqrt(std::max(0.0, 1 - u * u));
            const double high = 96 + dome * (8 + 24 * HashUnit(i, layer, 33)) - 3 * layer;
            Tuft(picture, {64 + u * 52, high}, 6 + 6 * HashUnit(i, layer, 34), leaves,
                 layer == 0 ? 0.62 : 0.75 + 0.15 * layer);
        }
    return picture;
}

Canvas RoundTreePicture(int width, int height, double crownLow, const Leafage& leaves)
{
    Canvas picture(width, height);
    const double middle = width / 2.0, crown = (height + crownLow) / 2, tall = (height - crownLow) / 2 - 4,
                 wide = middle - 5;
    Trunk(picture, {middle, 0}, {middle + 1, crownLow + 12}, width * 0.085, width * 0.06);
    Trunk(picture, {middle, crownLow * 0.7}, {middle - wide * 0.5, crown}, width * 0.05, 1.5);
    Trunk(picture, {middle, crownLow * 0.7}, {middle + wide * 0.5, crown}, width * 0.05, 1.5);
    for (int layer = 0; layer < 3; ++layer)
        for (int i = 0; i < 26; ++i)
        {
            const double angle = 2 * Pi * HashUnit(i, layer, leaves.Seed + 5),
                         away = std::sqrt(HashUnit(i, layer, leaves.Seed + 6));
            const Point place{middle + std::cos(angle) * away * wide * 0.8,
                              crown + std::sin(angle) * away * tall * 0.8};
            Tuft(picture, place, (0.16 + 0.1 * HashUnit(i, layer, leaves.Seed + 7)) * width, leaves, 0.6 + 0.2 * layer);
        }
    return picture;
}

// The crown from above; column 0 is west, row 0 south.
Canvas CrownPicture(int size, const Leafage& leaves)
{
    Canvas picture(size, size);
    for (int layer = 0; layer < 3; ++layer)
        for (int i = 0; i < 30; ++i)
        {
            const double angle = 2 * Pi * HashUnit(i, layer, leaves.Seed + 15);
            const double away = std::sqrt(HashUnit(i, layer, leaves.Seed + 16)) * (size / 2.0 - size * 0.14);
            Tuft(picture, {size / 2.0 + std::cos(angle) * away, size / 2.0 + std::sin(angle) * away},
                 (0.11 + 0.07 * HashUnit(i, layer, leaves.Seed + 17)) * size, leaves, 0.7 + 0.15 * layer);
        }
    return picture;
}

Model CrossedModel(const std::string& texture, const Canvas& picture, double half, double height, int cells = 2)
{
    Model model;
    model.Mass = HeavyMass;
    const Region whole{0, 0, picture.Width, picture.Height};
    model.Meshes.push_back(Upright(texture, whole, -half, 0, half, 0, 0, height, 1, cells));
    model.Meshes.push_back(Upright(texture, whole, 0, half, 0, -half, 0, height, 1, cells));
    return model;
}

void AddCrown(Model& model, const std::string& texture, const Canvas& crown, double half, double level)
{
    model.Meshes.push_back(Face(texture, {0, 0, crown.Width, crown.Height}, {-half, level, -half}, {half, level, -half},
                                {half, level, half}, {-half, level, half}));
}
}

void WriteTrees(const ModelFolder& folder)
{
    const Leafage oakLeaves{Hex(0xB4B552), Hex(0x66803A), Hex(0x2C4423), 41};
    const Leafage oliveLeaves{Hex(0xC2C79A), Hex(0x7F8F62), Hex(0x46563C), 51};
    const Leafage pineLeaves{Hex(0x9DB04C), Hex(0x5A7C35), Hex(0x2B4722), 31};
    const Leafage bushLeaves{Hex(0xA9B053), Hex(0x5F7B38), Hex(0x2E4A26), 61};
    const Canvas cypress = CypressPicture(), pine = PinePicture();
    const Canvas oak = RoundTreePicture(112, 120, 26, oakLeaves), olive = RoundTreePicture(72, 72, 20, oliveLeaves);
    const Canvas bush = RoundTreePicture(56, 36, 0, bushLeaves);
    const Canvas oakCrown = CrownPicture(88, oakLeaves), pineCrown = CrownPicture(96, pineLeaves);
    folder.Texture("cypress", cypress, Black::Key);
    folder.Texture("pine", pine, Black::Key);
    folder.Texture("oak", oak, Black::Key);
    folder.Texture("olive", olive, Black::Key);
    folder.Texture("bush", bush, Black::Key);
    folder.Texture("oak_crown", oakCrown, Black::Key);
    folder.Texture("pine_crown", pineCrown, Black::Key);
    Model model = CrossedModel("cypress", cypress, 1.5, 11.5);
    folder.Write("cypress", model);
    model.Spheres.push_back(SphereAt(0, 0.6, 0, 0.7));
    folder.Write("cypress_r", model);
    model = CrossedModel("pine", pine, 5.2, 11.5);
    AddCrown(model, "pine_crown", pineCrown, 4.4, 9.3);
    folder.Write("pine", model);
    model.Spheres.push_back(SphereAt(0, 0.6, 0, 0.7));
    folder.Write("pine_r", model);
    model = CrossedModel("oak", oak, 3.7, 7.8);
    AddCrown(model, "oak_crown", oakCrown, 3.4, 5.2);
    folder.Write("oak", model);
    folder.Write("olive", CrossedModel("olive", olive, 2.3, 4.6, 1));
    folder.Write("bush", CrossedModel("bush", bush, 1.7, 2.0, 1));
}
}
