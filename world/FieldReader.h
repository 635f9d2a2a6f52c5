// SPDX-License-Identifier: Zlib
// world/FieldReader.h: the sequential text files of the game: a stream of fields, separated by commas or line ends.
// A number is plain decimal, with a point; every kind of field says below what goes wrong with it. Any field behind
// the end of the file is RuntimeError 62.
#pragma once
#include "base/Files.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace world
{
class FieldReader
{
public:
    // Longest text or resolved path, in bytes; beyond it RuntimeError 7.
    static constexpr std::size_t MostText = 32767;

    explicit FieldReader(std::string bytes) : Bytes(std::move(bytes)) {}
    // The whole file; errors as Files::Read.
    FieldReader(const base::Files& files, std::string_view path) : Bytes(files.Read(path)) {}

    // Nothing is left: the line end of the last line is no field.
    bool AtEnd() const { return At == Bytes.size(); }

    // A text in UTF-8, without its quotes. RuntimeError 13 where something stands behind the closing quote.
    std::string Text();
    // A text in which every "<path>" became the folder.
    std::string Path(std::string_view folder);

    // Numbers: RuntimeError 13 for an empty or malformed one, 6 for one that does not fit. Whole numbers are rounded,
    // ties to even.
    float Single();
    std::int16_t Integer();
    std::int32_t Long();
    std::uint8_t Byte();

private:
    std::string Bytes; // system code page
    std::size_t At = 0;

    void Begin();
    void SkipBlanks();
    void SkipSeparator();
    std::string_view Unquoted();
    std::string_view Quoted();
    double Number();
};
}
