// SPDX-License-Identifier: Zlib
#include "tools/race/Arguments.h"

#include "tools/drive/Words.h"

#include <array>

namespace race
{
namespace
{
constexpr int MostLaps = 1000, MostJobs = 128, MostSeconds = 86'400, MostPlaces = 1000;
constexpr std::uint64_t MostSeeds = 100'000;
constexpr std::size_t MostRaces = 1'000'000;

template <std::integral Whole> Whole Number(std::string_view text, Whole least, Whole most)
{
    const std::optional<Whole> number = drive::ParseWhole<Whole>(text);
    if (!number || *number < least || *number > most)
        throw Misuse{"a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
                     " is expected, not \"" + std::string(text) + "\""};
    return *number;
}

void TakeSeeds(Arguments& arguments, std::string_view text)
{
    constexpr auto most = std::uint64_t{1} << 62;
    const std::size_t dash = text.find('-');
    arguments.FirstSeed = Number<std::uint64_t>(text.substr(0, dash), 0, most);
    arguments.LastSeed =
        dash == std::string_view::npos ? arguments.FirstSeed : Number<std::uint64_t>(text.substr(dash + 1), 0, most);
    if (arguments.LastSeed < arguments.FirstSeed || arguments.LastSeed - arguments.FirstSeed >= MostSeeds)
        throw Misuse{"from the first seed to the last there must be 1 to " + std::to_string(MostSeeds)};
}

void TakeHuman(Arguments& arguments, std::string_view text)
{
    arguments.Human = FindSkill(text);
    if (arguments.Human == nullptr && text != "none")
        throw Misuse{"none, weak, average or strong is expected, not \"" + std::string(text) + "\""};
}

void TakeHumanKeys(Arguments& arguments, std::string_view text)
{
    if (text != "repair" && text != "none")
        throw Misuse{"repair or none is expected, not \"" + std::string(text) + "\""};
    arguments.Repairs = text == "repair";
}

struct Option
{
    std::string_view Name, Value, Help;
    void (*Take)(Arguments& arguments, std::string_view value);
};

constexpr std::array Options = {
    Option{"--root", "DIR", "the folder that holds data/ (otherwise found beside the program)",
           [](Arguments& a, std::string_view v) { a.Root = v; }},
    Option{"--laps", "N", "laps of a race; 5",
           [](Arguments& a, std::string_view v) { a.Laps = Number(v, 1, MostLaps); }},
    Option{"--seeds", "A-B", "a race for each of these seeds, or for one; 1-8", TakeSeeds},
    Option{"--jobs", "N", "races side by side; as many as there are processors",
           [](Arguments& a, std::string_view v) { a.Jobs = Number(v, 1, MostJobs); }},
    Option{"--human", "SKILL", "who drives the user's car: weak, average or strong; none, the computer", TakeHuman},
    Option{"--human-keys", "KEYS", "repair: badly damaged, the human goes to a repair box; none", TakeHumanKeys},
    Option{"--grid", "N", "the user's car starts from this position, 1 in front",
           [](Arguments& a, std::string_view v) { a.Grid = Number(v, 1, MostPlaces); }},
    Option{"--set", "PATH=VALUE", "changes a value before the start; *0.5 multiplies it, +0.1 adds to it",
           [](Arguments& a, std::string_view v) { a.Axes.push_back({ParseSetting(v)}); }},
    Option{"--vary", "PATH=V,V…", "races with each of these values, and with every combination of several",
           [](Arguments& a, std::string_view v) { a.Axes.push_back(ParseAxis(v)); }},
    Option{"--limit", "SECONDS", "of game time, after which a race is cut off; 120 a lap",
           [](Arguments& a, std::string_view v) { a.Limit = Number(v, 1, MostSeconds); }},
    Option{"--csv", "FILE", "writes a line a car and race", [](Arguments& a, std::string_view v) { a.Csv = v; }},
    Option{"--json", "FILE", "writes everything that was measured",
           [](Arguments& a, std::string_view v) { a.Json = v; }},
    Option{"--trace", "FILE", "writes where every car of the first race was at every tick",
           [](Arguments& a, std::string_view v) { a.Trace = v; }},
    Option{"--escape", "N", "no races: tries to leave the map, from N places round the lap and N inside the map",
           [](Arguments& a, std::string_view v) { a.Escapes = Number(v, 1, MostPlaces); }},
    Option{"--escape-seconds", "N", "of game time that an attempt takes; 40",
           [](Arguments& a, std::string_view v) { a.EscapeSeconds = Number(v, 1, MostSeconds); }},
};

const Option& FindOption(std::string_view name)
{
    for (const Option& option : Options)
        if (option.Name == name)
            return option;
    throw Misuse{"there is no option " + std::string(name)};
}

void CheckWhole(const Arguments& arguments)
{
    std::size_t races = static_cast<std::size_t>(arguments.LastSeed - arguments.FirstSeed) + 1;
    for (const Settings& axis : arguments.Axes)
        if (races *= axis.size(); races > MostRaces)
            throw Misuse{"these are more than " + std::to_string(MostRaces) + " races"};
    if (arguments.Repairs && arguments.Human == nullptr)
        throw Misuse{"--human-keys repair: no human drives"};
    if (arguments.Escapes > 0 && arguments.Variations().size() > 1)
        throw Misuse{"--escape tries one variation at a time"};
}
}

Arguments ParseArguments(const std::vector<std::string_view>& words)
{
    Arguments arguments;
    for (std::size_t i = 0; i < words.size(); ++i)
    {
        if (words[i] == "--help" || words[i] == "-h")
        {
            arguments.Help = true;
            return arguments;
        }
        const Option& option = FindOption(words[i]);
        if (++i == words.size())
            throw Misuse{std::string(option.Name) + ": " + std::string(option.Value) + " is missing"};
        try
        {
            option.Take(arguments, words[i]);
        }
        catch (const Misuse& misuse)
        {
            throw Misuse{std::string(option.Name) + ": " + misuse.Why};
        }
    }
    CheckWhole(arguments);
    return arguments;
}

std::string HelpText()
{
    std::string text =
        "usage: velkar-race [OPTION VALUE]…\n"
        "Races the start-up map without a window, for every seed and variation, and says how it went.\n\n";
    for (const Option& option : Options)
    {
        std::string line = "  " + std::string(option.Name) + " " + std::string(option.Value);
        // "…" has three bytes and one column.
        const std::size_t columns = option.Value.ends_with("…") ? line.size() - 2 : line.size();
        line.append(columns < 28 ? 28 - columns : 1, ' ');
        text += line + std::string(option.Help) + "\n";
    }
    text +=
        "\nPATH is one of velkar-drive's; an index may be *, all of them, and cars[i] is the object of players[i]:\n"
        "  velkar-race --seeds 1-20 --vary 'cars[*].Sfere[*].R=*0.6,*0.8,*1' --human average --csv out.csv\n"
        "Everything is told in docs/race.md.\n";
    return text;
}
}
