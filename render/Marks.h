// SPDX-License-Identifier: Zlib
// render/Marks.h: in which blocks of a screen something may have been drawn, so that the others need not be looked at.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace render
{
class Marks
{
public:
    static constexpr std::int32_t StripRows = 8; // of a block
    static constexpr std::int32_t LeastColumns = 4;

    // None, for a screen of that size; at least 0.
    void Reset(std::int32_t width, std::int32_t height)
    {
        Shift = 2;
        while ((width - 1) >> Shift >= 64)
            ++Shift;
        Strips.assign(static_cast<std::size_t>((height + StripRows - 1) / StripRows), 0);
    }
    // None any more.
    void Clear() { std::fill(Strips.begin(), Strips.end(), 0); }

    // The blocks of a rectangle, which lies on the screen; all borders included.
    void Add(std::int32_t firstX, std::int32_t lastX, std::int32_t firstY, std::int32_t lastY)
    {
        const std::uint64_t blocks =
            ~std::uint64_t{0} << (firstX >> Shift) & ~std::uint64_t{0} >> (63 - (lastX >> Shift));
        for (std::int32_t strip = firstY / StripRows; strip <= lastY / StripRows; ++strip)
            Strips[static_cast<std::size_t>(strip)] |= blocks;
    }

    // One bit for each block of a row, the first one's the lowest.
    std::uint64_t BlocksOf(std::int32_t y) const { return Strips[static_cast<std::size_t>(y / StripRows)]; }
    // Columns of a block, a power of two, at least LeastColumns; the last block may reach beyond the screen.
    std::int32_t BlockColumns() const { return 1 << Shift; }

private:
    int Shift = 2;
    std::vector<std::uint64_t> Strips;
};
}
