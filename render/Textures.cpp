// SPDX-License-Identifier: Zlib
#include "render/Textures.h"

#include "base/RuntimeError.h"

#include <algorithm>

namespace render
{
namespace
{
std::uint64_t BytesOf(const Texture& texture)
{
    return texture.Pic.Pixels.Bytes.size();
}
}

std::int16_t LoadTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path)
{
    const std::vector<Texture>& items = scene.Textures.Items;
    std::size_t slot = items.size(); // Deliberate: unlike the other lists, the last free slot
    for (std::size_t i = 0; i < items.size(); ++i)
    {
        if (items[i].Free != 0)
            slot = i;
        else if (items[i].Path == path)
            return static_cast<std::int16_t>(i);
    }
    const std::int16_t index = scene.Textures.AddAt(slot, Texture{.Path = path});
    Texture& texture = scene.Textures.At(index);
    if (!LoadPicArray2D(messages, files, path, texture.Pic.Info, texture.Pic.Pixels))
    {
        texture.Pic = {};
        return index;
    }
    const std::uint64_t bytes = BytesOf(texture);
    if (scene.Bytes + bytes > MostBytes)
    {
        texture.Pic = {};
        throw base::RuntimeError(base::ErrorMemory);
    }
    scene.Bytes += bytes;
    return index;
}

std::int16_t FindTexture(Scene& scene, base::MessageSink& messages, const base::Files& files, const std::string& path,
                         bool load)
{
    const std::vector<Texture>& items = scene.Textures.Items;
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&](const Texture& texture) { return texture.Free == 0 && texture.Path == path; });
    if (found != items.end())
        return static_cast<std::int16_t>(found - items.begin());
    return load ? LoadTexture(scene, messages, files, path) : std::int16_t{-1};
}

void FreeTexture(Scene& scene, std::int32_t texture)
{
    const Texture& freed = scene.Textures.At(texture);
    if (freed.Free != 0)
        return;
    scene.Bytes -= BytesOf(freed);
    scene.Textures.Release(texture);
}
}
