// SPDX-License-Identifier: Zlib
#include "platform/FindData.h"

#include <array>
#include <system_error>

namespace platform
{
namespace fs = std::filesystem;

namespace
{
bool HoldsData(const fs::path& folder)
{
    std::error_code error;
    return fs::is_regular_file(folder / "data" / "maps" / "map_01" / "map.loader", error);
}
}

fs::path FindDataAmong(const fs::path& executable, std::span<const fs::path> installed)
{
    fs::path own = executable.parent_path();
    for (fs::path folder = own;; folder = folder.parent_path())
    {
        if (HoldsData(folder))
            return folder;
        if (folder == folder.parent_path())
            break;
    }
    for (const fs::path& folder : installed)
        if (HoldsData(folder))
            return folder;
    return own;
}

fs::path FindData(const fs::path& executable)
{
    const std::array<fs::path, 1> installed = {fs::path(VELKAR_DATA_FOLDER)};
    return FindDataAmong(executable, installed);
}
}
