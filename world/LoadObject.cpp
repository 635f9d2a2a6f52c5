// The commands of a 3DM model file.
#include "base/RuntimeError.h"
#include "render/Primitives.h"
#include "world/FieldReader.h"
#include "world/Loaders.h"
#include "world/ModelFile.h"

#include <array>

namespace world
{
namespace
{
using base::RuntimeError;

constexpr std::string_view Header = "3DM - VER 1.0.0";

// One run of a model file.
struct ModelReader
{
    render::Scene& Scene;
    base::MessageSink& Messages;
    const base::Files& Files;
    FieldReader In;
    std::string Folder;
    ModelFile& Result;
    std::vector<std::int16_t>& Created; // the objects
};

// Lists in braces are read from left to right; the arguments of a call are not.
struct Vector
{
    float X, Y, Z;
};

Vector ReadVector(FieldReader& in)
{
    return Vector{in.Single(), in.Single(), in.Single()};
}

void MakeTexture(ModelReader& reader)
{
    render::LoadTexture(reader.Scene, reader.Messages, reader.Files, reader.In.Path(reader.Folder));
}

void MakeObj(ModelReader& reader)
{
    FieldReader& in = reader.In;
    const Vector at = ReadVector(in);
    const float angleA = in.Single();
    const float angleB = in.Single();
    const std::int16_t numMesh = in.Integer();
    const std::int16_t numSfere = in.Integer();
    const std::uint8_t visible = in.Byte();
    const float mass = in.Single();
    reader.Result.Current =
        render::MakeObj(reader.Scene, at.X, at.Y, at.Z, angleA, angleB, numMesh, numSfere, visible, mass);
    reader.Created.push_back(reader.Result.Current);
}

void SetObjR(ModelReader& reader)
{
    render::SetObjR(reader.Scene, reader.Result.Current, reader.In.Single());
}

void EditObjSfere(ModelReader& reader)
{
    const std::int16_t sphere = reader.In.Integer();
    const Vector centre = ReadVector(reader.In);
    const float radius = reader.In.Single();
    render::EditObjSfere(reader.Scene, reader.Result.Current, sphere, centre.X, centre.Y, centre.Z, radius);
}

void AddSfereLink(ModelReader& reader)
{
    const std::int16_t sphere = reader.In.Integer();
    const std::int16_t mesh = reader.In.Integer();
    const std::int16_t i = reader.In.Integer();
    const std::int16_t j = reader.In.Integer();
    render::AddSfereLink(reader.Scene, reader.Result.Current, sphere, mesh, i, j);
}

void EditObjMesh(ModelReader& reader)
{
    const std::int16_t mesh = reader.In.Integer();
    const std::int16_t rows = reader.In.Integer();
    const std::int16_t cols = reader.In.Integer();
    const std::int32_t shade = reader.In.Long();
    std::int16_t texture = 0;
    if (shade < 0)
        texture = render::FindTexture(reader.Scene, reader.Messages, reader.Files, reader.In.Path(reader.Folder), true);
    render::EditObjMesh(reader.Scene, reader.Result.Current, mesh, rows, cols, shade, texture);
}

void EditObjMeshPt(ModelReader& reader)
{
    const std::int16_t mesh = reader.In.Integer();
    const std::int16_t i = reader.In.Integer();
    const std::int16_t j = reader.In.Integer();
    const Vector at = ReadVector(reader.In);
    const std::int32_t u = reader.In.Long();
    const std::int32_t v = reader.In.Long();
    render::EditObjMeshPt(reader.Scene, reader.Result.Current, mesh, i, j, at.X, at.Y, at.Z, u, v);
}

void MakePoly(ModelReader& reader)
{
    const std::int32_t points = reader.In.Long();
    const std::int32_t colour = reader.In.Long();
    const std::uint8_t visible = reader.In.Byte();
    reader.Result.Current = render::MakePoly(reader.Scene, points, colour, visible);
}

void EditPolyPt(ModelReader& reader)
{
    const std::int16_t point = reader.In.Integer();
    const Vector at = ReadVector(reader.In);
    render::EditPolyPt(reader.Scene, reader.Result.Current, point, at.X, at.Y, at.Z);
}

struct Command
{
    std::string_view Keyword;
    void (*Run)(ModelReader&);
};

constexpr std::array Commands = {
    Command{"MakeTexture", MakeTexture},     Command{"MakeObj", MakeObj},           Command{"SetObjR", SetObjR},
    Command{"EditObjSfere", EditObjSfere},   Command{"AddSfereLink", AddSfereLink}, Command{"EditObjMesh", EditObjMesh},
    Command{"EditObjMeshPt", EditObjMeshPt}, Command{"MakePoly", MakePoly},         Command{"EditPolyPt", EditPolyPt},
};

void RunCommands(ModelReader& reader)
{
    if (reader.In.Text() != Header)
        throw RuntimeError(base::ErrorFormat, "Formato file non supportato");
    while (!reader.In.AtEnd())
        FindCommand(Commands, reader.In.Text()).Run(reader);
}

void KeepUndamaged(render::Scene& scene, const std::vector<std::int16_t>& objects)
{
    for (const std::int16_t object : objects)
        render::KeepUndamaged(scene, object);
}

struct NoMessages final : base::MessageSink
{
    void ShowMessage(base::Icon, const std::string&, const std::string&) override {}
};
}

ModelFile RunModelFile(render::Scene& scene, base::MessageSink& messages, const base::Files& files,
                       const std::string& path)
{
    ModelFile result;
    std::vector<std::int16_t> created;
    result.Failed = true;
    base::Trapped(messages, "LoadObject",
                  [&]
                  {
                      ModelReader reader{
                          scene,  messages, files, FieldReader(files, path), std::string(base::FolderOf(path)),
                          result, created};
                      RunCommands(reader);
                      KeepUndamaged(scene, created);
                      result.Failed = false;
                  });
    if (result.Failed)
    {
        // What stayed can be dented as well; the error has been shown.
        NoMessages none;
        base::Trapped(none, "LoadObject", [&] { KeepUndamaged(scene, created); });
    }
    return result;
}

std::int16_t LoadObject(render::Scene& scene, base::MessageSink& messages, const base::Files& files,
                        const std::string& path)
{
    return RunModelFile(scene, messages, files, path).Current;
}
}
