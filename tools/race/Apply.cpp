// SPDX-License-Identifier: Zlib
#include "tools/race/Apply.h"

#include "tools/drive/Paths.h"
#include "world/Driving.h"

#include <cmath>

namespace race
{
namespace
{
constexpr std::string_view AnyIndex = "[*]", Cars = "cars[";

bool Leads(drive::Session& session, const std::string& path)
{
    return drive::Find(*session.Form(), session.Machine, path) == drive::Outcome::Done;
}

// Where cars[i]… leads: objects[n]…, with the object of player i. Any other path is itself.
std::string ResolveCar(drive::Session& session, const std::string& path)
{
    if (!path.starts_with(Cars))
        return path;
    const std::size_t close = path.find(']');
    const auto index = drive::ParseWhole<std::uint16_t>(
        std::string_view(path).substr(Cars.size(), close == std::string::npos ? 0 : close - Cars.size()));
    const world::Player* player = index ? world::FindPlayer(session.Form()->State().Race, *index) : nullptr;
    return player != nullptr ? std::string("objects[").append(std::to_string(player->Obj)).append(path, close) : path;
}

// Every path that one with [*] in it means, the first one first.
void Expand(drive::Session& session, const std::string& path, std::vector<std::string>& paths)
{
    const std::size_t any = path.find(AnyIndex);
    if (any == std::string::npos)
    {
        paths.push_back(ResolveCar(session, path));
        return;
    }
    const std::string before = path.substr(0, any), behind = path.substr(any + AnyIndex.size());
    for (std::size_t i = 0;; ++i)
    {
        const std::string element = before + "[" + std::to_string(i) + "]";
        if (!Leads(session, ResolveCar(session, element)))
            return;
        Expand(session, element + behind, paths);
    }
}

// What is to be written: the value given, or the present one changed.
std::string NewValue(drive::Session& session, const Setting& setting, const std::string& path)
{
    if (setting.How == Setting::Change::Put)
        return setting.Value;
    std::string present;
    drive::RequireDone(drive::Peek(*session.Form(), session.Machine, path, present));
    const std::optional<double> number = drive::ParseDouble(present);
    drive::Require(number.has_value(), "only one finite number can be changed by " + setting.Written);
    const double changed =
        setting.How == Setting::Change::Times ? *number * setting.Operand : *number + setting.Operand;
    std::string text;
    drive::AppendNumber(text, static_cast<float>(changed));
    return text;
}

// The effective value follows the base.
void RefreshPlayer(drive::Session& session, const std::vector<drive::Step>& steps)
{
    if (steps.size() != 3 || steps[0].Name != "players")
        return;
    world::Player* player = world::FindPlayer(session.Form()->State().Race, static_cast<std::int32_t>(steps[1].Index));
    const std::string_view field = steps[2].Name;
    if (field == "WRS")
        player->CurWRS = player->WRS;
    else if (field == "Deceleration")
        player->CurDeceleration = player->Deceleration;
    else if (field == "MaxSpeed" || field == "MaxSpeedR" || field == "Acceleration" || field == "Brake" ||
             field == "Damage")
        world::ApplyDamage(*player);
}

void Change(drive::Session& session, const Setting& setting)
{
    std::vector<std::string> paths;
    Expand(session, setting.Path, paths);
    // What some elements of a list do not have is left out.
    if (setting.Path.find(AnyIndex) != std::string::npos)
        std::erase_if(paths, [&](const std::string& path) { return !Leads(session, path); });
    drive::Require(!paths.empty(), "there is no such path");
    for (const std::string& path : paths)
    {
        drive::RequireDone(drive::Poke(*session.Form(), session.Machine, path, NewValue(session, setting, path)));
        RefreshPlayer(session, *drive::ParsePath(path));
    }
}
}

void Apply(drive::Session& session, const Setting& setting)
{
    try
    {
        Change(session, setting);
    }
    catch (const drive::Refusal& refusal)
    {
        throw drive::Refusal{setting.Text() + ": " + refusal.Why};
    }
}
}
