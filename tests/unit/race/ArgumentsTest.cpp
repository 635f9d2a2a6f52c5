// SPDX-License-Identifier: Zlib
#include "tools/race/Arguments.h"

#include <gmock/gmock.h>

namespace
{
std::string Complaint(const std::vector<std::string_view>& words)
{
    try
    {
        race::ParseArguments(words);
    }
    catch (const race::Misuse& misuse)
    {
        return misuse.Why;
    }
    return "none";
}
}

TEST(Arguments, NoneIsFiveLapsOfEightSeedsWithoutAHuman)
{
    const race::Arguments arguments = race::ParseArguments({});
    EXPECT_EQ(arguments.Laps, 5);
    EXPECT_EQ(arguments.FirstSeed, 1u);
    EXPECT_EQ(arguments.LastSeed, 8u);
    EXPECT_EQ(arguments.Human, nullptr);
    EXPECT_EQ(arguments.LimitSeconds(), 600);
    EXPECT_EQ(arguments.Variations().size(), 1u);
}

TEST(Arguments, AllAreTaken)
{
    const race::Arguments arguments =
        race::ParseArguments({"--root",  "here", "--laps",  "3",           "--seeds",      "7-9",
                              "--jobs",  "2",    "--human", "strong",      "--human-keys", "repair",
                              "--grid",  "8",    "--set",   "race.Laps=2", "--vary",       "players[*].Brake=*0.9,*1.1",
                              "--csv",   "a",    "--json",  "b",           "--trace",      "c",
                              "--limit", "90"});
    EXPECT_EQ(arguments.Root, "here");
    EXPECT_EQ(arguments.Laps, 3);
    EXPECT_EQ(arguments.FirstSeed, 7u);
    EXPECT_EQ(arguments.LastSeed, 9u);
    EXPECT_EQ(arguments.Jobs, 2);
    ASSERT_NE(arguments.Human, nullptr);
    EXPECT_EQ(arguments.Human->Name, "strong");
    EXPECT_TRUE(arguments.Repairs);
    EXPECT_EQ(arguments.Grid, 8);
    EXPECT_EQ(arguments.Variations().size(), 2u);
    EXPECT_EQ(arguments.Csv + arguments.Json + arguments.Trace, "abc");
    EXPECT_EQ(arguments.LimitSeconds(), 90);
}

TEST(Arguments, OneSeedIsARange)
{
    const race::Arguments arguments = race::ParseArguments({"--seeds", "12"});
    EXPECT_EQ(arguments.FirstSeed, 12u);
    EXPECT_EQ(arguments.LastSeed, 12u);
}

TEST(Arguments, WhatIsWrongIsSaid)
{
    EXPECT_EQ(Complaint({"--lapse", "3"}), "there is no option --lapse");
    EXPECT_EQ(Complaint({"track"}), "there is no option track");
    EXPECT_EQ(Complaint({"--laps"}), "--laps: N is missing");
    EXPECT_EQ(Complaint({"--laps", "0"}), "--laps: a whole number from 1 to 1000 is expected, not \"0\"");
    EXPECT_EQ(Complaint({"--laps", "3x"}), "--laps: a whole number from 1 to 1000 is expected, not \"3x\"");
    EXPECT_EQ(Complaint({"--human", "fair"}), "--human: none, weak, average or strong is expected, not \"fair\"");
    EXPECT_EQ(Complaint({"--human-keys", "all"}), "--human-keys: repair or none is expected, not \"all\"");
    EXPECT_EQ(Complaint({"--human-keys", "repair"}), "--human-keys repair: no human drives");
    EXPECT_EQ(Complaint({"--set", "race.Laps"}), "--set: race.Laps: PATH=VALUE is expected");
    EXPECT_EQ(Complaint({"--vary", "race.Laps=1,,2"}), "--vary: race.Laps=1,,2: a value is missing");
}

TEST(Arguments, SeedsRunUpwardAndAreNotTooMany)
{
    EXPECT_EQ(Complaint({"--seeds", "1-100000"}), "none");
    for (const char* seeds : {"9-7", "1-100001", "0-4611686018427387904"})
        EXPECT_NE(Complaint({"--seeds", seeds}), "none") << seeds;
    for (const char* seeds : {"", "-", "1-", "-1", "1-2-3", "a-b"})
        EXPECT_NE(Complaint({"--seeds", seeds}), "none") << seeds;
}

TEST(Arguments, SoManyRacesThatNoneEndsAreRefused)
{
    EXPECT_EQ(Complaint({"--seeds", "1-100000", "--vary", "a=1,2,3,4,5,6,7,8,9,10,11"}),
              "these are more than 1000000 races");
    EXPECT_EQ(Complaint({"--escape", "4", "--vary", "a=1,2"}), "--escape tries one variation at a time");
    EXPECT_EQ(Complaint({"--escape", "4", "--set", "a=1"}), "none");
}

TEST(Arguments, HelpNamesEveryOption)
{
    EXPECT_TRUE(race::ParseArguments({"--help", "nonsense"}).Help);
    const std::string help = race::HelpText();
    for (const char* option : {"--root", "--laps", "--seeds", "--jobs", "--human ", "--human-keys", "--grid", "--set",
                               "--vary", "--limit", "--csv", "--json", "--trace", "--escape "})
        EXPECT_THAT(help, testing::HasSubstr(option));
}
