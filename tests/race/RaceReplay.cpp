// race_replay ROOT SETUP TICKS [--record COUNT]: plays the driver script SETUP, then a game tick a line of the file
// TICKS, and compares the checksum after each with the line. The first wrong tick is named. Every fortieth sum, one a
// second, also takes the ground's tyre marks in. --record writes the file instead, for COUNT ticks.
#include "tools/drive/Checksum.h"
#include "tools/drive/Driver.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

namespace
{
constexpr int WholeSumEvery = 40; // ticks

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

std::string SumAfter(drive::Driver& driver, int tick)
{
    driver.Answer("game");
    const shell::Game& game = driver.State().Form()->State();
    const std::uint64_t sum = tick % WholeSumEvery == 0 ? drive::Checksum(game) : drive::TickChecksum(game);
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(sum));
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

int Compare(drive::Driver& driver, const char* path)
{
    std::ifstream in(path, std::ios::binary);
    int tick = 0;
    for (std::string wanted; std::getline(in, wanted);)
    {
        const std::string given = SumAfter(driver, ++tick);
        if (given == wanted)
            continue;
        std::cout << "tick " << tick << " (race clock " << driver.State().Form()->State().Race.GameTime
                  << " ms) is the first wrong one: expected " << wanted << ", played " << given << '\n';
        return 1;
    }
    if (tick == 0)
        std::cerr << "no sums in " << path << '\n';
    return tick > 0 ? 0 : 2;
}
}

int main(int count, char** arguments)
{
    int ticks = 0;
    const bool records = count == 6 && std::string_view(arguments[4]) == "--record";
    if (records)
    {
        const std::string_view number = arguments[5];
        std::from_chars(number.data(), number.data() + number.size(), ticks);
    }
    if (count != 4 && (!records || ticks < 1))
    {
        std::cerr << "usage: race_replay ROOT SETUP TICKS [--record COUNT]\n";
        return 2;
    }
    drive::Driver driver{base::Files(arguments[1])};
    if (!PlaySetup(driver, arguments[2]))
        return 2;
    return records ? Record(driver, arguments[3], ticks) : Compare(driver, arguments[3]);
}
