// The scaling of pictures for a form: area average, which is linear blending where a picture grows.
#include "base/Numbers.h"
#include "shell/forms/Paint.h"

#include <algorithm>

namespace forms
{
namespace
{
// What one destination column or row is made of: `Count` source pixels from `First` on, with these weights.
struct Tap
{
    std::int32_t First = 0, Count = 0;
    std::size_t Weights = 0; // where they begin
};

struct Taps
{
    std::vector<Tap> Each;
    std::vector<float> Weights;
};

// A triangle as wide as a destination pixel, at least as a source pixel.
Taps MakeTaps(std::int32_t from, std::int32_t to)
{
    Taps taps;
    const double step = static_cast<double>(from) / to;
    const double reach = std::max(step, 1.0);
    for (std::int32_t i = 0; i < to; ++i)
    {
        const double centre = (i + 0.5) * step - 0.5;
        Tap tap;
        tap.First = std::max(0, base::Floor(centre - reach) + 1);
        tap.Weights = taps.Weights.size();
        const std::int32_t last = std::min(from - 1, base::Floor(centre + reach));
        double sum = 0;
        for (std::int32_t j = tap.First; j <= last; ++j, ++tap.Count)
        {
            const double weight = std::max(0.0, 1 - std::abs(j - centre) / reach);
            taps.Weights.push_back(static_cast<float>(weight));
            sum += weight;
        }
        for (std::size_t j = tap.Weights; j < taps.Weights.size(); ++j)
            taps.Weights[j] = static_cast<float>(taps.Weights[j] / sum);
        taps.Each.push_back(tap);
    }
    return taps;
}

struct Sum
{
    float B = 0, G = 0, R = 0, A = 0; // colour times coverage, coverage
};

// The source rows, each as wide as the destination.
std::vector<Sum> ScaleAcross(const render::Picture& picture, const Taps& across, bool seeThrough)
{
    std::vector<Sum> rows;
    rows.reserve(across.Each.size() * static_cast<std::size_t>(picture.Info.Height));
    for (std::int32_t y = 0; y < picture.Info.Height; ++y)
    {
        const std::uint8_t* row = picture.Pixels.Row(picture.Info.Height - 1 - y);
        for (const Tap& tap : across.Each)
        {
            Sum sum;
            for (std::int32_t i = 0; i < tap.Count; ++i)
            {
                const std::uint8_t* pixel = row + 3 * static_cast<std::size_t>(tap.First + i);
                if (seeThrough && pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 0)
                    continue;
                const float weight = across.Weights[tap.Weights + static_cast<std::size_t>(i)];
                sum.B += weight * pixel[0];
                sum.G += weight * pixel[1];
                sum.R += weight * pixel[2];
                sum.A += weight;
            }
            rows.push_back(sum);
        }
    }
    return rows;
}

Image::Pixel Finish(const Sum& sum)
{
    if (!(sum.A > 0))
        return {};
    return {base::RoundByte(sum.B / sum.A), base::RoundByte(sum.G / sum.A), base::RoundByte(sum.R / sum.A),
            base::RoundByte(sum.A * 255)};
}
}

Image Scale(const render::Picture& picture, std::int32_t width, std::int32_t height, bool seeThrough)
{
    Image image;
    if (width <= 0 || height <= 0 || picture.Info.Width <= 0 || picture.Info.Height <= 0 || picture.Pixels.Empty())
        return image;
    image.Width = width;
    image.Height = height;
    image.Pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const Taps across = MakeTaps(picture.Info.Width, width), down = MakeTaps(picture.Info.Height, height);
    const std::vector<Sum> rows = ScaleAcross(picture, across, seeThrough);
    for (const Tap& tap : down.Each)
        for (std::int32_t x = 0; x < width; ++x)
        {
            Sum sum;
            for (std::int32_t i = 0; i < tap.Count; ++i)
            {
                const Sum& part =
                    rows[static_cast<std::size_t>(tap.First + i) * across.Each.size() + static_cast<std::size_t>(x)];
                const float weight = down.Weights[tap.Weights + static_cast<std::size_t>(i)];
                sum.B += weight * part.B;
                sum.G += weight * part.G;
                sum.R += weight * part.R;
                sum.A += weight * part.A;
            }
            image.Pixels.push_back(Finish(sum));
        }
    return image;
}
}
