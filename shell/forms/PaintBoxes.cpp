// SPDX-License-Identifier: Zlib
#include "shell/forms/PaintBoxes.h"

#include "base/Numbers.h"
#include "shell/forms/Boxes.h"
#include "typeface/Typeface.h"

#include <algorithm>

namespace forms
{
namespace
{
void PaintField(Canvas& canvas, const Rect& place, double radius, const State& state)
{
    FillRounded(canvas, place, radius, Slate, state.Enabled ? 170 : 70);
    if (state.Focus)
        OutlineRounded(canvas, place, radius, std::max(1.0, Unit(canvas, 1.6)), Accent);
    else if (state.Hot && state.Enabled)
        OutlineRounded(canvas, place, radius, Unit(canvas, 1), Pale, 170);
    else
        OutlineRounded(canvas, place, radius, Unit(canvas, 1), Muted, state.Enabled ? 100 : 40);
}

// The band of the line in which caret and selection stand.
Rect LineBand(const Control& box, const Rect& room)
{
    const std::int32_t height = std::min(room.H, base::RoundEven(typeface::LineHeight(box.TextSize)));
    return {room.X, room.Y + (room.H - height) / 2, room.W, height};
}

void PaintSelection(Canvas& canvas, const Control& box, const Rect& room, const Marks& marks)
{
    const Rect band = LineBand(box, room);
    const auto column = [&](std::size_t at)
    { return std::clamp(room.X + CaretColumn(box, at) - marks.Scroll, room.X, room.X + room.W); };
    const std::int32_t left = column(marks.Edit.First()), right = column(marks.Edit.Last());
    Fill(canvas, {left, band.Y, right - left, band.H}, AccentDeep);
}

void PaintCaret(Canvas& canvas, const Control& box, const Rect& room, const Marks& marks)
{
    const Rect band = LineBand(box, room);
    const std::int32_t x = room.X + CaretColumn(box, marks.Edit.Caret) - marks.Scroll;
    const std::int32_t right = std::min(x + CaretWidth(box), room.X + room.W);
    Fill(canvas, {x, band.Y, right - x, band.H}, Pale);
}

// A tip that points down, as wide as a small letter.
void PaintTip(Canvas& canvas, const Rect& place, std::int32_t textSize, base::Rgb colour)
{
    const double x = place.X + place.W / 2.0, y = place.Y + place.H / 2.0;
    const double reach = textSize * 0.26, thick = std::max(1.2, textSize * 0.11);
    DrawStroke(canvas, x - reach, y - reach / 2, x, y + reach / 2, thick, colour);
    DrawStroke(canvas, x, y + reach / 2, x + reach, y - reach / 2, thick, colour);
}
}

void PaintTextBox(Canvas& canvas, const Control& box, const Rect& place, const State& state, const Marks& marks)
{
    PaintField(canvas, place, Unit(canvas, 4), state);
    const Rect room = TextRoom(box, place);
    const bool edited = state.Focus && state.Enabled;
    if (edited && !marks.Edit.IsEmpty())
        PaintSelection(canvas, box, room, marks);
    DrawLine(canvas, room, room.X - (edited ? marks.Scroll : 0), box.Text, box.TextSize, state.Enabled ? Pale : Faint);
    if (edited)
        PaintCaret(canvas, box, room, marks);
    const Rect button = DropButton(box, place);
    if (button.W <= 0)
        return;
    const std::int32_t inset = std::max(2, button.H / 6);
    Fill(canvas, {button.X, button.Y + inset, 1, button.H - 2 * inset}, Muted, state.Enabled ? 90 : 40);
    PaintTip(canvas, button, box.TextSize, state.Enabled ? Accent : Faint);
}

void PaintCheckBox(Canvas& canvas, const Control& box, const Rect& place, const State& state)
{
    const Rect square = TickSquare(box, place);
    const double radius = Unit(canvas, 3), side = square.W;
    const bool ticked = box.Value != 0, hot = state.Hot && state.Enabled;
    if (ticked && state.Enabled)
    {
        FillRounded(canvas, square, radius, state.Pressed ? AccentDeep : Accent);
        if (hot)
            OutlineRounded(canvas, square, radius, Unit(canvas, 1), Pale, 200);
    }
    else
        PaintField(canvas, square, radius, {hot, state.Pressed, false, state.Enabled});
    if (ticked)
    {
        const base::Rgb ink = state.Enabled ? Night : Faint;
        const double thick = std::max(1.4, side * 0.13), x = square.X, y = square.Y;
        DrawStroke(canvas, x + side * 0.24, y + side * 0.53, x + side * 0.43, y + side * 0.72, thick, ink);
        DrawStroke(canvas, x + side * 0.43, y + side * 0.72, x + side * 0.77, y + side * 0.3, thick, ink);
    }
    const std::int32_t gap = std::max(4, box.TextSize / 2);
    const Rect text = {square.X + square.W + gap, place.Y, std::max(0, place.W - square.W - gap), place.H};
    DrawText(canvas, text, box.Caption, box.TextSize, 1, !state.Enabled ? Faint : hot ? Accent : Pale, Align::Left);
    if (state.Focus)
        PaintRing(canvas, square, radius);
}

void PaintList(Canvas& canvas, const Control& box, const Rect& place, const Marks& marks)
{
    const ListPlace list = PlaceList(box, place, {canvas.Width, canvas.Height}, marks.List.First);
    const std::int32_t drop = std::max(2, base::RoundEven(Unit(canvas, 3)));
    Fill(canvas, {list.Box.X + drop, list.Box.Y + drop, list.Box.W, list.Box.H}, {0, 0, 0}, 110);
    Fill(canvas, list.Box, Night);
    OutlineRounded(canvas, list.Box, 0, 1, Accent, 170);
    const std::int32_t inset = TextRoom(box, place).X - place.X - 1;
    for (std::int32_t shown = 0; shown < list.Rows; ++shown)
    {
        const std::int32_t item = marks.List.First + shown;
        if (item < 0 || static_cast<std::size_t>(item) >= box.Items.size())
            break;
        const std::string& text = box.Items[static_cast<std::size_t>(item)];
        const Rect row = list.Row(shown);
        const bool isHot = item == marks.List.Item;
        if (isHot)
            Fill(canvas, row, Accent);
        DrawText(canvas, {row.X + inset, row.Y, std::max(0, row.W - 2 * inset), row.H}, text, box.TextSize, 1,
                 isHot              ? Night
                 : text == box.Text ? Accent
                                    : Pale,
                 Align::Left);
    }
    Fill(canvas, list.Track, Slate);
    FillRounded(canvas, list.Thumb, list.Thumb.W / 2.0, Muted);
}
}
