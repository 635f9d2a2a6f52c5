#include "assets/hud/Models.h"

#include "assets/common/Bitmap.h"
#include "assets/common/Model3dm.h"
#include "assets/common/Shapes.h"
#include "base/Numbers.h"
#include "typeface/Typeface.h"

#include <cmath>

namespace assets::hud
{
namespace
{
struct Profile
{
    double R, Y;
};

// Foot, stem, knob and bowl, from below to the rim. The origin is where the trophy turns: high in the bowl.
constexpr Profile Outside[] = {{0.31, -1.15},  {0.29, -1.10}, {0.13, -1.03}, {0.075, -0.93}, {0.07, -0.82},
                               {0.13, -0.77},  {0.07, -0.72}, {0.13, -0.64}, {0.30, -0.51},  {0.42, -0.29},
                               {0.475, -0.03}, {0.51, 0.21},  {0.56, 0.29}};
constexpr Profile Inside[] = {{0.55, 0.29}, {0.48, 0.17}, {0.40, -0.21}, {0.0, -0.43}};
constexpr int Around = 14;
constexpr int ShineWidth = 112, ShineHeight = 96;

template <std::size_t Rows> ModelMesh Turned(const Profile (&profile)[Rows], double swell, int colour)
{
    ModelMesh mesh(static_cast<int>(Rows), Around + 1);
    mesh.Colour = colour;
    for (int i = 0; i < mesh.Rows; ++i)
        for (int j = 0; j <= Around; ++j)
        {
            const double angle = 2 * Pi * (j % Around) / Around;
            const Profile& p = profile[static_cast<std::size_t>(i)];
            const double r = p.R + swell;
            mesh.At(i, j) = {r * std::sin(angle), p.Y, r * std::cos(angle),
                             base::RoundEven(j * (ShineWidth - 1.0) / Around),
                             base::RoundEven(i * (ShineHeight - 1.0) / (mesh.Rows - 1))};
        }
    return mesh;
}

// Both handles as one strip; what joins them runs unseen through the bowl.
ModelMesh Handles()
{
    constexpr Profile path[] = {{0.44, 0.11},  {0.64, 0.18},  {0.80, 0.10}, {0.81, -0.09},
                                {0.68, -0.27}, {0.52, -0.35}, {0.38, -0.37}};
    constexpr int Steps = static_cast<int>(std::size(path));
    constexpr double Thick = 0.045;
    ModelMesh mesh(2 * Steps, 5);
    mesh.Colour = FlatColour(255, 200, 40);
    for (int side = 0; side < 2; ++side)
        for (int i = 0; i < Steps; ++i)
        {
            const int at = side == 0 ? i : Steps - 1 - i;
            const Profile& p = path[at];
            const Profile& before = path[std::max(at - 1, 0)];
            const Profile& after = path[std::min(at + 1, Steps - 1)];
            const double dx = after.R - before.R, dy = after.Y - before.Y, length = std::hypot(dx, dy);
            for (int j = 0; j < 5; ++j)
            {
                const double angle = Pi / 2 * (j % 4), out = std::cos(angle) * Thick, wide = std::sin(angle) * Thick;
                const double x = p.R - dy / length * out;
                mesh.At(side * Steps + i, j) = {side == 0 ? x : -x, p.Y + dx / length * out, wide};
            }
        }
    return mesh;
}

// Reflections over the flat metal: dark and bright streaks that follow the bowl; the rest is see-through.
void PaintShine(Canvas& picture)
{
    for (int y = 0; y < ShineHeight; ++y)
        for (int x = 0; x < ShineWidth; ++x)
        {
            const double row = y * (std::size(Outside) - 1.0) / (ShineHeight - 1);
            const double turn = static_cast<double>(x) / (ShineWidth - 1) * 4;
            const double t = turn - std::floor(turn);
            const bool bowl = row > 7.2, rim = row > 11.25;
            const Rgb dark = Hex(0x4A3E34), bright = Hex(0xFFFDF2);
            if (rim ? t < 0.30 : (t < 0.07 || (t > 0.12 && t < 0.145 && bowl)))
                picture.Set(x, y, bright);
            else if (!rim && t > 0.46 && t < (bowl ? 0.70 : 0.80))
                picture.Set(x, y, Mix(dark, Hex(0x9A8C78), SmoothStep(0.09, 0.13, std::abs(t - 0.58))));
            else if (std::abs(row - 11.1) < 0.10 || std::abs(row - 10.75) < 0.07 || std::abs(row - 5.5) < 0.12)
                picture.Set(x, y, dark);
        }
}

// Dark stone with a brass plate.
void PaintPlinth(Canvas& picture, int left, int bottom, int width, int height)
{
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const double vein = std::abs(std::sin(x * 0.21 + y * 0.34 + 2 * std::sin(y * 0.19 + x * 0.05)));
            const bool plate = x > 9 && x < width - 10 && y > 7 && y < height - 7;
            Rgb colour = Mix(Hex(0x23282C), Hex(0x3C4A4C), SmoothStep(0.25, 0.0, vein)) * (0.75 + 0.5 * y / height);
            if (plate)
                colour = Mix(Hex(0xB08A3C), Hex(0xF2DC9A), SmoothStep(0.0, 1.0, (x + y * 0.7) / width));
            picture.Set(left + x, bottom + y, colour);
        }
    const auto letters = typeface::Outline("VELKAR", {9.5, 1.2, 0.01});
    double wide = 0;
    for (const typeface::Segment& s : letters)
        wide = std::max({wide, s.X1, s.X2});
    for (const typeface::Segment& s : letters)
        Stroke(picture,
               std::vector<Point>{{left + (width - wide) / 2 + s.X1, bottom + height / 2.0 - 3.5 + s.Y1},
                                  {left + (width - wide) / 2 + s.X2, bottom + height / 2.0 - 3.5 + s.Y2}},
               s.Radius * 2, Hex(0x3A2A10));
}

// One side of the plinth; the four follow each other to the right.
ModelMesh PlinthSide(int side, double half, double low, double high, int bottom, int width, int height)
{
    ModelMesh mesh(2, 2);
    constexpr double corners[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 2; ++j)
        {
            const auto& corner = corners[(side + j) % 4];
            mesh.At(i, j) = {corner[0] * half, i == 0 ? low : high, corner[1] * half, j * (width - 1),
                             bottom + i * (height - 1)};
        }
    return mesh;
}

ModelMesh FlatQuad(int colour, double half, double y)
{
    ModelMesh mesh(2, 2);
    mesh.Colour = colour;
    for (int i = 0; i < 2; ++i)
        for (int j = 0; j < 2; ++j)
            mesh.At(i, j) = {(j * 2 - 1) * half, y, (i * 2 - 1) * half};
    return mesh;
}
}

void WriteCup(const std::string& folder)
{
    constexpr int PlateWidth = 64, PlateHeight = 28;
    Canvas picture(ShineWidth, ShineHeight + PlateHeight);
    PaintShine(picture);
    PaintPlinth(picture, 0, ShineHeight, PlateWidth, PlateHeight);
    WriteBmp(folder + "/cup.bmp", picture, Black::Key);

    const std::string texture = "<path>cup.bmp";
    Model cup;
    cup.Visible = false;
    constexpr double Floor = -1.45, Top = -1.17;
    for (int side = 0; side < 4; ++side) // 0 to 3
    {
        cup.Meshes.push_back(PlinthSide(side, 0.40, Floor, Top, ShineHeight, PlateWidth, PlateHeight));
        cup.Meshes.back().Texture = texture;
    }
    cup.Meshes.push_back(Turned(Outside, 0.006, -1)); // 4 reflections
    cup.Meshes.back().Texture = texture;
    cup.Meshes.push_back(Turned(Inside, 0, FlatColour(70, 58, 46)));    // 5 the bowl's inside
    cup.Meshes.push_back(Turned(Outside, 0, FlatColour(255, 200, 40))); // 6 cup
    cup.Meshes.push_back(Handles());                                    // 7 handles
    cup.Meshes.push_back(FlatQuad(FlatColour(52, 60, 62), 0.40, Top));
    cup.Meshes.push_back(FlatQuad(FlatColour(24, 28, 30), 0.40, Floor));
    // The camera flies toward the trophy while it is shown: it hangs below its origin, where that keeps it in sight.
    for (ModelMesh& mesh : cup.Meshes)
        for (ModelPoint& p : mesh.Points)
            p = {p.X * 0.86, p.Y * 0.86 - 0.34, p.Z * 0.86, p.U, p.V};
    WriteModel(cup, folder + "/cup.3dm");
}

void WriteArrow(const std::string& folder)
{
    constexpr double TiltSin = -0.71736, TiltCos = 0.69671; // of -0.8 radians
    const auto point = [&](double x, double y, double z) {
        return ModelPoint{x, y * TiltCos - z * TiltSin, y * TiltSin + z * TiltCos};
    };
    Model arrow;
    const auto face = [&](int colour, ModelPoint a, ModelPoint b, ModelPoint c, ModelPoint d)
    {
        ModelMesh mesh(2, 2);
        mesh.Colour = colour;
        mesh.Points = {a, b, c, d};
        arrow.Meshes.push_back(mesh);
    };
    constexpr double Tip = 1.70, Neck = 0.20, End = -1.30, HeadHalf = 1.02, HeadThick = 0.30, ShaftHalf = 0.38,
                     ShaftThick = 0.19;
    const int topLeft = FlatColour(255, 226, 96), topRight = FlatColour(255, 196, 24), low = FlatColour(226, 40, 24),
              lowRight = FlatColour(186, 24, 18), back = FlatColour(140, 74, 0);
    const ModelPoint tip = point(0, 0, Tip);
    for (const double side : {-1.0, 1.0})
    {
        const ModelPoint wing = point(side * HeadHalf, 0, Neck - 0.12);
        for (const double up : {1.0, -1.0})
        {
            const int colour = up > 0 ? (side < 0 ? topLeft : topRight) : (side < 0 ? low : lowRight);
            const ModelPoint ridge = point(0, up * HeadThick, Neck);
            face(colour, tip, ridge, wing, ridge);
            face(back, wing, ridge, point(0, 0, Neck), ridge);
            const ModelPoint shaft = point(side * ShaftHalf, 0, Neck), shaftEnd = point(side * ShaftHalf, 0, End);
            const ModelPoint ridgeEnd = point(0, up * ShaftThick, End);
            face(colour, point(0, up * ShaftThick, Neck), ridgeEnd, shaft, shaftEnd);
            face(back, shaftEnd, ridgeEnd, point(0, 0, End), ridgeEnd);
        }
    }
    WriteModel(arrow, folder + "/gps.3dm");
}
}
