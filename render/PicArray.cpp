// SPDX-License-Identifier: Zlib
#include "render/PicArray.h"

#include "base/RuntimeError.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

namespace render
{
namespace
{
constexpr std::size_t HeaderBytes = 54; // the file header of 14 and the information header of 40
constexpr std::uint64_t MostUnbacked = 64u << 20;
constexpr std::int32_t BytesAtATime = 64 << 10; // of a file: what stays in the caches

// Little-endian, as the file has it.
std::int32_t Int32At(std::string_view bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;)
        value = value << 8 | static_cast<std::uint8_t>(bytes[at + i]);
    return static_cast<std::int32_t>(value);
}

std::int16_t Int16At(std::string_view bytes, std::size_t at)
{
    const auto low = static_cast<std::uint8_t>(bytes[at]);
    const auto high = static_cast<std::uint8_t>(bytes[at + 1]);
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(low | high << 8));
}

bool IsPictureSize(std::int32_t size)
{
    return size >= 1 && size <= LargestPicture;
}

// Bytes of an array, whose size can be.
std::size_t SizeOf(std::int32_t rows, std::int32_t rowBytes)
{
    if (rows < 1 || rowBytes < 1)
        throw base::RuntimeError(base::ErrorIndex);
    const auto size = static_cast<std::uint64_t>(rows) * static_cast<std::uint64_t>(rowBytes);
    if (size > static_cast<std::uint64_t>(LargestPicture) * base::PaddedRow(LargestPicture))
        throw base::RuntimeError(base::ErrorMemory);
    return static_cast<std::size_t>(size);
}

// Straight from the file into rows that have just been made; those behind its end stay black.
void ReadRows(base::OpenFile& file, std::uint64_t present, std::int32_t rows, PicArray2D& pixels)
{
    const std::int32_t most = std::max(BytesAtATime / pixels.RowBytes, 1);
    while (pixels.Rows < rows)
    {
        const std::span<std::uint8_t> made = pixels.AddRows(std::min(most, rows - pixels.Rows));
        const auto read = static_cast<std::size_t>(std::min<std::uint64_t>(present, made.size()));
        file.Read({reinterpret_cast<char*>(made.data()), read});
        present -= read;
    }
}
}

std::int32_t WidthBytes(base::MessageSink& messages, std::int32_t width)
{
    std::int32_t bytes = 0;
    base::Trapped(messages, "WidthBytes",
                  [&]
                  {
                      const std::int64_t wide = std::int64_t{width} * base::PixelBytes + 3;
                      if (wide > std::numeric_limits<std::int32_t>::max() ||
                          wide < std::numeric_limits<std::int32_t>::min())
                          throw base::RuntimeError(base::ErrorOverflow);
                      bytes = base::PaddedRow(width);
                  });
    return bytes;
}

void PicArray2D::Allocate(std::int32_t rows, std::int32_t rowBytes)
{
    Bytes.assign(SizeOf(rows, rowBytes), 0);
    Rows = rows;
    RowBytes = rowBytes;
}

void PicArray2D::Reserve(std::int32_t rows, std::int32_t rowBytes)
{
    const std::size_t size = SizeOf(rows, rowBytes);
    Clear();
    Bytes.reserve(size);
    RowBytes = rowBytes;
}

std::span<std::uint8_t> PicArray2D::AddRows(std::int32_t rows)
{
    const std::size_t before = Bytes.size();
    Bytes.resize(before + static_cast<std::size_t>(rows) * static_cast<std::size_t>(RowBytes));
    Rows += rows;
    return std::span(Bytes).subspan(before);
}

void PicArray2D::Clear()
{
    Rows = RowBytes = 0;
    Bytes = {};
}

base::ConstSurface MakeSurface(const PicArray2D& pixels, std::int32_t width, std::int32_t height)
{
    return {pixels.Bytes.data(), pixels.RowBytes, std::clamp(width, 0, pixels.RowBytes / base::PixelBytes),
            std::clamp(height, 0, pixels.Rows)};
}

base::ConstSurface MakeSurface(const Picture& picture)
{
    return MakeSurface(picture.Pixels, picture.Info.Width, picture.Info.Height);
}

void MakePicArray2D(base::MessageSink& messages, PicHeader& header, PicArray2D& pixels)
{
    base::Trapped(messages, "MakePicArray2D",
                  [&]
                  {
                      header = PicHeader{40, header.biWidth, header.biHeight, 1, 24};
                      pixels.Clear();
                      pixels.Allocate(header.biHeight, WidthBytes(messages, header.biWidth));
                  });
}

bool LoadPicArray2D(base::MessageSink& messages, const base::Files& files, const std::string& path, PicInfo& info,
                    PicArray2D& pixels)
{
    bool loaded = false;
    info = PicInfo{};
    pixels.Clear();
    base::Trapped(messages, "LoadPicArray2D",
                  [&]
                  {
                      base::OpenFile file = files.Open(path);
                      if (file.Size() < HeaderBytes)
                          throw base::RuntimeError(base::ErrorPastEnd);
                      std::array<char, HeaderBytes> bytes;
                      file.Read(bytes);
                      const std::string_view header(bytes.data(), bytes.size());
                      const std::int32_t width = Int32At(header, 18), height = Int32At(header, 22);
                      if (!IsPictureSize(width) || !IsPictureSize(height))
                          throw base::RuntimeError(base::ErrorIndex);
                      const std::int32_t rowBytes = WidthBytes(messages, width);
                      const auto claimed = static_cast<std::uint64_t>(rowBytes) * static_cast<std::uint64_t>(height);
                      const std::uint64_t present = file.Size() - HeaderBytes;
                      if (claimed > present && claimed > MostUnbacked)
                          throw base::RuntimeError(base::ErrorMemory);
                      PicArray2D read;
                      read.Reserve(height, rowBytes);
                      ReadRows(file, present, height, read);
                      pixels = std::move(read);
                      info = PicInfo{width, height, rowBytes, Int16At(header, 26), Int16At(header, 28)};
                      if (claimed > present)
                          throw base::RuntimeError(base::ErrorPastEnd);
                      loaded = true;
                  });
    return loaded;
}

void PicArrayKill(PicReference& pixels)
{
    pixels.reset();
}
}
