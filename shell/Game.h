// SPDX-License-Identifier: Zlib
// shell/Game.h: the whole state of one game. Form1 owns it and hands its records on by reference.
#pragma once
#include "audio/EngineSound.h"
#include "audio/Soundtrack.h"
#include "base/Fields.h"
#include "base/Random.h"
#include "platform/Keys.h"
#include "render/GroundThreads.h"
#include "render/Scene.h"
#include "render/Screen.h"
#include "shell/TickTimer.h"
#include "webcam/Calibration.h"
#include "world/Simulation.h"

#include <array>
#include <cstdint>
#include <string>

namespace shell
{
// Options; never saved. Laps stands in Race, TxtFilter in Screen.
struct Settings
{
    std::int16_t TargetFps = 20;         // frames a second, 5 to 30
    float EffQuality = 1.0f;             // of smoke and fire: 0 none, 0.3, 0.5, 1.0
    base::Flag WebcamOn = base::False;   // the player is filmed while the race runs
    base::Flag FullScreen = base::False; // the window covers its display
};

// The effects are what the engine sounds like; the music has no volume of its own.
struct AudioSettings
{
    // Deliberate: 1 at start-up, where it means all, and from 20 to 100, per cent, once the slider was moved.
    float EffectsVolume = 1;
    std::int16_t EffectsFactor = 0; // of the engine's gain: 25 times the volume, taken over by the panel's OK
};

// Key codes of the rebindable actions, by binding index.
struct KeyBindings
{
    enum Action : std::int16_t
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
        Handbrake = 10,
        Count = 11
    };
    // As designed; the panel of the keys shows and changes them.
    std::array<std::int16_t, Count> Bindings = {platform::KeyCtrl,     platform::KeyTab,    'B',
                                                platform::KeyPageDown, platform::KeyPageUp, 'C',
                                                platform::KeyUp,       platform::KeyDown,   platform::KeyLeft,
                                                platform::KeyRight,    platform::KeySpace};
};

// Indices of the display's elements in the scene lists; -1 until they are made.
struct Hud
{
    std::int16_t Webcam = -1, Repair = -1;                     // Pic2D
    std::int16_t DamageBar = -1;                               // Rect2D
    std::int16_t Unit = -1, Speed = -1, Gear = -1, Place = -1; // Label2D, as all that follow
    std::int16_t Message = -1, LapsCaption = -1, LapCounter = -1, FrameRate = -1, Countdown = -1, Notice = -1;
    std::int16_t Console = -1, Pause = -1, Debug = -1;
};

// What stands as it stands while the program runs. Clocks are the platform's, in milliseconds.
struct RunState
{
    bool Ended = false;                             // the program is to end; nothing reacts any more
    base::Flag AudioReady = base::False;            // set once the audio initialisation has finished; guards closing
    bool OldWndProc = false;                        // finished wave buffers come back as events
    std::string LastCommand;                        // the console's recall
    std::int32_t Fps = 0;                           // frames a second, as last measured
    std::uint32_t FpsLastTime = 0, FpsNextTime = 0; // clock of the last measurement and of the next
    std::int32_t Blink = 0;                         // steps of the title's flicker since it began anew
    std::int32_t NoticeTime = 0; // race clock when the notice was posted: when the present track started
    float Shake = 0;             // amplitude of the webcam picture's jitter, pixels
    bool InBox = false;          // the followed car stands still inside a box
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
    world::TickScratch Scratch;
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
