// SPDX-License-Identifier: Zlib
#include "shell/panels/GameOptions.h"

#include "base/Numbers.h"
#include "shell/panels/TypedNumber.h"

namespace panels
{
GameOptions::GameOptions(Board& board, world::Race& race)
    : Panel(board, "panelGameOpt"), Race(race), lblGameOpt(Heading("lblGameOpt", "Opzioni di gioco")),
      lblLap(Label("lblLap", "Numero giri:")), txtLap(Box(forms::Kind::TextBox, "txtLap", "5")),
      cGameOptOK(OK("cGameOptOK"))
{
    On.Does.OnClick(cGameOptOK, [this] { cGameOptOK_Click(); });
}

void GameOptions::Place(platform::Size client)
{
    Layout layout(On.Form, client);
    Card card(layout, 20, layout.Row + layout.Gap * 5 / 2);
    card.Heading(lblGameOpt);
    card.Y += layout.Gap;
    card.Field(lblLap, txtLap);
    card.Y += layout.Gap;
    card.OK(cGameOptOK);
}

void GameOptions::cGameOptOK_Click()
{
    base::Trapped(On.Messages, "cGameOptOK_Click", [this] { TakeLaps(); });
}

bool GameOptions::TakeLaps()
{
    constexpr double least = 1, most = 99;
    const std::optional<double> laps = ReadTyped(At(txtLap).Text);
    if (!laps)
        return Refuse(txtLap, "Il numero di giri deve essere un numero");
    if (!IsWithin(*laps, least, most))
        return Refuse(txtLap, "Il numero di giri deve essere compreso tra 1 e 99");
    Race.Laps = base::ToInt16(*laps);
    Hide();
    return true;
}
}
