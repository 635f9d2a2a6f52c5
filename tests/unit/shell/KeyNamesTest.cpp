// SPDX-License-Identifier: Zlib
#include "shell/panels/KeyNames.h"

#include <gtest/gtest.h>

using panels::KeyName;

TEST(KeyName, LettersAndDigitsNameThemselves)
{
    EXPECT_EQ(KeyName(65), "A");
    EXPECT_EQ(KeyName(90), "Z");
    EXPECT_EQ(KeyName(48), "0");
    EXPECT_EQ(KeyName(57), "9");
}

TEST(KeyName, KeypadKeysEndInTn)
{
    EXPECT_EQ(KeyName(96), "0 tn");
    EXPECT_EQ(KeyName(105), "9 tn");
    EXPECT_EQ(KeyName(106), "* tn");
    EXPECT_EQ(KeyName(107), "+ tn");
    EXPECT_EQ(KeyName(109), "- tn");
    EXPECT_EQ(KeyName(110), ". tn");
    EXPECT_EQ(KeyName(111), "/ tn");
}

TEST(KeyName, SeparatorIsCalledEnter)
{
    EXPECT_EQ(KeyName(108), "Invio tn");
}

TEST(KeyName, NamedKeys)
{
    const std::pair<std::int16_t, const char*> names[] = {
        {32, "Spazio"},
        {38, "Freccia su"},
        {40, "Freccia giù"},
        {37, "Freccia sinistra"},
        {39, "Freccia destra"},
        {33, "Pag su"},
        {34, "Pag giù"},
        {17, "CTRL"},
        {27, "ESC"},
        {8, "Backspace"},
        {46, "Cancella"},
        {36, "Home"},
        {16, "Shift"},
        {9, "Tab"},
        {35, "Fine"},
        {144, "Bloc Num"},
        {19, "Pausa"},
        {42, "Stampa"},
        {145, "Bloc Scorr"},
        {20, "Bloc Maiusc"},
        {45, "Ins"},
        {220, "\\"},
        {13, "Invio"},
    };
    for (const auto& [code, name] : names)
        EXPECT_EQ(KeyName(code), name);
}

TEST(KeyName, OthersShowTheirCode)
{
    EXPECT_EQ(KeyName(186), "<186>");
    EXPECT_EQ(KeyName(0), "<0>");
    EXPECT_EQ(KeyName(95), "<95>");
    EXPECT_EQ(KeyName(-3), "<-3>");
}
