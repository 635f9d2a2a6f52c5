// SPDX-License-Identifier: Zlib
#include "assets/common/Noise.h"

#include "assets/common/Numbers.h"
#include "base/Numbers.h"

namespace assets
{
namespace
{
int Lattice(int value, int period)
{
    return period > 0 ? Wrap(value, period) : value;
}

double Gradient(int cellX, int cellY, double dx, double dy, std::uint32_t seed)
{
    // Eight directions are enough and keep sine and cosine out of the inner loop.
    static constexpr double Diagonal = 0.70710678118654752;
    static constexpr double DirX[8] = {1, Diagonal, 0, -Diagonal, -1, -Diagonal, 0, Diagonal};
    static constexpr double DirY[8] = {0, Diagonal, 1, Diagonal, 0, -Diagonal, -1, -Diagonal};
    const std::uint32_t dir = Hash(cellX, cellY, seed) & 7u;
    return DirX[dir] * dx + DirY[dir] * dy;
}
}

double Noise(double x, double y, std::uint32_t seed, int periodX, int periodY)
{
    const int x0 = base::Floor(x), y0 = base::Floor(y);
    const double fx = x - x0, fy = y - y0;
    const int xa = Lattice(x0, periodX), xb = Lattice(x0 + 1, periodX);
    const int ya = Lattice(y0, periodY), yb = Lattice(y0 + 1, periodY);
    const double ux = fx * fx * fx * (fx * (fx * 6 - 15) + 10);
    const double uy = fy * fy * fy * (fy * (fy * 6 - 15) + 10);
    const double low = Lerp(Gradient(xa, ya, fx, fy, seed), Gradient(xb, ya, fx - 1, fy, seed), ux);
    const double high = Lerp(Gradient(xa, yb, fx, fy - 1, seed), Gradient(xb, yb, fx - 1, fy - 1, seed), ux);
    return Lerp(low, high, uy) * 1.5;
}

double Fbm(double x, double y, std::uint32_t seed, int octaves, int periodX, int periodY, double gain)
{
    double sum = 0, strength = 1, total = 0;
    for (int octave = 0; octave < octaves; ++octave)
    {
        sum += strength * Noise(x, y, seed + static_cast<std::uint32_t>(octave) * 101u, periodX, periodY);
        total += strength;
        strength *= gain;
        x *= 2;
        y *= 2;
        periodX *= 2;
        periodY *= 2;
    }
    return sum / total;
}

CellDistance Cells(double x, double y, std::uint32_t seed, int periodX, int periodY)
{
    const int x0 = base::Floor(x), y0 = base::Floor(y);
    CellDistance best{1e9, 1e9, 0};
    for (int j = -1; j <= 1; ++j)
        for (int i = -1; i <= 1; ++i)
        {
            const int cx = Lattice(x0 + i, periodX), cy = Lattice(y0 + j, periodY);
            const double dx = x0 + i + HashUnit(cx, cy, seed) - x;
            const double dy = y0 + j + HashUnit(cx, cy, seed + 1) - y;
            const double d = std::sqrt(dx * dx + dy * dy);
            if (d < best.First)
                best = {d, best.First, Hash(cx, cy, seed + 2)};
            else if (d < best.Second)
                best.Second = d;
        }
    return best;
}
}
