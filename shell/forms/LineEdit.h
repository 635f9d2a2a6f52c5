// SPDX-License-Identifier: Zlib
// shell/forms/LineEdit.h: editing one line of text: the caret, what is selected, and what keys and characters do. Knows
// no control and no pixel. Texts are UTF-8; places in them are bytes at which a character begins, or the end. A byte
// that is not UTF-8 counts as a character. Every call leaves a selection that fits its line, if it fitted before.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace forms
{
// Characters that a line takes; of a longer one that the program sets only these are shown.
inline constexpr std::size_t LongestLine = 1000;
std::string_view ShownPart(std::string_view text);

// Keys move the caret; with Shift the anchor stays behind.
struct Selection
{
    std::size_t Caret = 0, Anchor = 0; // selected is what lies between them

    std::size_t First() const { return Caret < Anchor ? Caret : Anchor; }
    std::size_t Last() const { return Caret < Anchor ? Anchor : Caret; }
    bool IsEmpty() const { return Caret == Anchor; }
};

// Puts both ends back onto characters of a text that somebody else has changed.
void FitTo(Selection& selection, std::string_view text);
void SelectAll(Selection& selection, std::string_view text);
// extend: the other end of the selection stays where it is.
void MoveCaret(Selection& selection, std::size_t to, bool extend);
std::string_view Selected(const Selection& selection, std::string_view text);

// The characters of the text that a line takes take the place of what is selected, as far as there is room. Those
// outside the system code page become "?"; control characters and line breaks are left out. False: none is left.
bool Insert(std::string& line, Selection& selection, std::string_view text);
// False: nothing was selected.
bool EraseSelected(std::string& line, Selection& selection);

// Left, right, Home and End (Shift selects, Ctrl goes by words), Delete; codes of platform/Keys.h. False: no key of a
// line, and nothing is changed.
bool EditKey(std::string& line, Selection& selection, std::int16_t code, bool shift, bool ctrl);
// A typed character of the system code page: Backspace (8), which erases the selection or the character before the
// caret, or one that is inserted. False: the line does not take it.
bool EditCharacter(std::string& line, Selection& selection, std::uint8_t code);
}
