// SPDX-License-Identifier: Zlib
// "\set": every check and conversion comes before the first assignment, so that what fails changes nothing.
#include "base/Numbers.h"
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
    words.At(5, NoValue); // a missing number is answered before one that is none
    const double numberX = words.NumberAt(4, NoValue), numberZ = words.NumberAt(5, NoValue);
    const float x = base::ToSingle(numberX), z = base::ToSingle(numberZ);
    render::Obj& object = scene.Objects.At(player.Obj);
    object.X = x;
    object.Z = z;
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
        SetProperty(console, property, words.NumberAt(4, NoValue), index);
    }
    RefreshWorking(player);
}

void SetCamera(Console& console, const Words& words)
{
    const std::string_view name = words.At(2, NoProperty);
    const Property& property = Writable(FindCameraProperty(name));
    const bool isNext = property.Choices > 0 && !words.Has(3);
    SetProperty(console, property, isNext ? NextChoice(console, property) : words.NumberAt(3, NoValue));
    render::Camera& camera = console.Camera;
    if ((name == "zoom" || name == "minzoom") && camera.Zoom < camera.MinZoom)
        camera.Zoom = camera.MinZoom;
}

void SetGame(Console& console, const Words& words)
{
    Writable(FindGameProperty(words.At(2, NoProperty)));
    console.Around.SetElapsed(base::ToInt32(words.NumberAt(3, NoValue)));
}
}

Reply Set(Console& console, const Words& words)
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
    return {};
}
}
