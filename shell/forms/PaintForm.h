// SPDX-License-Identifier: Zlib
// shell/forms/PaintForm.h: painting a form: every control in its looks, over whatever the canvas shows already.
#pragma once
#include "shell/forms/Control.h"
#include "shell/forms/Marks.h"
#include "shell/forms/Paint.h"

namespace forms
{
// Whoever owns the pictures of the Picture controls. place: on the canvas; may reach beyond it.
struct PicturePainter
{
    virtual ~PicturePainter() = default;
    virtual void PaintPicture(Canvas& canvas, const Control& control, Rect place) = 0;
};

// Paints every shown control; only what lies on the topmost frame over the whole window, where there is one. The open
// list comes last, over everything. marks: as Interaction::Shown gives them after Settle.
void PaintForm(Canvas& canvas, const Form& form, const Marks& marks, PicturePainter& pictures);

// A bar filled from the left to a share of 0 to 1, with its grip: for the picture boxes that are levels. A share
// outside is the nearer end, one that is no number 0.
void DrawLevel(Canvas& canvas, const Rect& rect, double share, bool enabled);
}
