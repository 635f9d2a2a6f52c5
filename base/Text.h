// SPDX-License-Identifier: Zlib
// base/Text.h: between the system code page of the data files and fonts (Windows-1252) and the UTF-8 of the program.
// The five codes that the code page leaves open (129, 141, 143, 144, 157) stand for U+0081 and so on, so every one of
// the 256 codes has a character and comes back as it went.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace base
{
// Appends the UTF-8 form of a code of the system code page.
void AppendCode(std::string& text, std::uint8_t code);
// A whole text of code page bytes as UTF-8.
std::string FromCodePage(std::string_view bytes);

// What NextPoint gives for a byte that is not UTF-8. No text can spell it.
inline constexpr char32_t IllFormed = 0xFFFFFFFF;
// The code point at `at` in UTF-8 text, which then moves behind it; behind one byte where it is IllFormed: a stray or
// unknown byte, or a character that is cut short. Characters spelt in more bytes than they need, surrogates and numbers
// beyond U+10FFFF are taken as they stand. `at` must be below the size.
char32_t NextPoint(std::string_view text, std::size_t& at);

// The character code at `at` in UTF-8 text, which then moves behind it. A character outside the code page, or a byte
// that is not UTF-8 (C0 and C1 among them), is '?'. `at` must be below the size.
std::uint8_t NextCode(std::string_view text, std::size_t& at);
// The same backwards: the code that ends before `at`, which then moves to its beginning. `at` must be above 0.
std::uint8_t PreviousCode(std::string_view text, std::size_t& at);

// ASCII letters only, as keywords and file extensions need it.
std::string LowerAscii(std::string_view text);
// Replaces every occurrence.
std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with);
}
