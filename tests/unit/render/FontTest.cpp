// SPDX-License-Identifier: Zlib
#include "render/Font.h"

#include "tests/support/Messages.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace
{
std::string OnePixel(int b, int g, int r)
{
    std::string bytes = support::BitmapHeader(1, 1);
    bytes += {static_cast<char>(b), static_cast<char>(g), static_cast<char>(r), 0};
    return bytes;
}
}

TEST(LoadFont, OnlyExactlyBlackIsInkAndRow0IsTheBottom)
{
    const support::TempFolder folder;
    support::Messages messages;
    // 2 x 2: bottom row black, grey; top row almost black, black.
    folder.Write("font/65.bmp", support::BitmapHeader(2, 2) + std::string("\0\0\0\x80\x80\x80\0\0"
                                                                          "\0\0\1\0\0\0\0\0",
                                                                          16));
    render::Font font;
    render::LoadFont(messages, folder.Files(), "font", font);
    EXPECT_TRUE(messages.Boxes.empty());
    const render::Glyph* glyph = font.Find('A');
    ASSERT_NE(glyph, nullptr);
    EXPECT_EQ(glyph->GlyphW, 2);
    EXPECT_EQ(glyph->GlyphH, 2);
    EXPECT_EQ(glyph->Mask, (std::vector<std::uint8_t>{255, 0, 0, 255}));
}

TEST(LoadFont, AMissingGlyphIsAbsentAndNoError)
{
    const support::TempFolder folder;
    support::Messages messages;
    folder.Write("font/32.bmp", support::BitmapHeader(3, 1) + std::string(12, '\xFF'));
    folder.Write("font/255.bmp", support::BitmapHeader(1, 5) + std::string(20, '\0'));
    folder.Write("font/31.bmp", OnePixel(0, 0, 0)); // below the array
    render::Font font;
    render::LoadFont(messages, folder.Files(), "font\\", font);
    EXPECT_TRUE(messages.Boxes.empty());
    EXPECT_NE(font.Find(32), nullptr);
    EXPECT_NE(font.Find(255), nullptr);
    EXPECT_EQ(font.Find(33), nullptr);
    EXPECT_EQ(font.Find(31), nullptr);
    EXPECT_EQ(font.Find(256), nullptr);
    EXPECT_EQ(font.LineHeight, 5);
    EXPECT_EQ(font.WidestGlyph, 3);
}

TEST(LoadFont, AGlyphThatFailsIsReportedAndAbsent)
{
    const support::TempFolder folder;
    support::Messages messages;
    folder.Write("font/65.bmp", "BM");
    folder.Write("font/66.bmp", OnePixel(0, 0, 0));
    render::Font font;
    render::LoadFont(messages, folder.Files(), "font", font);
    ASSERT_EQ(messages.Boxes.size(), 1u);
    EXPECT_EQ(messages.Boxes[0].Text, "Input oltre la fine del file in LoadPicArray2D");
    EXPECT_EQ(font.Find('A'), nullptr);
    EXPECT_NE(font.Find('B'), nullptr);
}
