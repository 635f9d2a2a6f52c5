// make_drive_world SOURCE DESTINATION: the small world of the driver scripts: the text files of the source folder
// beside a handful of tiny pictures. No script depends on the art of the game.
#include "base/BitmapFile.h"

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
        const std::size_t rowBytes = (static_cast<std::size_t>(width) * 3 + 3) & ~std::size_t{3};
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
    pictures.Plain("images/inside.bmp", 4, {90, 90, 90});
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
    return 0;
}
