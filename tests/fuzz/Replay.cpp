// SPDX-License-Identifier: Zlib
// Runs every file of the given folders through one fuzz target, in any build. Fails where a folder holds none.
#include "fuzz/Folder.h"

#include <algorithm>
#include <cstdio>
#include <vector>

int main(int count, char** arguments)
{
    for (int argument = 1; argument < count; ++argument)
    {
        std::vector<std::filesystem::path> inputs;
        for (const auto& entry : std::filesystem::directory_iterator(arguments[argument]))
            inputs.push_back(entry.path());
        std::sort(inputs.begin(), inputs.end());
        for (const std::filesystem::path& input : inputs)
        {
            std::ifstream in(input, std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(in), {}};
            std::printf("%s, %zu bytes\n", input.filename().string().c_str(), bytes.size());
            std::fflush(stdout); // so that the last line names the input that fails
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        }
        if (inputs.empty())
            return 1;
    }
    return count > 1 ? 0 : 1;
}
