// The option panels. An OK checks what was typed in a fixed order; the first text that is wrong is named in a message
// and stays in its box, and what was right before it is in force already.
#include "base/Numbers.h"
#include "base/ReadNumber.h"
#include "shell/Form1.h"
#include "shell/HudElements.h"
#include "shell/OptionNames.h"

#include <optional>
#include <string_view>

namespace shell
{
namespace
{
constexpr double LeastLaps = 1, MostLaps = 99;
constexpr double LeastFps = 5, MostFps = 30;
constexpr double LeastWidth = 240, MostWidth = 1200;
constexpr double LeastHeight = 200, MostHeight = 900;

struct Resolution
{
    double Width = 0, Height = 0;
};

bool IsWithin(double value, double least, double most)
{
    return value >= least && value <= most;
}

std::optional<double> ReadTyped(std::string_view text)
{
    return base::ReadNumber(text, base::TypedSeparators);
}
}

// The wrong text waits to be typed over.
void Form1::Refuse(const char* box, const char* text)
{
    TheWindow->ShowMessage(base::Icon::Exclamation, base::DefaultTitle, text);
    TheInteraction.FocusOn(TheForm.Get(box));
}

void Form1::ShowPanel(std::string_view name, bool visible)
{
    TheForm.Get(name).Visible = base::ToFlag(visible);
}

void Form1::cGameOpt_Click(std::int16_t)
{
    ShowPanel("panelGameOpt", true);
}

void Form1::cGameOptOK_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cGameOptOK_Click",
                  [this]
                  {
                      const std::optional<double> laps = ReadTyped(TheForm.Get("txtLap").Text);
                      if (!laps)
                          return Refuse("txtLap", "Il numero di giri deve essere un numero");
                      if (!IsWithin(*laps, LeastLaps, MostLaps))
                          return Refuse("txtLap", "Il numero di giri deve essere compreso tra 1 e 99");
                      TheGame.Race.Laps = base::ToInt16(*laps);
                      ShowPanel("panelGameOpt", false);
                  });
}

void Form1::cVidOpt_Click(std::int16_t)
{
    TheForm.Get("lblTxtFilter").Caption = FilterName(TheGame.Screen.TxtFilter);
    TheForm.Get("lblEffQ").Caption = QualityName(TheGame.Settings.EffQuality);
    if (TheGame.Settings.WebcamOn != base::False)
        TheForm.Get("chkWebcam").Value = 1;
    ShowPanel("panelVidOpt", true);
}

void Form1::lblTxtFilter_Click(std::int16_t)
{
    std::int16_t& filter = TheGame.Screen.TxtFilter;
    filter = NextFilter(filter);
    TheForm.Get("lblTxtFilter").Caption = FilterName(filter);
}

void Form1::lblEffQ_Click(std::int16_t)
{
    float& quality = TheGame.Settings.EffQuality;
    quality = NextQuality(quality);
    TheForm.Get("lblEffQ").Caption = QualityName(quality);
}

void Form1::cVidOptOK_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cVidOptOK_Click",
                  [this]
                  {
                      if (!TakeFrameRate() || !TakeResolution())
                          return;
                      ApplyFullScreen(TheForm.Get("chkFS").Value != 0);
                      TheGame.Settings.WebcamOn = base::ToFlag(TheForm.Get("chkWebcam").Value != 0);
                      ShowPanel("panelVidOpt", false);
                  });
}

bool Form1::TakeFrameRate()
{
    const std::optional<double> rate = ReadTyped(TheForm.Get("txtFreq").Text);
    if (!rate)
    {
        Refuse("txtFreq", "La frequenza di aggiornamento deve essere un numero");
        return false;
    }
    if (!IsWithin(*rate, LeastFps, MostFps))
    {
        Refuse("txtFreq", "La frequenza di aggiornamento deve essere compresa tra 5 e 30 fps");
        return false;
    }
    const std::int16_t fps = base::ToInt16(*rate);
    TheGame.Settings.TargetFps = fps;
    TheGame.Timers.RenderT.interval = 1000 / fps;
    return true;
}

bool Form1::TakeResolution()
{
    const std::string& text = TheForm.Get("txtRes").Text;
    const std::size_t mark = text.find('x');
    if (mark == std::string::npos)
    {
        Refuse("txtRes", "La risoluzione deve essere nel formato WxH");
        return false;
    }
    const std::optional<double> width = ReadTyped(std::string_view(text).substr(0, mark));
    const std::optional<double> height = ReadTyped(std::string_view(text).substr(mark + 1));
    if (!width || !height)
    {
        Refuse("txtRes", "I termini della risoluzione devono essere numeri");
        return false;
    }
    if (!IsWithin(*width, LeastWidth, MostWidth))
    {
        Refuse("txtRes", "La risoluzione orizzontale deve essere compresa tra 240 e 1200");
        return false;
    }
    if (!IsWithin(*height, LeastHeight, MostHeight))
    {
        Refuse("txtRes", "La risoluzione verticale deve essere compresa tra 200 e 900");
        return false;
    }
    ApplyResolution(base::ToInt32(*width), base::ToInt32(*height));
    return true;
}

// Nothing is made anew where the resolution is in force already.
void Form1::ApplyResolution(std::int32_t width, std::int32_t height)
{
    render::Screen& screen = TheGame.Screen;
    if (width == screen.ScreenW && height == screen.ScreenH)
        return;
    render::ApplyResolution(*TheWindow, screen, TheGame.Camera, width, height);
    PlaceHud(TheGame.Scene, TheGame.Hud, width, height);
    // The view behind the menu shows the new size.
    if (TheGame.Race.GameTime > 0)
        ShowFrame();
}

void Form1::ApplyFullScreen(bool on)
{
    TheGame.Settings.FullScreen = base::ToFlag(on);
    TheWindow->SetFullScreen(on);
    if (!on)
        TheWindow->SetClientSize({TheGame.Screen.ScreenW, TheGame.Screen.ScreenH});
    Form_Resize();
}
}
