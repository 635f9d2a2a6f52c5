// SPDX-License-Identifier: Zlib
#include "webcam/Keying.h"

#include <algorithm>
#include <cstdlib>

namespace webcam
{
namespace
{
void MeasureDifferences(Background& background, const render::PicArray2D& frame)
{
    for (std::int32_t y = 0; y < background.Height; ++y)
    {
        const std::uint8_t* now = frame.Row(y);
        const std::uint8_t* empty = background.Frame.Row(y);
        std::int16_t* difference = background.Difference.Row(y);
        for (std::int32_t x = 0; x < background.Width; ++x, now += base::PixelBytes, empty += base::PixelBytes)
            difference[x] = static_cast<std::int16_t>(std::abs(now[0] - empty[0]) + std::abs(now[1] - empty[1]) +
                                                      std::abs(now[2] - empty[2]));
    }
}

// Nine differences of at most 765 stay within 16 bits.
void SumBlocks(Background& background)
{
    const std::int32_t width = background.Width;
    for (std::int32_t y = 1; y + 1 < background.Height; ++y)
    {
        const std::int16_t* below = background.Difference.Row(y - 1);
        const std::int16_t* here = below + width;
        const std::int16_t* above = here + width;
        std::int32_t* sum = background.Sum.Row(y);
        for (std::int32_t x = 1; x + 1 < width; ++x)
            sum[x] = below[x - 1] + below[x] + below[x + 1] + here[x - 1] + here[x] + here[x + 1] + above[x - 1] +
                     above[x] + above[x + 1];
    }
}
}

std::int32_t MotionAmount(MotionDetector& detector, const render::PicArray2D& frame, const render::PicHeader& header)
{
    const std::int32_t width = header.biWidth, height = header.biHeight;
    if (detector.Width != width || detector.Height != height)
    {
        detector.Width = width;
        detector.Height = height;
        detector.Previous.assign(frame.Bytes.size(), 0);
        return StillMoving;
    }
    std::int64_t total = 0;
    const std::int32_t used = width * base::PixelBytes; // the padding of a row is not looked at
    for (std::int32_t y = 0; y < height; ++y)
    {
        const std::uint8_t* now = frame.Row(y);
        std::uint8_t* previous = detector.Previous.data() + static_cast<std::ptrdiff_t>(y) * frame.RowBytes;
        for (std::int32_t i = 0; i < used; ++i)
            total += std::abs(now[i] - previous[i]);
        std::copy_n(now, used, previous);
    }
    return static_cast<std::int32_t>(std::min<std::int64_t>(total / (height + 3 * width), StillMoving));
}

void SetBackground(Background& background, const render::PicArray2D& frame, const render::PicHeader& header)
{
    background.Width = header.biWidth;
    background.Height = header.biHeight;
    background.Frame = frame;
    background.Difference.Reset(header.biWidth, header.biHeight);
    background.Sum.Reset(header.biWidth, header.biHeight);
}

void ReplaceBackground(Background& background, render::PicArray2D& frame, const render::Picture& backdrop)
{
    if (background.Width == 0 || frame.Rows < background.Height || frame.RowBytes < base::PixelBytes * background.Width)
        return;
    MeasureDifferences(background, frame);
    SumBlocks(background);
    const std::int32_t rows = std::min(background.Height, backdrop.Pixels.Rows);
    const std::int32_t columns = std::min(background.Width, backdrop.Info.Width);
    for (std::int32_t y = 0; y < rows; ++y)
    {
        const std::int32_t* sum = background.Sum.Row(y);
        const std::uint8_t* from = backdrop.Pixels.Row(y);
        std::uint8_t* to = frame.Row(y);
        for (std::int32_t x = 0; x < columns; ++x, from += base::PixelBytes, to += base::PixelBytes)
            if (sum[x] < ForegroundSum)
                base::CopyPixel(to, from);
    }
}

void CopyInset(const render::PicArray2D& frame, std::int32_t left, std::int32_t top, std::int32_t width,
               std::int32_t height, render::PicArray2D& destination)
{
    if (left < 0 || top < 0)
        return;
    const std::int32_t columns =
        std::min({width, frame.RowBytes / base::PixelBytes - left, destination.RowBytes / base::PixelBytes});
    const std::int32_t rows = std::min({height, frame.Rows - top, destination.Rows});
    for (std::int32_t y = 0; y < rows && columns > 0; ++y)
        std::copy_n(frame.Row(top + y) + base::PixelBytes * left, base::PixelBytes * columns, destination.Row(y));
}
}
