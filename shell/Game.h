// shell/Game.h: the whole state of one game. Form1 owns it and hands its records on by reference.
#pragma once
#include "audio/EngineSound.h"
#include "audio/Soundtrack.h"
#include "base/Fields.h"
#include "base/Random.h"
#include "render/GroundThreads.h"
#include "render/Scene.h"
#include "render/Screen.h"
#include "shell/TickTimer.h"
#include "webcam/Calibration.h"
#include "world/Race.h"

#include <array>
#include <cstdint>
#include <string>

namespace shell
{
// Options; never saved. Laps stands in Race, TxtFilter in Screen.
struct Settings
{
    std::int16_t TargetFps = 20; // 5 to 30
    float EffQuality = 1.0f;     // 0, 0.3, 0.5, 1.0
    base::Flag WebcamOn = base::False;
    base::Flag FullScreen = base::False;
};

// The effects are what the engine sounds like; the music has no volume of its own.
struct AudioSettings
{
    // Deliberate: 1 at start-up, where it means all, and from 20 to 100, per cent, once the slider was moved.
    float EffectsVolume = 1;
    std::int16_t EffectsFactor = 0; // of the engine's gain
};

// Key codes of the rebindable actions, by binding index.
struct KeyBindings
{
    enum Action
    {
        Autopilot = 0,
        NextMusic = 1,
        LookBack = 2,
        PreviousPlayer = 3,
        NextPlayer = 4,
        ChangeView = 5,
        Accelerate = 6,
        Brake = 7,
        Left = 8,
        Right = 9,
        Handbrake = 10
    };
    std::array<std::int16_t, 11> Bindings = {17, 9, 66, 34, 33, 67, 38, 40, 37, 39, 32};
};

// Indices of the display's elements in the scene lists; -1 until they are made.
struct Hud
{
    std::int16_t Webcam = -1, Repair = -1;                     // Pic2D
    std::int16_t DamageBar = -1;                               // Rect2D
    std::int16_t Unit = -1, Speed = -1, Gear = -1, Place = -1; // Label2D
    std::int16_t Message = -1, LapsCaption = -1, LapCounter = -1, FrameRate = -1, Countdown = -1, Notice = -1;
    std::int16_t Console = -1, Pause = -1, Debug = -1;
};

struct RunState
{
    std::int32_t AudioReady = 0; // -1 once the audio initialisation has finished; guards closing
    std::int32_t OldWndProc = 0; // not 0 while finished wave buffers are told
    std::string LastCommand;     // the console's recall
    std::uint32_t StartTick = 0; // when the race was started or resumed
    std::int32_t Fps = 0;
    std::uint32_t FpsLastTime = 0, FpsNextTime = 0;
    std::int32_t Blink = 0;        // of the title
    std::int16_t RebindIndex = -1; // the action that waits for a key
    std::int32_t NoticeTime = 0;   // race clock when the notice was posted: when the present track started
    float Shake = 0;               // amplitude of the webcam picture's jitter
    bool InBox = false;            // the followed car stands still inside a box
};

// Pictures of start-up that no scene list holds.
struct Pictures
{
    render::Picture Inside; // of the car, behind the driver in the webcam picture
};

struct Game
{
    render::Scene Scene;
    render::Camera Camera;
    render::Screen Screen;
    render::GroundThreads GroundThreads;
    world::Race Race;
    world::HeldKeys Keys;
    world::RaceAssets Assets;
    base::Random Random;
    shell::Settings Settings;
    AudioSettings Audio;
    audio::EngineSound Engine;
    audio::Soundtrack Soundtrack;
    KeyBindings Bindings;
    shell::Hud Hud;
    shell::Pictures Pictures;
    RunState Run;
    webcam::Webcam Webcam;
    shell::Timers Timers;
};
}

template <> struct base::FieldsOf<shell::Settings>
{
    using S = shell::Settings;
    static constexpr auto Table =
        std::make_tuple(Field{"TargetFps", &S::TargetFps}, Field{"EffQuality", &S::EffQuality},
                        Field{"WebcamOn", &S::WebcamOn}, Field{"FullScreen", &S::FullScreen});
};

template <> struct base::FieldsOf<shell::AudioSettings>
{
    using A = shell::AudioSettings;
    static constexpr auto Table =
        std::make_tuple(Field{"EffectsVolume", &A::EffectsVolume}, Field{"EffectsFactor", &A::EffectsFactor});
};

template <> struct base::FieldsOf<shell::KeyBindings>
{
    using K = shell::KeyBindings;
    static constexpr auto Table = std::make_tuple(Field{"Bindings", &K::Bindings});
};
