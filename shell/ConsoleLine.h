// SPDX-License-Identifier: Zlib
// shell/ConsoleLine.h: the developer console's place in the program: which records it works on, the keys that reach it,
// the clipboard and the clock it may set. Runs on the window's thread.
#pragma once
#include "console/Console.h"
#include "platform/Platform.h"
#include "shell/Game.h"

#include <string>

namespace shell
{
class ConsoleLine final : private console::Host
{
public:
    ConsoleLine(Game& game, platform::Platform& platform, platform::Window& window)
        : TheGame(game), Platform(platform), Window(window)
    {
    }

    bool IsOpen() { return console::IsOpen(MakeConsole()); }
    void KeyPress(std::uint8_t code);
    void KeyUp(std::int16_t code);

private:
    console::Console MakeConsole();
    std::string ClipboardText() override { return Window.ClipboardText(); }
    void SetClipboardText(const std::string& text) override { Window.SetClipboardText(text); }
    void SetElapsed(std::int32_t milliseconds) override;

    Game& TheGame;
    platform::Platform& Platform;
    platform::Window& Window;
};
}
