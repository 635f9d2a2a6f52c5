// SPDX-License-Identifier: Zlib
#include "platform/sdl/MusicDecoder.h"

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
#include <libswresample/swresample.h>
}

#include <string>

namespace sdl
{
namespace
{
// A file may name other files, or call itself anything: nothing but these is let in.
constexpr const char* Protocols = "file";
constexpr const char* Formats = "mp3,asf";
constexpr const char* Codecs = "mp3float,mp3,wmav1,wmav2,wmapro,wmavoice,wmalossless";

// What the resampler is given: beyond it a small file could claim endless output.
constexpr int LeastRate = 4000, MostRate = 192000, MostChannels = 8;

int IsGivenUp(void* flag)
{
    return static_cast<const std::atomic<bool>*>(flag)->load() ? 1 : 0;
}
}

void MusicDecoder::FormatDeleter::operator()(AVFormatContext* format) const
{
    avformat_close_input(&format);
}
void MusicDecoder::CodecDeleter::operator()(AVCodecContext* codec) const
{
    avcodec_free_context(&codec);
}
void MusicDecoder::ResamplerDeleter::operator()(SwrContext* resampler) const
{
    swr_free(&resampler);
}
void MusicDecoder::FrameDeleter::operator()(AVFrame* frame) const
{
    av_frame_free(&frame);
}
void MusicDecoder::PacketDeleter::operator()(AVPacket* packet) const
{
    av_packet_free(&packet);
}

MusicDecoder::~MusicDecoder() = default;

bool MusicDecoder::Open(const std::filesystem::path& file)
{
    av_log_set_level(AV_LOG_FATAL);
    Frame.reset(av_frame_alloc());
    Packet.reset(av_packet_alloc());
    return Frame && Packet && OpenFormat(file) && OpenCodec();
}

bool MusicDecoder::OpenFormat(const std::filesystem::path& file)
{
    AVFormatContext* format = avformat_alloc_context();
    if (format == nullptr)
        return false;
    format->interrupt_callback = {IsGivenUp, const_cast<std::atomic<bool>*>(&GiveUp)};
    format->protocol_whitelist = av_strdup(Protocols);
    format->format_whitelist = av_strdup(Formats);
    format->codec_whitelist = av_strdup(Codecs);
    // Without the prefix a name with a colon would be taken for a protocol.
    const std::string name = "file:" + file.string();
    if (avformat_open_input(&format, name.c_str(), nullptr, nullptr) < 0)
        return false; // and has freed the context
    Format.reset(format);
    return avformat_find_stream_info(format, nullptr) >= 0;
}

bool MusicDecoder::OpenCodec()
{
    const AVCodec* codec = nullptr;
    Stream = av_find_best_stream(Format.get(), AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
    if (Stream < 0 || codec == nullptr)
        return false;
    for (unsigned i = 0; i < Format->nb_streams; ++i)
        if (static_cast<int>(i) != Stream)
            Format->streams[i]->discard = AVDISCARD_ALL;
    Codec.reset(avcodec_alloc_context3(codec));
    if (!Codec || avcodec_parameters_to_context(Codec.get(), Format->streams[Stream]->codecpar) < 0)
        return false;
    Codec->codec_whitelist = av_strdup(Codecs);
    Codec->thread_count = 1;
    return avcodec_open2(Codec.get(), codec, nullptr) >= 0;
}

bool MusicDecoder::FeedCodec()
{
    for (;;)
    {
        if (GiveUp)
            return false;
        if (av_read_frame(Format.get(), Packet.get()) < 0)
            break; // the end, or nothing more that can be read
        const bool wanted = Packet->stream_index == Stream;
        const int sent = wanted ? avcodec_send_packet(Codec.get(), Packet.get()) : -1;
        av_packet_unref(Packet.get());
        if (sent >= 0)
            return true;
    }
    if (Drained)
        return false;
    Drained = true;
    return avcodec_send_packet(Codec.get(), nullptr) >= 0;
}

bool MusicDecoder::NextFrame()
{
    for (;;)
    {
        const int got = avcodec_receive_frame(Codec.get(), Frame.get());
        if (got >= 0)
            return true;
        if (got == AVERROR_EOF || !FeedCodec())
            return false;
    }
}

// A file may change its format on the way.
bool MusicDecoder::SetUpFor(const AVFrame& frame)
{
    const int channels = frame.ch_layout.nb_channels;
    if (frame.sample_rate < LeastRate || frame.sample_rate > MostRate || channels < 1 || channels > MostChannels)
        return false;
    if (Resampler && frame.sample_rate == InRate && channels == InChannels && frame.format == InFormat)
        return true;
    AVChannelLayout stereo = {}, in = {};
    av_channel_layout_default(&stereo, 2);
    av_channel_layout_default(&in, channels);
    SwrContext* made = nullptr;
    const int code = swr_alloc_set_opts2(&made, &stereo, AV_SAMPLE_FMT_S16, Rate, &in,
                                         static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0, nullptr);
    Resampler.reset(made);
    av_channel_layout_uninit(&in);
    av_channel_layout_uninit(&stereo);
    if (code < 0 || swr_init(Resampler.get()) < 0)
    {
        Resampler.reset();
        return false;
    }
    InRate = frame.sample_rate;
    InChannels = channels;
    InFormat = frame.format;
    return true;
}

bool MusicDecoder::Resample(const AVFrame* frame)
{
    const int most = swr_get_out_samples(Resampler.get(), frame != nullptr ? frame->nb_samples : 0);
    if (most <= 0)
        return false;
    Out.resize(static_cast<std::size_t>(most) * FrameBytes);
    std::uint8_t* to[] = {Out.data()};
    const auto** from = frame != nullptr ? const_cast<const std::uint8_t**>(frame->extended_data) : nullptr;
    const int made = swr_convert(Resampler.get(), to, most, from, frame != nullptr ? frame->nb_samples : 0);
    Out.resize(made > 0 ? static_cast<std::size_t>(made) * FrameBytes : 0);
    return made > 0;
}

std::span<const std::uint8_t> MusicDecoder::Read()
{
    while (Codec && NextFrame())
    {
        const bool some = SetUpFor(*Frame) && Resample(Frame.get());
        av_frame_unref(Frame.get());
        if (some)
            return Out;
    }
    Codec.reset();
    if (Resampler && !GiveUp && Resample(nullptr))
    {
        Resampler.reset();
        return Out;
    }
    return {};
}
}
