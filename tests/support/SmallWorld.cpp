// SPDX-License-Identifier: Zlib
#include "tests/support/SmallWorld.h"

namespace support
{
namespace
{
// A flat square of four points with the given meshes and one collision sphere.
std::string Model(int meshes)
{
    std::string text = "3DM - VER 1.0.0\r\nMakeObj,0,0,0,0,0," + std::to_string(meshes) +
                       ",1,1,10\r\nSetObjR,2\r\n"
                       "EditObjSfere,0,0,0.5,0,1\r\n";
    for (int mesh = 0; mesh < meshes; ++mesh)
    {
        const std::string m = std::to_string(mesh);
        text += "EditObjMesh," + m + ",2,2," + std::to_string(4000 + 997 * mesh) + "\r\n";
        for (const char* point : {"0,0,-1,0.5,-2", "0,1,1,0.5,-2", "1,0,-1,0.5,2", "1,1,1,0.5,2"})
            text += "EditObjMeshPt," + m + "," + point + ",0,0\r\n";
    }
    return text + "AddSfereLink,0,0,0,0\r\n";
}

// An arrow or a trophy: no spheres, so that nothing collides with it.
std::string Sign(int meshes)
{
    std::string text = "3DM - VER 1.0.0\r\nMakeObj,0,0,0,0,0," + std::to_string(meshes) + ",0,1,1\r\nSetObjR,1\r\n";
    for (int mesh = 0; mesh < meshes; ++mesh)
        text += "EditObjMesh," + std::to_string(mesh) + ",1,1,255\r\n";
    return text;
}

constexpr const char* MapScript = R"(LoadMapTexture,<path>ground.bmp,1
LoadPlayer,<path>user.txt,<path>car.3dm,50,0,20,0,0,1
LoadPlayer,<path>cpu.txt,<path>car.3dm,58,0,20,0,0,1
LoadPlayer,<path>cpu.txt,<path>car.3dm,42,0,20,0,0,1
LoadCheckpoints,<path>points.txt
LoadACheckpoints,<path>points.txt
LoadBox,<path>box.txt
LoadGrass,<path>grass.txt
LoadWater,<path>water.txt
)";
}

SmallWorld::SmallWorld()
{
    Write("data/images/inside.bmp", Bitmap(8, 8, 10, 20, 30));
    Write("data/images/sky.bmp", Bitmap(820, 8, 90, 140, 220));
    for (const char* sprite : {"smoke", "water", "fireR", "fireY"})
        Write(std::string("data/sprites/") + sprite + ".bmp", Bitmap(4, 4, 200, 120, 60));
    Write("data/textures/glass.bmp", Bitmap(4, 4, 60, 70, 80));
    Write("data/textures/glass_b.bmp", Bitmap(4, 4, 160, 170, 180));
    for (const char* code : {"47", "48", "49", "50", "51", "52", "53", "54", "55", "56", "57", "71", "92", "105"})
        Write(std::string("data/fonts/Font_01/") + code + ".bmp", Bitmap(10, 14, 0, 0, 0));
    Write("data/sounds/engine_01.pcm", std::string(1024, '\x90')); // every entry is 16
    Write("data/models/gps.3dm", Sign(1));
    Write("data/models/cup.3dm", Sign(8));
    const std::string map = "data/maps/map_01/";
    Write(map + "map.loader", MapScript);
    Write(map + "ground.bmp", Bitmap(200, 200, 100, 110, 90));
    Write(map + "car.3dm", Model(2));
    Write(map + "user.txt", "0.06,5,1,0.03,0.06,0.004,0\r\n");
    Write(map + "cpu.txt", "0.06,4,1,0.02,0.06,0.004,1\r\n");
    Write(map + "points.txt", "50,0,90,12\r\n150,0,90,12\r\n100,0,20,12\r\n");
    Write(map + "box.txt", "150,0,150,6\r\n");
    Write(map + "grass.txt", "10,0,190,3\r\n");
    Write(map + "water.txt", "190,0,190,3\r\n");
}

void SmallWorld::Remove(const std::string& path) const
{
    EXPECT_TRUE(std::filesystem::remove(Files().Resolve(path))) << path;
}
}
