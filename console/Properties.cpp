// SPDX-License-Identifier: Zlib
#include "console/Properties.h"

#include "base/Fields.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "console/ShowNumber.h"
#include "render/Camera.h"
#include "world/Race.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <type_traits>

namespace console
{
namespace
{
constexpr bool ReadOnly = true;
constexpr std::int16_t Filters = 3; // of the ground's texture

constexpr Property PlayerProperties[] = {
    {"MaxSpeed", Record::Player}, {"MaxSpeedR", Record::Player},    {"Acceleration", Record::Player},
    {"Brake", Record::Player},    {"Deceleration", Record::Player}, {"WRS", Record::Player},
    {"Damage", Record::Player},   {"Control", Record::Player},      {"Speed", Record::Player, ReadOnly},
};

constexpr Property CameraProperties[] = {
    {"MinZoom", Record::Camera},
    {"Zoom", Record::Camera},
    {"Radius", Record::Camera},
    {"Target", Record::Camera, ReadOnly, "ViewPlayer"}, // changed with the camera keys only
    // Deliberate: any whole number is taken; the renderer knows what to do with a filter that is none.
    {"TxtFilter", Record::Screen, !ReadOnly, {}, Filters},
};

constexpr Property GameProperties[] = {
    {"Time", Record::Race, !ReadOnly, "GameTime"}, // set by way of the timer (Set.cpp)
};

template <base::Described Owner> constexpr bool IsFieldOf(std::string_view name)
{
    return std::apply([name](const auto&... field) { return ((field.Name == name) || ...); },
                      base::FieldsOf<Owner>::Table);
}

// Whether the property is a field of its record.
constexpr bool IsField(const Property& property)
{
    switch (property.In)
    {
    case Record::Player:
        return IsFieldOf<world::Player>(property.Field());
    case Record::Camera:
        return IsFieldOf<render::Camera>(property.Field());
    case Record::Screen:
        return IsFieldOf<render::Screen>(property.Field());
    case Record::Race:
        return IsFieldOf<world::Race>(property.Field());
    }
    return false;
}
static_assert(std::all_of(std::begin(PlayerProperties), std::end(PlayerProperties), IsField));
static_assert(std::all_of(std::begin(CameraProperties), std::end(CameraProperties), IsField));
static_assert(std::all_of(std::begin(GameProperties), std::end(GameProperties), IsField));

template <std::size_t N> const Property* Find(const Property (&properties)[N], std::string_view word)
{
    const Property* found = std::find_if(
        properties, properties + N, [&](const Property& property) { return base::LowerAscii(property.Name) == word; });
    return found == properties + N ? nullptr : found;
}

// Calls visit(field, value) for the field that the property is.
template <class Visit>
void VisitProperty(const Console& console, const Property& property, std::int16_t player, Visit&& visit)
{
    switch (property.In)
    {
    case Record::Player:
        base::VisitField(console.Race.Players[static_cast<std::size_t>(player)], property.Field(), visit);
        return;
    case Record::Camera:
        base::VisitField(console.Camera, property.Field(), visit);
        return;
    case Record::Screen:
        base::VisitField(console.Screen, property.Field(), visit);
        return;
    case Record::Race:
        base::VisitField(console.Race, property.Field(), visit);
        return;
    }
}

void Convert(double value, float& field)
{
    field = base::ToSingle(value);
}
void Convert(double value, std::int16_t& field)
{
    field = base::ToInt16(value);
}
void Convert(double value, std::uint8_t& field)
{
    field = base::ToByte(value);
}
}

const Property* FindPlayerProperty(std::string_view word)
{
    return Find(PlayerProperties, word);
}

const Property* FindCameraProperty(std::string_view word)
{
    return Find(CameraProperties, word);
}

const Property* FindGameProperty(std::string_view word)
{
    return Find(GameProperties, word);
}

std::string ShowProperty(const Console& console, const Property& property, std::int16_t player)
{
    std::string shown;
    VisitProperty(console, property, player,
                  [&](const auto&, const auto& value)
                  {
                      if constexpr (requires { ShowNumber(value); })
                          shown = ShowNumber(value);
                  });
    return shown;
}

void SetProperty(const Console& console, const Property& property, double value, std::int16_t player)
{
    VisitProperty(console, property, player,
                  [&](const auto& field, auto& member)
                  {
                      if constexpr (std::remove_cvref_t<decltype(field)>::Writable &&
                                    requires { Convert(value, member); })
                          Convert(value, member);
                  });
}

double NextChoice(const Console& console, const Property& property)
{
    double next = 0;
    VisitProperty(console, property, -1,
                  [&](const auto&, const auto& value)
                  {
                      if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(value)>>)
                          next = base::ToInt16(value + 1.0) % property.Choices;
                  });
    return next;
}
}
