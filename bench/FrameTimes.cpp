// SPDX-License-Identifier: Zlib
// frame_times: how long whole frames of the shipped map take on the system that it is built for. Needs no library, so
// that the same measurement runs as a Windows program.
//   frame_times [ROUNDS]    so often along the recorded camera path, 1 to 1000, by default 20
// Prints a line a setting: its name, a tab, the median in milliseconds.
#include "bench/ShippedFrames.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <vector>

namespace
{
struct Setting
{
    std::int32_t Width, Height;
    std::int16_t Filter;
};
constexpr Setting Settings[] = {{600, 312, 0}, {600, 312, 2}, {1200, 900, 0}, {1200, 900, 2}};

double Median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

double MedianFrame(bench::ShippedFrames& frames, const Setting& setting, std::size_t rounds)
{
    using Clock = std::chrono::steady_clock;
    frames.Prepare(setting.Width, setting.Height, setting.Filter);
    for (std::size_t i = 0; i < frames.PathLength(); ++i) // caches and threads warm, and back at the beginning
        frames.Draw();
    std::vector<double> times(rounds * frames.PathLength());
    for (double& time : times)
    {
        const Clock::time_point start = Clock::now();
        frames.Draw();
        time = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }
    return Median(times);
}
}

int main(int count, char** words)
{
    std::size_t rounds = 20;
    if (count > 1)
    {
        const char* end = words[1] + std::strlen(words[1]);
        const auto [rest, error] = std::from_chars(words[1], end, rounds);
        if (count > 2 || error != std::errc() || rest != end || rounds < 1 || rounds > 1000)
        {
            std::fputs("usage: frame_times [ROUNDS], 1 to 1000\n", stderr);
            return 2;
        }
    }
    bench::ShippedFrames frames;
    for (const Setting& setting : Settings)
        std::printf("%dx%d \"%s\"\t%.3f\n", static_cast<int>(setting.Width), static_cast<int>(setting.Height),
                    bench::FilterName(setting.Filter), MedianFrame(frames, setting, rounds));
}
