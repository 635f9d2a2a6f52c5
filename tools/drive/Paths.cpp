// SPDX-License-Identifier: Zlib
#include "tools/drive/Paths.h"

#include "tools/drive/Session.h"

namespace drive
{
namespace
{
constexpr bool ReadOnly = false;

// What stands under settings and keys is kept in several records.
auto SettingsOf(shell::Game& game)
{
    return Merged(Named{"Laps", game.Race.Laps}, All{game.Settings}, Named{"TxtFilter", game.Screen.TxtFilter});
}

auto KeysOf(shell::Game& game)
{
    return Merged(All{game.Keys}, All{game.Bindings});
}

auto WebcamOf(shell::Game& game)
{
    return Merged(All{game.Webcam.Capture}, All{game.Webcam}, Named{"Shake", game.Run.Shake});
}

auto RaceOf(shell::Game& game)
{
    return Merged(All{game.Race}, Named{"NumCheckpoints", game.Race.Map.Checkpoints.Count(), ReadOnly});
}

auto AudioOf(shell::Game& game)
{
    audio::Soundtrack& music = game.Soundtrack;
    return Merged(Named{"AudioReady", game.Run.AudioReady},
                  Named{"Open", base::ToFlag(game.Engine.Handle != platform::NoWave), ReadOnly}, All{game.Engine},
                  All{game.Audio}, All{music}, Named{"MediaCommand", music.Media.Command},
                  Named{"MediaFile", music.Media.FileName});
}

auto ConsoleOf(render::Label2D& label, std::string& lastCommand)
{
    return Merged(Named{"Open", label.Visible}, Named{"Text", label.Text}, Named{"TabWidth", label.TabWidth},
                  Named{"LastCommand", lastCommand});
}

auto RootsOf(shell::Form1& form, headless::Machine& machine)
{
    shell::Game& game = form.State();
    render::Scene& scene = game.Scene;
    world::Map& map = game.Race.Map;
    return Merged(Named{"players", game.Race.Players}, Named{"objects", scene.Objects}, Named{"polys", scene.Polys},
                  Named{"sprites", scene.Sprites}, Named{"particles", scene.Particles}, Named{"pics", scene.Pics},
                  Named{"rects", scene.Rects}, Named{"labels", scene.Labels}, Named{"textures", scene.Textures},
                  Named{"ground", scene.Ground}, Named{"checkpoints", map.Checkpoints.Items},
                  Named{"acheckpoints", map.ACheckpoints.Items}, Named{"boxes", map.Boxes.Items},
                  Named{"grass", map.Grass.Items}, Named{"water", map.Water.Items}, Named{"camera", game.Camera},
                  Named{"screen", game.Screen}, Named{"race", RaceOf(game)}, Named{"settings", SettingsOf(game)},
                  Named{"keys", KeysOf(game)}, Named{"webcam", WebcamOf(game)}, Named{"timers", game.Timers},
                  Named{"audio", AudioOf(game)}, Named{"controls", ControlsView{form.Controls()}},
                  Named{"clipboard", machine.Clipboard});
}

Outcome FollowFromRoots(shell::Form1& form, headless::Machine& machine, Steps steps, const Visit& use)
{
    shell::Game& game = form.State();
    if (steps[0].Name == "console" && game.Scene.Labels.Has(game.Hud.Console))
    {
        auto console = ConsoleOf(game.Scene.Labels.At(game.Hud.Console), game.Run.LastCommand);
        return Follow(ValueOf(console), steps.subspan(1), use);
    }
    auto roots = RootsOf(form, machine);
    return Follow(ValueOf(roots), steps, use);
}
}

Outcome Peek(shell::Form1& form, headless::Machine& machine, std::string_view path, std::string& json)
{
    const std::optional<std::vector<Step>> steps = ParsePath(path);
    return steps ? FollowFromRoots(form, machine, *steps, Reader(json)) : Outcome::NoSuchPath;
}

Outcome Find(shell::Form1& form, headless::Machine& machine, std::string_view path)
{
    const std::optional<std::vector<Step>> steps = ParsePath(path);
    return steps ? FollowFromRoots(form, machine, *steps, [](const Value&) { return Outcome::Done; })
                 : Outcome::NoSuchPath;
}

Outcome Poke(shell::Form1& form, headless::Machine& machine, std::string_view path, std::string_view text)
{
    const std::optional<std::vector<Step>> steps = ParsePath(path);
    if (!steps)
        return Outcome::NoSuchPath;
    // A timer that is switched counts from now, not from the last time it was told the clock.
    if (steps->front().Name == "timers")
        for (shell::TickTimer* timer :
             {&form.State().Timers.GameT, &form.State().Timers.RenderT, &form.State().Timers.CaptureT})
            timer->Advance(machine.Clock);
    const Outcome outcome = FollowFromRoots(form, machine, *steps, Writer(text));
    const bool turned = path == "camera.CamYaw" || path == "camera.CamPitch";
    if (outcome == Outcome::Done && turned)
        render::UpdateCameraTrig(form.State().Camera);
    return outcome;
}

void RequireDone(Outcome outcome)
{
    switch (outcome)
    {
    case Outcome::Done:
        return;
    case Outcome::NoSuchPath:
        throw Refusal{"there is no such path"};
    case Outcome::NotOneValue:
        throw Refusal{"only one number or text can be set"};
    case Outcome::ReadOnly:
        throw Refusal{"the field cannot be set"};
    case Outcome::BadValue:
        throw Refusal{"the value does not fit the field"};
    }
}
}
