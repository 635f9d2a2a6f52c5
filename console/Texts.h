// console/Texts.h: the texts of "\lst" and "\help".
#pragma once
#include <cstdint>
#include <string_view>

namespace console
{
struct Topic
{
    std::string_view Word;
    std::string_view Text;
    std::int16_t TabWidth = 0; // cells between the columns; 0: the text has none
};

extern const std::string_view AllObjects, AllCommands; // all of them
// Null where there is no such topic.
const Topic* FindObject(std::string_view word);
const Topic* FindCommand(std::string_view word);
}
