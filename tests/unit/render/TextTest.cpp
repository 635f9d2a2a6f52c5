// SPDX-License-Identifier: Zlib
#include "render/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

using render::Font;
using render::Glyph;

namespace
{
// A surface whose content reads as rows of characters, top row first: '.' untouched, '#' the colour, '-' black.
struct Paper
{
    int Width, Height;
    std::vector<std::uint8_t> Bytes;

    Paper(int width, int height) : Width(width), Height(height), Bytes(static_cast<std::size_t>(width * 3 * height), 99)
    {
    }
    base::Surface Surface() { return {Bytes.data(), Width * 3, Width, Height}; }
    std::string Rows() const
    {
        std::string text;
        for (int y = Height - 1; y >= 0; --y)
        {
            for (int x = 0; x < Width; ++x)
            {
                const std::uint8_t blue = Bytes[static_cast<std::size_t>((y * Width + x) * 3)];
                text += blue == 99 ? '.' : (blue == 0 ? '-' : '#');
            }
            text += '\n';
        }
        return text;
    }
};

// Rows from the top; '#' is ink.
Glyph MakeGlyph(const std::vector<std::string>& rows)
{
    Glyph glyph;
    glyph.Present = 1;
    glyph.GlyphW = static_cast<std::int32_t>(rows[0].size());
    glyph.GlyphH = static_cast<std::int32_t>(rows.size());
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        for (const char c : *row)
            glyph.Mask.push_back(c == '#' ? 255 : 0);
    return glyph;
}

void Put(Font& font, int code, Glyph glyph)
{
    font.LineHeight = std::max(font.LineHeight, glyph.GlyphH);
    font.WidestGlyph = std::max(font.WidestGlyph, glyph.GlyphW);
    font.Glyphs[static_cast<std::size_t>(code - render::FirstCode)] = std::move(glyph);
}

// 'i' is 1 x 2, 'w' 3 x 1, '?' 2 x 1; all ink.
Font SmallFont()
{
    Font font;
    Put(font, 'i', MakeGlyph({"#", "#"}));
    Put(font, 'w', MakeGlyph({"###"}));
    Put(font, '?', MakeGlyph({"##"}));
    return font;
}

constexpr base::Rgb White{255, 254, 253};
}

TEST(DrawGlyph, EveryInkedRunHasADarkEdgeAboveIt)
{
    Paper paper(5, 5);
    render::DrawGlyph(paper.Surface(), MakeGlyph({"...", "#.#", "...", "##."}), 1, 0, {1.0f, 0, White, 1.0f});
    EXPECT_EQ(paper.Rows(), ".....\n"
                            ".-.-.\n"
                            ".#.#.\n"
                            ".--..\n"
                            ".##..\n");
}

TEST(DrawGlyph, ColourBytesAreBlueGreenRed)
{
    Paper paper(1, 1);
    render::DrawGlyph(paper.Surface(), MakeGlyph({"#"}), 0, 0, {1.0f, 0, {1, 2, 3}, 1.0f});
    EXPECT_EQ(paper.Bytes, (std::vector<std::uint8_t>{3, 2, 1}));
}

// Scale 2 of a glyph 2 wide: columns 0 … floor(1 x 2) = 2. The edge stays one pixel high.
TEST(DrawGlyph, ScaledGlyphsSampleTheMaskAndKeepAOnePixelEdge)
{
    Paper paper(5, 6);
    render::DrawGlyph(paper.Surface(), MakeGlyph({"..", "..", "#."}), 1, 1, {2.0f, 0, White, 1.0f});
    EXPECT_EQ(paper.Rows(), ".....\n"
                            ".....\n"
                            ".--..\n"
                            ".##..\n"
                            ".##..\n"
                            ".....\n");
}

TEST(DrawGlyph, ShrunkGlyphsDropRowsAndColumns)
{
    Paper paper(4, 4);
    // Columns 0 … floor(3 x 0.5) = 1 sample 0 and 2.
    render::DrawGlyph(paper.Surface(), MakeGlyph({"####", "#.#.", "####", "...."}), 0, 0, {0.5f, 0, White, 1.0f});
    EXPECT_EQ(paper.Rows(), "....\n"
                            "....\n"
                            "##..\n"
                            "....\n");
}

TEST(DrawGlyph, ClippedOnAllFourSidesItIsTheSameGlyph)
{
    const Glyph glyph = MakeGlyph({"....", "#..#", ".##.", "#..#"});
    Paper whole(12, 12);
    render::DrawGlyph(whole.Surface(), glyph, 4, 4, {1.0f, 0, White, 1.0f});
    for (int dx = -4; dx <= 3; ++dx)
        for (int dy = -4; dy <= 3; ++dy)
        {
            // A window of 3 x 3 on the same picture.
            Paper part(3, 3);
            render::DrawGlyph(part.Surface(), glyph, dx, dy, {1.0f, 0, White, 1.0f});
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < 3; ++x)
                    ASSERT_EQ(part.Bytes[static_cast<std::size_t>((y * 3 + x) * 3)],
                              whole.Bytes[static_cast<std::size_t>(((y + 4 - dy) * 12 + x + 4 - dx) * 3)])
                        << dx << " " << dy << " " << x << " " << y;
        }
}

TEST(DrawGlyph, AnotherFactorRoundsEachChannelDownAndKeepsTheEdge)
{
    Paper paper(1, 2);
    render::DrawGlyph(paper.Surface(), MakeGlyph({".", "#"}), 0, 0, {1.0f, 0, {255, 101, 3}, 0.5f});
    EXPECT_EQ(paper.Bytes, (std::vector<std::uint8_t>{1, 50, 127, 0, 0, 0}));
}

TEST(DrawGlyph, FactorsOutsideZeroToOneStayWithinAByte)
{
    Paper paper(1, 1);
    render::DrawGlyph(paper.Surface(), MakeGlyph({"#"}), 0, 0, {1.0f, 0, {255, 101, 3}, 4.0f});
    EXPECT_EQ(paper.Bytes, (std::vector<std::uint8_t>{12, 255, 255}));
    render::DrawGlyph(paper.Surface(), MakeGlyph({"#"}), 0, 0, {1.0f, 0, {255, 101, 3}, -1.0f});
    EXPECT_EQ(paper.Bytes, (std::vector<std::uint8_t>{0, 0, 0}));
}

TEST(DrawGlyph, ScalesAndPlacesThatAreNoNumbersDrawNothing)
{
    Paper paper(3, 3);
    const std::string before = paper.Rows();
    const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    for (const float scale : {nan, inf, -inf, 0.0f, -1.0f, 1e30f})
        render::DrawGlyph(paper.Surface(), MakeGlyph({"##", "##"}), 0, 0, {scale, 0, White, 1.0f});
    render::DrawGlyph(paper.Surface(), MakeGlyph({"#"}), 0, 0, {1.0f, 0, White, nan});
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    for (const std::int32_t far : {most, -most - 1})
        render::DrawGlyph(paper.Surface(), MakeGlyph({"#"}), far, far, {1.0f, 0, White, 1.0f});
    EXPECT_EQ(paper.Rows(), before);
}

TEST(TextWidth, TheWidestLineCounts)
{
    const Font font = SmallFont();
    EXPECT_EQ(render::TextWidth(font, 1.0f, "", 0), 0);
    EXPECT_EQ(render::TextWidth(font, 1.0f, "i", 0), 2);
    EXPECT_EQ(render::TextWidth(font, 1.0f, "iw", 0), 6);
    EXPECT_EQ(render::TextWidth(font, 1.0f, "iw\r\nw\r\ni", 0), 6);
    EXPECT_EQ(render::TextWidth(font, 1.0f, "i\nw", 0), 6); // a line feed alone is skipped
    EXPECT_EQ(render::TextWidth(font, 1.0f, "iZw", 0), 6);  // no such glyph
}

// 1.25 + 1 = 2.25 rounds to 2, 2 + 2.25 to 4; 1.5 + 1 = 2.5 rounds to 2, 2 + 2.5 = 4.5 to 4.
TEST(TextWidth, RoundsAfterEveryCharacterTiesToEven)
{
    const Font font = SmallFont();
    EXPECT_EQ(render::TextWidth(font, 1.25f, "ii", 0), 4);
    EXPECT_EQ(render::TextWidth(font, 1.5f, "i", 0), 2);
    EXPECT_EQ(render::TextWidth(font, 1.5f, "ii", 0), 4);
    EXPECT_EQ(render::TextWidth(font, 1.5f, "iii", 0), 6);
}

TEST(TextWidth, TabsGoToTheNextStop)
{
    const Font font = SmallFont();
    EXPECT_EQ(render::TextWidth(font, 1.0f, "\t", 10), 10);
    EXPECT_EQ(render::TextWidth(font, 1.0f, "i\t", 10), 10);
    EXPECT_EQ(render::TextWidth(font, 1.0f, "i\ti", 10), 12);
    EXPECT_EQ(render::TextWidth(font, 1.0f, "iiiii\t", 10), 20); // at the stop already: the next one
    EXPECT_EQ(render::TextWidth(font, 1.0f, "i\ti", 0), 4);
}

TEST(TextWidth, UnknownCharactersLookLikeAQuestionMarkAndLongTextsSaturate)
{
    const Font font = SmallFont();
    EXPECT_EQ(render::TextWidth(font, 1.0f, "\xE2\x82\xBF", 0), 3);
    EXPECT_EQ(render::TextWidth(font, 1.0f, std::string(20000, 'i'), 0), 32767);
}

TEST(TabPixels, CellsOfTheWidestGlyph)
{
    const Font font = SmallFont();
    EXPECT_EQ(render::TabPixels(font, 1.0f, 5), 20);
    EXPECT_EQ(render::TabPixels(font, 1.5f, 5), 28); // 5 x 5.5 = 27.5, ties to even
    EXPECT_EQ(render::TabPixels(font, 1.0f, -5), 0);
}

TEST(DrawTextLeft, LinesGoDownFromTheAnchor)
{
    Paper paper(8, 7);
    render::DrawTextLeft(paper.Surface(), SmallFont(), {1.0f, 0, White, 1.0f}, 1, 4, "iw\r\nwi");
    EXPECT_EQ(paper.Rows(), "........\n"
                            ".#......\n"
                            ".#.###..\n"
                            "........\n"
                            ".....#..\n"
                            ".###.#..\n"
                            "........\n");
}

TEST(DrawTextLeft, TabsCountFromTheAnchor)
{
    Paper paper(10, 2);
    render::DrawTextLeft(paper.Surface(), SmallFont(), {1.0f, 5, White, 1.0f}, 2, 0, "i\ti");
    EXPECT_EQ(paper.Rows(), "..#....#..\n"
                            "..#....#..\n");
}

TEST(DrawTextRight, EndsAtTheAnchorAndStacksEarlierLinesAbove)
{
    Paper paper(8, 6);
    render::DrawTextRight(paper.Surface(), SmallFont(), {1.0f, 0, White, 1.0f}, 7, 1, "wi\r\nw\tw");
    // The tab is ignored; the first "w" of the last line is cut by the border.
    EXPECT_EQ(paper.Rows(), ".....#..\n"
                            ".###.#..\n"
                            "........\n"
                            "........\n"
                            "##.###..\n"
                            "........\n");
}

TEST(DrawTextCentred, EachLineIsCentredTheFirstOnTheAnchor)
{
    Paper paper(9, 5);
    render::DrawTextCentred(paper.Surface(), SmallFont(), {1.0f, 0, White, 1.0f}, 4, 3, "ww\r\ni");
    // "ww" is 8 wide: from 4 - 4; "i" is 2 wide: from 4 - 1.
    EXPECT_EQ(paper.Rows(), ".........\n"
                            "###.###..\n"
                            ".........\n"
                            "...#.....\n"
                            "...#.....\n");
}
