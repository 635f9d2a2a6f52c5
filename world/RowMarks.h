// SPDX-License-Identifier: Zlib
// world/RowMarks.h: which rows of pairs are to be walked, a row being a body with all that come after it, and whom its
// body may touch.
#pragma once
#include "world/NearGrid.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace world
{
class RowMarks
{
public:
    // No row is marked; room for so many. No allocation for a number had before.
    void Reset(std::size_t rows);
    // All rows have been taken, another walk begins.
    void Begin();
    // Marks the row for the body, that comes after the row's own.
    void MarkFor(std::size_t row, std::int32_t body);
    // The first marked row from that one on; the number of rows when there is none.
    std::size_t Next(std::size_t from) const;
    // The row is marked no more. Writes the bodies that it was marked for, in ascending order. False where they were
    // too many to be remembered, and somebody may be missing.
    bool Take(std::size_t row, BodyList& bodies);

private:
    static constexpr std::size_t MostARow = 8; // remembered, for all rows together
    static constexpr std::int32_t None = -1;

    struct Note
    {
        std::int32_t Body = 0, Next = None; // of the same row
    };

    std::vector<std::uint8_t> Marked; // by row
    std::vector<std::int32_t> First;  // by row: of its notes
    std::vector<Note> Notes;
    bool Complete = true;
};
}
