// SPDX-License-Identifier: Zlib
#include "console/Words.h"

#include "base/ReadNumber.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

#include <algorithm>

namespace console
{
void Fail(const char* why)
{
    constexpr std::int32_t commandError = 513; // never shown: the description alone is
    throw base::RuntimeError(commandError, why);
}

Words::Words(std::string_view line) : Lower(base::LowerAscii(line))
{
    const std::string_view text = Lower;
    for (std::size_t at = 0; at <= text.size();)
    {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        List.push_back(text.substr(at, end - at));
        at = end + 1;
    }
}

std::string_view Words::At(std::size_t index, const char* missing) const
{
    if (!Has(index))
        Fail(missing);
    return List[index];
}

double Words::NumberAt(std::size_t index, const char* missing) const
{
    const std::optional<double> number = base::ReadNumber(At(index, missing), base::TypedSeparators);
    if (!number)
        Fail(BadParameter);
    return *number;
}
}
