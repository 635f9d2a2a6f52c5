// SPDX-License-Identifier: Zlib
#include "render/Sprites.h"

#include "base/Numbers.h"
#include "render/Blend.h"

#include <algorithm>
#include <array>

namespace render
{
namespace
{
// A sprite as it lands on the screen.
struct Placed
{
    base::ConstSurface Picture;
    double Factor = 0;                  // screen pixels per texel
    std::int32_t Columns = 0, Rows = 0; // destination pixels
    std::int32_t X = 0, Y = 0;          // of its lower left pixel
    float Depth = 0;
    double Alpha = 1;
};

// False where nothing is to be drawn.
bool Place(const Camera& camera, const Screen& screen, const Sprite3D& sprite, Placed& placed)
{
    if (sprite.Pixels == nullptr || !(sprite.Alpha == sprite.Alpha))
        return false;
    placed.Picture = MakeSurface(*sprite.Pixels);
    const Point3 at = WorldToCamera(camera, sprite.X, sprite.Y, sprite.Z);
    if (!(at.Z > screen.NearZ && at.Z <= screen.FarZ) || placed.Picture.Width < 1 || placed.Picture.Height < 1)
        return false;
    const double k = static_cast<double>(camera.Zoom) / at.Z;
    double scale = sprite.Scale;
    if (k * scale * sprite.Width() >= WidestSprite)
        scale = WidestSprite / (sprite.Width() * k);
    placed.Factor = k * scale;
    const std::int32_t lastColumn = base::Floor((sprite.Width() - 1) * placed.Factor);
    const std::int32_t lastRow = base::Floor((sprite.Height() - 1) * placed.Factor);
    const ScreenPoint centre = Project(at.X, at.Y, at.Z, camera.Zoom, screen.CenterX, screen.CenterY);
    if (!(placed.Factor > 0.0) || lastColumn == base::OutOfRange || lastRow == base::OutOfRange ||
        centre.X == base::OutOfRange || centre.Y == base::OutOfRange)
        return false;
    placed.Columns = lastColumn + 1;
    placed.Rows = lastRow + 1;
    // Far outside the screen the place itself does not matter, only that it stays far outside.
    constexpr std::int32_t far = 1 << 30;
    placed.X = std::clamp(centre.X, -far, far) - placed.Columns / 2;
    placed.Y = std::clamp(centre.Y, -far, far) - placed.Rows / 2;
    placed.Depth = at.Z;
    placed.Alpha = sprite.Alpha;
    return true;
}

void Mix(std::uint8_t* pixel, const std::uint8_t* texel, double alpha)
{
    for (int c = 0; c < 3; ++c)
        pixel[c] = base::RoundByte(pixel[c] * (1.0 - alpha) + texel[c] * alpha);
}
}

void DrawSprite3DPlain(const Camera& camera, Screen& screen, const Sprite3D& sprite)
{
    Placed placed;
    if (!Place(camera, screen, sprite, placed))
        return;
    for (std::int32_t row = std::max(0, -placed.Y); row < placed.Rows && placed.Y + row < screen.ScreenH; ++row)
        for (std::int32_t column = std::max(0, -placed.X);
             column < placed.Columns && placed.X + column < screen.ScreenW; ++column)
        {
            const std::int32_t u = base::Floor(column / placed.Factor), v = base::Floor(row / placed.Factor);
            if (!placed.Picture.Has(u, v) || base::IsBlack(placed.Picture.At(u, v)))
                continue;
            const std::int32_t x = placed.X + column, y = placed.Y + row;
            if (!(placed.Depth < screen.Depth.At(x, y)))
                continue;
            std::uint8_t* pixel = FrameSurface(screen).At(x, y);
            if (placed.Alpha == 1.0)
                base::CopyPixel(pixel, placed.Picture.At(u, v));
            else
                Mix(pixel, placed.Picture.At(u, v), placed.Alpha);
        }
}

// Fast because the texel of every column is found once a sprite and that of every row once a row.
void DrawSprite3D(const Camera& camera, Screen& screen, const Sprite3D& sprite)
{
    Placed placed;
    if (!Place(camera, screen, sprite, placed))
        return;
    constexpr std::size_t mostColumns = 128; // above WidestSprite
    std::array<std::int32_t, mostColumns> texelAt;
    const bool copies = placed.Alpha == 1.0;
    const double rest = 1.0 - placed.Alpha;
    const std::int32_t first = std::max(0, -placed.X);
    const std::int32_t count = std::min(placed.Columns, screen.ScreenW - placed.X) - first;
    if (count > static_cast<std::int32_t>(mostColumns) || !(placed.Alpha >= 0.0 && placed.Alpha <= 1.0))
        return DrawSprite3DPlain(camera, screen, sprite);
    if (count < 1)
        return; // beside the screen
    for (std::int32_t i = 0; i < count; ++i)
        texelAt[static_cast<std::size_t>(i)] =
            std::clamp(base::Floor((first + i) / placed.Factor), 0, placed.Picture.Width - 1) * base::PixelBytes;
    for (std::int32_t row = std::max(0, -placed.Y); row < placed.Rows && placed.Y + row < screen.ScreenH; ++row)
    {
        const std::int32_t v = base::Floor(row / placed.Factor);
        if (v < 0 || v >= placed.Picture.Height)
            continue;
        const std::uint8_t* texels = placed.Picture.At(0, v);
        const std::int32_t x = placed.X + first, y = placed.Y + row;
        const float* depth = screen.Depth.Row(y) + x;
        std::uint8_t* pixel = FrameSurface(screen).At(x, y);
        for (std::int32_t i = 0; i < count; ++i, pixel += base::PixelBytes)
        {
            const std::uint8_t* texel = texels + texelAt[static_cast<std::size_t>(i)];
            if (!(placed.Depth < depth[i]) || base::IsBlack(texel))
                continue;
            if (copies)
                base::CopyPixel(pixel, texel);
            else
                Blend(pixel, rest, texel, placed.Alpha, pixel);
        }
    }
}
}
