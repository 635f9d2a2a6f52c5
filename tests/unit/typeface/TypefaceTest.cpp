// SPDX-License-Identifier: Zlib
#include "typeface/Typeface.h"

#include "base/Text.h"
#include "typeface/Glyphs.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <string>
#include <vector>

namespace
{
// A black picture to write on.
struct Paper
{
    int Width, Height, RowBytes;
    std::vector<std::uint8_t> Bits;

    Paper(int width, int height)
        : Width(width), Height(height), RowBytes(base::PaddedRow(width)),
          Bits(static_cast<std::size_t>(RowBytes) * static_cast<std::size_t>(height))
    {
    }
    base::Surface Surface() { return {Bits.data(), RowBytes, Width, Height}; }
    // Green of the pixel in row `y` from the top.
    int At(int x, int y) const
    {
        return Bits[static_cast<std::size_t>(Height - 1 - y) * static_cast<std::size_t>(RowBytes) +
                    static_cast<std::size_t>(x) * 3 + 1];
    }
    int Sum() const { return std::accumulate(Bits.begin(), Bits.end(), 0); }
};

constexpr base::Rgb White{255, 255, 255};

int Ink(std::string_view text, double size)
{
    Paper paper(80, 40);
    typeface::Draw(paper.Surface(), 2, 2, {size, 1, 0}, text, White);
    return paper.Sum();
}
}

TEST(Typeface, EveryCodeOfTheCodePageHasItsOwnGlyph)
{
    for (int code = 32; code < 256; ++code)
    {
        if (code == 127 || code == 129 || code == 141 || code == 143 || code == 144 || code == 157)
            continue; // codes without a character
        const std::string text = base::FromCodePage(std::string(1, static_cast<char>(code)));
        Paper paper(80, 60), box(80, 60);
        typeface::Draw(paper.Surface(), 2, 2, {40, 1, 0}, text, White);
        typeface::Draw(box.Surface(), 2, 2, {40, 1, 0}, "\xF0\x9F\x9A\x97", White);
        EXPECT_NE(paper.Bits, box.Bits) << code;
        EXPECT_EQ(paper.Sum() == 0, code == 32 || code == 160) << code;
    }
}

TEST(Typeface, WhatHasNoGlyphShowsTheBox)
{
    EXPECT_EQ(&typeface::FindGlyph(U'\u4E2D'), &typeface::MissingGlyph());
    EXPECT_EQ(&typeface::FindGlyph(U'\uFFFD'), &typeface::MissingGlyph());
    EXPECT_NE(&typeface::FindGlyph(U'A'), &typeface::MissingGlyph());
}

TEST(Typeface, IllFormedBytesAreBoxesOneByOne)
{
    const double box = typeface::Width("\xF0\x9F\x9A\x97", 14);
    EXPECT_EQ(typeface::Width("\xFF", 14), box);
    EXPECT_EQ(typeface::Width("\x80\x80", 14), 2 * box);
    EXPECT_EQ(typeface::Width("\xC3", 14), box); // cut off in the middle
    EXPECT_EQ(typeface::Width("\xE2\x82x", 14), 2 * box + typeface::Width("x", 14));
}

TEST(Typeface, DigitsAreOfOneWidth)
{
    for (const double size : {11.0, 12.0, 13.0, 14.0, 17.0, 24.0, 48.0})
        for (char digit = '1'; digit <= '9'; ++digit)
            EXPECT_EQ(typeface::Width(std::string(1, digit), size), typeface::Width("0", size)) << digit << size;
}

TEST(Typeface, SmallLettersAdvanceByWholePixels)
{
    for (const double size : {11.0, 13.5, 20.0, 30.0})
    {
        const double width = typeface::Width("Avvia partita: perché così?", size);
        EXPECT_EQ(width, static_cast<int>(width)) << size;
    }
}

TEST(Typeface, DrawReturnsWhatWidthPromises)
{
    Paper paper(400, 80);
    for (const double size : {13.0, 45.0})
        EXPECT_DOUBLE_EQ(typeface::Draw(paper.Surface(), 7, 3, {size, 1.5, 0}, "Crediti Avvia", White),
                         7 + typeface::Width("Crediti Avvia", {size, 1.5, 0}));
}

TEST(Typeface, StemsOfSmallLettersAreSharp)
{
    // The upright of "I" at 13 pixels: one column of full ink, next to none beside it.
    Paper paper(12, 24);
    typeface::Draw(paper.Surface(), 0, 0, {13, 1, 0}, "I", White);
    int full = 0;
    for (int x = 0; x < 12; ++x)
    {
        const int value = paper.At(x, 8);
        full += value == 255;
        EXPECT_TRUE(value == 255 || value < 32) << x << " " << value;
    }
    EXPECT_EQ(full, 1);
}

TEST(Typeface, AccentsAddInkToTheirLetter)
{
    EXPECT_GT(Ink("è", 14), Ink("e", 14));
    EXPECT_GT(Ink("À", 14), Ink("A", 14));
    EXPECT_GT(Ink("ç", 14), Ink("c", 14));
}

TEST(Typeface, DrawsOnlyInsideItsClip)
{
    Paper whole(60, 30), part(60, 30);
    typeface::Draw(whole.Surface(), 0, 0, {24, 1, 0}, "MMM", White);
    typeface::Draw(part.Surface(), 0, 0, {24, 1, 0}, "MMM", White, {10, 8, 30, 20});
    EXPECT_GT(part.Sum(), 0);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 60; ++x)
            EXPECT_EQ(part.At(x, y), x >= 10 && x < 30 && y >= 8 && y < 20 ? whole.At(x, y) : 0) << x << " " << y;
}

TEST(Typeface, TextOutsideThePictureIsCutOff)
{
    Paper paper(20, 20);
    typeface::Draw(paper.Surface(), -400, -3, {18, 1, 0}, std::string(100, 'W'), White);
    EXPECT_GT(paper.Sum(), 0);
    Paper empty(20, 20);
    typeface::Draw(empty.Surface(), 500, 500, {18, 1, 0}, "W", White);
    typeface::Draw(empty.Surface(), 0, -1e12, {18, 1, 0}, "W", White);
    EXPECT_EQ(empty.Sum(), 0);
}

TEST(Typeface, ASurfaceWithoutPixelsIsLeftAlone)
{
    for (const base::Surface& none :
         {base::Surface{}, base::Surface{nullptr, 0, 20, 0}, base::Surface{nullptr, 60, 0, 20}})
        EXPECT_EQ(typeface::Draw(none, 0, 0, {18, 1, 0}, "W", White), typeface::Width("W", 18));
}

TEST(Typeface, PixelsBesideTheSurfaceStayAsTheyAre)
{
    Paper paper(20, 20), whole(20, 20);
    typeface::Draw(whole.Surface(), 0, 0, {18, 1, 0}, "W", White);
    base::Surface corner = paper.Surface();
    corner.Width = 9; // the rows go on behind
    typeface::Draw(corner, 0, 0, {18, 1, 0}, "W", White);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            EXPECT_EQ(paper.At(x, y), x < 9 ? whole.At(x, y) : 0) << x << " " << y;
}

TEST(Typeface, NumbersThatAreNoneDrawNothingOutside)
{
    const double none = std::numeric_limits<double>::quiet_NaN(), endless = std::numeric_limits<double>::infinity();
    Paper paper(20, 20);
    for (const double odd : {none, endless, -endless})
    {
        typeface::Draw(paper.Surface(), odd, 0, {14, 1, 0}, "W\u20AC", White);
        typeface::Draw(paper.Surface(), 0, odd, {14, 1, 0}, "W\u20AC", White);
        typeface::Draw(paper.Surface(), 0, 0, {odd, 1, 0}, "W\u20AC", White);
        typeface::Draw(paper.Surface(), 0, 0, {14, odd, 0}, "W\u20AC", White);
        typeface::Draw(paper.Surface(), 0, 0, {14, 1, odd}, "W\u20AC", White);
    }
    EXPECT_GT(typeface::Width("W", none), 0);
}

TEST(Typeface, BoldIsHeavierAndWider)
{
    Paper regular(200, 40), bold(200, 40);
    const double a = typeface::Draw(regular.Surface(), 0, 0, {20, 1, 0}, "Opzioni", White);
    const double b = typeface::Draw(bold.Surface(), 0, 0, {20, 1.6, 0}, "Opzioni", White);
    EXPECT_GT(b, a);
    EXPECT_GT(bold.Sum(), regular.Sum());
}

TEST(Typeface, OutlineCoversTheSameStrokesAsDraw)
{
    double right = 0;
    for (const typeface::Segment& s : typeface::Outline("VELKAR", {100, 1, 0}))
    {
        right = std::max({right, s.X1, s.X2});
        EXPECT_GT(s.Radius, 0);
    }
    EXPECT_GT(right, 0.8 * typeface::Width("VELKAR", 100));
    EXPECT_LT(right, typeface::Width("VELKAR", 100));
}

TEST(Typeface, ThePointedGapIsTheNearest)
{
    for (const double size : {9.0, 14.0, 26.0, 60.0})
    {
        const std::string text = "AVà€W. Ti";
        const typeface::Style style{size, 1, 0};
        EXPECT_EQ(typeface::GapAt(text, style, -1e9), 0u);
        EXPECT_EQ(typeface::GapAt(text, style, 1e9), text.size());
        EXPECT_EQ(typeface::GapAt("", style, 3), 0u);
        for (std::size_t byte = 0; byte <= text.size(); ++byte)
        {
            const bool isGap = byte == text.size() || (static_cast<unsigned char>(text[byte]) & 0xC0) != 0x80;
            if (isGap)
            {
                EXPECT_EQ(typeface::GapAt(text, style, typeface::Width(text.substr(0, byte), style)), byte) << size;
            }
        }
    }
}
