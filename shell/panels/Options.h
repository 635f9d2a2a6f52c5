// SPDX-License-Identifier: Zlib
// shell/panels/Options.h: the panel from which the option panels are opened.
#pragma once
#include "shell/panels/Panel.h"

namespace panels
{
class Options final : public Panel
{
public:
    struct Verbs
    {
        std::function<void()> OpenGame, OpenVideo, OpenAudio, OpenKeys;
    };
    Options(Board& board, Verbs verbs);
    void Place(platform::Size client) override;

    void cGameOpt_Click();
    void cVidOpt_Click();
    void cAudOpt_Click();
    void cCtrOpt_Click();
    void cOptOK_Click();

private:
    Verbs Ask;
    std::int16_t lblOption, cGameOpt, cVidOpt, cAudOpt, cCtrOpt, cOptOK;
};
}
