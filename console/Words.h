// SPDX-License-Identifier: Zlib
// console/Words.h: a command line taken apart, and the ways in which a command fails.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace console
{
// Why a command cannot be carried out: the answers, word for word.
inline constexpr const char* NoObject = "Oggetto non specificato";
inline constexpr const char* BadObject = "Oggetto non valido";
inline constexpr const char* NoIndex = "Indice non specificato";
inline constexpr const char* BadIndex = "Indice non valido";        // of a player
inline constexpr const char* BadParameter = "Parametro non valido"; // no number where one belongs
inline constexpr const char* NoProperty = "Proprietà non specificata";
inline constexpr const char* BadProperty = "Proprietà non valida"; // unknown, or not to be set
inline constexpr const char* NoValue = "Valore non specificato";
inline constexpr const char* NoSuchCommand = "Comando non trovato"; // there is no help on it
inline constexpr const char* BadCommand = "Comando non valido";

// Ends the command, from however deep: a RuntimeError whose description is the answer.
[[noreturn]] void Fail(const char* why);

// The words of a line, their ASCII letters in lower case; word 0 is the command. Every single space parts two words:
// two of them make an empty one. An empty line is one empty word.
class Words
{
public:
    explicit Words(std::string_view line);
    Words(const Words&) = delete;
    Words& operator=(const Words&) = delete;

    // 0 the command itself.
    bool Has(std::size_t index) const { return index < List.size(); }
    // The word; fails with `missing` where the line ends before it.
    std::string_view At(std::size_t index, const char* missing) const;
    // The number that the word is written as; fails where it is none. Infinite where no double holds it.
    double NumberAt(std::size_t index, const char* missing) const;

private:
    std::string Lower;
    std::vector<std::string_view> List;
};
}
