// SPDX-License-Identifier: Zlib
#include "platform/FindData.h"

#include <system_error>

namespace platform
{
namespace fs = std::filesystem;

fs::path ExecutablePath(const char* firstArgument)
{
    std::error_code error;
    fs::path path = fs::read_symlink("/proc/self/exe", error);
    if (!error)
        return path;
    const fs::path absolute = fs::absolute(firstArgument != nullptr ? firstArgument : "", error);
    return error ? fs::path() : absolute;
}
}
