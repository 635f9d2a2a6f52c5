// SPDX-License-Identifier: Zlib
// Any bytes as a map script, beside files that it may name. What stands on the map then races for a few ticks, which
// must end as those with the plain walk over the collisions do.
#include "fuzz/Folder.h"
#include "tests/support/World.h"
#include "world/LoadMap.h"

#include <bit>
#include <cstdlib>

namespace
{
bool SamePlace(const render::Obj& a, const render::Obj& b)
{
    const auto same = [](float x, float y)
    { return std::bit_cast<std::uint32_t>(x) == std::bit_cast<std::uint32_t>(y); };
    return same(a.X, b.X) && same(a.Z, b.Z) && same(a.AngleA, b.AngleA) && same(a.AngleB, b.AngleB);
}

void Tick(support::World& game)
{
    support::World judge = game;
    judge.Tick(world::GameTickPlain);
    game.Tick();
    for (std::size_t object = 0; object < game.Scene.Objects.Items.size(); ++object)
        if (!SamePlace(game.Scene.Objects.Items[object], judge.Scene.Objects.Items[object]))
            std::abort();
}

void WriteCompanions(const fuzz::Folder& folder)
{
    folder.Write("m.3dm", "3DM - VER 1.0.0\nMakeObj,0,0,0,0,0,1,2,1,1\nSetObjR,3\nEditObjSfere,0,0,0,0,1\n"
                          "EditObjSfere,1,1,0,1,1\nAddSfereLink,1,0,1,1\nEditObjMesh,0,2,2,255\n");
    folder.Write("e.3dm", "3DM - VER 1.0.0\n");
    folder.Write("b.3dm", "3DM - VER 1.0.0\nMakeObj,0,0,0,0,0,0,1,1,0\nFoo\n");
    folder.Write("p", "0.06,5,1,0.05,0.1,0.01,0");
    folder.Write("c", "0.07,4,1,0.05,0.1,0.01,1");
    folder.Write("l", "0,0,0,4\n10,0,0,8\n");
    folder.Write("g.bmp", fuzz::OneTexel());
}
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::Folder folder;
    folder.Write("map.loader", fuzz::Text(data, size));
    WriteCompanions(folder);
    fuzz::NoMessages messages;
    support::World game;
    game.Random.Script.clear();
    game.WebcamOn = true;
    game.Race.GameTime = world::ReleaseTime;
    game.Keys.KeyAccel = game.Keys.KeyLeft = base::True;
    world::LoadMap(game.Scene, game.Race, messages, folder.Files(), "map.loader", true);
    if (game.Scene.Bytes < (1u << 20)) // larger scenes are copied too slowly
        for (int tick = 0; tick < 4; ++tick)
            Tick(game);
    return 0;
}
