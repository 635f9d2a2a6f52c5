// world/ModelFile.h: what the readers of model files and map scripts share.
#pragma once
#include "base/Files.h"
#include "base/RuntimeError.h"
#include "base/Trapped.h"
#include "render/Scene.h"

#include <cstdint>
#include <string>

namespace world
{
// How the run of a model file ended.
struct ModelFile
{
    std::int16_t Current = -1; // the last object or polyline created
    bool Failed = false;       // an error was reported
};

// LoadObject, telling also whether it failed.
ModelFile RunModelFile(render::Scene& scene, base::MessageSink& messages, const base::Files& files,
                       const std::string& path);

// The entry of a table of commands; RuntimeError 514 for a keyword that is not in it.
template <class Table> const auto& FindCommand(const Table& commands, const std::string& keyword)
{
    for (const auto& command : commands)
        if (command.Keyword == keyword)
            return command;
    // Deliberate: the double negative.
    throw base::RuntimeError(base::ErrorFormat, "'" + keyword + "' non è un'istruzione non valida");
}
}
