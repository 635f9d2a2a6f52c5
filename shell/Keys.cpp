// Keys during a race: held flags, the rebindable one-shot actions, the fixed keys. The rebindable ones are asked first,
// in a fixed order: one that is bound to a fixed key takes that key over.
#include "shell/Form1.h"

namespace shell
{
namespace
{
using Action = KeyBindings::Action;

constexpr std::int16_t KeyEsc = 27, KeyP = 80;
constexpr std::int16_t FirstViewKey = 49, LastViewKey = 55; // "1" to "7"

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

void Form1::Form_KeyDown(std::int16_t code)
{
    if (TheGame.Timers.RenderT.Enabled == base::False || IsConsoleOpen())
        return;
    // Deliberate: a key that is held skips again with each of its repeats.
    if (!SetHeldKey(code, base::True) && TheGame.Bindings.Bindings[Action::NextMusic] == code)
    {
        TheGame.Soundtrack.Unplayable = 0;
        MMC_Done(platform::MediaSuccessful);
    }
}

void Form1::Form_KeyUp(std::int16_t code)
{
    if (TheGame.Timers.RenderT.Enabled == base::False)
        return;
    if (IsConsoleOpen())
        return ConsoleKeyUp(code);
    if (!SetHeldKey(code, base::False) && !BoundKeyUp(code))
        FixedKeyUp(code);
}

bool Form1::SetHeldKey(std::int16_t code, base::Flag held)
{
    for (const HeldAction& action : HeldActions)
        if (TheGame.Bindings.Bindings[action.Binding] == code)
        {
            TheGame.Keys.*action.Flag = held;
            return true;
        }
    return false;
}

bool Form1::BoundKeyUp(std::int16_t code)
{
    const auto isBoundTo = [&](Action action) { return TheGame.Bindings.Bindings[action] == code; };
    world::Race& race = TheGame.Race;
    if (isBoundTo(Action::Autopilot))
    {
        world::Player* user = world::FindPlayer(race, race.UserPlayer);
        if (race.RaceOver != base::False && user != nullptr)
            user->Control = user->Control == 0 ? 1 : 0;
    }
    else if (isBoundTo(Action::NextPlayer))
        StepViewPlayer(1);
    else if (isBoundTo(Action::PreviousPlayer))
        StepViewPlayer(-1);
    else if (isBoundTo(Action::ChangeView))
        TheGame.Camera.View = static_cast<std::int16_t>((TheGame.Camera.View + 1) % 3);
    else
        return false;
    return true;
}

void Form1::StepViewPlayer(int step)
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

void Form1::FixedKeyUp(std::int16_t code)
{
    if (code >= FirstViewKey && code <= LastViewKey)
        TheGame.Camera.View = static_cast<std::int16_t>(code - FirstViewKey);
    else if (code == KeyEsc)
    {
        StopProcess();
        ShowMenu();
    }
    else if (code == KeyP)
        TogglePause();
    else
        ConsoleKeyUp(code);
}
}
