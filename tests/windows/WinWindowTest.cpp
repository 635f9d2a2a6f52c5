// SPDX-License-Identifier: Zlib
// A real window of the back end that gets messages as the system sends them.
#include "platform/win32/WinWindow.h"
#include "platform/win32/MessageWindow.h"
#include "platform/win32/WinPlatform.h"

#include <gmock/gmock.h>

#include <mmsystem.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace
{
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// The events that arrive, a word each.
struct Words final : platform::WindowEvents
{
    std::vector<std::string> Arrived;

    template <class... Parts> void Add(const Parts&... parts)
    {
        std::ostringstream word;
        (word << ... << parts);
        Arrived.push_back(word.str());
    }
    void AddAt(const char* what, int button, platform::Point at) { Add(what, button, ' ', at.X, ',', at.Y); }
    void KeyDown(std::int16_t code) override { Add("down ", code); }
    void KeyUp(std::int16_t code) override { Add("up ", code); }
    void KeyPress(std::uint8_t code) override { Add("char ", int{code}); }
    void MouseDown(int button, platform::Point at) override { AddAt("press ", button, at); }
    void MouseMove(int buttons, platform::Point at) override { AddAt("move ", buttons, at); }
    void MouseUp(int button, platform::Point at) override { AddAt("release ", button, at); }
    void Resized() override { Arrived.push_back("size"); }
    void Paint() override { Arrived.push_back("paint"); }
    bool CloseAsked() override
    {
        Arrived.push_back("close");
        return true;
    }
};

struct WinWindow : testing::Test
{
    win32::WinPlatform Platform{".", "."};
    Words Heard;
    std::unique_ptr<platform::Window> Made = Platform.MakeWindow(Heard, {600, 312});
    win32::WinWindow& Window = static_cast<win32::WinWindow&>(*Made);

    void SetUp() override
    {
        Platform.PumpEvents();
        Heard.Arrived.clear();
    }
    // Shown and at rest, so that nothing but the test sends it anything.
    void ShowIt()
    {
        Window.Show(true);
        Platform.WaitEvents(300);
        Heard.Arrived.clear();
    }
    void Send(UINT message, WPARAM first, LPARAM second = 0) { SendMessageW(Window.Handle(), message, first, second); }
    std::vector<std::string> Hear()
    {
        Platform.PumpEvents();
        return std::exchange(Heard.Arrived, {});
    }
};

TEST_F(WinWindow, TellsNothingInTheMiddleOfACall)
{
    Window.SetClientSize({320, 200});
    EXPECT_THAT(Heard.Arrived, IsEmpty());
    EXPECT_EQ(Window.ClientSize().Width, 320);
    EXPECT_EQ(Window.ClientSize().Height, 200);
    EXPECT_THAT(Hear(), ElementsAre("size"));
    Window.SetClientSize({320, 200});
    EXPECT_THAT(Hear(), IsEmpty());
}

TEST_F(WinWindow, KeysAndCharacters)
{
    Send(WM_KEYDOWN, VK_LEFT);
    Send(WM_KEYDOWN, VK_LEFT, 1 << 30);
    Send(WM_KEYUP, VK_LEFT);
    Send(WM_CHAR, 0xE8);
    Send(WM_CHAR, 31);
    EXPECT_THAT(Hear(), ElementsAre("down 37", "down 37", "up 37", "char 232"));
}

TEST_F(WinWindow, AltAndF10AreKeysLikeOthers)
{
    constexpr LPARAM alt = 1 << 29;
    Send(WM_SYSKEYDOWN, VK_MENU, alt);
    Send(WM_SYSKEYDOWN, 'A', alt);
    Send(WM_SYSCHAR, 'a', alt);
    Send(WM_SYSKEYUP, 'A', alt);
    Send(WM_SYSKEYUP, VK_MENU);
    Send(WM_SYSKEYDOWN, VK_F10);
    Send(WM_SYSKEYUP, VK_F10);
    EXPECT_THAT(Hear(), ElementsAre("down 18", "down 65", "up 65", "up 18", "down 121", "up 121"));
    Send(WM_SYSKEYDOWN, VK_F4, alt);
    EXPECT_THAT(Hear(), ElementsAre("close"));
}

TEST_F(WinWindow, LetsGoOfHeldKeysWithTheFocus)
{
    Send(WM_KEYDOWN, VK_UP);
    Send(WM_KEYDOWN, 'B');
    Send(WM_KEYUP, 'B');
    Send(WM_KILLFOCUS, 0);
    Send(WM_KILLFOCUS, 0);
    EXPECT_THAT(Hear(), ElementsAre("down 38", "down 66", "up 66", "up 38"));
}

TEST_F(WinWindow, TheMouseBelongsToItWhileAButtonIsHeld)
{
    ShowIt();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 20));
    EXPECT_EQ(GetCapture(), Window.Handle());
    Send(WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(10, 20));
    Send(WM_MOUSEMOVE, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(0xFFFF, 0xFFFE)); // left of it and above
    Send(WM_LBUTTONUP, MK_RBUTTON, MAKELPARAM(700, 400));
    EXPECT_EQ(GetCapture(), Window.Handle());
    Send(WM_RBUTTONUP, 0, MAKELPARAM(700, 400));
    EXPECT_EQ(GetCapture(), nullptr);
    const auto arrived = Hear();
    for (const char* word :
         {"press 1 10,20", "press 2 10,20", "move 3 -1,-2", "release 1 700,400", "release 2 700,400"})
        EXPECT_THAT(arrived, Contains(word));
}

TEST_F(WinWindow, LetsGoOfAButtonOutsideWhereTheMouseIsTaken)
{
    ShowIt();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 20));
    ReleaseCapture();
    const auto arrived = Hear();
    EXPECT_THAT(arrived, Contains("release 1 -1,-1"));
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 20));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(11, 20));
    EXPECT_THAT(Hear(), Not(Contains("release 1 -1,-1")));
}

TEST_F(WinWindow, OfManyMotionsTheLastArrives)
{
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(1, 1));
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(2, 1));
    Send(WM_KEYDOWN, 'C');
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(3, 1));
    const auto arrived = Hear();
    ASSERT_GE(arrived.size(), 3u);
    EXPECT_THAT(std::vector(arrived.begin(), arrived.begin() + 3), ElementsAre("move 0 2,1", "down 67", "move 0 3,1"));
}

TEST_F(WinWindow, ClosesWhenItsReceiverSays)
{
    Send(WM_CLOSE, 0);
    EXPECT_TRUE(IsWindow(Window.Handle()));
    EXPECT_THAT(Hear(), ElementsAre("close"));
}

TEST_F(WinWindow, AMessageWindowHandsOnWhatIsPosted)
{
    std::vector<std::pair<WPARAM, LPARAM>> arrived;
    const auto receive = [&](UINT message, WPARAM flags, LPARAM number)
    {
        if (message == MM_MCINOTIFY)
            arrived.emplace_back(flags, number);
    };
    {
        const win32::MessageWindow messages(receive), others;
        ASSERT_NE(messages.Handle(), nullptr);
        PostMessageW(messages.Handle(), MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL, 7);
        PostMessageW(others.Handle(), MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL, 8);
        Platform.PumpEvents();
        EXPECT_THAT(arrived, ElementsAre(std::pair<WPARAM, LPARAM>(MCI_NOTIFY_SUCCESSFUL, 7)));
        PostMessageW(messages.Handle(), MM_MCINOTIFY, MCI_NOTIFY_SUCCESSFUL, 9);
    }
    Platform.PumpEvents();
    EXPECT_EQ(arrived.size(), 1u); // what waits for a window that is gone arrives nowhere
}

TEST_F(WinWindow, CoversItsDisplayAndComesBack)
{
    ShowIt();
    Window.Move({50, 60});
    Window.SetFullScreen(true);
    Platform.WaitEvents(300);
    EXPECT_EQ(Window.Position().X, 0);
    EXPECT_EQ(Window.Position().Y, 0);
    EXPECT_EQ(Window.ClientSize().Width, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(Window.ClientSize().Height, GetSystemMetrics(SM_CYSCREEN));
    Window.SetFullScreen(false);
    Platform.WaitEvents(300);
    EXPECT_EQ(Window.Position().X, 50);
    EXPECT_EQ(Window.Position().Y, 60);
    EXPECT_EQ(Window.ClientSize().Width, 600);
    EXPECT_EQ(Window.ClientSize().Height, 312);
}

TEST_F(WinWindow, KeepsSizeAndPlaceWhileMinimised)
{
    ShowIt();
    Window.Move({50, 60});
    Platform.WaitEvents(100);
    Heard.Arrived.clear();
    ShowWindow(Window.Handle(), SW_MINIMIZE);
    Platform.WaitEvents(300);
    EXPECT_EQ(Window.Position().X, 50);
    EXPECT_EQ(Window.ClientSize().Width, 600);
    EXPECT_THAT(Heard.Arrived, Not(Contains("size")));
    ShowWindow(Window.Handle(), SW_RESTORE);
    Platform.WaitEvents(300);
    EXPECT_THAT(Heard.Arrived, Contains("paint"));
    EXPECT_EQ(Window.ClientSize().Width, 600);
}

// Two rows of two pixels, padded to 8 bytes, the lower row first.
TEST_F(WinWindow, PresentStretchesByTheNearestPixel)
{
    ShowIt();
    const std::vector<std::uint8_t> bits = {255, 0, 0,   0,   255, 0,   9, 9,  // blue, green
                                            0,   0, 255, 255, 255, 255, 9, 9}; // red, white
    Window.Present({bits.data(), 8, 2, 2});
    const HDC canvas = GetDC(Window.Handle());
    EXPECT_EQ(GetPixel(canvas, 299, 155), RGB(255, 0, 0));
    EXPECT_EQ(GetPixel(canvas, 300, 155), RGB(255, 255, 255));
    EXPECT_EQ(GetPixel(canvas, 299, 156), RGB(0, 0, 255));
    EXPECT_EQ(GetPixel(canvas, 300, 156), RGB(0, 255, 0));
    ReleaseDC(Window.Handle(), canvas);
}

TEST_F(WinWindow, PresentRefusesAPictureWithoutPixelsOrWithOtherRows)
{
    ShowIt();
    const std::vector<std::uint8_t> shown(16, 200), refused(32, 100);
    Window.Present({shown.data(), 8, 2, 2});
    Window.Present({refused.data(), 6, 2, 2});  // not padded
    Window.Present({refused.data(), 12, 2, 2}); // longer than padded
    Window.Present({refused.data(), 0, 0, 2});
    Window.Present({nullptr, 8, 2, 2});
    const HDC canvas = GetDC(Window.Handle());
    EXPECT_EQ(GetPixel(canvas, 0, 0), RGB(200, 200, 200));
    ReleaseDC(Window.Handle(), canvas);
}

TEST_F(WinWindow, TheClipboardKeepsItsText)
{
    const std::string text = "citt\xC3\xA0 \xE2\x82\xAC \xF0\x9F\x98\x80";
    Window.SetClipboardText(text);
    EXPECT_EQ(Window.ClipboardText(), text);
    Window.SetClipboardText("");
    EXPECT_EQ(Window.ClipboardText(), "");
}

TEST(WinPlatform, WaitsAsLongAsItIsTold)
{
    win32::WinPlatform platform(".", ".");
    Words heard;
    const auto window = platform.MakeWindow(heard, {100, 100});
    const std::uint32_t start = platform.TickCount();
    platform.WaitEvents(120);
    const std::uint32_t passed = platform.TickCount() - start;
    EXPECT_GE(passed, 120u);
    EXPECT_LT(passed, 2000u);
}

// Ticks a few times, 20 milliseconds apart.
struct Ticking final : platform::Program
{
    explicit Ticking(win32::WinPlatform& platform) : Platform(platform), Due(platform.TickCount() + Interval) {}
    std::uint32_t NextTimer() override
    {
        const auto left = static_cast<std::int32_t>(Due - Platform.TickCount());
        return left > 0 ? static_cast<std::uint32_t>(left) : 0;
    }
    void RunTimers() override
    {
        if (NextTimer() > 0)
            return;
        Due += Interval;
        ++Ticks;
    }
    bool Ended() override { return Ticks == 10; }

    static constexpr std::uint32_t Interval = 20;
    win32::WinPlatform& Platform;
    std::uint32_t Due;
    int Ticks = 0;
};

TEST(WinPlatform, RunsTheTimersWhenTheyAreDue)
{
    win32::WinPlatform platform(".", ".");
    Words heard;
    const auto window = platform.MakeWindow(heard, {100, 100});
    const std::uint32_t start = platform.TickCount();
    Ticking program(platform);
    platform.Run(program);
    EXPECT_EQ(program.Ticks, 10);
    EXPECT_GE(platform.TickCount() - start, 200u);
}

TEST(WinPlatform, TheFirstInstanceStaysTheFirst)
{
    win32::WinPlatform second(".", ".");
    {
        win32::WinPlatform first(".", ".");
        EXPECT_TRUE(first.IsFirstInstance());
        EXPECT_TRUE(first.IsFirstInstance());
        EXPECT_FALSE(second.IsFirstInstance());
    }
    EXPECT_TRUE(second.IsFirstInstance());
}
}
