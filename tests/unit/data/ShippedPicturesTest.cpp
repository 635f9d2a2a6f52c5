// SPDX-License-Identifier: Zlib
// What the game counts on in the pictures and letters that ship with it.
#include "base/Numbers.h"
#include "base/Pixels.h"
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

// A glyph as the display draws it at this scale: 1 where there is ink.
base::Grid<std::uint8_t> Shown(const render::Glyph& glyph, float scale)
{
    const double size = scale;
    base::Grid<std::uint8_t> shown;
    shown.Reset(base::Floor((glyph.GlyphW - 1) * size) + 1, base::Floor((glyph.GlyphH - 1) * size) + 1);
    for (int y = 0; y < shown.Height; ++y)
        for (int x = 0; x < shown.Width; ++x)
            shown.At(x, y) = glyph.Row(base::Floor(y / size))[base::Floor(x / size)] != 0;
    return shown;
}

int Inked(const base::Grid<std::uint8_t>& shown)
{
    return static_cast<int>(std::count(shown.Cells.begin(), shown.Cells.end(), 1));
}

int Differing(const base::Grid<std::uint8_t>& a, const base::Grid<std::uint8_t>& b)
{
    int count = 0;
    for (int y = 0; y < std::max(a.Height, b.Height); ++y)
        for (int x = 0; x < std::max(a.Width, b.Width); ++x)
            count += (a.Has(x, y) && a.At(x, y) != 0) != (b.Has(x, y) && b.At(x, y) != 0);
    return count;
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
    // No letter may lose more than half of what it should keep.
    for (int code = 33; code < 127; ++code)
    {
        const double all = Inked(Shown(Glyph(code), 1)), kept = Inked(Shown(Glyph(code), 0.4f));
        EXPECT_GT(all, 0) << code;
        EXPECT_GT(kept, 0.5 * 0.16 * all) << code;
    }
}

TEST_F(ShippedFont, LettersThatAreAlikeDifferInTheSmallScales)
{
    const std::string_view alike[] = {"BG", "B8",  "CG",  "CO", "OQ", "038", "069", "568", "S5",
                                      "Z2", "ceo", "aes", "as", "hn", "uv",  "1l",  "ft"};
    for (const std::string_view group : alike)
        for (std::size_t i = 0; i < group.size(); ++i)
            for (std::size_t j = i + 1; j < group.size(); ++j)
                for (const float scale : {0.4f, 0.5f})
                    EXPECT_GE(Differing(Shown(Glyph(group[i]), scale), Shown(Glyph(group[j]), scale)), 2)
                        << group[i] << group[j] << " at " << scale;
}

TEST_F(ShippedFont, StemsAreOnePixelWideInTheSmallScales)
{
    for (const char letter : std::string_view("HILlhinu"))
        for (const float scale : {0.4f, 0.5f})
        {
            const base::Grid<std::uint8_t> shown = Shown(Glyph(letter), scale);
            const int row = base::Floor(17 * scale); // above the feet and below the bars
            for (int x = 1; x < shown.Width; ++x)
                EXPECT_FALSE(shown.At(x, row) != 0 && shown.At(x - 1, row) != 0) << letter;
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
