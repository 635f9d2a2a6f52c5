// SPDX-License-Identifier: Zlib
#include "audio/EngineSound.h"
#include "base/RuntimeError.h"
#include "tests/support/TempFolder.h"
#include "world/Driving.h"

#include <gmock/gmock.h>

#include <limits>
#include <set>

namespace
{
using audio::EngineSound;
using audio::FillEngineBuffer;
using testing::ElementsAre;

// Entry i of the table is i - 128, over and over.
struct EngineTest : testing::Test
{
    EngineSound Engine;
    EngineTest()
    {
        for (int i = 0; i < 1024; ++i)
            Engine.Table[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(i % 256 - 128);
        Engine.Gain = 1;
    }

    std::int16_t At(int byte) const
    {
        const auto at = static_cast<std::size_t>(byte);
        return static_cast<std::int16_t>(Engine.Buffers[at] | Engine.Buffers[at + 1] << 8);
    }
    // The left samples of the first frames of a buffer.
    std::vector<int> Frames(int count, int buffer = 0) const
    {
        std::vector<int> frames;
        for (int j = 0; j < count; ++j)
            frames.push_back(At(buffer * 2048 + 4 * j));
        return frames;
    }
    // As a car of that speed sounds with a factor of 25.
    void Drive(float speed) { audio::SetSpeed(Engine, world::EngineNote(speed), speed, 25); }
    // The entries that a buffer was made from.
    std::vector<int> Entries()
    {
        Engine.Gain = 1;
        for (int i = 0; i < 1024; ++i)
            Engine.Table[static_cast<std::size_t>(i)] = static_cast<std::int16_t>(i);
        FillEngineBuffer(Engine, 0);
        return Frames(512);
    }
};

TEST_F(EngineTest, TheNoteIsTheStepAndSpeedTheGain)
{
    audio::SetSpeed(Engine, 0.35, 0.5f, 25);
    EXPECT_EQ(Engine.Step, 0.35f);
    EXPECT_EQ(Engine.Gain, 138); // 137.5, halves to the even one
    audio::SetSpeed(Engine, 0.2, 0, 25);
    EXPECT_EQ(Engine.Gain, 125);
    audio::SetSpeed(Engine, 0.5, -1, 25); // backwards it is as loud
    EXPECT_EQ(Engine.Gain, 150);
    audio::SetSpeed(Engine, 0.275, 0.25f, 2); // 10.5
    EXPECT_EQ(Engine.Gain, 10);
    audio::SetSpeed(Engine, 0.2, 2, -3);
    EXPECT_EQ(Engine.Gain, -21);
}

TEST_F(EngineTest, AGainThatDoesNotFitKeepsItsFormerValueAndThePitchFollows)
{
    constexpr float none = std::numeric_limits<float>::quiet_NaN(), endless = std::numeric_limits<float>::infinity();
    audio::SetSpeed(Engine, 0.4, 8, 2500);
    EXPECT_EQ(Engine.Gain, 32500);
    float note = 0.5f;
    for (const float speed : {8.11f, 9.0f, 1e9f, endless, -endless, none})
    {
        note += 0.125f;
        audio::SetSpeed(Engine, note, speed, 2500);
        EXPECT_EQ(Engine.Gain, 32500) << speed;
        EXPECT_EQ(Engine.Step, note) << speed;
    }
    audio::SetSpeed(Engine, 0.4, 8.106f, 2500); // 32765
    EXPECT_EQ(Engine.Gain, 32765);
}

TEST_F(EngineTest, AFileOfBytesBecomesATableAroundZero)
{
    const support::TempFolder folder;
    folder.Write("engine.pcm", std::string("\x00\x01\x7F\x80\x81\xFF", 6));
    audio::LoadSample(Engine, folder.Files(), "engine.pcm");
    EXPECT_THAT(std::vector<int>(Engine.Table.begin(), Engine.Table.begin() + 7),
                ElementsAre(-128, -127, -1, 0, 1, 127, 0));
}

TEST_F(EngineTest, AShortSampleEndsInSilenceAndNothingOfAnEarlierOneStays)
{
    const support::TempFolder folder;
    folder.Write("short.pcm", std::string(2, '\xFF'));
    audio::LoadSample(Engine, folder.Files(), "short.pcm");
    Engine.Step = 1;
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(5), ElementsAre(127, 127, 0, 0, 0));
    folder.Write("empty.pcm", "");
    audio::LoadSample(Engine, folder.Files(), "empty.pcm");
    Engine.ReadPosition = 0;
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(512), testing::Each(0));
}

TEST_F(EngineTest, OnlyTheFirst1024BytesAreEverPlayed)
{
    const support::TempFolder folder;
    std::string bytes(1024, '\x90');
    bytes.append(5000, '\xFF');
    folder.Write("long.pcm", bytes);
    audio::LoadSample(Engine, folder.Files(), "long.pcm");
    Engine.Step = 1;
    for (int buffer = 0; buffer < 4; ++buffer)
    {
        FillEngineBuffer(Engine, buffer);
        EXPECT_THAT(Frames(512, buffer), testing::Each(16));
    }
}

TEST_F(EngineTest, AMissingSampleIsAnError)
{
    const support::TempFolder folder;
    EXPECT_THROW(audio::LoadSample(Engine, folder.Files(), "none.pcm"), base::RuntimeError);
}

TEST_F(EngineTest, BothChannelsTakeTheSampleAndOtherBuffersStay)
{
    Engine.Step = 1;
    FillEngineBuffer(Engine, 2);
    for (int j = 0; j < 512; ++j)
    {
        ASSERT_EQ(At(2 * 2048 + 4 * j), j % 256 - 128) << j;
        ASSERT_EQ(At(2 * 2048 + 4 * j + 2), j % 256 - 128) << j;
    }
    for (const int buffer : {0, 1, 3})
        EXPECT_THAT(Frames(512, buffer), testing::Each(0));
    EXPECT_EQ(Engine.ReadPosition, 512);
}

TEST_F(EngineTest, BuffersFollowOneAnother)
{
    Engine.Step = 0.5f;
    FillEngineBuffer(Engine, 3);
    FillEngineBuffer(Engine, 0);
    EXPECT_EQ(At(0), 256 % 256 - 128);
    EXPECT_EQ(Engine.ReadPosition, 512);
}

TEST_F(EngineTest, HalvesGoToTheEvenNeighbour)
{
    Engine.Step = 0.25f;
    // 0 .25 .5 .75 1 1.25 1.5 1.75 2 2.25 2.5 2.75 3 3.25 3.5
    const std::vector<int> entries = Entries();
    EXPECT_THAT(std::vector<int>(entries.begin(), entries.begin() + 15),
                ElementsAre(0, 0, 0, 1, 1, 1, 2, 2, 2, 2, 2, 3, 3, 3, 4));
}

TEST_F(EngineTest, AStepOfATenthHoldsEachOf52EntriesForAboutTenFrames)
{
    Engine.Step = 0.1f;
    const std::vector<int> entries = Entries();
    std::multiset<int> held(entries.begin(), entries.end());
    EXPECT_EQ(entries.front(), 0);
    EXPECT_EQ(entries.back(), 51);
    EXPECT_EQ(held.count(0), 6u); // half of its frames would lie before the loop's beginning
    for (int entry = 1; entry < 51; ++entry)
        EXPECT_NEAR(static_cast<double>(held.count(entry)), 10, 1) << entry;
}

// Speed 0: step 0.2, gain 125. Entries 0 0 0 1 1 1 1 1 2 2 2 2 2 3.
TEST_F(EngineTest, TheBytesOfACarAtStandstill)
{
    Drive(0);
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(10),
                ElementsAre(-16000, -16000, -16000, -15875, -15875, -15875, -15875, -15875, -15750, -15750));
    // -16000 is 0xC180, -15875 is 0xC1FD.
    EXPECT_THAT(std::vector<int>(Engine.Buffers.begin() + 8, Engine.Buffers.begin() + 16),
                ElementsAre(0x80, 0xC1, 0x80, 0xC1, 0xFD, 0xC1, 0xFD, 0xC1));
}

// Speed 1: second gear, step 0.3 + 0.2 × 0.45 = 0.39, gain 150. Positions 0 .39 .78 1.17 1.56 1.95 2.34 2.73 3.12 3.51.
TEST_F(EngineTest, TheBytesOfACarInSecondGear)
{
    Drive(1);
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(10),
                ElementsAre(-19200, -19200, -19050, -19050, -18900, -18900, -18900, -18750, -18750, -18600));
}

// Speed -1: step 0.5, gain 150. Positions 0 .5 1 1.5 2 2.5 3 3.5.
TEST_F(EngineTest, TheBytesOfACarThatReverses)
{
    Drive(-1);
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(8), ElementsAre(-19200, -19200, -19050, -18900, -18900, -18900, -18750, -18600));
}

// Speed 5: sixth gear, step 0.3 + 0.2 × 0.56 = 0.412, gain 250. Positions 0 .412 .824 1.236 1.648 2.06 2.472 2.884.
TEST_F(EngineTest, TheBytesOfACarAt180)
{
    Drive(5);
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(8), ElementsAre(-32000, -32000, -31750, -31750, -31500, -31500, -31500, -31250));
}

TEST_F(EngineTest, ProductsBeyond16BitsWrap)
{
    Engine.Table = {127, -128, 127, -128};
    Engine.Step = 1;
    Engine.Gain = 300;
    FillEngineBuffer(Engine, 0);
    // 38100 is 0x94D4; -38400 is 0x6A00 without its upper bits.
    EXPECT_THAT(Frames(2), ElementsAre(38100 - 65536, 65536 - 38400));
    EXPECT_THAT(std::vector<int>(Engine.Buffers.begin(), Engine.Buffers.begin() + 2), ElementsAre(0xD4, 0x94));
    Engine.ReadPosition = 1;
    Engine.Gain = 512; // -65536
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(1), ElementsAre(0));
    Engine.ReadPosition = 0;
    Engine.Gain = 32767;
    FillEngineBuffer(Engine, 0);
    EXPECT_THAT(Frames(2), ElementsAre(127 * 32767 - 63 * 65536, 64 * 65536 - 128 * 32767));
}

TEST_F(EngineTest, APositionBeyond1023BecomesZeroWhateverItsFraction)
{
    Engine.ReadPosition = 1022.9f;
    Engine.Step = 0.4f;
    std::vector<int> entries = Entries();
    EXPECT_THAT(std::vector<int>(entries.begin(), entries.begin() + 4), ElementsAre(1023, 0, 0, 1));
    // 0 and not 0.3: the third frame after the first lies at 0.8, not at 1.1.
    Engine.ReadPosition = 1023.0f;
    Engine.Step = 700;
    entries = Entries();
    EXPECT_THAT(std::vector<int>(entries.begin(), entries.begin() + 4), ElementsAre(1023, 0, 700, 0));
}

TEST_F(EngineTest, APositionOfExactly1023IsPlayed)
{
    Engine.ReadPosition = 1022.5f;
    Engine.Step = 0.5f;
    const std::vector<int> entries = Entries();
    EXPECT_THAT(std::vector<int>(entries.begin(), entries.begin() + 4), ElementsAre(1022, 1023, 0, 0));
}

TEST_F(EngineTest, NoPositionAndNoStepReadsOutsideTheTable)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float none = std::numeric_limits<float>::quiet_NaN();
    for (const float step : {infinity, -infinity, none, 3e38f, -3e38f, -1.0f})
        for (const float position : {0.0f, -4e9f, 4e9f, 1024.0f, none, infinity, -infinity})
        {
            Engine.Step = step;
            Engine.ReadPosition = position;
            FillEngineBuffer(Engine, 1);
        }
    // The sound comes back by itself.
    Engine.ReadPosition = none;
    Engine.Step = 0.25f;
    FillEngineBuffer(Engine, 1);
    EXPECT_EQ(Engine.ReadPosition, 511 * 0.25f);
}

TEST_F(EngineTest, AnotherIndexDoesNothing)
{
    Engine.Step = 1;
    const EngineSound before = Engine;
    for (const int index : {-1, 4, 2147483647, -2147483647})
        FillEngineBuffer(Engine, index);
    EXPECT_EQ(Engine.Buffers, before.Buffers);
    EXPECT_EQ(Engine.ReadPosition, 0);
}

TEST_F(EngineTest, AHeaderHoldsItsQuarterAndItsIndex)
{
    for (int k = 0; k < 4; ++k)
    {
        const platform::WaveHeader header = audio::HeaderOf(Engine, k);
        EXPECT_EQ(header.Data.data(), Engine.Buffers.data() + k * 2048);
        EXPECT_EQ(header.Data.size(), 2048u);
        EXPECT_EQ(header.User, k);
    }
}
}
