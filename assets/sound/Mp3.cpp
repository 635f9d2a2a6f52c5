// SPDX-License-Identifier: Zlib
#include "assets/sound/Mp3.h"

#include "assets/common/Output.h"

#include <lame/lame.h>

#include <memory>
#include <stdexcept>

namespace assets::sound
{
namespace
{
using Bytes = std::vector<std::uint8_t>;

struct Close
{
    void operator()(lame_global_flags* encoder) const { lame_close(encoder); }
};
using Encoder = std::unique_ptr<lame_global_flags, Close>;

Encoder Open(const Tags& tags)
{
    Encoder encoder(lame_init());
    if (!encoder)
        throw std::runtime_error("the MP3 encoder does not start");
    lame_set_in_samplerate(encoder.get(), Rate);
    lame_set_num_channels(encoder.get(), 2);
    lame_set_mode(encoder.get(), JOINT_STEREO);
    lame_set_brate(encoder.get(), 192);
    lame_set_quality(encoder.get(), 2);
    // No frame in front that tells the length: at a constant bit rate the file's size does, and players that do not
    // know such a frame play it as 26 ms of silence before the first beat.
    lame_set_bWriteVbrTag(encoder.get(), 0);
    id3tag_init(encoder.get());
    id3tag_v2_only(encoder.get());
    id3tag_set_title(encoder.get(), tags.Title.c_str());
    id3tag_set_artist(encoder.get(), tags.Artist.c_str());
    id3tag_set_album(encoder.get(), tags.Album.c_str());
    id3tag_set_track(encoder.get(), std::to_string(tags.Number).c_str());
    lame_set_write_id3tag_automatic(encoder.get(), 0);
    if (lame_init_params(encoder.get()) < 0)
        throw std::runtime_error("the MP3 encoder does not take its settings");
    return encoder;
}

Bytes TagOf(lame_global_flags* encoder)
{
    Bytes tag(lame_get_id3v2_tag(encoder, nullptr, 0));
    lame_get_id3v2_tag(encoder, tag.data(), tag.size());
    return tag;
}

Bytes Encode(lame_global_flags* encoder, const Stereo& sound)
{
    constexpr std::size_t Most = 32768; // frames at a time
    Bytes stream, piece(Most * 5 / 4 + 7200);
    const auto keep = [&](int count)
    {
        if (count < 0)
            throw std::runtime_error("the MP3 encoder fails");
        stream.insert(stream.end(), piece.begin(), piece.begin() + count);
    };
    for (std::size_t at = 0; at < sound.Size(); at += Most)
    {
        const int count = static_cast<int>(std::min(Most, sound.Size() - at));
        keep(lame_encode_buffer_ieee_float(encoder, sound.Left.data() + at, sound.Right.data() + at, count,
                                           piece.data(), static_cast<int>(piece.size())));
    }
    keep(lame_encode_flush(encoder, piece.data(), static_cast<int>(piece.size())));
    return stream;
}
}

void WriteMp3(const std::string& path, const Stereo& sound, const Tags& tags)
{
    const Encoder encoder = Open(tags);
    Bytes file = TagOf(encoder.get());
    const Bytes stream = Encode(encoder.get(), sound);
    file.insert(file.end(), stream.begin(), stream.end());
    WriteBytes(path, file);
}
}
