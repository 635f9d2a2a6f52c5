// SPDX-License-Identifier: Zlib
// render/SlotList.h: a list of scene records. Indices never change; a freed record is used again, the first free one
// first; the count of live records is 16 bits wide.
#pragma once
#include "base/Numbers.h"
#include "base/RuntimeError.h"

#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace render
{
template <class Record> struct SlotList
{
    std::vector<Record> Items;
    std::int16_t Count = 0; // live records

    std::int16_t Size() const { return static_cast<std::int16_t>(Items.size()); }
    bool Has(std::int32_t index) const { return index >= 0 && static_cast<std::size_t>(index) < Items.size(); }

    // The record, or RuntimeError 9.
    Record& At(std::int32_t index)
    {
        if (!Has(index))
            throw base::RuntimeError(base::ErrorIndex);
        return Items[static_cast<std::size_t>(index)];
    }
    const Record& At(std::int32_t index) const { return const_cast<SlotList*>(this)->At(index); }

    // Puts the record into the first free slot, else at the end; its index. RuntimeError 6 beyond the 16-bit index.
    std::int16_t Add(Record record = {})
    {
        std::size_t slot = 0;
        while (slot < Items.size() && Items[slot].Free == 0)
            ++slot;
        return AddAt(slot, std::move(record));
    }

    // The same into a slot that the caller chose (Items.size(): a new one).
    std::int16_t AddAt(std::size_t slot, Record record)
    {
        if (slot > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
            throw base::RuntimeError(base::ErrorOverflow);
        if (slot == Items.size())
            Items.push_back(std::move(record));
        else
            Items[slot] = std::move(record);
        ++Count;
        return static_cast<std::int16_t>(slot);
    }

    // Frees a live record and everything it holds; a free one stays as it is.
    void Release(std::int32_t index)
    {
        Record& record = At(index);
        if (record.Free != 0)
            return;
        record = Record{};
        record.Free = 1;
        --Count;
    }
};

// Drawn when Visible is set and Free is clear.
template <class Record> bool IsDrawn(const Record& record)
{
    return record.Visible != 0 && record.Free == 0;
}
}
