// SPDX-License-Identifier: Zlib
// shell/TickTimer.h: the periodic timer of the game. It follows a millisecond clock that is told to it; late ticks are
// merged into one and the phase is kept.
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"

#include <cstdint>

namespace shell
{
struct TickTimer
{
    base::Flag Enabled = base::False; // set by Enable and Disable
    std::int32_t interval = 40;       // milliseconds
    std::int32_t mininterval = 1;     // never ticks faster
    std::int32_t Ticks = 0;           // since it was last set to 0
    std::int32_t Elapsed = 0;         // milliseconds counted while enabled
    std::int32_t SinceTick = 0;       // milliseconds counted since the last tick was due
    std::uint32_t Clock = 0;          // the clock when last told

    // The next tick comes one whole interval after enabling.
    void Enable(std::uint32_t now);
    void Disable(std::uint32_t now);
    // Tells the clock. One that jumps backward counts as standing still.
    void Advance(std::uint32_t now);
    bool IsDue() const;             // as of the clock last told
    std::uint32_t UntilDue() const; // milliseconds, 0 when due; UINT32_MAX while disabled
    void Tick();                    // counts a tick and merges those that are late
};

struct Timers
{
    TickTimer GameT;    // a step of the simulation
    TickTimer RenderT;  // a frame; runs while the race is on the screen
    TickTimer CaptureT; // a webcam picture of the calibration
    TickTimer tmrLogo;  // the flicker of the menu's title

    void Advance(std::uint32_t now);
    std::uint32_t UntilDue() const; // of the first that is due
};
}

template <> struct base::FieldsOf<shell::TickTimer>
{
    using T = shell::TickTimer;
    static constexpr auto Table = std::make_tuple(Field{"Enabled", &T::Enabled}, Field{"interval", &T::interval},
                                                  Field{"Ticks", &T::Ticks}, Field{"Elapsed", &T::Elapsed});
};

template <> struct base::FieldsOf<shell::Timers>
{
    using T = shell::Timers;
    static constexpr auto Table =
        std::make_tuple(Field{"GameT", &T::GameT}, Field{"RenderT", &T::RenderT}, Field{"CaptureT", &T::CaptureT});
};
