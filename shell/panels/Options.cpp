// SPDX-License-Identifier: Zlib
#include "shell/panels/Options.h"

namespace panels
{
Options::Options(Board& board, Verbs verbs)
    : Panel(board, "panelOption"), Ask(std::move(verbs)), lblOption(Heading("lblOption", "Opzioni")),
      cGameOpt(Button("cGameOpt", "Opzioni di gioco")), cVidOpt(Button("cVidOpt", "Opzioni video")),
      cAudOpt(Button("cAudOpt", "Opzioni audio")), cCtrOpt(Button("cCtrOpt", "Controlli")), cOptOK(OK("cOptOK"))
{
    On.Does.OnClick(cGameOpt, [this] { cGameOpt_Click(); });
    On.Does.OnClick(cVidOpt, [this] { cVidOpt_Click(); });
    On.Does.OnClick(cAudOpt, [this] { cAudOpt_Click(); });
    On.Does.OnClick(cCtrOpt, [this] { cCtrOpt_Click(); });
    On.Does.OnClick(cOptOK, [this] { cOptOK_Click(); });
}

void Options::Place(platform::Size client)
{
    constexpr std::int32_t entries = 4;
    Layout layout(On.Form, client);
    Card card(layout, 18, entries * (layout.ButtonHeight() + layout.Gap / 2));
    card.Heading(lblOption);
    for (const std::int16_t entry : {cGameOpt, cVidOpt, cAudOpt, cCtrOpt})
        card.Button(entry);
    card.OK(cOptOK);
}

void Options::cGameOpt_Click()
{
    Ask.OpenGame();
}

void Options::cVidOpt_Click()
{
    Ask.OpenVideo();
}

void Options::cAudOpt_Click()
{
    Ask.OpenAudio();
}

void Options::cCtrOpt_Click()
{
    Ask.OpenKeys();
}

void Options::cOptOK_Click()
{
    Hide();
}
}
