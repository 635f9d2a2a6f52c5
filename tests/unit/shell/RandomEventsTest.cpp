// SPDX-License-Identifier: Zlib
// Whatever comes in whatever order, the window stands it: keys, clicks, panels over a race, other sizes, the clock.
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
struct RandomEvents : testing::TestWithParam<std::uint64_t>, support::LoadedForm
{
    base::Random Draws;

    std::int32_t Below(std::int32_t count) { return base::Floor(Draws.Next() * count); }
    std::int16_t Key() { return static_cast<std::int16_t>(Below(240) - 4); }
    // Mostly on a control.
    platform::Point Place()
    {
        if (Below(4) == 0)
            return {Below(700) - 50, Below(400) - 50};
        const forms::Rect place = Form.Controls().PlaceOf(AnyControl());
        return {place.X + Below(place.W + 2), place.Y + Below(place.H + 2)};
    }

    void ClickSomething()
    {
        const forms::Control& control = AnyControl();
        if (control.Name != "cEXIT")
            Form.Click(control.Name, control.Index);
    }
    std::string Bytes()
    {
        std::string text;
        for (int i = Below(Below(10) == 0 ? 5000 : 12); i > 0; --i)
            text += static_cast<char>(Below(256));
        return text;
    }
    forms::Control& AnyControl()
    {
        auto& controls = Form.Controls().Controls;
        return controls[static_cast<std::size_t>(Below(static_cast<int>(controls.size())))];
    }
    void SpoilSomething()
    {
        const auto value = static_cast<std::int16_t>(Below(65536) - 32768);
        switch (Below(10))
        {
        case 7:
            AnyControl().Text = Bytes();
            break;
        case 8:
            AnyControl().Value = value;
            break;
        case 9:
            Machine.Clipboard = Bytes();
            break;
        case 0:
            Game().Camera.ViewPlayer = value;
            break;
        case 1:
            Game().Camera.View = value;
            break;
        case 2:
            Game().Race.UserPlayer = value;
            break;
        case 3:
            Game().Timers.GameT.Elapsed = value * 4000;
            break;
        case 4:
            Player(0).Speed = std::numeric_limits<float>::infinity();
            break;
        case 5:
            Player(1).NextCheckpoint = value;
            break;
        default:
            Game().Camera.CamYaw = std::numeric_limits<float>::quiet_NaN();
        }
    }
    void Step()
    {
        switch (Below(10))
        {
        case 0:
            Form.KeyDown(Key());
            break;
        case 1:
            Form.KeyUp(Key());
            break;
        case 2:
            Form.KeyPress(static_cast<std::uint8_t>(Below(256)));
            break;
        case 3:
            Form.MouseDown(1 << Below(3), Place());
            break;
        case 4:
            Form.MouseMove(Below(8), Place());
            break;
        case 5:
            if (const platform::Point at = Place(); Form.Controls().At(at.X, at.Y) != &Control("cEXIT"))
                Form.MouseUp(1 << Below(3), at);
            break;
        case 6:
            ClickSomething();
            break;
        case 7:
            Window().SetClientSize({240 + Below(400), 200 + Below(300)});
            Machine.PumpEvents();
            break;
        case 8:
            SpoilSomething();
            break;
        default:
            Pass(static_cast<std::uint32_t>(Below(120)));
        }
    }
};

TEST_P(RandomEvents, AreStood)
{
    Draws.Seed(GetParam());
    Load();
    for (int i = 0; i < 600 && !Form.Ended(); ++i)
        Step();
    for (const headless::Box& box : Machine.Boxes)
        EXPECT_NE(box.Icon, base::Icon::Critical) << box.Title << " " << box.Text; // options may be refused
    Game().Run.AudioReady = -1;
    EXPECT_TRUE(Form.CloseAsked());
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEvents, testing::Values(1, 2, 3, 4));
}
