// SPDX-License-Identifier: Zlib
// sound_probe: listens to a recording (signed 16-bit little-endian stereo at 44100 Hz without a header).
//   sound_probe engine RECORDING SAMPLE STEPS   the engine goes through the steps in their order, two falls at least
//   sound_probe gap RECORDING MS                no silence longer than that between the first sound and the last
//   sound_probe silence RECORDING               nothing is heard
//   sound_probe tones RECORDING HZ…             which of the tones sounds when: their places in the list, one a line
//   sound_probe write-tone FILE HZ SECONDS      music to record
// Says what it hears; status 1 where it is not as it should be.
#include "base/Numbers.h"
#include "tests/support/MusicFile.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{
constexpr int RecordedRate = 44100;
constexpr int StreamRate = 11025, Ratio = RecordedRate / StreamRate;

std::vector<char> Bytes(const char* file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The left channel, -1 to 1.
std::vector<float> Recording(const char* file)
{
    const std::vector<char> bytes = Bytes(file);
    std::vector<float> samples;
    for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4)
        samples.push_back(static_cast<float>(static_cast<std::int16_t>(static_cast<std::uint8_t>(bytes[at]) |
                                                                       static_cast<std::uint8_t>(bytes[at + 1]) << 8)) /
                          32768.0f);
    return samples;
}

// ---- Levels ----

constexpr float Audible = 0.004f; // of full scale

double Decibels(double level)
{
    return 20 * std::log10(std::max(level, 1e-9));
}

// The first and the last audible sample; nothing where there is none.
std::optional<std::pair<std::size_t, std::size_t>> Sounding(const std::vector<float>& sound)
{
    const auto audible = [](float v) { return std::fabs(v) > Audible; };
    const auto first = std::find_if(sound.begin(), sound.end(), audible);
    if (first == sound.end())
        return std::nullopt;
    const auto last = std::find_if(sound.rbegin(), sound.rend(), audible);
    return std::pair(static_cast<std::size_t>(first - sound.begin()),
                     static_cast<std::size_t>(sound.rend() - last) - 1);
}

int Gap(const std::vector<float>& sound, double most)
{
    const auto range = Sounding(sound);
    if (!range)
    {
        std::puts("nothing is heard");
        return 1;
    }
    std::size_t longest = 0, at = 0, run = 0;
    for (std::size_t i = range->first; i <= range->second; ++i)
    {
        run = std::fabs(sound[i]) > Audible ? 0 : run + 1;
        if (run > longest)
        {
            longest = run;
            at = i;
        }
    }
    const double milliseconds = 1000.0 * static_cast<double>(longest) / RecordedRate;
    std::printf("sound for %.2f s, its longest silence is %.1f ms, %.2f s after its beginning\n",
                static_cast<double>(range->second - range->first) / RecordedRate, milliseconds,
                static_cast<double>(at - range->first) / RecordedRate);
    return milliseconds <= most ? 0 : 1;
}

int Silence(const std::vector<float>& sound)
{
    const auto range = Sounding(sound);
    std::printf("%.2f s recorded, %s\n", static_cast<double>(sound.size()) / RecordedRate,
                range ? "and something is heard" : "silent");
    return range || sound.empty() ? 1 : 0;
}

// ---- The engine ----

constexpr int WindowFrames = 512, HopFrames = 256, Thinning = 4, StretchLength = WindowFrames / Thinning;
constexpr double LeastStep = 0.16, MostStep = 0.68;

std::vector<float> ToStreamRate(const std::vector<float>& sound)
{
    std::vector<float> slow;
    for (std::size_t at = 0; at + Ratio <= sound.size(); at += Ratio)
        slow.push_back(std::accumulate(sound.begin() + static_cast<std::ptrdiff_t>(at),
                                       sound.begin() + static_cast<std::ptrdiff_t>(at) + Ratio, 0.0f) /
                       Ratio);
    return slow;
}

struct Heard
{
    double Time = 0, Step = 0, Position = 0; // seconds, entries a frame, entry
    double Likeness = 0, Level = 0;          // 0 to 1; effective, of full scale
};

// A stretch of the loop as it would sound from that position with that step, every Thinning-th frame, as long as `out`.
void LoopFrom(const std::vector<float>& table, double position, double step, float* out)
{
    for (int i = 0; i < StretchLength; ++i)
    {
        out[i] = table[static_cast<std::size_t>(std::nearbyint(position))];
        for (int k = 0; k < Thinning; ++k)
            position = position + step > 1023 ? 0 : position + step;
    }
}

// Several sums side by side: one would wait for each addition.
float Product(const float* a, const float* b)
{
    constexpr int Lanes = 8;
    std::array<float, Lanes> sums{};
    for (int i = 0; i < StretchLength; i += Lanes)
        for (int lane = 0; lane < Lanes; ++lane)
            sums[static_cast<std::size_t>(lane)] += a[i + lane] * b[i + lane];
    return std::accumulate(sums.begin(), sums.end(), 0.0f);
}

void Normalise(float* stretch)
{
    const float power = Product(stretch, stretch);
    for (int i = 0; power > 0 && i < StretchLength; ++i)
        stretch[i] /= std::sqrt(power);
}

// All stretches of the loop, so near to one another that its highest strong harmonics, a few entries long, fall
// together with those of whatever is heard.
class Ear
{
public:
    explicit Ear(std::vector<float> loop) : Table(std::move(loop))
    {
        for (double step = LeastStep; step <= MostStep; step *= StepRatio)
            for (double position = 0; position <= 1023; position += Stride)
            {
                Places.push_back({step, position});
                Stretches.resize(Places.size() * StretchLength);
                float* stretch = &Stretches[(Places.size() - 1) * StretchLength];
                LoopFrom(Table, position, step, stretch);
                Normalise(stretch);
            }
    }

    // The step whose stretch of the loop is most like this window, wherever in the loop it begins.
    Heard Listen(const std::vector<float>& sound, std::size_t from) const
    {
        Stretch window{};
        double power = 0;
        for (std::size_t i = 0; i < WindowFrames; ++i)
        {
            power += static_cast<double>(sound[from + i]) * sound[from + i];
            if (i % Thinning == 0)
                window[i / Thinning] = sound[from + i];
        }
        Normalise(window.data());
        Heard best;
        best.Time = static_cast<double>(from + WindowFrames / 2) / StreamRate;
        best.Level = std::sqrt(power / WindowFrames);
        const auto consider = [&](double step, double position, const float* stretch)
        {
            const double likeness = Product(window.data(), stretch);
            if (likeness > best.Likeness)
            {
                best.Likeness = likeness;
                best.Step = step;
                best.Position = position;
            }
        };
        for (std::size_t i = 0; i < Places.size(); ++i)
            consider(Places[i].Step, Places[i].Position, &Stretches[i * StretchLength]);
        if (best.Likeness <= 0)
            return best; // silence: a search from step 0 would never end
        const Heard coarse = best;
        for (double step = coarse.Step / StepRatio; step <= coarse.Step * StepRatio; step *= 1.001)
            for (double at = coarse.Position - Stride; at <= coarse.Position + Stride; at += 0.5)
            {
                const double position = at < 0 ? at + 1023 : at > 1023 ? at - 1023 : at;
                Stretch stretch{};
                LoopFrom(Table, position, step, stretch.data());
                Normalise(stretch.data());
                consider(step, position, stretch.data());
            }
        return best;
    }

private:
    static constexpr double StepRatio = 1.006, Stride = 2;
    using Stretch = std::array<float, StretchLength>;
    struct Place
    {
        double Step, Position;
    };
    std::vector<float> Table;
    std::vector<Place> Places;
    std::vector<float> Stretches; // as many for each place as a stretch is long
};

std::vector<float> Table(const char* file)
{
    std::vector<float> table(1024);
    const std::vector<char> bytes = Bytes(file);
    for (std::size_t i = 0; i < std::min(bytes.size(), table.size()); ++i)
        table[i] = static_cast<float>(static_cast<std::uint8_t>(bytes[i]) - 128);
    return table;
}

std::vector<double> Numbers(const char* file)
{
    std::ifstream in(file);
    return {std::istream_iterator<double>(in), {}};
}

// Where in the steps, from here on, this one is, so many seconds later: the first that is nearer than a hundredth, else
// the nearest within a twentieth; nothing where there is none up to a third of a second later than that.
std::optional<std::size_t> Follow(const std::vector<double>& steps, std::size_t from, double step, double seconds)
{
    constexpr double Ahead = 14, TicksPerSecond = 40;
    constexpr double Close = 0.01, Near = 0.05;
    const std::size_t end = from + static_cast<std::size_t>(base::RoundEven(Ahead + seconds * TicksPerSecond));
    std::optional<std::size_t> found;
    double least = Near;
    for (std::size_t k = from; k < std::min(steps.size(), end); ++k)
    {
        const double error = std::fabs(step / steps[k] - 1);
        if (error <= Close)
            return k;
        if (error <= least)
        {
            least = error;
            found = k;
        }
    }
    return found;
}

// A window in which the step changes much is like no stretch of the loop: it is left out. All others must go through
// the steps in their order, from standstill to the last of them.
int Engine(const std::vector<float>& recorded, const Ear& ear, const std::vector<double>& steps)
{
    constexpr double Clear = 0.95;
    const std::vector<float> sound = ToStreamRate(recorded);
    std::size_t at = 0, still = 0, moving = 0, wrong = 0, shifts = 0;
    double furthest = 0, found = 0; // seconds of the last window that was
    for (std::size_t from = 0; from + WindowFrames <= sound.size() && at + 1 < steps.size(); from += HopFrames)
    {
        const Heard heard = ear.Listen(sound, from);
        if (heard.Likeness < Clear)
            continue;
        const std::optional<std::size_t> next = Follow(steps, at, heard.Step, still > 0 ? heard.Time - found : 0);
        std::printf("%6.2f s  step %.3f  likeness %.2f  %5.1f dB", heard.Time, heard.Step, heard.Likeness,
                    Decibels(heard.Level));
        if (!next)
        {
            std::puts("  WRONG");
            ++wrong;
            continue;
        }
        std::printf("  tick %zu: %.3f\n", *next, steps[*next]);
        found = heard.Time;
        furthest = std::max(furthest, std::fabs(heard.Step / steps[*next] - 1));
        for (; at < *next; ++at)
            shifts += steps[at + 1] < steps[at] * 0.9 ? 1 : 0;
        ++(at <= 1 ? still : moving); // the first ticks' steps are told apart by chance alone
        if (at + 5 >= steps.size())
            break;
    }
    std::printf("%zu windows of standstill, %zu of motion, %zu gear changes, %zu wrong, the others within %.1f %%; "
                "tick %zu of %zu reached\n",
                still, moving, shifts, wrong, furthest * 100, at, steps.size());
    return still >= 5 && moving >= 20 && shifts >= 2 && wrong == 0 && at + 5 >= steps.size() ? 0 : 1;
}

// ---- Tones ----

double Strength(const std::vector<float>& sound, std::size_t from, std::size_t count, double frequency)
{
    double re = 0, im = 0;
    for (std::size_t i = 0; i < count; ++i)
    {
        const double angle = 2 * 3.14159265358979 * frequency * static_cast<double>(i) / RecordedRate;
        re += sound[from + i] * std::cos(angle);
        im += sound[from + i] * std::sin(angle);
    }
    return std::sqrt(re * re + im * im) / static_cast<double>(count);
}

int Tones(const std::vector<float>& sound, const std::vector<double>& frequencies)
{
    constexpr std::size_t Window = RecordedRate / 10;
    int last = -1;
    for (std::size_t from = 0; from + Window <= sound.size(); from += Window)
    {
        int now = -1;
        double strongest = 0.02;
        for (std::size_t f = 0; f < frequencies.size(); ++f)
            if (const double strength = Strength(sound, from, Window, frequencies[f]); strength > strongest)
            {
                strongest = strength;
                now = static_cast<int>(f);
            }
        if (now >= 0 && now != last)
            std::printf("%d\n", now);
        last = now >= 0 ? now : last;
    }
    return 0;
}
}

int main(int count, char** words)
{
    const std::string_view what = count > 2 ? words[1] : "";
    if (what == "engine" && count == 5)
        return Engine(Recording(words[2]), Ear(Table(words[3])), Numbers(words[4]));
    if (what == "gap" && count == 4)
        return Gap(Recording(words[2]), std::atof(words[3]));
    if (what == "silence" && count == 3)
        return Silence(Recording(words[2]));
    if (what == "tones")
    {
        std::vector<double> frequencies;
        for (int i = 3; i < count; ++i)
            frequencies.push_back(std::atof(words[i]));
        return Tones(Recording(words[2]), frequencies);
    }
    if (what == "write-tone" && count == 5)
        return support::WriteTone(words[2], {.Frequency = std::atof(words[3]), .Seconds = std::atof(words[4])}) ? 0 : 1;
    std::fputs("usage: sound_probe engine|gap|silence|tones|write-tone …\n", stderr);
    return 2;
}
