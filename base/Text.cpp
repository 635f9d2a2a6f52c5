// SPDX-License-Identifier: Zlib
#include "base/Text.h"

#include <algorithm>
#include <array>

namespace base
{
namespace
{
// Code points of codes 128 to 159.
constexpr std::array<std::uint16_t, 32> HighCodes = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint8_t CodeOf(char32_t point)
{
    if (point < 128 || (point >= 160 && point < 256))
        return static_cast<std::uint8_t>(point);
    for (std::size_t i = 0; i < HighCodes.size(); ++i)
        if (HighCodes[i] == point)
            return static_cast<std::uint8_t>(128 + i);
    return '?';
}

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Bytes that follow a lead byte of 0x80 or more; 0 where it leads nothing.
std::size_t MoreBytes(unsigned char lead)
{
    if (lead < 0xC0 || lead >= 0xF8)
        return 0;
    return lead < 0xE0 ? 1 : (lead < 0xF0 ? 2 : 3);
}
}

void AppendCode(std::string& text, std::uint8_t code)
{
    const std::uint32_t point = code >= 128 && code < 160 ? HighCodes[code - 128u] : code;
    if (point < 0x80)
        text += static_cast<char>(point);
    else if (point < 0x800)
    {
        text += static_cast<char>(0xC0 | (point >> 6));
        text += static_cast<char>(0x80 | (point & 0x3F));
    }
    else
    {
        text += static_cast<char>(0xE0 | (point >> 12));
        text += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (point & 0x3F));
    }
}

std::string FromCodePage(std::string_view bytes)
{
    std::string text;
    const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(bytes.begin(), bytes.end(), isPlain))
    {
        text.assign(bytes); // the same in both, as nearly every text of the files is
        return text;
    }
    text.reserve(bytes.size());
    for (const char c : bytes)
        AppendCode(text, static_cast<std::uint8_t>(c));
    return text;
}

char32_t NextPoint(std::string_view text, std::size_t& at)
{
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80)
        return lead;
    const std::size_t more = MoreBytes(lead);
    if (more == 0)
        return IllFormed;
    char32_t point = lead & (0x3Fu >> more);
    std::size_t behind = at;
    for (; behind - at < more; ++behind)
    {
        if (behind >= text.size() || !IsContinuation(text[behind]))
            return IllFormed;
        point = (point << 6) | (static_cast<unsigned char>(text[behind]) & 0x3Fu);
    }
    at = behind;
    return point;
}

std::uint8_t NextCode(std::string_view text, std::size_t& at)
{
    // Deliberate: the two leads that only ever begin an ASCII character in two bytes are no beginning here.
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead == 0xC0 || lead == 0xC1)
    {
        ++at;
        return '?';
    }
    const char32_t point = NextPoint(text, at);
    return point == IllFormed ? std::uint8_t{'?'} : CodeOf(point);
}

std::uint8_t PreviousCode(std::string_view text, std::size_t& at)
{
    std::size_t begin = at - 1;
    while (begin > 0 && at - begin < 4 && IsContinuation(text[begin]))
        --begin;
    std::size_t behind = begin;
    const std::uint8_t code = NextCode(text, behind);
    if (behind == at)
    {
        at = begin;
        return code;
    }
    --at; // not a whole character: one byte
    return '?';
}

std::string LowerAscii(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with)
{
    std::string result;
    std::size_t at = 0;
    for (std::size_t found = text.find(what); found != std::string_view::npos; found = text.find(what, at))
    {
        result += text.substr(at, found - at);
        result += with;
        at = found + what.size();
    }
    result += text.substr(at);
    return result;
}
}
