// SPDX-License-Identifier: Zlib
// bench/ShippedFrames.h: whole frames of the shipped map along a recorded camera path, to be timed.
// VELKAR_ROOT is the folder that holds data/.
#pragma once
#include "tests/support/ShippedRace.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace bench
{
// As the options call it; empty for any other number.
const char* FilterName(std::int16_t filter);

class ShippedFrames
{
public:
    // Loads the race and records the path.
    ShippedFrames();

    // Pixels; the filter as `TxtFilter` numbers it. With the bands and threads that the game would take on this
    // machine.
    void Prepare(std::int32_t width, std::int32_t height, std::int16_t filter);
    // Draws the frame of the path's next camera, the path over and over, and gives its pixels.
    // clock: is given the time of its phases.
    const std::uint8_t* Draw(base::PhaseClock* clock = nullptr);
    std::size_t PathLength() const { return Cameras.size(); } // frames

private:
    support::ShippedRace Race;
    std::vector<render::Camera> Cameras;
    std::size_t Next = 0;
};
}
