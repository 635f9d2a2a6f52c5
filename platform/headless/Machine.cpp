// SPDX-License-Identifier: Zlib
#include "platform/headless/Machine.h"

#include <algorithm>

namespace headless
{
namespace
{
constexpr std::int32_t LargestSide = 4096; // of a client area, pixels

platform::Size Limited(platform::Size size)
{
    return {std::clamp(size.Width, 1, LargestSide), std::clamp(size.Height, 1, LargestSide)};
}

// Which of `from` pixels stands at `at` of `to`.
std::int32_t Nearest(std::int32_t at, std::int32_t from, std::int32_t to)
{
    return static_cast<std::int32_t>(std::int64_t{at} * from / to);
}
}

Window::Window(Machine& machine, platform::WindowEvents& events, platform::Size size)
    : TheMachine(machine), Events(events), RestoredSize(Limited(size))
{
    TheMachine.Windows.push_back(this);
}

Window::~Window()
{
    std::erase(TheMachine.Windows, this);
}

void Window::ShowMessage(base::Icon icon, const std::string& title, const std::string& text)
{
    if (TheMachine.Boxes.size() < Machine::MostBoxes)
        TheMachine.Boxes.push_back({icon, title, text});
    else
        ++TheMachine.UnrecordedBoxes;
}

void Window::Show(bool visible)
{
    PaintDue = PaintDue || (visible && !Visible);
    Visible = visible;
}

platform::Size Window::Client() const
{
    return FullScreen ? Limited(TheMachine.Display) : RestoredSize;
}

platform::Size Window::ClientSize()
{
    return Client();
}

void Window::SetClientSize(platform::Size size)
{
    if (FullScreen)
        return;
    const platform::Size wanted = Limited(size);
    if (wanted.Width == RestoredSize.Width && wanted.Height == RestoredSize.Height)
        return;
    RestoredSize = wanted;
    ResizeDue = PaintDue = true;
}

platform::Point Window::Position()
{
    return FullScreen ? platform::Point{} : RestoredPlace;
}

void Window::Move(platform::Point position)
{
    if (!FullScreen)
        RestoredPlace = position;
}

void Window::SetFullScreen(bool on)
{
    if (on == FullScreen)
        return;
    FullScreen = on;
    ResizeDue = PaintDue = true;
}

platform::Point Window::CursorPosition()
{
    return TheMachine.Cursor;
}

void Window::Present(const base::ConstSurface& picture)
{
    if (!platform::IsPresentable(picture))
        return;
    Shown.Width = picture.Width;
    Shown.Height = picture.Height;
    Shown.Bytes.assign(picture.Bytes, picture.Row(picture.Height));
}

std::string Window::ClipboardText()
{
    return TheMachine.Clipboard;
}

void Window::SetClipboardText(const std::string& text)
{
    TheMachine.Clipboard = text;
}

base::Bitmap Window::Screenshot() const
{
    const platform::Size size = Client();
    base::Bitmap picture;
    picture.Reset(size.Width, size.Height);
    if (Shown.Bytes.empty())
        return picture;
    const base::Surface to = picture.View();
    const base::ConstSurface from = Shown.View();
    for (std::int32_t row = 0; row < to.Height; ++row)
        for (std::int32_t x = 0; x < to.Width; ++x)
            base::CopyPixel(to.At(x, row),
                            from.At(Nearest(x, from.Width, to.Width), Nearest(row, from.Height, to.Height)));
    return picture;
}

void Window::Deliver()
{
    if (ResizeDue)
    {
        ResizeDue = false;
        Events.Resized();
    }
    if (PaintDue && Visible)
    {
        PaintDue = false;
        Events.Paint();
    }
}

std::unique_ptr<platform::Window> Machine::MakeWindow(platform::WindowEvents& events, platform::Size size)
{
    return std::make_unique<Window>(*this, events, size);
}

std::unique_ptr<platform::WaveOut> Machine::MakeWaveOut(platform::WaveEvents& events)
{
    return std::make_unique<WaveOut>(*this, events);
}

std::unique_ptr<platform::MusicPlayer> Machine::MakeMusicPlayer(platform::MusicEvents& events)
{
    return std::make_unique<MusicPlayer>(*this, events);
}

void Machine::PumpEvents()
{
    if (Wave != nullptr)
        Wave->Deliver();
    // A handler may open and close windows: walk a copy and skip those that are gone.
    const std::vector<Window*> present = Windows;
    for (Window* window : present)
        if (std::find(Windows.begin(), Windows.end(), window) != Windows.end())
            window->Deliver();
}

void Machine::WaitEvents(std::uint32_t milliseconds)
{
    Clock += milliseconds;
    PumpEvents();
}
}
