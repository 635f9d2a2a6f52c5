// SPDX-License-Identifier: Zlib
// shell/forms/DropList.h: the open list of a combo box: which of its items are seen and which one is highlighted. Its
// state is the List of the marks, which those who paint read; the text of the box is nobody's business here.
// Unless it says so, a call is for while the list is open.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Boxes.h"
#include "shell/forms/Control.h"
#include "shell/forms/Marks.h"

#include <cstdint>

namespace forms
{
class DropList
{
public:
    // Both are borrowed for life.
    DropList(Form& form, Marks& marks) : TheForm(form), List(marks.List) {}

    bool IsOpen() const { return List.Owner >= 0; } // at any time
    // Opens it, with the item highlighted that the box's text is. False: the box has no items, and nothing is changed.
    bool Open(const Control& box);
    bool Close(); // at any time; false: it was not open

    Control& Box() const;
    ListPlace Place() const;
    std::int32_t Item() const { return List.Item; } // highlighted; -1 none
    // The item under a point of the client area, -1 where there is none.
    std::int32_t ItemAt(platform::Point at) const;

    // Highlights an item and scrolls as little as can be to where it is seen. -1: highlights none.
    void Show(std::int32_t item);
    // Highlights the next item (step 1) or the one before (-1).
    void Step(int step);
    // Highlights the item under the point, if there is one.
    void PointAt(platform::Point at);
    // Scrolls to where the middle of the bar's thumb is at that height of the client area.
    void ScrollTo(std::int32_t y);
    // Follows other items, of which there must be some, or another size of the window.
    void Fit();

private:
    Form& TheForm;
    ListMarks& List;
};

// The item that a step leads to from the one that the box's text is; from another text, the first or the last. The box
// must have items.
std::int32_t NextItem(const Control& box, int step);
}
