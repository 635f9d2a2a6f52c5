// SPDX-License-Identifier: Zlib
// tests/windows/webcam/Camera.h: a webcam made of nothing but arithmetic, in the shape of the capture library that the
// game looks up at run time: escapi.dll holds the camera and hands out its frames, escapivb.dll opens and closes it.
//
// The environment variable VELKAR_WEBCAM, read at each call, says what kind of device there is:
//   (unset)  one that delivers a frame 20 ms after it is asked for
//   none     none
//   busy     one that cannot be opened
//   silent   one that opens and never delivers
//
// Every frame: BackgroundAt everywhere, and on it a white square, Square pixels wide, in the middle row, which stands
// Stride pixels further right from frame to frame and begins anew on the left.
#pragma once
#include <cstdint>

#ifdef _WIN64
#define CAMERA_EXPORT extern "C" __declspec(dllexport)
#else
#define CAMERA_EXPORT extern "C" // by a list, where the names are decorated
#endif

namespace camera
{
struct Parameters
{
    std::uint8_t* Target;
    std::int32_t Width, Height;
};

inline constexpr std::int32_t Square = 8, Stride = 4;

struct Colour
{
    std::uint8_t Blue, Green, Red;
};

constexpr Colour BackgroundAt(std::int32_t x, std::int32_t y)
{
    return {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(2 * y), 64};
}

// Left edge of the square in the frame of that number, counted from 0 at opening.
constexpr std::int32_t SquareAt(std::int32_t frame, std::int32_t width)
{
    return frame * Stride % (width - Square);
}
}
