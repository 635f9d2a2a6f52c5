// SPDX-License-Identifier: Zlib
#include "shell/forms/DropList.h"

#include <algorithm>

namespace forms
{
namespace
{
std::int32_t CountOf(const Control& box)
{
    return static_cast<std::int32_t>(box.Items.size());
}

// The item that the text is; -1 another text.
std::int32_t ItemOf(const Control& box)
{
    const auto found = std::find(box.Items.begin(), box.Items.end(), box.Text);
    return found == box.Items.end() ? -1 : static_cast<std::int32_t>(found - box.Items.begin());
}

// From no item the first step goes to the nearer end.
std::int32_t Stepped(const Control& box, std::int32_t item, int step)
{
    const std::int32_t last = CountOf(box) - 1;
    if (item < 0)
        return step > 0 ? 0 : last;
    return std::clamp(item + step, 0, last);
}
}

bool DropList::Open(const Control& box)
{
    if (box.Items.empty())
        return false;
    List = {TheForm.IndexOf(box), -1, 0};
    Show(ItemOf(box));
    return true;
}

bool DropList::Close()
{
    if (!IsOpen())
        return false;
    List = {};
    return true;
}

Control& DropList::Box() const
{
    return TheForm.Controls[static_cast<std::size_t>(List.Owner)];
}

ListPlace DropList::Place() const
{
    const Control& box = Box();
    return PlaceList(box, TheForm.PlaceOf(box), TheForm.Client, List.First);
}

std::int32_t DropList::ItemAt(platform::Point at) const
{
    const std::int32_t row = Place().RowAt(at.X, at.Y);
    return row < 0 ? -1 : List.First + row;
}

void DropList::Show(std::int32_t item)
{
    const std::int32_t rows = Place().Rows;
    List.Item = item;
    if (item >= 0)
        List.First = std::clamp(List.First, std::max(0, item - rows + 1), item);
    Fit();
}

void DropList::Step(int step)
{
    Show(Stepped(Box(), List.Item, step));
}

void DropList::PointAt(platform::Point at)
{
    if (const std::int32_t item = ItemAt(at); item >= 0)
        List.Item = item;
}

void DropList::ScrollTo(std::int32_t y)
{
    List.First = FirstRowAt(Place(), CountOf(Box()), y);
}

void DropList::Fit()
{
    const std::int32_t rows = Place().Rows, items = CountOf(Box());
    List.Item = std::min(List.Item, items - 1);
    List.First = std::clamp(List.First, 0, items - rows);
}

std::int32_t NextItem(const Control& box, int step)
{
    return Stepped(box, ItemOf(box), step);
}
}
