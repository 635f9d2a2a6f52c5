// SPDX-License-Identifier: Zlib
// Room of assets/sound/synth/Effects.h: eight delay lines that feed each other.
#include "assets/sound/synth/Effects.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Filter.h"
#include "assets/sound/synth/Wave.h"
#include "base/Numbers.h"

#include <array>

namespace assets::sound
{
namespace
{
constexpr std::size_t Lines = 8;
constexpr std::array<double, Lines> Milliseconds{31.71, 37.11, 40.97, 44.83, 53.69, 58.91, 66.13, 71.57};
constexpr double Wander = 9; // frames by which a line's length moves, against a metallic ring

// Smears a sound without colouring it.
class Diffuser
{
public:
    explicit Diffuser(double milliseconds) : Cells(Frames(milliseconds / 1000)) {}
    double Run(double in)
    {
        double& cell = Cells[At];
        const double old = cell;
        cell = in + 0.62 * old;
        At = At + 1 == Cells.size() ? 0 : At + 1;
        return old - 0.62 * cell;
    }

private:
    std::vector<double> Cells;
    std::size_t At = 0;
};

struct Line
{
    std::vector<double> Cells;
    double Length, Loss;
    OnePole Damp;
    double Speed, Phase;

    double Read(std::size_t now) const
    {
        const double back = Length + Wander * Sine(Phase + Speed * static_cast<double>(now) / Rate);
        const auto whole = static_cast<std::size_t>(base::Floor(back));
        const std::size_t size = Cells.size(), at = (now + size * 2 - whole) % size;
        return Lerp(Cells[at], Cells[(at + size - 1) % size], back - static_cast<double>(whole));
    }
};

Line LineOf(const RoomSettings& s, std::size_t index)
{
    const double length = Milliseconds[index] * s.Size * Rate / 1000;
    const double number = static_cast<double>(index);
    return {std::vector<double>(Frames(length / Rate) + 32),
            length,
            std::pow(10.0, -3 * length / (Rate * s.Seconds)),
            OnePole(s.Damp),
            0.31 + 0.093 * number,
            number / Lines};
}

// Every line is given to all others: sums and differences, three times over.
void Mix(std::array<double, Lines>& values)
{
    for (std::size_t step = 1; step < Lines; step *= 2)
        for (std::size_t i = 0; i < Lines; i += step * 2)
            for (std::size_t j = i; j < i + step; ++j)
            {
                const double a = values[j], b = values[j + step];
                values[j] = (a + b) * 0.70710678;
                values[j + step] = (a - b) * 0.70710678;
            }
}
}

Stereo Room(const Stereo& sound, const RoomSettings& s)
{
    Stereo out(sound.Size());
    std::vector<Line> lines;
    for (std::size_t i = 0; i < Lines; ++i)
        lines.push_back(LineOf(s, i));
    std::array<Diffuser, 3> left{Diffuser(4.77), Diffuser(8.31), Diffuser(13.27)};
    std::array<Diffuser, 3> right{Diffuser(5.13), Diffuser(7.93), Diffuser(14.03)};
    StateFilter lowLeft(s.Low, 0.7), lowRight(s.Low, 0.7);
    const std::size_t before = Frames(s.Before);
    for (std::size_t i = 0; i < sound.Size(); ++i)
    {
        double l = i < before ? 0 : lowLeft.High(sound.Left[i - before]);
        double r = i < before ? 0 : lowRight.High(sound.Right[i - before]);
        for (Diffuser& d : left)
            l = d.Run(l);
        for (Diffuser& d : right)
            r = d.Run(r);
        std::array<double, Lines> values;
        double outLeft = 0.25 * l, outRight = 0.25 * r; // the first walls
        for (std::size_t k = 0; k < Lines; ++k)
        {
            values[k] = lines[k].Damp.Low(lines[k].Read(i)) * lines[k].Loss;
            const double sign = k % 4 < 2 ? 1 : -1;
            (k % 2 == 0 ? outLeft : outRight) += sign * values[k];
        }
        Mix(values);
        for (std::size_t k = 0; k < Lines; ++k)
            lines[k].Cells[i % lines[k].Cells.size()] = values[k] + (k % 2 == 0 ? l : r) * 0.6;
        out.Put(i, outLeft, outRight);
    }
    return out;
}
}
