// SPDX-License-Identifier: Zlib
#include "tools/race/Format.h"
#include "tools/race/Report.h"

#include <array>

namespace race
{
namespace
{
std::string Right(std::string text, std::size_t width)
{
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

std::string Show(const Mean& mean, int digits)
{
    const std::optional<double> value = mean.Value();
    return value ? Fixed(*value, digits) : "-";
}

std::string Percent(const Mean& share)
{
    const std::optional<double> value = share.Value();
    return value ? Fixed(*value * 100, 0) + "%" : "-";
}

struct Column
{
    const char* Title;
    std::size_t Width;
    std::string (*Text)(const CarSummary& car);
};

constexpr std::array Columns = {
    Column{"grid", 6, [](const CarSummary& c) { return Show(c.Grid, 1); }},
    Column{"won", 6, [](const CarSummary& c) { return Percent(c.Won); }},
    Column{"place", 7, [](const CarSummary& c) { return Show(c.Place, 2); }},
    Column{"home", 6, [](const CarSummary& c) { return Percent(c.Finished); }},
    Column{"time", 9, [](const CarSummary& c) { return Show(c.Finish, 2); }},
    Column{"gap", 8, [](const CarSummary& c) { return Show(c.Gap, 2); }},
    Column{"lap", 8, [](const CarSummary& c) { return Show(c.FlyingLap, 2); }},
    Column{"damage", 8, [](const CarSummary& c) { return Show(c.Damage, 2); }},
    Column{"peak", 7, [](const CarSummary& c) { return Show(c.PeakDamage, 2); }},
    Column{"ruined", 8, [](const CarSummary& c) { return Percent(c.Ruined); }},
    Column{"ever", 6, [](const CarSummary& c) { return Percent(c.EverRuined); }},
    Column{"stops", 7, [](const CarSummary& c) { return Show(c.Stops, 2); }},
    Column{"passes", 8, [](const CarSummary& c) { return Show(c.PassesMade, 1); }},
    Column{"passed", 8, [](const CarSummary& c) { return Show(c.PassesSuffered, 1); }},
};

std::string CarLine(std::size_t index, const CarSummary& car)
{
    std::string line = Right(std::to_string(index), 3) + (car.IsHuman ? "*" : " ");
    for (const Column& column : Columns)
        line += Right(column.Text(car), column.Width);
    return line + "\n";
}

std::string RaceLines(const Summary& summary)
{
    std::string text = "  races " + std::to_string(summary.Races) + ", cut off " + Percent(summary.CutOff) +
                       ", none ruined " + Percent(summary.NoneRuined) + " (never " + Percent(summary.NoneEverRuined) +
                       "), passes " + Show(summary.Passes, 1) + " (first lap " + Show(summary.FirstLapPasses, 1) +
                       "), winner's time " + Show(summary.Winning, 2) + ", first to last " + Show(summary.Spread, 2) +
                       "\n";
    if (summary.CleanLap.Value())
        text += "  human: clean lap " + Show(summary.CleanLap, 2) + ", race over as many clean laps " +
                Show(summary.CleanRatio, 3) + "\n";
    return text;
}
}

std::string TableOf(std::span<const Batch> batches)
{
    std::string text;
    for (const Batch& batch : batches)
    {
        const Summary summary = Summarise(batch.Races);
        text += text.empty() ? "" : "\n";
        text += Describe(batch.Changes) + "\ncar ";
        for (const Column& column : Columns)
            text += Right(column.Title, column.Width);
        text += "\n";
        for (std::size_t i = 0; i < summary.Cars.size(); ++i)
            text += CarLine(i, summary.Cars[i]);
        text += RaceLines(summary);
    }
    return text;
}
}
