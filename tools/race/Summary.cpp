// SPDX-License-Identifier: Zlib
#include "tools/race/Summary.h"

#include <algorithm>

namespace race
{
namespace
{
double Share(bool is)
{
    return is ? 1 : 0;
}

void AddCar(CarSummary& summary, const CarResult& car)
{
    summary.IsHuman = car.IsHuman;
    summary.Won.Add(Share(car.Finish && car.Place == 1));
    summary.Finished.Add(Share(car.Finish.has_value()));
    summary.Place.Add(car.Place);
    summary.Grid.Add(car.Grid);
    summary.Finish.Add(car.Finish);
    summary.Gap.Add(car.Gap);
    summary.FlyingLap.Add(MedianFlyingLap(car));
    summary.Damage.Add(car.Damage);
    summary.PeakDamage.Add(car.PeakDamage);
    summary.Ruined.Add(Share(car.Damage > RuinedDamage));
    summary.EverRuined.Add(Share(car.PeakDamage > RuinedDamage));
    summary.Stops.Add(car.Stops);
    summary.Stopped.Add(car.Stopped);
    summary.PassesMade.Add(car.PassesMade);
    summary.PassesSuffered.Add(car.PassesSuffered);
}

void AddRace(Summary& summary, const RaceResult& race)
{
    const auto none = [&](double CarResult::*damage)
    {
        return std::none_of(race.Cars.begin(), race.Cars.end(),
                            [&](const CarResult& car) { return car.*damage > RuinedDamage; });
    };
    summary.CutOff.Add(Share(race.IsCutOff));
    summary.NoneRuined.Add(Share(none(&CarResult::Damage)));
    summary.NoneEverRuined.Add(Share(none(&CarResult::PeakDamage)));
    summary.Passes.Add(race.Passes);
    summary.FirstLapPasses.Add(race.FirstLapPasses);
    summary.CleanLap.Add(race.CleanLap);
    std::optional<double> spread;
    for (const CarResult& car : race.Cars)
        if (car.Gap)
            spread = std::max(spread.value_or(0), *car.Gap);
    summary.Spread.Add(spread);
    if (const std::optional<std::size_t> winner = race.Winner())
        summary.Winning.Add(race.Cars[*winner].Finish);
    for (const CarResult& car : race.Cars)
        if (car.IsHuman && car.Finish && race.CleanLap)
            summary.CleanRatio.Add(*car.Finish / (*race.CleanLap * static_cast<double>(car.Laps.size())));
}
}

Summary Summarise(std::span<const RaceResult> races)
{
    Summary summary;
    summary.Races = races.size();
    for (const RaceResult& race : races)
    {
        AddRace(summary, race);
        summary.Cars.resize(std::max(summary.Cars.size(), race.Cars.size()));
        for (std::size_t i = 0; i < race.Cars.size(); ++i)
            AddCar(summary.Cars[i], race.Cars[i]);
    }
    return summary;
}
}
