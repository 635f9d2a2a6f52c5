// Start-up and shut-down of the main window, in their fixed orders.
#include "render/Font.h"
#include "render/Primitives.h"
#include "render/Textures.h"
#include "shell/Design.h"
#include "shell/Form1.h"
#include "shell/HudElements.h"
#include "world/LoadMap.h"
#include "world/LoadObject.h"

#include <algorithm>

namespace shell
{
namespace
{
constexpr platform::Size DesignSize = {600, 312};
constexpr int SingleThreadFps = 6;

render::PicReference LoadShared(base::MessageSink& messages, const base::Files& files, const char* path)
{
    auto picture = std::make_shared<render::Picture>();
    if (!render::LoadPicArray2D(messages, files, path, picture->Info, picture->Pixels))
        return nullptr;
    return picture;
}
}

Form1::Form1(platform::Platform& platform)
    : ThePlatform(platform), TheWindow(platform.MakeWindow(*this, DesignSize)),
      TheWaveOut(platform.MakeWaveOut(*TheWindow)), TheMusic(platform.MakeMusicPlayer(*TheWindow))
{
    TheWindow->SetTitle(base::DefaultTitle);
    MakeControls(TheForm);
    TheGame.Timers.GameT.interval = 25;
    TheGame.Timers.RenderT.interval = 40;
    TheGame.Timers.RenderT.mininterval = 2;
    TheGame.Timers.CaptureT.interval = 40;
    TheGame.Timers.CaptureT.mininterval = 5;
    TheGame.Timers.CaptureT.resolution = 2;
    tmrLogo.interval = 100;
}

Form1::~Form1()
{
    ThePlatform.WebcamDevice().DeinitCapture(); // it writes into the form's buffer
}

void Form1::Form_Load()
{
    base::Trapped(*TheWindow, "Load",
                  [this]
                  {
                      SetProcessorDefaults();
                      if (TheGame.Random.Script.empty())
                          TheGame.Random.Seed(ThePlatform.ClockSeed());
                      LayoutPanels();
                      TheMenuPictures.Load(*TheWindow, ThePlatform.DataFiles());
                      TheGame.Run.LastCommand.assign(1, '\\');
                      render::LoadFont(*TheWindow, ThePlatform.DataFiles(), "data\\fonts\\Font_01", TheGame.Scene.Font);
                      render::InitScene(TheGame.Scene);
                      if (!InitVideo())
                          return EndFailed("video");
                      if (!InitAudio())
                          return EndFailed("audio");
                      Inizializza();
                      // What the panels hold as designed are the defaults.
                      cGameOptOK_Click(-1);
                      cVidOptOK_Click(-1);
                      cAudOptOK_Click(-1);
                      for (std::int16_t index = 0; TheForm.Find("cCtrKey", index) != nullptr; ++index)
                          ReadKeyBinding(index);
                  });
}

void Form1::SetProcessorDefaults()
{
    render::Screen& screen = TheGame.Screen;
    Settings& settings = TheGame.Settings;
    if (screen.SingleThread != 0)
    {
        screen.ThreadCount = 1;
        screen.TxtFilter = 1;
        settings.EffQuality = 0;
        TheForm.Get("txtFreq").Text = std::to_string(SingleThreadFps);
        return;
    }
    const int processors = std::clamp(ThePlatform.ProcessorCount(), 1, 1024);
    screen.ThreadCount = static_cast<std::int16_t>(2 * processors + 1);
    screen.TxtFilter = processors > 1 ? 2 : 1;
    settings.EffQuality = processors > 1 ? 1.0f : 0.75f;
}

bool Form1::InitVideo()
{
    try
    {
        base::MessageSink& messages = *TheWindow;
        const base::Files& files = ThePlatform.DataFiles();
        world::RaceAssets& assets = TheGame.Assets;
        render::Picture& inside = TheGame.Pictures.Inside;
        render::Picture& sky = TheGame.Scene.Sky;
        if (!render::LoadPicArray2D(messages, files, "data\\images\\inside.bmp", inside.Info, inside.Pixels) ||
            !render::LoadPicArray2D(messages, files, "data\\images\\sky.bmp", sky.Info, sky.Pixels) ||
            !(assets.Smoke = LoadShared(messages, files, "data\\sprites\\smoke.bmp")) ||
            !(assets.Water = LoadShared(messages, files, "data\\sprites\\water.bmp")) ||
            !(assets.FireRed = LoadShared(messages, files, "data\\sprites\\fireR.bmp")) ||
            !(assets.FireYellow = LoadShared(messages, files, "data\\sprites\\fireY.bmp")))
            return false;
        TheGame.Scene.Ground.GroundScale = 1;
        webcam::Webcam& webcam = TheGame.Webcam;
        webcam.FrameHeader.biWidth = webcam::CaptureWidth;
        webcam.FrameHeader.biHeight = webcam::CaptureHeight;
        render::MakePicArray2D(messages, webcam.FrameHeader, webcam.Frame);
        webcam.Capture.DeviceCount = ThePlatform.WebcamDevice().SetupCapture();
        forms::Control& box = TheForm.Get("chkWebcam");
        box.Enabled = base::ToFlag(webcam.Capture.DeviceCount != 0);
        box.Value = webcam.Capture.DeviceCount > 0 ? 1 : 0;
        TheForm.Get("cCamConfig").Enabled = box.Enabled;
        return true;
    }
    catch (...)
    {
        base::ReportError(*TheWindow, "InitVideo");
        return false;
    }
}

void Form1::EndFailed(const char* module)
{
    std::string text = "Si è verificato un errore durante l'inizializzazione del modulo ";
    text += module;
    text += "\r\nL'applicazione verrà chiusa";
    TheWindow->ShowMessage(base::Icon::Critical, base::DefaultTitle, text);
    HasEnded = true;
}

void Form1::Inizializza()
{
    base::Trapped(*TheWindow, "Inizializza",
                  [this]
                  {
                      base::MessageSink& messages = *TheWindow;
                      const base::Files& files = ThePlatform.DataFiles();
                      render::Scene& scene = TheGame.Scene;
                      render::Camera& camera = TheGame.Camera;
                      world::RaceAssets& assets = TheGame.Assets;
                      TheGame.Screen.NearZ = 0.01f;
                      TheGame.Screen.FarZ = 400;
                      camera.CamX = 65;
                      camera.CamY = 100;
                      camera.CamZ = 35;
                      camera.Radius = 14;
                      render::UpdateCameraTrig(camera);
                      scene.LightR = scene.LightG = scene.LightB = 1;

                      assets.GlassTexture = render::LoadTexture(scene, messages, files, "data\\textures\\glass.bmp");
                      assets.BrokenGlassTexture =
                          render::LoadTexture(scene, messages, files, "data\\textures\\glass_b.bmp");
                      assets.ArrowObj = world::LoadObject(scene, messages, files, "data\\models\\gps.3dm").Current;
                      assets.CupObj = world::LoadObject(scene, messages, files, "data\\models\\cup.3dm").Current;
                      world::LoadMap(scene, TheGame.Race, messages, files, "data\\maps\\map_01\\map.loader",
                                     TheGame.Screen.SingleThread == 0);
                      MakeHud(scene, messages, TheGame.Hud, TheGame.Screen.ScreenW, TheGame.Screen.ScreenH);
                  });
}

bool Form1::Form_Unload()
{
    bool cancel = false;
    base::Trapped(*TheWindow, "Unload",
                  [&]
                  {
                      FreeResources();
                      CloseAudio(cancel);
                  });
    if (!cancel)
        HasEnded = true;
    return !cancel;
}

void Form1::FreeResources()
{
    render::Scene& scene = TheGame.Scene;
    world::RaceAssets& assets = TheGame.Assets;
    webcam::DeinitCapture(ThePlatform, TheGame.Webcam.Capture, 0); // it writes into what goes now
    TheGame.Webcam.Frame.Clear();
    TheGame.Pictures = {};
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
