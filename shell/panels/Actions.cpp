// SPDX-License-Identifier: Zlib
#include "shell/panels/Actions.h"

#include <algorithm>

namespace panels
{
Actions::Entry& Actions::Of(std::int16_t control)
{
    const auto entry = static_cast<std::size_t>(control + 1);
    Entries.resize(std::max(Entries.size(), entry + 1));
    return Entries[entry];
}

const Actions::Entry& Actions::Find(std::int16_t control) const
{
    const auto entry = static_cast<std::size_t>(control + 1);
    return Entries[entry < Entries.size() ? entry : 0];
}
}
