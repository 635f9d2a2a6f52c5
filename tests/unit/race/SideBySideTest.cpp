// SPDX-License-Identifier: Zlib
#include "tools/race/SideBySide.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

TEST(SideBySide, EachNumberOnce)
{
    for (const int jobs : {0, 1, 3, 50})
    {
        std::vector<int> calls(20, 0);
        race::SideBySide(calls.size(), jobs, [&](std::size_t i) { ++calls[i]; });
        EXPECT_EQ(calls, std::vector<int>(20, 1)) << jobs;
    }
    race::SideBySide(0, 4, [](std::size_t) { FAIL(); });
}

TEST(SideBySide, TheFirstThatFailsIsTold)
{
    for (const int jobs : {1, 4})
        try
        {
            race::SideBySide(100, jobs,
                             [](std::size_t i)
                             {
                                 if (i >= 7)
                                     throw std::runtime_error(std::to_string(i));
                             });
            FAIL();
        }
        catch (const std::runtime_error& error)
        {
            EXPECT_STREQ(error.what(), "7") << jobs;
        }
}
