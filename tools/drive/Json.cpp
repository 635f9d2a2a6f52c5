// SPDX-License-Identifier: Zlib
#include "tools/drive/Json.h"

#include <cstdint>

namespace drive
{
namespace
{
// Length of the UTF-8 sequence at the start of text; 0 where there is none (also for surrogates and overlong forms).
std::size_t SequenceLength(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xC2 && lead < 0xE0 ? 2 : (lead >= 0xE0 && lead < 0xF0 ? 3 : 4);
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
    const bool beyond = lead == 0xF4 && byte(1) >= 0x90;
    return overlong || surrogate || beyond ? 0 : length;
}

void AppendControl(std::string& json, std::uint8_t code)
{
    constexpr std::string_view digits = "0123456789abcdef";
    switch (code)
    {
    case '\n':
        json += "\\n";
        break;
    case '\r':
        json += "\\r";
        break;
    case '\t':
        json += "\\t";
        break;
    default:
        json += "\\u00";
        json += digits[code >> 4];
        json += digits[code & 15];
    }
}
}

void AppendText(std::string& json, std::string_view text)
{
    json += '"';
    while (!text.empty())
    {
        const auto first = static_cast<std::uint8_t>(text[0]);
        const std::size_t length = SequenceLength(text);
        if (length == 0)
            json += "\xEF\xBF\xBD"; // U+FFFD
        else if (first < 32 || first == 127)
            AppendControl(json, first);
        else
        {
            if (first == '"' || first == '\\')
                json += '\\';
            json += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    json += '"';
}

void AppendNumber(std::string& json, float value)
{
    if (std::isnan(value))
        json += "\"NaN\"";
    else if (std::isinf(value))
        json += value > 0 ? "\"Infinity\"" : "\"-Infinity\"";
    else
    {
        char digits[48];
        const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, value);
        json += std::string_view(digits, end.ptr);
    }
}

std::string& Object::Field(std::string_view name)
{
    if (!Fields.empty())
        Fields += ", ";
    AppendText(Fields, name);
    Fields += ": ";
    return Fields;
}

std::string Object::Finish() const
{
    std::string object = "{";
    object += Fields;
    object += '}';
    return object;
}
}
