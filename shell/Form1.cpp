// SPDX-License-Identifier: Zlib
#include "shell/Form1.h"

#include "render/Font.h"
#include "render/Primitives.h"
#include "shell/StartUp.h"

namespace shell
{
namespace
{
constexpr platform::Size DesignSize = {600, 312};
constexpr int SingleThreadFps = 6;
constexpr int LeftButton = 1;

void SetIntervals(Timers& timers)
{
    timers.GameT.interval = 25;
    timers.RenderT.interval = 40;
    timers.RenderT.mininterval = 2;
    timers.CaptureT.interval = 40;
    timers.CaptureT.mininterval = 5;
    timers.tmrLogo.interval = 100;
}
}

Form1::Form1(platform::Platform& platform)
    : ThePlatform(platform), TheWindow(platform.MakeWindow(*this, DesignSize)), View(TheGame, *TheWindow),
      Feed(TheGame, platform, *TheWindow), TheSound(TheGame, platform, *TheWindow),
      Run(TheGame, platform, *TheWindow, TheSound, Feed, View),
      Console(TheGame, platform, *TheWindow), Board{View.Form, View.Actions, View.Input, *TheWindow,
                                                    [this] { View.Repaint(); }},
      ThePanels(Board, TheGame, MakeVerbs()), Keys(TheGame, Run, TheSound, Console, [this] { ShowMenu(); })
{
    TheWindow->SetTitle(base::DefaultTitle);
    SetIntervals(TheGame.Timers);
    View.PaintMenuBackground = [this](forms::Canvas& canvas) { ThePanels.Menu.PaintBackground(canvas); };
    // Whatever is clicked, the recording of a key is given up.
    View.BeforeClick = [this]
    {
        if (ThePanels.Keys.RecordsKey())
            ThePanels.Keys.txtRecKey_LostFocus();
    };
    View.ControlLostFocus = [this](const forms::Control& control)
    {
        if (ThePanels.Keys.IsRecorder(control))
            ThePanels.Keys.txtRecKey_LostFocus();
    };
}

panels::Verbs Form1::MakeVerbs()
{
    return {.StartProcess = [this] { Run.StartProcess(); },
            .Unload = [this] { Form_Unload(); },
            .SetMusic = [this](bool on) { TheSound.SetMusic(on); },
            .ApplyResolution = [this](std::int32_t width, std::int32_t height) { Run.ApplyResolution(width, height); },
            .ApplyFullScreen = [this](bool on) { ApplyFullScreen(on); },
            .Webcam = {.Open = [this] { return Feed.OpenWebcam(); },
                       .Close = [this] { Feed.CloseWebcam(); },
                       .TakeFrame = [this] { return Feed.TakeFrame(); },
                       .TickCount = [this] { return ThePlatform.TickCount(); }}};
}

void Form1::Form_Load()
{
    base::Trapped(*TheWindow, "Load", [this] { Load(); });
}

void Form1::Load()
{
    base::MessageSink& messages = *TheWindow;
    const base::Files& files = ThePlatform.DataFiles();
    SetProcessorDefaults(TheGame, ThePlatform.ProcessorCount());
    if (TheGame.Screen.SingleThread)
        ThePanels.VideoOptions.TypeFrameRate(SingleThreadFps);
    if (TheGame.Random.Script.empty())
        TheGame.Random.Seed(ThePlatform.ClockSeed());
    ThePanels.Cover(TheWindow->ClientSize());
    ThePanels.Menu.LoadPictures(messages, files);
    TheGame.Run.LastCommand.assign(1, '\\');
    render::LoadFont(messages, files, "data\\fonts\\Font_01", TheGame.Scene.Font);
    render::InitScene(TheGame.Scene);
    if (!InitVideo(TheGame, ThePlatform, messages))
        return EndFailed("video");
    ThePanels.VideoOptions.OfferWebcam(TheGame.Webcam.Capture.DeviceCount);
    if (!TheSound.InitAudio())
        return EndFailed("audio");
    Inizializza(TheGame, files, messages);
    ThePanels.TakeDefaults();
}

void Form1::EndFailed(const char* module)
{
    std::string text = "Si è verificato un errore durante l'inizializzazione del modulo ";
    text += module;
    text += "\r\nL'applicazione verrà chiusa";
    TheWindow->ShowMessage(base::Icon::Critical, base::DefaultTitle, text);
    TheGame.Run.Ended = true;
}

bool Form1::Form_Unload()
{
    bool cancel = false;
    const auto unload = [&]
    {
        FreeResources(TheGame, ThePlatform);
        TheSound.CloseAudio(cancel);
    };
    base::Trapped(*TheWindow, "Unload", unload);
    if (!cancel)
        TheGame.Run.Ended = true;
    return !cancel;
}

void Form1::Show()
{
    View.Appear();
    TheGame.Timers.tmrLogo.Enable(ThePlatform.TickCount());
    View.Repaint();
}

void Form1::ShowMenu()
{
    ThePanels.Menu.SetMenuVisible(true);
    TheGame.Timers.tmrLogo.Enable(ThePlatform.TickCount());
    View.Repaint();
}

void Form1::ApplyFullScreen(bool on)
{
    TheWindow->SetFullScreen(on);
    if (!on)
        TheWindow->SetClientSize({TheGame.Screen.ScreenW, TheGame.Screen.ScreenH});
    Form_Resize();
}

void Form1::Form_Resize()
{
    View.Form.Client = TheWindow->ClientSize();
    ThePanels.Place(View.Form.Client);
    View.Repaint();
}

void Form1::RunTimers()
{
    Timers& timers = TheGame.Timers;
    timers.Advance(ThePlatform.TickCount());
    if (!Ended() && timers.GameT.IsDue())
        Run.GameT_Tick();
    if (!Ended() && timers.RenderT.IsDue())
        Run.RenderT_Tick();
    if (!Ended() && timers.CaptureT.IsDue())
        CaptureT_Tick();
    if (!Ended() && timers.tmrLogo.IsDue())
    {
        timers.tmrLogo.Tick();
        ThePanels.Menu.tmrLogo_Timer();
    }
}

std::uint32_t Form1::NextTimer()
{
    TheGame.Timers.Advance(ThePlatform.TickCount());
    return TheGame.Timers.UntilDue();
}

void Form1::CaptureT_Tick()
{
    TheGame.Timers.Advance(ThePlatform.TickCount());
    ThePanels.Webcam.CaptureT_Tick();
}

void Form1::KeyDown(std::int16_t code)
{
    if (Ended())
        return;
    // Not the key that is still down from the click on the binding.
    if (ThePanels.Keys.RecordsKey() && !View.Input.Holds(code))
    {
        View.Input.Hold(code); // its repeats are not meant for what comes next
        ThePanels.Keys.txtRecKey_KeyDown(code);
        View.Repaint();
    }
    else if (RaceShows(TheGame))
        Keys.Form_KeyDown(code);
    else
        View.Input.KeyDown(code);
    View.RepaintIfDue();
}

void Form1::KeyUp(std::int16_t code)
{
    if (Ended())
        return;
    View.Input.KeyUp(code);
    Keys.Form_KeyUp(code);
}

void Form1::KeyPress(std::uint8_t code)
{
    if (Ended())
        return;
    if (RaceShows(TheGame))
        Keys.Form_KeyPress(code);
    else
        View.Input.Character(code);
    View.RepaintIfDue();
}

void Form1::MouseDown(int button, platform::Point at)
{
    if (Ended() || button != LeftButton)
        return;
    if (!View.Input.MouseDown(at, ThePlatform.TickCount()))
        DragStart(TheDrag, *TheWindow, TheGame.Settings.FullScreen != base::False);
    View.RepaintIfDue();
}

void Form1::MouseMove(int buttons, platform::Point at)
{
    if (Ended())
        return;
    const bool leftHeld = (buttons & LeftButton) != 0;
    if (leftHeld && TheDrag.Active)
        return DragMove(TheDrag, *TheWindow);
    View.Input.MouseMove(leftHeld, at);
    View.RepaintIfDue();
}

void Form1::MouseUp(int button, platform::Point at)
{
    if (Ended() || button != LeftButton)
        return;
    TheDrag.Active = false;
    View.Input.MouseUp(at);
    View.RepaintIfDue();
}

void Form1::Resized()
{
    if (!Ended())
        Form_Resize();
}

void Form1::Paint()
{
    if (!Ended())
        View.Repaint();
}

bool Form1::CloseAsked()
{
    return Ended() || Form_Unload();
}
}
