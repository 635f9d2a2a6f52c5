// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Cymbals.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Envelope.h"
#include "assets/sound/synth/Filter.h"
#include "assets/sound/synth/Wave.h"

#include <array>

namespace assets::sound
{
namespace
{
// Six square waves that share no multiple: the ring of struck metal.
class Metals
{
public:
    explicit Metals(double scale) : Scale(scale) {}
    double Next()
    {
        static constexpr std::array<double, 6> Hz{205.3, 304.4, 369.6, 522.7, 540.0, 800.0};
        double sum = 0;
        for (std::size_t i = 0; i < Hz.size(); ++i)
        {
            Turns[i] += Hz[i] * Scale / Rate;
            Turns[i] -= std::floor(Turns[i]);
            sum += Turns[i] < 0.5 ? 1 : -1;
        }
        return sum / 6;
    }

private:
    double Scale;
    std::array<double, 6> Turns{0.1, 0.7, 0.3, 0.9, 0.5, 0.2};
};

// Calls sound(t, side) for both sides, 0 and 1, of every frame.
template <class Body> void Spread(const Tone& tone, Stereo& out, double seconds, Body&& sound)
{
    const std::size_t start = Frames(tone.Start), count = Frames(seconds);
    for (std::size_t i = 0; i < count; ++i)
    {
        const double t = static_cast<double>(i) / Rate;
        const double left = sound(t, 0);
        out.Add(start + i, left, sound(t, 1));
    }
}

struct Side
{
    NoiseSource Noise;
    StateFilter Low, High;
};

std::array<Side, 2> Sides(const Tone& tone, double low, double high, double q)
{
    return {Side{NoiseSource(tone.Seed), StateFilter(low, q), StateFilter(high, q)},
            Side{NoiseSource(tone.Seed + 31), StateFilter(low * 1.03, q), StateFilter(high * 0.98, q)}};
}
}

Instrument Hat(double ring)
{
    return [ring](const Tone& tone, Stereo& out)
    {
        Metals metals(4.1 * (1 + 0.02 * HashUnit(0, 11, tone.Seed)));
        auto sides = Sides(tone, 6400, 11500, 0.7);
        const double force = std::pow(tone.Force, 1.4) * 0.6, held = std::min(tone.Length, ring * 1.5);
        double ringing = 0;
        Spread(tone, out, held + 0.012,
               [&](double t, std::size_t side)
               {
                   if (side == 0)
                       ringing = metals.Next();
                   Side& s = sides[side];
                   const double bright = s.Low.High(ringing * 0.9 + s.Noise.Next() * 0.4);
                   const double closing = t < held ? 1 : SmoothStep(held + 0.012, held, t);
                   const double edge = 0.5 * std::exp(-t / 0.004);
                   return force * closing * (Fall(t, ring) + edge) * s.High.Low(bright);
               });
    };
}

Instrument Crash(double ring)
{
    return [ring](const Tone& tone, Stereo& out)
    {
        Metals metals(2.7);
        auto sides = Sides(tone, 3000, 6500, 0.6);
        const double force = std::pow(tone.Force, 1.3) * 0.5;
        double ringing = 0;
        Spread(tone, out, ring * 1.7,
               [&](double t, std::size_t side)
               {
                   if (side == 0)
                       ringing = metals.Next();
                   Side& s = sides[side];
                   const double white = s.Noise.Next();
                   const double wash = s.Low.High(white * 0.7 + ringing * 0.5) * Fall(t, ring);
                   const double shine = s.High.High(white) * Fall(t, ring * 0.45) * 0.7;
                   return force * (wash + shine) * (1 - std::exp(-t / 0.0015)) * SmoothStep(ring * 1.7, ring, t);
               });
    };
}

Instrument Ride()
{
    return [](const Tone& tone, Stereo& out)
    {
        Metals wash(3.3), bell(5.35);
        auto sides = Sides(tone, 4200, 3100, 0.9);
        const double force = std::pow(tone.Force, 1.3) * 0.45;
        double ringing = 0, ping = 0;
        Spread(tone, out, 0.9,
               [&](double t, std::size_t side)
               {
                   if (side == 0)
                   {
                       ringing = wash.Next();
                       ping = bell.Next();
                   }
                   Side& s = sides[side];
                   const double air = s.Low.High(ringing * 0.5 + s.Noise.Next() * 0.3) * Fall(t, 0.8) * 0.6;
                   return force * (air + s.High.High(ping) * Fall(t, 0.35) * 0.7) * SmoothStep(0.9, 0.6, t);
               });
    };
}

Instrument Shaker()
{
    return [](const Tone& tone, Stereo& out)
    {
        auto sides = Sides(tone, 5200, 7600, 1.1);
        const double force = std::pow(tone.Force, 1.3) * 0.7;
        Spread(tone, out, 0.12,
               [&](double t, std::size_t side)
               {
                   Side& s = sides[side];
                   const double swing = t < 0.018 ? t / 0.018 : std::exp(-(t - 0.018) / 0.022);
                   const double white = s.Noise.Next();
                   return force * swing * (s.Low.Band(white) * 0.6 + s.High.High(white) * 0.4);
               });
    };
}

Instrument Tambourine()
{
    return [](const Tone& tone, Stereo& out)
    {
        Metals jingles(6.3);
        auto sides = Sides(tone, 6800, 8800, 1.0);
        const double force = std::pow(tone.Force, 1.3) * 0.6;
        double ringing = 0;
        Spread(tone, out, 0.32,
               [&](double t, std::size_t side)
               {
                   if (side == 0)
                       ringing = jingles.Next();
                   Side& s = sides[side];
                   const double hand = std::exp(-t / 0.012) + 0.55 * (t > 0.028 ? Fall(t - 0.028, 0.2) : 0);
                   return force * hand * s.High.High(s.Low.High(ringing + 0.4 * s.Noise.Next()));
               });
    };
}

Instrument Cowbell()
{
    return [](const Tone& tone, Stereo& out)
    {
        Oscillator low(0), high(0.3);
        low.SetHz(562);
        high.SetHz(845);
        StateFilter body(1100, 1.2);
        const double force = std::pow(tone.Force, 1.2) * 0.5;
        double now = 0;
        Spread(tone, out, 0.4,
               [&](double t, std::size_t side)
               {
                   if (side == 0)
                   {
                       now = body.Band(low.PulseNow(0.5) + high.PulseNow(0.5)) *
                             (Fall(t, 0.3) * 0.6 + std::exp(-t / 0.012));
                       low.Advance();
                       high.Advance();
                   }
                   return force * now * SmoothStep(0.4, 0.25, t);
               });
    };
}

Instrument Riser()
{
    return [](const Tone& tone, Stereo& out)
    {
        auto sides = Sides(tone, 400, 800, 1.6);
        const double force = tone.Force * 0.5;
        Spread(tone, out, tone.Length,
               [&](double t, std::size_t side)
               {
                   const double part = t / tone.Length;
                   Side& s = sides[side];
                   s.Low.Set(300 * std::exp2(part * 5), 1.6);
                   return force * part * part * s.Low.Band(s.Noise.Next()) * SmoothStep(1, 0.985, part);
               });
    };
}

Instrument Swell()
{
    return [](const Tone& tone, Stereo& out)
    {
        Metals metals(2.9);
        auto sides = Sides(tone, 2600, 6000, 0.6);
        const double force = tone.Force * 0.5;
        double ringing = 0;
        Spread(tone, out, tone.Length,
               [&](double t, std::size_t side)
               {
                   if (side == 0)
                       ringing = metals.Next();
                   const double left = tone.Length - t;
                   Side& s = sides[side];
                   return force * std::exp(-3.5 * left / tone.Length) * SmoothStep(0, 0.01, left) *
                          s.Low.High(0.7 * s.Noise.Next() + 0.4 * ringing);
               });
    };
}

Instrument Impact()
{
    return [](const Tone& tone, Stereo& out)
    {
        auto sides = Sides(tone, 700, 300, 0.7);
        const double force = tone.Force * 0.6;
        double turns = 0, boom = 0;
        Spread(tone, out, 2.6,
               [&](double t, std::size_t side)
               {
                   if (side == 0)
                   {
                       turns += (34 + 60 * std::exp(-t / 0.16)) / Rate;
                       boom = std::tanh(1.6 * Sine(turns) * Fall(t, 1.5));
                   }
                   Side& s = sides[side];
                   s.Low.Set(200 + 5000 * std::exp(-t / 0.25), 0.7);
                   return force * (boom + 0.5 * s.Low.Low(s.Noise.Next()) * Fall(t, 1.6)) * SmoothStep(2.6, 1.8, t);
               });
    };
}
}
