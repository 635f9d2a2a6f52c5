// SPDX-License-Identifier: Zlib
#include "shell/forms/Boxes.h"

#include "base/Numbers.h"
#include "shell/forms/LineEdit.h"
#include "typeface/Typeface.h"

#include <algorithm>

namespace forms
{
namespace
{
constexpr std::int32_t Border = 1; // of a list
constexpr std::int32_t ShortestThumb = 8;

typeface::Style StyleOf(const Control& box)
{
    return {static_cast<double>(box.TextSize), 1, 0};
}
}

Rect DropButton(const Control& box, const Rect& place)
{
    if (box.Type != Kind::ComboBox)
        return {place.X + place.W, place.Y, 0, 0};
    const std::int32_t width = std::min(place.H, place.W / 2);
    return {place.X + place.W - width, place.Y, width, place.H};
}

Rect TextRoom(const Control& box, const Rect& place)
{
    const std::int32_t inset = std::max(3, box.TextSize / 3);
    const std::int32_t right = DropButton(box, place).X;
    return {place.X + inset, place.Y + 1, std::max(0, right - place.X - 2 * inset), std::max(0, place.H - 2)};
}

Rect TickSquare(const Control& box, const Rect& place)
{
    const std::int32_t side = std::min({place.H, place.W, box.TextSize * 5 / 4});
    return {place.X, place.Y + (place.H - side) / 2, side, side};
}

std::int32_t CaretColumn(const Control& box, std::size_t caret)
{
    const std::string_view shown = ShownPart(box.Text);
    return base::RoundEven(typeface::Width(shown.substr(0, caret), StyleOf(box)));
}

std::size_t CaretAt(const Control& box, std::int32_t column)
{
    return typeface::GapAt(ShownPart(box.Text), StyleOf(box), column);
}

std::int32_t CaretWidth(const Control& box)
{
    return std::max(1, box.TextSize / 14);
}

std::int32_t ScrollFor(const Control& box, const Rect& room, std::size_t caret, std::int32_t scroll)
{
    const std::int32_t width = CaretWidth(box), column = CaretColumn(box, caret);
    const std::int32_t whole = CaretColumn(box, box.Text.size()) + width;
    scroll = std::clamp(scroll, std::min(column, column + width - room.W), column);
    return std::clamp(scroll, 0, std::max(0, whole - room.W));
}

Rect ListPlace::Row(std::int32_t shown) const
{
    return {Box.X + Border, Box.Y + Border + shown * RowHeight, Box.W - 2 * Border - Track.W, RowHeight};
}

std::int32_t ListPlace::RowAt(std::int32_t x, std::int32_t y) const
{
    for (std::int32_t shown = 0; shown < Rows; ++shown)
        if (Contains(Row(shown), x, y))
            return shown;
    return -1;
}

ListPlace PlaceList(const Control& box, const Rect& place, platform::Size client, std::int32_t first)
{
    ListPlace list;
    const auto items = static_cast<std::int32_t>(box.Items.size());
    list.RowHeight = std::max(1, box.TextSize * 8 / 5);
    const auto rowsIn = [&list](std::int32_t room) { return std::max(0, (room - 2 * Border) / list.RowHeight); };
    const std::int32_t bottom = place.Y + place.H;
    const std::int32_t below = rowsIn(client.Height - bottom), above = rowsIn(place.Y);
    const bool opensDown = below >= items || below >= above;
    list.Rows = std::clamp(opensDown ? below : above, 1, std::max(1, items));
    const std::int32_t height = list.Rows * list.RowHeight + 2 * Border;
    const std::int32_t width = std::min(place.W, client.Width);
    const std::int32_t y = opensDown ? bottom : place.Y - height;
    list.Box = {std::clamp(place.X, 0, std::max(0, client.Width - width)),
                std::clamp(y, 0, std::max(0, client.Height - height)), width, height};
    if (list.Rows >= items)
        return list;
    const std::int32_t bar = std::clamp(box.TextSize * 2 / 3, 6, width);
    list.Track = {list.Box.X + width - Border - bar, list.Box.Y + Border, bar, height - 2 * Border};
    const std::int32_t thumb = std::min(list.Track.H, std::max(ShortestThumb, list.Track.H * list.Rows / items));
    const std::int32_t way = list.Track.H - thumb, steps = items - list.Rows;
    list.Thumb = {list.Track.X, list.Track.Y + way * std::clamp(first, 0, steps) / steps, bar, thumb};
    return list;
}

std::int32_t FirstRowAt(const ListPlace& list, std::int32_t items, std::int32_t y)
{
    const std::int32_t way = list.Track.H - list.Thumb.H, steps = std::max(0, items - list.Rows);
    if (way <= 0)
        return 0;
    const double share = (y - list.Track.Y - list.Thumb.H / 2.0) / way;
    return std::clamp(base::RoundEven(share * steps), 0, steps);
}
}
