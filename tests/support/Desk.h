// SPDX-License-Identifier: Zlib
// tests/support/Desk.h: a console over the records of a small world, with a clipboard and a timer that only remember,
// and hands that use it.
#pragma once
#include "base/Text.h"
#include "console/Console.h"
#include "tests/support/World.h"

#include <optional>
#include <string>
#include <string_view>

namespace support
{
struct Desk : console::Host
{
    World TheWorld;
    render::Screen Screen;
    std::string LastCommand = "\\";
    std::string Clipboard;
    std::optional<std::int32_t> Elapsed; // as last set
    console::Console Console{TheWorld.Scene,  Label("\\"), Label(""),   TheWorld.Race,
                             TheWorld.Camera, Screen,      LastCommand, *this};

    render::Label2D& Line() { return TheWorld.Scene.Labels.At(Console.Line); }
    render::Label2D& Information() { return TheWorld.Scene.Labels.At(Console.Information); }
    bool IsOpen() { return Line().Visible != 0; }

    void KeyUp(int code) { console::ConsoleKeyUp(Console, static_cast<std::int16_t>(code)); }
    void Press(int code) { console::ConsoleKeyPress(Console, static_cast<std::uint8_t>(code)); }
    void Type(std::string_view text)
    {
        for (std::size_t at = 0; at < text.size();)
            Press(base::NextCode(text, at));
    }
    // The text of the label after the line was run.
    const std::string& Run(std::string_view line)
    {
        Line().Visible = 1;
        console::ExecConsoleCommand(Console, line);
        return Line().Text;
    }

    // ---- console::Host ----
    std::string ClipboardText() override { return Clipboard; }
    void SetClipboardText(const std::string& text) override { Clipboard = text; }
    void SetElapsed(std::int32_t milliseconds) override { Elapsed = milliseconds; }

private:
    std::int16_t Label(std::string_view text)
    {
        return render::MakeLabel2D(TheWorld.Scene, {.X = 1,
                                                    .Y = 1,
                                                    .Style = render::StartsAtX,
                                                    .Text = std::string(text),
                                                    .Scale = 0.5f,
                                                    .TabWidth = 4,
                                                    .Col = {255, 255, 255}});
    }
};
}
