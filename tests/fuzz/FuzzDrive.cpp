// SPDX-License-Identifier: Zlib
// Any bytes as a driver script on the small world. Whatever is asked or set, every line is answered with one line of
// JSON in UTF-8, and the game goes on or has ended.
#include "fuzz/Folder.h"
#include "tools/drive/Driver.h"

#include <algorithm>
#include <cstdlib>

namespace
{
// Small, so that an input takes milliseconds.
constexpr drive::Limits Few{.Ticks = 20, .Frames = 1, .Milliseconds = 60, .Buffers = 9};
constexpr int MostLines = 30;

bool Discard(const std::string&, std::string_view, drive::Writing)
{
    return true;
}

// Not a parser: what the writer of answers could get wrong.
bool IsOneObject(std::string_view answer)
{
    const bool printable = std::none_of(answer.begin(), answer.end(),
                                        [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; });
    return printable && answer.starts_with("{") && answer.ends_with("]}") &&
           answer.find("\"messages\": [") != std::string_view::npos;
}

void Check(std::string_view answer)
{
    if (!answer.empty() && !IsOneObject(answer))
        std::abort();
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view script = fuzz::Text(data, size);
    drive::Driver driver{base::Files(VELKAR_SMALL), Discard, Few};
    if (!script.starts_with('!')) // with it the script begins before the game is loaded
        for (const char* line : {"load", "click cSTART", "poke timers.GameT.Elapsed 3000"})
            Check(driver.Answer(line));
    for (int lines = 0; lines < MostLines && !script.empty(); ++lines)
    {
        const std::size_t end = std::min(script.find('\n'), script.size());
        Check(driver.Answer(script.substr(0, end)));
        script.remove_prefix(std::min(end + 1, script.size()));
    }
    return 0;
}
