// SPDX-License-Identifier: Zlib
// What the wave command leaves in its file.
#include "tests/support/SmallWorld.h"
#include "tools/drive/Driver.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

struct SoundCommands : testing::Test
{
    support::SmallWorld World;
    std::string File;
    bool CanWrite = true;
    drive::Driver Driver{World.Files(), [this](const std::string& path, std::string_view bytes, drive::Writing mode)
                         {
                             EXPECT_EQ(path, "engine.pcm");
                             EXPECT_EQ(mode, drive::Writing::Append);
                             File += bytes;
                             return CanWrite;
                         }};

    SoundCommands()
    {
        std::string ramp;
        for (int i = 0; i < 1024; ++i)
            ramp += static_cast<char>(i % 256);
        World.Write("data/sounds/engine_01.pcm", ramp);
        for (const char* line : {"load", "click cSTART", "game"})
            Driver.Answer(line);
    }
    std::vector<int> Samples(std::size_t from, std::size_t count) const
    {
        std::vector<int> samples;
        for (std::size_t at = from; at < from + count * 2; at += 2)
            samples.push_back(static_cast<std::int16_t>(static_cast<std::uint8_t>(File.at(at)) |
                                                        static_cast<std::uint8_t>(File.at(at + 1)) << 8));
        return samples;
    }
};

TEST_F(SoundCommands, TheFileHoldsWhatTheGameQueues)
{
    EXPECT_EQ(Driver.Answer("wave 3 engine.pcm"), R"({"played": 3, "messages": []})");
    ASSERT_EQ(File.size(), 3u * 2048);
    // Standstill: positions 0 .2 .4 .6 …, gain 125, each sample left and right.
    EXPECT_THAT(Samples(0, 10),
                ElementsAre(-16000, -16000, -16000, -16000, -16000, -16000, -15875, -15875, -15875, -15875));
    // The second buffer begins at 512 × 0.2 = 102.4.
    EXPECT_THAT(Samples(2048, 4),
                ElementsAre((102 - 128) * 125, (102 - 128) * 125, (103 - 128) * 125, (103 - 128) * 125));
    EXPECT_EQ(Driver.Answer("wave 1 engine.pcm"), R"({"played": 1, "messages": []})");
    EXPECT_EQ(File.size(), 4u * 2048);
}

TEST_F(SoundCommands, ManyBuffersAreWrittenBitByBit)
{
    EXPECT_EQ(Driver.Answer("wave 2000 engine.pcm"), R"({"played": 2000, "messages": []})");
    EXPECT_EQ(File.size(), 2000u * 2048);
}

TEST_F(SoundCommands, AFileThatCannotBeWrittenChangesNothing)
{
    CanWrite = false;
    EXPECT_EQ(Driver.Answer("wave 3 engine.pcm"), R"({"error": "the file cannot be written", "messages": []})");
    EXPECT_EQ(Driver.State().Form()->State().Engine.ReadPosition, 0);
    CanWrite = true;
    Driver.Answer("wave 4 engine.pcm");
    EXPECT_THAT(Samples(0, 1), ElementsAre(-16000));
}

TEST_F(SoundCommands, WhatIsNotQueuedIsNotWritten)
{
    Driver.Answer("wave fail waveOutWrite 34");
    EXPECT_EQ(Driver.Answer("wave 5 engine.pcm"), R"({"played": 5, "messages": []})");
    EXPECT_EQ(File.size(), 4u * 2048);
    Driver.Answer("key down 27");
    Driver.Answer("key up 27");
    EXPECT_EQ(Driver.Answer("wave 5 engine.pcm"), R"({"played": 0, "messages": []})");
    EXPECT_EQ(File.size(), 4u * 2048);
}
}
