// SPDX-License-Identifier: Zlib
#include "shell/panels/Keys.h"

#include "base/Numbers.h"
#include "shell/panels/KeyNames.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace panels
{
namespace
{
using forms::Align;
using forms::Kind;
using forms::Look;
using shell::KeyBindings;

constexpr std::size_t Movement = 0, View = 1, Other = 2;

struct SubFrameDesign
{
    const char* Tab;
    const char* Caption;
    const char* Frame;
};
constexpr SubFrameDesign SubFrameDesigns[] = {
    {"cCtrMov", "Movimento", "panelCtrMov"},
    {"cCtrCam", "Visuale", "panelCtrCam"},
    {"cCtrOth", "Altro", "panelCtrOth"},
};

struct ActionRow
{
    std::size_t SubFrame;
    const char* Caption;
    const char* Remark;       // empty: none
    std::int16_t Index;       // of the binding, or of the fixed key among its like
    const char* FixedCaption; // null: a binding, which can be changed
};
constexpr ActionRow Rows[] = {
    {Movement, "Accelera:", "", KeyBindings::Accelerate, nullptr},
    {Movement, "Freno/Retromarcia:", "", KeyBindings::Brake, nullptr},
    {Movement, "Gira a sinistra:", "", KeyBindings::Left, nullptr},
    {Movement, "Gira a destra:", "", KeyBindings::Right, nullptr},
    {Movement, "Freno a mano:", "", KeyBindings::Handbrake, nullptr},
    {View, "Guarda indietro:", "", KeyBindings::LookBack, nullptr},
    {View, "Giocatore precedente:", "", KeyBindings::PreviousPlayer, nullptr},
    {View, "Giocatore successivo:", "", KeyBindings::NextPlayer, nullptr},
    {View, "Cambia visuale:", "(solo per la guida)", KeyBindings::ChangeView, nullptr},
    {View, "Seleziona visuale:", "", 4, "1 - 7"},
    {Other, "Apri menu:", "", 0, "ESC"},
    {Other, "Apri console:", "", 1, "\\"},
    {Other, "Chiudi console:", "", 2, "ESC"},
    {Other, "Pausa:", "", 3, "P"},
    {Other, "Pilota automatico:", "(solo a gara completa)", KeyBindings::Autopilot, nullptr},
    {Other, "Cambia musica:", "(solo a gara completa)", KeyBindings::NextMusic, nullptr},
};

// The whole number that a tag holds; 0 where it holds none that fits.
std::int16_t CodeOf(const std::string& tag)
{
    std::int16_t code = 0;
    const auto [end, error] = std::from_chars(tag.data(), tag.data() + tag.size(), code);
    return error == std::errc{} && end == tag.data() + tag.size() ? code : std::int16_t{0};
}
}

Keys::Keys(Board& board, KeyBindings& bindings)
    : Panel(board, "panelCtrOpt"), Bindings(bindings), lblCtrOpt(Heading("lblCtrOpt", "Controlli"))
{
    cCtrKey.fill(-1);
    for (std::size_t i = 0; i < SubFrames.size(); ++i)
        SubFrames[i].Tab = Button(SubFrameDesigns[i].Tab, SubFrameDesigns[i].Caption, Look::Tab);
    for (std::size_t i = 0; i < SubFrames.size(); ++i)
        SubFrames[i].Frame = Add(Kind::Frame, SubFrameDesigns[i].Frame, "");
    for (std::size_t row = 0; row < std::size(Rows); ++row)
        AddLine(row);
    txtRecKey = Box(Kind::TextBox, "txtRecKey", ""); // has no place of its own
    cCtrOptOK = OK("cCtrOptOK");
    On.Does.OnClick(SubFrames[Movement].Tab, [this] { cCtrMov_Click(); });
    On.Does.OnClick(SubFrames[View].Tab, [this] { cCtrCam_Click(); });
    On.Does.OnClick(SubFrames[Other].Tab, [this] { cCtrOth_Click(); });
    On.Does.OnClick(cCtrOptOK, [this] { cCtrOptOK_Click(); });
    ShowSubFrame(Movement);
}

void Keys::AddLine(std::size_t row)
{
    const ActionRow& action = Rows[row];
    const bool isFixed = action.FixedCaption != nullptr;
    const auto add = [&](const char* name, const char* caption, Look look, std::size_t index)
    {
        const std::int16_t label = Label(name, caption, look);
        At(label).Parent = SubFrames[action.SubFrame].Frame;
        At(label).Index = static_cast<std::int16_t>(index);
        return label;
    };
    Line line;
    line.Action = add("lblAction", action.Caption, Look::Plain, row);
    if (*action.Remark != '\0')
        line.Remark = add("lblRemark", action.Remark, Look::Note, row);
    const auto index = static_cast<std::size_t>(action.Index);
    if (isFixed)
    {
        line.Key = add("dCtrKey", action.FixedCaption, Look::FixedKey, index);
        On.Does.OnClick(line.Key, [this] { dCtrKey_Click(); });
    }
    else
    {
        const std::int16_t code = Bindings.Bindings[index];
        line.Key = cCtrKey[index] = add("cCtrKey", KeyName(code).c_str(), Look::Key, index);
        At(line.Key).Tag = std::to_string(code);
        On.Does.OnClick(line.Key, [this, binding = action.Index] { cCtrKey_Click(binding); });
    }
    Lines.push_back(line);
}

// narrow: remarks stand under their actions.
void Keys::PlaceLines(Layout& layout, std::size_t subFrame, std::int32_t width, bool narrow)
{
    const std::int32_t text = layout.Text, row = layout.Row, gap = layout.Gap;
    const std::int32_t key = std::min(width * 2 / 5, text * 9), inset = std::max(1, row / 12);
    const std::int32_t room = width - key - gap, small = text * 17 / 20;
    std::int32_t y = 0;
    for (std::size_t i = 0; i < Lines.size(); ++i)
    {
        if (Rows[i].SubFrame != subFrame)
            continue;
        const Line& line = Lines[i];
        const std::int32_t caption = forms::MeasureText(Rows[i].Caption, text, 1), behind = caption + gap;
        layout.Place(line.Action, {0, y, narrow ? room : std::min(room, caption), row - inset}, text);
        layout.Place(line.Key, {width - key, y + inset, key, row - 2 * inset}, text, Align::Centre);
        if (narrow)
            layout.Place(line.Remark, {0, y + row - inset, room, row / 2 + inset}, small);
        else
            layout.Place(line.Remark, {behind, y, room - behind, row}, small);
        y += row + (narrow && line.Remark >= 0 ? row / 2 : 0);
    }
}

void Keys::Place(platform::Size client)
{
    constexpr std::int32_t letters = 31;
    Layout layout(On.Form, client);
    const bool narrow = layout.CardWidth(letters) < layout.Text * 29;
    const std::int32_t rows = 6 * layout.Row + (narrow ? layout.Row : 0);
    Card card(layout, letters, layout.ButtonHeight() + layout.Gap + rows);
    card.Heading(lblCtrOpt);
    const std::int32_t space = layout.Gap / 2, tab = (card.Width - 2 * space) / 3;
    std::int32_t x = card.Left;
    for (const SubFrame& subFrame : SubFrames)
    {
        layout.Place(subFrame.Tab, {x, card.Y, tab, layout.ButtonHeight()}, layout.Text, Align::Centre);
        x += tab + space;
    }
    card.Y += layout.ButtonHeight() + layout.Gap;
    for (std::size_t i = 0; i < SubFrames.size(); ++i)
    {
        layout.Place(SubFrames[i].Frame, {card.Left, card.Y, card.Width, rows}, layout.Text);
        PlaceLines(layout, i, card.Width, narrow);
    }
    card.Y += rows;
    card.OK(cCtrOptOK);
}

void Keys::Open()
{
    ShowSubFrame(Movement);
    Show();
}

void Keys::ShowSubFrame(std::size_t shown)
{
    for (std::size_t i = 0; i < SubFrames.size(); ++i)
    {
        At(SubFrames[i].Frame).Visible = base::ToFlag(i == shown);
        At(SubFrames[i].Tab).Value = i == shown ? 1 : 0;
    }
}

void Keys::cCtrMov_Click()
{
    ShowSubFrame(Movement);
}

void Keys::cCtrCam_Click()
{
    ShowSubFrame(View);
}

void Keys::cCtrOth_Click()
{
    ShowSubFrame(Other);
}

void Keys::cCtrOptOK_Click()
{
    Hide();
}

forms::Control* Keys::KeyOf(std::int16_t index)
{
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < cCtrKey.size();
    return exists && cCtrKey[static_cast<std::size_t>(index)] >= 0 ? &At(cCtrKey[static_cast<std::size_t>(index)])
                                                                   : nullptr;
}

void Keys::ReadKeyBinding(std::int16_t index)
{
    if (const forms::Control* key = KeyOf(index))
        Bindings.Bindings[static_cast<std::size_t>(index)] = CodeOf(key->Tag);
}

void Keys::ReadKeyBindings()
{
    for (std::size_t index = 0; index < cCtrKey.size(); ++index)
        ReadKeyBinding(static_cast<std::int16_t>(index));
}

bool Keys::RecordsKey() const
{
    return On.Form.Focus == txtRecKey;
}

void Keys::cCtrKey_Click(std::int16_t index)
{
    RebindIndex = index;
    At(cCtrKey[static_cast<std::size_t>(index)]).Caption = "</>";
    On.Form.Focus = txtRecKey;
}

void Keys::dCtrKey_Click()
{
    On.Messages.ShowMessage(base::Icon::Information, "Opzioni",
                            "Non è possibile modificare il tasto associato a questa azione");
}

void Keys::txtRecKey_KeyDown(std::int16_t code)
{
    if (code <= 0)
        return;
    if (forms::Control* key = KeyOf(RebindIndex))
        key->Tag = std::to_string(code);
    ReadKeyBinding(RebindIndex);
    txtRecKey_LostFocus();
}

void Keys::txtRecKey_LostFocus()
{
    On.Form.Focus = -1;
    if (forms::Control* key = KeyOf(RebindIndex))
        key->Caption = KeyName(CodeOf(key->Tag));
}
}
