// SPDX-License-Identifier: Zlib
#include "shell/panels/KeyNames.h"

#include <algorithm>
#include <iterator>

namespace panels
{
namespace
{
struct NamedKey
{
    std::int16_t Code;
    const char* Name;
};

constexpr NamedKey Names[] = {
    {8, "Backspace"},    {9, "Tab"},
    {13, "Invio"},       {16, "Shift"},
    {17, "CTRL"},        {19, "Pausa"},
    {20, "Bloc Maiusc"}, {27, "ESC"},
    {32, "Spazio"},      {33, "Pag su"},
    {34, "Pag giù"},     {35, "Fine"},
    {36, "Home"},        {37, "Freccia sinistra"},
    {38, "Freccia su"},  {39, "Freccia destra"},
    {40, "Freccia giù"}, {42, "Stampa"},
    {45, "Ins"},         {46, "Cancella"},
    {106, "* tn"},       {107, "+ tn"},
    {108, "Invio tn"}, // Deliberate: the separator's code, named as the keypad Enter of Italian keyboards.
    {109, "- tn"},       {110, ". tn"},
    {111, "/ tn"},       {144, "Bloc Num"},
    {145, "Bloc Scorr"}, {220, "\\"},
};
}

std::string KeyName(std::int16_t code)
{
    if ((code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9'))
        return std::string(1, static_cast<char>(code));
    if (code >= 96 && code <= 105)
        return std::to_string(code - 96) + " tn";
    const auto* found =
        std::find_if(std::begin(Names), std::end(Names), [code](const NamedKey& key) { return key.Code == code; });
    if (found != std::end(Names))
        return found->Name;
    std::string name = "<";
    name += std::to_string(code);
    name += '>';
    return name;
}
}
