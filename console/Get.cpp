// SPDX-License-Identifier: Zlib
// "\get": one line of answer.
#include "console/Commands.h"
#include "console/Properties.h"
#include "console/ShowNumber.h"

namespace console
{
namespace
{
const Property& Known(const Property* property)
{
    if (property == nullptr)
        Fail(BadProperty);
    return *property;
}

std::string Line(std::string owner, const Property& property, const std::string& value)
{
    return owner.append(property.Name) + " = " + value;
}

std::string GetPosition(const Console& console, std::int16_t player)
{
    const std::int16_t index = console.Race.Players[static_cast<std::size_t>(player)].Obj;
    const render::Obj& object = console.Scene.Objects.At(index);
    return "Position = (" + ShowCoordinate(object.X) + "; " + ShowCoordinate(object.Z) + ")";
}

std::string GetPlayer(const Console& console, const Words& words)
{
    const double number = words.NumberAt(2, NoIndex);
    const std::string_view name = words.At(3, NoProperty);
    const Property* property = name == "position" ? nullptr : &Known(FindPlayerProperty(name));
    // Only now: an unknown property is answered before an index that no player has.
    const std::int16_t player = PlayerIndex(console.Race, number);
    const std::string owner = "Player(" + ShowNumber(player) + ").";
    if (property == nullptr)
        return owner + GetPosition(console, player);
    return Line(owner, *property, ShowProperty(console, *property, player));
}

std::string GetCamera(const Console& console, const Words& words)
{
    const Property& property = Known(FindCameraProperty(words.At(2, NoProperty)));
    return Line("Camera.", property, ShowProperty(console, property));
}

std::string GetGame(const Console& console, const Words& words)
{
    const Property& property = Known(FindGameProperty(words.At(2, NoProperty)));
    return Line("Game.", property, ShowProperty(console, property));
}
}

Reply Get(Console& console, const Words& words)
{
    const std::string_view object = words.At(1, NoObject);
    if (object == "player")
        return GetPlayer(console, words);
    if (object == "camera")
        return GetCamera(console, words);
    if (object == "game")
        return GetGame(console, words);
    Fail(BadObject); // Deliberate: who the user drives can be set and not read
}
}
