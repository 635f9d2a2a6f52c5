// SPDX-License-Identifier: Zlib
#include "world/FieldReader.h"

#include "base/RuntimeError.h"

#include <gtest/gtest.h>

#include <chrono>

namespace
{
using world::FieldReader;

// The texts of all fields.
std::vector<std::string> Texts(const std::string& bytes)
{
    FieldReader in(bytes);
    std::vector<std::string> texts;
    while (!in.AtEnd())
        texts.push_back(in.Text());
    return texts;
}

template <class Read> int ErrorOf(const std::string& bytes, Read&& read)
{
    try
    {
        FieldReader in(bytes);
        read(in);
    }
    catch (const base::RuntimeError& error)
    {
        return error.Number;
    }
    return 0;
}

float Single(const std::string& bytes)
{
    return FieldReader(bytes).Single();
}
int SingleError(const std::string& bytes)
{
    return ErrorOf(bytes, [](FieldReader& in) { in.Single(); });
}
int IntegerError(const std::string& bytes)
{
    return ErrorOf(bytes, [](FieldReader& in) { in.Integer(); });
}

using Strings = std::vector<std::string>;
}

TEST(FieldReader, CommasAndLineEndsOfEverySystemSeparate)
{
    EXPECT_EQ(Texts("a,b\r\nc\nd\re"), (Strings{"a", "b", "c", "d", "e"}));
}

TEST(FieldReader, OneFinalLineEndIsNoField)
{
    EXPECT_EQ(Texts(""), Strings{});
    EXPECT_EQ(Texts("a\n"), Strings{"a"});
    EXPECT_EQ(Texts("a\r\n"), Strings{"a"});
    EXPECT_EQ(Texts("a\n\n"), (Strings{"a", ""}));
    EXPECT_EQ(Texts("a,\n"), (Strings{"a", ""}));
    EXPECT_EQ(Texts("\n"), Strings{""});
}

TEST(FieldReader, BlanksBeforeAFieldAreSkippedAndThoseBehindATextBelongToIt)
{
    EXPECT_EQ(Texts(" \ta b \t, c"), (Strings{"a b \t", "c"}));
}

TEST(FieldReader, QuotesKeepCommasAndAreRemoved)
{
    EXPECT_EQ(Texts(" \"a,b\" \t,c"), (Strings{"a,b", "c"}));
    EXPECT_EQ(Texts("\" a \"\r\n\"\""), (Strings{" a ", ""}));
    EXPECT_EQ(Texts("a\"b\",c"), (Strings{"a\"b\"", "c"}));
    EXPECT_EQ(Texts("\"a\r\nb\",c"), (Strings{"a\r\nb", "c"}));
}

TEST(FieldReader, AQuoteThatIsNeverClosedRunsToTheEnd)
{
    EXPECT_EQ(Texts("\"a,b"), Strings{"a,b"});
    EXPECT_EQ(Texts("\""), Strings{""});
}

TEST(FieldReader, TextBehindAClosingQuoteIsATypeError)
{
    EXPECT_EQ(ErrorOf("\"a\"b,c", [](FieldReader& in) { in.Text(); }), 13);
}

TEST(FieldReader, TextsComeFromTheCodePage)
{
    EXPECT_EQ(Texts("citt\xE0 \x80"), Strings{"citt\u00E0 \u20AC"});
}

TEST(FieldReader, EveryPathMarkIsReplaced)
{
    EXPECT_EQ(FieldReader("<path>a<path>b").Path("d\\"), "d\\ad\\b");
    EXPECT_EQ(FieldReader("<Path>a").Path("d\\"), "<Path>a");
    EXPECT_EQ(FieldReader("<<path>>").Path("x"), "<x>");
}

TEST(FieldReader, TextsAndPathsHaveAGreatestLength)
{
    EXPECT_EQ(Texts(std::string(32767, 'x')).front().size(), 32767u);
    EXPECT_EQ(ErrorOf(std::string(32768, 'x'), [](FieldReader& in) { in.Text(); }), 7);
    std::string marks;
    for (int i = 0; i < 1000; ++i)
        marks += "<path>";
    EXPECT_EQ(FieldReader(marks).Path(std::string(32, 'x')).size(), 32000u);
    EXPECT_EQ(ErrorOf(marks, [](FieldReader& in) { in.Path(std::string(33, 'x')); }), 7);
}

TEST(FieldReader, NumbersInEveryForm)
{
    FieldReader in(" 12 ,-1.5\t,+3,.5,1.\n-.25,1e2,1E-2 , 2.5e+1,0");
    for (const float expected : {12.0f, -1.5f, 3.0f, 0.5f, 1.0f, -0.25f, 100.0f, 0.01f, 25.0f, 0.0f})
        EXPECT_EQ(in.Single(), expected);
    EXPECT_TRUE(in.AtEnd());
}

TEST(FieldReader, EmptyAndMalformedNumbersAreTypeErrors)
{
    for (const char* text :
         {",1",  "  ,1", "\n",   "x",   "1x",       "1 2",  ".",    "-",     "+",     "+-1", "-+1", "--1", "1e",
          "1e+", "inf",  "-inf", "nan", "infinity", "0x10", "&H10", "\"1\"", "1.2.3", "1d2", "-.",  "- 1"})
        EXPECT_EQ(SingleError(text), 13) << text;
}

TEST(FieldReader, SinglesThatDoNotFitOverflow)
{
    EXPECT_EQ(Single("3.4028235e38"), 3.4028235e38f);
    for (const char* text :
         {"3.4028236e38", "-3.5e38", "1e39", "1e400", "-1e400", "1e99999999999999999999", "10000e99999", "0.001e400"})
        EXPECT_EQ(SingleError(text), 6) << text;
}

TEST(FieldReader, NumbersTooSmallAreZero)
{
    for (const char* text : {"1e-400", "-1e-400", "1e-99999999999999999999", "0e99999999999", "0.0001e-400", "1e-60"})
    {
        EXPECT_EQ(SingleError(text), 0) << text;
        EXPECT_EQ(Single(text), 0.0f) << text;
    }
    // Many digits and a large exponent that belong together.
    EXPECT_EQ(Single("0." + std::string(400, '0') + "1e402"), 10.0f);
    EXPECT_EQ(Single(std::string(401, '1') + "e-400"), 1.11111111111f);
}

TEST(FieldReader, WholeNumbersRoundHalfToEven)
{
    FieldReader in("2.5,3.5,-2.5,32767.4,-32768.5,1e3,0.5");
    for (const int expected : {2, 4, -2, 32767, -32768, 1000, 0})
        EXPECT_EQ(in.Integer(), expected);
    FieldReader longs("2147483647.4,-2147483648,65535.5");
    EXPECT_EQ(longs.Long(), 2147483647);
    EXPECT_EQ(longs.Long(), -2147483647 - 1);
    EXPECT_EQ(longs.Long(), 65536);
    FieldReader bytes("255.4,-0.5,254.5");
    EXPECT_EQ(bytes.Byte(), 255);
    EXPECT_EQ(bytes.Byte(), 0);
    EXPECT_EQ(bytes.Byte(), 254);
}

TEST(FieldReader, WholeNumbersThatDoNotFitOverflow)
{
    EXPECT_EQ(IntegerError("32767.5"), 6);
    EXPECT_EQ(IntegerError("-32769"), 6);
    EXPECT_EQ(IntegerError("1e300"), 6);
    EXPECT_EQ(ErrorOf("2147483648", [](FieldReader& in) { in.Long(); }), 6);
    EXPECT_EQ(ErrorOf("256", [](FieldReader& in) { in.Byte(); }), 6);
    EXPECT_EQ(ErrorOf("-1", [](FieldReader& in) { in.Byte(); }), 6);
}

TEST(FieldReader, AFieldBehindTheEndIsError62)
{
    EXPECT_EQ(SingleError(""), 62);
    EXPECT_EQ(ErrorOf("", [](FieldReader& in) { in.Text(); }), 62);
    EXPECT_EQ(ErrorOf("1,2\n",
                      [](FieldReader& in)
                      {
                          in.Single();
                          in.Single();
                          in.Single();
                      }),
              62);
}

TEST(FieldReader, LongNumbersTakeLinearTime)
{
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(SingleError(std::string(5'000'000, '9')), 6);
    EXPECT_EQ(Single("0." + std::string(5'000'000, '0') + "1"), 0.0f);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}
