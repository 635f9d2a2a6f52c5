// SPDX-License-Identifier: Zlib
// audio/Soundtrack.h: the music: the files of a folder, played one after another and round again through the media
// control. The player works on its own and reports the end of a track by a MediaDone event; what such an event means is
// decided here. Loudness is the file's own. Paths are written as the game writes them, with backslashes, relative to
// the program's folder. Everything runs on the window's thread.
#pragma once
#include "base/Fields.h"
#include "base/Files.h"
#include "base/Numbers.h"
#include "platform/Sound.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace audio
{
inline constexpr const char* SoundtrackFolder = "soundtracks\\";
inline constexpr const char* SoundtrackPatterns = "*.mp3|*.wma";

// The last command to the player of music files, and on what.
struct MediaControl
{
    std::string Command;      // "open", "play", "close", or "" for none
    std::string FileName;     // what "open" opens
    std::uint32_t Number = 0; // of the last "play", from 1: tells its notification from those of earlier ones
};

struct Soundtrack
{
    std::vector<std::string> TrackList = {""}; // never empty; one empty name where there is no file
    std::int16_t TrackIndex = 0;               // in the list: last played; at first drawn by lot
    base::Flag MusicOn = base::False;          // the player's choice
    std::size_t Unplayable = 0;                // files passed over in a row, since a track last ended by itself
    MediaControl Media;
};

inline constexpr std::size_t MostFiles = 32767;

// Fills the list with the names in the folder that match the patterns ("*.mp3|*.wma"; "*" and "?" stand for other
// letters, case does not matter), pattern by pattern, each group by name. At least one element, empty where nothing
// matches; at most MostFiles. Returns their number. RuntimeError 75 where the folder cannot be read.
std::int32_t ListFiles(const base::Files& files, std::string_view folder, std::string_view patterns,
                       std::vector<std::string>& list);
// The name up to its last "."; the whole name where there is none.
std::string_view StripExtension(std::string_view name);

// "open" opens FileName, "play" plays it from its beginning, "close" closes it, "" does nothing; each becomes the last
// command. Returns at once: what cannot be played is reported by an event.
void SetCommand(MediaControl& media, platform::MusicPlayer& player, const base::Files& files, const char* command);

// A track has ended with that notification code, or is to be skipped (code 1): closes it and plays the next, after the
// last the first. False where nothing begins: another code, nothing that plays, or an empty list.
bool NextTrack(Soundtrack& soundtrack, platform::MusicPlayer& player, const base::Files& files,
               std::int32_t notifyCode);
// What a MediaDone event means as a notification code: 0 (none) where it belongs to an earlier play. A file that cannot
// be played counts as one that has ended, at most once round the list.
std::int32_t NotifyCodeOf(Soundtrack& soundtrack, std::uint32_t number, std::int32_t code);
}

template <> struct base::FieldsOf<audio::Soundtrack>
{
    using S = audio::Soundtrack;
    static constexpr auto Table = std::make_tuple(Field{"TrackList", &S::TrackList},
                                                  Field{"TrackIndex", &S::TrackIndex}, Field{"MusicOn", &S::MusicOn});
};
