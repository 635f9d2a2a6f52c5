// SPDX-License-Identifier: Zlib
// tools/race/Measure.h: what is measured of one race, tick by tick. Times are seconds since the countdown ended.
#pragma once
#include "tools/race/Passes.h"
#include "tools/race/Stage.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace race
{
// A car at one tick.
struct CarState
{
    double X = 0, Z = 0, Heading = 0, Speed = 0, Damage = 0;
    int Lap = 0;   // laps completed
    int Place = 0; // as the game has it
};

struct CarResult
{
    bool IsHuman = false;
    int Grid = 0;                           // position at the start
    std::vector<double> Laps;               // the time of each completed lap
    std::vector<int> Places;                // at the end of each of them
    std::optional<double> Finish;           // when the race was done; nothing where it was not
    std::optional<double> Gap;              // behind the winner
    int Place = 0;                          // at the end
    double Damage = 0, PeakDamage = 0;      // when it finished or was cut off; ever until then
    int Stops = 0;                          // times it stood or crawled for long
    double Stopped = 0;                     // seconds of that
    int PassesMade = 0, PassesSuffered = 0; // of the passer's second lap and later
};

struct RaceResult
{
    std::uint64_t Seed = 0;
    bool IsCutOff = false;       // not every car finished within the limit
    double Seconds = 0;          // until the last car finished
    std::vector<CarResult> Cars; // by player
    int Passes = 0, FirstLapPasses = 0;
    // Of the human-like driver alone on the track, its mean flying lap; nothing where there was none.
    std::optional<double> CleanLap;
    std::string Complaints; // what loading said

    std::optional<std::size_t> Winner() const;
};

inline constexpr double RuinedDamage = 1; // above it half of a car's speed is gone
// Of the laps behind the first; nothing where there are none.
std::optional<double> MedianFlyingLap(const CarResult& car);

std::vector<CarState> StatesOf(Stage& stage);

class Measure
{
public:
    // laps: to the finish. grid: positions at the start, one a car.
    Measure(int laps, const std::vector<int>& grid);

    // The cars after a tick, that many seconds after the countdown.
    void Take(const std::vector<CarState>& cars, double seconds);
    bool AreAllHome() const { return Finished == Result.Cars.size(); }
    // The race as it stands. Cars that have not finished are placed behind those that have.
    RaceResult Conclude() const;

private:
    void CountLap(std::size_t car, double seconds);
    void CountLaps(const std::vector<CarState>& cars, double seconds);
    void CountPasses(const std::vector<CarState>& cars);
    void CountStop(std::size_t car, double speed);

    int LapsToGo;
    RaceResult Result;
    PassCounter Passes;
    std::vector<double> LapBegan;
    std::vector<int> Crawling;  // ticks
    std::vector<int> LapDone;   // by lap: cars that have completed it
    std::vector<CarState> Last; // as last taken
    std::size_t Finished = 0;
};
}
