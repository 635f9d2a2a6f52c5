// SPDX-License-Identifier: Zlib
#include "render/Bands.h"

#include "base/Numbers.h"

#include <algorithm>

namespace render
{
std::vector<Band> MakeBands(std::int32_t width, std::int16_t count)
{
    const std::int32_t number = std::max<std::int32_t>(count, 1);
    const float b = static_cast<float>(width) / static_cast<float>(number);
    const auto first = [&](std::int32_t i) { return base::RoundEven(static_cast<double>(b) * i); };
    std::vector<Band> bands(static_cast<std::size_t>(number));
    for (std::int32_t i = 0; i < number; ++i)
        bands[static_cast<std::size_t>(i)] = {first(i), first(i + 1) - 1};
    return bands;
}

std::vector<Band> Halved(const std::vector<Band>& bands)
{
    std::vector<Band> halves;
    for (const Band& band : bands)
    {
        const std::int32_t columns = band.Last - band.First + 1, middle = band.First + (columns + 1) / 2 - 1;
        halves.insert(halves.end(), {{band.First, middle}, {middle + 1, band.Last}});
    }
    return halves;
}
}
