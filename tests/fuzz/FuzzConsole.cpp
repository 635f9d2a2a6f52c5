// Any bytes as hands on the console of a small race. 10 enters the line, 1 opens, 2 closes, 4 recalls, every other byte
// is typed; the clipboard holds the whole input. After each line the race goes on for a tick with what was set, and
// the view and the answer are drawn.
#include "base/Text.h"
#include "console/Console.h"
#include "fuzz/Folder.h"
#include "render/Primitives.h"
#include "render/RenderFrame.h"
#include "tests/support/World.h"

#include <cstdlib>

namespace
{
constexpr int MostLines = 40; // so that an input takes milliseconds
constexpr int Open = 220, Close = 27, Recall = 38;

struct Desk final : console::Host
{
    support::World World;
    render::Screen Screen;
    std::string LastCommand = "\\";
    std::string Clipboard;
    console::Console Console{World.Scene, Label(1), Label(2), World.Race, World.Camera, Screen, LastCommand, *this};
    render::Font Font;
    std::vector<std::uint8_t> Bits = std::vector<std::uint8_t>(96 * 64 * 3);

    Desk()
    {
        fuzz::NoMessages messages;
        render::ApplyResolution(messages, Screen, World.Camera, 96, 64);
        for (const float x : {0.0f, 6.0f, 12.0f})
        {
            World.AddCar(x, 4);
            const std::int16_t body = render::MakeObj(World.Scene, {x, 0, 4, 0, 0}, 1, 0, 1, 1);
            render::EditObjMesh(World.Scene, body, 0, 2, 2, 255, 0);
            for (int i = 0; i < 2; ++i)
                for (int j = 0; j < 2; ++j)
                    render::EditObjMeshPt(World.Scene, body, 0, i, j,
                                          {static_cast<float>(i), 1, static_cast<float>(j), 0, 0});
        }
        World.Race.GameTime = world::ReleaseTime;
        World.Keys.KeyAccel = World.Keys.KeyLeft = base::True;
        for (render::Glyph& glyph : Font.Glyphs)
            glyph = {1, 5, 7, std::vector<std::uint8_t>(5 * 7, 255)};
        Font.LineHeight = 7;
        Font.WidestGlyph = 5;
    }

    void KeyUp(int code) { console::ConsoleKeyUp(Console, static_cast<std::int16_t>(code)); }
    void Tick()
    {
        World.Tick();
        render::DrawObjects(World.Scene, World.Camera, Screen);
    }
    void DrawAnswer()
    {
        const render::Label2D& label = World.Scene.Labels.At(Console.Line);
        const std::int32_t tab = render::TabPixels(Font, label.Scale, label.TabWidth);
        render::DrawTextLeft({Bits.data(), 96 * 3, 96, 64}, Font, 1, 50, label.Scale, tab, {255, 255, 255}, 1,
                             label.Text);
    }
    // The line is a whole text of bounded length, and no longer than what can be typed unless it is an answer.
    void Check()
    {
        const std::string& text = World.Scene.Labels.At(Console.Line).Text;
        if (text.empty() || text.size() > console::LongestLine || LastCommand.size() > console::LongestLine)
            std::abort();
        std::string again;
        for (std::size_t at = 0; at < text.size();)
            base::AppendCode(again, base::NextCode(text, at));
        if (again != text)
            std::abort();
    }

private:
    std::int16_t Label(std::int16_t y)
    {
        return render::MakeLabel2D(World.Scene, {.X = 1,
                                                 .Y = y,
                                                 .Style = render::StartsAtX,
                                                 .Text = "\\",
                                                 .Scale = 0.5f,
                                                 .TabWidth = 4,
                                                 .Col = {255, 255, 255}});
    }
    std::string ClipboardText() override { return Clipboard; }
    void SetClipboardText(const std::string& text) override { Clipboard = text; }
    void SetElapsed(std::int32_t milliseconds) override { World.Race.GameTime = milliseconds; }
};
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input = fuzz::Text(data, size);
    Desk desk;
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
            console::ConsoleKeyPress(desk.Console, 13);
            desk.Check();
            desk.Tick();
            desk.DrawAnswer();
            desk.KeyUp(Open); // where the command has closed it
            break;
        default:
            console::ConsoleKeyPress(desk.Console, static_cast<std::uint8_t>(c));
        }
    }
    desk.Check();
    return 0;
}
