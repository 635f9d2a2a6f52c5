// SPDX-License-Identifier: Zlib
// race_replay ROOT SETUP TICKS [THREADS…]: plays the driver script SETUP, then a game tick a line of the file TICKS,
// and compares the checksum after each with the line. The first wrong tick is named. Every fortieth sum, one a second,
// also takes the ground's tyre marks in. With THREADS the race is played as many times side by side, each with that
// many ground threads; every fortieth tick all of them draw, and their pictures must be the same. race_replay ROOT
// SETUP TICKS --record COUNT: writes the file TICKS instead, for COUNT ticks.
#include "tools/drive/Checksum.h"
#include "tools/drive/Driver.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <deque>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

namespace
{
constexpr int Second = 40; // ticks

int Whole(std::string_view word)
{
    int number = 0;
    std::from_chars(word.data(), word.data() + word.size(), number);
    return number;
}

bool PlaySetup(drive::Driver& driver, const char* path)
{
    std::ifstream script(path, std::ios::binary);
    for (std::string line; std::getline(script, line);)
    {
        const std::string answer = driver.Answer(line);
        if (!answer.empty() && answer != R"({"messages": []})")
            std::cout << line << "\n  " << answer << '\n';
    }
    if (!script.eof())
        std::cerr << "cannot read " << path << '\n';
    return script.eof() && !driver.HadErrors() && driver.State().Form() != nullptr;
}

shell::Game& Game(drive::Driver& driver)
{
    return driver.State().Form()->State();
}

// Whatever the machine has, this many bands and their walkers.
void WalkWith(drive::Driver& driver, int threads)
{
    render::Screen& screen = Game(driver).Screen;
    screen.ThreadCount = static_cast<std::int16_t>(threads);
    render::ApplyResolution(driver.State().Form()->Window(), screen, Game(driver).Camera, screen.ScreenW,
                            screen.ScreenH);
}

// The upper half of the sum after the next tick. It is enough: a race that has gone astray stays astray.
std::string SumAfter(drive::Driver& driver, int tick)
{
    driver.Answer("game");
    const shell::Game& game = Game(driver);
    const std::uint64_t sum = tick % Second == 0 ? drive::Checksum(game) : drive::TickChecksum(game);
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08x", static_cast<unsigned>(sum >> 32));
    return digits;
}

int Record(drive::Driver& driver, const char* path, int count)
{
    std::ofstream out(path, std::ios::binary);
    for (int tick = 1; tick <= count; ++tick)
        out << SumAfter(driver, tick) << '\n';
    out.close();
    return out ? 0 : 2;
}

std::string Where(drive::Driver& driver, int tick)
{
    return "tick " + std::to_string(tick) + " (race clock " + std::to_string(Game(driver).Race.GameTime) + " ms, " +
           std::to_string(Game(driver).Screen.ThreadCount) + " ground threads)";
}

bool SamePictures(std::deque<drive::Driver>& drivers, int tick)
{
    for (drive::Driver& driver : drivers)
    {
        driver.Answer("draw");
        if (Game(driver).Screen.Frame.Bytes == Game(drivers.front()).Screen.Frame.Bytes &&
            Game(driver).Screen.Depth == Game(drivers.front()).Screen.Depth)
            continue;
        std::cout << Where(driver, tick) << ": another picture than with " << Game(drivers.front()).Screen.ThreadCount
                  << '\n';
        return false;
    }
    return true;
}

int Compare(std::deque<drive::Driver>& drivers, const char* path)
{
    std::ifstream in(path, std::ios::binary);
    int tick = 0;
    for (std::string wanted; std::getline(in, wanted);)
    {
        ++tick;
        for (drive::Driver& driver : drivers)
            if (const std::string given = SumAfter(driver, tick); given != wanted)
            {
                std::cout << Where(driver, tick) << " is the first wrong one: expected " << wanted << ", played "
                          << given << '\n';
                return 1;
            }
        if (drivers.size() > 1 && tick % Second == 0 && !SamePictures(drivers, tick))
            return 1;
    }
    if (tick == 0)
        std::cerr << "no sums in " << path << '\n';
    return tick > 0 ? 0 : 2;
}
}

int main(int count, char** arguments)
{
    const std::span<char*> words(arguments, static_cast<std::size_t>(count));
    const bool records = words.size() == 6 && std::string_view(words[4]) == "--record" && Whole(words[5]) > 0;
    bool known = words.size() >= 4;
    if (known && !records)
        for (const char* word : words.subspan(4))
            known = known && Whole(word) >= 1 && Whole(word) <= 64;
    if (!known)
    {
        std::cerr << "usage: race_replay ROOT SETUP TICKS [THREADS...]\n"
                     "       race_replay ROOT SETUP TICKS --record COUNT\n";
        return 2;
    }
    const std::size_t races = records ? 1 : std::max<std::size_t>(words.size() - 4, 1);
    std::deque<drive::Driver> drivers;
    for (std::size_t i = 0; i < races; ++i)
    {
        if (!PlaySetup(drivers.emplace_back(base::Files(words[1])), words[2]))
            return 2;
        if (!records && words.size() > 4)
            WalkWith(drivers.back(), Whole(words[4 + i]));
    }
    return records ? Record(drivers.front(), words[3], Whole(words[5])) : Compare(drivers, words[3]);
}
