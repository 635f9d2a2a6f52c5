// Where the keys panel stands: three sub-frames in one place, chosen by the buttons above them.
#include "shell/Design.h"
#include "shell/forms/Paint.h"
#include "shell/Layout.h"

#include <algorithm>
#include <string_view>

namespace shell
{
using forms::Align;

namespace
{
// narrow: remarks stand under their actions.
void Rows(Layout& layout, std::string_view panel, std::int32_t width, bool narrow)
{
    const std::int32_t text = layout.Text, row = layout.Row, gap = layout.Gap;
    const std::int32_t key = std::min(width * 2 / 5, text * 9), inset = std::max(1, row / 12);
    std::int32_t y = 0;
    std::int16_t number = -1;
    for (const ActionRow& action : ActionRows())
    {
        ++number;
        if (action.Panel != panel)
            continue;
        const std::int32_t room = width - key - gap;
        const std::int32_t small = text * 17 / 20;
        const std::int32_t caption = forms::MeasureText(action.Caption, text, 1);
        layout.Place("lblAction", number, {0, y, narrow ? room : std::min(room, caption), row - inset}, text);
        layout.Place(action.Key, action.KeyIndex, {width - key, y + inset, key, row - 2 * inset}, text, Align::Centre);
        const std::int32_t behind = caption + gap;
        if (narrow)
            layout.Place("lblRemark", number, {0, y + row - inset, room, row / 2 + inset}, small);
        else
            layout.Place("lblRemark", number, {behind, y, room - behind, row}, small);
        y += row + (narrow && *action.Remark != '\0' ? row / 2 : 0);
    }
}
}

void LayoutKeys(Layout& layout)
{
    constexpr std::int32_t letters = 31;
    const bool narrow = layout.CardWidth(letters) < layout.Text * 29;
    const std::int32_t rows = 6 * layout.Row + (narrow ? layout.Row : 0);
    Card card(layout, letters, layout.ButtonHeight() + layout.Gap + rows);
    card.Heading("lblCtrOpt");
    const std::int32_t space = layout.Gap / 2, tab = (card.Width - 2 * space) / 3;
    std::int32_t x = card.Left;
    for (const char* name : {"cCtrMov", "cCtrCam", "cCtrOth"})
    {
        layout.Place(name, {x, card.Y, tab, layout.ButtonHeight()}, layout.Text, Align::Centre);
        x += tab + space;
    }
    card.Y += layout.ButtonHeight() + layout.Gap;
    for (const char* name : {"panelCtrMov", "panelCtrCam", "panelCtrOth"})
    {
        layout.Place(name, {card.Left, card.Y, card.Width, rows}, layout.Text);
        Rows(layout, name, card.Width, narrow);
    }
    card.Y += rows;
    card.OK("cCtrOptOK");
}
}
