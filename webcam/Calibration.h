// SPDX-License-Identifier: Zlib
// webcam/Calibration.h: learning the empty scene: the player asks for it, leaves the picture, and once it has been
// still for a while it is taken as the background. Each state ends by the time or by what the frames show, one step a
// captured frame at most; asking again begins anew from any of them. Runs on the window's thread.
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
    Asked = 1,    // "qui" was clicked; the next frame starts the time
    Leaving = 2,  // a second to leave the picture
    Settling = 3, // until a second and a half, or one after the last motion, have passed
    Keyed = 4     // the background is known, and frames are keyed
};

struct Webcam
{
    webcam::Capture Capture;
    std::uint8_t State = Idle;     // CalibrationState
    std::uint32_t Deadline = 0;    // of Leaving and Settling: the clock's milliseconds, which wrap
    render::PicHeader FrameHeader; // of the frame
    render::PicArray2D Frame;      // the last one taken, CaptureWidth x CaptureHeight
    MotionDetector Motion;
    webcam::Background Background; // as last learnt; goes on until it is learnt anew
};

// What a new frame does in the present state; in the last one it is keyed against the backdrop, in place. now: the
// clock's milliseconds. Any other state does nothing.
void Calibrate(Webcam& webcam, const render::Picture& backdrop, std::uint32_t now);
}

template <> struct base::FieldsOf<webcam::Webcam>
{
    using W = webcam::Webcam;
    static constexpr auto Table = std::make_tuple(Field{"State", &W::State});
};
