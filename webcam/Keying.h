// webcam/Keying.h: the player cut out of the room: how much moves, the background as it is learnt, and its replacement.
// Pictures are 24-bit pixel arrays, row 0 at the bottom.
#pragma once
#include "render/PicArray.h"

#include <cstdint>
#include <vector>

namespace webcam
{
inline constexpr std::int32_t StillMoving = 2147483647; // what the first frame of a size answers
inline constexpr std::int32_t ForegroundSum = 700;      // of a 3 x 3 block's differences: from here on it is the player

struct MotionDetector
{
    std::int32_t Width = 0, Height = 0;
    std::vector<std::uint8_t> Previous; // the bytes of the last frame
};

struct Background
{
    std::int32_t Width = 0, Height = 0; // 0 until the background has been learnt
    render::PicArray2D Frame;
    std::vector<std::int16_t> Difference; // of each pixel, all three colours together
    std::vector<std::int32_t> Sum;        // of each pixel's 3 x 3 block; the border keeps 0
};

// How much the frame differs from the last one: the sum of all byte differences over (height + 3 width), StillMoving
// for the first frame of a size. Deliberate: divided by the sum of the two dimensions, which is what thresholds are
// tuned to.
std::int32_t MotionAmount(MotionDetector& detector, const render::PicArray2D& frame, const render::PicHeader& header);

// Takes the frame as the empty scene. Allocates only where the size is new.
void SetBackground(Background& background, const render::PicArray2D& frame, const render::PicHeader& header);

// Puts the backdrop wherever the frame looks like the background. Where the backdrop ends, the frame stays.
void ReplaceBackground(Background& background, render::PicArray2D& frame, const render::Picture& backdrop);

// A block of the frame from (left, top), rows counted from the bottom, to (0, 0) of the destination.
void CopyInset(const render::PicArray2D& frame, std::int32_t left, std::int32_t top, std::int32_t width,
               std::int32_t height, render::PicArray2D& destination);
}
