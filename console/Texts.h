// SPDX-License-Identifier: Zlib
// console/Texts.h: the texts of "\lst" and "\help", UTF-8, lines ended by "\r\n". Columns are parted by tabs.
#pragma once
#include <cstdint>
#include <string_view>

namespace console
{
// One word that "\lst" or "\help" explains.
struct Topic
{
    std::string_view Word;     // in lower case
    std::string_view Text;     // the whole answer
    std::int16_t TabWidth = 0; // cells between the columns; 0: the text has none
};

// Without a topic: what there is.
inline constexpr std::string_view AllObjects = "UserPlayer\r\nPlayer x\r\nCamera\r\nGame";
inline constexpr std::string_view AllCommands = "SET Imposta il valore di una proprietà di un oggetto\r\n"
                                                "GET Visualizza il valore di una proprietà di un oggetto\r\n"
                                                "LST Visualizza la lista degli oggetti e delle proprietà\r\n"
                                                "INF Visualizza informazioni generiche\r\n"
                                                "\r\n"
                                                "Digitare help seguito dal nome del comando per\r\n"
                                                "visualizzarne la descrizione dettagliata";

// What "\lst" says of an object, "\help" of a command (without its backslash). Null where there is no such topic. word:
// in lower case.
const Topic* FindObject(std::string_view word);
const Topic* FindCommand(std::string_view word);
}
