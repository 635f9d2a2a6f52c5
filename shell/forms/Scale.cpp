// SPDX-License-Identifier: Zlib
#include "shell/forms/Scale.h"

#include "base/Numbers.h"
#include "shell/forms/Float4.h"

#include <algorithm>
#include <array>
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
    taps.reserve(static_cast<std::size_t>(to));
    for (std::int32_t i = 0; i < to; ++i)
        taps.push_back(MakeTap((i + 0.5) * step - 0.5, std::max(step, 1.0), from));
    return taps;
}

// Colour times coverage, and coverage: blue, green, red, coverage.
using Sum = std::array<float, 4>;

// The pixels of a source row, of which a black one covers nothing where it can be seen through.
void TakeRow(const std::uint8_t* pixel, bool seeThrough, std::vector<Sum>& pixels)
{
    for (Sum& sum : pixels)
    {
        sum = seeThrough && base::IsBlack(pixel)
                  ? Sum{}
                  : Sum{static_cast<float>(pixel[0]), static_cast<float>(pixel[1]), static_cast<float>(pixel[2]), 1};
        pixel += base::PixelBytes;
    }
}

// What they give at a tap.
Float4 SumAcross(const std::vector<Sum>& pixels, const Tap& tap)
{
    Float4 sum = Float4::Of(0);
    const Sum* pixel = pixels.data() + tap.First;
    for (const float weight : tap.Weights)
        sum = sum + Float4::Of(weight) * Float4::Load((pixel++)->data());
    return sum;
}

// Source rows from the top, each as wide as the destination: as many as one tap reaches, so that they stay in the
// caches.
class Rows
{
public:
    Rows(const render::Picture& picture, std::int32_t width, std::int32_t reach, bool seeThrough)
        : From(picture), SeeThrough(seeThrough), Across(MakeTaps(picture.Info.Width, width)),
          Pixels(static_cast<std::size_t>(picture.Info.Width))
    {
        Kept.Reset(width, reach);
    }

    // The row y. Of those before the last one made only the latest are kept.
    const Sum* Row(std::int32_t y)
    {
        while (Made <= y)
            Make(Made++);
        return Kept.Row(y % Kept.Height);
    }

private:
    void Make(std::int32_t y)
    {
        TakeRow(From.Pixels.Row(From.Info.Height - 1 - y), SeeThrough, Pixels);
        Sum* to = Kept.Row(y % Kept.Height);
        for (const Tap& tap : Across)
            SumAcross(Pixels, tap).Store((to++)->data());
    }

    const render::Picture& From;
    bool SeeThrough;
    std::vector<Tap> Across;
    std::vector<Sum> Pixels; // of the row that is made
    base::Grid<Sum> Kept;    // row y in the row y % Height
    std::int32_t Made = 0;
};

// What columns of those sums give at a tap, all of a row.
void SumDown(Rows& rows, const Tap& tap, std::vector<Sum>& sums)
{
    std::fill(sums.begin(), sums.end(), Sum{});
    std::int32_t y = tap.First;
    for (const float weight : tap.Weights)
    {
        const Sum* part = rows.Row(y++);
        for (Sum& sum : sums)
            (Float4::Load(sum.data()) + Float4::Of(weight) * Float4::Load((part++)->data())).Store(sum.data());
    }
}

ImagePixel Finish(const Sum& sum)
{
    const float coverage = sum[3];
    if (!(coverage > 0))
        return {};
    std::array<std::uint8_t, 4> bytes;
    (Float4::Load(sum.data()) / Float4::Of(coverage, coverage, coverage, 1) * Float4::Of(1, 1, 1, 255))
        .StoreBytes(bytes.data());
    return {{bytes[2], bytes[1], bytes[0]}, bytes[3]};
}
}

Image Scale(const render::Picture& picture, std::int32_t width, std::int32_t height, bool seeThrough)
{
    Image image;
    if (width <= 0 || height <= 0 || picture.Info.Width <= 0 || picture.Info.Height <= 0 || picture.Pixels.Empty())
        return image;
    image.Reset(width, height);
    const std::vector<Tap> down = MakeTaps(picture.Info.Height, height);
    std::size_t reach = 0;
    for (const Tap& tap : down)
        reach = std::max(reach, tap.Weights.size());
    Rows rows(picture, width, static_cast<std::int32_t>(reach), seeThrough);
    std::vector<Sum> sums(static_cast<std::size_t>(width));
    for (std::int32_t y = 0; y < height; ++y)
    {
        SumDown(rows, down[static_cast<std::size_t>(y)], sums);
        std::transform(sums.begin(), sums.end(), image.Row(y), Finish);
    }
    return image;
}
}
