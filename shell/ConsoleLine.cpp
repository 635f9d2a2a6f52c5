// SPDX-License-Identifier: Zlib
#include "shell/ConsoleLine.h"

namespace shell
{
console::Console ConsoleLine::MakeConsole()
{
    Game& game = TheGame;
    return {game.Scene,  game.Hud.Console, game.Hud.Debug,       game.Race,
            game.Camera, game.Screen,      game.Run.LastCommand, *this};
}

void ConsoleLine::KeyPress(std::uint8_t code)
{
    console::Console console = MakeConsole();
    console::ConsoleKeyPress(console, code);
}

void ConsoleLine::KeyUp(std::int16_t code)
{
    console::Console console = MakeConsole();
    console::ConsoleKeyUp(console, code);
}

void ConsoleLine::SetElapsed(std::int32_t milliseconds)
{
    TheGame.Timers.Advance(Platform.TickCount()); // it counts on from now, not from its last tick
    TheGame.Timers.GameT.Elapsed = milliseconds;
}
}
