// SPDX-License-Identifier: Zlib
#include "tools/preview/Png.h"

#include "tools/preview/Failure.h"

#include <png.h>

#include <fstream>
#include <string>
#include <system_error>
#include <vector>

namespace preview
{
namespace
{
// What has not been renamed is removed, however the writing ends.
struct Temporary
{
    std::filesystem::path Path;
    ~Temporary()
    {
        std::error_code ignored;
        std::filesystem::remove(Path, ignored);
    }
};

std::vector<char> Encode(const base::ConstSurface& picture)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.Width);
    image.height = static_cast<png_uint_32>(picture.Height);
    image.format = PNG_FORMAT_BGR;
    // A negative stride: the bottom row comes first.
    const auto stride = static_cast<png_int_32>(-picture.RowBytes);
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::vector<char> bytes(size);
    if (png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.Bytes, stride, nullptr) == 0)
        throw Failure{std::string("the picture cannot be encoded: ") + image.message};
    bytes.resize(size);
    return bytes;
}
}

void WritePng(const std::filesystem::path& file, const base::ConstSurface& picture)
{
    const std::vector<char> bytes = Encode(picture);
    const Temporary temporary{std::filesystem::path(file) += ".part"};
    std::ofstream out(temporary.Path, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    std::error_code error;
    if (!out.fail())
        std::filesystem::rename(temporary.Path, file, error);
    if (out.fail() || error)
        throw Failure{"cannot write " + file.string()};
}
}
