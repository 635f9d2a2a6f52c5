// What the game counts on in the pictures and letters that ship with it.
#include "base/Text.h"
#include "console/Texts.h"
#include "render/Font.h"
#include "render/PicArray.h"
#include "render/Text.h"
#include "tests/support/Messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace
{
const base::Files Tree{VELKAR_ROOT};

render::Picture Load(const std::string& path)
{
    support::Messages messages;
    render::Picture picture;
    EXPECT_TRUE(render::LoadPicArray2D(messages, Tree, path, picture.Info, picture.Pixels)) << path;
    return picture;
}

bool IsClear(const render::Picture& picture, int x, int y)
{
    const std::uint8_t* p = picture.Pixels.Bytes.data() + y * picture.Info.RowBytes + x * 3;
    return p[0] == 0 && p[1] == 0 && p[2] == 0;
}

double ClearShare(const render::Picture& picture)
{
    int clear = 0;
    for (int y = 0; y < picture.Info.Height; ++y)
        for (int x = 0; x < picture.Info.Width; ++x)
            clear += IsClear(picture, x, y);
    return static_cast<double>(clear) / (picture.Info.Width * picture.Info.Height);
}

struct ShippedFont : testing::Test
{
    support::Messages Messages;
    render::Font Font;

    ShippedFont() { render::LoadFont(Messages, Tree, "data\\fonts\\Font_01", Font); }
    const render::Glyph& Glyph(int code) const
    {
        return Font.Glyphs.at(static_cast<std::size_t>(code - render::FirstCode));
    }
};
}

TEST_F(ShippedFont, HasEveryCharacterOfTheCodePage)
{
    EXPECT_TRUE(Messages.Boxes.empty());
    for (int code = 32; code < 256; ++code)
        if (code != 127 && code != 129 && code != 141 && code != 143 && code != 144 && code != 157)
        {
            EXPECT_EQ(Glyph(code).Present, 1) << code;
            EXPECT_EQ(Glyph(code).GlyphH, 30) << code;
        }
}

TEST_F(ShippedFont, DigitsAreOfOneWidth)
{
    for (int code = '0'; code <= '9'; ++code)
        EXPECT_EQ(Glyph(code).GlyphW, Glyph('0').GlyphW) << code;
}

TEST_F(ShippedFont, LettersKeepTheirInkAtTheSmallestScale)
{
    // At 0.4 every fifth pair of rows and columns is left: no letter may lose more than half of what it should keep.
    for (int code = 33; code < 127; ++code)
    {
        const render::Glyph& glyph = Glyph(code);
        double all = 0, kept = 0;
        for (int y = 0; y < glyph.GlyphH; ++y)
            for (int x = 0; x < glyph.GlyphW; ++x)
                all += glyph.Mask[static_cast<std::size_t>(y * glyph.GlyphW + x)] != 0;
        for (int j = 0; j * 5 / 2 < glyph.GlyphH; ++j)
            for (int i = 0; i * 5 / 2 < glyph.GlyphW; ++i)
                kept += glyph.Mask[static_cast<std::size_t>(j * 5 / 2 * glyph.GlyphW + i * 5 / 2)] != 0;
        EXPECT_GT(all, 0) << code;
        EXPECT_GT(kept, 0.5 * 0.16 * all) << code;
    }
}

TEST_F(ShippedFont, EveryAnswerOfTheConsoleStandsOnTheFirstFrame)
{
    // 600 x 312, from (1, 272) downward at scale 0.5, as the console's label has it.
    constexpr float scale = 0.5f;
    std::vector<console::Topic> answers = {{"", console::AllObjects}, {"", console::AllCommands}};
    for (const char* word : {"userplayer", "player", "camera", "game"})
        answers.push_back(*console::FindObject(word));
    for (const char* word : {"set", "get", "lst", "inf"})
        answers.push_back(*console::FindCommand(word));
    for (const console::Topic& answer : answers)
    {
        // The widest tab stop may still hold from another answer.
        const std::int16_t tabWidth = answer.TabWidth != 0 ? answer.TabWidth : std::int16_t{8};
        const std::int32_t tab = render::TabPixels(Font, scale, tabWidth);
        EXPECT_LT(render::TextWidth(Font, scale, answer.Text, tab), 600) << answer.Text;
        const auto lines = std::count(answer.Text.begin(), answer.Text.end(), '\r');
        EXPECT_GE(272 - static_cast<double>(lines) * (Font.LineHeight / 2.0 + 1), 0) << answer.Text;
        // A name and what it means never share a tab stop: every name ends before the first.
        std::string_view left = answer.Text;
        while (!left.empty())
        {
            const std::string_view line = left.substr(0, left.find("\r\n"));
            const std::string_view name = line.substr(0, line.find('\t'));
            if (answer.TabWidth > 1)
            {
                EXPECT_LT(render::TextWidth(Font, scale, name, tab), tab) << name;
            }
            left.remove_prefix(std::min(left.size(), line.size() + 2));
        }
    }
}

TEST(ShippedPictures, BothGlassesHaveOneSizeAndLetTheDriverSee)
{
    const render::Picture whole = Load("data\\textures\\glass.bmp"), broken = Load("data\\textures\\glass_b.bmp");
    EXPECT_EQ(whole.Info.Width, broken.Info.Width);
    EXPECT_EQ(whole.Info.Height, broken.Info.Height);
    EXPECT_GT(ClearShare(whole), 0.8);
    EXPECT_GT(ClearShare(broken), 0.6);
    EXPECT_LT(ClearShare(broken), ClearShare(whole));
}

TEST(ShippedPictures, PuffsAreRound)
{
    for (const char* name : {"smoke", "water", "fireR", "fireY"})
    {
        const render::Picture puff = Load("data\\sprites\\" + std::string(name) + ".bmp");
        const int right = puff.Info.Width - 1, top = puff.Info.Height - 1;
        for (const auto& [x, y] : {std::pair{0, 0}, {right, 0}, {0, top}, {right, top}})
            EXPECT_TRUE(IsClear(puff, x, y)) << name;
        EXPECT_FALSE(IsClear(puff, right / 2, top / 2)) << name;
    }
}

TEST(ShippedPictures, TheBackdropFitsTheWebcam)
{
    const render::Picture inside = Load("data\\images\\inside.bmp");
    EXPECT_EQ(inside.Info.Width, 107);
    EXPECT_EQ(inside.Info.Height, 80);
}

TEST(ShippedPictures, TheMenuFillsAndTheTitleStandsOnNothing)
{
    EXPECT_EQ(ClearShare(Load("data\\images\\menu.bmp")), 0);
    EXPECT_EQ(ClearShare(Load("data\\images\\splash.bmp")), 0);
    const render::Picture logo = Load("data\\images\\logo.bmp");
    EXPECT_GT(ClearShare(logo), 0.25);
    EXPECT_TRUE(IsClear(logo, 0, 0));
}
