// SPDX-License-Identifier: Zlib
// Any bytes as hands on the console of a small race. 10 enters the line, 1 opens, 2 closes, 4 recalls, every other byte
// is typed; the clipboard holds the whole input. After each line the race goes on for a tick with what was set, and
// the view and the answer are drawn.
#include "fuzz/Folder.h"
#include "platform/Keys.h"
#include "render/RenderFrame.h"
#include "render/Text.h"
#include "tests/support/Desk.h"
#include "world/Tick.h"

#include <cstdlib>

namespace
{
constexpr int MostLines = 40; // so that an input takes milliseconds
constexpr int Open = platform::KeyBackslash, Close = platform::KeyEsc, Recall = platform::KeyUp;

struct FuzzDesk final : support::Desk
{
    render::Font Font;
    std::vector<std::uint8_t> Bits = std::vector<std::uint8_t>(96 * 64 * 3);

    FuzzDesk()
    {
        fuzz::NoMessages messages;
        render::ApplyResolution(messages, Screen, TheWorld.Camera, 96, 64);
        for (const float x : {0.0f, 6.0f, 12.0f})
        {
            TheWorld.AddCar(x, 4);
            const std::int16_t body = render::MakeObj(TheWorld.Scene, {x, 0, 4, 0, 0}, 1, 0, 1, 1);
            render::EditObjMesh(TheWorld.Scene, body, 0, {2, 2}, 255, 0);
            for (int i = 0; i < 2; ++i)
                for (int j = 0; j < 2; ++j)
                    render::EditObjMeshPt(TheWorld.Scene, body, 0, i, j,
                                          {static_cast<float>(i), 1, static_cast<float>(j), 0, 0});
        }
        TheWorld.Race.GameTime = world::ReleaseTime;
        TheWorld.Keys.KeyAccel = TheWorld.Keys.KeyLeft = base::True;
        for (render::Glyph& glyph : Font.Glyphs)
            glyph = {1, 5, 7, std::vector<std::uint8_t>(5 * 7, 255)};
        Font.LineHeight = 7;
        Font.WidestGlyph = 5;
    }

    void Tick()
    {
        TheWorld.Tick();
        render::DrawObjects(TheWorld.Scene, TheWorld.Camera, Screen);
    }
    void DrawAnswer()
    {
        const render::Label2D& label = Line();
        const std::int32_t tab = render::TabPixels(Font, label.Scale, label.TabWidth);
        render::DrawTextLeft({Bits.data(), 96 * 3, 96, 64}, Font, {label.Scale, tab, {255, 255, 255}, 1}, 1, 50,
                             label.Text);
    }
    // The line is a whole text of bounded length, and no longer than what can be typed unless it is an answer.
    void Check()
    {
        const std::string& text = Line().Text;
        if (text.empty() || text.size() > console::LongestLine || LastCommand.size() > console::LongestLine)
            std::abort();
        std::string again;
        for (std::size_t at = 0; at < text.size();)
            base::AppendCode(again, base::NextCode(text, at));
        if (again != text)
            std::abort();
    }
    void SetElapsed(std::int32_t milliseconds) override { TheWorld.Race.GameTime = milliseconds; }
};
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input = fuzz::Text(data, size);
    FuzzDesk desk;
    desk.Clipboard = input;
    desk.KeyUp(Open);
    int lines = 0;
    for (const char c : input)
    {
        switch (c)
        {
        case 1:
            desk.KeyUp(Open);
            break;
        case 2:
            desk.KeyUp(Close);
            break;
        case 4:
            desk.KeyUp(Recall);
            break;
        case '\n':
            if (++lines > MostLines)
                return 0;
            desk.Press(platform::Enter);
            desk.Check();
            desk.Tick();
            desk.DrawAnswer();
            desk.KeyUp(Open); // where the command has closed it
            break;
        default:
            desk.Press(static_cast<std::uint8_t>(c));
        }
    }
    desk.Check();
    return 0;
}
