// "\set": every check and conversion comes before the first assignment, so that what fails changes nothing.
#include "console/Commands.h"
#include "console/Properties.h"
#include "render/SceneFields.h"
#include "world/Driving.h"

namespace console
{
namespace
{
std::int16_t PlayerIndexAt(const world::Race& race, const Words& words, std::size_t word)
{
    return PlayerIndex(race, words.NumberAt(word, NoIndex));
}

// The property that may be set.
const Property& Writable(const Property* property)
{
    if (property == nullptr || property->ReadOnly)
        Fail(BadProperty);
    return *property;
}

void SetPosition(render::Scene& scene, const world::Player& player, const Words& words)
{
    words.At(5, NoValue); // a missing number is told before one that is none
    const double numberX = words.NumberAt(4, NoValue), numberZ = words.NumberAt(5, NoValue);
    const float x = base::ToSingle(numberX), z = base::ToSingle(numberZ);
    render::Obj& object = scene.Objects.At(player.Obj);
    SetField(object, "X", x);
    SetField(object, "Z", z);
}

// The simulation reads the working values alone.
void RefreshWorking(world::Player& player)
{
    world::ApplyDamage(player);
    player.CurWRS = player.WRS;
    // Deliberate: CurDeceleration stays what it was, so a new Deceleration never reaches the driving.
}

void SetPlayer(Console& console, const Words& words)
{
    const std::int16_t index = PlayerIndexAt(console.Race, words, 2);
    world::Player& player = console.Race.Players[static_cast<std::size_t>(index)];
    const std::string_view name = words.At(3, NoProperty);
    if (name == "position")
        SetPosition(console.Scene, player, words);
    else
    {
        const Property& property = Writable(FindPlayerProperty(name));
        SetField(player, property.Field, words.NumberAt(4, NoValue));
    }
    RefreshWorking(player);
}

void SetTxtFilter(render::Screen& screen, const Words& words)
{
    // Deliberate: any whole number is taken; the renderer knows what to do with a filter that is none.
    const bool isGiven = words.Has(3);
    SetField(screen, "TxtFilter", isGiven ? words.NumberAt(3, NoValue) : base::ToInt16(screen.TxtFilter + 1.0) % 3);
}

void SetCamera(Console& console, const Words& words)
{
    render::Camera& camera = console.Camera;
    const std::string_view name = words.At(2, NoProperty);
    if (name == "txtfilter")
        return SetTxtFilter(console.Screen, words);
    const Property& property = Writable(FindCameraProperty(name));
    SetField(camera, property.Field, words.NumberAt(3, NoValue));
    if (name != "radius" && camera.Zoom < camera.MinZoom)
        camera.Zoom = camera.MinZoom;
}

void SetGame(Console& console, const Words& words)
{
    if (words.At(2, NoProperty) != "time")
        Fail(BadProperty);
    console.Around.SetElapsed(base::ToInt32(words.NumberAt(3, NoValue)));
}
}

void Set(Console& console, const Words& words)
{
    const std::string_view object = words.At(1, NoObject);
    if (object == "userplayer")
        console.Race.UserPlayer = PlayerIndexAt(console.Race, words, 2);
    else if (object == "player")
        SetPlayer(console, words);
    else if (object == "camera")
        SetCamera(console, words);
    else if (object == "game")
        SetGame(console, words);
    else
        Fail(BadObject);
    Close(console);
}
}
