// SPDX-License-Identifier: Zlib
// render/wide/Kernels.h: the pixel loops, once for every instruction set that they are compiled for. The sources in
// this folder are compiled once a set, in a namespace of its own (VELKAR_WIDE); which set runs is chosen at run time.
// All write the same bytes.
#pragma once
#include "base/Pixels.h"
#include "render/Bands.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace render
{
struct Camera;
struct Canvas;
struct GroundView;
struct Layer;
struct MeshPt;
struct MeshPlace;
struct PicArray2D;
struct Screen;
struct ScreenVertex;
struct Vertex;
class StopCheck;

struct Kernels
{
    const char* Name; // of the instruction set
    // See render/Ground.h.
    void (*DrawGroundBand)(const GroundView& view, const Band& band, StopCheck& check);
    // See render/TriangleFill.h.
    bool (*MayShow)(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
    void (*FillTriFlat)(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                        base::Rgb colour);
    void (*FillTriTex)(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                       const base::ConstSurface& texture);
    // See render/Layers.h.
    void (*LayOver)(PicArray2D& frame, const Layer& layer, const Band& rows);
    // See render/Vertices.h.
    void (*TransformPoints)(const Camera& camera, const Screen& screen, const MeshPlace& place, const MeshPt* points,
                            std::size_t count, Vertex* vertices);
};

// Those that this processor can run, the fastest last; at least one.
std::span<const Kernels> RunnableKernels();
inline const Kernels& FastestKernels()
{
    return RunnableKernels().back();
}
}
