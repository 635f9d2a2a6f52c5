// SPDX-License-Identifier: Zlib
#include "shell/HudElements.h"

#include "base/Numbers.h"
#include "render/Primitives.h"
#include "render/Spanner.h"

#include <iterator>

namespace shell
{
namespace
{
enum class Shape
{
    Picture,
    Bar,
    Text
};

enum class From
{
    Zero,
    Centre,
    ThreeQuarters,
    Far // the frame's width or height
};

// A coordinate of an anchor: a place of the frame and pixels from there.
struct Anchor
{
    From Place;
    std::int32_t Pixels;

    double In(std::int32_t length) const
    {
        const std::int32_t centre = length / 2;
        switch (Place)
        {
        case From::Centre:
            return centre + Pixels;
        case From::ThreeQuarters:
            return 0.75 * length + Pixels;
        case From::Far:
            return length + Pixels;
        case From::Zero:
            break;
        }
        return Pixels;
    }
};

using render::CentredOnX;
using render::EndsAtX;
using render::StartsAtX;

struct Element
{
    std::int16_t Hud::*Index;
    Shape Kind;
    Anchor X, Y;
    const char* Text;
    render::LabelStyle Style;
    float Scale;
    std::int16_t TabWidth;
    base::Rgb Colour;
    std::uint8_t Visible;
};

constexpr base::Rgb White = {255, 255, 255}, Red = {255, 0, 0};
constexpr std::int32_t PreviewSize = 70, SpannerSize = 32;
constexpr std::int16_t BarWidth = 15, BarHeight = 5; // from (0, 3) to (15, 8)
constexpr std::size_t TextRoom = 256;                // bytes: no tick allocates

constexpr Element Elements[] = {
    {&Hud::Webcam, Shape::Picture, {From::Zero, 5}, {From::Far, -90}, "", StartsAtX, PreviewSize, 0, White, 1},
    {&Hud::DamageBar, Shape::Bar, {From::Zero, 0}, {From::Zero, 3}, "", StartsAtX, 0, 0, {0, 180, 0}, 1},
    {&Hud::Unit, Shape::Text, {From::Far, -1}, {From::Zero, 18}, "Km/h", EndsAtX, 0.4f, 4, White, 1},
    {&Hud::Speed, Shape::Text, {From::Far, -35}, {From::Zero, 13}, "0", EndsAtX, 0.9f, 4, White, 1},
    {&Hud::Gear, Shape::Text, {From::Far, -1}, {From::Zero, 1}, "N", EndsAtX, 0.4f, 4, White, 1},
    {&Hud::Place, Shape::Text, {From::Far, -1}, {From::Far, -31}, "0/0", EndsAtX, 0.9f, 4, White, 1},
    {&Hud::Message, Shape::Text, {From::Centre, 0}, {From::Centre, -20}, "", CentredOnX, 1.0f, 4, White, 0},
    {&Hud::LapsCaption, Shape::Text, {From::Far, -40}, {From::Far, -48}, "Giri", EndsAtX, 0.4f, 4, White, 1},
    {&Hud::LapCounter, Shape::Text, {From::Far, -1}, {From::Far, -50}, "0/0", EndsAtX, 0.7f, 4, White, 1},
    {&Hud::FrameRate, Shape::Text, {From::Zero, 1}, {From::Far, -20}, "0 fps", StartsAtX, 0.6f, 4, {200, 0, 0}, 1},
    {&Hud::Countdown, Shape::Text, {From::Centre, 0}, {From::Centre, -20}, "", CentredOnX, 2.0f, 4, White, 1},
    {&Hud::Notice, Shape::Text, {From::Zero, 1}, {From::Zero, 15}, "", StartsAtX, 0.5f, 4, White, 0},
    {&Hud::Console, Shape::Text, {From::Zero, 1}, {From::Far, -40}, "\\", StartsAtX, 0.5f, 4, White, 0},
    {&Hud::Pause, Shape::Text, {From::Centre, 0}, {From::ThreeQuarters, 0}, "PAUSA", CentredOnX, 0.5f, 4, Red, 0},
    {&Hud::Debug, Shape::Text, {From::Far, -1}, {From::Far, -80}, "", EndsAtX, 0.5f, 3, White, 0},
    {&Hud::Repair, Shape::Picture, {From::Zero, 5}, {From::Zero, 14}, "", StartsAtX, SpannerSize, 0, White, 0},
};

std::int16_t Whole(double value)
{
    return base::ToInt16(value);
}

std::int16_t Make(const Element& element, render::Scene& scene, base::MessageSink& messages, double x, double y)
{
    switch (element.Kind)
    {
    case Shape::Picture:
    {
        const std::int32_t side = base::RoundEven(element.Scale);
        return render::MakePic2D(scene, messages,
                                 {.Visible = element.Visible, .X = static_cast<float>(x), .Y = static_cast<float>(y)},
                                 side, side);
    }
    case Shape::Bar:
        return render::MakeRect2D(scene, {.Visible = element.Visible,
                                          .X = Whole(x),
                                          .Y = Whole(y),
                                          .W = BarWidth,
                                          .H = BarHeight,
                                          .Col = element.Colour});
    case Shape::Text:
        break;
    }
    const std::int16_t label = render::MakeLabel2D(scene, {.Visible = element.Visible,
                                                           .X = Whole(x),
                                                           .Y = Whole(y),
                                                           .Style = element.Style,
                                                           .Text = element.Text,
                                                           .Scale = element.Scale,
                                                           .TabWidth = element.TabWidth,
                                                           .Col = element.Colour});
    scene.Labels.At(label).Text.reserve(TextRoom);
    return label;
}
}

void MakeHud(render::Scene& scene, base::MessageSink& messages, Hud& hud, std::int32_t width, std::int32_t height)
{
    for (const Element& element : Elements)
        hud.*element.Index = Make(element, scene, messages, element.X.In(width), element.Y.In(height));
    render::PaintSpanner(scene.Pics.At(hud.Repair).Pic);
}

void PlaceHud(render::Scene& scene, const Hud& hud, std::int32_t width, std::int32_t height)
{
    for (const Element& element : Elements)
    {
        const std::int16_t index = hud.*element.Index;
        const double x = element.X.In(width), y = element.Y.In(height);
        if (index < 0)
            continue;
        if (element.Kind == Shape::Picture)
            render::MovePic2D(scene, index, static_cast<float>(x), static_cast<float>(y));
        else if (element.Kind == Shape::Text)
        {
            scene.Labels.At(index).X = Whole(x);
            scene.Labels.At(index).Y = Whole(y);
        }
    }
}
}
