// render/Ground.h: the ground and sky pass, which fills every pixel and empties every depth cell of its columns.
// Several threads draw disjoint bands at once; they read the view and write their own columns only.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"

#include <cstdint>

namespace render
{
class StopCheck;

// What the pass reads, gathered once a frame, and where it writes.
struct GroundView
{
    double CamX = 0, CamZ = 0, SinYaw = 0, CosYaw = 0, Yaw = 0;
    double Zoom = 0, CenterX = 0;
    double GroundScale = 1;
    base::ConstSurface Sharp, Blurred; // Blurred is Sharp where no blurred copy was made
    base::ConstSurface Sky;
    std::int32_t SkyOffset = 0; // 0 … 819
    std::int32_t ScreenH = 0;
    const float *RowAngle = nullptr, *RowSlant = nullptr, *RowDist = nullptr, *RowAux = nullptr;
    const double* ColumnSlope = nullptr;
    ColumnTaps* Taps = nullptr;
    std::uint8_t* Frame = nullptr;
    std::ptrdiff_t FrameRowBytes = 0;
    float* Depth = nullptr;
    std::ptrdiff_t DepthRow = 0; // cells
};
// Also fills the table of column slopes.
GroundView MakeGroundView(const Scene& scene, const Camera& camera, Screen& screen);

// Rows that look at or above the horizon. Theirs are the sky's.
inline bool IsSkyRow(const GroundView& view, std::int32_t y)
{
    return !(view.RowAngle[y] < -0.01);
}
// The row of the panorama that a frame row shows, and a pixel of it. Black where the picture does not reach.
std::int32_t SkyRow(const GroundView& view, std::int32_t y);
const std::uint8_t* SkyPixel(const GroundView& view, std::int32_t x, std::int32_t skyRow);

struct GroundTexel
{
    std::int32_t U = 0, V = 0; // OutOfRange where it is no texel of any picture
};

// The pass straight from its definition, pixel by pixel. The judge of the fast ones.
void GroundPlain(const GroundView& view, const Band& band, std::int16_t filter);
// One pixel of it; y is a ground row.
void GroundPixelPlain(const GroundView& view, std::int16_t filter, std::int32_t x, std::int32_t y, std::uint8_t* pixel);

// The same bytes by rows. The check that says stop leaves the rest of the band as it is.
void GroundNearest(const GroundView& view, const Band& band, StopCheck& check);
void GroundLinear(const GroundView& view, const Band& band, StopCheck& check);
void GroundAniso(const GroundView& view, const Band& band, StopCheck& check);
}
