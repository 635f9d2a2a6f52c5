// SPDX-License-Identifier: Zlib
// The sound of the desktop back end on SDL's own dummy device, which keeps time and plays nothing.
#include "platform/sdl/SdlPlatform.h"
#include "tests/support/FourBuffers.h"
#include "tests/support/HeardEvents.h"
#include "tests/support/MusicFile.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

#include <unistd.h>

namespace
{
using testing::ElementsAre;

// No display and no sound card are needed.
struct Drivers
{
    explicit Drivers(const char* audio)
    {
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        setenv("SDL_AUDIODRIVER", audio, 1);
    }
};

struct Desktop : support::FourBuffers
{
    Drivers Chosen;
    support::TempFolder Folder;
    sdl::SdlPlatform Platform{Folder.Path};
    support::HeardEvents Heard;
    std::unique_ptr<platform::Window> Window = Platform.MakeWindow(Heard, {64, 64});
    std::unique_ptr<platform::WaveOut> Wave = Platform.MakeWaveOut(Heard);
    std::unique_ptr<platform::MusicPlayer> Music = Platform.MakeMusicPlayer(Heard);

    explicit Desktop(const char* audio = "dummy") : Chosen(audio) {}

    // Handles events until the condition holds, ten seconds at most.
    bool Await(const std::function<bool()>& condition)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!condition())
        {
            if (std::chrono::steady_clock::now() > end)
                return false;
            Platform.WaitEvents(5);
        }
        return true;
    }
};

struct SdlSound : testing::Test, Desktop
{
};

TEST_F(SdlSound, BuffersComeBackInOrderAndGoRound)
{
    Heard.OnDone = [this](std::int32_t user) { EXPECT_EQ(Wave->Write(Handle, Header(user)), 0); };
    Start(*Wave);
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_TRUE(Await([this] { return Heard.Done.size() >= 32; }));
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    for (std::size_t i = 0; i < 32; ++i)
        EXPECT_EQ(Heard.Done[i], static_cast<std::int32_t>(i % 4));
    EXPECT_GT(passed.count(), 32 * 512 / 11025.0 * 0.8); // not faster than the sound
}

TEST_F(SdlSound, AResetReturnsWhatIsQueuedWithLaterEvents)
{
    Start(*Wave);
    EXPECT_EQ(Wave->Close(Handle), platform::WaveStillPlaying);
    EXPECT_EQ(Wave->UnprepareHeader(Handle, Header(3)), platform::WaveStillPlaying);
    EXPECT_EQ(Wave->Write(Handle, Header(3)), platform::WaveStillPlaying);
    EXPECT_EQ(Wave->Reset(Handle), 0);
    EXPECT_TRUE(Heard.Done.empty());
    for (const int k : {0, 1, 2, 3})
        EXPECT_EQ(Wave->UnprepareHeader(Handle, Header(k)), 0);
    EXPECT_EQ(Wave->Close(Handle), 0);
    Platform.PumpEvents();
    EXPECT_THAT(Heard.Done, ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(Wave->Write(Handle, Header(0)), platform::WaveInvalidHandle);
}

TEST_F(SdlSound, StoppingAndStartingTakesNoTime)
{
    Start(*Wave);
    const auto begin = std::chrono::steady_clock::now();
    for (int round = 0; round < 10; ++round)
    {
        EXPECT_EQ(Wave->Reset(Handle), 0);
        EXPECT_EQ(Wave->Close(Handle), 0);
        Start(*Wave);
    }
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(passed.count(), 0.9); // closing SDL's device each time would take longer
}

TEST_F(SdlSound, NobodyIsToldWithoutAskingForIt)
{
    Start(*Wave);
    EXPECT_TRUE(Wave->Notify(false));
    EXPECT_EQ(Wave->Reset(Handle), 0);
    Platform.PumpEvents();
    EXPECT_TRUE(Heard.Done.empty());
}

TEST_F(SdlSound, CallsOutOfOrderAreRefused)
{
    EXPECT_EQ(Wave->PrepareHeader(platform::NoWave, Header(0)), platform::WaveInvalidHandle);
    EXPECT_EQ(Wave->Reset(platform::NoWave), platform::WaveInvalidHandle);
    EXPECT_EQ(Wave->Close(platform::NoWave), platform::WaveInvalidHandle);
    ASSERT_EQ(Wave->Open(Handle, Format), 0);
    EXPECT_EQ(Wave->Write(Handle, Header(0)), platform::WaveUnprepared);
    EXPECT_EQ(Wave->PrepareHeader(Handle, {Bytes, -1}), platform::WaveInvalidParameter);
    EXPECT_EQ(Wave->PrepareHeader(Handle, {Bytes, platform::MostWaveBuffers}), platform::WaveInvalidParameter);
    EXPECT_EQ(Wave->UnprepareHeader(Handle, Header(0)), 0);
}

TEST(SdlWithoutSound, OpeningFailsAndMusicIsSilent)
{
    Desktop desktop("no such driver");
    EXPECT_TRUE(desktop.Wave->Notify(true));
    EXPECT_EQ(desktop.Wave->Open(desktop.Handle, Desktop::Format), platform::WaveBadDevice);
    EXPECT_EQ(desktop.Wave->Write(platform::NoWave, desktop.Header(0)), platform::WaveInvalidHandle);
    desktop.Music->Open(desktop.Folder.Path / "any.mp3");
    desktop.Music->Play(1);
    desktop.Platform.WaitEvents(100);
    EXPECT_TRUE(desktop.Heard.Media.empty());
}

TEST_F(SdlSound, MusicEndsWhenItHasBeenHeard)
{
    ASSERT_TRUE(support::WriteTone(Folder.Path / "tone.mp3", {440, 0.7}));
    const auto begin = std::chrono::steady_clock::now();
    Music->Open(Folder.Path / "tone.mp3");
    Music->Play(5);
    ASSERT_TRUE(Await([this] { return !Heard.Media.empty(); }));
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    EXPECT_GT(passed.count(), 0.6);
    EXPECT_THAT(Heard.Media, ElementsAre(std::pair(5u, 1)));
    Music->Play(6); // once more from its beginning
    ASSERT_TRUE(Await([this] { return Heard.Media.size() == 2; }));
    EXPECT_EQ(Heard.Media[1], std::pair(6u, 1));
}

// How often the threads of that name have gone to sleep so far, all together; those of no other name.
long Sleeps(std::string_view name)
{
    long sleeps = 0;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task"))
    {
        std::string line, called;
        std::getline(std::ifstream(thread.path() / "comm"), called);
        if (!called.starts_with(name) || thread.path().filename() == std::to_string(getpid()))
            continue;
        std::ifstream status(thread.path() / "status");
        while (std::getline(status, line))
            if (line.starts_with("voluntary_ctxt_switches:"))
                sleeps += std::stol(line.substr(line.find(':') + 1));
    }
    return sleeps;
}

// The device asks for a block and another; what decodes them works for a dozen blocks at a time and sleeps meanwhile.
TEST_F(SdlSound, TheDecoderSleepsWhileMusicIsAhead)
{
    ASSERT_TRUE(support::WriteTone(Folder.Path / "long.mp3", {440, 30}));
    std::string own;
    std::getline(std::ifstream("/proc/self/comm"), own);
    Music->Open(Folder.Path / "long.mp3");
    Music->Play(1);
    ASSERT_TRUE(Await([] { return Sleeps("SDLAudio") >= 20; }));
    const long blocks = Sleeps("SDLAudio"), decoded = Sleeps(own);
    ASSERT_TRUE(Await([blocks] { return Sleeps("SDLAudio") >= blocks + 60; }));
    EXPECT_GT(Sleeps(own) - decoded, 0);
    EXPECT_LT(Sleeps(own) - decoded, 45); // a sanitizer's own thread among them
    EXPECT_TRUE(Heard.Media.empty());
}

TEST_F(SdlSound, AFileThatIsNoMusicIsUnplayable)
{
    Folder.Write("text.mp3", "Tanti auguri");
    Music->Open(Folder.Path / "text.mp3");
    Music->Play(2);
    ASSERT_TRUE(Await([this] { return !Heard.Media.empty(); }));
    EXPECT_THAT(Heard.Media, ElementsAre(std::pair(2u, platform::MediaUnplayable)));
}

TEST_F(SdlSound, WhatIsClosedTellsNothingMore)
{
    ASSERT_TRUE(support::WriteTone(Folder.Path / "long.mp3", {440, 30}));
    ASSERT_TRUE(support::WriteTone(Folder.Path / "short.mp3", {440, 0.2}));
    // As fast as a key that is held down.
    for (std::uint32_t number = 1; number <= 40; ++number)
    {
        Music->Open(Folder.Path / "long.mp3");
        Music->Play(number);
        if (number % 4 == 0)
            Platform.WaitEvents(10);
        Music->Close();
    }
    Music->Open(Folder.Path / "short.mp3");
    Music->Play(41);
    ASSERT_TRUE(Await([this] { return !Heard.Media.empty(); }));
    EXPECT_THAT(Heard.Media, ElementsAre(std::pair(41u, 1)));
    Music->Play(42);
    Music->Close();
    Music->Play(43); // nothing is open
    Platform.WaitEvents(400);
    EXPECT_EQ(Heard.Media.size(), 1u);
}
}
