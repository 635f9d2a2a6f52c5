// shell/Form1.h: the main window: start-up, menu, race run, both ticks, keys. Handlers are named control_Event.
// Everything runs on the window's thread.
#pragma once
#include "platform/Platform.h"
#include "shell/forms/Control.h"
#include "shell/Game.h"
#include "world/RaceLogic.h"

#include <memory>
#include <string>
#include <string_view>

namespace shell
{
class Form1 final : public platform::WindowEvents, private modDinamica::FinishSink
{
public:
    explicit Form1(platform::Platform& platform);
    ~Form1() override;

    // Initialises everything in its fixed order. Where a module fails, shows its boxes and Ended() is true.
    void Form_Load();
    // Frees everything; false where closing is refused (the resources are then already released: deliberate).
    bool Form_Unload();
    void Show(); // the window appears with the menu
    bool Ended() const { return HasEnded; }

    Game& State() { return TheGame; }
    forms::Form& Controls() { return TheForm; }
    platform::Window& Window() { return *TheWindow; }

    // The click handler of a control. False where there is no such control or it has no handler.
    bool Click(std::string_view name, std::int16_t index = -1);

    // Tells the timers the platform's clock; then a tick each that is due: GameT before RenderT before CaptureT, then
    // the title's timer.
    void RunTimers();
    std::uint32_t NextTimer(); // milliseconds until one is due; UINT32_MAX none

    // The ticks themselves, whether due or not; the timer counts them.
    void GameT_Tick();
    void RenderT_Tick();

    // One frame into the frame array, without showing it.
    void Draw();
    // The camera placement of the present view with its arrow step.
    void PlaceCamera();

    void StartProcess();
    void StopProcess();
    void ShowMenu();
    void ReadKeyBinding(std::int16_t index);

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
    void Finished(const std::string& message) override;

    platform::Platform& ThePlatform;
    std::unique_ptr<platform::Window> TheWindow;
    Game TheGame;
    forms::Form TheForm;
    bool HasEnded = false;
};
}
