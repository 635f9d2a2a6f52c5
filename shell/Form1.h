// SPDX-License-Identifier: Zlib
// shell/Form1.h: the main window, a switchboard: it owns the game and its parts, starts and ends them in their order,
// and hands what the window reports to the part it is for: keys to the race, the console or the controls, the mouse to
// the controls or to the dragging of the window. Everything runs on the window's thread.
#pragma once
#include "platform/Platform.h"
#include "shell/ConsoleLine.h"
#include "shell/FormView.h"
#include "shell/Game.h"
#include "shell/panels/Panels.h"
#include "shell/RaceKeys.h"
#include "shell/RaceRun.h"
#include "shell/Sound.h"
#include "shell/WebcamFeed.h"
#include "shell/WinDrag.h"

#include <memory>
#include <string_view>

namespace shell
{
class Form1 final : public platform::WindowEvents
{
public:
    // Makes window, devices and controls; shows and loads nothing.
    explicit Form1(platform::Platform& platform);

    // Initialises everything in its fixed order. Where a module fails, shows its boxes and Ended() is true.
    void Form_Load();
    // Frees everything; false where closing is refused (the resources are then already released: deliberate).
    bool Form_Unload();
    void Show(); // the window appears with the menu
    bool Ended() const { return TheGame.Run.Ended; }

    Game& State() { return TheGame; }
    forms::Form& Controls() { return View.Form; }
    platform::Window& Window() { return *TheWindow; }
    RaceRun& Race() { return Run; }
    Sound& Audio() { return TheSound; }
    panels::Panels& Panels() { return ThePanels; }

    // The click handler of a control. False where there is no such control or it has no handler.
    bool Click(std::string_view name, std::int16_t index = -1) { return View.Click(View.Form.Find(name, index)); }
    // The left button held over a picture box, x pixels from its left edge. False as above.
    bool PointAt(std::string_view name, std::int32_t x) { return View.PointAt(View.Form.Find(name), x); }

    // Takes the platform's clock; then a tick each that is due: GameT before RenderT before CaptureT, then the title's.
    void RunTimers();
    std::uint32_t NextTimer(); // milliseconds until one is due; UINT32_MAX none
    void CaptureT_Tick();      // whether due or not

    // platform::WindowEvents
    void KeyDown(std::int16_t code) override;
    void KeyUp(std::int16_t code) override;
    void KeyPress(std::uint8_t code) override;
    void MouseDown(int button, platform::Point at) override;
    void MouseMove(int buttons, platform::Point at) override;
    void MouseUp(int button, platform::Point at) override;
    void Resized() override;
    void Paint() override;
    bool CloseAsked() override;

private:
    panels::Verbs MakeVerbs();
    void Load();
    void EndFailed(const char* module); // the box that ends the program
    void ShowMenu();
    void ApplyFullScreen(bool on); // off: the client area is as large as the frame
    void Form_Resize();

    platform::Platform& ThePlatform;
    std::unique_ptr<platform::Window> TheWindow;
    Game TheGame;
    FormView View;
    WebcamFeed Feed;
    Sound TheSound;
    RaceRun Run;
    ConsoleLine Console;
    panels::Board Board;
    panels::Panels ThePanels;
    RaceKeys Keys;
    Drag TheDrag;
};
}
