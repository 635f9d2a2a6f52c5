// SPDX-License-Identifier: Zlib
#include "tests/support/MusicFile.h"

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/log.h>
}

#include <cmath>
#include <memory>

namespace support
{
namespace
{
struct Encoder
{
    AVFormatContext* Format = nullptr;
    AVCodecContext* Codec = nullptr;
    AVFrame* Frame = av_frame_alloc();
    AVPacket* Packet = av_packet_alloc();

    Encoder() = default;
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;
    ~Encoder()
    {
        av_packet_free(&Packet);
        av_frame_free(&Frame);
        avcodec_free_context(&Codec);
        if (Format != nullptr)
            avio_closep(&Format->pb);
        avformat_free_context(Format);
    }

    bool Open(const std::string& file, const Tone& tone)
    {
        if (avformat_alloc_output_context2(&Format, nullptr, nullptr, file.c_str()) < 0)
            return false;
        const bool wma = file.ends_with(".wma");
        const AVCodec* codec = avcodec_find_encoder(wma ? AV_CODEC_ID_WMAV2 : AV_CODEC_ID_MP3);
        AVStream* stream = codec != nullptr ? avformat_new_stream(Format, nullptr) : nullptr;
        if (stream == nullptr)
            return false;
        Codec = avcodec_alloc_context3(codec);
        Codec->sample_rate = tone.Rate;
        Codec->sample_fmt = AV_SAMPLE_FMT_FLTP;
        Codec->bit_rate = 96000;
        av_channel_layout_default(&Codec->ch_layout, tone.Channels);
        if ((Format->oformat->flags & AVFMT_GLOBALHEADER) != 0)
            Codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        if (avcodec_open2(Codec, codec, nullptr) < 0 || avcodec_parameters_from_context(stream->codecpar, Codec) < 0)
            return false;
        stream->time_base = {1, tone.Rate};
        return avio_open(&Format->pb, file.c_str(), AVIO_FLAG_WRITE) >= 0 &&
               avformat_write_header(Format, nullptr) >= 0;
    }

    bool Send(const AVFrame* frame)
    {
        if (avcodec_send_frame(Codec, frame) < 0)
            return false;
        while (avcodec_receive_packet(Codec, Packet) >= 0)
        {
            av_packet_rescale_ts(Packet, {1, Codec->sample_rate}, Format->streams[0]->time_base);
            if (av_interleaved_write_frame(Format, Packet) < 0)
                return false;
        }
        return true;
    }

    bool SendBlock(const Tone& tone, std::int64_t from, int count)
    {
        Frame->nb_samples = count;
        Frame->format = AV_SAMPLE_FMT_FLTP;
        Frame->sample_rate = tone.Rate;
        Frame->pts = from;
        av_channel_layout_copy(&Frame->ch_layout, &Codec->ch_layout);
        if (av_frame_get_buffer(Frame, 0) < 0)
            return false;
        for (int channel = 0; channel < tone.Channels; ++channel)
        {
            auto* samples = reinterpret_cast<float*>(Frame->extended_data[channel]);
            for (int i = 0; i < count; ++i)
                samples[i] = static_cast<float>(tone.Level * std::sin(2 * 3.14159265358979 * tone.Frequency *
                                                                      static_cast<double>(from + i) / tone.Rate));
        }
        const bool sent = Send(Frame);
        av_frame_unref(Frame);
        return sent;
    }
};
}

bool WriteTone(const std::filesystem::path& file, const Tone& tone)
{
    av_log_set_level(AV_LOG_ERROR);
    Encoder encoder;
    if (!encoder.Open(file.string(), tone))
        return false;
    const auto all = static_cast<std::int64_t>(std::llround(tone.Seconds * tone.Rate));
    const int block = encoder.Codec->frame_size > 0 ? encoder.Codec->frame_size : 1152;
    for (std::int64_t at = 0; at < all; at += block)
        if (!encoder.SendBlock(tone, at, static_cast<int>(std::min<std::int64_t>(block, all - at))))
            return false;
    return encoder.Send(nullptr) && av_write_trailer(encoder.Format) >= 0;
}
}
