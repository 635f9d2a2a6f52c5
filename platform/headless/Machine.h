// SPDX-License-Identifier: Zlib
// platform/headless/Machine.h: the machine that no one looks at: a virtual clock, message boxes that are recorded and
// answered with OK, windows that remember what they show. Tests, benchmarks and velkar-drive run on it; nothing here
// reads a clock, a device or a screen, so the same script gives the same bytes.
#pragma once
#include "platform/headless/Sound.h"
#include "platform/headless/Webcam.h"
#include "platform/Platform.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace headless
{
struct Box
{
    base::Icon Icon = base::Icon::Critical;
    std::string Title, Text;
};

class Machine;

class Window final : public platform::Window
{
public:
    Window(Machine& machine, platform::WindowEvents& events, platform::Size size);
    ~Window() override;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    void ShowMessage(base::Icon icon, const std::string& title, const std::string& text) override;
    void Show(bool visible) override;
    void SetTitle(const std::string& title) override { Title = title; }
    platform::Size ClientSize() override;
    void SetClientSize(platform::Size size) override;
    platform::Point Position() override;
    void Move(platform::Point position) override;
    void SetFullScreen(bool on) override;
    void ShowCursor(bool visible) override { CursorShown = visible; }
    platform::Point CursorPosition() override;
    void Present(const base::ConstSurface& picture) override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;

    // The last presented picture stretched to the client area, nearest pixel; black before the first. Row 0 is the
    // bottom one.
    base::Bitmap Screenshot() const;
    // Delivers the resizing and painting that is due.
    void Deliver();

    std::string Title;
    bool Visible = false, CursorShown = true, FullScreen = false;

private:
    platform::Size Client() const;

    Machine& TheMachine;
    platform::WindowEvents& Events;
    platform::Size RestoredSize;
    platform::Point RestoredPlace;
    base::Bitmap Shown;
    bool ResizeDue = false, PaintDue = false;
};

// Must outlive the windows it made.
class Machine final : public platform::Platform, public SoundDevices
{
public:
    explicit Machine(base::Files files) : TheFiles(std::move(files)) {}

    const base::Files& DataFiles() override { return TheFiles; }
    std::uint32_t TickCount() override { return Clock; }
    std::uint64_t ClockSeed() override { return Seed; }
    int ProcessorCount() override { return Processors; }
    bool IsFirstInstance() override { return FirstInstance; }
    std::unique_ptr<platform::Window> MakeWindow(platform::WindowEvents& events, platform::Size size) override;
    std::unique_ptr<platform::WaveOut> MakeWaveOut(platform::WaveEvents& events) override;
    std::unique_ptr<platform::MusicPlayer> MakeMusicPlayer(platform::MusicEvents& events) override;
    void PumpEvents() override;
    void WaitEvents(std::uint32_t milliseconds) override;
    Webcam& WebcamDevice() override { return TheWebcam; }

    const std::vector<Window*>& OpenWindows() const { return Windows; } // in the order in which they were made

    // What the script plays the part of.
    std::uint32_t Clock = 0; // milliseconds
    std::uint64_t Seed = 1;
    int Processors = 4;
    bool FirstInstance = true;
    std::string Clipboard;
    platform::Point Cursor;
    platform::Size Display{1280, 1024};
    Webcam TheWebcam;

    // The message boxes shown so far; beyond MostBoxes they are only counted.
    static constexpr std::size_t MostBoxes = 1000;
    std::vector<Box> Boxes;
    std::size_t UnrecordedBoxes = 0;

private:
    friend class Window;

    base::Files TheFiles;
    std::vector<Window*> Windows;
};
}
