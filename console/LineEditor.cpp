// SPDX-License-Identifier: Zlib
// The line: opening, closing, recall and editing.
#include "base/Text.h"
#include "console/Console.h"
#include "platform/Keys.h"

namespace console
{
namespace
{
constexpr char Backslash = '\\';      // every line begins with it; it cannot be deleted
constexpr std::size_t MostOfCode = 3; // bytes of UTF-8 that a character of the code page takes

void Append(std::string& line, std::uint8_t code)
{
    if (line.size() + MostOfCode <= LongestLine)
        base::AppendCode(line, code);
}

void Paste(std::string& line, std::string_view clipboard)
{
    line.clear();
    if (!clipboard.starts_with(Backslash))
        line = Backslash;
    for (std::size_t at = 0; at < clipboard.size() && line.size() + MostOfCode <= LongestLine;)
        base::AppendCode(line, base::NextCode(clipboard, at));
}

void RemoveLast(std::string& line)
{
    std::size_t end = line.size();
    base::PreviousCode(line, end);
    line.resize(end);
}
}

bool IsOpen(const Console& console)
{
    return console.Scene.Labels.Has(console.Line) && console.Scene.Labels.At(console.Line).Visible != 0;
}

void ConsoleKeyPress(Console& console, std::uint8_t keyAscii)
{
    if (!IsOpen(console))
        return;
    std::string& line = console.Scene.Labels.At(console.Line).Text;
    if (!line.starts_with(Backslash))
        line = Backslash;
    const bool isMore = line.size() > 1; // than the backslash
    switch (keyAscii)
    {
    case platform::CtrlC:
        // Deliberate: an answer has just given way to a new line, so it is never copied.
        return console.Around.SetClipboardText(line);
    case platform::CtrlV:
        return Paste(line, console.Around.ClipboardText());
    case platform::Enter:
        if (!isMore)
            return;
        console.LastCommand = line;
        return ExecConsoleCommand(console, console.LastCommand);
    case platform::Backspace:
        if (isMore)
            RemoveLast(line);
        return;
    default:
        return Append(line, keyAscii); // Deliberate: control characters too
    }
}

void ConsoleKeyUp(Console& console, std::int16_t keyCode)
{
    if (!console.Scene.Labels.Has(console.Line))
        return;
    render::Label2D& label = console.Scene.Labels.At(console.Line);
    if (label.Visible == 0 && keyCode == platform::KeyBackslash)
    {
        label.Text = Backslash;
        label.Visible = 1;
    }
    else if (label.Visible != 0 && keyCode == platform::KeyEsc)
        label.Visible = 0;
    else if (label.Visible != 0 && keyCode == platform::KeyUp)
        label.Text = console.LastCommand;
}
}
