// SPDX-License-Identifier: Zlib
#include "shell/panels/VideoOptions.h"

#include "base/Numbers.h"
#include "shell/panels/TypedNumber.h"

namespace panels
{
namespace
{
using forms::Align;
using forms::Kind;
using forms::Look;

constexpr double LeastFps = 5, MostFps = 30;
constexpr double LeastWidth = 240, MostWidth = 1200;
constexpr double LeastHeight = 200, MostHeight = 900;
}

VideoOptions::VideoOptions(Board& board, shell::Settings& settings, render::Screen& screen, shell::TickTimer& renderT,
                           Verbs verbs)
    : Panel(board, "panelVidOpt"), Settings(settings), Screen(screen), RenderT(renderT), Ask(std::move(verbs)),
      lblVidOpt(Heading("lblVidOpt", "Opzioni video")), lblFreq(Label("lblFreq", "Frequenza fotogrammi:")),
      txtFreq(Box(Kind::TextBox, "txtFreq", "20")), lblRes(Label("lblRes", "Risoluzione:")),
      txtRes(Box(Kind::ComboBox, "txtRes", "600x312")), lblFilter(Label("lblFilter", "Filtro texture:")),
      lblTxtFilter(Label("lblTxtFilter", "anisotropico", Look::Choice)),
      lblEffects(Label("lblEffects", "Qualità effetti:")), lblEffQ(Label("lblEffQ", "alta", Look::Choice)),
      chkFS(Check("chkFS", "Schermo intero", false)), chkWebcam(Check("chkWebcam", "Abilita webcam", true)),
      cCamConfig(Button("cCamConfig", "configura...")), cVidOptOK(OK("cVidOptOK"))
{
    At(txtRes).Items = {"320x240", "640x480", "600x312", "800x600", "1024x768"};
    On.Does.OnClick(lblTxtFilter, [this] { lblTxtFilter_Click(); });
    On.Does.OnClick(lblEffQ, [this] { lblEffQ_Click(); });
    On.Does.OnClick(cCamConfig, [this] { cCamConfig_Click(); });
    On.Does.OnClick(cVidOptOK, [this] { cVidOptOK_Click(); });
}

void VideoOptions::Place(platform::Size client)
{
    constexpr std::int32_t lines = 6;
    Layout layout(On.Form, client);
    Card card(layout, 28, lines * (layout.Row + layout.Gap / 2));
    card.Heading(lblVidOpt);
    card.Field(lblFreq, txtFreq);
    card.Field(lblRes, txtRes);
    card.Field(lblFilter, lblTxtFilter, Align::Centre);
    card.Field(lblEffects, lblEffQ, Align::Centre);
    card.Check(chkFS);
    card.Check(chkWebcam, cCamConfig);
    card.OK(cVidOptOK);
}

void VideoOptions::Open()
{
    At(lblTxtFilter).Caption = FilterName(Screen.TxtFilter);
    At(lblEffQ).Caption = QualityName(Settings.EffQuality);
    if (Settings.WebcamOn != base::False)
        At(chkWebcam).Value = 1;
    Show();
}

void VideoOptions::OfferWebcam(std::int32_t devices)
{
    At(chkWebcam).Enabled = At(cCamConfig).Enabled = base::ToFlag(devices != 0);
    At(chkWebcam).Value = devices > 0 ? 1 : 0;
}

void VideoOptions::TypeFrameRate(std::int32_t fps)
{
    At(txtFreq).Text = std::to_string(fps);
}

void VideoOptions::lblTxtFilter_Click()
{
    Screen.TxtFilter = NextFilter(Screen.TxtFilter);
    At(lblTxtFilter).Caption = FilterName(Screen.TxtFilter);
}

void VideoOptions::lblEffQ_Click()
{
    Settings.EffQuality = NextQuality(Settings.EffQuality);
    At(lblEffQ).Caption = QualityName(Settings.EffQuality);
}

void VideoOptions::cCamConfig_Click()
{
    if (At(chkWebcam).Value != 0)
        Ask.ConfigureWebcam();
}

void VideoOptions::cVidOptOK_Click()
{
    base::Trapped(On.Messages, "cVidOptOK_Click", [this] { TakeAll(); });
}

void VideoOptions::TakeAll()
{
    if (!TakeFrameRate() || !TakeResolution())
        return;
    const bool fullScreen = At(chkFS).Value != 0;
    Settings.FullScreen = base::ToFlag(fullScreen);
    Ask.ApplyFullScreen(fullScreen);
    Settings.WebcamOn = base::ToFlag(At(chkWebcam).Value != 0);
    Hide();
}

bool VideoOptions::TakeFrameRate()
{
    const std::optional<double> rate = ReadTyped(At(txtFreq).Text);
    if (!rate)
        return Refuse(txtFreq, "La frequenza di aggiornamento deve essere un numero");
    if (!IsWithin(*rate, LeastFps, MostFps))
        return Refuse(txtFreq, "La frequenza di aggiornamento deve essere compresa tra 5 e 30 fps");
    Settings.TargetFps = base::ToInt16(*rate);
    RenderT.interval = 1000 / Settings.TargetFps;
    return true;
}

bool VideoOptions::TakeResolution()
{
    const std::string_view text = At(txtRes).Text;
    const std::size_t mark = text.find('x');
    if (mark == std::string_view::npos)
        return Refuse(txtRes, "La risoluzione deve essere nel formato WxH");
    const std::optional<double> width = ReadTyped(text.substr(0, mark)), height = ReadTyped(text.substr(mark + 1));
    if (!width || !height)
        return Refuse(txtRes, "I termini della risoluzione devono essere numeri");
    if (!IsWithin(*width, LeastWidth, MostWidth))
        return Refuse(txtRes, "La risoluzione orizzontale deve essere compresa tra 240 e 1200");
    if (!IsWithin(*height, LeastHeight, MostHeight))
        return Refuse(txtRes, "La risoluzione verticale deve essere compresa tra 200 e 900");
    Ask.ApplyResolution(base::ToInt32(*width), base::ToInt32(*height));
    return true;
}

std::string FilterName(std::int16_t txtFilter)
{
    switch (txtFilter)
    {
    case render::Filter::Nearest:
        return "nessuno";
    case render::Filter::Linear:
        return "lineare";
    case render::Filter::Anisotropic:
        return "anisotropico";
    default:
        return {};
    }
}

// The bounds are singles, as the setting is.
std::string QualityName(float effQuality)
{
    if (effQuality == 0.0f)
        return "nessuno";
    if (effQuality <= 0.3f)
        return "bassa";
    if (effQuality <= 0.5f)
        return "media";
    return effQuality <= 1.0f ? "alta" : "";
}

std::int16_t NextFilter(std::int16_t txtFilter)
{
    return static_cast<std::int16_t>((txtFilter + 1) % 3);
}

float NextQuality(float effQuality)
{
    if (effQuality == 0.0f)
        return 0.3f;
    if (effQuality <= 0.3f)
        return 0.5f;
    if (effQuality <= 0.5f)
        return 1.0f;
    return effQuality <= 1.0f ? 0.0f : effQuality;
}
}
