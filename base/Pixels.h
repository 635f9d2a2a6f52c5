// SPDX-License-Identifier: Zlib
// base/Pixels.h: what a pixel, a row of pixels and a table of cells are. A 24-bit pixel is three bytes: blue, green,
// red. Rows are padded to 4 bytes; row 0 is where the owner of the picture says (the bottom one in bitmap files and
// frames).
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace base
{
inline constexpr std::int32_t PixelBytes = 3;

struct Rgb
{
    std::uint8_t R = 0, G = 0, B = 0;

    friend bool operator==(const Rgb&, const Rgb&) = default;
};

// Bytes of a padded row. They fit 32 bits for widths below 2^31 / 3 - 1.
constexpr std::int32_t PaddedRow(std::int32_t width)
{
    return static_cast<std::int32_t>((std::int64_t{width} * PixelBytes + 3) & ~std::int64_t{3});
}

inline void Put(std::uint8_t* pixel, Rgb colour)
{
    pixel[0] = colour.B;
    pixel[1] = colour.G;
    pixel[2] = colour.R;
}

inline Rgb Get(const std::uint8_t* pixel)
{
    return {pixel[2], pixel[1], pixel[0]};
}

inline void CopyPixel(std::uint8_t* to, const std::uint8_t* from)
{
    std::memcpy(to, from, PixelBytes);
}

// Exactly black: what pictures with holes are see-through at.
inline bool IsBlack(const std::uint8_t* pixel)
{
    return (pixel[0] | pixel[1] | pixel[2]) == 0;
}

// A channel of two pixels mixed in whole numbers, halves up: `share` of `Whole` parts of the upper one.
template <int Whole> constexpr std::uint8_t Mix(int below, int above, int share)
{
    return static_cast<std::uint8_t>((below * (Whole - share) + above * share + Whole / 2) / Whole);
}

// Pixels that somebody else owns: valid as long as the owner keeps them where they are.
template <class Byte> struct BasicSurface
{
    Byte* Bytes = nullptr;
    std::ptrdiff_t RowBytes = 0;
    std::int32_t Width = 0, Height = 0; // pixels that may be touched

    // One comparison an axis: as unsigned numbers, negative ones are the largest.
    bool Has(std::int32_t x, std::int32_t row) const
    {
        return static_cast<std::uint32_t>(x) < static_cast<std::uint32_t>(Width) &&
               static_cast<std::uint32_t>(row) < static_cast<std::uint32_t>(Height);
    }
    Byte* Row(std::int32_t row) const { return Bytes + row * RowBytes; }
    Byte* At(std::int32_t x, std::int32_t row) const { return Bytes + row * RowBytes + x * PixelBytes; }

    // Whoever may write may read.
    operator BasicSurface<const Byte>() const requires(!std::is_const_v<Byte>)
    {
        return {Bytes, RowBytes, Width, Height};
    }
};
using Surface = BasicSurface<std::uint8_t>;
using ConstSurface = BasicSurface<const std::uint8_t>;

// A picture that owns its pixels: Height padded rows.
struct Bitmap
{
    std::int32_t Width = 0, Height = 0;
    std::vector<std::uint8_t> Bytes;

    // All black. Both at least 0; keeps the memory where it suffices.
    void Reset(std::int32_t width, std::int32_t height)
    {
        Width = width;
        Height = height;
        Bytes.assign(static_cast<std::size_t>(PaddedRow(width)) * static_cast<std::size_t>(height), 0);
    }
    Surface View() { return {Bytes.data(), PaddedRow(Width), Width, Height}; }
    ConstSurface View() const { return {Bytes.data(), PaddedRow(Width), Width, Height}; }
};

// A table of Height rows of Width cells, row by row.
template <class Cell> struct Grid
{
    std::int32_t Width = 0, Height = 0;
    std::vector<Cell> Cells;

    // All cells `cell`. Both at least 0; keeps the memory where it suffices.
    void Reset(std::int32_t width, std::int32_t height, const Cell& cell = {})
    {
        Width = width;
        Height = height;
        Cells.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), cell);
    }
    bool Has(std::int32_t x, std::int32_t row) const { return x >= 0 && x < Width && row >= 0 && row < Height; }
    Cell* Row(std::int32_t row) { return Cells.data() + static_cast<std::ptrdiff_t>(row) * Width; }
    const Cell* Row(std::int32_t row) const { return Cells.data() + static_cast<std::ptrdiff_t>(row) * Width; }
    Cell& At(std::int32_t x, std::int32_t row) { return Row(row)[x]; }
    const Cell& At(std::int32_t x, std::int32_t row) const { return Row(row)[x]; }

    friend bool operator==(const Grid&, const Grid&) = default;
};
}
