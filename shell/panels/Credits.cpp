// SPDX-License-Identifier: Zlib
#include "shell/panels/Credits.h"

namespace panels
{
Credits::Credits(Board& board)
    : Panel(board, "panelCredits"), lblCredits(Heading("lblCredits", "Crediti")),
      lblProduct(Label("lblProduct", "Velkar", forms::Look::Entry)),
      lblMadeBy(Label("lblMadeBy", "Realizzato da", forms::Look::Note)), lblAuthors(Label("lblAuthors", "Velkar Team")),
      cCreditOK(OK("cCreditOK"))
{
    On.Does.OnClick(cCreditOK, [this] { cCreditOK_Click(); });
}

void Credits::Place(platform::Size client)
{
    Layout layout(On.Form, client);
    const std::int32_t row = layout.Row, gap = layout.Gap, text = layout.Text;
    Card card(layout, 20, 4 * row + 4 * gap);
    card.Heading(lblCredits);
    const auto line = [&](std::int16_t label, std::int32_t height, std::int32_t size)
    {
        layout.Place(label, {card.Left, card.Y, card.Width, height}, size, forms::Align::Centre);
        card.Y += height;
    };
    card.Y += gap;
    line(lblProduct, 2 * row, text * 2);
    card.Y += gap;
    line(lblMadeBy, row, text * 9 / 10);
    line(lblAuthors, row, text * 6 / 5);
    card.Y += 2 * gap;
    card.OK(cCreditOK);
}

void Credits::cCreditOK_Click()
{
    Hide();
}
}
