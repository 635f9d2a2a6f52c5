// SPDX-License-Identifier: Zlib
#include "tools/race/Format.h"
#include "tools/race/Report.h"

#include <algorithm>
#include <array>

namespace race
{
namespace
{
std::string Optional(const std::optional<double>& value, int digits)
{
    return value ? Fixed(*value, digits) : "";
}

// Several numbers in one cell.
template <class Numbers, class Show> std::string Joined(const Numbers& numbers, Show&& show)
{
    std::string cell;
    for (const auto& number : numbers)
    {
        cell += cell.empty() ? "" : " ";
        cell += show(number);
    }
    return cell;
}

struct Column
{
    const char* Title;
    std::string (*Text)(const RaceResult& race, const CarResult& car);
};

constexpr std::array Columns = {
    Column{"driver",
           [](const RaceResult&, const CarResult& c) { return std::string(c.IsHuman ? "human" : "computer"); }},
    Column{"grid", [](const RaceResult&, const CarResult& c) { return std::to_string(c.Grid); }},
    Column{"place", [](const RaceResult&, const CarResult& c) { return std::to_string(c.Place); }},
    Column{"finished", [](const RaceResult&, const CarResult& c) { return std::string(c.Finish ? "1" : "0"); }},
    Column{"time", [](const RaceResult&, const CarResult& c) { return Optional(c.Finish, 3); }},
    Column{"gap", [](const RaceResult&, const CarResult& c) { return Optional(c.Gap, 3); }},
    Column{"laps", [](const RaceResult&, const CarResult& c)
           { return Joined(c.Laps, [](double lap) { return Fixed(lap, 3); }); }},
    Column{"places", [](const RaceResult&, const CarResult& c)
           { return Joined(c.Places, [](int place) { return std::to_string(place); }); }},
    Column{"flying_lap", [](const RaceResult&, const CarResult& c) { return Optional(MedianFlyingLap(c), 3); }},
    Column{"clean_lap",
           [](const RaceResult& r, const CarResult& c) { return c.IsHuman ? Optional(r.CleanLap, 3) : std::string(); }},
    Column{"damage", [](const RaceResult&, const CarResult& c) { return Fixed(c.Damage, 3); }},
    Column{"peak_damage", [](const RaceResult&, const CarResult& c) { return Fixed(c.PeakDamage, 3); }},
    Column{"stops", [](const RaceResult&, const CarResult& c) { return std::to_string(c.Stops); }},
    Column{"stopped", [](const RaceResult&, const CarResult& c) { return Fixed(c.Stopped, 3); }},
    Column{"passes", [](const RaceResult&, const CarResult& c) { return std::to_string(c.PassesMade); }},
    Column{"passed", [](const RaceResult&, const CarResult& c) { return std::to_string(c.PassesSuffered); }},
    Column{"cut_off", [](const RaceResult& r, const CarResult&) { return std::string(r.IsCutOff ? "1" : "0"); }},
};

// In quotes where it must be.
std::string Cell(const std::string& text)
{
    if (text.find_first_of(",\"\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

std::string ChangeCells(const Batch& batch)
{
    std::string cells;
    for (const Setting& change : batch.Changes)
        cells += Cell(change.Written) + ",";
    return cells;
}
}

std::string CsvOf(std::span<const Batch> batches)
{
    std::string csv;
    if (!batches.empty())
        for (const Setting& change : batches.front().Changes)
            csv += Cell(change.Path) + ",";
    csv += "seed,car";
    for (const Column& column : Columns)
        csv += std::string(",") + column.Title;
    csv += "\n";
    for (const Batch& batch : batches)
        for (const RaceResult& race : batch.Races)
            for (std::size_t i = 0; i < race.Cars.size(); ++i)
            {
                csv += ChangeCells(batch) + std::to_string(race.Seed) + "," + std::to_string(i);
                for (const Column& column : Columns)
                    csv.append(",").append(column.Text(race, race.Cars[i]));
                csv += "\n";
            }
    return csv;
}
}
