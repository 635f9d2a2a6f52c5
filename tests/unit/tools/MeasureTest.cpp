// SPDX-License-Identifier: Zlib
// Where the time goes, phase by phase.
#include "tests/support/SmallWorld.h"
#include "tools/drive/Driver.h"

#include <gmock/gmock.h>

#include <regex>

namespace
{
using testing::ElementsAre;

struct Measure : testing::Test
{
    support::SmallWorld World;
    drive::Driver Driver{World.Files(), [](const std::string&, std::string_view, drive::Writing) { return true; }};

    Measure()
    {
        for (const char* line : {"load", "click cSTART", "game 3"})
            Driver.Answer(line);
    }
    // The names of the phases; each must have a number of 0 or more.
    static std::vector<std::string> PhasesOf(const std::string& answer)
    {
        EXPECT_TRUE(answer.starts_with(R"({"microseconds": {)")) << answer;
        std::vector<std::string> names;
        const std::regex phase(R"re("([a-z]+)": [0-9.e+-]+[,}])re");
        for (std::sregex_iterator at(answer.begin(), answer.end(), phase), end; at != end; ++at)
            names.push_back((*at)[1]);
        return names;
    }
};

TEST_F(Measure, AFrameHasItsPhasesInTheirOrder)
{
    EXPECT_THAT(PhasesOf(Driver.Answer("measure frame 2")),
                ElementsAre("tables", "ground", "objects", "sprites", "display", "present"));
}

TEST_F(Measure, ATickHasItsPhasesInTheirOrder)
{
    EXPECT_THAT(PhasesOf(Driver.Answer("measure tick")),
                ElementsAre("places", "race", "collisions", "particles", "drivers", "camera"));
}

TEST_F(Measure, TicksAreThoseOfGame)
{
    drive::Driver other{World.Files(), [](const std::string&, std::string_view, drive::Writing) { return true; }};
    for (const char* line : {"load", "click cSTART", "game 3", "random seed 5", "game 200"})
        other.Answer(line);
    Driver.Answer("random seed 5");
    Driver.Answer("measure tick 200");
    EXPECT_EQ(Driver.Answer("checksum"), other.Answer("checksum"));
    EXPECT_EQ(Driver.Answer("peek race.GameTime"), other.Answer("peek race.GameTime"));
}

TEST_F(Measure, WhatDoesNotRunHasNoPhases)
{
    Driver.Answer("key down 80");
    Driver.Answer("key up 80"); // pause
    EXPECT_EQ(Driver.Answer("measure tick 3"), R"({"microseconds": {}, "messages": []})");
}

TEST_F(Measure, AnythingElseIsRefused)
{
    for (const char* line : {"measure", "measure lap", "measure frame x", "measure tick 2 3", "measure frame 100001"})
        EXPECT_THAT(Driver.Answer(line), testing::StartsWith(R"({"error": )")) << line;
}
}
