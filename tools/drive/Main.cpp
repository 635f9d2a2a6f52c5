// SPDX-License-Identifier: Zlib
// velkar-drive [--root DIR] [SCRIPT]: plays a script, or standard input, and answers every line with one of JSON.
#include "platform/FindData.h"
#include "platform/StandardStreams.h"
#include "tools/drive/Driver.h"

#include <fstream>
#include <iostream>
#include <string_view>

namespace
{
constexpr int Failed = 1, Misused = 2;

enum class Line
{
    None,
    Whole,
    TooLong // what was too much is skipped
};

Line ReadLine(std::istream& in, std::string& text)
{
    text.clear();
    std::size_t length = 0;
    int c = in.get();
    if (c == std::istream::traits_type::eof())
        return Line::None;
    for (; c != std::istream::traits_type::eof() && c != '\n'; c = in.get())
        if (++length <= drive::LongestLine)
            text += static_cast<char>(c);
    return length <= drive::LongestLine ? Line::Whole : Line::TooLong;
}

int Play(drive::Driver& driver, std::istream& in)
{
    std::string text;
    for (Line line = ReadLine(in, text); line != Line::None; line = ReadLine(in, text))
    {
        const std::string answer = line == Line::Whole ? driver.Answer(text) : driver.Refuse("the line is too long");
        if (!answer.empty())
            std::cout << answer << '\n' << std::flush;
    }
    return driver.HadErrors() ? Failed : 0;
}

int Misuse()
{
    std::cerr << "usage: velkar-drive [--root DIR] [SCRIPT]\n"
                 "Plays a script (or standard input) with the headless game, one line of JSON a command.\n"
                 "DIR holds data/ and soundtracks/.\n";
    return Misused;
}
}

int main(int count, char** arguments)
{
    platform::KeepBytes();
    std::filesystem::path root, script;
    for (int i = 1; i < count; ++i)
    {
        const std::string_view argument = arguments[i];
        if (argument == "--root" && i + 1 < count)
            root = arguments[++i];
        else if (argument.starts_with("-") || !script.empty())
            return Misuse();
        else
            script = argument;
    }
    if (root.empty())
        root = platform::FindData(platform::ExecutablePath(arguments[0]));
    drive::Driver driver{base::Files(root)};
    if (script.empty())
        return Play(driver, std::cin);
    std::ifstream file(script, std::ios::binary);
    if (!file || std::filesystem::is_directory(script))
    {
        std::cerr << "velkar-drive: cannot read " << script.string() << '\n';
        return Misused;
    }
    return Play(driver, file);
}
