// SPDX-License-Identifier: Zlib
#include "platform/sdl/FfmpegWebcam.h"

#include "platform/sdl/FramePicture.h"
#include "platform/Worker.h"

#include <atomic>
#include <chrono>

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavdevice/avdevice.h>
#include <libavformat/avformat.h>
}

namespace sdl
{
namespace
{
using Clock = platform::Worker::Clock;

constexpr const char* DeviceFormat = "v4l2";
constexpr const char* WantedSize = "320x240"; // a device takes the nearest it has
constexpr auto Pause = std::chrono::milliseconds(5);

struct Closer
{
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVDeviceInfoList* list) const { avdevice_free_list_devices(&list); }
};
template <class T> using Owned = std::unique_ptr<T, Closer>;

Owned<AVDeviceInfoList> ListDevices()
{
    AVDeviceInfoList* list = nullptr;
    const AVInputFormat* format = av_find_input_format(DeviceFormat);
    if (format == nullptr || avdevice_list_input_sources(format, nullptr, nullptr, &list) < 0)
        return nullptr;
    return Owned<AVDeviceInfoList>(list);
}

Owned<AVFormatContext> OpenInput(const WebcamSource& source, const char* size)
{
    const AVInputFormat* format = source.Format.empty() ? nullptr : av_find_input_format(source.Format.c_str());
    AVFormatContext* context = avformat_alloc_context();
    if (context == nullptr)
        return nullptr;
    context->flags |= AVFMT_FLAG_NONBLOCK; // a device that is silent must not hold up closing it
    AVDictionary* options = nullptr;
    if (size != nullptr)
        av_dict_set(&options, "video_size", size, 0);
    const int result = avformat_open_input(&context, source.Url.c_str(), format, &options); // frees it on failure
    av_dict_free(&options);
    return Owned<AVFormatContext>(result < 0 ? nullptr : context);
}
}

// An open source: a thread of its own decodes what comes, so that a requested frame is a fresh one.
class FfmpegWebcam::Stream
{
public:
    Stream(const platform::CaptureParams& params, bool paced) : Picture(params), IsPaced(paced) {}

    bool Start(Owned<AVFormatContext> input)
    {
        Input = std::move(input);
        if (Input == nullptr || !FindVideo() || !OpenDecoder())
            return false;
        Packet.reset(av_packet_alloc());
        Frame.reset(av_frame_alloc());
        if (Packet == nullptr || Frame == nullptr)
            return false;
        Decoding.Start([this] { Work(); });
        return true;
    }

    void RequestFrame() { Request.store(Wanted, std::memory_order_release); }
    bool IsDone() const { return Request.load(std::memory_order_acquire) == Done; }

private:
    enum RequestState
    {
        Nothing,
        Wanted,
        Done
    };

    bool FindVideo()
    {
        if (Input->nb_streams == 0 || Input->streams[0]->codecpar->width <= 0)
            if (avformat_find_stream_info(Input.get(), nullptr) < 0)
                return false;
        Video = av_find_best_stream(Input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
        return Video >= 0;
    }

    const AVStream& VideoStream() const { return *Input->streams[Video]; }

    bool OpenDecoder()
    {
        const AVCodec* codec = avcodec_find_decoder(VideoStream().codecpar->codec_id);
        Decoder.reset(codec == nullptr ? nullptr : avcodec_alloc_context3(codec));
        return Decoder != nullptr && avcodec_parameters_to_context(Decoder.get(), VideoStream().codecpar) >= 0 &&
               avcodec_open2(Decoder.get(), codec, nullptr) >= 0;
    }

    // Ends where the source ends: unplugged, or a film that is over. The last picture stays.
    void Work()
    {
        Begun = Clock::now();
        while (!Decoding.IsStopped())
        {
            const int result = av_read_frame(Input.get(), Packet.get());
            if (result == AVERROR(EAGAIN))
                Decoding.SleepUntil(Clock::now() + Pause);
            else if (result < 0)
                return;
            else
                Decode();
            av_packet_unref(Packet.get());
        }
    }

    void Decode()
    {
        if (Packet->stream_index != Video || avcodec_send_packet(Decoder.get(), Packet.get()) < 0)
            return;
        while (!Decoding.IsStopped() && avcodec_receive_frame(Decoder.get(), Frame.get()) >= 0)
        {
            if (IsPaced)
                WaitForItsTime();
            if (Request.load(std::memory_order_acquire) == Wanted && Picture.Take(*Frame))
                Request.store(Done, std::memory_order_release);
        }
    }

    void WaitForItsTime()
    {
        if (Frame->best_effort_timestamp == AV_NOPTS_VALUE)
        {
            Decoding.SleepUntil(Clock::now() + 8 * Pause);
            return;
        }
        const double seconds = static_cast<double>(Frame->best_effort_timestamp) * av_q2d(VideoStream().time_base);
        Decoding.SleepUntil(Begun +
                            std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds)));
    }

    FramePicture Picture;
    bool IsPaced;
    Owned<AVFormatContext> Input;
    Owned<AVCodecContext> Decoder;
    Owned<AVPacket> Packet;
    Owned<AVFrame> Frame;
    int Video = -1; // index of the video stream
    Clock::time_point Begun;
    std::atomic<RequestState> Request = Nothing;
    platform::Worker Decoding; // ends before everything above it
};

FfmpegWebcam::FfmpegWebcam(WebcamSource source) : Source(std::move(source))
{
    av_log_set_level(AV_LOG_FATAL);
    avdevice_register_all();
}

FfmpegWebcam::~FfmpegWebcam() = default;

std::int32_t FfmpegWebcam::SetupCapture()
{
    if (!Source.Url.empty())
        return 1;
    const Owned<AVDeviceInfoList> devices = ListDevices();
    return devices == nullptr ? 0 : devices->nb_devices;
}

bool FfmpegWebcam::InitCapture(const platform::CaptureParams& params)
{
    Open.reset();
    WebcamSource source = Source;
    const bool isDevice = source.Url.empty();
    if (isDevice)
    {
        const Owned<AVDeviceInfoList> devices = ListDevices();
        if (devices == nullptr || devices->nb_devices == 0)
            return false;
        source = {DeviceFormat, devices->devices[0]->device_name};
    }
    Owned<AVFormatContext> input = isDevice ? OpenInput(source, WantedSize) : nullptr;
    if (input == nullptr)
        input = OpenInput(source, nullptr);
    auto stream = std::make_unique<Stream>(params, !isDevice);
    if (!stream->Start(std::move(input)))
        return false;
    Open = std::move(stream);
    return true;
}

void FfmpegWebcam::DoCapture()
{
    if (Open)
        Open->RequestFrame();
}

bool FfmpegWebcam::IsCaptureDone()
{
    return Open && Open->IsDone();
}

void FfmpegWebcam::DeinitCapture()
{
    Open.reset();
}
}
