// "\get": one line of answer.
#include "console/Commands.h"
#include "console/Properties.h"

namespace console
{
namespace
{
std::string GetPlayer(const Console& console, const Words& words)
{
    const double number = words.NumberAt(2, NoIndex);
    const std::string_view name = words.At(3, NoProperty);
    const bool isPosition = name == "position";
    const Property* property = FindPlayerProperty(name);
    if (property == nullptr && !isPosition)
        Fail(BadProperty);

    // Only now: an unknown property is told before an index that no player has.
    const std::int16_t index = PlayerIndex(console.Race, number);
    const world::Player& player = console.Race.Players[static_cast<std::size_t>(index)];
    const std::string owner = "Player(" + ShowNumber(index) + ").";
    if (!isPosition)
        return owner + std::string(property->Name) + " = " + ShowField(player, property->Field);
    const render::Obj& object = console.Scene.Objects.At(player.Obj);
    return owner + "Position = (" + ShowCoordinate(object.X) + "; " + ShowCoordinate(object.Z) + ")";
}

std::string GetCamera(const Console& console, const Words& words)
{
    const std::string_view name = words.At(2, NoProperty);
    if (name == "txtfilter")
        return "Camera.TxtFilter = " + ShowField(console.Screen, "TxtFilter");
    const Property* property = FindCameraProperty(name);
    if (property == nullptr)
        Fail(BadProperty);
    return "Camera." + std::string(property->Name) + " = " + ShowField(console.Camera, property->Field);
}

std::string GetGame(const Console& console, const Words& words)
{
    if (words.At(2, NoProperty) != "time")
        Fail(BadProperty);
    return "Game.Time = " + ShowField(console.Race, "GameTime");
}
}

void Get(Console& console, const Words& words)
{
    const std::string_view object = words.At(1, NoObject);
    if (object == "player")
        Answer(console, GetPlayer(console, words));
    else if (object == "camera")
        Answer(console, GetCamera(console, words));
    else if (object == "game")
        Answer(console, GetGame(console, words));
    else
        Fail(BadObject); // Deliberate: who the user drives can be set and not read
}
}
