// SPDX-License-Identifier: Zlib
#include "render/Screen.h"

#include <algorithm>

namespace render
{
namespace
{
void TakeSize(Screen& screen, std::int32_t width, std::int32_t height)
{
    screen.ScreenW = width;
    screen.ScreenH = height;
    screen.ScreenMaxX = width - 1;
    screen.ScreenMaxY = height - 1;
    const std::int32_t column = width / 2, row = height / 2; // whole pixels
    screen.CenterX = static_cast<float>(column);
    screen.CenterY = static_cast<float>(row);
}

void MakeTables(Screen& screen)
{
    const auto columns = static_cast<std::size_t>(screen.ScreenW), rows = static_cast<std::size_t>(screen.ScreenH);
    screen.Depth.Reset(screen.ScreenW, screen.ScreenH, FarDepth);
    screen.Ahead.Depth = screen.Depth;
    screen.Ahead.Drawn.Reset(screen.ScreenW, screen.ScreenH);
    screen.Ahead.IsEmpty = true;
    for (std::vector<float>* table :
         {&screen.RowAngle, &screen.RowSlant, &screen.RowDist, &screen.BlurWeight, &screen.TapCount})
        table->assign(rows, 0.0f);
    screen.ColumnSlope.assign(columns + 3, 0.0);
    screen.Taps.assign(columns, ColumnTaps{});
    screen.Bands = MakeBands(screen.ScreenW, screen.ThreadCount);
    screen.HalfBands = Halved(screen.Bands);
    screen.RowBands = MakeBands(screen.ScreenH, screen.ThreadCount);
}
}

void ApplyResolution(base::MessageSink& messages, Screen& screen, Camera& camera, std::int32_t width,
                     std::int32_t height)
{
    screen.Header.biWidth = width;
    screen.Header.biHeight = height;
    MakePicArray2D(messages, screen.Header, screen.Frame);
    if (!screen.Frame.Empty())
        MakePicArray2D(messages, screen.Header, screen.Ahead.Pixels);
    const bool made = !screen.Frame.Empty() && !screen.Ahead.Pixels.Empty();
    TakeSize(screen, made ? width : 0, made ? height : 0);
    camera.MinZoom = std::min(screen.CenterX, screen.CenterY);
    camera.Zoom = 2.0f * camera.MinZoom;
    MakeTables(screen);
}
}
