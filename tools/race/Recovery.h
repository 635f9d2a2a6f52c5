// tools/race/Recovery.h: what a driver does who is stuck: back for a moment, then on.
#pragma once
#include "tools/race/Sight.h"

namespace race
{
class Recovery
{
public:
    // Whether the car is to back in this tick. onward: the driver wants to go on, not to stand. Asked once a tick.
    bool Backs(const Seen& seen, bool onward);

private:
    static constexpr double Crawl = 0.25;
    static constexpr int StuckTicks = 30, BackTicks = 45, LongestBack = 120;

    int Stuck = 0, Back = 0; // ticks
    int Tries = 0;           // each backs for longer, until the car has got away
    int Free = 0;            // ticks without trouble
};

inline bool Recovery::Backs(const Seen& seen, bool onward)
{
    if (Back > 0)
        return --Back > 0;
    const bool crawls = seen.Speed < Crawl && seen.Speed > -Crawl;
    Stuck = onward && crawls ? Stuck + 1 : 0;
    Free = crawls ? 0 : Free + 1;
    if (Free > 4 * TicksASecond)
        Tries = 0;
    if (Stuck < StuckTicks)
        return false;
    Stuck = 0;
    Back = BackTicks + 25 * Tries < LongestBack ? BackTicks + 25 * Tries : LongestBack;
    ++Tries;
    return true;
}
}
