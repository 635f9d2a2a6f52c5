// SPDX-License-Identifier: Zlib
// shell/forms/PaintBoxes.h: how text boxes, combo boxes with their list and check boxes look. Where their parts stand
// is in Boxes.h. `place` is the control's own, in pixels of the canvas.
#pragma once
#include "shell/forms/Control.h"
#include "shell/forms/Marks.h"
#include "shell/forms/Paint.h"
#include "shell/forms/Style.h"

namespace forms
{
// A text box, or a combo box without its list. Caret and selection are those of the marks, and are seen where the box
// has the focus.
void PaintTextBox(Canvas& canvas, const Control& box, const Rect& place, const State& state, const Marks& marks);
void PaintCheckBox(Canvas& canvas, const Control& box, const Rect& place, const State& state);
// The open list of the combo box that stands at `place`.
void PaintList(Canvas& canvas, const Control& box, const Rect& place, const Marks& marks);
}
