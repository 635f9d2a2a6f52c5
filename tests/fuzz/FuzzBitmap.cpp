// SPDX-License-Identifier: Zlib
// Any bytes as a bitmap: as a picture, as the ground with its blurred copy, as a texture.
#include "fuzz/Folder.h"
#include "render/GroundTexture.h"
#include "render/Textures.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::Folder folder;
    folder.Write("t.bmp", fuzz::Text(data, size));
    fuzz::NoMessages messages;
    render::Scene scene;
    render::LoadTexture(scene, messages, folder.Files(), "t.bmp");
    render::LoadGround(messages, folder.Files(), "t.bmp", 1.0f, true, scene.Ground);
    return 0;
}
