// SPDX-License-Identifier: Zlib
#include "shell/StartUp.h"

#include "render/Font.h"
#include "render/Primitives.h"
#include "render/Textures.h"
#include "shell/HudElements.h"
#include "webcam/Calibration.h"
#include "world/LoadMap.h"
#include "world/LoadObject.h"

#include <algorithm>

namespace shell
{
namespace
{
render::PicReference LoadShared(base::MessageSink& messages, const base::Files& files, const char* path)
{
    auto picture = std::make_shared<render::Picture>();
    if (!render::LoadPicArray2D(messages, files, path, picture->Info, picture->Pixels))
        return nullptr;
    return picture;
}

// False with the first that fails.
bool LoadPictures(Game& game, const base::Files& files, base::MessageSink& messages)
{
    render::Picture& inside = game.Pictures.Inside;
    render::Picture& sky = game.Scene.Sky;
    world::RaceAssets& assets = game.Assets;
    return render::LoadPicArray2D(messages, files, "data\\images\\inside.bmp", inside.Info, inside.Pixels) &&
           render::LoadPicArray2D(messages, files, "data\\images\\sky.bmp", sky.Info, sky.Pixels) &&
           (assets.Smoke = LoadShared(messages, files, "data\\sprites\\smoke.bmp")) &&
           (assets.Water = LoadShared(messages, files, "data\\sprites\\water.bmp")) &&
           (assets.FireRed = LoadShared(messages, files, "data\\sprites\\fireR.bmp")) &&
           (assets.FireYellow = LoadShared(messages, files, "data\\sprites\\fireY.bmp"));
}

// From above, so that the first seconds glide down to the car.
void PlaceFirstCamera(render::Camera& camera)
{
    camera.CamX = 65;
    camera.CamY = 100;
    camera.CamZ = 35;
    camera.Radius = 14;
    render::UpdateCameraTrig(camera);
}

void LoadWorld(Game& game, const base::Files& files, base::MessageSink& messages)
{
    render::Scene& scene = game.Scene;
    world::RaceAssets& assets = game.Assets;
    assets.GlassTexture = render::LoadTexture(scene, messages, files, "data\\textures\\glass.bmp");
    assets.BrokenGlassTexture = render::LoadTexture(scene, messages, files, "data\\textures\\glass_b.bmp");
    assets.ArrowObj = world::LoadObject(scene, messages, files, "data\\models\\gps.3dm").Current;
    assets.CupObj = world::LoadObject(scene, messages, files, "data\\models\\cup.3dm").Current;
    world::LoadMap(scene, game.Race, messages, files, "data\\maps\\map_01\\map.loader", !game.Screen.SingleThread);
}
}

void SetProcessorDefaults(Game& game, int processors)
{
    render::Screen& screen = game.Screen;
    if (screen.SingleThread)
    {
        screen.ThreadCount = 1;
        screen.TxtFilter = render::Filter::Linear;
        game.Settings.EffQuality = 0;
        return;
    }
    processors = std::clamp(processors, 1, 1024);
    screen.ThreadCount = static_cast<std::int16_t>(2 * processors + 1);
    screen.TxtFilter = processors > 1 ? render::Filter::Anisotropic : render::Filter::Linear;
    game.Settings.EffQuality = processors > 1 ? 1.0f : 0.75f;
}

bool InitVideo(Game& game, platform::Platform& platform, base::MessageSink& messages)
{
    bool loaded = false;
    const auto load = [&]
    {
        loaded = LoadPictures(game, platform.DataFiles(), messages);
        if (!loaded)
            return;
        game.Scene.Ground.GroundScale = 1;
        webcam::Webcam& webcam = game.Webcam;
        webcam.FrameHeader.biWidth = webcam::CaptureWidth;
        webcam.FrameHeader.biHeight = webcam::CaptureHeight;
        render::MakePicArray2D(messages, webcam.FrameHeader, webcam.Frame);
        webcam.Capture.DeviceCount = platform.WebcamDevice().SetupCapture();
    };
    return base::Trapped(messages, "InitVideo", load) && loaded;
}

void Inizializza(Game& game, const base::Files& files, base::MessageSink& messages)
{
    const auto load = [&]
    {
        game.Screen.NearZ = 0.01f;
        game.Screen.FarZ = 400;
        PlaceFirstCamera(game.Camera);
        game.Scene.LightR = game.Scene.LightG = game.Scene.LightB = 1;
        LoadWorld(game, files, messages);
        MakeHud(game.Scene, messages, game.Hud, game.Screen.ScreenW, game.Screen.ScreenH);
    };
    base::Trapped(messages, "Inizializza", load);
}

void FreeResources(Game& game, platform::Platform& platform)
{
    render::Scene& scene = game.Scene;
    world::RaceAssets& assets = game.Assets;
    webcam::DeinitCapture(platform, game.Webcam.Capture, 0); // it writes into what goes now
    game.Webcam.Frame.Clear();
    game.Pictures = {};
    scene.Sky = {};
    for (render::PicReference* picture : {&assets.Smoke, &assets.Water, &assets.FireRed, &assets.FireYellow})
        render::PicArrayKill(*picture);
    for (std::int32_t i = 0; i < scene.Textures.Size(); ++i)
        render::FreeTexture(scene, i);
    for (std::int32_t i = 0; i < scene.Polys.Size(); ++i)
        scene.Polys.Release(i);
    for (std::int32_t i = 0; i < scene.Objects.Size(); ++i)
        render::DeleteObj(scene, i);
}
}
