// SPDX-License-Identifier: Zlib
// velkar-preview PICTURE ... --out FILE.png: shows map authors what a model, a map or a lap looks like. docs/preview.md
#include "platform/FindData.h"
#include "tools/preview/Preview.h"

#include <iostream>
#include <vector>

int main(int count, char** arguments)
{
    const std::vector<std::string_view> words(arguments + 1, arguments + count);
    return preview::Run(words, platform::ExecutablePath(arguments[0]), std::cout, std::cerr);
}
