// render/Screen.h: what depends on the resolution: frame, depth buffer, row tables, bands of the ground pass.
#pragma once
#include "base/Fields.h"
#include "base/Trapped.h"
#include "render/Bands.h"
#include "render/Camera.h"
#include "render/PicArray.h"

#include <cstdint>
#include <vector>

namespace render
{
inline constexpr float FarDepth = 3.4028230607370965e38f; // an empty depth cell

// Where the anisotropic filter reads beside a texel, for one screen column.
inline constexpr std::int32_t MostTaps = 14;
struct ColumnTaps
{
    std::int32_t Offset[MostTaps] = {}; // bytes from the texel to its k-th neighbour along the ray, k from 1
    std::int32_t HasTies = 0;           // a step lies between two texels: the offsets do not hold
};

struct Screen
{
    std::int32_t ScreenW = 0, ScreenH = 0; // pixels
    std::int32_t ScreenMaxX = 0, ScreenMaxY = 0;
    float CenterX = 0, CenterY = 0;
    float NearZ = 0.01f, FarZ = 400.0f;
    std::int16_t TxtFilter = 2;    // 0 "nessuno", 1 "lineare", 2 "anisotropico"; any other draws as 0
    std::int16_t ThreadCount = 1;  // bands of the ground pass
    std::int16_t SingleThread = 0; // development switch
    std::int32_t SkyOffset = 0;    // 0 to 819
    PicHeader Header;              // of the frame
    PicArray2D Frame;
    base::Grid<float> Depth;                                // ScreenW x ScreenH cells
    std::vector<float> RowAngle, RowSlant, RowDist, RowAux; // one a screen row
    std::vector<double> ColumnSlope;                        // one a screen column, and one more for pairwise reading
    std::vector<ColumnTaps> Taps;                           // one a screen column
    std::vector<Band> Bands;
    std::int32_t GroundLimit = 60; // milliseconds the ground pass may take before it is cut off
};

// Takes a resolution: derived fields, MinZoom and Zoom (2 x MinZoom), frame, depth buffer, row tables, bands (as many
// as ThreadCount says). A size that cannot be is reported and leaves a screen of 0 x 0, on which nothing is drawn.
void ApplyResolution(base::MessageSink& messages, Screen& screen, Camera& camera, std::int32_t width,
                     std::int32_t height);

// The frame's pixels, to be drawn on. Valid until the next resolution.
inline base::Surface FrameSurface(Screen& screen)
{
    return {screen.Frame.Bytes.data(), screen.Frame.RowBytes, screen.ScreenW, screen.ScreenH};
}
}

template <> struct base::FieldsOf<render::Screen>
{
    using S = render::Screen;
    static constexpr auto Table = std::make_tuple(
        Fixed{"ScreenW", &S::ScreenW}, Fixed{"ScreenH", &S::ScreenH}, Fixed{"CenterX", &S::CenterX},
        Fixed{"CenterY", &S::CenterY}, Field{"NearZ", &S::NearZ}, Field{"FarZ", &S::FarZ},
        Field{"TxtFilter", &S::TxtFilter}, Fixed{"ThreadCount", &S::ThreadCount}, Field{"SkyOffset", &S::SkyOffset});
};
