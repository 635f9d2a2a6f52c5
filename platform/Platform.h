// SPDX-License-Identifier: Zlib
// platform/Platform.h: everything the game needs from outside. Back ends: win32, sdl, headless. A back end never
// decides anything about the game. Runs on the window's thread throughout.
// Texts are UTF-8. Sizes and positions are pixels, screen positions with y downward from the top left corner.
#pragma once
#include "base/Files.h"
#include "base/Pixels.h"
#include "base/Trapped.h"
#include "platform/Sound.h"
#include "platform/Webcam.h"

#include <cstdint>
#include <memory>
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

// Listens to a window, and overrides what it wants to know. Events are delivered while the platform handles them
// (PumpEvents, WaitEvents, the back end's main loop), never from inside another call of the window. Key codes are those
// of platform/Keys.h. Mouse positions are pixels of the client area, y downward. Buttons: 1 left, 2 right, 4 middle.
struct WindowEvents
{
    virtual ~WindowEvents() = default;
    virtual void KeyDown(std::int16_t) {} // repeats while held
    virtual void KeyUp(std::int16_t) {}
    virtual void KeyPress(std::uint8_t) {} // a typed character of the system code page, 1 to 26 with Ctrl
    virtual void MouseDown(int /*button*/, Point) {}
    virtual void MouseMove(int /*buttons*/, Point) {} // buttons: the sum of those held
    virtual void MouseUp(int /*button*/, Point) {}
    virtual void Resized() {} // the client area has another size
    virtual void Paint() {}   // the client area must be shown again
    // The user closes the window. False refuses.
    virtual bool CloseAsked() { return true; }
};

// Whether Window::Present takes the picture: it has pixels, and its rows are padded to 4 bytes and no longer.
inline bool IsPresentable(const base::ConstSurface& picture)
{
    return picture.Bytes != nullptr && picture.Width > 0 && picture.Height > 0 &&
           picture.RowBytes == base::PaddedRow(picture.Width);
}

// A window without a border. Full screen it has the size and place of its display. A message box (base::MessageSink)
// blocks until it is dismissed; events wait meanwhile.
struct Window : base::MessageSink
{
    virtual void Show(bool visible) = 0; // shown, it comes to the front
    virtual void SetTitle(const std::string& title) = 0;
    virtual Size ClientSize() = 0;
    virtual void SetClientSize(Size size) = 0; // not while full screen
    virtual Point Position() = 0;
    virtual void Move(Point position) = 0;
    virtual void SetFullScreen(bool on) = 0; // covers its display from (0, 0); off restores size and place
    virtual void ShowCursor(bool visible) = 0;
    virtual Point CursorPosition() = 0; // on the screen
    // Stretches the picture over the client area, nearest pixel. Row 0 is the bottom one. Borrowed for this call.
    // Nothing happens where it is not presentable.
    virtual void Present(const base::ConstSurface& picture) = 0;
    virtual std::string ClipboardText() = 0; // empty where there is no text; a long one is cut
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
    virtual bool IsFirstInstance() = 0; // of this program and user; stays so until the platform ends
    // A borderless window, hidden until shown. `events` outlives it.
    virtual std::unique_ptr<Window> MakeWindow(WindowEvents& events, Size size) = 0;
    // `events` outlives the device. Nothing is opened yet.
    virtual std::unique_ptr<WaveOut> MakeWaveOut(WaveEvents& events) = 0;
    virtual std::unique_ptr<MusicPlayer> MakeMusicPlayer(MusicEvents& events) = 0;
    // Handles the events that are waiting, without waiting for any.
    virtual void PumpEvents() = 0;
    // Handles events for so long. Headless: the clock goes on by it.
    virtual void WaitEvents(std::uint32_t milliseconds) = 0;
    virtual Webcam& WebcamDevice() = 0; // lives as long as the platform
};
}
