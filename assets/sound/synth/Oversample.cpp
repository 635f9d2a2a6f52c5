// SPDX-License-Identifier: Zlib
#include "assets/sound/synth/Oversample.h"

#include "assets/common/Numbers.h"

namespace assets::sound
{
namespace
{
constexpr std::size_t Taps = 2 * Upsampler::Reach * Times;

// A windowed sine over its argument, flat to about 18 kHz.
const std::array<double, Taps>& Kernel()
{
    static const std::array<double, Taps> kernel = []
    {
        std::array<double, Taps> made{};
        double sum = 0;
        for (std::size_t i = 0; i < Taps; ++i)
        {
            const double at = (static_cast<double>(i) - Taps / 2.0) / Times; // frames from the middle
            const double x = Pi * at * 0.94;
            const double window = 0.42 + 0.5 * std::cos(2 * Pi * at / (2 * Upsampler::Reach)) +
                                  0.08 * std::cos(4 * Pi * at / (2 * Upsampler::Reach));
            made[i] = (std::abs(x) < 1e-9 ? 1 : std::sin(x) / x) * window;
            sum += made[i];
        }
        for (double& tap : made)
            tap *= Times / sum;
        return made;
    }();
    return kernel;
}
}

std::array<double, Times> Upsampler::Next(double in)
{
    Past[At] = in;
    std::array<double, Times> out{};
    for (std::size_t back = 0; back < 2 * Reach; ++back)
    {
        const double value = Past[(At + 2 * Reach - back) % (2 * Reach)];
        for (std::size_t k = 0; k < Times; ++k)
            out[k] += value * Kernel()[back * Times + k];
    }
    At = (At + 1) % (2 * Reach);
    return out;
}

double Downsampler::Next(const std::array<double, Times>& in)
{
    const auto push = [&](double value)
    {
        Past[At] = value;
        At = (At + 1) % Taps;
    };
    push(in[0]); // the result lies at the first of the four
    double sum = 0;
    for (std::size_t back = 0; back < Taps; ++back)
        sum += Past[(At + Taps - 1 - back) % Taps] * Kernel()[back];
    for (std::size_t k = 1; k < Times; ++k)
        push(in[k]);
    return sum / Times;
}
}
