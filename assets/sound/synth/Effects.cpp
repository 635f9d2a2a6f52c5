// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Effects.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Biquad.h"
#include "assets/sound/synth/Filter.h"
#include "assets/sound/synth/Oversample.h"
#include "assets/sound/synth/Wave.h"
#include "base/Numbers.h"

namespace assets::sound
{
namespace
{
void DriveSide(std::vector<float>& side, double gain, double lean)
{
    Upsampler up;
    Downsampler down;
    const double rest = std::tanh(lean);
    // What goes in comes out Delay frames later; the beginning of the result is left out.
    constexpr std::size_t Delay = Upsampler::Reach + Downsampler::Reach;
    for (std::size_t i = 0; i < side.size() + Delay; ++i)
    {
        auto fine = up.Next(i < side.size() ? gain * side[i] : 0.0);
        for (double& value : fine)
            value = std::tanh(value + lean) - rest;
        const double out = down.Next(fine);
        if (i >= Delay)
            side[i - Delay] = static_cast<float>(out);
    }
}
}

void CutLow(Stereo& sound, double hz)
{
    RunBoth(sound, HighPassOf(hz, 0.7071));
}

void CutHigh(Stereo& sound, double hz)
{
    RunBoth(sound, LowPassOf(hz, 0.7071));
}

void Bell(Stereo& sound, double hz, double q, double decibels)
{
    RunBoth(sound, BellOf(hz, q, decibels));
}

void HighShelf(Stereo& sound, double hz, double decibels)
{
    RunBoth(sound, HighShelfOf(hz, decibels));
}

void Drive(Stereo& sound, double decibels, double lean)
{
    DriveSide(sound.Left, Decibels(decibels), lean);
    DriveSide(sound.Right, Decibels(decibels), lean);
    CutLow(sound, 20); // the lean leaves an offset
}

void Widen(Stereo& sound, double hz, double decibels)
{
    Biquad high = HighPassOf(hz, 0.7071);
    const double gain = Decibels(decibels);
    for (std::size_t i = 0; i < sound.Size(); ++i)
    {
        const double middle = 0.5 * (sound.Left[i] + sound.Right[i]);
        const double side = gain * high.Run(0.5 * (sound.Left[i] - sound.Right[i]));
        sound.Put(i, middle + side, middle - side);
    }
}

void Chorus(Stereo& sound, double depth, double mix)
{
    constexpr std::size_t Room = 2048;
    std::vector<double> left(Room), right(Room);
    const auto read = [](const std::vector<double>& line, std::size_t at, double back)
    {
        const auto whole = static_cast<std::size_t>(base::Floor(back));
        const double part = back - static_cast<double>(whole);
        return Lerp(line[(at + Room - whole) % Room], line[(at + Room - whole - 1) % Room], part);
    };
    for (std::size_t i = 0; i < sound.Size(); ++i)
    {
        left[i % Room] = sound.Left[i];
        right[i % Room] = sound.Right[i];
        const double t = static_cast<double>(i) / Rate;
        double l = 0, r = 0;
        for (int voice = 0; voice < 3; ++voice)
        {
            const double middle = Rate * (0.009 + 0.0042 * voice), reach = Rate * 0.0022 * depth;
            const double turn = t * (0.43 + 0.17 * voice) + voice / 3.0;
            l += read(left, i % Room, middle + reach * Sine(turn));
            r += read(right, i % Room, middle + reach * Sine(turn + 0.33));
        }
        sound.Put(i, sound.Left[i] * (1 - mix * 0.4) + l * mix * 0.5, sound.Right[i] * (1 - mix * 0.4) + r * mix * 0.5);
    }
}

Stereo Echo(const Stereo& sound, const DelaySettings& s)
{
    Stereo echoes(sound.Size());
    std::vector<double> left(Frames(s.Left)), right(Frames(s.Right));
    StateFilter lowLeft(s.Low, 0.7), lowRight(s.Low, 0.7), highLeft(s.High, 0.7), highRight(s.High, 0.7);
    for (std::size_t i = 0; i < sound.Size(); ++i)
    {
        double& cellLeft = left[i % left.size()];
        double& cellRight = right[i % right.size()];
        const double outLeft = cellLeft, outRight = cellRight;
        const double in = 0.5 * (sound.Left[i] + sound.Right[i]);
        cellLeft = highLeft.Low(lowLeft.High(in + s.Feedback * outRight));
        cellRight = highRight.Low(lowRight.High(outLeft * 0.85));
        echoes.Put(i, outLeft * 0.9 + outRight * 0.1, outRight * 0.9 + outLeft * 0.1);
    }
    return echoes;
}
}
