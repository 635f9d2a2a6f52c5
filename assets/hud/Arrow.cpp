// SPDX-License-Identifier: Zlib
#include "assets/hud/Arrow.h"

#include "assets/common/Model3dm.h"

namespace assets::hud
{
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
