// SPDX-License-Identifier: Zlib
// velkar-assets ROOT [PART ...]: rebuilds data/ and soundtracks/ below ROOT. Parts: track, cars, hud, sound; all of
// them when none is named.
#include "assets/cars/Cars.h"
#include "assets/hud/Hud.h"
#include "assets/sound/Sound.h"
#include "assets/track/Track.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <span>
#include <string>
#include <vector>

namespace
{
struct Part
{
    std::string Name;
    void (*Build)(const std::string& root);
};

const std::vector<Part>& Parts()
{
    static const std::vector<Part> parts{{"track", assets::track::BuildTrack},
                                         {"cars", assets::cars::BuildCars},
                                         {"hud", assets::hud::BuildHud},
                                         {"sound", assets::sound::BuildSound}};
    return parts;
}
}

int main(int count, char** values)
{
    const std::vector<std::string> arguments(values + 1, values + std::max(count, 1));
    if (arguments.empty())
    {
        std::cerr << "usage: velkar-assets ROOT [PART ...]\n";
        return 2;
    }
    const std::span wanted(arguments.begin() + 1, arguments.end());
    for (const std::string& name : wanted)
        if (std::none_of(Parts().begin(), Parts().end(), [&](const Part& part) { return part.Name == name; }))
        {
            std::cerr << "velkar-assets: no part named " << name << "\n";
            return 2;
        }
    try
    {
        for (const Part& part : Parts())
            if (wanted.empty() || std::find(wanted.begin(), wanted.end(), part.Name) != wanted.end())
                part.Build(arguments[0]);
    }
    catch (const std::exception& error)
    {
        std::cerr << "velkar-assets: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
