// SPDX-License-Identifier: Zlib
#include "base/Math.h"

#include <limits>

namespace base
{
namespace
{
// pi/2 in three pieces of 33 bits, so that the first two products below are exact (Cody and Waite's reduction).
constexpr double HalfPi1 = 1.57079632673412561417e+00;
constexpr double HalfPi2 = 6.07710050630396597660e-11;
constexpr double HalfPi3 = 2.02226624879595063154e-21;
constexpr double TwoOverPi = 6.36619772367581382433e-01;

struct Reduced
{
    double Angle; // -pi/4 … pi/4
    int Quadrant; // 0 … 3
    bool Valid;
};

Reduced Reduce(double radians)
{
    if (!(radians > -1e9 && radians < 1e9))
        return {0.0, 0, false};
    constexpr double shift = 6755399441055744.0;
    const double turns = (radians * TwoOverPi + shift) - shift;
    const double angle = ((radians - turns * HalfPi1) - turns * HalfPi2) - turns * HalfPi3;
    return {angle, static_cast<int>(static_cast<long long>(turns) & 3), true};
}

// Taylor series on -pi/4 … pi/4; the first left-out term is below 1e-18 of the result.
double SinSeries(double a)
{
    const double z = a * a;
    double sum = 1.0 / 355687428096000.0; // 1/17!
    sum = sum * z - 1.0 / 1307674368000.0;
    sum = sum * z + 1.0 / 6227020800.0;
    sum = sum * z - 1.0 / 39916800.0;
    sum = sum * z + 1.0 / 362880.0;
    sum = sum * z - 1.0 / 5040.0;
    sum = sum * z + 1.0 / 120.0;
    sum = sum * z - 1.0 / 6.0;
    return a + a * (z * sum);
}

double CosSeries(double a)
{
    const double z = a * a;
    double sum = 1.0 / 20922789888000.0; // 1/16!
    sum = sum * z - 1.0 / 87178291200.0;
    sum = sum * z + 1.0 / 479001600.0;
    sum = sum * z - 1.0 / 3628800.0;
    sum = sum * z + 1.0 / 40320.0;
    sum = sum * z - 1.0 / 720.0;
    sum = sum * z + 1.0 / 24.0;
    return (1.0 - 0.5 * z) + z * z * sum;
}

// Arctangent of |t| <= 1/16 by its Taylor series.
double AtanSeries(double t)
{
    const double z = t * t;
    double sum = 1.0 / 17.0;
    sum = sum * z - 1.0 / 15.0;
    sum = sum * z + 1.0 / 13.0;
    sum = sum * z - 1.0 / 11.0;
    sum = sum * z + 1.0 / 9.0;
    sum = sum * z - 1.0 / 7.0;
    sum = sum * z + 1.0 / 5.0;
    sum = sum * z - 1.0 / 3.0;
    return t + t * (z * sum);
}

// Arctangents of 0/8 … 8/8.
constexpr double AtanEighths[9] = {0.0,
                                   1.24354994546761435e-01,
                                   2.44978663126864154e-01,
                                   3.58770670270572220e-01,
                                   4.63647609000806116e-01,
                                   5.58599315343562436e-01,
                                   6.43501108793284387e-01,
                                   7.18829999621624505e-01,
                                   7.85398163397448310e-01};

// 0 <= t <= 1: the nearest eighth c, then atan(t) = atan(c) + atan((t - c) / (1 + t c)).
double AtanUnit(double t)
{
    const int eighth = static_cast<int>(t * 8.0 + 0.5);
    const double c = eighth / 8.0;
    return AtanEighths[eighth] + AtanSeries((t - c) / (1.0 + t * c));
}
}

double Sin(double radians)
{
    const Reduced r = Reduce(radians);
    if (!r.Valid)
        return std::numeric_limits<double>::quiet_NaN();
    const double value = (r.Quadrant & 1) != 0 ? CosSeries(r.Angle) : SinSeries(r.Angle);
    return (r.Quadrant & 2) != 0 ? -value : value;
}

double Cos(double radians)
{
    const Reduced r = Reduce(radians);
    if (!r.Valid)
        return std::numeric_limits<double>::quiet_NaN();
    const double value = (r.Quadrant & 1) != 0 ? SinSeries(r.Angle) : CosSeries(r.Angle);
    return r.Quadrant == 1 || r.Quadrant == 2 ? -value : value;
}

double Atan(double ratio)
{
    constexpr double halfPi = 1.57079632679489661923;
    if (!(ratio == ratio))
        return ratio;
    const double size = ratio < 0.0 ? -ratio : ratio;
    const double angle = size > 1.0 ? halfPi - AtanUnit(1.0 / size) : AtanUnit(size);
    return ratio < 0.0 ? -angle : angle;
}
}
