// SPDX-License-Identifier: Zlib
// Row by row, because rows lie together in memory, and texels four at a time. The same pixels from their definition are
// in render/GroundPlain.cpp.
#include "render/GroundPlain.h"
#include "render/GroundThreads.h"
#include "render/wide/GroundPieces.h"
#include "render/wide/Routines.h"
#include "render/wide/Wide.h"

#include <cstring>

namespace render::VELKAR_WIDE
{
namespace
{
constexpr std::int32_t Chunk = 64; // columns whose texels are found before they are fetched

// The texels of neighbouring pixels of a row.
struct TexelRun
{
    std::int32_t U[Chunk], V[Chunk];
    std::int32_t Offset[Chunk]; // bytes
};

// Each line is one of TexelPlain. CamX - SinYaw x RowDist and its like are the row's own. Up to three columns more are
// found than asked for; at least one is.
void FindTexels(const GroundView& view, std::int32_t y, std::int32_t first, std::int32_t count, TexelRun& run)
{
    const Double4 slant = Double4::Of(view.RowSlant[y]);
    const Double4 startX = Double4::Of(view.CamX - view.SinYaw * view.RowDist[y]);
    const Double4 startZ = Double4::Of(view.CosYaw * view.RowDist[y] + view.CamZ);
    const Double4 cosYaw = Double4::Of(view.CosYaw), sinYaw = Double4::Of(view.SinYaw);
    const Double4 scale = Double4::Of(view.GroundScale);
    const Int4 rowBytes = Int4::Of(static_cast<std::int32_t>(view.Sharp.RowBytes));
    std::int32_t i = 0;
    do
    {
        const Double4 lateral = Double4::Of((Double4::Load(view.ColumnSlope + first + i) * slant).Single());
        const Int4 u = ((startX + cosYaw * lateral) * scale).Rounded();
        const Int4 v = ((startZ + sinYaw * lateral) * scale).Rounded();
        u.Store(run.U + i);
        v.Store(run.V + i);
        (v * rowBytes + (u + u + u)).Store(run.Offset + i);
        i += 4;
    } while (i < count);
}

// The texels that are at least `margin` from every side of the picture. One comparison an axis, as negative numbers are
// the largest of the unsigned ones.
class Interior
{
public:
    Interior(const base::ConstSurface& picture, std::int32_t margin)
        : Least(static_cast<std::uint32_t>(margin)), Columns(Inner(picture.Width, margin)),
          Rows(Inner(picture.Height, margin))
    {
    }
    bool Has(std::int32_t u, std::int32_t v) const
    {
        return static_cast<std::uint32_t>(u) - Least < Columns && static_cast<std::uint32_t>(v) - Least < Rows;
    }

private:
    static std::uint32_t Inner(std::int32_t size, std::int32_t margin)
    {
        return size > 2 * margin ? static_cast<std::uint32_t>(size - 2 * margin) : 0;
    }
    std::uint32_t Least, Columns, Rows;
};

// Columns first to last of a row.
void CopySky(const GroundView& view, std::int32_t y, std::int32_t first, std::int32_t last)
{
    const std::int32_t row = SkyRow(view, y);
    std::uint8_t* pixel = view.Frame.At(first, y);
    const bool hasRow = view.Sky.Width >= SkyWidth && row >= 0 && row < view.Sky.Height;
    for (std::int32_t x = first; x <= last;)
        if (hasRow)
        {
            const std::int32_t column = (view.SkyOffset + x) % SkyWidth, left = last - x + 1;
            const std::int32_t count = SkyWidth - column < left ? SkyWidth - column : left;
            std::memcpy(pixel, view.Sky.At(column, row), static_cast<std::size_t>(count) * base::PixelBytes);
            x += count;
            pixel += count * base::PixelBytes;
        }
        else
        {
            StorePixel(pixel, LoadPixel(SkyPixel(view, x, row)));
            ++x;
            pixel += base::PixelBytes;
        }
}

// Whether all texels between two of a row may be read as four bytes. Both lie in the picture, and u and v only grow or
// only shrink between them; only the last texel of the picture has no fourth byte, where rows are not padded.
bool HasFourthBytes(const base::ConstSurface& picture, const TexelRun& run, std::int32_t a, std::int32_t b)
{
    return picture.RowBytes > picture.Width * base::PixelBytes ||
           (run.U[a] < picture.Width - 1 && run.U[b] < picture.Width - 1) ||
           (run.V[a] < picture.Height - 1 && run.V[b] < picture.Height - 1);
}

// Draws `count` pixels of a ground row: fill(piece) those of the ground that are at least `margin` texels inside it,
// and the sky's.
template <class Fill>
void DrawChunk(const GroundView& view, std::int32_t y, std::int32_t x, std::int32_t count, std::int32_t margin,
               const Fill& fill)
{
    TexelRun run;
    FindTexels(view, y, x, count, run);
    const Interior interior(view.Sharp, margin);
    // Along a row u and v only grow or only shrink: between two texels inside there is none outside.
    std::int32_t first = 0, last = count - 1;
    while (first <= last && !interior.Has(run.U[first], run.V[first]))
        ++first;
    while (first <= last && !interior.Has(run.U[last], run.V[last]))
        --last;
    if (first > 0)
        CopySky(view, y, x, x + first - 1);
    if (last < count - 1 && first <= last)
        CopySky(view, y, x + last + 1, x + count - 1);
    if (first > last)
        return;
    if (HasFourthBytes(view.Sharp, run, first, last))
        fill(GroundPiece{y, x + first, last - first + 1, run.Offset + first, view.Frame.At(x + first, y)});
    else
        for (std::int32_t i = first; i <= last; ++i)
            GroundPixelPlain(view, x + i, y, view.Frame.At(x + i, y));
}

void EmptyDepths(float* depth, std::int32_t count)
{
    const Float4 far = Float4::Of(FarDepth);
    std::int32_t i = 0;
    for (; i + 8 <= count; i += 8)
    {
        far.Store(depth + i);
        far.Store(depth + i + 4);
    }
    for (; i < count; ++i)
        depth[i] = FarDepth;
}

// What the three filters share. fillOf(y) gives what fills the pieces of a ground row, of texels at least `margin`
// inside the picture.
template <class FillOf>
void DrawRows(const GroundView& view, const Band& band, StopCheck& check, std::int32_t margin, const FillOf& fillOf)
{
    const std::int32_t columns = band.Last - band.First + 1;
    if (columns < 1)
        return;
    for (std::int32_t y = 0; y < view.Frame.Height; ++y)
    {
        if (check.MustStop())
            return;
        EmptyDepths(view.Depth->Row(y) + band.First, columns);
        if (IsSkyRow(view, y))
        {
            CopySky(view, y, band.First, band.Last);
            continue;
        }
        fillOf(y,
               [&](const auto& fill)
               {
                   for (std::int32_t x = band.First; x <= band.Last; x += Chunk)
                   {
                       const std::int32_t left = band.Last - x + 1;
                       DrawChunk(view, y, x, left < Chunk ? left : Chunk, margin, fill);
                   }
               });
    }
}
}

void DrawGroundBand(const GroundView& view, const Band& band, StopCheck& check)
{
    switch (view.TxtFilter)
    {
    case Filter::Linear:
        return DrawRows(view, band, check, 0,
                        [&](std::int32_t y, const auto& draw)
                        {
                            const BlurMix mix(view.BlurWeight[y]);
                            draw([&](const GroundPiece& piece) { FillMixed(view, piece, mix); });
                        });
    case Filter::Anisotropic:
        FindTaps(view, band);
        return DrawRows(view, band, check, TapMargin,
                        [&](std::int32_t y, const auto& draw)
                        {
                            const Tent tent(view.TapCount[y]);
                            draw([&](const GroundPiece& piece) { FillTent(view, piece, tent); });
                        });
    default:
        return DrawRows(view, band, check, 0,
                        [&](std::int32_t, const auto& draw)
                        { draw([&](const GroundPiece& piece) { FillNearest(view, piece); }); });
    }
}
}
