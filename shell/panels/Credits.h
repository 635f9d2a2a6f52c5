// SPDX-License-Identifier: Zlib
// shell/panels/Credits.h: the panel that says who made the game.
#pragma once
#include "shell/panels/Panel.h"

namespace panels
{
class Credits final : public Panel
{
public:
    explicit Credits(Board& board);
    void Place(platform::Size client) override;

    void cCreditOK_Click();

private:
    std::int16_t lblCredits, lblProduct, lblMadeBy, lblAuthors, cCreditOK;
};
}
