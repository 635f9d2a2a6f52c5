// SPDX-License-Identifier: Zlib
#include "tools/drive/Session.h"

#include <algorithm>
#include <fstream>

namespace drive
{
bool WriteToDisk(const std::string& path, std::string_view bytes, Writing mode)
{
    std::ofstream out(std::filesystem::path(std::u8string(path.begin(), path.end())),
                      mode == Writing::Append ? std::ios::binary | std::ios::app : std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    return !out.fail();
}

void Session::Pass(std::uint32_t milliseconds)
{
    Application->RunTimers(); // what is due already
    while (milliseconds > 0 && !Ended())
    {
        // A timer that stays due after it has fired must not keep the clock from going on.
        const std::uint32_t step = std::clamp(Application->NextTimer(), 1u, milliseconds);
        Machine.Clock += step;
        milliseconds -= step;
        Application->RunTimers();
        Machine.PumpEvents();
    }
}

void Session::Step(base::PhaseClock* clock)
{
    constexpr std::uint32_t GameStep = 25; // milliseconds
    Machine.Clock += GameStep;
    if (Form()->State().Timers.GameT.Enabled != base::False)
        Form()->Race().GameT_Tick(clock);
}

void Require(bool condition, std::string_view why)
{
    if (!condition)
        throw Refusal{std::string(why)};
}

void RequireEnd(Words& words)
{
    Require(words.AtEnd(), "the command has too many words");
}

std::string_view Word(Words& words, std::string_view what)
{
    const std::string_view word = words.Next();
    Require(!word.empty(), std::string(what) + " is missing");
    return word;
}
}
