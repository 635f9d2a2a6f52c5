// SPDX-License-Identifier: Zlib
// render/GroundView.h: what the ground pass reads and where it writes, gathered once a frame, and the sky's share of
// it. Borrows from the scene and the screen, which must stay as they are while it is in use. Any number of threads may
// read one view; each writes the columns of its own bands only.
#pragma once
#include "base/Pixels.h"
#include "render/RowTables.h"
#include "render/Scene.h"
#include "render/Screen.h"

#include <cstdint>

namespace render
{
struct GroundView
{
    // The camera, in double precision for the sums.
    double CamX = 0, CamZ = 0;     // world units
    double SinYaw = 0, CosYaw = 0; // as the camera keeps them
    double Yaw = 0;                // radians
    double Zoom = 0, CenterX = 0;  // pixels

    std::int16_t TxtFilter = Nearest;
    double GroundScale = 1;            // texels a world unit
    base::ConstSurface Sharp, Blurred; // the ground; Blurred is Sharp where no blurred copy was made
    base::ConstSurface Sky;            // the panorama, SkyWidth columns unless its file says otherwise
    std::int32_t SkyOffset = 0;        // columns, 0 to SkyWidth - 1

    // The screen's tables.
    const float *RowAngle = nullptr, *RowSlant = nullptr, *RowDist = nullptr; // by row
    const float *BlurWeight = nullptr, *TapCount = nullptr;                   // by row
    const double* ColumnSlope = nullptr;                                      // by column, and three more

    // What is written.
    ColumnTaps* Taps = nullptr; // by column
    base::Surface Frame;
    base::Grid<float>* Depth = nullptr;
};

// The screen's tables must be those of the camera: see render/RowTables.h.
GroundView MakeGroundView(const Scene& scene, const Camera& camera, Screen& screen);

// Whether all pixels of a frame row show the sky.
inline bool IsSkyRow(const GroundView& view, std::int32_t y)
{
    return IsSkyAngle(view.RowAngle[y]);
}
// The row of the panorama that a frame row shows, and a pixel of it. Black where the picture does not reach.
std::int32_t SkyRow(const GroundView& view, std::int32_t y);
const std::uint8_t* SkyPixel(const GroundView& view, std::int32_t x, std::int32_t skyRow);

// Texels at the ground's border that the anisotropic filter leaves out, so that its taps, and a byte behind the last,
// lie in the picture.
inline constexpr std::int32_t TapMargin = MostTaps + 1;

// Below one whole tap, each of the texel's two neighbours has a hundredth of the pixel for every SideWeightStep of the
// row's tap count, and the texel the rest; with fewer than FewestTaps it has all.
inline constexpr double FewestTaps = 0.3, SideWeightStep = 0.03;
}
