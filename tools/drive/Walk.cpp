// SPDX-License-Identifier: Zlib
#include "tools/drive/Walk.h"

#include <algorithm>

namespace drive
{
namespace
{
bool IsNameCharacter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

// Takes the step at the start of the path; the first step needs no point before its name.
std::optional<Step> TakeStep(std::string_view& path, bool first)
{
    if (path[0] == '[')
    {
        const std::size_t close = path.find(']');
        const std::optional<std::uint32_t> index =
            close == std::string_view::npos ? std::nullopt : ParseWhole<std::uint32_t>(path.substr(1, close - 1));
        if (!index || first)
            return std::nullopt;
        path.remove_prefix(close + 1);
        return Step{{}, *index};
    }
    if (!first && path[0] != '.')
        return std::nullopt;
    path.remove_prefix(first ? 0 : 1);
    const auto end = std::find_if_not(path.begin(), path.end(), IsNameCharacter);
    const auto length = static_cast<std::size_t>(end - path.begin());
    if (length == 0)
        return std::nullopt;
    const Step step{path.substr(0, length)};
    path.remove_prefix(length);
    return step;
}
}

std::optional<std::vector<Step>> ParsePath(std::string_view path)
{
    std::vector<Step> steps;
    while (!path.empty())
    {
        const std::optional<Step> step = TakeStep(path, steps.empty());
        if (!step)
            return std::nullopt;
        steps.push_back(*step);
    }
    if (steps.empty())
        return std::nullopt;
    return steps;
}

void Append(std::string& json, const Value& value)
{
    if (value.At == nullptr)
        json += "null";
    else
        value.Of->Append(json, value.At);
}

Outcome Follow(const Value& value, Steps rest, const Visit& use)
{
    if (value.At == nullptr)
        return Outcome::NoSuchPath;
    if (rest.empty())
        return use(value);
    const auto onward = [&](Value next)
    {
        next.Writable = next.Writable && value.Writable;
        return Follow(next, rest.subspan(1), use);
    };
    return value.Of->Enter(value.At, rest[0], onward);
}

Visit Reader(std::string& json)
{
    return [&json](const Value& value)
    {
        Append(json, value);
        return Outcome::Done;
    };
}

Visit Writer(std::string_view text)
{
    return [text](const Value& value)
    {
        return value.Of->Set == nullptr ? Outcome::NotOneValue
               : !value.Writable        ? Outcome::ReadOnly
                                        : value.Of->Set(value.At, text);
    };
}
}
