// SPDX-License-Identifier: Zlib
// tools/drive/Json.h: the few pieces of JSON that answers are made of.
#pragma once
#include <charconv>
#include <cmath>
#include <concepts>
#include <string>
#include <string_view>

namespace drive
{
// A quoted text. Bytes that are not UTF-8 become U+FFFD, so the result always is.
void AppendText(std::string& json, std::string_view text);
// The shortest decimal that reads back to the same value; "NaN", "Infinity" and "-Infinity" as texts.
void AppendNumber(std::string& json, float value);

template <std::integral Whole> void AppendNumber(std::string& json, Whole value)
{
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, value);
    json += std::string_view(digits, end.ptr);
}

// An object under construction: fields in the order given.
class Object
{
public:
    // The place where the value of a new field is to be appended.
    std::string& Field(std::string_view name);
    // A field whose value is JSON already.
    void Raw(std::string_view name, std::string_view json) { Field(name) += json; }
    std::string Finish() const;

private:
    std::string Fields;
};
}
