// SPDX-License-Identifier: Zlib
#include "webcam/Calibration.h"

namespace webcam
{
namespace
{
constexpr std::uint32_t LeaveTime = 1000, StillTime = 1500, MovedTime = 1000; // milliseconds
constexpr std::int32_t Moving = 600;                                          // of MotionAmount

// Signed, so that it holds where the clock wraps.
bool HasCome(std::uint32_t deadline, std::uint32_t now)
{
    return static_cast<std::int32_t>(now - deadline) >= 0;
}
}

void Calibrate(Webcam& webcam, const render::Picture& backdrop, std::uint32_t now)
{
    switch (webcam.State)
    {
    case Asked:
        webcam.Deadline = now + LeaveTime;
        webcam.State = Leaving;
        break;
    case Leaving:
        if (!HasCome(webcam.Deadline, now))
            break;
        webcam.State = Settling;
        webcam.Deadline = now + StillTime;
        break;
    case Settling:
        if (MotionAmount(webcam.Motion, webcam.Frame, webcam.FrameHeader) >= Moving)
            webcam.Deadline = now + MovedTime;
        else if (HasCome(webcam.Deadline, now))
        {
            SetBackground(webcam.Background, webcam.Frame, webcam.FrameHeader);
            webcam.State = Keyed;
        }
        break;
    case Keyed:
        ReplaceBackground(webcam.Background, webcam.Frame, backdrop);
        break;
    default:
        break;
    }
}
}
