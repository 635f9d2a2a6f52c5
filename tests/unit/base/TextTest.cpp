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

TEST(Text, ReplacesEveryOccurrence)
{
    EXPECT_EQ(base::ReplaceAll("<path>a<path>", "<path>", "x\\"), "x\\ax\\");
    EXPECT_EQ(base::LowerAscii("\\SET Àb"), "\\set Àb");
}
