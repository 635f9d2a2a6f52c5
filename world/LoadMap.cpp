// SPDX-License-Identifier: Zlib
#include "world/LoadMap.h"

#include "render/GroundTexture.h"
#include "render/Primitives.h"
#include "world/Commands.h"
#include "world/FieldReader.h"
#include "world/LoadObject.h"
#include "world/PointsAndPlayers.h"

#include <array>

namespace world
{
namespace
{
// One run of a map script.
struct MapReader
{
    render::Scene& Scene;
    world::Race& Race;
    base::MessageSink& Messages;
    const base::Files& Files;
    FieldReader In;
    std::string Folder;
    bool BlurredGround;
    std::int16_t LastObject = -1; // what the latest model command returned
};

// Where a command puts its object, and whether it shows.
struct Site
{
    render::Placement At;
    std::uint8_t Visible;
};

Site ReadSite(FieldReader& in)
{
    return {{in.Single(), in.Single(), in.Single(), in.Single(), in.Single()}, in.Byte()};
}

void Place(render::Obj& object, const Site& site)
{
    render::PlaceObj(object, site.At);
    object.Visible = site.Visible;
}

// Runs a model file. Its object, or null where the file failed before it had one; RuntimeError 9 where it simply has
// none.
render::Obj* LoadLast(MapReader& reader, const std::string& model)
{
    const LoadedModel loaded = LoadObject(reader.Scene, reader.Messages, reader.Files, model);
    reader.LastObject = loaded.Current;
    if (loaded.Failed && loaded.Current < 0)
        return nullptr;
    return &reader.Scene.Objects.At(loaded.Current);
}

void LoadMapTexture(MapReader& reader)
{
    const std::string picture = reader.In.Path(reader.Folder);
    const float scale = reader.In.Single();
    render::LoadGround(reader.Messages, reader.Files, picture, scale, reader.BlurredGround, reader.Scene.Ground);
}

void Load3DM(MapReader& reader)
{
    const std::string model = reader.In.Path(reader.Folder);
    reader.LastObject = LoadObject(reader.Scene, reader.Messages, reader.Files, model).Current;
}

void LoadPlacedObject(MapReader& reader)
{
    const std::string model = reader.In.Path(reader.Folder);
    const Site site = ReadSite(reader.In);
    if (render::Obj* object = LoadLast(reader, model))
        Place(*object, site);
}

void LoadPlayer(MapReader& reader)
{
    const std::string player = reader.In.Path(reader.Folder);
    const std::string model = reader.In.Path(reader.Folder);
    const Site site = ReadSite(reader.In);
    render::Obj* object = LoadLast(reader, model);
    if (object == nullptr)
        return;
    MakePlayer(reader.Messages, reader.Files, player, reader.LastObject, reader.Race);
    Place(*object, site);
}

void DuplicateLastObj(MapReader& reader)
{
    const Site site = ReadSite(reader.In);
    render::DuplicateObj(reader.Scene, reader.LastObject, site.At, site.Visible);
}

// The command for one of the map's lists.
template <TargetList Map::*List> void LoadList(MapReader& reader)
{
    LoadTargets(reader.Messages, reader.Files, reader.In.Path(reader.Folder), reader.Race.Map.*List);
}

struct MapCommand
{
    std::string_view Keyword;
    void (*Run)(MapReader&);
};

constexpr std::array MapCommands = {
    MapCommand{"LoadMapTexture", LoadMapTexture},
    MapCommand{"Load3DM", Load3DM},
    MapCommand{"LoadObject", LoadPlacedObject},
    MapCommand{"LoadPlayer", LoadPlayer},
    MapCommand{"LoadCheckpoints", LoadList<&Map::Checkpoints>},
    MapCommand{"LoadACheckpoints", LoadList<&Map::ACheckpoints>},
    MapCommand{"LoadBox", LoadList<&Map::Boxes>},
    MapCommand{"LoadGrass", LoadList<&Map::Grass>},
    MapCommand{"LoadWater", LoadList<&Map::Water>},
    MapCommand{"DuplicateLastObj", DuplicateLastObj},
};

void RunCommands(MapReader& reader)
{
    while (!reader.In.AtEnd())
        FindCommand(MapCommands, reader.In.Text()).Run(reader);
}
}

void LoadMap(render::Scene& scene, Race& race, base::MessageSink& messages, const base::Files& files,
             const std::string& path, bool blurredGround)
{
    const auto run = [&]
    {
        MapReader reader{
            scene, race, messages, files, FieldReader(files, path), std::string(base::FolderOf(path)), blurredGround};
        RunCommands(reader);
    };
    base::Trapped(messages, "LoadMap", run);
}
}
