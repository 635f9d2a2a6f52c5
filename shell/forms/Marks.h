// shell/forms/Marks.h: what mouse and keys have marked on a form, for those who paint it. Controls by index; -1 none.
#pragma once
#include "shell/forms/LineEdit.h"

#include <cstdint>

namespace forms
{
struct Marks
{
    std::int16_t Hot = -1;     // under the pointer, and it would react
    std::int16_t Pressed = -1; // the left button went down on it and is held
    Selection Edit;            // in the text of the box with the focus
    std::int32_t Scroll = 0;   // pixels that this text is moved to the left
    struct
    {
        std::int16_t Owner = -1; // the combo box whose list is open
        std::int32_t Item = -1;  // highlighted
        std::int32_t First = 0;  // the topmost shown
    } List;
};
}
