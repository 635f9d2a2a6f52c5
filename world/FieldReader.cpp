// SPDX-License-Identifier: Zlib
#include "world/FieldReader.h"

#include "base/Numbers.h"
#include "base/ReadNumber.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

#include <algorithm>

namespace world
{
namespace
{
using base::RuntimeError;

constexpr std::string_view PathMark = "<path>";

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool Separates(char c)
{
    return c == ',' || c == '\r' || c == '\n';
}
}

std::string FieldReader::Text()
{
    Begin();
    const std::string_view field = At < Bytes.size() && Bytes[At] == '"' ? Quoted() : Unquoted();
    if (field.size() > MostText)
        throw RuntimeError(base::ErrorMemory);
    return base::FromCodePage(field);
}

std::string FieldReader::Path(std::string_view folder)
{
    const std::string text = Text();
    std::size_t marks = 0;
    for (std::size_t at = text.find(PathMark); at != std::string::npos; at = text.find(PathMark, at + PathMark.size()))
        ++marks;
    // The length is known before the text is made.
    if (text.size() - marks * PathMark.size() + marks * folder.size() > MostText)
        throw RuntimeError(base::ErrorMemory);
    return base::ReplaceAll(text, PathMark, folder);
}

float FieldReader::Single()
{
    return base::ToSingle(Number());
}

std::int16_t FieldReader::Integer()
{
    return base::ToInt16(Number());
}

std::int32_t FieldReader::Long()
{
    return base::ToInt32(Number());
}

std::uint8_t FieldReader::Byte()
{
    return base::ToByte(Number());
}

double FieldReader::Number()
{
    Begin();
    std::string_view field = Unquoted();
    while (!field.empty() && IsBlank(field.back()))
        field.remove_suffix(1);
    const std::optional<double> value = base::ReadNumber(field, base::DataSeparator);
    if (!value)
        throw RuntimeError(base::ErrorType);
    return *value;
}

void FieldReader::Begin()
{
    if (AtEnd())
        throw RuntimeError(base::ErrorPastEnd);
    SkipBlanks();
}

void FieldReader::SkipBlanks()
{
    while (At < Bytes.size() && IsBlank(Bytes[At]))
        ++At;
}

// A comma, a line end of any system, or nothing at the end of the file.
void FieldReader::SkipSeparator()
{
    if (AtEnd())
        return;
    const char separator = Bytes[At++];
    if (separator == '\r' && At < Bytes.size() && Bytes[At] == '\n')
        ++At;
}

std::string_view FieldReader::Unquoted()
{
    const std::size_t begin = At;
    while (At < Bytes.size() && !Separates(Bytes[At]))
        ++At;
    const std::string_view field = std::string_view(Bytes).substr(begin, At - begin);
    SkipSeparator();
    return field;
}

// Up to the closing quote, commas and line ends included; without one, up to the end of the file.
std::string_view FieldReader::Quoted()
{
    const std::size_t begin = At + 1;
    const std::size_t end = std::min(Bytes.find('"', begin), Bytes.size());
    At = std::min(end + 1, Bytes.size());
    SkipBlanks();
    if (!AtEnd() && !Separates(Bytes[At]))
        throw RuntimeError(base::ErrorType);
    SkipSeparator();
    return std::string_view(Bytes).substr(begin, end - begin);
}
}
