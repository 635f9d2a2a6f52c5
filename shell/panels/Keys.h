// SPDX-License-Identifier: Zlib
// shell/panels/Keys.h: the panel of the keys: three sub-frames in one place, chosen by the buttons above them, each
// with lines of an action and its key. A click on a key that can be changed gives the focus to a box that takes the
// next key, whichever it is; pressing anything else gives up.
#pragma once
#include "shell/Game.h"
#include "shell/panels/Panel.h"

#include <array>
#include <vector>

namespace panels
{
class Keys final : public Panel
{
public:
    // bindings: written whenever a key is taken.
    Keys(Board& board, shell::KeyBindings& bindings);
    void Place(platform::Size client) override;

    void Open(); // on the first sub-frame
    // Takes a binding as its label holds it into force, or all of them. Nothing for an index that is none.
    void ReadKeyBinding(std::int16_t index);
    void ReadKeyBindings();

    // Whether the next key is wanted.
    bool RecordsKey() const;
    bool IsRecorder(const forms::Control& control) const { return &control == &At(txtRecKey); }
    void txtRecKey_KeyDown(std::int16_t code); // takes that key; 0 is none
    void txtRecKey_LostFocus();                // gives up

    void cCtrMov_Click();
    void cCtrCam_Click();
    void cCtrOth_Click();
    void cCtrKey_Click(std::int16_t index); // of the binding
    void dCtrKey_Click();                   // of a key that cannot be changed
    void cCtrOptOK_Click();

private:
    struct SubFrame
    {
        std::int16_t Tab = -1, Frame = -1; // its button, and itself
    };
    // One line: an action, its remark (-1: none) and the label of its key.
    struct Line
    {
        std::int16_t Action = -1, Remark = -1, Key = -1;
    };
    void AddLine(std::size_t row);
    void PlaceLines(Layout& layout, std::size_t subFrame, std::int32_t width, bool narrow);
    void ShowSubFrame(std::size_t shown);
    forms::Control* KeyOf(std::int16_t index); // the label of a binding; null where there is none

    shell::KeyBindings& Bindings;
    std::int16_t RebindIndex = -1; // the binding that waits for a key
    std::int16_t lblCtrOpt;
    std::array<SubFrame, 3> SubFrames;
    std::vector<Line> Lines;                                     // as in the table of actions
    std::array<std::int16_t, shell::KeyBindings::Count> cCtrKey; // by binding
    std::int16_t txtRecKey, cCtrOptOK;
};
}
