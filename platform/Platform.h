// platform/Platform.h: everything the game needs from outside. Back ends: win32, sdl, headless. A back end never
// decides anything about the game. Runs on the window's thread throughout.
// Texts are UTF-8. Sizes and positions are pixels, screen positions with y downward from the top left corner.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "platform/Sound.h"
#include "platform/Webcam.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace platform
{
struct Point
{
    std::int32_t X = 0, Y = 0;
};

struct Size
{
    std::int32_t Width = 0, Height = 0;
};

// Key codes are the virtual-key codes of the Windows keyboard (37 is the left arrow, 220 the key that types "\").
// Mouse positions are pixels of the client area, y downward. Buttons: 1 left, 2 right, 4 middle.
struct WindowEvents
{
    virtual ~WindowEvents() = default;
    virtual void KeyDown(std::int16_t code) = 0; // repeats while held
    virtual void KeyUp(std::int16_t code) = 0;
    virtual void KeyPress(std::uint8_t code) = 0; // a typed character of the system code page, 1 to 26 with Ctrl
    virtual void MouseDown(int button, Point at) = 0;
    virtual void MouseMove(int buttons, Point at) = 0; // buttons: the sum of those held
    virtual void MouseUp(int button, Point at) = 0;
    virtual void Resized() = 0; // the client area has another size
    virtual void Paint() = 0;   // the client area must be shown again
    // The user closes the window. False refuses.
    virtual bool CloseAsked() = 0;
    virtual void WaveDone(std::int32_t user) = 0;                        // that buffer of the wave device has come back
    virtual void MediaDone(std::uint32_t number, std::int32_t code) = 0; // the music file of that Play has ended
};

struct Window : base::MessageSink
{
    virtual void Show(bool visible) = 0;
    virtual void SetTitle(const std::string& title) = 0;
    virtual Size ClientSize() = 0;
    virtual void SetClientSize(Size size) = 0; // not while full screen
    virtual Point Position() = 0;
    virtual void Move(Point position) = 0;
    virtual void SetFullScreen(bool on) = 0; // covers its display from (0, 0); off restores size and place
    virtual void ShowCursor(bool visible) = 0;
    virtual Point CursorPosition() = 0; // on the screen
    // Stretches the picture over the client area, nearest pixel. `bits`: bottom-up rows of blue, green, red, each row
    // padded to 4 bytes; borrowed for this call.
    virtual void Present(int width, int height, std::span<const std::uint8_t> bits) = 0;
    virtual std::string ClipboardText() = 0;
    virtual void SetClipboardText(const std::string& text) = 0;
};

// What drives the windows: the timers and the wish to end.
struct Program
{
    virtual ~Program() = default;
    virtual std::uint32_t NextTimer() = 0; // milliseconds until a timer is due; 0 now; UINT32_MAX none
    virtual void RunTimers() = 0;          // fires what is due
    virtual bool Ended() = 0;
};

struct Platform
{
    virtual ~Platform() = default;
    virtual const base::Files& DataFiles() = 0; // the folder of data\ and soundtracks\ (see base/Files.h)
    virtual std::uint32_t TickCount() = 0;      // milliseconds, wraps at 2^32; headless: moves only when a script says
    virtual std::uint64_t ClockSeed() = 0;      // differs from start to start
    virtual int ProcessorCount() = 0;
    virtual bool IsFirstInstance() = 0;
    // A borderless window, hidden until shown. `events` outlives it.
    virtual std::unique_ptr<Window> MakeWindow(WindowEvents& events, Size size) = 0;
    // Their events go to the window, which outlives them. Nothing is opened yet.
    virtual std::unique_ptr<WaveOut> MakeWaveOut(Window& window) = 0;
    virtual std::unique_ptr<MusicPlayer> MakeMusicPlayer(Window& window) = 0;
    // Handles the window events that are waiting, without waiting for any.
    virtual void PumpEvents() = 0;
    // Handles window events for so long. Headless: the clock goes on by it.
    virtual void WaitEvents(std::uint32_t milliseconds) = 0;
    virtual Webcam& WebcamDevice() = 0;
};
}
