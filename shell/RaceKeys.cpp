// SPDX-License-Identifier: Zlib
#include "shell/RaceKeys.h"

#include "platform/Keys.h"

namespace shell
{
namespace
{
using Action = KeyBindings::Action;

constexpr std::int16_t PauseKey = 'P', FirstViewKey = '1', LastViewKey = '7';

struct HeldAction
{
    Action Binding;
    base::Flag world::HeldKeys::*Flag;
};

constexpr HeldAction HeldActions[] = {
    {Action::Accelerate, &world::HeldKeys::KeyAccel},    {Action::Brake, &world::HeldKeys::KeyBrake},
    {Action::Left, &world::HeldKeys::KeyLeft},           {Action::Right, &world::HeldKeys::KeyRight},
    {Action::Handbrake, &world::HeldKeys::KeyHandbrake}, {Action::LookBack, &world::HeldKeys::KeyLookBack},
};
}

void RaceKeys::Form_KeyDown(std::int16_t code)
{
    if (!RaceShows(TheGame) || Console.IsOpen())
        return;
    // Deliberate: a key that is held skips again with each of its repeats.
    if (!SetHeldKey(code, base::True) && IsBound(Action::NextMusic, code))
        TheSound.SkipTrack();
}

void RaceKeys::Form_KeyUp(std::int16_t code)
{
    if (!RaceShows(TheGame))
        return;
    if (Console.IsOpen())
        return Console.KeyUp(code);
    if (!SetHeldKey(code, base::False) && !BoundKeyUp(code))
        FixedKeyUp(code);
}

void RaceKeys::Form_KeyPress(std::uint8_t code)
{
    if (RaceShows(TheGame))
        Console.KeyPress(code);
}

bool RaceKeys::IsBound(Action action, std::int16_t code) const
{
    return TheGame.Bindings.Bindings[static_cast<std::size_t>(action)] == code;
}

bool RaceKeys::SetHeldKey(std::int16_t code, base::Flag held)
{
    for (const HeldAction& action : HeldActions)
        if (IsBound(action.Binding, code))
        {
            TheGame.Keys.*action.Flag = held;
            return true;
        }
    return false;
}

bool RaceKeys::BoundKeyUp(std::int16_t code)
{
    if (IsBound(Action::Autopilot, code))
        ToggleAutopilot();
    else if (IsBound(Action::NextPlayer, code))
        StepViewPlayer(1);
    else if (IsBound(Action::PreviousPlayer, code))
        StepViewPlayer(-1);
    else if (IsBound(Action::ChangeView, code))
        TheGame.Camera.View = static_cast<std::int16_t>((TheGame.Camera.View + 1) % 3);
    else
        return false;
    return true;
}

// After the finish alone.
void RaceKeys::ToggleAutopilot()
{
    world::Player* user = world::FindPlayer(TheGame.Race, TheGame.Race.UserPlayer);
    if (TheGame.Race.RaceOver != base::False && user != nullptr)
        user->Control = user->Control == 0 ? 1 : 0;
}

void RaceKeys::StepViewPlayer(int step)
{
    const std::int32_t count = TheGame.Race.NumPlayers();
    std::int16_t& viewed = TheGame.Camera.ViewPlayer;
    if (count <= 0)
        return;
    if (step < 0)
        viewed = static_cast<std::int16_t>((viewed <= 0 ? count : viewed) - 1);
    else
        viewed = static_cast<std::int16_t>((viewed + 1) % count);
}

void RaceKeys::FixedKeyUp(std::int16_t code)
{
    if (code >= FirstViewKey && code <= LastViewKey)
        TheGame.Camera.View = static_cast<std::int16_t>(code - FirstViewKey);
    else if (code == platform::KeyEsc)
    {
        Run.StopProcess();
        OpenMenu();
    }
    else if (code == PauseKey)
        Run.TogglePause();
    else
        Console.KeyUp(code);
}
}
