// SPDX-License-Identifier: Zlib
// tests/support/Panel.h: a panel of 300 x 200 with one control of each kind, hands that use it, and what its owner was
// told. The controls stand apart from each other and from the edges.
#pragma once
#include "platform/Keys.h"
#include "shell/forms/Boxes.h"
#include "shell/forms/Interaction.h"
#include "shell/forms/PaintForm.h"
#include "shell/forms/Style.h"
#include "tests/support/Pixels.h"

#include <string>
#include <vector>

namespace support
{
struct Panel : forms::FormOwner, forms::PicturePainter
{
    static constexpr std::int16_t Backspace = platform::KeyBackspace, Tab = platform::KeyTab,
                                  Enter = platform::KeyEnter, Shift = platform::KeyShift, Ctrl = platform::KeyCtrl,
                                  Alt = platform::KeyAlt, Esc = platform::KeyEsc, Space = platform::KeySpace,
                                  End = platform::KeyEnd, Home = platform::KeyHome, Left = platform::KeyLeft,
                                  Up = platform::KeyUp, Right = platform::KeyRight, Down = platform::KeyDown,
                                  Insert = platform::KeyInsert, Delete = platform::KeyDelete, F4 = platform::KeyF4;
    static constexpr std::uint8_t CtrlA = platform::CtrlA, CtrlC = platform::CtrlC, CtrlV = platform::CtrlV,
                                  CtrlX = platform::CtrlX;

    forms::Form Form;
    forms::Interaction Input{Form, *this};
    forms::Canvas Canvas;
    std::vector<std::string> Clicks; // names
    std::vector<std::int32_t> Points;
    std::vector<std::string> Losses; // of the focus
    std::string Clipboard;
    int Changes = 0;
    std::uint32_t Now = 1000;

    Panel()
    {
        Form.Client = {300, 200};
        Add(forms::Kind::Button, "below", {10, 10, 100, 20}, -1);
        Add(forms::Kind::Frame, "panel", {0, 0, 300, 200}, -1);
        Add(forms::Kind::Label, "caption", {10, 10, 80, 22});
        Add(forms::Kind::TextBox, "text", {100, 10, 120, 22}).Text = "abc";
        forms::Control& combo = Add(forms::Kind::ComboBox, "combo", {100, 40, 120, 22});
        combo.Text = "due";
        combo.Items = {"uno", "due", "tre"};
        Add(forms::Kind::CheckBox, "check", {10, 70, 120, 22}).Caption = "Musica";
        Add(forms::Kind::Picture, "level", {150, 70, 101, 20});
        Add(forms::Kind::Button, "ok", {100, 160, 80, 24}).IsDefault = true;
        Settle();
    }

    forms::Control& Add(forms::Kind kind, const char* name, forms::Rect place, std::int16_t parent = 1)
    {
        forms::Control control;
        control.Type = kind;
        control.Name = name;
        control.Parent = parent;
        control.Place = place;
        return Form.Controls[static_cast<std::size_t>(Form.Add(std::move(control)))];
    }

    forms::Control& At(std::string_view name) { return Form.Get(name); }
    std::int16_t IndexOf(std::string_view name) { return Form.IndexOf(Form.Get(name)); }
    forms::Rect PlaceOf(std::string_view name) { return Form.PlaceOf(Form.Get(name)); }
    platform::Point MiddleOf(std::string_view name) { return MiddleOf(PlaceOf(name)); }
    static platform::Point MiddleOf(const forms::Rect& place) { return {place.X + place.W / 2, place.Y + place.H / 2}; }
    std::string Focus() { return Form.Focus < 0 ? "" : Form.Controls[static_cast<std::size_t>(Form.Focus)].Name; }
    const forms::Marks& Marks() { return Input.Shown(); }
    const forms::Selection& Edit() { return Input.Shown().Edit; }
    void Settle() { Input.Settle(); }

    // ---- Hands ----
    void Press(std::int16_t key)
    {
        Input.KeyDown(key);
        Input.KeyUp(key);
    }
    void PressWith(std::int16_t held, std::int16_t key)
    {
        Input.KeyDown(held);
        Press(key);
        Input.KeyUp(held);
    }
    void Type(std::string_view codes)
    {
        for (const char code : codes)
            Input.Character(static_cast<std::uint8_t>(code));
    }
    void Character(std::uint8_t code) { Input.Character(code); }
    void ClickAt(platform::Point at)
    {
        Input.MouseMove(false, at);
        Input.MouseDown(at, Now);
        Input.MouseUp(at);
    }
    void Click(std::string_view name) { ClickAt(MiddleOf(name)); }
    void Wait(std::uint32_t milliseconds) { Now += milliseconds; }

    forms::ListPlace List() { return forms::PlaceList(At("combo"), PlaceOf("combo"), Form.Client, Marks().List.First); }
    void OpenList() { ClickAt(MiddleOf(forms::DropButton(At("combo"), PlaceOf("combo")))); }
    bool IsListOpen() { return Marks().List.Owner >= 0; }

    // ---- What is seen: the form on a grey ground ----
    void Paint()
    {
        Canvas.Resize(Form.Client.Width, Form.Client.Height);
        forms::Fill(Canvas, {0, 0, Canvas.Width, Canvas.Height}, {128, 128, 128});
        Settle();
        forms::PaintForm(Canvas, Form, Marks(), *this);
    }
    Rgb PixelAt(std::int32_t x, std::int32_t y) { return support::PixelAt(Canvas, x, y); }
    int CountOf(const forms::Rect& where, base::Rgb colour)
    {
        int count = 0;
        for (std::int32_t y = where.Y; y < where.Y + where.H; ++y)
            for (std::int32_t x = where.X; x < where.X + where.W; ++x)
                count += PixelAt(x, y) == ToRgb(colour) ? 1 : 0;
        return count;
    }

    // ---- forms::FormOwner, forms::PicturePainter ----
    bool HasClick(const forms::Control& control) const override
    {
        return control.Type == forms::Kind::Button || control.Name == "check";
    }
    bool HasPointer(const forms::Control& picture) const override { return picture.Name == "level"; }
    void Clicked(const forms::Control& control) override { Clicks.push_back(control.Name); }
    void PointedAt(const forms::Control&, std::int32_t x) override { Points.push_back(x); }
    void LostFocus(const forms::Control& control) override { Losses.push_back(control.Name); }
    void Changed() override { ++Changes; }
    std::string ClipboardText() override { return Clipboard; }
    void SetClipboardText(const std::string& text) override { Clipboard = text; }
    void PaintPicture(forms::Canvas& canvas, const forms::Control&, forms::Rect place) override
    {
        forms::Fill(canvas, place, {1, 2, 3});
    }
};
}
