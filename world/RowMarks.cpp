// SPDX-License-Identifier: Zlib
#include "world/RowMarks.h"

#include <cstring>

namespace world
{
void RowMarks::Reset(std::size_t rows)
{
    Marked.assign(rows, 0);
    First.assign(rows, None);
    Notes.reserve(rows * MostARow);
}

void RowMarks::Begin()
{
    Notes.clear();
    Complete = true;
}

void RowMarks::MarkFor(std::size_t row, std::int32_t body)
{
    Marked[row] = 1;
    if (Notes.size() == First.size() * MostARow)
    {
        Complete = false;
        return;
    }
    Notes.push_back({body, First[row]});
    First[row] = static_cast<std::int32_t>(Notes.size()) - 1;
}

std::size_t RowMarks::Next(std::size_t from) const
{
    const std::size_t count = Marked.size() - from;
    const void* const row = count != 0 ? std::memchr(Marked.data() + from, 1, count) : nullptr;
    return row != nullptr ? static_cast<std::size_t>(static_cast<const std::uint8_t*>(row) - Marked.data())
                          : Marked.size();
}

bool RowMarks::Take(std::size_t row, BodyList& bodies)
{
    bodies.Clear();
    for (std::int32_t note = First[row]; note != None; note = Notes[static_cast<std::size_t>(note)].Next)
        bodies.Add(Notes[static_cast<std::size_t>(note)].Body);
    bodies.Sort();
    Marked[row] = 0;
    First[row] = None;
    return Complete;
}
}
