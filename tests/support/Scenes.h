// SPDX-License-Identifier: Zlib
// tests/support/Scenes.h: small worlds for the tests of the renderer: pictures of noise, cameras, whole scenes.
#pragma once
#include "base/Random.h"
#include "render/GroundTexture.h"
#include "render/GroundThreads.h"
#include "render/Primitives.h"
#include "render/Scene.h"
#include "render/Screen.h"
#include "tests/support/Messages.h"

#include <cstdint>
#include <memory>

namespace support
{
inline double Draw(base::Random& random, double least, double most)
{
    return least + (most - least) * random.Next();
}

inline int DrawWhole(base::Random& random, int least, int most)
{
    return least + base::Floor(random.Next() * (most - least + 1));
}

inline render::Picture Blank(int width, int height)
{
    render::Picture picture;
    picture.Info = {width, height, base::PaddedRow(width), 1, 24};
    picture.Pixels.Allocate(height, picture.Info.RowBytes);
    return picture;
}

// Every byte drawn; blackShare of the pixels are (0, 0, 0).
inline render::Picture Noise(base::Random& random, int width, int height, double blackShare = 0.0)
{
    render::Picture picture = Blank(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
        {
            const bool black = random.Next() < blackShare;
            for (int c = 0; c < 3; ++c)
                picture.Pixels.Row(y)[x * 3 + c] = static_cast<std::uint8_t>(black ? 0 : DrawWhole(random, 0, 255));
        }
    return picture;
}

inline void SetGround(render::Scene& scene, render::Picture picture, float scale = 1.0f)
{
    scene.Ground.Width = picture.Info.Width;
    scene.Ground.Height = picture.Info.Height;
    scene.Ground.GroundScale = scale;
    scene.Ground.Sharp = std::move(picture);
    render::BlurGround(scene.Ground);
}

// A screen with its camera, as the options panel would have made it.
struct View
{
    support::Messages Messages;
    render::Camera Camera;
    render::Screen Screen;
    render::GroundThreads Threads;

    View(int width, int height, int filter = 0, int threads = 3)
    {
        Screen.TxtFilter = static_cast<std::int16_t>(filter);
        Screen.ThreadCount = static_cast<std::int16_t>(threads);
        Screen.GroundLimit = 600000; // a busy machine must not cut a pass off
        render::ApplyResolution(Messages, Screen, Camera, width, height);
    }
    void Look(float x, float y, float z, float yaw, float pitch)
    {
        Camera.CamX = x;
        Camera.CamY = y;
        Camera.CamZ = z;
        Camera.CamYaw = yaw;
        Camera.CamPitch = pitch;
        render::UpdateCameraTrig(Camera);
    }
    const std::uint8_t* Pixel(int x, int y) const { return Screen.Frame.Row(y) + x * 3; }
    float Depth(int x, int y) const { return Screen.Depth.At(x, y); }
};

// Blue, green, red of a pixel as one number, 0xBBGGRR.
inline unsigned Bytes(const std::uint8_t* pixel)
{
    return static_cast<unsigned>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
}
}
