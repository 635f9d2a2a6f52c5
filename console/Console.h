// SPDX-License-Identifier: Zlib
// console/Console.h: the developer console: one line of text over the race, edited character by character, and the
// commands that it runs on the cars, the camera and the clock. Line and answers are the text of one label of the
// display. Texts are UTF-8, characters those of the system code page. Runs on the window's thread, between ticks.
#pragma once
#include "render/Scene.h"
#include "render/Screen.h"
#include "world/Race.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace console
{
// What the console asks of the program around it.
struct Host
{
    virtual ~Host() = default;
    virtual std::string ClipboardText() = 0; // any bytes: what is not UTF-8 is read as "?"
    virtual void SetClipboardText(const std::string& text) = 0;
    // The elapsed time of the game's timer, from which the next tick takes the race clock.
    virtual void SetElapsed(std::int32_t milliseconds) = 0;
};

// What the console reads and changes, borrowed from the game; it keeps nothing of its own, so one is made for each
// call.
struct Console
{
    render::Scene& Scene; // the labels, and the cars' objects, which "position" reads and moves
    std::int16_t Line;    // the label that is the console; open while it is visible, edited while it begins with "\"
    std::int16_t Information; // the label that "\inf" shows and hides
    world::Race& Race;        // the players and who of them is the user's; the race clock is read only
    render::Camera& Camera;   // zoom and radius; the player that it follows is read only
    render::Screen& Screen;   // its texture filter
    std::string& LastCommand; // the line last entered, backslash included, for recall
    Host& Around;
};

// Bytes of the line that is edited. Characters beyond are not taken, a longer clipboard is cut: no line of use is
// nearly as long, and one of this length still draws within a frame.
inline constexpr std::size_t LongestLine = 1u << 16;

bool IsOpen(const Console& console);
// A typed character, while the console is open: 3 copies the line, 22 replaces it by the clipboard, 13 runs it,
// 8 shortens it, every other one is appended. The first one after an answer begins a new line.
void ConsoleKeyPress(Console& console, std::uint8_t keyAscii);
// A key released, by virtual-key code: 220 opens; while open, 27 closes and 38 recalls the last command.
void ConsoleKeyUp(Console& console, std::int16_t keyCode);
// Runs a line, backslash included, and shows its answer; a command without one closes the console. What goes wrong is
// the answer too: nothing is thrown, and nothing has changed then.
void ExecConsoleCommand(Console& console, std::string_view line);
}
