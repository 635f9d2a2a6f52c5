// SPDX-License-Identifier: Zlib
// Whatever hands do to a panel, in whatever order: its marks stay true and it can be painted.
#include "base/Random.h"
#include "tests/support/Panel.h"

#include <gtest/gtest.h>

namespace
{
struct RandomInput : testing::TestWithParam<std::uint64_t>, support::Panel
{
    base::Random Draws;

    std::int32_t Below(std::int32_t count) { return base::Floor(Draws.Next() * count); }
    platform::Point Place() { return {Below(360) - 30, Below(260) - 30}; }
    std::string Bytes()
    {
        std::string text;
        for (int i = Below(Below(8) == 0 ? 3000 : 30); i > 0; --i)
            text += static_cast<char>(Below(256));
        return text;
    }
    std::int16_t Key()
    {
        constexpr std::int16_t likely[] = {Backspace, Tab,  Enter, Shift, Ctrl, Alt,    Esc,    Space, End,
                                           Home,      Left, Up,    Right, Down, Insert, Delete, F4};
        return Below(4) == 0 ? static_cast<std::int16_t>(Below(65536) - 32768)
                             : likely[static_cast<std::size_t>(Below(static_cast<int>(std::size(likely))))];
    }
    forms::Control& Any()
    {
        return Form.Controls[static_cast<std::size_t>(Below(static_cast<int>(Form.Controls.size())))];
    }
    void Disturb()
    {
        switch (Below(6))
        {
        case 0:
            Any().Visible = base::ToFlag(Below(4) != 0);
            break;
        case 1:
            Any().Enabled = base::ToFlag(Below(4) != 0);
            break;
        case 2:
            At("text").Text = Bytes();
            break;
        case 3:
            At("combo").Items.assign(static_cast<std::size_t>(Below(60)), Bytes());
            break;
        case 4:
            Form.Client = {40 + Below(300), 30 + Below(200)};
            break;
        default:
            Form.Focus = static_cast<std::int16_t>(Below(14) - 3);
        }
    }
    void Step()
    {
        switch (Below(9))
        {
        case 0:
        case 1:
            Input.KeyDown(Key());
            break;
        case 2:
            Input.KeyUp(Key());
            break;
        case 3:
            Character(static_cast<std::uint8_t>(Below(256)));
            break;
        case 4:
            Input.MouseDown(Place(), Now += static_cast<std::uint32_t>(Below(400)));
            break;
        case 5:
            Input.MouseMove(Below(2) == 0, Place());
            break;
        case 6:
            Input.MouseUp(Place());
            break;
        case 7:
            Clipboard = Bytes();
            Character(CtrlV);
            break;
        default:
            Disturb();
        }
    }
    void Check()
    {
        const auto count = static_cast<std::int16_t>(Form.Controls.size());
        for (const std::int16_t mark : {Marks().Hot, Marks().Pressed, Marks().List.Owner})
        {
            ASSERT_GE(mark, -1);
            ASSERT_LT(mark, count);
        }
        ASSERT_LT(Form.Focus, count);
        if (Form.Focus >= 0)
        {
            const std::string& text = Form.Controls[static_cast<std::size_t>(Form.Focus)].Text;
            ASSERT_LE(Edit().Caret, text.size());
            ASSERT_LE(Edit().Anchor, text.size());
        }
        if (IsListOpen())
        {
            ASSERT_LT(Marks().List.Item, static_cast<std::int32_t>(At("combo").Items.size()));
            ASSERT_GE(Marks().List.First, 0);
            ASSERT_LE(Marks().List.First + List().Rows, static_cast<std::int32_t>(At("combo").Items.size()));
        }
    }
};

TEST_P(RandomInput, IsStood)
{
    Draws.Seed(GetParam());
    for (int i = 0; i < 3000; ++i)
    {
        Step();
        Settle();
        Check();
        if (HasFatalFailure())
            return;
        if (i % 40 == 0)
            Paint();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomInput, testing::Values(1, 2, 3, 4, 5, 6));
}
