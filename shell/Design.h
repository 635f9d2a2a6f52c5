// shell/Design.h: the controls of the main window as designed, and where they stand for a size of the client area.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"

#include <span>
#include <string_view>

namespace shell
{
// One line of the controls frame: an action, its remark, and the label of its key.
struct ActionRow
{
    const char* Panel;
    const char* Caption;
    const char* Remark; // empty: none
    const char* Key;    // "cCtrKey" can be changed, "dCtrKey" cannot
    std::int16_t KeyIndex;
    const char* Tag; // key code in decimal; empty where fixed
    const char* KeyCaption;
};
std::span<const ActionRow> ActionRows();

// The menu labels, each with a twin of the same name and "2".
std::span<const char* const> MenuEntries();

void MakeControls(forms::Form& form);

// Every option frame at the top left corner of the window, as large as the client area.
void LayoutPanels(forms::Form& form, platform::Size client);
// The places of everything for a client area of that size.
void LayoutControls(forms::Form& form, platform::Size client);
}
