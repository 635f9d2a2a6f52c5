// SPDX-License-Identifier: Zlib
#include "audio/Soundtrack.h"

#include "base/Text.h"

#include <algorithm>
#include <tuple>

namespace audio
{
namespace
{
// "*" stands for any letters, "?" for one. Steps back to the last "*" alone, so never slower than length times length.
bool Matches(std::string_view name, std::string_view pattern)
{
    std::size_t n = 0, p = 0, star = std::string_view::npos, resume = 0;
    while (n < name.size())
    {
        if (p < pattern.size() && pattern[p] == '*')
        {
            star = p++;
            resume = n;
        }
        else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n]))
        {
            ++n;
            ++p;
        }
        else if (star != std::string_view::npos)
        {
            p = star + 1;
            n = ++resume;
        }
        else
            return false;
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

// A name beside its form for comparing.
struct Entry
{
    std::string Lower, Name;
    bool operator<(const Entry& other) const { return std::tie(Lower, Name) < std::tie(other.Lower, other.Name); }
};

std::vector<Entry> SortedNames(const base::Files& files, std::string_view folder)
{
    std::vector<Entry> entries;
    for (std::string& name : files.Names(folder))
        entries.push_back({base::LowerAscii(name), std::move(name)});
    std::sort(entries.begin(), entries.end());
    return entries;
}
}

std::int32_t ListFiles(const base::Files& files, std::string_view folder, std::string_view patterns,
                       std::vector<std::string>& list)
{
    const std::vector<Entry> entries = SortedNames(files, folder);
    std::size_t count = 0;
    list.assign(1, {});
    for (std::size_t at = 0; at <= patterns.size();)
    {
        const std::size_t end = std::min(patterns.find('|', at), patterns.size());
        const std::string pattern = base::LowerAscii(patterns.substr(at, end - at));
        for (const Entry& entry : entries)
            if (count < MostFiles && Matches(entry.Lower, pattern))
            {
                list.resize(++count);
                list.back() = entry.Name;
            }
        at = end + 1;
    }
    return static_cast<std::int32_t>(count);
}

std::string_view StripExtension(std::string_view name)
{
    return name.substr(0, name.rfind('.'));
}

void SetCommand(MediaControl& media, platform::MusicPlayer& player, const base::Files& files, const char* command)
{
    media.Command = command;
    if (media.Command == "open")
        player.Open(files.Resolve(media.FileName));
    else if (media.Command == "play")
        player.Play(++media.Number);
    else if (media.Command == "close")
        player.Close();
}

bool NextTrack(Soundtrack& soundtrack, platform::MusicPlayer& player, const base::Files& files, std::int32_t notifyCode)
{
    MediaControl& media = soundtrack.Media;
    if (notifyCode != platform::MediaSuccessful || media.Command == "open" || media.Command == "close")
        return false;
    SetCommand(media, player, files, "close");
    const std::size_t count = soundtrack.TrackList.size();
    const std::int32_t next = std::int32_t{soundtrack.TrackIndex} + 1;
    soundtrack.TrackIndex =
        next > 0 && static_cast<std::size_t>(next) < count ? static_cast<std::int16_t>(next) : std::int16_t{0};
    const std::string& name = soundtrack.TrackList[static_cast<std::size_t>(soundtrack.TrackIndex)];
    if (name.empty())
        return false;
    media.FileName = SoundtrackFolder + name;
    SetCommand(media, player, files, "open");
    SetCommand(media, player, files, "play");
    return true;
}

std::int32_t NotifyCodeOf(Soundtrack& soundtrack, std::uint32_t number, std::int32_t code)
{
    if (number != soundtrack.Media.Number)
        return 0;
    if (code != platform::MediaUnplayable)
    {
        soundtrack.Unplayable = 0;
        return code;
    }
    return ++soundtrack.Unplayable < soundtrack.TrackList.size() ? platform::MediaSuccessful : 0;
}
}
