// SPDX-License-Identifier: Zlib
#include "tools/race/Variation.h"

#include "tools/drive/Words.h"

namespace race
{
namespace
{
Setting MakeSetting(std::string_view path, std::string_view value)
{
    Setting setting;
    setting.Path = path;
    setting.Written = value;
    if (value.starts_with('*') || value.starts_with('+'))
    {
        setting.How = value[0] == '*' ? Setting::Change::Times : Setting::Change::Plus;
        const std::optional<double> operand = drive::ParseDouble(value.substr(1));
        if (!operand)
            throw Misuse{setting.Text() + ": a number must follow " + std::string(value.substr(0, 1))};
        setting.Operand = *operand;
    }
    else
        setting.Value = value;
    return setting;
}

// What stands before and behind the first '='.
std::pair<std::string_view, std::string_view> Split(std::string_view text)
{
    const std::size_t equals = text.find('=');
    if (equals == 0 || equals == std::string_view::npos || equals + 1 == text.size())
        throw Misuse{std::string(text) + ": PATH=VALUE is expected"};
    return {text.substr(0, equals), text.substr(equals + 1)};
}
}

Setting ParseSetting(std::string_view text)
{
    const auto [path, value] = Split(text);
    return MakeSetting(path, value);
}

Settings ParseAxis(std::string_view text)
{
    auto [path, values] = Split(text);
    Settings axis;
    for (bool more = true; more;)
    {
        const std::size_t comma = values.find(',');
        more = comma != std::string_view::npos;
        const std::string_view value = values.substr(0, comma);
        if (value.empty())
            throw Misuse{std::string(text) + ": a value is missing"};
        axis.push_back(MakeSetting(path, value));
        values.remove_prefix(more ? comma + 1 : values.size());
    }
    return axis;
}

std::vector<Settings> CrossProduct(const std::vector<Settings>& axes)
{
    std::vector<Settings> product = {{}};
    for (const Settings& axis : axes)
    {
        std::vector<Settings> longer;
        for (const Settings& before : product)
            for (const Setting& setting : axis)
            {
                longer.push_back(before);
                longer.back().push_back(setting);
            }
        product = std::move(longer);
    }
    return product;
}

std::string Describe(const Settings& settings)
{
    std::string text;
    for (const Setting& setting : settings)
    {
        text += text.empty() ? "" : " ";
        text += setting.Text();
    }
    return text.empty() ? "as it is" : text;
}
}
