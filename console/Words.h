// console/Words.h: a command line taken apart, and the ways in which a command fails.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace console
{
// Why a command cannot be carried out: the answers, word for word.
inline constexpr const char *NoObject = "Oggetto non specificato", *BadObject = "Oggetto non valido",
                            *NoIndex = "Indice non specificato", *BadIndex = "Indice non valido",
                            *BadParameter = "Parametro non valido", *NoProperty = "Proprietà non specificata",
                            *BadProperty = "Proprietà non valida", *NoValue = "Valore non specificato",
                            *NoSuchCommand = "Comando non trovato", *BadCommand = "Comando non valido";

// Ends the command: a RuntimeError whose description is the answer.
[[noreturn]] void Fail(const char* why);

// The words of a line in lower case. Every single space parts two words: two of them make an empty one.
class Words
{
public:
    explicit Words(std::string_view line);
    Words(const Words&) = delete;
    Words& operator=(const Words&) = delete;

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
