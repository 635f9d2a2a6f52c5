// The commands of a map script.
#include "render/GroundTexture.h"
#include "render/Primitives.h"
#include "world/FieldReader.h"
#include "world/Loaders.h"
#include "world/ModelFile.h"

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

struct Placement
{
    float X, Y, Z;
    float AngleA, AngleB;
    std::uint8_t Visible;
};

Placement ReadPlacement(FieldReader& in)
{
    return Placement{in.Single(), in.Single(), in.Single(), in.Single(), in.Single(), in.Byte()};
}

void Place(render::Obj& object, const Placement& at)
{
    object.X = at.X;
    object.Y = at.Y;
    object.Z = at.Z;
    object.AngleA = at.AngleA;
    object.AngleB = at.AngleB;
    object.Visible = at.Visible;
}

// Runs a model file. Its object, or null where the file failed before it had one; RuntimeError 9 where it simply has
// none.
render::Obj* LoadLast(MapReader& reader, const std::string& model)
{
    const ModelFile loaded = RunModelFile(reader.Scene, reader.Messages, reader.Files, model);
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
    reader.LastObject = LoadObject(reader.Scene, reader.Messages, reader.Files, model);
}

void LoadPlacedObject(MapReader& reader)
{
    const std::string model = reader.In.Path(reader.Folder);
    const Placement at = ReadPlacement(reader.In);
    if (render::Obj* object = LoadLast(reader, model))
        Place(*object, at);
}

void LoadPlayer(MapReader& reader)
{
    const std::string player = reader.In.Path(reader.Folder);
    const std::string model = reader.In.Path(reader.Folder);
    const Placement at = ReadPlacement(reader.In);
    render::Obj* object = LoadLast(reader, model);
    if (object == nullptr)
        return;
    MakePlayer(reader.Messages, reader.Files, player, reader.LastObject, reader.Race);
    Place(*object, at);
}

void DuplicateLastObj(MapReader& reader)
{
    const Placement at = ReadPlacement(reader.In);
    render::DuplicateObj(reader.Scene, reader.LastObject, at.X, at.Y, at.Z, at.AngleA, at.AngleB, at.Visible);
}

std::int16_t LoadList(MapReader& reader, std::vector<Target>& list)
{
    return LoadTargets(reader.Messages, reader.Files, reader.In.Path(reader.Folder), list);
}

void LoadCheckpoints(MapReader& reader)
{
    reader.Race.Map.NumCheckpoints = LoadList(reader, reader.Race.Map.Checkpoints);
}

// Deliberate: no count is kept; the race reads this list by checkpoint number.
void LoadACheckpoints(MapReader& reader)
{
    LoadList(reader, reader.Race.Map.ACheckpoints);
}

void LoadBox(MapReader& reader)
{
    reader.Race.Map.NumBoxes = LoadList(reader, reader.Race.Map.Boxes);
}

void LoadGrass(MapReader& reader)
{
    reader.Race.Map.NumGrass = LoadList(reader, reader.Race.Map.Grass);
}

void LoadWater(MapReader& reader)
{
    reader.Race.Map.NumWater = LoadList(reader, reader.Race.Map.Water);
}

struct Command
{
    std::string_view Keyword;
    void (*Run)(MapReader&);
};

constexpr std::array Commands = {
    Command{"LoadMapTexture", LoadMapTexture},
    Command{"Load3DM", Load3DM},
    Command{"LoadObject", LoadPlacedObject},
    Command{"LoadPlayer", LoadPlayer},
    Command{"LoadCheckpoints", LoadCheckpoints},
    Command{"LoadACheckpoints", LoadACheckpoints},
    Command{"LoadBox", LoadBox},
    Command{"LoadGrass", LoadGrass},
    Command{"LoadWater", LoadWater},
    Command{"DuplicateLastObj", DuplicateLastObj},
};
}

void LoadMap(render::Scene& scene, Race& race, base::MessageSink& messages, const base::Files& files,
             const std::string& path, bool blurredGround)
{
    base::Trapped(
        messages, "LoadMap",
        [&]
        {
            MapReader reader{
                scene,        race, messages, files, FieldReader(files, path), std::string(base::FolderOf(path)),
                blurredGround};
            while (!reader.In.AtEnd())
                FindCommand(Commands, reader.In.Text()).Run(reader);
        });
}
}
