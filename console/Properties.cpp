#include "console/Properties.h"

#include "base/Text.h"
#include "render/Camera.h"
#include "world/Race.h"

#include <algorithm>
#include <tuple>

namespace console
{
namespace
{
constexpr bool ReadOnly = true;

constexpr Property PlayerProperties[] = {
    {"MaxSpeed", "MaxSpeed"}, {"MaxSpeedR", "MaxSpeedR"},       {"Acceleration", "Acceleration"},
    {"Brake", "Brake"},       {"Deceleration", "Deceleration"}, {"WRS", "WRS"},
    {"Damage", "Damage"},     {"Control", "Control"},           {"Speed", "Speed", ReadOnly},
};

constexpr Property CameraProperties[] = {
    {"MinZoom", "MinZoom"},
    {"Zoom", "Zoom"},
    {"Radius", "Radius"},
    {"Target", "ViewPlayer", ReadOnly}, // changed with the camera keys only
};

// Whether every property is a field of the record.
template <base::Described Record, std::size_t N> constexpr bool AreFields(const Property (&properties)[N])
{
    const auto isField = [](std::string_view name)
    {
        return std::apply([&](const auto&... field) { return ((field.Name == name) || ...); },
                          base::FieldsOf<Record>::Table);
    };
    return std::all_of(properties, properties + N, [&](const Property& property) { return isField(property.Field); });
}
static_assert(AreFields<world::Player>(PlayerProperties));
static_assert(AreFields<render::Camera>(CameraProperties));

template <std::size_t N> const Property* Find(const Property (&properties)[N], std::string_view word)
{
    const Property* found = std::find_if(
        properties, properties + N, [&](const Property& property) { return base::LowerAscii(property.Name) == word; });
    return found == properties + N ? nullptr : found;
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
}
