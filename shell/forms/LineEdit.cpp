// SPDX-License-Identifier: Zlib
#include "shell/forms/LineEdit.h"

#include "base/Text.h"
#include "platform/Keys.h"

#include <algorithm>

namespace forms
{
namespace
{

// The codes that the system code page leaves open stand for control characters too.
bool IsPrintable(std::uint8_t code)
{
    switch (code)
    {
    case 127:
    case 129:
    case 141:
    case 143:
    case 144:
    case 157:
        return false;
    default:
        return code >= 32;
    }
}

std::size_t CountOf(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count)
        base::NextCode(text, at);
    return count;
}

std::size_t Behind(std::string_view text, std::size_t at)
{
    if (at < text.size())
        base::NextCode(text, at);
    return at;
}

std::size_t Before(std::string_view text, std::size_t at)
{
    if (at > 0)
        base::PreviousCode(text, at);
    return at;
}

bool IsBlank(std::string_view text, std::size_t at)
{
    return text[at] == ' ';
}

// The beginning of the next word, or of the present one or the one before.
std::size_t WordBehind(std::string_view text, std::size_t at)
{
    while (at < text.size() && !IsBlank(text, at))
        at = Behind(text, at);
    while (at < text.size() && IsBlank(text, at))
        at = Behind(text, at);
    return at;
}

std::size_t WordBefore(std::string_view text, std::size_t at)
{
    while (at > 0 && IsBlank(text, Before(text, at)))
        at = Before(text, at);
    while (at > 0 && !IsBlank(text, Before(text, at)))
        at = Before(text, at);
    return at;
}

std::size_t Fitted(std::string_view text, std::size_t wanted)
{
    if (wanted >= text.size())
        return text.size();
    std::size_t at = 0;
    for (std::size_t next = 0; next <= wanted; next = Behind(text, next))
        at = next;
    return at;
}
}

std::string_view ShownPart(std::string_view text)
{
    std::size_t end = 0;
    for (std::size_t count = 0; count < LongestLine && end < text.size(); ++count)
        end = Behind(text, end);
    return text.substr(0, end);
}

void FitTo(Selection& selection, std::string_view text)
{
    selection.Caret = Fitted(text, selection.Caret);
    selection.Anchor = Fitted(text, selection.Anchor);
}

void SelectAll(Selection& selection, std::string_view text)
{
    selection = {text.size(), 0};
}

void MoveCaret(Selection& selection, std::size_t to, bool extend)
{
    selection.Caret = to;
    if (!extend)
        selection.Anchor = to;
}

std::string_view Selected(const Selection& selection, std::string_view text)
{
    return text.substr(selection.First(), selection.Last() - selection.First());
}

bool Insert(std::string& line, Selection& selection, std::string_view text)
{
    const std::size_t kept = CountOf(line) - CountOf(Selected(selection, line));
    std::size_t room = kept < LongestLine ? LongestLine - kept : 0;
    std::string taken;
    for (std::size_t at = 0; at < text.size() && room > 0;)
    {
        const std::uint8_t code = base::NextCode(text, at);
        if (!IsPrintable(code))
            continue;
        base::AppendCode(taken, code);
        --room;
    }
    if (taken.empty())
        return false;
    EraseSelected(line, selection);
    line.insert(selection.Caret, taken);
    MoveCaret(selection, selection.Caret + taken.size(), false);
    return true;
}

bool EraseSelected(std::string& line, Selection& selection)
{
    if (selection.IsEmpty())
        return false;
    const std::size_t first = selection.First();
    line.erase(first, selection.Last() - first);
    MoveCaret(selection, first, false);
    return true;
}

bool EditKey(std::string& line, Selection& selection, std::int16_t code, bool shift, bool ctrl)
{
    const std::size_t caret = selection.Caret;
    const bool collapses = !shift && !ctrl && !selection.IsEmpty();
    switch (code)
    {
    case platform::KeyHome:
        MoveCaret(selection, 0, shift);
        return true;
    case platform::KeyEnd:
        MoveCaret(selection, line.size(), shift);
        return true;
    case platform::KeyLeft:
        MoveCaret(selection,
                  collapses ? selection.First()
                  : ctrl    ? WordBefore(line, caret)
                            : Before(line, caret),
                  shift);
        return true;
    case platform::KeyRight:
        MoveCaret(selection,
                  collapses ? selection.Last()
                  : ctrl    ? WordBehind(line, caret)
                            : Behind(line, caret),
                  shift);
        return true;
    case platform::KeyDelete:
        if (selection.IsEmpty())
            selection.Anchor = ctrl ? WordBehind(line, caret) : Behind(line, caret);
        EraseSelected(line, selection);
        return true;
    default:
        return false;
    }
}

bool EditCharacter(std::string& line, Selection& selection, std::uint8_t code)
{
    if (code == platform::Backspace)
    {
        if (selection.IsEmpty())
            selection.Anchor = Before(line, selection.Caret);
        EraseSelected(line, selection);
        return true;
    }
    if (!IsPrintable(code))
        return false;
    std::string character;
    base::AppendCode(character, code);
    return Insert(line, selection, character);
}
}
