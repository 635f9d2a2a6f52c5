// SPDX-License-Identifier: Zlib
#include "tools/preview/LapSheet.h"

#include "base/Numbers.h"
#include "tools/preview/Failure.h"
#include "tools/preview/LapLine.h"
#include "tools/preview/Sheet.h"

#include <algorithm>
#include <string>
#include <vector>

namespace preview
{
namespace
{
constexpr float PlacedSpeed = 3; // of a car that is put on the line: what the views make of a fast one
constexpr int MostSteps = 12000; // five minutes for a lap
constexpr std::int32_t SheetWidth = 1920, LeastTile = 240;
constexpr std::int32_t ColumnsOfOneView = 4;

world::Player& UserPlayer(shell::Game& game)
{
    world::Player* player = world::FindPlayer(game.Race, game.Race.UserPlayer);
    if (player == nullptr || !game.Scene.Objects.Has(player->Obj))
        throw Failure{"the map has no car"};
    return *player;
}

void PutCar(shell::Game& game, const Place& place)
{
    world::Player& player = UserPlayer(game);
    render::Obj& car = game.Scene.Objects.At(player.Obj);
    car.X = static_cast<float>(place.X);
    car.Y = 0;
    car.Z = static_cast<float>(place.Z);
    car.AngleA = static_cast<float>(place.AngleA);
    car.AngleB = 0;
    player.Speed = PlacedSpeed;
    player.NextCheckpoint = place.Next;
}

// Steps until the computer has brought the user's car to the place.
void DriveTo(LoadedGame& game, const LapLine& line, const Place& place)
{
    for (int i = 0; i < MostSteps; ++i)
    {
        const world::Player& player = UserPlayer(game.State());
        const render::Obj& car = game.State().Scene.Objects.At(player.Obj);
        if (line.Progress(player.Passed, car.X, car.Z) >= place.Along)
            return;
        game.Step();
    }
    throw Failure{"the computer does not get round the lap: after " + std::to_string(MostSteps / 40) +
                  " seconds it is not yet past checkpoint " + std::to_string(place.Next)};
}

std::string Caption(std::int16_t view, std::size_t number, const shell::Game& game)
{
    const world::Player* player = world::FindPlayer(game.Race, game.Race.UserPlayer);
    const render::Obj& car = game.Scene.Objects.At(player->Obj);
    const auto whole = [](double value) { return std::to_string(base::RoundEven(value)); };
    return std::to_string(number) + " " + std::string(ViewName(view)) + " (" + whole(car.X) + ", " + whole(car.Z) + ")";
}

std::int32_t ColumnsFor(const Arguments& arguments)
{
    const auto views = static_cast<std::int32_t>(arguments.Views.size());
    return views > 1 ? views : std::min(ColumnsOfOneView, arguments.Places);
}

// Of a tile: what was asked for, or what makes a sheet of the usual width; never more than the game's own.
platform::Size TileSize(const Arguments& arguments)
{
    const std::int32_t wanted =
        arguments.TileWidth > 0 ? arguments.TileWidth : std::max(SheetWidth / ColumnsFor(arguments), LeastTile);
    const std::int32_t width = std::min(wanted, arguments.Size.Width);
    const double height = static_cast<double>(arguments.Size.Height) * width / arguments.Size.Width;
    return {width, std::max(base::RoundEven(height), 1)};
}
}

Canvas DrawLap(LoadedGame& game, const Arguments& arguments)
{
    const LapLine line(game.State().Race.Map.Checkpoints.Targets());
    const platform::Size size = TileSize(arguments);
    game.StartRace(arguments.Size);
    UserPlayer(game.State()).Control = arguments.IsComputer ? 1 : 0;
    std::vector<Tile> tiles;
    std::size_t number = 0;
    for (const Place& place : line.Places(arguments.Places))
    {
        ++number;
        if (arguments.IsComputer)
            DriveTo(game, line, place);
        else
            PutCar(game.State(), place);
        for (const std::int16_t view : arguments.Views)
            tiles.push_back({Resized(game.Frame(view), size.Width, size.Height), Caption(view, number, game.State())});
    }
    return MakeSheet(tiles, ColumnsFor(arguments));
}
}
