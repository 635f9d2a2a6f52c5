#include "common/Output.h"
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace assets
{
void WriteBytes(const std::string& path, std::span<const std::uint8_t> bytes)
{
    const std::filesystem::path file(path);
    if (file.has_parent_path())
        std::filesystem::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream)
        throw std::runtime_error("cannot write " + path);
}
}
