// SPDX-License-Identifier: Zlib
// What is seen, as files.
#include "base/BitmapFile.h"
#include "tools/drive/Session.h"

#include <array>
#include <bit>

namespace drive
{
namespace
{
// The name is taken before anything else, so that an ill-formed command writes nothing.
std::string FileName(Words& words)
{
    std::string name(Word(words, "the name of a file"));
    RequireEnd(words);
    return name;
}

void Save(Session& session, const std::string& name, std::string_view bytes)
{
    Require(session.Writer(name, bytes, Writing::Anew), "the file cannot be written");
}

void Frame(Session& session, Words& words, Object&)
{
    const std::string name = FileName(words);
    const render::Screen& screen = session.Form()->State().Screen;
    Require(screen.ScreenW > 0 && screen.ScreenH > 0, "there is no frame");
    Save(session, name, base::BitmapFile(screen.ScreenW, screen.ScreenH, screen.Frame.Bytes));
}

void Window(Session& session, Words& words, Object&)
{
    const std::string name = FileName(words);
    // Every window of this machine is a headless one.
    const auto& window = static_cast<const headless::Window&>(session.Form()->Window());
    const base::Bitmap image = window.Screenshot();
    Save(session, name, base::BitmapFile(image.Width, image.Height, image.Bytes));
}

void Depth(Session& session, Words& words, Object&)
{
    const std::string name = FileName(words);
    std::string bytes;
    for (const float depth : session.Form()->State().Screen.Depth.Cells)
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>((std::bit_cast<std::uint32_t>(depth) >> shift) & 0xFFu);
    Save(session, name, bytes);
}
}

std::span<const Command> FileCommands()
{
    static constexpr std::array commands = {
        Command{"frame", true, Frame},
        Command{"window", true, Window},
        Command{"depth", true, Depth},
    };
    return commands;
}
}
