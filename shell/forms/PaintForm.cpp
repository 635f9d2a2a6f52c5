// How each kind of control looks: dark translucent boxes, pale text, one warm accent.
#include "base/Numbers.h"
#include "shell/forms/Paint.h"

#include <algorithm>

namespace forms
{
namespace
{
constexpr Colour Accent = {255, 158, 54};
constexpr Colour AccentDeep = {226, 96, 24};
constexpr Colour Pale = {240, 235, 226};
constexpr Colour Muted = {160, 156, 150};
constexpr Colour Night = {13, 15, 22};
constexpr Colour Slate = {44, 48, 60};
constexpr double Bold = 1.45;

// Pixels of a measure that is given for a window of 600 x 312.
double Unit(const Canvas& canvas, double pixels)
{
    return pixels * std::clamp(std::min(canvas.Width / 600.0, canvas.Height / 312.0), 0.7, 3.0);
}

bool Covers(const Rect& place, const Canvas& canvas)
{
    return place.X <= 0 && place.Y <= 0 && place.X + place.W >= canvas.Width && place.Y + place.H >= canvas.Height;
}

bool IsWithin(const Form& form, const Control& control, const Control& frame)
{
    for (const Control* at = &control; at != nullptr; at = form.ParentOf(*at))
        if (at == &frame)
            return true;
    return false;
}

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

void PaintButton(Canvas& canvas, const Control& button, const Rect& place, bool hot)
{
    const double radius = Unit(canvas, 6);
    const bool chosen = button.Style == Look::Tab && button.Value != 0;
    if (hot)
        FillRounded(canvas, place, radius, Accent, 255);
    else
    {
        FillRounded(canvas, place, radius, chosen ? AccentDeep : Slate, chosen ? 200 : 190);
        OutlineRounded(canvas, place, radius, Unit(canvas, 1), chosen ? Accent : Muted, chosen ? 220 : 90);
    }
    const Rect text = {place.X + 4, place.Y, place.W - 8, place.H};
    DrawText(canvas, text, button.Caption, button.TextSize, Bold, hot ? Night : Pale, Align::Centre);
}

void PaintHeading(Canvas& canvas, const Control& label, const Rect& place)
{
    DrawText(canvas, place, label.Caption, label.TextSize, Bold, Accent, label.TextAlign);
    const std::int32_t y = place.Y + place.H - 1;
    FillDownward(canvas, {place.X, y, place.W, 1}, Accent, 120, Accent, 120);
}

void PaintKey(Canvas& canvas, const Control& label, const Rect& place, bool hot)
{
    const bool fixed = label.Style == Look::FixedKey;
    const double radius = Unit(canvas, 4);
    FillRounded(canvas, place, radius, hot && !fixed ? Accent : Slate, fixed ? 90 : hot ? 235 : 200);
    if (!fixed)
        OutlineRounded(canvas, place, radius, Unit(canvas, 1), hot ? Pale : Accent, hot ? 160 : 80);
    const Rect text = {place.X + 4, place.Y, place.W - 8, place.H};
    DrawText(canvas, text, label.Caption, label.TextSize, 1, fixed ? Muted : hot ? Night : Pale, Align::Centre);
}

// Underlined, as words that one can click are.
void PaintLink(Canvas& canvas, const Control& label, const Rect& place, bool hot)
{
    const Colour colour = hot ? Pale : Accent;
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

void PaintLabel(Canvas& canvas, const Control& label, const Rect& place, bool hot)
{
    switch (label.Style)
    {
    case Look::Heading:
        PaintHeading(canvas, label, place);
        break;
    case Look::Entry:
        if (hot)
            PaintGlow(canvas, place);
        DrawText(canvas, place, label.Caption, label.TextSize, Bold, hot ? Accent : Pale, label.TextAlign);
        break;
    case Look::Shadow:
        DrawText(canvas, place, label.Caption, label.TextSize, Bold, {0, 0, 0}, label.TextAlign);
        break;
    case Look::Key:
    case Look::FixedKey:
    case Look::Choice:
        PaintKey(canvas, label, place, hot);
        break;
    case Look::Link:
        PaintLink(canvas, label, place, hot);
        break;
    case Look::Paragraph:
        DrawParagraph(canvas, place, label.Caption, label.TextSize, 1, Pale, label.TextAlign);
        break;
    case Look::Note:
        DrawText(canvas, place, label.Caption, label.TextSize, 1, Muted, label.TextAlign);
        break;
    case Look::Plain:
    case Look::Tab:
        DrawText(canvas, place, label.Caption, label.TextSize, 1, Pale, label.TextAlign);
        break;
    }
}

// The topmost frame that hides everything below it, or nullptr.
const Control* CoveringFrame(const Canvas& canvas, const Form& form)
{
    const Control* found = nullptr;
    for (const Control& control : form.Controls)
        if (control.Type == Kind::Frame && control.Parent < 0 && form.IsShown(control) &&
            Covers(form.PlaceOf(control), canvas))
            found = &control;
    return found;
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

void PaintForm(Canvas& canvas, const Form& form, std::int16_t hot, PicturePainter& pictures)
{
    const Control* frame = CoveringFrame(canvas, form);
    if (frame != nullptr)
        PaintFrame(canvas, form, *frame);
    for (const Control& control : form.Controls)
    {
        const Rect place = form.PlaceOf(control);
        if (!form.IsShown(control) || place.W <= 0 || place.H <= 0)
            continue;
        if (frame != nullptr && !IsWithin(form, control, *frame))
            continue;
        const bool isHot = form.IndexOf(control) == hot;
        if (control.Type == Kind::Label)
            PaintLabel(canvas, control, place, isHot);
        else if (control.Type == Kind::Button)
            PaintButton(canvas, control, place, isHot);
        else if (control.Type == Kind::Picture)
            pictures.PaintPicture(canvas, control, place);
    }
}
}
