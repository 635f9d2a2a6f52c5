// SPDX-License-Identifier: Zlib
// Music through the system's media control. Needs a sound device and a decoder of MP3.
#include "tests/support/TempFolder.h"
#include "tests/support/WinDesktop.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fstream>
#include <iterator>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

// The beginning of a track, where its frames of 192 thousand bits a second are cut off.
std::string Music(double seconds)
{
    std::ifstream in(std::filesystem::path(VELKAR_ROOT) / "soundtracks" / "Tornanti.mp3", std::ios::binary);
    std::string bytes(static_cast<std::size_t>(seconds * 24000), '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(in.good());
    return bytes;
}

struct WinMusic : testing::Test, support::WinDesktop
{
    support::TempFolder Folder;

    void Write(const std::filesystem::path& name, const std::string& bytes) const
    {
        std::ofstream(Folder.Path / name, std::ios::binary) << bytes;
    }
    void PlayFile(const std::filesystem::path& name, std::uint32_t number)
    {
        Music->Open(Folder.Path / name);
        Music->Play(number);
    }
};

TEST_F(WinMusic, EndsWhenItHasBeenHeard)
{
    Write("a.mp3", ::Music(2));
    const auto begin = std::chrono::steady_clock::now();
    PlayFile("a.mp3", 5);
    ASSERT_TRUE(Await([this] { return !Heard.Media.empty(); }));
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    EXPECT_GT(passed.count(), 1.5);
    EXPECT_THAT(Heard.Media, ElementsAre(std::pair(5u, platform::MediaSuccessful)));
    Music->Play(6); // once more from its beginning
    ASSERT_TRUE(Await([this] { return Heard.Media.size() == 2; }));
    EXPECT_EQ(Heard.Media[1], std::pair(6u, platform::MediaSuccessful));
}

TEST_F(WinMusic, ItalianNamesWithBlanksPlay)
{
    const std::filesystem::path name = L"Citt\u00E0 che pi\u00F9 non c'\u00E8.mp3";
    Write(name, ::Music(0.5));
    PlayFile(name, 1);
    ASSERT_TRUE(Await([this] { return !Heard.Media.empty(); }));
    EXPECT_THAT(Heard.Media, ElementsAre(std::pair(1u, platform::MediaSuccessful)));
}

TEST_F(WinMusic, WhatCannotBePlayedIsToldLater)
{
    Write("text.mp3", "Tanti auguri");
    for (const char* name : {"text.mp3", "missing.mp3", ""})
    {
        Heard.Media.clear();
        PlayFile(name, 2);
        EXPECT_THAT(Heard.Media, IsEmpty()); // not from inside Play
        ASSERT_TRUE(Await([this] { return !Heard.Media.empty(); })) << name;
        EXPECT_THAT(Heard.Media, ElementsAre(std::pair(2u, platform::MediaUnplayable)));
    }
}

TEST_F(WinMusic, TheCallsReturnAtOnce)
{
    Write("a.mp3", ::Music(5));
    PlayFile("a.mp3", 1); // loads the decoders
    Wait(1500);
    const auto begin = std::chrono::steady_clock::now();
    for (std::uint32_t number = 2; number <= 11; ++number)
        PlayFile("a.mp3", number);
    Music->Close();
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(passed.count(), 0.02);
}

TEST_F(WinMusic, WhatIsClosedTellsNothingMore)
{
    Write("long.mp3", ::Music(30));
    Write("short.mp3", ::Music(0.5));
    Write("text.mp3", "Tanti auguri");
    // As fast as a key that is held down.
    for (std::uint32_t number = 1; number <= 20; ++number)
    {
        PlayFile(number % 4 == 1 ? "text.mp3" : "long.mp3", number);
        if (number % 4 == 0)
            Wait(number * 10);
        Music->Close();
    }
    PlayFile("short.mp3", 41);
    ASSERT_TRUE(Await([this] { return !Heard.Media.empty(); }));
    EXPECT_THAT(Heard.Media, ElementsAre(std::pair(41u, platform::MediaSuccessful)));
    Music->Play(42);
    Music->Close();
    Music->Play(43); // nothing is open
    Wait(1500);
    EXPECT_EQ(Heard.Media.size(), 1u);
}

TEST_F(WinMusic, OnlyTheEndOfWhatPlaysIsTold)
{
    Write("long.mp3", ::Music(30));
    Music->Notified(MCI_NOTIFY_SUCCESSFUL, 0); // before anything was
    PlayFile("long.mp3", 7);
    Music->Notified(MCI_NOTIFY_SUCCESSFUL, 6);
    Music->Notified(MCI_NOTIFY_ABORTED, 7);
    Music->Notified(MCI_NOTIFY_SUPERSEDED, 7);
    EXPECT_TRUE(Queue.IsEmpty());
    Music->Notified(MCI_NOTIFY_FAILURE, 7);
    Music->Notified(MCI_NOTIFY_FAILURE, 7); // it has ended
    EXPECT_THAT(Heard.Media, IsEmpty());
    Queue.Deliver();
    EXPECT_THAT(Heard.Media, ElementsAre(std::pair(7u, platform::MediaUnplayable)));
}
}
