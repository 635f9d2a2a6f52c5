// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Drums.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Envelope.h"
#include "assets/sound/synth/Filter.h"
#include "assets/sound/synth/Wave.h"

namespace assets::sound
{
namespace
{
// Calls sound(t) for every frame of `seconds` and adds what it returns in the middle.
template <class Body> void Strike(const Tone& tone, Stereo& out, double seconds, Body&& sound)
{
    const std::size_t start = Frames(tone.Start), count = Frames(seconds);
    for (std::size_t i = 0; i < count; ++i)
    {
        const double fade = SmoothStep(1, 0.85, static_cast<double>(i) / static_cast<double>(count));
        const double value = sound(static_cast<double>(i) / Rate) * fade;
        out.Add(start + i, value, value);
    }
}

// A sine whose pitch falls from one frequency to another.
class Skin
{
public:
    Skin(double from, double to, double time) : From(from), To(to), Time(time) {}
    double Next(double t)
    {
        const double value = Sine(Turns);
        Turns += (To + (From - To) * std::exp(-t / Time)) / Rate;
        return value;
    }

private:
    double From, To, Time, Turns = 0;
};
}

Instrument Kick(const KickSettings& s)
{
    return [s](const Tone& tone, Stereo& out)
    {
        Skin skin(s.From * (0.8 + 0.25 * tone.Force), s.Hz, s.Sweep);
        NoiseSource noise(tone.Seed);
        StateFilter beater(3200, 1.2);
        const double force = std::pow(tone.Force, 1.2);
        Strike(tone, out, s.Ring * 1.6,
               [&](double t)
               {
                   const double hold = t < 0.02 ? 1 : Fall(t - 0.02, s.Ring);
                   const double click = s.Click * tone.Force * std::exp(-t / 0.0035) * beater.Band(noise.Next());
                   return force * std::tanh(s.Drive * (skin.Next(t) * hold + click)) / std::tanh(s.Drive);
               });
    };
}

Instrument Snare(const SnareSettings& s)
{
    return [s](const Tone& tone, Stereo& out)
    {
        Skin low(s.Hz * 1.7, s.Hz, 0.012), high(s.Hz * 2.6, s.Hz * 1.78, 0.010);
        NoiseSource noise(tone.Seed);
        StateFilter wires(s.Tone, 0.6), crack(4800, 0.9), air(8500, 0.6);
        const double force = std::pow(tone.Force, 1.4), ring = s.WiresRing * (0.6 + 0.4 * tone.Force);
        Strike(tone, out, std::max(s.BodyRing, s.WiresRing) * 1.6,
               [&](double t)
               {
                   const double white = air.Low(noise.Next()) * 1.3;
                   const double body = (low.Next(t) + 0.55 * high.Next(t)) * Fall(t, s.BodyRing) * s.Body;
                   const double rattle = (wires.High(white) * 0.55 + 0.25 * white) * Fall(t, ring) * s.Wires;
                   const double snap = crack.Band(white) * std::exp(-t / 0.006) * tone.Force;
                   return force * std::tanh(s.Drive * (body + rattle + snap)) / s.Drive;
               });
    };
}

Instrument Clap(double ring)
{
    return [ring](const Tone& tone, Stereo& out)
    {
        const std::size_t start = Frames(tone.Start), count = Frames(ring * 1.6 + 0.04);
        const double force = std::pow(tone.Force, 1.3);
        // Several hands, one after the other; each ear hears its own.
        NoiseSource near(tone.Seed), far(tone.Seed + 9);
        StateFilter left(1250, 1.1), right(1400, 1.1), softLeft(5200, 0.7), softRight(5600, 0.7);
        for (std::size_t i = 0; i < count; ++i)
        {
            const double t = static_cast<double>(i) / Rate;
            double hands = 0;
            for (const double at : {0.0, 0.0105, 0.0195, 0.0295})
                if (t >= at)
                    hands = std::exp(-(t - at) / 0.0045);
            const double tail = t < 0.0295 ? 0 : 0.75 * Fall(t - 0.0295, ring);
            const double amp = force * 0.8 * std::max(hands, tail);
            out.Add(start + i, softLeft.Low(left.Band(near.Next())) * amp, softRight.Low(right.Band(far.Next())) * amp);
        }
    };
}

Instrument Tom(double ring)
{
    return [ring](const Tone& tone, Stereo& out)
    {
        Skin skin(tone.Hz * 1.65, tone.Hz, 0.05), second(tone.Hz * 2.6, tone.Hz * 1.55, 0.03);
        NoiseSource noise(tone.Seed);
        StateFilter stick(2400, 0.9);
        const double force = std::pow(tone.Force, 1.3);
        Strike(tone, out, ring * 1.5,
               [&](double t)
               {
                   const double body = skin.Next(t) * Fall(t, ring) + 0.35 * second.Next(t) * Fall(t, ring * 0.4);
                   const double hit = stick.Band(noise.Next()) * std::exp(-t / 0.01) * 0.6 * tone.Force;
                   return force * std::tanh(1.4 * (body + hit)) / 1.4;
               });
    };
}

Instrument Conga()
{
    return [](const Tone& tone, Stereo& out)
    {
        // A hard hit is a slap: shorter and brighter.
        const double slap = SmoothStep(0.8, 1.0, tone.Force), ring = Lerp(0.24, 0.10, slap);
        Skin skin(tone.Hz * 1.18, tone.Hz, 0.015), second(tone.Hz * 2.3, tone.Hz * 2.2, 0.02);
        NoiseSource noise(tone.Seed);
        StateFilter hand(Lerp(900, 2600, slap), 0.8);
        const double force = std::pow(tone.Force, 1.2) * 0.8;
        Strike(tone, out, ring * 1.6,
               [&](double t)
               {
                   const double body = skin.Next(t) * Fall(t, ring) + 0.3 * second.Next(t) * Fall(t, ring * 0.5);
                   const double palm = hand.Band(noise.Next()) * std::exp(-t / 0.012) * Lerp(0.4, 1.3, slap);
                   return force * (body + palm);
               });
    };
}

Instrument Rim()
{
    return [](const Tone& tone, Stereo& out)
    {
        NoiseSource noise(tone.Seed);
        StateFilter wood(1750, 9), stick(520, 5);
        const double force = std::pow(tone.Force, 1.2) * 1.6;
        Strike(tone, out, 0.12,
               [&](double t)
               {
                   const double blow = noise.Next() * std::exp(-t / 0.004);
                   return force * std::tanh(wood.Band(blow) * 0.8 + stick.Band(blow) * 0.7) * Fall(t, 0.1);
               });
    };
}
}
