// SPDX-License-Identifier: Zlib
#include "tools/preview/Arguments.h"

#include "base/ReadNumber.h"
#include "render/Camera.h"
#include "tools/preview/Failure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>
#include <string>

namespace preview
{
namespace
{
constexpr int MostSides = 64, MostPlaces = 500, LeastSide = 16, MostSide = 4096;
constexpr double LeastScale = 0.1, MostScale = 16;
constexpr std::array<std::string_view, 7> ViewNames = {"chase", "driver", "overhead", "reverse",
                                                       "orbit", "side",   "overview"};

double RealFrom(std::string_view option, std::string_view word, double least, double most)
{
    const std::optional<double> value = base::ReadNumber(word, base::DataSeparator);
    if (!value || !(*value >= least && *value <= most))
        throw Misuse{std::string(option) + " must be a number within its limits, not " + Quoted(word)};
    return *value;
}

int WholeFrom(std::string_view option, std::string_view word, int least, int most)
{
    const std::optional<double> value = base::ReadNumber(word, base::DataSeparator);
    if (!value || !(*value >= least && *value <= most) || std::floor(*value) != *value)
        throw Misuse{std::string(option) + " must be a whole number from " + std::to_string(least) + " to " +
                     std::to_string(most) + ", not " + Quoted(word)};
    return base::RoundEven(*value);
}

platform::Size SizeFrom(std::string_view option, std::string_view word)
{
    const std::size_t cross = word.find('x');
    if (cross == std::string_view::npos)
        throw Misuse{std::string(option) + " must be WIDTHxHEIGHT, not " + Quoted(word)};
    return {WholeFrom(option, word.substr(0, cross), LeastSide, MostSide),
            WholeFrom(option, word.substr(cross + 1), LeastSide, MostSide)};
}

std::int16_t ViewFrom(std::string_view name)
{
    for (std::size_t i = 0; i < ViewNames.size(); ++i)
        if (name == ViewNames[i] || name == std::to_string(i))
            return static_cast<std::int16_t>(i);
    throw Misuse{"there is no view " + Quoted(name)};
}

std::vector<std::int16_t> ViewsFrom(std::string_view list)
{
    std::vector<std::int16_t> views;
    for (std::size_t begin = 0; begin <= list.size();)
    {
        const std::size_t end = std::min(list.find(',', begin), list.size());
        views.push_back(ViewFrom(list.substr(begin, end - begin)));
        begin = end + 1;
    }
    return views;
}

struct Option
{
    std::string_view Name;
    bool Turntable, Map, Lap; // of which subjects
    bool TakesValue;
    void (*Take)(Arguments& arguments, std::string_view name, std::string_view value);

    bool IsOf(Subject what) const
    {
        return (Turntable && what == Subject::Turntable) || (Map && what == Subject::Map) ||
               (Lap && what == Subject::Lap);
    }
};

using Name = std::string_view;
using Value = std::string_view;

constexpr std::array Options = {
    Option{"--root", true, true, true, true, [](Arguments& to, Name, Value value) { to.Root = value; }},
    Option{"--out", true, true, true, true, [](Arguments& to, Name, Value value) { to.Out = value; }},
    Option{"--size", true, false, true, true,
           [](Arguments& to, Name name, Value value) { to.Size = SizeFrom(name, value); }},
    Option{"--views", true, false, false, true,
           [](Arguments& to, Name name, Value value) { to.Sides = WholeFrom(name, value, 1, MostSides); }},
    Option{"--views", false, false, true, true, [](Arguments& to, Name, Value value) { to.Views = ViewsFrom(value); }},
    Option{"--scale", false, true, false, true,
           [](Arguments& to, Name name, Value value) { to.Scale = RealFrom(name, value, LeastScale, MostScale); }},
    Option{"--lines", false, true, false, true, [](Arguments& to, Name, Value value) { to.Lines = value; }},
    Option{"--places", false, false, true, true,
           [](Arguments& to, Name name, Value value) { to.Places = WholeFrom(name, value, 1, MostPlaces); }},
    Option{"--tile", false, false, true, true,
           [](Arguments& to, Name name, Value value) { to.TileWidth = WholeFrom(name, value, LeastSide, MostSide); }},
    Option{"--computer", false, false, true, false, [](Arguments& to, Name, Value) { to.IsComputer = true; }},
};

Subject SubjectFrom(std::string_view word)
{
    if (word == "turntable")
        return Subject::Turntable;
    if (word == "map")
        return Subject::Map;
    if (word == "lap")
        return Subject::Lap;
    throw Misuse{"there is no picture " + Quoted(word) + ": turntable, map or lap"};
}

void TakePlainWord(Arguments& arguments, std::string_view word)
{
    if (arguments.What != Subject::Turntable || !arguments.Model.empty() || word.empty())
        throw Misuse{Quoted(word) + " is too much"};
    arguments.Model = word;
}

void TakeOptions(Arguments& arguments, std::span<const std::string_view> words)
{
    for (std::size_t i = 0; i < words.size(); ++i)
    {
        const std::string_view word = words[i];
        if (!word.starts_with("-"))
        {
            TakePlainWord(arguments, word);
            continue;
        }
        const auto option =
            std::find_if(Options.begin(), Options.end(),
                         [&](const Option& known) { return known.Name == word && known.IsOf(arguments.What); });
        if (option == Options.end())
            throw Misuse{"there is no option " + Quoted(word) + " here"};
        if (option->TakesValue && (i + 1 == words.size() || words[i + 1].empty()))
            throw Misuse{std::string(word) + " needs a value"};
        option->Take(arguments, word, option->TakesValue ? words[++i] : std::string_view());
    }
}

void FillDefaults(Arguments& arguments)
{
    if (arguments.Size.Width == 0)
        arguments.Size = arguments.What == Subject::Turntable ? platform::Size{320, 240} : platform::Size{600, 312};
    if (!arguments.Views.empty())
        return;
    arguments.Views.resize(ViewNames.size());
    std::iota(arguments.Views.begin(), arguments.Views.end(), std::int16_t{0});
}
}

Arguments ParseArguments(std::span<const std::string_view> words)
{
    Arguments arguments;
    if (words.empty())
        throw Misuse{"which picture: turntable, map or lap"};
    if (std::find(words.begin(), words.end(), "--help") != words.end())
        return arguments;
    arguments.What = SubjectFrom(words.front());
    TakeOptions(arguments, words.subspan(1));
    if (arguments.What == Subject::Turntable && arguments.Model.empty())
        throw Misuse{"which model is to be shown"};
    if (arguments.Out.empty())
        throw Misuse{"--out FILE.png is missing"};
    FillDefaults(arguments);
    return arguments;
}

std::string_view ViewName(std::int16_t view)
{
    return view >= 0 && static_cast<std::size_t>(view) < ViewNames.size() ? ViewNames[static_cast<std::size_t>(view)]
                                                                          : std::string_view("still");
}

std::string_view HelpText()
{
    return R"(usage: velkar-preview turntable MODEL.3dm --out FILE.png [--views N] [--size WxH] [--root DIR]
       velkar-preview map --out FILE.png [--scale S] [--lines FILE.csv] [--root DIR]
       velkar-preview lap --out FILE.png [--places N] [--views LIST] [--size WxH] [--tile W] [--computer] [--root DIR]

Shows a model, a map or a lap as one PNG picture, drawn by the game itself without a window.

turntable  a model from N sides (8), each from low and from high up; a side is WxH pixels (320x240)
map        the map from above with its zones, checkpoints, objects and start, S pixels a unit (2)
lap        the game at N places (24) along a lap: a row a place, a column a view

  --root DIR       holds data/; otherwise it is found as the game finds it
  --lines FILE     what was driven: lines of tick,car,x,z,speed,heading,damage below that header
  --views LIST     of the lap: chase,driver,overhead,reverse,orbit,side,overview, or 0 to 6; all without it
  --size WxH       of the lap: the game's resolution (600x312)
  --tile W         the width at which the game's picture stands on the sheet, at most its own
  --computer       the computer drives the lap, among the other cars; otherwise the car is put on the line

Ends with 2 where the command line is wrong and with 1 where a file is; then no picture is written.
)";
}
}
