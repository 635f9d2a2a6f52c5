// SPDX-License-Identifier: Zlib
#include "tools/race/Passes.h"

namespace race
{
std::vector<Pass> PassCounter::Take(std::span<const int> places)
{
    std::vector<Pass> passes;
    for (std::size_t i = 0; i < Cars; ++i)
        for (std::size_t j = i + 1; j < Cars; ++j)
        {
            Pair& pair = Pairs[i * Cars + j];
            const int order = places[i] == places[j] ? pair.Order : places[i] < places[j] ? 1 : -1;
            if (pair.Order == 0)
                pair.Order = order;
            pair.Against = order == pair.Order ? 0 : pair.Against + 1;
            if (pair.Against < Hold || pair.Against == 0)
                continue;
            pair = {order, 0};
            passes.push_back(order > 0 ? Pass{i, j} : Pass{j, i});
        }
    return passes;
}
}
