// SPDX-License-Identifier: Zlib
// base/PhaseClock.h: how long the phases of a frame or of a tick take. Whoever does the work enters one phase after
// another; whoever measures reads the sums. Of one thread. Nothing that the game does depends on it.
#pragma once
#include <chrono>
#include <span>
#include <vector>

namespace base
{
class PhaseClock
{
public:
    using Clock = std::chrono::steady_clock;
    struct Phase
    {
        const char* Name = "";
        Clock::duration Time{}; // spent in it, all times together
    };

    // The present phase ends and that one begins, or goes on. name: a literal; the same text is the same phase.
    void Enter(const char* name);
    // The present phase ends.
    void Leave();
    // In the order in which they were entered first.
    std::span<const Phase> Phases() const { return List; }

private:
    std::vector<Phase> List;
    std::ptrdiff_t Present = -1; // index; -1 none
    Clock::time_point Since;
};

// For work that is measured only now and then: nothing where there is no clock.
inline void EnterPhase(PhaseClock* clock, const char* name)
{
    if (clock != nullptr)
        clock->Enter(name);
}
inline void LeavePhase(PhaseClock* clock)
{
    if (clock != nullptr)
        clock->Leave();
}
}
