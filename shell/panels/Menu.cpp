// SPDX-License-Identifier: Zlib
#include "shell/panels/Menu.h"

#include "base/Numbers.h"
#include "shell/forms/Style.h"

#include <algorithm>

namespace panels
{
namespace
{
using forms::Align;
using forms::Rect;

struct EntryDesign
{
    const char* Name;
    const char* TwinName;
    const char* Caption;
};
constexpr std::array<EntryDesign, 4> Designs = {{
    {"cSTART", "cSTART2", "Avvia partita"},
    {"cOPZIONI", "cOPZIONI2", "Opzioni"},
    {"cCREDIT", "cCREDIT2", "Crediti"},
    {"cEXIT", "cEXIT2", "Esci"},
}};
constexpr std::size_t StartEntry = 0, OptionsEntry = 1, CreditsEntry = 2, ExitEntry = 3;

std::int32_t Part(std::int32_t whole, double share)
{
    return base::RoundEven(whole * share);
}
}

Menu::Menu(Board& board, const world::Race& race, std::int32_t& blink, Verbs verbs)
    : Panel(board), Race(race), Blink(blink), Ask(std::move(verbs)), imgLogoBG(Picture("imgLogoBG")),
      imgLogo(Picture("imgLogo"))
{
    for (std::size_t i = 0; i < Entries.size(); ++i)
        Entries[i].Twin = Label(Designs[i].TwinName, Designs[i].Caption, forms::Look::Shadow);
    for (std::size_t i = 0; i < Entries.size(); ++i)
        Entries[i].Label = Label(Designs[i].Name, Designs[i].Caption, forms::Look::Entry);
    On.Does.OnClick(Entries[StartEntry].Label, [this] { cSTART_Click(); });
    On.Does.OnClick(Entries[OptionsEntry].Label, [this] { cOPZIONI_Click(); });
    On.Does.OnClick(Entries[CreditsEntry].Label, [this] { cCREDIT_Click(); });
    On.Does.OnClick(Entries[ExitEntry].Label, [this] { cEXIT_Click(); });
    On.Does.OnPaint(imgLogoBG, [this](forms::Canvas& canvas, const Rect& place) { PaintShade(canvas, place); });
    On.Does.OnPaint(imgLogo, [this](forms::Canvas& canvas, const Rect& place) { PaintLogo(canvas, place); });
}

void Menu::LoadPictures(base::MessageSink& messages, const base::Files& files)
{
    Pictures.Load(messages, files);
}

void Menu::Place(platform::Size client)
{
    Layout layout(On.Form, client);
    const Rect logo = layout.Centred(Part(client.Height, 0.07), Part(client.Width, 0.76), Part(client.Height, 0.34));
    layout.Place(imgLogoBG, {0, 0, client.Width, client.Height}, 0);
    layout.Place(imgLogo, logo, 0);
    const std::int32_t size = std::clamp(std::min(Part(client.Height, 0.072), client.Width / 9), 13, 52);
    const std::int32_t step = size * 3 / 2, offset = std::max(1, size / 14);
    std::int32_t y = Part(client.Height, 0.49);
    for (const Entry& entry : Entries)
    {
        const Rect place = layout.Centred(y, std::min(client.Width, size * 8), step);
        layout.Place(entry.Label, place, size, Align::Centre);
        layout.Place(entry.Twin, {place.X + offset, place.Y + offset, place.W, place.H}, size, Align::Centre);
        y += step;
    }
    Pictures.ScaleTo({logo.W, logo.H}, client);
}

void Menu::TwinsFollow()
{
    for (const Entry& entry : Entries)
    {
        At(entry.Twin).Visible = At(entry.Label).Visible;
        At(entry.Twin).Caption = At(entry.Label).Caption;
    }
}

void Menu::SetMenuVisible(bool visible)
{
    for (const Entry& entry : Entries)
        At(entry.Label).Visible = base::ToFlag(visible);
    for (const std::int16_t picture : {imgLogoBG, imgLogo})
        At(picture).Visible = base::ToFlag(visible);
    TwinsFollow();
}

// The title shows for about two seconds, then flickers.
void Menu::tmrLogo_Timer()
{
    forms::Control& logo = At(imgLogo);
    const auto within = [c = Blink](std::int32_t first, std::int32_t last) { return c >= first && c <= last; };
    const base::Flag before = logo.Visible;
    if (Blink == 61)
        Blink = 0; // Deliberate: the picture stays as it is, and 0 itself comes only once.
    else
        logo.Visible =
            base::ToFlag(within(0, 20) || within(22, 27) || within(34, 36) || within(38, 40) || within(42, 60));
    ++Blink;
    if (logo.Visible != before)
        On.Repaint();
}

void Menu::cSTART_Click()
{
    base::Trapped(On.Messages, "cSTART_Click",
                  [this]
                  {
                      At(Entries[StartEntry].Label).Caption = "Continua";
                      SetMenuVisible(false);
                      Ask.StartProcess();
                  });
}

void Menu::cOPZIONI_Click()
{
    Ask.OpenOptions();
}

void Menu::cCREDIT_Click()
{
    Ask.OpenCredits();
}

void Menu::cEXIT_Click()
{
    Ask.Unload();
}

void Menu::PaintBackground(forms::Canvas& canvas) const
{
    const forms::Image& picture = Pictures.Background;
    if (picture.Width > 0)
        return forms::Draw(canvas, picture, (canvas.Width - picture.Width) / 2, (canvas.Height - picture.Height) / 2);
    const Rect all = {0, 0, canvas.Width, canvas.Height};
    forms::FillDownward(canvas, all, {38, 30, 62}, 255, {196, 92, 40}, 255);
}

// Title and entries can be read before it; deeper where the suspended race shows behind.
void Menu::PaintShade(forms::Canvas& canvas, const Rect& place) const
{
    const bool suspended = Race.GameTime > 0;
    forms::FillDownward(canvas, place, forms::Shade, suspended ? 110 : 20, forms::Shade, suspended ? 190 : 150);
}

void Menu::PaintLogo(forms::Canvas& canvas, const Rect& place) const
{
    const forms::Image& logo = Pictures.Logo;
    if (logo.Width > 0)
        forms::Draw(canvas, logo, place.X + (place.W - logo.Width) / 2, place.Y + (place.H - logo.Height) / 2);
    else
        forms::DrawText(canvas, place, "VELKAR", place.H * 0.8, 1.6, forms::Accent, Align::Centre);
}
}
