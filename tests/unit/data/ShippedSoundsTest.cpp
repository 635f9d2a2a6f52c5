// SPDX-License-Identifier: Zlib
// What the game counts on in the engine sample and the music that ship with it.
#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace
{
using Bytes = std::vector<std::uint8_t>;

Bytes Read(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    EXPECT_TRUE(in) << path;
    return {std::istreambuf_iterator<char>(in), {}};
}

const std::filesystem::path Root{VELKAR_ROOT};

// The part of the engine sample that is played, round and round.
struct EngineLoop : testing::Test
{
    static constexpr std::size_t Length = 1024;
    std::vector<double> Loop;

    EngineLoop()
    {
        const Bytes bytes = Read(Root / "data" / "sounds" / "engine_01.pcm");
        for (std::size_t i = 0; i < std::min(Length, bytes.size()); ++i)
            Loop.push_back(bytes[i] - 128.0);
    }
    void SetUp() override { ASSERT_EQ(Loop.size(), Length); }

    // Amplitude of a tone that fits `turns` times into the loop.
    double Strength(int turns) const
    {
        double along = 0, across = 0;
        for (std::size_t i = 0; i < Length; ++i)
        {
            const double angle = 2 * 3.14159265358979 * turns * static_cast<double>(i) / Length;
            along += Loop[i] * std::cos(angle);
            across += Loop[i] * std::sin(angle);
        }
        return std::hypot(along, across) * 2 / Length;
    }
};
}

TEST_F(EngineLoop, StaysBelowTheLevelWhereAFullRaceWouldWrap)
{
    const auto [low, high] = std::minmax_element(Loop.begin(), Loop.end());
    EXPECT_LE(*high, 110);
    EXPECT_GE(*low, -110);
    EXPECT_GE(*high - *low, 80) << "and yet it is heard";
    double sum = 0;
    for (const double value : Loop)
        sum += value;
    EXPECT_NEAR(sum / Length, 0, 0.5);
}

TEST_F(EngineLoop, ComesRoundWithoutAClick)
{
    double steepest = 0, bend = 0;
    for (std::size_t i = 1; i < Length; ++i)
    {
        steepest = std::max(steepest, std::abs(Loop[i] - Loop[i - 1]));
        if (i + 1 < Length)
            bend = std::max(bend, std::abs(Loop[i + 1] - 2 * Loop[i] + Loop[i - 1]));
    }
    const double jump = Loop[0] - Loop[Length - 1];
    EXPECT_LE(std::abs(jump), steepest * 0.6);
    EXPECT_LE(std::abs(jump - (Loop[Length - 1] - Loop[Length - 2])), bend * 0.6) << "before the seam";
    EXPECT_LE(std::abs(Loop[1] - Loop[0] - jump), bend * 0.6) << "behind the seam";
}

TEST_F(EngineLoop, SoundsLikeManyFiringsOfUnequalCylinders)
{
    constexpr int Firings = 32;
    const double firing = Strength(Firings);
    EXPECT_GT(firing, 10);
    int overtones = 0;
    for (int i = 2; i <= 8; ++i)
        overtones += Strength(Firings * i) > firing / 30;
    EXPECT_GE(overtones, 5);
    // Between the multiples of the firing frequency: every other cylinder is weaker.
    EXPECT_GT(Strength(Firings / 2), firing / 12);
    EXPECT_GT(Strength(Firings * 3 / 2), firing / 60);
}

// Small loudspeakers give nothing of the firing frequency itself.
TEST_F(EngineLoop, CarriesNearlyAsMuchFromThirdToEighthOrderAsInTheFirst)
{
    constexpr int Firings = 32;
    double first = 0, middle = 0;
    for (int turns = Firings / 2; turns < Firings * 3 / 2; ++turns)
        first += Strength(turns) * Strength(turns);
    for (int turns = Firings * 5 / 2; turns < Firings * 17 / 2; ++turns)
        middle += Strength(turns) * Strength(turns);
    EXPECT_GT(middle, first * 0.8);
}

// What lies high up is mirrored by the nearest-sample playback. A seam that clicks fills that region as well.
TEST_F(EngineLoop, LeavesTheTopOfItsBandEmpty)
{
    double low = 0, high = 0;
    for (int turns = 1; turns < 512; ++turns)
        (turns < 400 ? low : high) += Strength(turns) * Strength(turns);
    EXPECT_LT(high, low / 25000);
}

namespace
{
// What the frame headers of an MP3 file say.
struct Mp3
{
    int Frames = 0;
    int SampleRate = 0;
    bool Stereo = true;
    double Seconds = 0;
    double KilobitsASecond = 0;
    std::string Title; // of the tag in front
};

// Size of the ID3v2 tag in front, 0 without one: four bytes of seven bits.
std::size_t TagSize(const Bytes& file)
{
    if (file.size() < 10 || file[0] != 'I' || file[1] != 'D' || file[2] != '3')
        return 0;
    std::size_t size = 0;
    for (std::size_t i = 6; i < 10; ++i)
        size = size * 128 + (file[i] & 127u);
    return size + 10;
}

// The text of the first frame "TIT2", when it is plain Latin.
std::string TitleOf(const Bytes& file)
{
    const std::string tag(file.begin(),
                          file.begin() + static_cast<std::ptrdiff_t>(std::min(TagSize(file), file.size())));
    const std::size_t at = tag.find("TIT2");
    if (at == std::string::npos || at + 11 > tag.size())
        return {};
    const auto size = static_cast<std::size_t>(static_cast<unsigned char>(tag[at + 7]));
    std::string title = tag.substr(at + 11, size > 0 ? size - 1 : 0);
    while (!title.empty() && title.back() == '\0')
        title.pop_back();
    return title;
}

// Walks from header to header; ADD_FAILUREs at the first thing that is no frame of MPEG 1, layer III.
Mp3 Walk(const Bytes& file)
{
    static constexpr std::array<int, 15> Rates{0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    static constexpr std::array<int, 3> SampleRates{44100, 48000, 32000};
    constexpr int FrameSamples = 1152;
    Mp3 mp3;
    mp3.Title = TitleOf(file);
    std::size_t at = TagSize(file), bytes = 0;
    while (at + 4 <= file.size())
    {
        const unsigned second = file[at + 1], third = file[at + 2], fourth = file[at + 3];
        const unsigned rate = third >> 4, sampling = third >> 2 & 3u;
        if (file[at] != 0xFF || (second & 0xFEu) != 0xFAu || rate == 0 || rate == 15 || sampling == 3)
        {
            ADD_FAILURE() << "no frame at byte " << at;
            return mp3;
        }
        mp3.SampleRate = SampleRates[sampling];
        mp3.Stereo = mp3.Stereo && fourth >> 6 != 3;
        const auto size = static_cast<std::size_t>(144000 * Rates[rate] / mp3.SampleRate) + (third >> 1 & 1u);
        if (at + size > file.size())
        {
            ADD_FAILURE() << "the last frame is cut off";
            return mp3;
        }
        ++mp3.Frames;
        at += size;
        bytes += size;
    }
    EXPECT_EQ(at, file.size()) << "bytes behind the last frame";
    if (mp3.Frames > 0)
    {
        mp3.Seconds = static_cast<double>(mp3.Frames) * FrameSamples / mp3.SampleRate;
        mp3.KilobitsASecond = static_cast<double>(bytes) * 8 / 1000 / mp3.Seconds;
    }
    return mp3;
}

std::vector<std::filesystem::path> Soundtracks()
{
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(Root / "soundtracks"))
        paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
}
}

TEST(ShippedSoundtracks, AreFiveOrMoreWithinTheirRoom)
{
    std::uintmax_t total = 0;
    int count = 0;
    for (const std::filesystem::path& path : Soundtracks())
    {
        EXPECT_EQ(path.extension(), ".mp3") << path;
        total += std::filesystem::file_size(path);
        ++count;
    }
    EXPECT_GE(count, 5);
    EXPECT_LE(total, 16u * 1000 * 1000);
}

TEST(ShippedSoundtracks, AreWholeStereoFilesOfAboutTwoMinutes)
{
    for (const std::filesystem::path& path : Soundtracks())
    {
        SCOPED_TRACE(path.filename().string());
        const Mp3 mp3 = Walk(Read(path));
        EXPECT_EQ(mp3.SampleRate, 44100);
        EXPECT_TRUE(mp3.Stereo);
        EXPECT_GE(mp3.KilobitsASecond, 128);
        EXPECT_GE(mp3.Seconds, 105);
        EXPECT_LE(mp3.Seconds, 150);
    }
}

// The race shows the file's name without its extension; players elsewhere show the tag.
TEST(ShippedSoundtracks, CarryTheirTitleInNameAndTag)
{
    for (const std::filesystem::path& path : Soundtracks())
    {
        const std::string title = path.stem().string();
        EXPECT_EQ(Walk(Read(path)).Title, title);
        EXPECT_LE(title.size(), 30u) << "fits the race screen";
        EXPECT_TRUE(std::all_of(title.begin(), title.end(), [](char c) { return c >= ' ' && c < 127; })) << title;
    }
}
