// SPDX-License-Identifier: Zlib
// shell/RaceKeys.h: keys during a race: held flags, the rebindable one-shot actions, the fixed keys, and the console's
// line. The rebindable ones come first, in a fixed order: one that is bound to a fixed key takes that key over. While
// the race does not show nothing happens.
#pragma once
#include "shell/ConsoleLine.h"
#include "shell/RaceRun.h"

#include <functional>

namespace shell
{
class RaceKeys final
{
public:
    // openMenu: the race was suspended by a key.
    RaceKeys(Game& game, RaceRun& run, Sound& sound, ConsoleLine& console, std::function<void()> openMenu)
        : TheGame(game), Run(run), TheSound(sound), Console(console), OpenMenu(std::move(openMenu))
    {
    }

    // Codes as platform::WindowEvents has them.
    void Form_KeyDown(std::int16_t code);
    void Form_KeyUp(std::int16_t code);
    void Form_KeyPress(std::uint8_t code);

private:
    bool IsBound(KeyBindings::Action action, std::int16_t code) const;
    bool SetHeldKey(std::int16_t code, base::Flag held); // each of these is false where the key is another
    bool BoundKeyUp(std::int16_t code);
    void FixedKeyUp(std::int16_t code);
    void ToggleAutopilot();
    void StepViewPlayer(int step);

    Game& TheGame;
    RaceRun& Run;
    Sound& TheSound;
    ConsoleLine& Console;
    std::function<void()> OpenMenu;
};
}
