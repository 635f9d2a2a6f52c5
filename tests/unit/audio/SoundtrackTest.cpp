// SPDX-License-Identifier: Zlib
#include "audio/Soundtrack.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

struct Player final : platform::MusicPlayer
{
    std::vector<std::string> Calls;
    void Open(const std::filesystem::path& file) override { Calls.push_back("open " + file.filename().string()); }
    void Play(std::uint32_t number) override { Calls.push_back("play " + std::to_string(number)); }
    void Close() override { Calls.push_back("close"); }
};

struct SoundtrackTest : testing::Test
{
    support::TempFolder Folder;
    audio::Soundtrack Music;
    Player ThePlayer;

    std::vector<std::string> List(const char* patterns = audio::SoundtrackPatterns)
    {
        std::vector<std::string> list = {"from before"};
        const std::int32_t count = audio::ListFiles(Folder.Files(), audio::SoundtrackFolder, patterns, list);
        EXPECT_EQ(count, list[0].empty() ? 0 : static_cast<std::int32_t>(list.size()));
        return list;
    }
    void Files(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            Folder.Write(std::string("soundtracks/") + name, "");
    }
    bool Next(std::int32_t code = 1) { return audio::NextTrack(Music, ThePlayer, Folder.Files(), code); }
    void Command(const char* command) { audio::SetCommand(Music.Media, ThePlayer, Folder.Files(), command); }
};

TEST_F(SoundtrackTest, OnePatternAfterTheOther)
{
    Files({"a.mp3", "b.wma", "c.mp3", "cover.jpg", "mp3", "d.mp3.txt"});
    EXPECT_THAT(List(), ElementsAre("a.mp3", "c.mp3", "b.wma"));
}

TEST_F(SoundtrackTest, NamesAndExtensionsWithoutRegardToCase)
{
    Files({"Beta.MP3", "alfa.mp3", "Gamma.mp3", "Zeta.Wma", "delta.WMA", ".mp3"});
    EXPECT_THAT(List(), ElementsAre(".mp3", "alfa.mp3", "Beta.MP3", "Gamma.mp3", "delta.WMA", "Zeta.Wma"));
}

TEST_F(SoundtrackTest, NamesThatDifferByCapitalsAlone)
{
    Files({"alfa.mp3", "ALFA.mp3"});
    if (!support::KnowsCapitals(Folder.Path))
        GTEST_SKIP() << "this file system does not tell capitals from small letters";
    EXPECT_THAT(List(), ElementsAre("ALFA.mp3", "alfa.mp3"));
}

TEST_F(SoundtrackTest, FoldersAreNoFiles)
{
    Files({"album.mp3/track.mp3", "one.mp3"});
    EXPECT_THAT(List(), ElementsAre("one.mp3"));
}

TEST_F(SoundtrackTest, NothingIsOneEmptyName)
{
    EXPECT_THAT(List(), ElementsAre("")); // there is not even a folder
    Files({"readme.txt"});
    EXPECT_THAT(List(), ElementsAre(""));
    EXPECT_THAT(List(""), ElementsAre(""));
}

TEST_F(SoundtrackTest, PatternsMatchWholeNames)
{
    Files({"ab.mp3", "abab.mp3", "b.mp3", "xb.mp3"});
    EXPECT_THAT(List("a*b.mp3"), ElementsAre("ab.mp3", "abab.mp3"));
    EXPECT_THAT(List("?b.mp3"), ElementsAre("ab.mp3", "xb.mp3"));
    EXPECT_THAT(List("b.MP3|*b.mp3"), ElementsAre("b.mp3", "ab.mp3", "abab.mp3", "b.mp3", "xb.mp3"));
    EXPECT_THAT(List("b"), ElementsAre(""));
}

TEST(StripExtension, EndsAtTheLastDot)
{
    EXPECT_EQ(audio::StripExtension("Lago di notte.mp3"), "Lago di notte");
    EXPECT_EQ(audio::StripExtension("01. Via.mp3"), "01. Via");
    EXPECT_EQ(audio::StripExtension("senza"), "senza"); // shown whole
    EXPECT_EQ(audio::StripExtension(".mp3"), "");
    EXPECT_EQ(audio::StripExtension(""), "");
}

TEST_F(SoundtrackTest, TheNextTrackIsClosedOpenedAndPlayed)
{
    Music.TrackList = {"a.mp3", "b.mp3", "c.mp3"};
    EXPECT_TRUE(Next());
    EXPECT_THAT(ThePlayer.Calls, ElementsAre("close", "open b.mp3", "play 1"));
    EXPECT_EQ(Music.TrackIndex, 1);
    EXPECT_EQ(Music.Media.Command, "play");
    EXPECT_EQ(Music.Media.FileName, "soundtracks\\b.mp3");
}

TEST_F(SoundtrackTest, TheListIsARound)
{
    Music.TrackList = {"a.mp3", "b.mp3"};
    Music.TrackIndex = 1;
    EXPECT_TRUE(Next());
    EXPECT_EQ(Music.TrackIndex, 0);
    Music.TrackList = {"a.mp3"};
    EXPECT_TRUE(Next());
    EXPECT_EQ(Music.TrackIndex, 0);
}

TEST_F(SoundtrackTest, AnIndexOutsideTheListBeginsAnew)
{
    Music.TrackList = {"a.mp3", "b.mp3"};
    for (const std::int16_t index : {std::int16_t{32767}, std::int16_t{-32768}, std::int16_t{-2}, std::int16_t{2}})
    {
        Music.TrackIndex = index;
        EXPECT_TRUE(Next());
        EXPECT_EQ(Music.TrackIndex, 0);
    }
}

TEST_F(SoundtrackTest, OnlyTheEndOfAPlayedTrackMovesOn)
{
    Music.TrackList = {"a.mp3", "b.mp3"};
    for (const std::int32_t code : {0, 2, 4, 8, -1})
        EXPECT_FALSE(Next(code));
    for (const char* command : {"open", "close"})
    {
        Command(command);
        ThePlayer.Calls.clear();
        EXPECT_FALSE(Next()) << command;
        EXPECT_THAT(ThePlayer.Calls, IsEmpty());
        EXPECT_EQ(Music.Media.Command, command);
    }
    EXPECT_EQ(Music.TrackIndex, 0);
    Command("");
    EXPECT_THAT(ThePlayer.Calls, IsEmpty());
    EXPECT_TRUE(Next());
}

TEST_F(SoundtrackTest, AnEmptyListIsSilence)
{
    EXPECT_FALSE(Next());
    EXPECT_THAT(ThePlayer.Calls, ElementsAre("close"));
    EXPECT_EQ(Music.Media.Command, "close");
    EXPECT_EQ(Music.TrackIndex, 0);
}

TEST_F(SoundtrackTest, NotificationsOfAnEarlierPlayMeanNothing)
{
    Music.TrackList = {"a.mp3", "b.mp3", "c.mp3"};
    Next();
    Next();
    EXPECT_EQ(audio::NotifyCodeOf(Music, 1, 1), 0);
    EXPECT_EQ(audio::NotifyCodeOf(Music, 1, platform::MediaUnplayable), 0);
    EXPECT_EQ(Music.Unplayable, 0u);
    EXPECT_EQ(audio::NotifyCodeOf(Music, 2, 1), 1);
    EXPECT_EQ(audio::NotifyCodeOf(Music, 2, 4), 4);
}

// What the program makes of notifications.
struct Round : SoundtrackTest
{
    void Ends(std::int32_t code) { Next(audio::NotifyCodeOf(Music, Music.Media.Number, code)); }
    std::string Playing() const { return Music.Media.FileName; }
};

TEST_F(Round, UnplayableFilesArePassedOverOnceRoundTheList)
{
    Music.TrackList = {"a.mp3", "b.mp3", "c.mp3"};
    Next();
    for (const char* next : {"soundtracks\\c.mp3", "soundtracks\\a.mp3"})
    {
        Ends(platform::MediaUnplayable);
        EXPECT_EQ(Playing(), next);
    }
    const std::size_t calls = ThePlayer.Calls.size();
    Ends(platform::MediaUnplayable); // the third of three
    Ends(platform::MediaUnplayable);
    EXPECT_EQ(ThePlayer.Calls.size(), calls);
}

TEST_F(Round, ATrackThatPlaysBeginsANewRound)
{
    Music.TrackList = {"a.mp3", "b.mp3"};
    Next();
    for (int round = 0; round < 5; ++round)
    {
        EXPECT_EQ(Playing(), "soundtracks\\b.mp3");
        Ends(1);
        EXPECT_EQ(Playing(), "soundtracks\\a.mp3");
        Ends(platform::MediaUnplayable);
    }
}

TEST_F(Round, AnUnplayableFileAloneIsTriedOnce)
{
    Music.TrackList = {"a.mp3"};
    Next();
    Ends(platform::MediaUnplayable);
    EXPECT_THAT(ThePlayer.Calls, ElementsAre("close", "open a.mp3", "play 1"));
}
}
