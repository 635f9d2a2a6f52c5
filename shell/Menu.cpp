// The menu and its panels. The first entry starts the race and afterwards resumes it.
#include "shell/Design.h"
#include "shell/Form1.h"

#include <algorithm>
#include <iterator>

namespace shell
{
const Form1::Handler* Form1::FindHandler(std::string_view name)
{
    static constexpr Handler Handlers[] = {
        {"cSTART", &Form1::cSTART_Click},         {"cOPZIONI", &Form1::cOPZIONI_Click},
        {"cCREDIT", &Form1::cCREDIT_Click},       {"cCreditOK", &Form1::cCreditOK_Click},
        {"cEXIT", &Form1::cEXIT_Click},           {"cGameOpt", &Form1::cGameOpt_Click},
        {"cGameOptOK", &Form1::cGameOptOK_Click}, {"cVidOpt", &Form1::cVidOpt_Click},
        {"cVidOptOK", &Form1::cVidOptOK_Click},   {"lblTxtFilter", &Form1::lblTxtFilter_Click},
        {"lblEffQ", &Form1::lblEffQ_Click},       {"cAudOpt", &Form1::cAudOpt_Click},
        {"cAudOptOK", &Form1::cAudOptOK_Click},   {"cOptOK", &Form1::cOptOK_Click},
        {"cCamConfig", &Form1::cCamConfig_Click}, {"cStartCamConf", &Form1::cStartCamConf_Click},
        {"cWebcamOK", &Form1::cWebcamOK_Click},   {"cCtrOpt", &Form1::cCtrOpt_Click},
        {"cCtrOptOK", &Form1::cCtrOptOK_Click},   {"cCtrMov", &Form1::cCtrMov_Click},
        {"cCtrCam", &Form1::cCtrCam_Click},       {"cCtrOth", &Form1::cCtrOth_Click},
        {"cCtrKey", &Form1::cCtrKey_Click},       {"dCtrKey", &Form1::dCtrKey_Click},
    };
    const auto* found =
        std::find_if(std::begin(Handlers), std::end(Handlers), [name](const Handler& h) { return h.Name == name; });
    return found == std::end(Handlers) ? nullptr : found;
}

const Form1::PictureHandler* Form1::FindPictureHandler(std::string_view name)
{
    static constexpr PictureHandler Handlers[] = {{"picEffVol", &Form1::picEffVol_MouseMove}};
    const auto* found = std::find_if(std::begin(Handlers), std::end(Handlers),
                                     [name](const PictureHandler& h) { return h.Name == name; });
    return found == std::end(Handlers) ? nullptr : found;
}

bool Form1::Click(std::string_view name, std::int16_t index)
{
    const Handler* handler = FindHandler(name);
    if (HasEnded || handler == nullptr || TheForm.Find(name, index) == nullptr)
        return false;
    if (RecordsKey())
        txtRecKey_LostFocus();
    TheInteraction.Release();
    (this->*handler->Run)(index);
    Repaint();
    return true;
}

bool Form1::PointAt(std::string_view name, std::int32_t x)
{
    const PictureHandler* handler = FindPictureHandler(name);
    const forms::Control* picture = TheForm.Find(name);
    if (HasEnded || handler == nullptr || picture == nullptr)
        return false;
    (this->*handler->Run)(x, picture->Place.W);
    Repaint();
    return true;
}

void Form1::TwinsFollow()
{
    for (const char* entry : MenuEntries())
    {
        const forms::Control& first = TheForm.Get(entry);
        forms::Control& twin = TheForm.Get(std::string(entry) + "2");
        twin.Visible = first.Visible;
        twin.Caption = first.Caption;
    }
}

void Form1::SetMenuVisible(bool visible)
{
    for (const char* entry : MenuEntries())
        TheForm.Get(entry).Visible = base::ToFlag(visible);
    for (const char* picture : {"imgLogoBG", "imgLogo"})
        TheForm.Get(picture).Visible = base::ToFlag(visible);
    TwinsFollow();
}

void Form1::ShowMenu()
{
    SetMenuVisible(true);
    tmrLogo.Enable(ThePlatform.TickCount());
    Repaint();
}

// The title shows for about two seconds, then flickers.
void Form1::tmrLogo_Timer()
{
    forms::Control& logo = TheForm.Get("imgLogo");
    std::int32_t& c = TheGame.Run.Blink;
    const auto within = [c](std::int32_t first, std::int32_t last) { return c >= first && c <= last; };
    const base::Flag before = logo.Visible;
    if (c == 61)
        c = 0; // Deliberate: the picture stays as it is, and 0 itself comes only once.
    else
        logo.Visible =
            base::ToFlag(within(0, 20) || within(22, 27) || within(34, 36) || within(38, 40) || within(42, 60));
    ++c;
    if (logo.Visible != before)
        Repaint();
}

void Form1::cSTART_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cSTART_Click",
                  [this]
                  {
                      TheForm.Get("cSTART").Caption = "Continua";
                      SetMenuVisible(false);
                      StartProcess();
                  });
}

void Form1::cOPZIONI_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cOPZIONI_Click", [this] { ShowPanel("panelOption", true); });
}

void Form1::cOptOK_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cOptOK_Click", [this] { ShowPanel("panelOption", false); });
}

void Form1::cCREDIT_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cCREDIT_Click", [this] { ShowPanel("panelCredits", true); });
}

void Form1::cCreditOK_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cCreditOK_Click", [this] { ShowPanel("panelCredits", false); });
}

void Form1::cEXIT_Click(std::int16_t)
{
    base::Trapped(*TheWindow, "cEXIT_Click", [this] { Form_Unload(); });
}

void Form1::cCtrOpt_Click(std::int16_t)
{
    ShowSubFrame("panelCtrMov");
    ShowPanel("panelCtrOpt", true);
}

void Form1::cCtrOptOK_Click(std::int16_t)
{
    ShowPanel("panelCtrOpt", false);
}

void Form1::cCtrMov_Click(std::int16_t)
{
    ShowSubFrame("panelCtrMov");
}

void Form1::cCtrCam_Click(std::int16_t)
{
    ShowSubFrame("panelCtrCam");
}

void Form1::cCtrOth_Click(std::int16_t)
{
    ShowSubFrame("panelCtrOth");
}

void Form1::ShowSubFrame(std::string_view name)
{
    constexpr const char* Pairs[][2] = {
        {"panelCtrMov", "cCtrMov"}, {"panelCtrCam", "cCtrCam"}, {"panelCtrOth", "cCtrOth"}};
    for (const auto& [panel, tab] : Pairs)
    {
        TheForm.Get(panel).Visible = base::ToFlag(panel == name);
        TheForm.Get(tab).Value = panel == name ? 1 : 0;
    }
}
}
