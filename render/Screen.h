// SPDX-License-Identifier: Zlib
// render/Screen.h: what depends on the resolution: the frame with its depth cells, and the tables of the ground pass.
// Plain data, filled on the window's thread; while the ground pass runs its threads read it and write the frame's, the
// depth buffer's and the taps' columns of their own bands; the window's thread writes the layer meanwhile.
#pragma once
#include "base/Fields.h"
#include "base/Pixels.h"
#include "base/Trapped.h"
#include "render/Bands.h"
#include "render/Camera.h"
#include "render/Marks.h"
#include "render/PicArray.h"
#include "render/wide/Kernels.h"

#include <cstdint>
#include <vector>

namespace render
{
inline constexpr float FarDepth = 3.4028230607370965e38f; // an empty depth cell

// How the ground's texels become pixels.
enum Filter : std::int16_t
{
    Nearest = 0,    // "nessuno": the one texel
    Linear = 1,     // "lineare": the texel and its blurred copy, mixed by distance
    Anisotropic = 2 // "anisotropico": the texels along the ray, more of them farther away
};

// Where the anisotropic filter reads beside a texel, for one screen column.
inline constexpr std::int32_t MostTaps = 14; // on each side
struct ColumnTaps
{
    std::int32_t Offset[MostTaps] = {}; // bytes from the texel to its k-th neighbour along the ray, k from 1
    std::int32_t Shared = 0;            // the first so many offsets are those of the column before, in the same band
    bool HasTies = false;               // a step ends between two texels, and the offsets do not hold
};

// Pixels of the frame's size that lie before it where they have a depth.
struct Layer
{
    PicArray2D Pixels;
    base::Grid<float> Depth; // FarDepth where nothing is drawn
    Marks Drawn;             // there, if anywhere; not kept by the plain fills
    bool IsEmpty = true;     // nothing is drawn anywhere
};

struct Screen
{
    std::int32_t ScreenW = 0, ScreenH = 0;       // pixels; 0 before a resolution was applied
    std::int32_t ScreenMaxX = 0, ScreenMaxY = 0; // the last column and the last row
    float CenterX = 0, CenterY = 0;              // pixels: where the eye looks, half the size without its fraction
    float NearZ = 0.01f, FarZ = 400.0f;   // world units of depth: nearer is cut off, lines and sprites end at FarZ
    std::int16_t TxtFilter = Anisotropic; // a Filter; any other number draws as Nearest
    std::int16_t ThreadCount = 1;         // bands of the next resolution: 2 x processors + 1
    bool SingleThread = false;            // development switch: only the first band is drawn
    std::int32_t SkyOffset = 0;           // column of the panorama at the frame's left border, 0 to 819
    PicHeader Header;                     // of the frame
    PicArray2D Frame;                     // ScreenH rows of ScreenW pixels, padded
    base::Grid<float> Depth;              // depth of each pixel, world units; FarDepth where only ground or sky is
    Layer Ahead;                          // what is drawn while the ground is not ready; empty between frames

    // One entry a screen row, see render/RowTables.h.
    std::vector<float> RowAngle;   // radians
    std::vector<float> RowSlant;   // world units
    std::vector<float> RowDist;    // world units
    std::vector<float> BlurWeight; // share of the blurred copy, 0 to 0.875; kept while the filter is Linear
    std::vector<float> TapCount;   // texels on each side, with a fraction, 0 to MostTaps; kept while it is Anisotropic

    // One entry a screen column.
    std::vector<double> ColumnSlope; // pixels from CenterX per pixel of zoom; three entries more, for reading in fours
    std::vector<ColumnTaps> Taps;    // written by the pass itself while the filter is Anisotropic

    const render::Kernels* Kernels = &FastestKernels(); // the pixel loops that draw; all draw the same

    std::vector<Band> Bands;       // the columns, split as ThreadCount said when the resolution was applied
    std::vector<Band> HalfBands;   // the same in halves: an odd number of bands is no even share for two threads
    std::vector<Band> RowBands;    // the rows, as many as bands
    std::int32_t GroundLimit = 60; // milliseconds the ground pass may take before it is cut off
};

// Takes a resolution in pixels: writes the derived fields, MinZoom and Zoom (2 x MinZoom), frame, depth buffer, layer,
// tables and bands, all empty. A size that cannot be is reported and leaves a screen of 0 x 0, on which nothing is
// drawn.
void ApplyResolution(base::MessageSink& messages, Screen& screen, Camera& camera, std::int32_t width,
                     std::int32_t height);

// The frame's pixels, to be drawn on. Valid until the next resolution.
inline base::Surface FrameSurface(Screen& screen)
{
    return {screen.Frame.Bytes.data(), screen.Frame.RowBytes, screen.ScreenW, screen.ScreenH};
}
inline base::ConstSurface FrameSurface(const Screen& screen)
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
