// SPDX-License-Identifier: Zlib
#include "base/Text.h"

#include <gtest/gtest.h>

TEST(Text, EveryCodeComesBackAsItWent)
{
    for (int code = 0; code < 256; ++code)
    {
        std::string text;
        base::AppendCode(text, static_cast<std::uint8_t>(code));
        std::size_t at = 0;
        EXPECT_EQ(base::NextCode(text, at), code);
        EXPECT_EQ(at, text.size());
        EXPECT_EQ(base::PreviousCode(text, at), code);
        EXPECT_EQ(at, 0u);
    }
}

TEST(Text, ItalianLettersAndForeignOnes)
{
    EXPECT_EQ(base::FromCodePage("Velocit\xE0"), "Velocità");
    const std::string text = "à中";
    std::size_t at = 0;
    EXPECT_EQ(base::NextCode(text, at), 0xE0);
    EXPECT_EQ(base::NextCode(text, at), '?');
    EXPECT_EQ(at, text.size());
}

TEST(Text, BrokenBytesAreOneQuestionMarkEach)
{
    const std::string text = "\xFF\xC3";
    std::size_t at = 0;
    EXPECT_EQ(base::NextCode(text, at), '?');
    EXPECT_EQ(base::NextCode(text, at), '?');
    EXPECT_EQ(at, 2u);
    EXPECT_EQ(base::PreviousCode(text, at), '?');
    EXPECT_EQ(base::PreviousCode(text, at), '?');
    EXPECT_EQ(at, 0u);
}

TEST(Text, CodePointsOfEveryLength)
{
    const std::string text = "Aà€🚗";
    std::size_t at = 0;
    for (const char32_t point : {U'A', U'à', U'€', U'\U0001F697'})
        EXPECT_EQ(base::NextPoint(text, at), point);
    EXPECT_EQ(at, text.size());
}

TEST(Text, IllFormedBytesAreLeftOneByOne)
{
    for (const std::string_view text :
         {"\x80", "\xBF", "\xC3", "\xE2\x82", "\xF0\x9F\x9A", "\xF8\x80\x80\x80", "\xFF", "\xC3x"})
    {
        std::size_t at = 0;
        EXPECT_EQ(base::NextPoint(text, at), base::IllFormed) << text;
        EXPECT_EQ(at, 1u) << text;
    }
}

// As a letter that is drawn it is an A, as a typed character it is two that nobody knows.
TEST(Text, ACharacterInTooManyBytesIsAPointAndNoCode)
{
    const std::string text = "\xC1\x81";
    std::size_t at = 0;
    EXPECT_EQ(base::NextPoint(text, at), U'A');
    EXPECT_EQ(at, 2u);
    at = 0;
    EXPECT_EQ(base::NextCode(text, at), '?');
    EXPECT_EQ(at, 1u);
}

TEST(Text, ReplacesEveryOccurrence)
{
    EXPECT_EQ(base::ReplaceAll("<path>a<path>", "<path>", "x\\"), "x\\ax\\");
    EXPECT_EQ(base::LowerAscii("\\SET Àb"), "\\set Àb");
}
