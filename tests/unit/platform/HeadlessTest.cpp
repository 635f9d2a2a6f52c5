#include "platform/headless/Machine.h"

#include <gtest/gtest.h>

#include <array>

namespace
{
// Counts what a window tells.
struct Events : platform::WindowEvents
{
    int Resizes = 0, Paints = 0;

    void KeyDown(std::int16_t) override {}
    void KeyUp(std::int16_t) override {}
    void KeyPress(std::uint8_t) override {}
    void MouseDown(int, platform::Point) override {}
    void MouseMove(int, platform::Point) override {}
    void MouseUp(int, platform::Point) override {}
    void Resized() override { ++Resizes; }
    void Paint() override { ++Paints; }
    bool CloseAsked() override { return true; }
};

struct Headless : testing::Test
{
    headless::Machine Machine{base::Files()};
    Events Heard;
    std::unique_ptr<platform::Window> Window = Machine.MakeWindow(Heard, {4, 2});

    headless::Image Screenshot() { return static_cast<headless::Window&>(*Window).Screenshot(); }
};
}

TEST_F(Headless, TheClockMovesOnlyWhenTold)
{
    EXPECT_EQ(Machine.TickCount(), 0u);
    Machine.Clock += 25;
    EXPECT_EQ(Machine.TickCount(), 25u);
}

TEST_F(Headless, MessageBoxesAreRecordedUpToALimit)
{
    Window->ShowMessage(base::Icon::Exclamation, "Velkar", "uno");
    ASSERT_EQ(Machine.Boxes.size(), 1u);
    EXPECT_EQ(Machine.Boxes[0].Icon, base::Icon::Exclamation);
    EXPECT_EQ(Machine.Boxes[0].Title, "Velkar");
    EXPECT_EQ(Machine.Boxes[0].Text, "uno");
    for (std::size_t i = 0; i < headless::Machine::MostBoxes; ++i)
        Window->ShowMessage(base::Icon::Critical, "", "");
    EXPECT_EQ(Machine.Boxes.size(), headless::Machine::MostBoxes);
    EXPECT_EQ(Machine.UnrecordedBoxes, 1u);
}

TEST_F(Headless, PaintsOnceWhenShownAndAgainAfterAResize)
{
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 0);
    Window->Show(true);
    Machine.PumpEvents();
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 1);
    EXPECT_EQ(Heard.Resizes, 0);
    Window->SetClientSize({4, 2}); // the size it has
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 1);
    Window->SetClientSize({6, 2});
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 2);
    EXPECT_EQ(Heard.Resizes, 1);
}

TEST_F(Headless, FullScreenCoversTheDisplayAndGivesTheOldPlaceBack)
{
    Window->Move({30, 40});
    Window->SetFullScreen(true);
    EXPECT_EQ(Window->ClientSize().Width, Machine.Display.Width);
    EXPECT_EQ(Window->Position().X, 0);
    Window->Move({1, 1});
    Window->SetClientSize({9, 9});
    Window->SetFullScreen(false);
    EXPECT_EQ(Window->ClientSize().Width, 4);
    EXPECT_EQ(Window->ClientSize().Height, 2);
    EXPECT_EQ(Window->Position().X, 30);
    EXPECT_EQ(Window->Position().Y, 40);
}

TEST_F(Headless, SizesAreKeptWithinReason)
{
    Window->SetClientSize({-5, 2'000'000'000});
    EXPECT_EQ(Window->ClientSize().Width, 1);
    EXPECT_EQ(Window->ClientSize().Height, 4096);
}

TEST_F(Headless, ShowsThePresentedPictureStretchedToTheNearestPixel)
{
    EXPECT_EQ(Screenshot().Bits, std::vector<std::uint8_t>(24, 0)); // black before the first
    // Two columns and one row: (1, 2, 3) and (4, 5, 6), padded to 8 bytes.
    const std::array<std::uint8_t, 8> bits = {1, 2, 3, 4, 5, 6, 0, 0};
    Window->Present(2, 1, bits);
    const std::vector<std::uint8_t> row = {1, 2, 3, 1, 2, 3, 4, 5, 6, 4, 5, 6};
    std::vector<std::uint8_t> both = row;
    both.insert(both.end(), row.begin(), row.end());
    EXPECT_EQ(Screenshot().Bits, both);
    Window->SetClientSize({1, 1});
    EXPECT_EQ(Screenshot().Bits, (std::vector<std::uint8_t>{1, 2, 3, 0}));
}

TEST_F(Headless, APictureShorterThanItClaimsIsNotTaken)
{
    const std::array<std::uint8_t, 8> bits = {9, 9, 9, 9, 9, 9, 9, 9};
    Window->Present(2, 2, bits);
    Window->Present(0, 1, bits);
    EXPECT_EQ(Screenshot().Bits, std::vector<std::uint8_t>(24, 0));
}

TEST_F(Headless, TheClipboardIsTheMachines)
{
    Window->SetClipboardText("testo");
    EXPECT_EQ(Machine.Clipboard, "testo");
    Machine.Clipboard = "altro";
    EXPECT_EQ(Window->ClipboardText(), "altro");
}

TEST_F(Headless, AWindowThatIsGoneHearsNothing)
{
    Window->Show(true);
    Window.reset();
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 0);
}
