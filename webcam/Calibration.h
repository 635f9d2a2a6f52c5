// webcam/Calibration.h: learning the empty scene: the player asks for it, leaves the picture, and once it has been
// still for a while it is taken as the background.
#pragma once
#include "base/Fields.h"
#include "webcam/Capture.h"
#include "webcam/Keying.h"

#include <cstdint>

namespace webcam
{
enum CalibrationState : std::uint8_t
{
    Idle = 0,
    Asked = 1,    // "qui" was clicked
    Leaving = 2,  // a second to leave the picture
    Settling = 3, // until nothing moves for a while
    Keyed = 4     // the background is known
};

struct Webcam
{
    webcam::Capture Capture;
    std::uint8_t State = Idle;  // CalibrationState
    std::uint32_t Deadline = 0; // clock, milliseconds
    render::PicHeader FrameHeader;
    render::PicArray2D Frame; // CaptureWidth x CaptureHeight
    MotionDetector Motion;
    webcam::Background Background;
};

// What a new frame does in the present state; in the last one it is keyed against the backdrop.
void Calibrate(Webcam& webcam, const render::Picture& backdrop, std::uint32_t now);
}

template <> struct base::FieldsOf<webcam::Webcam>
{
    using W = webcam::Webcam;
    static constexpr auto Table = std::make_tuple(Field{"State", &W::State});
};
