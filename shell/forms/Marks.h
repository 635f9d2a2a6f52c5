// SPDX-License-Identifier: Zlib
// shell/forms/Marks.h: what mouse and keys have marked on a form, for those who paint it. Controls by index in the
// form; -1 none. Interaction writes them; whoever paints reads them after Interaction::Settle.
#pragma once
#include "shell/forms/LineEdit.h"

#include <cstdint>

namespace forms
{
// The open list of a combo box (DropList.h).
struct ListMarks
{
    std::int16_t Owner = -1; // the combo box; -1: no list is open
    std::int32_t Item = -1;  // highlighted; -1 none
    std::int32_t First = 0;  // the topmost shown
};

struct Marks
{
    std::int16_t Hot = -1;     // under the pointer, and it would react
    std::int16_t Pressed = -1; // the left button went down on it and is held
    Selection Edit;            // in the text of the box with the focus
    std::int32_t Scroll = 0;   // pixels that this text is moved to the left
    ListMarks List;
};
}
