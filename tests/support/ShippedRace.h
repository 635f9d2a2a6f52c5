// SPDX-License-Identifier: Zlib
// tests/support/ShippedRace.h: the shipped race on a machine without a window, and the camera's path through it.
// VELKAR_ROOT is the folder that holds data/.
#pragma once
#include "base/PhaseClock.h"
#include "platform/headless/Machine.h"
#include "shell/Application.h"

#include <cstdint>
#include <vector>

namespace support
{
class ShippedRace
{
public:
    // Loads the game from the source tree and starts the race, every car driven by the computer.
    explicit ShippedRace(std::uint64_t seed = 7);

    const std::vector<headless::Box>& Boxes() const { return Machine.Boxes; } // shown since the start
    shell::Form1& Form() { return *Application.Main(); }
    shell::Game& Game() { return Form().State(); }
    // One step of 25 ms.
    void Step(base::PhaseClock* clock = nullptr);
    // The camera of every 40th tick of the next `ticks`, in the views 0, 1 and 2 by turns: what a player sees.
    std::vector<render::Camera> RecordPath(int ticks);

private:
    headless::Machine Machine{base::Files(VELKAR_ROOT)};
    shell::Application Application;
};
}
