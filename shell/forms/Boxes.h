// SPDX-License-Identifier: Zlib
// shell/forms/Boxes.h: where the parts of text boxes, combo boxes and check boxes stand, for those who paint them and
// those who hit them. Pixels of the client area; `place` is the control's own.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"

#include <cstddef>

namespace forms
{
// Where the text of a text or combo box stands; its letters are cut off there.
Rect TextRoom(const Control& box, const Rect& place);
// The button of a combo box; empty for every other control.
Rect DropButton(const Control& box, const Rect& place);
// The square of a check box.
Rect TickSquare(const Control& box, const Rect& place);

// From the beginning of the text to the caret in front of a byte, and the byte in front of which a caret is nearest.
std::int32_t CaretColumn(const Control& box, std::size_t caret);
std::size_t CaretAt(const Control& box, std::int32_t column);
std::int32_t CaretWidth(const Control& box);
// How far the text must be moved to the left for the caret to be seen: as little as can be from where it was, without
// room left over behind the text.
std::int32_t ScrollFor(const Control& box, const Rect& room, std::size_t caret, std::int32_t scroll);

// The open list of a combo box: below the box, above it, or as many rows as the larger side has room for; always
// within the window.
struct ListPlace
{
    Rect Box;
    std::int32_t RowHeight = 1, Rows = 0; // rows shown at once
    Rect Track;                           // of the scroll bar; empty where all items are shown
    Rect Thumb;

    Rect Row(std::int32_t shown) const;                       // 0 the topmost shown
    std::int32_t RowAt(std::int32_t x, std::int32_t y) const; // -1: none there
};
ListPlace PlaceList(const Control& box, const Rect& place, platform::Size client, std::int32_t first);
// The first row for a thumb whose middle is at y.
std::int32_t FirstRowAt(const ListPlace& list, std::int32_t items, std::int32_t y);
}
