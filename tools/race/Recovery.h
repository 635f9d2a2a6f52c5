// SPDX-License-Identifier: Zlib
// tools/race/Recovery.h: what a driver does who is stuck: back for a moment, then on; round what is in the way, where
// that was not enough.
#pragma once
#include "tools/race/Sight.h"

namespace race
{
// What to do in a tick.
struct Manoeuvre
{
    bool Backs = false;
    double Aside = 0; // radians to the left of where the driver wants to go
};

class Recovery
{
public:
    // How often a driver was stuck before one tries to get round; 0: as one who does not know what is in the way.
    explicit Recovery(int patience) : Patience(patience) {}

    // acceleration: what the car is capable of now. onward: the driver wants to go on, not to stand. Asked once a tick.
    Manoeuvre Next(const Seen& seen, double acceleration, bool onward);

private:
    bool IsStuck(const Seen& seen, double acceleration, bool onward);

    int Patience;
    int Stuck = 0, Back = 0, Round = 0; // ticks
    int Tries = 0;                      // each backs for longer, until the car has got away
    Spot Where;                         // the last time
    double Aside = 0;                   // of the way round
};
}
