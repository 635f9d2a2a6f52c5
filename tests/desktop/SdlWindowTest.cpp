// SPDX-License-Identifier: Zlib
// The window of the desktop back end on SDL's dummy display, which shows nothing but keeps every pixel.
#include "base/Random.h"
#include "platform/sdl/SdlPlatform.h"
#include "tests/support/Scenes.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace
{
struct SdlWindow : testing::Test
{
    // No display is needed.
    struct Driver
    {
        Driver() { setenv("SDL_VIDEODRIVER", "dummy", 1); }
    };

    Driver Chosen;
    support::TempFolder Folder;
    sdl::SdlPlatform Platform{Folder.Path};
    platform::WindowEvents Events;
    std::unique_ptr<platform::Window> Window = Platform.MakeWindow(Events, {8, 5});
    base::Random Random;

    render::Picture Noise(std::int32_t width, std::int32_t height) { return support::Noise(Random, width, height); }

    // The window's own pixels; x and y from the top left corner.
    static base::Rgb PixelAt(int x, int y)
    {
        SDL_Surface* const surface = SDL_GetWindowSurface(SDL_GetWindowFromID(1));
        const std::uint8_t* row = static_cast<std::uint8_t*>(surface->pixels) + std::ptrdiff_t{surface->pitch} * y;
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, row + std::ptrdiff_t{4} * x, sizeof pixel);
        base::Rgb colour;
        SDL_GetRGB(pixel, surface->format, &colour.R, &colour.G, &colour.B);
        return colour;
    }

    // What it should show of the picture: the nearest pixels of the rows from the bottom.
    static void ExpectShown(const render::Picture& picture, int width, int height)
    {
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
            {
                const int column = x * picture.Info.Width / width, down = y * picture.Info.Height / height;
                const std::uint8_t* row = picture.Pixels.Row(picture.Info.Height - 1 - down);
                ASSERT_EQ(PixelAt(x, y), base::Get(row + std::ptrdiff_t{base::PixelBytes} * column)) << x << "," << y;
            }
    }
};

TEST_F(SdlWindow, APictureOfTheWindowsSizeIsShownPixelByPixel)
{
    for (const platform::Size size : {platform::Size{8, 5}, {1, 1}, {2, 3}, {3, 2}, {4, 4}, {7, 3}, {61, 12}})
    {
        Window->SetClientSize(size);
        Platform.PumpEvents();
        const render::Picture picture = Noise(size.Width, size.Height);
        Window->Present(render::MakeSurface(picture));
        ExpectShown(picture, size.Width, size.Height);
    }
}

TEST_F(SdlWindow, ASmallerOneIsStretched)
{
    for (const platform::Size size : {platform::Size{4, 5}, {2, 5}, {8, 1}, {1, 1}, {2, 1}})
    {
        const render::Picture picture = Noise(size.Width, size.Height);
        Window->Present(render::MakeSurface(picture));
        ExpectShown(picture, 8, 5);
    }
}
}
