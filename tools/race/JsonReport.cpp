// SPDX-License-Identifier: Zlib
#include "tools/drive/Json.h"
#include "tools/race/Report.h"

namespace race
{
namespace
{
void Put(drive::Object& object, std::string_view name, double value)
{
    drive::AppendNumber(object.Field(name), static_cast<float>(value));
}
void Put(drive::Object& object, std::string_view name, int value)
{
    drive::AppendNumber(object.Field(name), value);
}
void Put(drive::Object& object, std::string_view name, const std::optional<double>& value)
{
    if (value)
        Put(object, name, *value);
    else
        object.Raw(name, "null");
}
void Put(drive::Object& object, std::string_view name, const Mean& mean)
{
    Put(object, name, mean.Value());
}
void PutFlag(drive::Object& object, std::string_view name, bool is)
{
    object.Raw(name, is ? "true" : "false");
}

// A list of what show appends for each element, a line each.
template <class Elements, class Show>
void PutList(drive::Object& object, std::string_view name, const Elements& elements, const char* separator, Show&& show)
{
    std::string& json = object.Field(name);
    json += '[';
    bool first = true;
    for (const auto& element : elements)
    {
        json += first ? "" : separator;
        first = false;
        show(json, element);
    }
    json += ']';
}

std::string CarJson(const CarResult& car)
{
    drive::Object object;
    PutFlag(object, "human", car.IsHuman);
    Put(object, "grid", car.Grid);
    Put(object, "place", car.Place);
    Put(object, "time", car.Finish);
    Put(object, "gap", car.Gap);
    PutList(object, "laps", car.Laps, ", ",
            [](std::string& json, double lap) { drive::AppendNumber(json, static_cast<float>(lap)); });
    PutList(object, "places", car.Places, ", ", [](std::string& json, int place) { drive::AppendNumber(json, place); });
    Put(object, "flyingLap", MedianFlyingLap(car));
    Put(object, "damage", car.Damage);
    Put(object, "peakDamage", car.PeakDamage);
    Put(object, "stops", car.Stops);
    Put(object, "stopped", car.Stopped);
    Put(object, "passes", car.PassesMade);
    Put(object, "passed", car.PassesSuffered);
    return object.Finish();
}

std::string RaceJson(const RaceResult& race)
{
    drive::Object object;
    drive::AppendNumber(object.Field("seed"), race.Seed);
    PutFlag(object, "cutOff", race.IsCutOff);
    Put(object, "seconds", race.Seconds);
    if (const std::optional<std::size_t> winner = race.Winner())
        drive::AppendNumber(object.Field("winner"), *winner);
    else
        object.Raw("winner", "null");
    Put(object, "passes", race.Passes);
    Put(object, "firstLapPasses", race.FirstLapPasses);
    Put(object, "cleanLap", race.CleanLap);
    PutList(object, "cars", race.Cars, ",\n    ",
            [](std::string& json, const CarResult& car) { json += CarJson(car); });
    return object.Finish();
}

std::string CarSummaryJson(const CarSummary& car)
{
    drive::Object object;
    PutFlag(object, "human", car.IsHuman);
    Put(object, "won", car.Won);
    Put(object, "finished", car.Finished);
    Put(object, "place", car.Place);
    Put(object, "grid", car.Grid);
    Put(object, "time", car.Finish);
    Put(object, "gap", car.Gap);
    Put(object, "flyingLap", car.FlyingLap);
    Put(object, "damage", car.Damage);
    Put(object, "peakDamage", car.PeakDamage);
    Put(object, "ruined", car.Ruined);
    Put(object, "everRuined", car.EverRuined);
    Put(object, "stops", car.Stops);
    Put(object, "stopped", car.Stopped);
    Put(object, "passes", car.PassesMade);
    Put(object, "passed", car.PassesSuffered);
    return object.Finish();
}

std::string SummaryJson(const Summary& summary)
{
    drive::Object object;
    drive::AppendNumber(object.Field("races"), summary.Races);
    Put(object, "cutOff", summary.CutOff);
    Put(object, "noneRuined", summary.NoneRuined);
    Put(object, "noneEverRuined", summary.NoneEverRuined);
    Put(object, "winnersTime", summary.Winning);
    Put(object, "firstToLast", summary.Spread);
    Put(object, "passes", summary.Passes);
    Put(object, "firstLapPasses", summary.FirstLapPasses);
    Put(object, "cleanLap", summary.CleanLap);
    Put(object, "cleanRatio", summary.CleanRatio);
    PutList(object, "cars", summary.Cars, ",\n    ",
            [](std::string& json, const CarSummary& car) { json += CarSummaryJson(car); });
    return object.Finish();
}

std::string BatchJson(const Batch& batch)
{
    drive::Object changes, object;
    for (const Setting& change : batch.Changes)
        drive::AppendText(changes.Field(change.Path), change.Written);
    object.Raw("changes", changes.Finish());
    object.Raw("summary", "\n  " + SummaryJson(Summarise(batch.Races)));
    PutList(object, "races", batch.Races, ",\n  ",
            [](std::string& json, const RaceResult& race) { json += RaceJson(race); });
    return object.Finish();
}
}

std::string JsonOf(std::span<const Batch> batches)
{
    drive::Object object;
    PutList(object, "variations", batches, ",\n ",
            [](std::string& json, const Batch& batch) { json += BatchJson(batch); });
    return object.Finish() + "\n";
}
}
