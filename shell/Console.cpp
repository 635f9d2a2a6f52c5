// The console's place in the form: its records, the keys that reach it, the clipboard and the clock it may set.
#include "shell/Form1.h"

namespace shell
{
console::Console Form1::MakeConsole()
{
    Game& game = TheGame;
    return {game.Scene,  game.Hud.Console, game.Hud.Debug,       game.Race,
            game.Camera, game.Screen,      game.Run.LastCommand, *this};
}

void Form1::Form_KeyPress(std::uint8_t code)
{
    if (TheGame.Timers.RenderT.Enabled == base::False)
        return;
    console::Console console = MakeConsole();
    console::ConsoleKeyPress(console, code);
}

void Form1::ConsoleKeyUp(std::int16_t code)
{
    console::Console console = MakeConsole();
    console::ConsoleKeyUp(console, code);
}

std::string Form1::ClipboardText()
{
    return TheWindow->ClipboardText();
}

void Form1::SetClipboardText(const std::string& text)
{
    TheWindow->SetClipboardText(text);
}

void Form1::SetElapsed(std::int32_t milliseconds)
{
    AdvanceTimers(); // it counts on from now, not from its last tick
    TheGame.Timers.GameT.Elapsed = milliseconds;
}
}
