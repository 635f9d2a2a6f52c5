// SPDX-License-Identifier: Zlib
// make_drive_world SOURCE DESTINATION: the small world of the driver scripts: the text files of the source folder
// beside a handful of tiny pictures and an engine. No script depends on the art of the game.
#include "base/BitmapFile.h"
#include "base/Pixels.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

namespace
{
namespace fs = std::filesystem;

struct Texel
{
    int R, G, B;
};

struct Pictures
{
    fs::path Data;

    // colour(x, row) for every pixel, row 0 at the bottom.
    void Write(const fs::path& name, int width, int height, const std::function<Texel(int, int)>& colour) const
    {
        const std::size_t rowBytes = static_cast<std::size_t>(base::PaddedRow(width));
        std::vector<std::uint8_t> bits(rowBytes * static_cast<std::size_t>(height));
        for (int row = 0; row < height; ++row)
            for (int x = 0; x < width; ++x)
            {
                std::uint8_t* at = &bits[static_cast<std::size_t>(row) * rowBytes + static_cast<std::size_t>(x) * 3];
                const Texel texel = colour(x, row);
                at[0] = static_cast<std::uint8_t>(texel.B);
                at[1] = static_cast<std::uint8_t>(texel.G);
                at[2] = static_cast<std::uint8_t>(texel.R);
            }
        fs::create_directories((Data / name).parent_path());
        const std::string file = base::BitmapFile(width, height, bits);
        std::ofstream(Data / name, std::ios::binary).write(file.data(), static_cast<std::streamsize>(file.size()));
    }

    void Plain(const fs::path& name, int side, Texel texel) const
    {
        Write(name, side, side, [texel](int, int) { return texel; });
    }
};

// Every glyph is 6 x 8 pixels, so that widths can be reckoned by hand; the ink spells the code's bits.
void WriteFont(const Pictures& pictures)
{
    for (int code = 32; code <= 126; ++code)
        pictures.Write("fonts/Font_01/" + std::to_string(code) + ".bmp", 6, 8,
                       [code](int x, int row)
                       {
                           const bool ink = code > 32 && (row == 0 || x == 0 || ((code >> row) & 1) != 0);
                           return ink ? Texel{0, 0, 0} : Texel{255, 255, 255};
                       });
}

void WriteWorld(const Pictures& pictures)
{
    pictures.Write("images/sky.bmp", 820, 16, [](int x, int row) { return Texel{x / 4, 100 + row, 255 - x / 4}; });
    pictures.Write("images/inside.bmp", 107, 80, [](int x, int row) { return Texel{20 + x, 40, 60 + row}; });
    pictures.Plain("sprites/smoke.bmp", 4, {128, 128, 128});
    pictures.Plain("sprites/water.bmp", 4, {80, 120, 200});
    pictures.Plain("sprites/fireR.bmp", 4, {240, 60, 20});
    pictures.Plain("sprites/fireY.bmp", 4, {250, 220, 40});
    pictures.Plain("textures/glass.bmp", 2, {60, 80, 100});
    pictures.Plain("textures/glass_b.bmp", 2, {220, 230, 240});
    pictures.Write("maps/map_01/ground.bmp", 200, 200,
                   [](int x, int row) {
                       return Texel{x, 120 + 40 * (((x / 8) + (row / 8)) % 2), row};
                   });
    WriteFont(pictures);
}

// What a webcam sees: a room, the same with somebody in it, and with somebody who has moved. The picture of a real one
// is never quite still.
Texel Room(int x, int row, int noise)
{
    const int tremble = (x * 7 + row * 13 + noise * 5) % 5 - 2;
    const int shade = 90 + row + (x / 18 % 2) * 40 + tremble;
    return {shade, shade - 20, shade - 45};
}

Texel Person(int x, int row, int middle, Texel behind)
{
    const int aside = x - middle, headUp = row - 50;
    if (aside * aside * 9 + headUp * headUp * 5 < 9 * 15 * 15)
        return row > 60 ? Texel{50, 34, 24} : Texel{224, 172, 140}; // hair, face
    const bool shoulders = row < 34 && aside * aside < 30 * 30 - (row - 8) * (row - 8) / 2;
    return shoulders ? Texel{30, 60, 150} : behind;
}

void WriteWebcam(const Pictures& pictures)
{
    pictures.Write("room.bmp", 107, 80, [](int x, int row) { return Room(x, row, 0); });
    pictures.Write("room_2.bmp", 107, 80, [](int x, int row) { return Room(x, row, 1); });
    pictures.Write("player.bmp", 107, 80, [](int x, int row) { return Person(x, row, 45, Room(x, row, 2)); });
    pictures.Write("moved.bmp", 107, 80, [](int x, int row) { return Person(x, row, 70, Room(x, row, 3)); });
    pictures.Write("small.bmp", 106, 80, [](int, int) { return Texel{0, 0, 0}; });
}

// A saw tooth of four beats in the loop: entry i of the engine's table is i mod 256 - 128.
void WriteEngine(const fs::path& data, int bytes)
{
    fs::create_directories(data / "sounds");
    std::ofstream out(data / "sounds" / "engine_01.pcm", std::ios::binary);
    for (int i = 0; i < bytes; ++i)
        out.put(static_cast<char>(i % 256));
}

// The same world with music, with an engine of 100 bytes, without one. Each is for the script of that name.
void WriteVariants(const fs::path& world)
{
    const auto variant = [&world](const char* name)
    {
        const fs::path path = world.string() + "-" + name;
        fs::remove_all(path);
        fs::copy(world, path, fs::copy_options::recursive);
        return path;
    };
    const fs::path music = variant("music") / "soundtracks";
    fs::create_directories(music);
    for (const char* track : {"Curva Sud.mp3", "alba.mp3", "Lago di notte.WMA", "copertina.jpg"})
        std::ofstream(music / track) << "nobody listens";
    WriteEngine(variant("short_sample") / "data", 100);
    fs::remove(variant("no_sample") / "data/sounds/engine_01.pcm");
}
}

int main(int count, char** arguments)
{
    if (count != 3)
    {
        std::cerr << "usage: make_drive_world SOURCE DESTINATION\n";
        return 2;
    }
    const fs::path destination = arguments[2];
    fs::remove_all(destination);
    fs::create_directories(destination);
    fs::copy(fs::path(arguments[1]) / "data", destination / "data", fs::copy_options::recursive);
    WriteWorld({destination / "data"});
    WriteWebcam({destination / "webcam"});
    WriteEngine(destination / "data", 1024);
    WriteVariants(destination);
    return 0;
}
