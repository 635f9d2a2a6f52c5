// SPDX-License-Identifier: Zlib
#include "tools/race/Measure.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace race
{
namespace
{
constexpr int PassHold = TicksASecond; // ticks that a new order must last
constexpr double CrawlSpeed = 0.2;
constexpr int StopTicks = 3 * TicksASecond; // of crawling that make a stop
}

std::optional<std::size_t> RaceResult::Winner() const
{
    for (std::size_t i = 0; i < Cars.size(); ++i)
        if (Cars[i].Finish && Cars[i].Place == 1)
            return i;
    return std::nullopt;
}

std::optional<double> MedianFlyingLap(const CarResult& car)
{
    if (car.Laps.size() < 2)
        return std::nullopt;
    std::vector<double> laps(car.Laps.begin() + 1, car.Laps.end());
    std::sort(laps.begin(), laps.end());
    const std::size_t middle = laps.size() / 2;
    return laps.size() % 2 == 1 ? laps[middle] : (laps[middle - 1] + laps[middle]) / 2;
}

std::vector<CarState> StatesOf(Stage& stage)
{
    std::vector<CarState> states;
    const std::vector<world::Player>& players = stage.Race().Players;
    for (std::size_t i = 0; i < players.size(); ++i)
    {
        CarState state;
        if (const render::Obj* car = stage.Car(i))
        {
            state.X = car->X;
            state.Z = car->Z;
            state.Heading = car->AngleA;
        }
        state.Speed = players[i].Speed;
        state.Damage = players[i].Damage;
        state.Lap = players[i].Lap;
        state.Place = players[i].Place;
        states.push_back(state);
    }
    return states;
}

Measure::Measure(int laps, const std::vector<int>& grid)
    : LapsToGo(laps), Passes(grid.size(), PassHold), LapBegan(grid.size(), 0.0), Crawling(grid.size(), 0),
      LapDone(static_cast<std::size_t>(laps), 0), Last(grid.size())
{
    Result.Cars.resize(grid.size());
    for (std::size_t i = 0; i < grid.size(); ++i)
        Result.Cars[i].Grid = grid[i];
}

void Measure::CountLap(std::size_t car, double seconds)
{
    CarResult& its = Result.Cars[car];
    its.Places.push_back(++LapDone[its.Laps.size()]);
    its.Laps.push_back(seconds - LapBegan[car]);
    LapBegan[car] = seconds;
    if (static_cast<int>(its.Laps.size()) < LapsToGo)
        return;
    its.Finish = seconds;
    its.Place = its.Places.back();
    ++Finished;
}

// Cars that complete a lap in the same tick do so in the order of their places.
void Measure::CountLaps(const std::vector<CarState>& cars, double seconds)
{
    std::vector<std::size_t> order(cars.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return cars[a].Place < cars[b].Place; });
    for (const std::size_t car : order)
        if (!Result.Cars[car].Finish && cars[car].Lap > static_cast<int>(Result.Cars[car].Laps.size()))
            CountLap(car, seconds);
}

void Measure::CountPasses(const std::vector<CarState>& cars)
{
    std::vector<int> places;
    for (std::size_t i = 0; i < cars.size(); ++i)
        places.push_back(Result.Cars[i].Finish ? Result.Cars[i].Place : cars[i].Place);
    for (const Pass& pass : Passes.Take(places))
    {
        if (cars[pass.Passer].Lap < 1)
        {
            ++Result.FirstLapPasses;
            continue;
        }
        ++Result.Passes;
        ++Result.Cars[pass.Passer].PassesMade;
        ++Result.Cars[pass.Passed].PassesSuffered;
    }
}

void Measure::CountStop(std::size_t car, double speed)
{
    int& ticks = Crawling[car];
    ticks = std::fabs(speed) < CrawlSpeed ? ticks + 1 : 0;
    CarResult& its = Result.Cars[car];
    its.Stops += ticks == StopTicks ? 1 : 0;
    if (ticks >= StopTicks)
        its.Stopped += (ticks == StopTicks ? StopTicks : 1.0) / TicksASecond;
}

void Measure::Take(const std::vector<CarState>& cars, double seconds)
{
    for (std::size_t i = 0; i < cars.size(); ++i)
        if (CarResult& its = Result.Cars[i]; !its.Finish)
        {
            its.Damage = cars[i].Damage;
            its.PeakDamage = std::max(its.PeakDamage, cars[i].Damage);
            if (seconds > 0)
                CountStop(i, cars[i].Speed);
        }
    CountLaps(cars, seconds);
    CountPasses(cars);
    Last = cars;
    Result.Seconds = seconds;
}

RaceResult Measure::Conclude() const
{
    RaceResult result = Result;
    result.IsCutOff = !AreAllHome();
    std::vector<std::size_t> out;
    std::optional<double> first;
    for (std::size_t i = 0; i < result.Cars.size(); ++i)
    {
        if (!result.Cars[i].Finish)
            out.push_back(i);
        else if (result.Cars[i].Place == 1)
            first = result.Cars[i].Finish;
    }
    std::stable_sort(out.begin(), out.end(),
                     [&](std::size_t a, std::size_t b) { return Last[a].Place < Last[b].Place; });
    int place = static_cast<int>(Finished);
    for (const std::size_t car : out)
        result.Cars[car].Place = ++place;
    for (CarResult& car : result.Cars)
        if (car.Finish && first)
            car.Gap = *car.Finish - *first;
    return result;
}
}
