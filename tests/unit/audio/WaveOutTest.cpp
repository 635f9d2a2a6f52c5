// SPDX-License-Identifier: Zlib
#include "audio/WaveOut.h"
#include "tests/support/Messages.h"

#include <gmock/gmock.h>

#include <map>

namespace
{
using testing::ElementsAre;

// Remembers its calls, returns what it is told to.
struct Device final : platform::WaveOut
{
    std::vector<std::string> Calls;
    std::map<std::string, std::int32_t> Codes;
    platform::WaveFormat Format;
    std::vector<std::uint8_t> Written; // the first byte of each buffer

    std::int32_t Call(std::string name)
    {
        Calls.push_back(name);
        const auto code = Codes.find(name);
        return code == Codes.end() ? 0 : code->second;
    }
    std::int32_t Call(const char* name, platform::WaveHandle handle, const platform::WaveHeader& header)
    {
        EXPECT_EQ(header.Data.size(), 2048u);
        return Call(name + std::to_string(header.User) + (handle == 7 ? "" : " invalid"));
    }
    bool Notify(bool) override { return true; }
    std::int32_t Open(platform::WaveHandle& handle, const platform::WaveFormat& format) override
    {
        handle = 7;
        Format = format;
        return Call("open");
    }
    std::int32_t PrepareHeader(platform::WaveHandle handle, const platform::WaveHeader& header) override
    {
        return Call("prepare", handle, header);
    }
    std::int32_t Write(platform::WaveHandle handle, const platform::WaveHeader& header) override
    {
        Written.push_back(header.Data[0]);
        return Call("write", handle, header);
    }
    std::int32_t Reset(platform::WaveHandle handle) override { return Call(handle == 7 ? "reset" : "reset invalid"); }
    std::int32_t UnprepareHeader(platform::WaveHandle handle, const platform::WaveHeader& header) override
    {
        return Call("unprepare", handle, header);
    }
    std::int32_t Close(platform::WaveHandle handle) override { return Call(handle == 7 ? "close" : "close invalid"); }
};

struct WaveOutTest : testing::Test
{
    audio::EngineSound Engine;
    Device TheDevice;
    support::Messages Messages;
    audio::Stream Stream{Engine, TheDevice, Messages};

    std::vector<std::string> Texts() const
    {
        std::vector<std::string> texts;
        for (const support::Box& box : Messages.Boxes)
        {
            EXPECT_EQ(box.Icon, base::Icon::Critical);
            EXPECT_EQ(box.Title, "Errore");
            texts.push_back(box.Text);
        }
        return texts;
    }
};

TEST_F(WaveOutTest, StartOpensPreparesAndQueuesInOrder)
{
    audio::StartStream(Stream);
    EXPECT_THAT(TheDevice.Calls, ElementsAre("open", "prepare0", "prepare1", "prepare2", "prepare3", "write0", "write1",
                                             "write2", "write3"));
    EXPECT_EQ(TheDevice.Format.Channels, 2);
    EXPECT_EQ(TheDevice.Format.SamplesPerSecond, 11025);
    EXPECT_EQ(TheDevice.Format.BitsPerSample, 16);
    EXPECT_EQ(Engine.Handle, 7);
    EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(WaveOutTest, StartDoesNothingWhileOpen)
{
    audio::StartStream(Stream);
    TheDevice.Calls.clear();
    audio::StartStream(Stream);
    EXPECT_TRUE(TheDevice.Calls.empty());
}

TEST_F(WaveOutTest, StopResetsUnpreparesAndClosesInOrder)
{
    audio::StartStream(Stream);
    TheDevice.Calls.clear();
    audio::StopStream(Stream);
    EXPECT_THAT(TheDevice.Calls, ElementsAre("reset", "unprepare0", "unprepare1", "unprepare2", "unprepare3", "close"));
    EXPECT_EQ(Engine.Handle, platform::NoWave);
    TheDevice.Calls.clear();
    audio::StopStream(Stream);
    EXPECT_TRUE(TheDevice.Calls.empty());
}

TEST_F(WaveOutTest, TheBuffersAreQueuedAsTheyAre)
{
    for (std::size_t k = 0; k < 4; ++k)
        Engine.Buffers[k * 2048] = static_cast<std::uint8_t>(10 + k);
    audio::StartStream(Stream);
    EXPECT_THAT(TheDevice.Written, ElementsAre(10, 11, 12, 13));
}

// Deliberate: no short cut after a failed open.
TEST_F(WaveOutTest, AFailedOpenYieldsNineBoxes)
{
    TheDevice.Codes = {{"open", 2}};
    for (const char* call : {"prepare", "write"})
        for (int k = 0; k < 4; ++k)
            TheDevice.Codes[call + std::to_string(k) + " invalid"] = 5;
    audio::StartStream(Stream);
    EXPECT_THAT(Texts(), ElementsAre("Errore 2 in WaveOutOpen", "Errore 5 in WaveOutPrepareHeader(0)",
                                     "Errore 5 in WaveOutPrepareHeader(1)", "Errore 5 in WaveOutPrepareHeader(2)",
                                     "Errore 5 in WaveOutPrepareHeader(3)", "Errore 5 in WaveOutWrite(0)",
                                     "Errore 5 in WaveOutWrite(1)", "Errore 5 in WaveOutWrite(2)",
                                     "Errore 5 in WaveOutWrite(3)"));
    EXPECT_EQ(Engine.Handle, platform::NoWave);
}

TEST_F(WaveOutTest, EveryFailureIsReportedAndTheLoopsGoOn)
{
    TheDevice.Codes = {{"prepare1", 7}, {"write2", 34}, {"reset", 5}, {"unprepare3", 33}, {"close", -1}};
    audio::StartStream(Stream);
    audio::StopStream(Stream);
    EXPECT_THAT(Texts(), ElementsAre("Errore 7 in WaveOutPrepareHeader(1)", "Errore 34 in WaveOutWrite(2)",
                                     "Errore 5 in WaveOutReset", "Errore 33 in WaveOutUnprepareHeader(3)",
                                     "Errore -1 in WaveOutClose"));
    EXPECT_EQ(TheDevice.Calls.size(), 15u);
    EXPECT_EQ(Engine.Handle, platform::NoWave); // closed or not
}

TEST_F(WaveOutTest, ABufferThatComesBackIsFilledAndQueuedAgain)
{
    audio::StartStream(Stream);
    TheDevice.Calls.clear();
    TheDevice.Written.clear();
    Engine.Table.fill(3);
    Engine.Gain = 5;
    audio::EngineWndProc(Stream, 2);
    EXPECT_THAT(TheDevice.Calls, ElementsAre("write2"));
    EXPECT_THAT(TheDevice.Written, ElementsAre(15));
    EXPECT_EQ(Engine.Buffers[0], 0);
}

TEST_F(WaveOutTest, TheRequeueingIsNotExamined)
{
    audio::StartStream(Stream);
    TheDevice.Codes = {{"write1", 33}};
    audio::EngineWndProc(Stream, 1);
    EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(WaveOutTest, ABufferThatComesBackAfterTheCloseIsLeftAlone)
{
    audio::StartStream(Stream);
    audio::StopStream(Stream);
    TheDevice.Calls.clear();
    Engine.Step = 1;
    audio::EngineWndProc(Stream, 0);
    EXPECT_TRUE(TheDevice.Calls.empty());
    EXPECT_EQ(Engine.ReadPosition, 0);
}

TEST_F(WaveOutTest, AnIndexOfNoBufferIsLeftAlone)
{
    audio::StartStream(Stream);
    TheDevice.Calls.clear();
    audio::EngineWndProc(Stream, -1);
    audio::EngineWndProc(Stream, 4);
    EXPECT_TRUE(TheDevice.Calls.empty());
}
}
