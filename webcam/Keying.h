// SPDX-License-Identifier: Zlib
// webcam/Keying.h: the player cut out of the room: how much moves, the background as it is learnt, and its replacement.
// Pictures are 24-bit pixel arrays, row 0 at the bottom; sizes and places are pixels. Differences are absolute ones of
// bytes, 0 to 255 a colour. Runs on the window's thread, once a captured frame.
#pragma once
#include "base/Pixels.h"
#include "render/PicArray.h"

#include <cstdint>
#include <vector>

namespace webcam
{
inline constexpr std::int32_t StillMoving = 2147483647; // what the first frame of a size answers
inline constexpr std::int32_t ForegroundSum = 700;      // of a 3 x 3 block's differences: from here on it is the player

struct MotionDetector
{
    std::int32_t Width = 0, Height = 0; // of the last frame; 0 before the first
    std::vector<std::uint8_t> Previous; // its bytes, rows padded as the frame's are; 0 after the first of a size
};

struct Background
{
    std::int32_t Width = 0, Height = 0; // 0 until the background has been learnt
    render::PicArray2D Frame;           // the empty scene
    // Of the frame that is being keyed, pixel by pixel; kept so that a frame allocates nothing.
    base::Grid<std::int16_t> Difference; // all three colours together, 0 to 765
    base::Grid<std::int32_t> Sum;        // of the 3 x 3 block around the pixel; the border keeps 0
};

// How much the frame differs from the last one: the sum of all byte differences over (height + 3 width), StillMoving
// for the first frame of a size. Deliberate: divided by the sum of the two dimensions, which is what thresholds are
// tuned to.
std::int32_t MotionAmount(MotionDetector& detector, const render::PicArray2D& frame, const render::PicHeader& header);

// Takes the frame, of the header's size, as the empty scene. Allocates only where the size is new.
void SetBackground(Background& background, const render::PicArray2D& frame, const render::PicHeader& header);

// Puts the backdrop, from its lower left corner, wherever the frame looks like the background: where the block around a
// pixel differs by less than ForegroundSum, and at the border always. Where the backdrop ends, the frame stays. Nothing
// before a background has been learnt, or where the frame is smaller than it.
void ReplaceBackground(Background& background, render::PicArray2D& frame, const render::Picture& backdrop);

// A block of the frame from (left, top), rows counted from the bottom, to (0, 0) of the destination; what either does
// not have is left out. Nothing where a place is negative.
void CopyInset(const render::PicArray2D& frame, std::int32_t left, std::int32_t top, std::int32_t width,
               std::int32_t height, render::PicArray2D& destination);
}
