// SPDX-License-Identifier: Zlib
// render/PicArray.h: pixel arrays: 24-bit pictures whose bytes lie exactly as in a bottom-up bitmap file, so that the
// frame is shown without a copy. Row 0 is the bottom row; pixel (x, row) is bytes 3x (blue), 3x + 1 (green), 3x + 2
// (red); rows are padded to 4 bytes.
#pragma once
#include "base/Files.h"
#include "base/Pixels.h"
#include "base/Trapped.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace render
{
// Width or height of a loaded picture at most.
inline constexpr std::int32_t LargestPicture = 16384;

// Length of a padded row in bytes: (width * 3 + 3) without its two low bits. Overflow beyond 32 bits is reported and
// gives 0.
std::int32_t WidthBytes(base::MessageSink& messages, std::int32_t width);

// The 40-byte information header of a bitmap, handed to the presentation.
struct PicHeader
{
    std::int32_t biSize = 0;     // bytes of this header: 40
    std::int32_t biWidth = 0;    // pixels
    std::int32_t biHeight = 0;   // pixels; positive: bottom-up
    std::int16_t biPlanes = 0;   // 1
    std::int16_t biBitCount = 0; // 24; all that follow are 0
    std::int32_t biCompression = 0;
    std::int32_t biSizeImage = 0;
    std::int32_t biXPelsPerMeter = 0;
    std::int32_t biYPelsPerMeter = 0;
    std::int32_t biClrUsed = 0;
    std::int32_t biClrImportant = 0;
};

// What a loaded picture says of itself.
struct PicInfo
{
    std::int32_t Width = 0, Height = 0; // pixels
    std::int32_t RowBytes = 0;          // of a padded row
    std::int16_t Planes = 0;            // as the file has it
    std::int16_t BitCount = 0;          // as the file has it; the pixels are taken as 24-bit ones whatever it says
};

// The bytes: Rows rows of RowBytes bytes. How many of a row's are pixels is not known here: see MakeSurface.
struct PicArray2D
{
    std::int32_t Rows = 0, RowBytes = 0;
    std::vector<std::uint8_t> Bytes;

    const std::uint8_t* Row(std::int32_t row) const
    {
        return Bytes.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(RowBytes);
    }
    std::uint8_t* Row(std::int32_t row)
    {
        return Bytes.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(RowBytes);
    }
    bool Empty() const { return Bytes.empty(); }
    // All bytes 0, in place of what there was. RuntimeError 9 for a size below 1, 7 for one above the largest picture.
    void Allocate(std::int32_t rows, std::int32_t rowBytes);
    // The same in steps, for a picture that is larger than the processor's caches: takes the memory and has no rows
    // yet; then rows are added, all 0 and each to be written before the next comes, as many as were reserved.
    void Reserve(std::int32_t rows, std::int32_t rowBytes);
    std::span<std::uint8_t> AddRows(std::int32_t rows);
    void Clear(); // gives the storage back
};

// A picture with its description, as the scene and the forms keep them.
struct Picture
{
    PicInfo Info;
    PicArray2D Pixels;
};

// The pixels as drawing routines read them: of that size, but never more than the bytes that are there. Valid as long
// as the array keeps its storage.
base::ConstSurface MakeSurface(const PicArray2D& pixels, std::int32_t width, std::int32_t height);
// Of the size that its description gives.
base::ConstSurface MakeSurface(const Picture& picture);

// Fills the header for the width and height it holds and allocates the pixels, all 0. Reports its own errors; the
// pixels are empty then.
void MakePicArray2D(base::MessageSink& messages, PicHeader& header, PicArray2D& pixels);

// Reads an uncompressed 24-bit ".bmp" file. Deliberate: the pixels are taken to begin right behind the 54 header bytes.
// Width or height outside 1 … LargestPicture is error 9, fewer bytes than claimed error 62 with the missing rows black;
// but a file that claims above 64 MB and does not have them is error 7, so that memory stays in proportion to the file.
// Reports its own errors and returns false then; after any but error 62 info and pixels are empty.
bool LoadPicArray2D(base::MessageSink& messages, const base::Files& files, const std::string& path, PicInfo& info,
                    PicArray2D& pixels);

// A reference to the pixels of another picture, as sprites and screen pictures keep it: shared, never freed through it.
using PicReference = std::shared_ptr<const Picture>;
// Lets go of the shared pixels.
void PicArrayKill(PicReference& pixels);
}
