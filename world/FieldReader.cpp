#include "world/FieldReader.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace modOggetti
{
namespace
{
using base::RuntimeError;

constexpr std::string_view Blanks = " \t";
constexpr std::string_view PathMark = "<path>";

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Whether a well-formed number that no double holds is too large; otherwise it is too small. The conversion tells both
// alike, the power of ten of its first significant digit does not.
bool IsTooLarge(std::string_view number)
{
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = digits.find_first_of("123456789");
    if (first == std::string_view::npos)
        return false;

    const bool negative = number.size() > mark + 1 && number[mark + 1] == '-';
    std::int64_t exponent = 0;
    for (const char c : number.substr(mark))
        if (IsDigit(c) && exponent < (std::int64_t{1} << 40))
            exponent = exponent * 10 + (c - '0');
    return static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first) + (negative ? -exponent : exponent) > 0;
}

double ToNumber(std::string_view field)
{
    // Checked here: the conversion knows no "+", and words such as "inf" are numbers to it.
    const std::size_t sign = !field.empty() && (field.front() == '+' || field.front() == '-') ? 1 : 0;
    if (sign >= field.size() || !(IsDigit(field[sign]) || field[sign] == '.'))
        throw RuntimeError(base::ErrorType);
    if (field.front() == '+')
        field.remove_prefix(1);

    double value = 0.0;
    const std::from_chars_result result = std::from_chars(field.data(), field.data() + field.size(), value);
    if (result.ec == std::errc::invalid_argument || result.ptr != field.data() + field.size())
        throw RuntimeError(base::ErrorType);
    if (result.ec == std::errc::result_out_of_range)
    {
        if (IsTooLarge(field))
            throw RuntimeError(base::ErrorOverflow);
        return 0.0;
    }
    return value;
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
    // From here on a number is nearer to 2^128 than to the largest single.
    constexpr double tooLarge = 0x1.ffffffp127;
    const double value = Number();
    if (!(std::fabs(value) < tooLarge))
        throw RuntimeError(base::ErrorOverflow);
    return static_cast<float>(value);
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
    field.remove_suffix(field.size() - (field.find_last_not_of(Blanks) + 1));
    return ToNumber(field);
}

void FieldReader::Begin()
{
    if (AtEnd())
        throw RuntimeError(base::ErrorPastEnd);
    SkipBlanks();
}

void FieldReader::SkipBlanks()
{
    At = std::min(Bytes.find_first_not_of(Blanks, At), Bytes.size());
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
    At = std::min(Bytes.find_first_of(",\r\n", begin), Bytes.size());
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
    if (!AtEnd() && Bytes[At] != ',' && Bytes[At] != '\r' && Bytes[At] != '\n')
        throw RuntimeError(base::ErrorType);
    SkipSeparator();
    return std::string_view(Bytes).substr(begin, end - begin);
}
}
