// SPDX-License-Identifier: Zlib
// tests/support/LoadedForm.h: the main window over a small world, on a machine whose clock moves only when told.
#pragma once
#include "platform/headless/Machine.h"
#include "shell/Form1.h"
#include "tests/support/SmallWorld.h"

#include <algorithm>

namespace support
{
struct LoadedForm
{
    SmallWorld World;
    headless::Machine Machine{World.Files()};
    shell::Form1 Form{Machine};

    shell::Game& Game() { return Form.State(); }
    headless::Window& Window() { return static_cast<headless::Window&>(Form.Window()); }
    forms::Control& Control(std::string_view name, std::int16_t index = -1) { return Form.Controls().Get(name, index); }
    render::Label2D& Label(std::int16_t shell::Hud::*which) { return Game().Scene.Labels.At(Game().Hud.*which); }
    world::Player& Player(std::size_t index) { return Game().Race.Players.at(index); }
    render::Obj& Car(std::size_t index) { return Game().Scene.Objects.At(Player(index).Obj); }

    void Load()
    {
        Form.Form_Load();
        Form.Show();
    }
    void StartRace()
    {
        Load();
        Form.Click("cSTART");
    }
    // The clock goes on; every timer fires when it is due.
    void Pass(std::uint32_t milliseconds)
    {
        const std::uint32_t end = Machine.Clock + milliseconds;
        while (!Form.Ended())
        {
            const std::uint32_t next = Form.NextTimer();
            if (next > end - Machine.Clock)
                break;
            Machine.Clock += next;
            Form.RunTimers();
        }
        Machine.Clock = end;
        Form.RunTimers();
    }
    void PressAndRelease(int key)
    {
        const auto code = static_cast<std::int16_t>(key);
        Form.KeyDown(code);
        Form.KeyUp(code);
    }
};
}
