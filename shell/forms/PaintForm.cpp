// SPDX-License-Identifier: Zlib
#include "shell/forms/PaintForm.h"

#include "base/Numbers.h"
#include "shell/forms/PaintBoxes.h"
#include "shell/forms/Style.h"

#include <algorithm>

namespace forms
{
namespace
{
// The smallest box around what stands on a frame, hidden sub-frames included, so that it does not jump with them.
Rect ContentsOf(const Form& form, const Control& frame)
{
    Rect box;
    bool first = true;
    for (const Control& control : form.Controls)
    {
        if (form.ParentOf(control) != &frame || control.Place.W <= 0 || control.Place.H <= 0)
            continue;
        const Rect place = form.PlaceOf(control);
        const std::int32_t left = first ? place.X : std::min(box.X, place.X);
        const std::int32_t top = first ? place.Y : std::min(box.Y, place.Y);
        const std::int32_t right = first ? place.X + place.W : std::max(box.X + box.W, place.X + place.W);
        const std::int32_t bottom = first ? place.Y + place.H : std::max(box.Y + box.H, place.Y + place.H);
        box = {left, top, right - left, bottom - top};
        first = false;
    }
    return box;
}

// A frame over the whole window: the picture behind it is darkened and its contents stand on a card.
void PaintFrame(Canvas& canvas, const Form& form, const Control& frame)
{
    Fill(canvas, form.PlaceOf(frame), Night, 130);
    Rect card = ContentsOf(form, frame);
    const std::int32_t margin = std::clamp(std::min(canvas.Width, canvas.Height) / 24, 6, 24);
    card = {card.X - margin, card.Y - margin, card.W + 2 * margin, card.H + 2 * margin};
    const double radius = Unit(canvas, 10);
    const std::int32_t drop = base::RoundEven(Unit(canvas, 4));
    FillRounded(canvas, {card.X + drop / 2, card.Y + drop, card.W, card.H}, radius, {0, 0, 0}, 90);
    FillRounded(canvas, card, radius, Night, 218);
    OutlineRounded(canvas, card, radius, Unit(canvas, 1), Accent, 90);
}

void PaintButton(Canvas& canvas, const Control& button, const Rect& place, const State& state)
{
    const double radius = Unit(canvas, 6);
    const bool chosen = button.Style == Look::Tab && button.Value != 0;
    const bool hot = state.Hot && state.Enabled;
    if (hot)
        FillRounded(canvas, place, radius, state.Pressed ? AccentDeep : Accent, 255);
    else
    {
        FillRounded(canvas, place, radius, chosen ? AccentDeep : Slate, !state.Enabled ? 80 : chosen ? 200 : 190);
        OutlineRounded(canvas, place, radius, Unit(canvas, 1), chosen ? Accent : Muted,
                       !state.Enabled ? 40
                       : chosen       ? 220
                                      : 90);
    }
    if (state.Focus)
        PaintRing(canvas, place, radius);
    const std::int32_t sunk = hot && state.Pressed ? 1 : 0;
    const Rect text = {place.X + 4, place.Y + sunk, place.W - 8, place.H};
    DrawText(canvas, text, button.Caption, button.TextSize, Bold,
             !state.Enabled ? Faint
             : hot          ? Night
                            : Pale,
             Align::Centre);
}

void PaintHeading(Canvas& canvas, const Control& label, const Rect& place)
{
    DrawText(canvas, place, label.Caption, label.TextSize, Bold, Accent, label.TextAlign);
    const std::int32_t y = place.Y + place.H - 1;
    FillDownward(canvas, {place.X, y, place.W, 1}, Accent, 120, Accent, 120);
}

// A binding that a click changes, or a setting that it steps on: the latter with a small arrow.
void PaintKey(Canvas& canvas, const Control& label, const Rect& place, const State& state)
{
    const bool fixed = label.Style == Look::FixedKey || !state.Enabled, hot = state.Hot && !fixed;
    const double radius = Unit(canvas, 4);
    FillRounded(canvas, place, radius, hot ? (state.Pressed ? AccentDeep : Accent) : Slate,
                fixed ? 90
                : hot ? 235
                      : 200);
    if (!fixed)
        OutlineRounded(canvas, place, radius, Unit(canvas, 1), hot ? Pale : Accent, hot ? 160 : 80);
    if (state.Focus)
        PaintRing(canvas, place, radius);
    const base::Rgb ink = !state.Enabled ? Faint : fixed ? Muted : hot ? Night : Pale;
    const std::int32_t arrow = label.Style == Look::Choice ? place.H * 2 / 3 : 0;
    const Rect text = {place.X + 4 + arrow / 2, place.Y, place.W - 8 - arrow - arrow / 2, place.H};
    DrawText(canvas, text, label.Caption, label.TextSize, 1, ink, Align::Centre);
    if (arrow == 0)
        return;
    const double reach = label.TextSize * 0.22, x = place.X + place.W - arrow * 0.75, y = place.Y + place.H / 2.0;
    const double thick = std::max(1.2, label.TextSize * 0.1);
    const base::Rgb tip = hot || !state.Enabled ? ink : Accent;
    DrawStroke(canvas, x - reach / 2, y - reach, x + reach / 2, y, thick, tip);
    DrawStroke(canvas, x + reach / 2, y, x - reach / 2, y + reach, thick, tip);
}

// Underlined, as words that one can click are.
void PaintLink(Canvas& canvas, const Control& label, const Rect& place, const State& state)
{
    const base::Rgb colour = !state.Enabled ? Faint : state.Hot ? Pale : Accent;
    if (state.Focus)
        PaintRing(canvas, place, Unit(canvas, 3));
    DrawText(canvas, place, label.Caption, label.TextSize, 1, colour, label.TextAlign);
    const std::int32_t thick = std::max(1, label.TextSize / 14);
    Fill(canvas, {place.X, place.Y + place.H / 2 + label.TextSize * 9 / 20, place.W, thick}, colour, 200);
}

// A warm bar that fades to both sides, behind the entry under the pointer.
void PaintGlow(Canvas& canvas, const Rect& place)
{
    const std::int32_t half = place.W / 2, steps = 24;
    for (std::int32_t step = 0; step < steps; ++step)
    {
        const std::int32_t from = half * step / steps, to = half * (step + 1) / steps;
        const int alpha = 80 * (steps - step) / steps;
        Fill(canvas, {place.X + half + from, place.Y, to - from, place.H}, AccentDeep, alpha);
        Fill(canvas, {place.X + half - to, place.Y, to - from, place.H}, AccentDeep, alpha);
    }
}

void PaintLabel(Canvas& canvas, const Control& label, const Rect& place, const State& state)
{
    const bool stands = (state.Hot || state.Focus) && state.Enabled;
    const auto draw = [&](double weight, base::Rgb colour) {
        DrawText(canvas, place, label.Caption, label.TextSize, weight, state.Enabled ? colour : Faint, label.TextAlign);
    };
    switch (label.Style)
    {
    case Look::Heading:
        PaintHeading(canvas, label, place);
        break;
    case Look::Entry:
        if (stands)
            PaintGlow(canvas, place);
        draw(Bold, stands ? Accent : Pale);
        break;
    case Look::Shadow:
        DrawText(canvas, place, label.Caption, label.TextSize, Bold, {0, 0, 0}, label.TextAlign);
        break;
    case Look::Key:
    case Look::FixedKey:
    case Look::Choice:
        PaintKey(canvas, label, place, state);
        break;
    case Look::Link:
        PaintLink(canvas, label, place, state);
        break;
    case Look::Paragraph:
        DrawParagraph(canvas, place, label.Caption, label.TextSize, 1, Pale, label.TextAlign);
        break;
    case Look::Note:
        draw(1, Muted);
        break;
    case Look::Plain:
    case Look::Tab:
        draw(1, Pale);
        break;
    }
}

void PaintControl(Canvas& canvas, const Control& control, const Rect& place, const State& state, const Marks& marks,
                  PicturePainter& pictures)
{
    switch (control.Type)
    {
    case Kind::Label:
        return PaintLabel(canvas, control, place, state);
    case Kind::Button:
        return PaintButton(canvas, control, place, state);
    case Kind::TextBox:
    case Kind::ComboBox:
        return PaintTextBox(canvas, control, place, state, marks);
    case Kind::CheckBox:
        return PaintCheckBox(canvas, control, place, state);
    case Kind::Picture:
        pictures.PaintPicture(canvas, control, place);
        if (state.Focus)
            PaintRing(canvas, place, place.H / 2.0);
        return;
    case Kind::Frame:
        return;
    }
}
}

void DrawLevel(Canvas& canvas, const Rect& rect, double share, bool enabled)
{
    const double level = share > 0 ? std::min(share, 1.0) : 0.0; // no number counts as nothing
    const double radius = rect.H / 2.0;
    FillRounded(canvas, rect, radius, Slate, enabled ? 200 : 90);
    const std::int32_t filled = base::RoundEven(level * std::max(0, rect.W - rect.H)) + rect.H;
    const Rect bar = {rect.X, rect.Y, std::min(filled, rect.W), rect.H};
    FillRounded(canvas, bar, radius, enabled ? AccentDeep : Muted, enabled ? 230 : 90);
    if (enabled)
        FillRounded(canvas, {bar.X + bar.W - rect.H, rect.Y, rect.H, rect.H}, radius, Pale, 255);
    OutlineRounded(canvas, rect, radius, Unit(canvas, 1), enabled ? Accent : Muted, 90);
}

void PaintForm(Canvas& canvas, const Form& form, const Marks& marks, PicturePainter& pictures)
{
    const Control* frame = form.TopFrame();
    if (frame != nullptr)
        PaintFrame(canvas, form, *frame);
    for (const Control& control : form.Controls)
    {
        const Rect place = form.PlaceOf(control);
        if (!form.IsShown(control) || !form.IsOn(control, frame) || place.W <= 0 || place.H <= 0)
            continue;
        const std::int16_t index = form.IndexOf(control);
        const State state = {index == marks.Hot, index == marks.Pressed, index == form.Focus, form.IsEnabled(control)};
        PaintControl(canvas, control, place, state, marks, pictures);
    }
    const auto owner = static_cast<std::size_t>(marks.List.Owner);
    if (marks.List.Owner >= 0 && owner < form.Controls.size())
        PaintList(canvas, form.Controls[owner], form.PlaceOf(form.Controls[owner]), marks);
}
}
