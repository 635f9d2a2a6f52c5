// SPDX-License-Identifier: Zlib
// Music files as the desktop back end decodes them, and files that only say they were music.
#include "platform/sdl/MusicDecoder.h"
#include "tests/support/MusicFile.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>

namespace
{
struct Decoding : testing::Test
{
    support::TempFolder Folder;
    std::atomic<bool> GiveUp = false;
    std::vector<std::int16_t> Left;

    std::filesystem::path Named(const char* name) const { return Folder.Path / name; }
    // Whether it opens; Left then holds its left channel.
    bool Decode(const char* name)
    {
        sdl::MusicDecoder decoder(GiveUp);
        Left.clear();
        if (!decoder.Open(Named(name)))
            return false;
        for (auto bytes = decoder.Read(); !bytes.empty(); bytes = decoder.Read())
        {
            EXPECT_EQ(bytes.size() % 4, 0u);
            for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4)
                std::memcpy(&Left.emplace_back(), bytes.data() + at, 2);
        }
        EXPECT_TRUE(decoder.Read().empty());
        return true;
    }
    double Seconds() const { return static_cast<double>(Left.size()) / sdl::MusicDecoder::Rate; }
    // By the upward crossings of zero between a quarter and three quarters.
    double Frequency() const
    {
        const std::size_t from = Left.size() / 4, to = Left.size() * 3 / 4;
        int crossings = 0;
        for (std::size_t i = from; i + 1 < to; ++i)
            crossings += Left[i] < 0 && Left[i + 1] >= 0 ? 1 : 0;
        return crossings * static_cast<double>(sdl::MusicDecoder::Rate) / static_cast<double>(to - from);
    }
    int Loudest() const { return Left.empty() ? 0 : *std::max_element(Left.begin(), Left.end()); }
    std::string Bytes(const char* name) const
    {
        std::ifstream in(Named(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    bool Write(const char* name, const support::Tone& tone) const { return support::WriteTone(Named(name), tone); }
};

TEST_F(Decoding, Mp3)
{
    ASSERT_TRUE(Write("tone.mp3", {440, 2}));
    ASSERT_TRUE(Decode("tone.mp3"));
    EXPECT_NEAR(Seconds(), 2, 0.06);
    EXPECT_NEAR(Frequency(), 440, 3);
    EXPECT_NEAR(Loudest(), 16384, 1500);
}

TEST_F(Decoding, WindowsMedia)
{
    ASSERT_TRUE(Write("tone.wma", {880, 2}));
    ASSERT_TRUE(Decode("tone.wma"));
    EXPECT_NEAR(Seconds(), 2, 0.1);
    EXPECT_NEAR(Frequency(), 880, 5);
    EXPECT_NEAR(Loudest(), 16384, 2000);
}

TEST_F(Decoding, MonoAtHalfTheRateBecomesStereoAtTheWhole)
{
    ASSERT_TRUE(Write("mono.mp3", {330, 2, 22050, 1}));
    ASSERT_TRUE(Decode("mono.mp3"));
    EXPECT_NEAR(Seconds(), 2, 0.08);
    EXPECT_NEAR(Frequency(), 330, 3);
}

TEST_F(Decoding, NamesWithColonsAndBlanks)
{
    ASSERT_TRUE(Write("one: a, b %d.mp3", {440, 0.5}));
    EXPECT_TRUE(Decode("one: a, b %d.mp3"));
    EXPECT_NEAR(Seconds(), 0.5, 0.06);
}

TEST_F(Decoding, TheExtensionDoesNotMatter)
{
    ASSERT_TRUE(Write("tone.wma", {440, 0.5}));
    std::filesystem::rename(Named("tone.wma"), Named("tone.mp3"));
    EXPECT_TRUE(Decode("tone.mp3"));
    EXPECT_NEAR(Frequency(), 440, 5);
}

// None of these is music; some name other files or addresses that must not be opened.
TEST_F(Decoding, WhatIsNoMusicIsRefused)
{
    ASSERT_TRUE(Write("tone.mp3", {440, 1}));
    const std::string tone = Named("tone.mp3").string();
    const std::string empty, text = "Tanti auguri\n", noise(100000, '\xFF'), zeros(100000, '\0');
    const std::string playlist =
        "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXTINF:10,\nfile://" + tone + "\n#EXT-X-ENDLIST\n";
    const std::string concat = "ffconcat version 1.0\nfile '" + tone + "'\n";
    const std::string remote = "#EXTM3U\nhttp://127.0.0.1:9/tone.mp3\n";
    std::string wave = "RIFF";
    wave.append(
        "\x24\x10\x00\x00WAVEfmt \x10\x00\x00\x00\x01\x00\x02\x00\x44\xAC\x00\x00\x10\xB1\x02\x00\x04\x00\x10\x00"
        "data\x00\x10\x00\x00",
        40);
    wave.append(4096, '\x11');
    for (const std::string& bytes : {empty, text, noise, zeros, playlist, concat, remote, wave})
    {
        Folder.Write("fake.mp3", bytes);
        EXPECT_TRUE(!Decode("fake.mp3") || Left.empty()) << bytes.substr(0, 40);
    }
    EXPECT_FALSE(Decode("missing.mp3"));
    std::filesystem::create_directories(Named("folder.mp3"));
    EXPECT_FALSE(Decode("folder.mp3"));
}

TEST_F(Decoding, WhatIsLeftOfACutFileIsPlayed)
{
    ASSERT_TRUE(Write("tone.mp3", {440, 2}));
    const std::string whole = Bytes("tone.mp3");
    Folder.Write("half.mp3", whole.substr(0, whole.size() / 2));
    ASSERT_TRUE(Decode("half.mp3"));
    EXPECT_NEAR(Seconds(), 1, 0.2);
    Folder.Write("tail.mp3", whole.substr(whole.size() / 2));
    ASSERT_TRUE(Decode("tail.mp3"));
    EXPECT_NEAR(Seconds(), 1, 0.2);
}

// No claim of a damaged file makes more sound than a few seconds, let alone anything worse.
TEST_F(Decoding, DamagedFilesEnd)
{
    for (const char* name : {"tone.mp3", "tone.wma"})
    {
        ASSERT_TRUE(Write(name, {440, 1}));
        const std::string whole = Bytes(name);
        std::uint32_t state = 12345;
        const auto next = [&state] { return state = state * 1664525u + 1013904223u; };
        for (int round = 0; round < 60; ++round)
        {
            std::string bytes = whole;
            for (int hit = 0; hit < 1 + round; ++hit)
                bytes[(next() >> 4) % (round % 2 == 0 ? bytes.size() : 600)] = static_cast<char>(next() >> 24);
            Folder.Write("damaged.mp3", bytes);
            Decode("damaged.mp3");
            EXPECT_LT(Seconds(), 60);
        }
    }
}

TEST_F(Decoding, GivingUpEndsIt)
{
    ASSERT_TRUE(Write("tone.mp3", {440, 5}));
    sdl::MusicDecoder decoder(GiveUp);
    ASSERT_TRUE(decoder.Open(Named("tone.mp3")));
    EXPECT_FALSE(decoder.Read().empty());
    GiveUp = true;
    int more = 0;
    while (!decoder.Read().empty())
        ++more;
    EXPECT_LE(more, 2); // what was decoded already
}
}
