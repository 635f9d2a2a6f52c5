// SPDX-License-Identifier: Zlib
#include "tools/drive/Json.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
std::string Text(std::string_view text)
{
    std::string json;
    drive::AppendText(json, text);
    return json;
}

template <class T> std::string Number(T value)
{
    std::string json;
    drive::AppendNumber(json, value);
    return json;
}
}

TEST(Json, EscapesWhatJsonMustNotHold)
{
    EXPECT_EQ(Text("a\"b\\c"), R"("a\"b\\c")");
    EXPECT_EQ(Text("1\r\n\t\x01\x1f\x7f"), R"("1\r\n\t\u0001\u001f\u007f")");
    EXPECT_EQ(Text(std::string_view("\0", 1)), R"("\u0000")");
    EXPECT_EQ(Text("perché 5°"), "\"perché 5°\"");
}

TEST(Json, MakesInvalidUtf8Valid)
{
    EXPECT_EQ(Text("a\xFF\x62"), "\"a\xEF\xBF\xBD\x62\"");
    EXPECT_EQ(Text("\xC3"), "\"\xEF\xBF\xBD\"");                                 // cut short
    EXPECT_EQ(Text("\xC0\x80"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\"");                 // overlong
    EXPECT_EQ(Text("\xED\xA0\x80"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\""); // a surrogate
    EXPECT_EQ(Text("\xF4\x90\x80\x80").size(), 2u + 4 * 3);                      // beyond the last character
    EXPECT_EQ(Text("\xF0\x9F\x8F\x81"), "\"\xF0\x9F\x8F\x81\"");                 // four bytes are fine
}

TEST(Json, FloatsAreTheShortestThatReadBack)
{
    EXPECT_EQ(Number(0.1f), "0.1");
    EXPECT_EQ(Number(1.0f), "1");
    EXPECT_EQ(Number(-0.0f), "-0");
    EXPECT_EQ(Number(16777216.0f), "16777216");
    EXPECT_EQ(Number(1.0f / 3), "0.33333334");
    EXPECT_EQ(Number(1e-7f), "1e-07");
    EXPECT_EQ(Number(std::numeric_limits<float>::max()), "3.4028235e+38");
    EXPECT_EQ(Number(std::numeric_limits<float>::quiet_NaN()), "\"NaN\"");
    EXPECT_EQ(Number(std::numeric_limits<float>::infinity()), "\"Infinity\"");
    EXPECT_EQ(Number(-std::numeric_limits<float>::infinity()), "\"-Infinity\"");
}

TEST(Json, BytesAreNumbers)
{
    EXPECT_EQ(Number(std::uint8_t{200}), "200");
    EXPECT_EQ(Number(std::int16_t{-1}), "-1");
}

TEST(Json, ObjectsKeepTheOrderOfTheirFields)
{
    drive::Object object;
    EXPECT_EQ(object.Finish(), "{}");
    drive::AppendNumber(object.Field("b"), 1);
    object.Raw("a", "[]");
    EXPECT_EQ(object.Finish(), R"({"b": 1, "a": []})");
}
