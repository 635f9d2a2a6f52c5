// SPDX-License-Identifier: Zlib
// Any bytes as a 3DM model file. The objects that stay in the scene are drawn once, without ground and sky.
#include "fuzz/Folder.h"
#include "render/RenderFrame.h"
#include "world/LoadObject.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::Folder folder;
    folder.Write("m.3dm", fuzz::Text(data, size));
    folder.Write("t.bmp", fuzz::OneTexel());
    fuzz::NoMessages messages;
    render::Scene scene;
    world::LoadObject(scene, messages, folder.Files(), "m.3dm");

    static render::Screen screen;
    static render::Camera camera;
    if (screen.ScreenW == 0)
        render::ApplyResolution(messages, screen, camera, 240, 200);
    std::size_t points = 0;
    for (const render::Obj& object : scene.Objects.Items)
        for (const render::ObjMesh& mesh : object.Mesh)
            points += mesh.Pts.Points.size();
    if (points < 10000) // more would only be slow
        render::DrawObjects(scene, camera, screen);
    return 0;
}
