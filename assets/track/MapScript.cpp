// SPDX-License-Identifier: Zlib
#include "assets/track/MapScript.h"

#include "assets/common/Output.h"
#include "assets/track/Models.h"
#include "assets/track/Race.h"
#include "base/Numbers.h"

#include <map>

namespace assets::track
{
namespace
{
std::string Zones(const std::vector<Zone>& zones)
{
    std::string text;
    for (const Zone& zone : zones)
        text += NumberText(zone.X) + ",0," + NumberText(zone.Z) + "," + NumberText(zone.R) + "\n";
    return text;
}

std::string Place(double x, double z, double angle, bool visible)
{
    return NumberText(x) + ",0," + NumberText(z) + "," + NumberText(angle) + ",0," + (visible ? "1" : "0") + "\n";
}

// The first of a kind is loaded, the others copy it.
std::string Scenery(const Plan& plan)
{
    std::string text, last;
    for (const Standing& item : plan.Items)
    {
        if (item.Name != last)
            text += "LoadObject,\"<path>..\\..\\models\\world\\" + item.Name + ".3dm\",";
        else
            text += "DuplicateLastObj,";
        text += Place(item.X, item.Z, item.Angle, true);
        last = item.Name;
    }
    return text;
}

std::string GuardName(double radius)
{
    return "guard_" + std::to_string(base::RoundEven(radius * 10));
}

std::string Guards(const Plan& plan, const std::string& folder)
{
    std::map<std::string, std::vector<Guard>> byName;
    for (const Guard& guard : plan.Guards)
        byName[GuardName(guard.R)].push_back(guard);
    std::string text;
    for (const auto& [name, guards] : byName)
    {
        Model model;
        model.Mass = HeavyMass;
        model.Visible = false;
        model.Spheres.push_back(SphereAt(0, 0.5, 0, guards[0].R));
        WriteModel(model, folder + "/" + name + ".3dm");
        for (const Guard& guard : guards)
        {
            text += &guard == &guards[0] ? "LoadObject,\"<path>" + name + ".3dm\"," : "DuplicateLastObj,";
            text += Place(guard.X, guard.Z, guard.Angle, false);
        }
    }
    return text;
}

std::string Cars(const Plan& plan, const std::string& folder)
{
    std::string text;
    for (std::size_t i = 0; i < Drivers().size(); ++i)
    {
        const Driver& d = Drivers()[i];
        const std::string number = std::to_string(i + 1);
        WriteText(folder + "/p" + number + ".player", NumberText(d.Steering) + "," + NumberText(d.TopSpeed) + "," +
                                                          NumberText(d.ReverseSpeed) + "," +
                                                          NumberText(d.Acceleration) + "," + NumberText(d.Brake) + "," +
                                                          NumberText(d.Friction) + "," + (i == 0 ? "0" : "1") + "\n");
        const Standing place = GridPlace(plan.Road, GridSlots()[i]);
        text += "LoadPlayer,\"<path>p" + number + ".player\",\"<path>..\\..\\models\\car_" + number + "\\car.3dm\"," +
                Place(place.X, place.Z, place.Angle, true);
    }
    return text;
}
}

void WriteMap(const Plan& plan, const std::string& folder)
{
    std::string script = "LoadMapTexture,\"<path>ground.bmp\",4\n";
    const std::pair<const char*, std::vector<Zone>> lists[] = {
        {"Checkpoints", Checkpoints(plan.Road)},
        {"ACheckpoints", AlternativeCheckpoints(plan.Road)},
        {"Box", RepairBoxes(plan)},
        {"Grass", GrassZones(plan)},
        {"Water", WaterZones(plan)},
    };
    for (const auto& [name, zones] : lists)
    {
        std::string file = name;
        for (char& letter : file)
            letter = static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
        WriteText(folder + "/" + file + ".points", Zones(zones));
        script += std::string("Load") + name + ",\"<path>" + file + ".points\"\n";
    }
    script += Scenery(plan) + Guards(plan, folder) + Cars(plan, folder);
    WriteText(folder + "/map.loader", script);
}
}
