// SPDX-License-Identifier: Zlib
// render/wide/Routines.h: what a set of pixel loops consists of; see render/wide/Kernels.h. To be included once for
// every set, with VELKAR_WIDE its namespace: for that reason without a guard.
#include "render/wide/Kernels.h"

namespace render::VELKAR_WIDE
{
void DrawGroundBand(const GroundView& view, const Band& band, StopCheck& check);
bool MayShow(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c);
void FillTriFlat(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                 base::Rgb colour);
void FillTriTex(const Canvas& canvas, const ScreenVertex& a, const ScreenVertex& b, const ScreenVertex& c,
                const base::ConstSurface& texture);
void LayOver(PicArray2D& frame, const Layer& layer, const Band& rows);
void TransformPoints(const Camera& camera, const Screen& screen, const MeshPlace& place, const MeshPt* points,
                     std::size_t count, Vertex* vertices);
}
