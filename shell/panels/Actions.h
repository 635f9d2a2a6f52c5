// SPDX-License-Identifier: Zlib
// shell/panels/Actions.h: what the controls of the window do, by control: when clicked, when the pointer is held on
// them, when they are to be painted. Panels enter what their controls do as they make them; nothing is taken out again.
#pragma once
#include "shell/forms/Paint.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace panels
{
class Actions
{
public:
    using Click = std::function<void()>;
    // x: pixels from the picture's left edge, beyond it while the button stays down; width: of the picture.
    using Point = std::function<void(std::int32_t x, std::int32_t width)>;
    using Paint = std::function<void(forms::Canvas& canvas, const forms::Rect& place)>;

    void OnClick(std::int16_t control, Click click) { Of(control).Clicked = std::move(click); }
    void OnPoint(std::int16_t picture, Point point) { Of(picture).Pointed = std::move(point); }
    void OnPaint(std::int16_t picture, Paint paint) { Of(picture).Painted = std::move(paint); }

    // Empty functions where there is none. Valid until the next control's is entered.
    const Click& ClickOf(std::int16_t control) const { return Find(control).Clicked; }
    const Point& PointOf(std::int16_t control) const { return Find(control).Pointed; }
    const Paint& PaintOf(std::int16_t control) const { return Find(control).Painted; }

private:
    struct Entry
    {
        Click Clicked;
        Point Pointed;
        Paint Painted;
    };
    Entry& Of(std::int16_t control);
    const Entry& Find(std::int16_t control) const;

    std::vector<Entry> Entries = std::vector<Entry>(1); // by control + 1; the first stays empty
};
}
