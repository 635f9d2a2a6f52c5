// shell/Form1.h: the main window: start-up, menu, race run, both ticks, keys. Handlers are named control_Event.
// Everything runs on the window's thread.
#pragma once
#include "audio/WaveOut.h"
#include "console/Console.h"
#include "platform/Platform.h"
#include "shell/forms/Control.h"
#include "shell/forms/Interaction.h"
#include "shell/forms/PaintForm.h"
#include "shell/Game.h"
#include "shell/MenuPictures.h"
#include "shell/WinDrag.h"
#include "world/RaceLogic.h"

#include <memory>
#include <string>
#include <string_view>

namespace shell
{
class Form1 final : public platform::WindowEvents,
                    private world::FinishSink,
                    private forms::PicturePainter,
                    private forms::FormOwner,
                    private console::Host
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

    // The left button held over a picture box, x pixels from its left edge. False as above.
    bool PointAt(std::string_view name, std::int32_t x);

    // Tells the timers the platform's clock; then a tick each that is due: GameT before RenderT before CaptureT, then
    // the title's timer.
    void RunTimers();
    std::uint32_t NextTimer(); // milliseconds until one is due; UINT32_MAX none

    // The ticks themselves, whether due or not; the timer counts them.
    void GameT_Tick();
    void RenderT_Tick();
    void CaptureT_Tick();
    void tmrLogo_Timer();

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
    void WaveDone(std::int32_t user) override;
    void MediaDone(std::uint32_t number, std::int32_t code) override;

    // The left button is held over the effects' slider, x pixels from its left edge, of so many pixels' width.
    void picEffVol_MouseMove(std::int32_t x, std::int32_t width);
    // The music control's notification; code 1 also skips to the next track.
    void MMC_Done(std::int32_t notifyCode);

private:
    // Start.cpp: start-up and shut-down
    void SetProcessorDefaults();
    bool InitVideo(); // false: the module failed
    bool InitAudio(); // false: the module failed
    void Inizializza();
    void EndFailed(const char* module); // the box that ends the program
    void FreeResources();

    // AudioOptions.cpp, Sound.cpp: what is heard
    void LoadAudio();
    void CloseAudio(bool& cancel);
    audio::Stream MakeStream() { return {TheGame.Engine, *TheWaveOut, *TheWindow}; }
    void SetEngineSound();
    void SetMediaCommand(const char* command);
    void SetMusic(bool on);

    // RaceRun.cpp
    void AdvanceTimers();
    void Finished(const std::string& message) override;

    // GameTick.cpp, RenderTick.cpp
    world::Simulation MakeSimulation();
    void MeasureFrameRate(std::uint32_t now);
    void ShowFrame();

    // Menu.cpp, Rebinding.cpp: handlers
    struct Handler
    {
        std::string_view Name;
        void (Form1::*Run)(std::int16_t index);
    };
    static const Handler* FindHandler(std::string_view name);
    // Picture boxes that the mouse acts on: the left button is held over one, x pixels from its left edge (beyond it
    // while the button stays down), of so many pixels' width.
    struct PictureHandler
    {
        std::string_view Name;
        void (Form1::*Run)(std::int32_t x, std::int32_t width);
    };
    static const PictureHandler* FindPictureHandler(std::string_view name);
    void SetMenuVisible(bool visible);
    void TwinsFollow();
    void cSTART_Click(std::int16_t index);
    void cOPZIONI_Click(std::int16_t index);
    void cOptOK_Click(std::int16_t index);
    void cCREDIT_Click(std::int16_t index);
    void cCreditOK_Click(std::int16_t index);
    void cEXIT_Click(std::int16_t index);
    void cCtrOpt_Click(std::int16_t index);
    void cCtrOptOK_Click(std::int16_t index);
    void cCtrMov_Click(std::int16_t index);
    void cCtrCam_Click(std::int16_t index);
    void cCtrOth_Click(std::int16_t index);
    void cCtrKey_Click(std::int16_t index);
    void dCtrKey_Click(std::int16_t index);
    void ShowSubFrame(std::string_view name);
    bool RecordsKey() const; // the rebinding box has the focus
    void txtRecKey_KeyDown(std::int16_t code);
    void txtRecKey_LostFocus();

    // Options.cpp: the option panels, and how a setting that has passed its checks takes effect
    void cGameOpt_Click(std::int16_t index);
    void cGameOptOK_Click(std::int16_t index);
    void cVidOpt_Click(std::int16_t index);
    void cVidOptOK_Click(std::int16_t index);
    void lblTxtFilter_Click(std::int16_t index);
    void lblEffQ_Click(std::int16_t index);
    bool TakeFrameRate(); // false: refused
    bool TakeResolution();
    void ApplyResolution(std::int32_t width, std::int32_t height);
    void ApplyFullScreen(bool on); // off: the client area is as large as the frame
    void Refuse(const char* box, const char* text);
    void ShowPanel(std::string_view name, bool visible);

    // AudioOptions.cpp
    void DrawLevelBar(std::string_view name, float share); // 0 to 1, beyond it the nearer one
    void cAudOpt_Click(std::int16_t index);
    void cAudOptOK_Click(std::int16_t index);

    // WebcamPanel.cpp: the webcam, its panel and the player's picture in the race view
    bool TakeFrame(); // a new one has come
    bool OpenWebcam();
    void CloseWebcam();
    void cCamConfig_Click(std::int16_t index);
    void cStartCamConf_Click(std::int16_t index);
    void cWebcamOK_Click(std::int16_t index);
    void ShowCalibration();
    void PaintPreview(forms::Canvas& canvas, const forms::Rect& place) const;
    void ShowInset();

    // Keys.cpp: keys during a race, by code
    void Form_KeyDown(std::int16_t code);
    void Form_KeyUp(std::int16_t code);
    bool SetHeldKey(std::int16_t code, base::Flag held);
    bool BoundKeyUp(std::int16_t code);
    void FixedKeyUp(std::int16_t code);
    void TogglePause();
    void StepViewPlayer(int step);

    // Console.cpp: the typed line of the race
    console::Console MakeConsole();
    bool IsConsoleOpen() { return console::IsOpen(MakeConsole()); }
    void Form_KeyPress(std::uint8_t code);
    void ConsoleKeyUp(std::int16_t code);
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;
    void SetElapsed(std::int32_t milliseconds) override;

    // Events.cpp: what the controls tell
    bool HasClick(const forms::Control& control) const override;
    bool HasPointer(const forms::Control& picture) const override;
    void Clicked(const forms::Control& control) override;
    void PointedAt(const forms::Control& picture, std::int32_t x) override;
    void LostFocus(const forms::Control& control) override;
    void Changed() override { PaintDue = true; }
    void RepaintIfDue();

    // Picture.cpp: what the window shows
    void Form_Resize();
    void LayoutPanels();
    void Repaint();
    bool IsAnyControlShown() const;
    void PaintBackground();
    void PaintPicture(forms::Canvas& canvas, const forms::Control& control, forms::Rect place) override;
    void PaintLogo(forms::Canvas& canvas, const forms::Rect& place) const;

    platform::Platform& ThePlatform;
    std::unique_ptr<platform::Window> TheWindow;
    Game TheGame;
    std::unique_ptr<platform::WaveOut> TheWaveOut; // plays what lies in TheGame
    std::unique_ptr<platform::MusicPlayer> TheMusic;
    forms::Form TheForm;
    TickTimer tmrLogo;
    forms::Canvas TheCanvas;
    MenuPictures TheMenuPictures;
    Drag TheDrag;
    forms::Interaction TheInteraction{TheForm, *this};
    bool PaintDue = false; // a control has changed since it was painted
    bool IsVisible = false;
    bool HasEnded = false;
};
}
