// SPDX-License-Identifier: Zlib
#include "tools/drive/Checksum.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace
{
std::uint64_t SumOf(const std::vector<std::uint8_t>& bytes)
{
    drive::Digest digest;
    digest.Bytes(bytes);
    return digest.Value();
}
}

TEST(Digest, EveryBitOfEveryByteCounts)
{
    std::vector<std::uint8_t> bytes(77, 0);
    std::set<std::uint64_t> sums = {SumOf(bytes)};
    for (std::uint8_t& byte : bytes)
        for (int bit = 0; bit < 8; ++bit)
        {
            byte = static_cast<std::uint8_t>(1 << bit);
            sums.insert(SumOf(bytes));
            byte = 0;
        }
    EXPECT_EQ(sums.size(), 1 + 77u * 8);
}

TEST(Digest, OrderAndNumberCount)
{
    drive::Digest one, other, longer;
    one.Word(1);
    one.Word(2);
    other.Word(2);
    other.Word(1);
    longer.Word(1);
    longer.Word(2);
    longer.Word(0);
    EXPECT_NE(one.Value(), other.Value());
    EXPECT_NE(one.Value(), longer.Value());
    EXPECT_NE(SumOf({}), SumOf({0}));
    EXPECT_NE(SumOf({0}), SumOf({0, 0}));
}
