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

std::size_t RowBytes(std::int32_t width)
{
    return (static_cast<std::size_t>(width) * 3 + 3) & ~std::size_t{3};
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

void Window::Present(int width, int height, std::span<const std::uint8_t> bits)
{
    if (width < 1 || height < 1 || bits.size() < RowBytes(width) * static_cast<std::size_t>(height))
        return;
    Shown.Width = width;
    Shown.Height = height;
    Shown.Bits.assign(bits.begin(), bits.end());
}

std::string Window::ClipboardText()
{
    return TheMachine.Clipboard;
}

void Window::SetClipboardText(const std::string& text)
{
    TheMachine.Clipboard = text;
}

Image Window::Screenshot() const
{
    const platform::Size size = Client();
    Image image{size.Width, size.Height, {}};
    const std::size_t toRow = RowBytes(size.Width), fromRow = RowBytes(Shown.Width);
    image.Bits.resize(toRow * static_cast<std::size_t>(size.Height));
    if (Shown.Bits.empty())
        return image;
    for (std::int64_t y = 0; y < size.Height; ++y)
    {
        const auto fromY = static_cast<std::size_t>(y * Shown.Height / size.Height);
        const std::uint8_t* from = Shown.Bits.data() + fromY * fromRow;
        std::uint8_t* to = image.Bits.data() + static_cast<std::size_t>(y) * toRow;
        for (std::int64_t x = 0; x < size.Width; ++x, to += 3)
            std::copy_n(from + 3 * (x * Shown.Width / size.Width), 3, to);
    }
    return image;
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

std::unique_ptr<platform::WaveOut> Machine::MakeWaveOut(platform::Window& window)
{
    return std::make_unique<WaveOut>(*this, static_cast<Window&>(window).Receiver());
}

std::unique_ptr<platform::MusicPlayer> Machine::MakeMusicPlayer(platform::Window& window)
{
    return std::make_unique<MusicPlayer>(*this, static_cast<Window&>(window).Receiver());
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
