// SPDX-License-Identifier: Zlib
#include "shell/Hud.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "render/Primitives.h"
#include "render/Text.h"
#include "world/Driving.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace shell
{
namespace
{
// A text put together in place.
struct Line
{
    std::array<char, 96> Bytes{};
    std::size_t Length = 0;

    Line& operator<<(std::string_view text)
    {
        const std::size_t fits = std::min(text.size(), Bytes.size() - Length);
        text.copy(Bytes.data() + Length, fits);
        Length += fits;
        return *this;
    }
    Line& operator<<(std::int32_t number)
    {
        const auto end = std::to_chars(Bytes.data() + Length, Bytes.data() + Bytes.size(), number).ptr;
        Length = static_cast<std::size_t>(end - Bytes.data());
        return *this;
    }
    operator std::string_view() const { return {Bytes.data(), Length}; }
};

}

const world::Player& ViewedPlayer(const Game& game)
{
    const world::Player* player = world::FindPlayer(game.Race, game.Camera.ViewPlayer);
    if (player == nullptr)
        throw base::RuntimeError(base::ErrorIndex);
    return *player;
}

void ShowFrameRate(Game& game)
{
    const bool fast = game.Run.Fps >= game.Settings.TargetFps - 2;
    game.Scene.Labels.At(game.Hud.FrameRate).Col = fast ? base::Rgb{0, 200, 0} : base::Rgb{200, 0, 0};
    render::SetLabelText(game.Scene, game.Hud.FrameRate, Line() << game.Run.Fps << " fps");
}

void ShowSpeed(Game& game)
{
    // The floor comes before the sign is dropped: the slightest reversing shows 1.
    const std::int32_t shown = base::ToInt32(std::abs(std::floor(ViewedPlayer(game).Speed * 36.0)));
    render::SetLabelText(game.Scene, game.Hud.Speed, Line() << shown);
}

void ShowGear(Game& game)
{
    render::SetLabelText(game.Scene, game.Hud.Gear, world::Gear(ViewedPlayer(game).Speed));
}

void ShowPlace(Game& game)
{
    render::SetLabelText(game.Scene, game.Hud.Place,
                         Line() << ViewedPlayer(game).Place << "/" << game.Race.NumPlayers());
}

void ShowLap(Game& game)
{
    render::SetLabelText(game.Scene, game.Hud.LapCounter,
                         Line() << ViewedPlayer(game).Lap + 1 << "/" << game.Race.Laps);
}

void PlaceLapsCaption(Game& game)
{
    const render::Label2D& counter = game.Scene.Labels.At(game.Hud.LapCounter);
    const render::Font& font = game.Scene.Font;
    const std::int32_t tab = render::TabPixels(font, counter.Scale, counter.TabWidth);
    const std::int16_t width = render::TextWidth(font, counter.Scale, counter.Text, tab);
    game.Scene.Labels.At(game.Hud.LapsCaption).X = base::ToInt16(game.Screen.ScreenW - width - 6);
}

void ShowCountdown(Game& game)
{
    constexpr const char* Texts[] = {"3", "2", "1", "Via!"};
    render::Label2D& label = game.Scene.Labels.At(game.Hud.Countdown);
    const std::int32_t time = game.Race.GameTime;
    label.Visible = time < 4000 ? 1 : 0;
    if (label.Visible != 0)
        render::SetLabelText(game.Scene, game.Hud.Countdown, Texts[std::max(0, time) / 1000]);
}

void ShowDamage(Game& game)
{
    render::Rect2D& bar = game.Scene.Rects.At(game.Hud.DamageBar);
    if (bar.Visible == 0)
        return;
    const float damage = ViewedPlayer(game).Damage;
    bar.Col = damage > 3 ? base::Rgb{180, 0, 0} : damage > 1 ? base::Rgb{230, 230, 0} : base::Rgb{0, 180, 0};
    const double right = damage <= 5 ? (game.Screen.ScreenW - 16) * (5.0 - damage) / 5 + 15 : 15;
    render::SetRectW(game.Scene, game.Hud.DamageBar, base::ToInt16(right));
}

void ShowDebug(Game& game)
{
    if (game.Scene.Labels.At(game.Hud.Debug).Visible == 0)
        return;
    render::SetLabelText(game.Scene, game.Hud.Debug,
                         Line() << "Particles:\t" << game.Scene.ParticleCount << "\r\nRender int:\t"
                                << game.Timers.RenderT.interval);
}

void FadeNotice(Game& game)
{
    render::Label2D& label = game.Scene.Labels.At(game.Hud.Notice);
    if (label.Visible == 0)
        return;
    const double time = static_cast<double>(game.Race.GameTime) - game.Run.NoticeTime;
    if (time < 1500)
        label.Fade = static_cast<float>(std::max(0.0, time / 1500));
    else if (time < 3500)
        label.Fade = 1;
    else if (time < 5000)
        label.Fade = static_cast<float>((5000 - time) / 1500);
    else
        label.Visible = 0;
}
}
