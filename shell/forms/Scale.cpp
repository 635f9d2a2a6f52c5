#include "shell/forms/Scale.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace forms
{
namespace
{
// What one destination column or row is made of: source pixels from `First` on, with these weights.
struct Tap
{
    std::int32_t First = 0;
    std::vector<float> Weights; // together 1
};

// A triangle around the centre, as wide as a destination pixel, at least as a source pixel.
Tap MakeTap(double centre, double reach, std::int32_t from)
{
    Tap tap;
    tap.First = std::max(0, base::Floor(centre - reach) + 1);
    const std::int32_t last = std::min(from - 1, base::Floor(centre + reach));
    double sum = 0;
    for (std::int32_t j = tap.First; j <= last; ++j)
    {
        const double weight = std::max(0.0, 1 - std::abs(j - centre) / reach);
        tap.Weights.push_back(static_cast<float>(weight));
        sum += weight;
    }
    for (float& weight : tap.Weights)
        weight = static_cast<float>(weight / sum);
    return tap;
}

std::vector<Tap> MakeTaps(std::int32_t from, std::int32_t to)
{
    const double step = static_cast<double>(from) / to;
    std::vector<Tap> taps;
    for (std::int32_t i = 0; i < to; ++i)
        taps.push_back(MakeTap((i + 0.5) * step - 0.5, std::max(step, 1.0), from));
    return taps;
}

struct Sum
{
    float B = 0, G = 0, R = 0, A = 0; // colour times coverage, coverage
};

// What a row of the picture gives at a tap.
Sum SumAcross(const std::uint8_t* row, const Tap& tap, bool seeThrough)
{
    Sum sum;
    const std::uint8_t* pixel = row + std::ptrdiff_t{tap.First} * base::PixelBytes;
    for (const float weight : tap.Weights)
    {
        if (!seeThrough || !base::IsBlack(pixel))
        {
            sum.B += weight * pixel[0];
            sum.G += weight * pixel[1];
            sum.R += weight * pixel[2];
            sum.A += weight;
        }
        pixel += base::PixelBytes;
    }
    return sum;
}

// The same down a column of those sums.
Sum SumDown(const base::Grid<Sum>& rows, std::int32_t x, const Tap& tap)
{
    Sum sum;
    std::int32_t row = tap.First;
    for (const float weight : tap.Weights)
    {
        const Sum& part = rows.At(x, row++);
        sum.B += weight * part.B;
        sum.G += weight * part.G;
        sum.R += weight * part.R;
        sum.A += weight * part.A;
    }
    return sum;
}

// The source rows from the top, each as wide as the destination.
base::Grid<Sum> ScaleAcross(const render::Picture& picture, std::int32_t width, bool seeThrough)
{
    const std::vector<Tap> across = MakeTaps(picture.Info.Width, width);
    base::Grid<Sum> rows;
    rows.Reset(width, picture.Info.Height);
    for (std::int32_t y = 0; y < rows.Height; ++y)
    {
        const std::uint8_t* row = picture.Pixels.Row(rows.Height - 1 - y);
        std::transform(across.begin(), across.end(), rows.Row(y),
                       [&](const Tap& tap) { return SumAcross(row, tap, seeThrough); });
    }
    return rows;
}

ImagePixel Finish(const Sum& sum)
{
    if (!(sum.A > 0))
        return {};
    return {{base::RoundByte(sum.R / sum.A), base::RoundByte(sum.G / sum.A), base::RoundByte(sum.B / sum.A)},
            base::RoundByte(sum.A * 255)};
}
}

Image Scale(const render::Picture& picture, std::int32_t width, std::int32_t height, bool seeThrough)
{
    Image image;
    if (width <= 0 || height <= 0 || picture.Info.Width <= 0 || picture.Info.Height <= 0 || picture.Pixels.Empty())
        return image;
    image.Reset(width, height);
    const std::vector<Tap> down = MakeTaps(picture.Info.Height, height);
    const base::Grid<Sum> rows = ScaleAcross(picture, width, seeThrough);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x)
            image.At(x, y) = Finish(SumDown(rows, x, down[static_cast<std::size_t>(y)]));
    return image;
}
}
