// SPDX-License-Identifier: Zlib
// shell/panels/Menu.h: the menu: the title, which flickers, and four entries, each with a dark twin underneath that
// follows it. It has no frame: its controls stand on the form itself.
#pragma once
#include "base/Files.h"
#include "shell/panels/MenuPictures.h"
#include "shell/panels/Panel.h"
#include "world/Race.h"

#include <array>

namespace panels
{
class Menu final : public Panel
{
public:
    // What the entries ask of others.
    struct Verbs
    {
        std::function<void()> StartProcess, OpenOptions, OpenCredits, Unload;
    };
    // race: whether it has begun decides how dark the shade is. blink: the steps of the flicker since it began anew.
    Menu(Board& board, const world::Race& race, std::int32_t& blink, Verbs verbs);

    // Missing pictures are no error; then the title is written and the background a colour gradient.
    void LoadPictures(base::MessageSink& messages, const base::Files& files);
    void Place(platform::Size client) override;
    void SetMenuVisible(bool visible);
    // A step of the title's flicker, every 100 ms.
    void tmrLogo_Timer();
    // What lies behind everything before the first race.
    void PaintBackground(forms::Canvas& canvas) const;

    void cSTART_Click(); // starts the race and afterwards resumes it
    void cOPZIONI_Click();
    void cCREDIT_Click();
    void cEXIT_Click();

private:
    struct Entry
    {
        std::int16_t Twin = -1, Label = -1;
    };
    void TwinsFollow();
    void PaintShade(forms::Canvas& canvas, const forms::Rect& place) const;
    void PaintLogo(forms::Canvas& canvas, const forms::Rect& place) const;

    const world::Race& Race;
    std::int32_t& Blink;
    Verbs Ask;
    MenuPictures Pictures;
    std::int16_t imgLogoBG, imgLogo;
    std::array<Entry, 4> Entries; // from the top
};
}
