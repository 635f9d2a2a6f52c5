// SPDX-License-Identifier: Zlib
#include "world/LoadObject.h"

#include "base/RuntimeError.h"
#include "render/Primitives.h"
#include "render/Textures.h"
#include "world/Commands.h"
#include "world/FieldReader.h"

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
    LoadedModel& Result;
    std::vector<std::int16_t>& Created; // the objects
};

// Lists in braces are read from left to right; the arguments of a call are not.
render::Point3 ReadPoint(FieldReader& in)
{
    return {in.Single(), in.Single(), in.Single()};
}

void MakeTexture(ModelReader& reader)
{
    render::LoadTexture(reader.Scene, reader.Messages, reader.Files, reader.In.Path(reader.Folder));
}

void MakeObj(ModelReader& reader)
{
    FieldReader& in = reader.In;
    const render::Placement at{in.Single(), in.Single(), in.Single(), in.Single(), in.Single()};
    const std::int16_t numMesh = in.Integer();
    const std::int16_t numSfere = in.Integer();
    const std::uint8_t visible = in.Byte();
    const float mass = in.Single();
    reader.Result.Current = render::MakeObj(reader.Scene, at, numMesh, numSfere, visible, mass);
    reader.Created.push_back(reader.Result.Current);
}

void SetObjR(ModelReader& reader)
{
    render::SetObjR(reader.Scene, reader.Result.Current, reader.In.Single());
}

void EditObjSfere(ModelReader& reader)
{
    const std::int16_t sphere = reader.In.Integer();
    const render::Point3 centre = ReadPoint(reader.In);
    const float radius = reader.In.Single();
    render::EditObjSfere(reader.Scene, reader.Result.Current, sphere, centre, radius);
}

void AddSfereLink(ModelReader& reader)
{
    FieldReader& in = reader.In;
    const std::int16_t sphere = in.Integer();
    const render::SfereLink link{in.Integer(), in.Integer(), in.Integer()};
    render::AddSfereLink(reader.Scene, reader.Result.Current, sphere, link);
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
    render::EditObjMesh(reader.Scene, reader.Result.Current, mesh, {rows, cols}, shade, texture);
}

void EditObjMeshPt(ModelReader& reader)
{
    FieldReader& in = reader.In;
    const std::int16_t mesh = in.Integer();
    const std::int16_t i = in.Integer();
    const std::int16_t j = in.Integer();
    const render::MeshPt point{in.Single(), in.Single(), in.Single(), in.Long(), in.Long()};
    render::EditObjMeshPt(reader.Scene, reader.Result.Current, mesh, i, j, point);
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
    const render::PolyPt at{reader.In.Single(), reader.In.Single(), reader.In.Single()};
    render::EditPolyPt(reader.Scene, reader.Result.Current, point, at);
}

struct ModelCommand
{
    std::string_view Keyword;
    void (*Run)(ModelReader&);
};

constexpr std::array ModelCommands = {
    ModelCommand{"MakeTexture", MakeTexture},
    ModelCommand{"MakeObj", MakeObj},
    ModelCommand{"SetObjR", SetObjR},
    ModelCommand{"EditObjSfere", EditObjSfere},
    ModelCommand{"AddSfereLink", AddSfereLink},
    ModelCommand{"EditObjMesh", EditObjMesh},
    ModelCommand{"EditObjMeshPt", EditObjMeshPt},
    ModelCommand{"MakePoly", MakePoly},
    ModelCommand{"EditPolyPt", EditPolyPt},
};

void RunCommands(ModelReader& reader)
{
    if (reader.In.Text() != Header)
        throw RuntimeError(base::ErrorFormat, "Formato file non supportato");
    while (!reader.In.AtEnd())
        FindCommand(ModelCommands, reader.In.Text()).Run(reader);
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

LoadedModel LoadObject(render::Scene& scene, base::MessageSink& messages, const base::Files& files,
                       const std::string& path)
{
    LoadedModel result{.Failed = true};
    std::vector<std::int16_t> created;
    const auto run = [&]
    {
        ModelReader reader{scene,  messages, files, FieldReader(files, path), std::string(base::FolderOf(path)),
                           result, created};
        RunCommands(reader);
        KeepUndamaged(scene, created);
        result.Failed = false;
    };
    base::Trapped(messages, "LoadObject", run);
    if (result.Failed)
    {
        // What stayed can be dented as well; the error has been shown.
        NoMessages none;
        base::Trapped(none, "LoadObject", [&] { KeepUndamaged(scene, created); });
    }
    return result;
}
}
