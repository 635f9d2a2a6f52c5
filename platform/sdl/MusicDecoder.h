// SPDX-License-Identifier: Zlib
// platform/sdl/MusicDecoder.h: a music file as stereo samples, through FFmpeg's libraries. MP3 and Windows Media alone,
// from a file alone, whatever a file says it is. Belongs to one thread.
#pragma once
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;
struct SwrContext;

namespace sdl
{
class MusicDecoder
{
public:
    static constexpr int Rate = 44100;   // frames a second
    static constexpr int FrameBytes = 4; // two signed 16-bit samples of the machine's byte order

    // Reading ends early once `giveUp` is true; it outlives the decoder.
    explicit MusicDecoder(const std::atomic<bool>& giveUp) : GiveUp(giveUp) {}
    ~MusicDecoder();
    MusicDecoder(const MusicDecoder&) = delete;
    MusicDecoder& operator=(const MusicDecoder&) = delete;

    // False where the file holds no music that can be decoded.
    bool Open(const std::filesystem::path& file);
    // The next whole frames, valid until the next call; none at the end. What is damaged is left out.
    std::span<const std::uint8_t> Read();

private:
    struct FormatDeleter
    {
        void operator()(AVFormatContext* format) const;
    };
    struct CodecDeleter
    {
        void operator()(AVCodecContext* codec) const;
    };
    struct ResamplerDeleter
    {
        void operator()(SwrContext* resampler) const;
    };
    struct FrameDeleter
    {
        void operator()(AVFrame* frame) const;
    };
    struct PacketDeleter
    {
        void operator()(AVPacket* packet) const;
    };

    bool OpenFormat(const std::filesystem::path& file);
    bool OpenCodec();
    bool NextFrame(); // false at the end
    bool FeedCodec(); // one packet, or the end
    bool SetUpFor(const AVFrame& frame);
    bool Resample(const AVFrame* frame); // null: what the resampler still holds

    const std::atomic<bool>& GiveUp;
    std::unique_ptr<AVFormatContext, FormatDeleter> Format;
    std::unique_ptr<AVCodecContext, CodecDeleter> Codec;
    std::unique_ptr<SwrContext, ResamplerDeleter> Resampler;
    std::unique_ptr<AVFrame, FrameDeleter> Frame;
    std::unique_ptr<AVPacket, PacketDeleter> Packet;
    int Stream = -1;
    int InRate = 0, InChannels = 0, InFormat = -1; // what the resampler was made for
    bool Drained = false;                          // the codec knows of the end
    std::vector<std::uint8_t> Out;
};
}
