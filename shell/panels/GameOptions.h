// SPDX-License-Identifier: Zlib
// shell/panels/GameOptions.h: the panel of the game's options: how many laps a race has.
#pragma once
#include "shell/panels/Panel.h"
#include "world/Race.h"

namespace panels
{
class GameOptions final : public Panel
{
public:
    // race: its Laps are written by the OK.
    GameOptions(Board& board, world::Race& race);
    void Place(platform::Size client) override;

    void cGameOptOK_Click(); // 1 to 99 laps; the panel stays where the text is refused

private:
    bool TakeLaps();

    world::Race& Race;
    std::int16_t lblGameOpt, lblLap, txtLap, cGameOptOK;
};
}
