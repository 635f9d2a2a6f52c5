// SPDX-License-Identifier: Zlib
#include "shell/TickTimer.h"

#include <algorithm>
#include <limits>

namespace shell
{
namespace
{
constexpr std::int32_t Longest = std::numeric_limits<std::int32_t>::max();

std::int32_t AddLimited(std::int32_t value, std::int32_t more)
{
    return value > Longest - more ? Longest : value + more;
}

std::int32_t Period(const TickTimer& timer)
{
    return std::max({timer.interval, timer.mininterval, 1});
}
}

void TickTimer::Enable(std::uint32_t now)
{
    Advance(now);
    if (Enabled == base::False)
        SinceTick = 0;
    Enabled = base::True;
}

void TickTimer::Disable(std::uint32_t now)
{
    Advance(now);
    Enabled = base::False;
}

void TickTimer::Advance(std::uint32_t now)
{
    // The clock wraps at 2^32: the difference, taken as signed, is right across the wrap.
    const auto passed = static_cast<std::int32_t>(now - Clock);
    Clock = now;
    if (Enabled == base::False || passed <= 0)
        return;
    Elapsed = AddLimited(Elapsed, passed);
    SinceTick = AddLimited(SinceTick, passed);
}

bool TickTimer::IsDue() const
{
    return Enabled != base::False && SinceTick >= Period(*this);
}

std::uint32_t TickTimer::UntilDue() const
{
    if (Enabled == base::False)
        return std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::max(0, Period(*this) - SinceTick));
}

void TickTimer::Tick()
{
    Ticks = AddLimited(Ticks, 1);
    SinceTick %= Period(*this);
}

void Timers::Advance(std::uint32_t now)
{
    for (TickTimer* timer : {&GameT, &RenderT, &CaptureT, &tmrLogo})
        timer->Advance(now);
}

std::uint32_t Timers::UntilDue() const
{
    return std::min({GameT.UntilDue(), RenderT.UntilDue(), CaptureT.UntilDue(), tmrLogo.UntilDue()});
}
}
