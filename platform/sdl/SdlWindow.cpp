// SPDX-License-Identifier: Zlib
#include "platform/sdl/SdlWindow.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/sdl/ScreenPointer.h"
#include "platform/sdl/SdlKeys.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <cstring>
#include <utility>

namespace sdl
{
namespace
{
constexpr std::size_t LargestClipboard = 1u << 20; // bytes taken from the clipboard

int ButtonValue(std::uint8_t button)
{
    switch (button)
    {
    case SDL_BUTTON_LEFT:
        return 1;
    case SDL_BUTTON_RIGHT:
        return 2;
    case SDL_BUTTON_MIDDLE:
        return 4;
    default:
        return 0;
    }
}

int ButtonsHeld(std::uint32_t state)
{
    return ((state & SDL_BUTTON_LMASK) != 0 ? 1 : 0) + ((state & SDL_BUTTON_RMASK) != 0 ? 2 : 0) +
           ((state & SDL_BUTTON_MMASK) != 0 ? 4 : 0);
}

std::uint32_t MessageFlags(base::Icon icon)
{
    switch (icon)
    {
    case base::Icon::Critical:
        return SDL_MESSAGEBOX_ERROR;
    case base::Icon::Exclamation:
        return SDL_MESSAGEBOX_WARNING;
    default:
        return SDL_MESSAGEBOX_INFORMATION;
    }
}

// The game draws by itself: a plain surface, whose pixels the display takes as they are, spares it the graphics
// libraries and their tens of megabytes. Where the display gives none, SDL makes one of them.
bool HasSurface(SDL_Window* window)
{
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_GetWindowSurface(window) != nullptr)
        return true;
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "1");
    return SDL_GetWindowSurface(window) != nullptr;
}

constexpr std::uint32_t PictureFormat = SDL_PIXELFORMAT_RGB888; // 32 bits: nothing, red, green, blue

// Whether the picture is copied into the window's own surface as it is, pixel by pixel.
bool Takes(const SDL_Surface& surface, const base::ConstSurface& picture)
{
    return surface.format->format == PictureFormat && surface.w == picture.Width && surface.h == picture.Height &&
           !SDL_MUSTLOCK(&surface);
}

std::uint32_t Pixel(const std::uint8_t* from)
{
    return static_cast<std::uint32_t>(from[2]) << 16 | static_cast<std::uint32_t>(from[1]) << 8 | from[0];
}

// Four pixels are three words of the picture, where a word's first byte is its lowest.
void SpreadRow(const std::uint8_t* from, std::int32_t width, std::uint32_t* to)
{
    std::int32_t x = 0;
    if constexpr (std::endian::native == std::endian::little)
        for (; x + 4 <= width; x += 4, from += 4 * base::PixelBytes)
        {
            std::array<std::uint32_t, 3> words;
            std::memcpy(words.data(), from, sizeof words);
            to[x] = words[0] & 0xFFFFFFu;
            to[x + 1] = words[0] >> 24 | (words[1] & 0xFFFFu) << 8;
            to[x + 2] = words[1] >> 16 | (words[2] & 0xFFu) << 16;
            to[x + 3] = words[2] >> 8;
        }
    for (; x < width; ++x, from += base::PixelBytes)
        to[x] = Pixel(from);
}

// Into a surface of PictureFormat and of the same size. The picture stands on its bottom row, the surface hangs from
// its top row.
void CopyUpright(const base::ConstSurface& picture, const SDL_Surface& surface)
{
    for (std::int32_t y = 0; y < picture.Height; ++y)
        SpreadRow(picture.Row(picture.Height - 1 - y), picture.Width,
                  reinterpret_cast<std::uint32_t*>(static_cast<std::uint8_t*>(surface.pixels) +
                                                   static_cast<std::ptrdiff_t>(surface.pitch) * y));
}
}

SdlWindow::SdlWindow(std::vector<SdlWindow*>& windows, platform::WindowEvents& events, platform::Size size)
    : Windows(windows), Events(events)
{
    TheWindow.reset(SDL_CreateWindow("Velkar", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, size.Width, size.Height,
                                     SDL_WINDOW_BORDERLESS | SDL_WINDOW_HIDDEN));
    if (!TheWindow || !HasSurface(TheWindow.get()))
        throw base::RuntimeError(base::ErrorMemory);
    Windows.push_back(this);
}

SdlWindow::~SdlWindow()
{
    std::erase(Windows, this);
}

std::uint32_t SdlWindow::Id() const
{
    return SDL_GetWindowID(TheWindow.get());
}

void SdlWindow::Dispatch(const SDL_Event& event)
{
    switch (event.type)
    {
    case SDL_WINDOWEVENT:
        DispatchWindow(event.window);
        break;
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        DispatchKey(event.key);
        break;
    case SDL_TEXTINPUT:
        DispatchText(event.text.text);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        DispatchButton(event.button);
        break;
    case SDL_MOUSEMOTION:
        Motion = {ButtonsHeld(event.motion.state), {event.motion.x, event.motion.y}};
        break;
    case SDL_SYSWMEVENT:
        DispatchPointer(event);
        break;
    case SDL_QUIT:
        Events.CloseAsked();
        break;
    default:
        break;
    }
}

void SdlWindow::DispatchWindow(const SDL_WindowEvent& event)
{
    switch (event.event)
    {
    case SDL_WINDOWEVENT_SIZE_CHANGED:
        Events.Resized();
        break;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SHOWN:
    case SDL_WINDOWEVENT_RESTORED:
        Events.Paint();
        break;
    case SDL_WINDOWEVENT_CLOSE:
        Events.CloseAsked();
        break;
    default:
        break;
    }
}

void SdlWindow::DispatchKey(const SDL_KeyboardEvent& event)
{
    const bool down = event.type == SDL_KEYDOWN;
    if (const std::int16_t code = VirtualKey(event.keysym))
        down ? Events.KeyDown(code) : Events.KeyUp(code);
    if (!down)
        return;
    if (const std::uint8_t character = ControlCharacter(event.keysym))
        Events.KeyPress(character);
}

void SdlWindow::DispatchButton(const SDL_MouseButtonEvent& event)
{
    FlushMotion();
    const int button = ButtonValue(event.button);
    if (button == 0)
        return;
    const platform::Point at = {event.x, event.y};
    event.type == SDL_MOUSEBUTTONDOWN ? Events.MouseDown(button, at) : Events.MouseUp(button, at);
}

void SdlWindow::DispatchPointer(const SDL_Event& event)
{
    const auto pointer = ReadPointer(TheWindow.get(), event);
    if (!pointer)
        return;
    Pointer = pointer->Screen;
    if (pointer->Moved)
        Motion = {pointer->Buttons, pointer->Client};
}

void SdlWindow::FlushMotion()
{
    if (const auto motion = std::exchange(Motion, {}))
        Events.MouseMove(motion->Buttons, motion->At);
}

void SdlWindow::DispatchText(const char* utf8)
{
    const std::string_view text(utf8);
    for (std::size_t at = 0; at < text.size();)
        Events.KeyPress(base::NextCode(text, at));
}

void SdlWindow::ShowMessage(base::Icon icon, const std::string& title, const std::string& text)
{
    const std::string lines = base::ReplaceAll(text, "\r\n", "\n");
    SDL_ShowCursor(SDL_ENABLE);
    if (SDL_ShowSimpleMessageBox(MessageFlags(icon), title.c_str(), lines.c_str(), TheWindow.get()) != 0)
        std::fprintf(stderr, "%s: %s\n", title.c_str(), lines.c_str());
    SDL_ShowCursor(CursorShown ? SDL_ENABLE : SDL_DISABLE);
}

void SdlWindow::Show(bool visible)
{
    if (visible)
    {
        SDL_ShowWindow(TheWindow.get());
        SDL_RaiseWindow(TheWindow.get());
    }
    else
        SDL_HideWindow(TheWindow.get());
}

void SdlWindow::SetTitle(const std::string& title)
{
    SDL_SetWindowTitle(TheWindow.get(), title.c_str());
}

platform::Size SdlWindow::ClientSize()
{
    platform::Size size;
    SDL_GetWindowSize(TheWindow.get(), &size.Width, &size.Height);
    return size;
}

void SdlWindow::SetClientSize(platform::Size size)
{
    SDL_SetWindowSize(TheWindow.get(), size.Width, size.Height);
}

platform::Point SdlWindow::Position()
{
    platform::Point position;
    SDL_GetWindowPosition(TheWindow.get(), &position.X, &position.Y);
    return position;
}

void SdlWindow::Move(platform::Point position)
{
    SDL_SetWindowPosition(TheWindow.get(), position.X, position.Y);
}

void SdlWindow::SetFullScreen(bool on)
{
    SDL_SetWindowFullscreen(TheWindow.get(), on ? std::uint32_t{SDL_WINDOW_FULLSCREEN_DESKTOP} : 0u);
}

void SdlWindow::ShowCursor(bool visible)
{
    CursorShown = visible;
    SDL_ShowCursor(visible ? SDL_ENABLE : SDL_DISABLE);
}

platform::Point SdlWindow::CursorPosition()
{
    if (Pointer)
        return *Pointer;
    platform::Point position;
    SDL_GetGlobalMouseState(&position.X, &position.Y);
    return position;
}

bool SdlWindow::MakePicture(int width, int height)
{
    if (Picture && Picture->w == width && Picture->h == height)
        return true;
    Picture.reset(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, PictureFormat));
    return Picture != nullptr;
}

void SdlWindow::Present(const base::ConstSurface& picture)
{
    if (!platform::IsPresentable(picture))
        return;
    SDL_Surface* const surface = SDL_GetWindowSurface(TheWindow.get());
    if (surface == nullptr)
        return;
    if (Takes(*surface, picture))
        CopyUpright(picture, *surface);
    else
    {
        if (!MakePicture(picture.Width, picture.Height))
            return;
        CopyUpright(picture, *Picture);
        SDL_BlitScaled(Picture.get(), nullptr, surface, nullptr);
    }
    SDL_UpdateWindowSurface(TheWindow.get());
}

std::string SdlWindow::ClipboardText()
{
    const std::unique_ptr<char, void (*)(void*)> text(SDL_GetClipboardText(), SDL_free);
    std::string result(text ? text.get() : "");
    result.resize(std::min(result.size(), LargestClipboard));
    return result;
}

void SdlWindow::SetClipboardText(const std::string& text)
{
    SDL_SetClipboardText(text.c_str());
}
}
