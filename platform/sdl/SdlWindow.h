// SPDX-License-Identifier: Zlib
// platform/sdl/SdlWindow.h: one borderless window.
#pragma once
#include "platform/Platform.h"

#include <SDL.h>

#include <memory>
#include <optional>
#include <vector>

namespace sdl
{
class SdlWindow final : public platform::Window
{
public:
    // Enters itself into the list, which outlives it: whoever keeps that hands each window its events. RuntimeError 7
    // where the system gives no window.
    SdlWindow(std::vector<SdlWindow*>& windows, platform::WindowEvents& events, platform::Size size);
    ~SdlWindow() override;
    SdlWindow(const SdlWindow&) = delete;
    SdlWindow& operator=(const SdlWindow&) = delete;

    std::uint32_t Id() const;
    void Dispatch(const SDL_Event& event);
    // Motions are coalesced: the last one is delivered when a button moves or no event is left. Moving a window takes
    // longer than a mouse takes to move on.
    void FlushMotion();

    void ShowMessage(base::Icon icon, const std::string& title, const std::string& text) override;
    void Show(bool visible) override;
    void SetTitle(const std::string& title) override;
    platform::Size ClientSize() override;
    void SetClientSize(platform::Size size) override;
    platform::Point Position() override;
    void Move(platform::Point position) override;
    void SetFullScreen(bool on) override;
    void ShowCursor(bool visible) override;
    platform::Point CursorPosition() override;
    void Present(const base::ConstSurface& picture) override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;

private:
    struct Moved
    {
        int Buttons;
        platform::Point At;
    };
    struct WindowDeleter
    {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
    };
    struct SurfaceDeleter
    {
        void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
    };

    void DispatchWindow(const SDL_WindowEvent& event);
    void DispatchKey(const SDL_KeyboardEvent& event);
    void DispatchButton(const SDL_MouseButtonEvent& event);
    void DispatchPointer(const SDL_Event& event);
    void DispatchText(const char* utf8);
    bool MakePicture(int width, int height);

    std::vector<SdlWindow*>& Windows;
    platform::WindowEvents& Events;
    std::unique_ptr<SDL_Window, WindowDeleter> TheWindow;
    std::unique_ptr<SDL_Surface, SurfaceDeleter> Picture; // of the size of the last picture presented
    std::optional<Moved> Motion;
    std::optional<platform::Point> Pointer; // on the screen at the event that is being handled, where the system says
    bool CursorShown = true;
};
}
