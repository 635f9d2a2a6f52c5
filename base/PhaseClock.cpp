// SPDX-License-Identifier: Zlib
#include "base/PhaseClock.h"

#include <algorithm>
#include <string_view>

namespace base
{
void PhaseClock::Enter(const char* name)
{
    Leave();
    const auto found = std::find_if(List.begin(), List.end(),
                                    [&](const Phase& phase) { return std::string_view(phase.Name) == name; });
    Present = found - List.begin();
    if (found == List.end())
        List.push_back({name, {}});
    Since = Clock::now();
}

void PhaseClock::Leave()
{
    if (Present >= 0)
        List[static_cast<std::size_t>(Present)].Time += Clock::now() - Since;
    Present = -1;
}
}
