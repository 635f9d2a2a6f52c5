// SPDX-License-Identifier: Zlib
// The script plays the part of the webcam.
#include "tools/drive/Session.h"
#include "webcam/Capture.h"

#include <array>
#include <vector>

namespace drive
{
namespace
{
constexpr std::int32_t MostDevices = 100;

struct Silence final : base::MessageSink
{
    void ShowMessage(base::Icon, const std::string&, const std::string&) override {}
};

void CaptureDevices(Session& session, Words& words, Object&)
{
    Require(Word(words, "devices") == "devices", "it is capture devices N");
    Require(!session.Application, "the game is loaded already");
    const auto number = Number<std::int32_t>(words, "the number of devices", 0, MostDevices);
    RequireEnd(words);
    session.Machine.TheWebcam.Devices = number;
}

// The picture as a device delivers it: 4 bytes a pixel, the top row first.
std::vector<std::uint8_t> ReadFrame(const std::string& path)
{
    render::PicInfo info;
    render::PicArray2D pixels;
    Silence silence;
    Require(render::LoadPicArray2D(silence, base::Files("."), path, info, pixels) &&
                info.Width == webcam::CaptureWidth && info.Height == webcam::CaptureHeight && info.BitCount == 24,
            "the file is no 24-bit bitmap of 107 x 80 pixels");
    std::vector<std::uint8_t> frame;
    frame.reserve(static_cast<std::size_t>(info.Width) * static_cast<std::size_t>(info.Height) * 4);
    for (std::int32_t row = info.Height; row-- > 0;)
        for (std::int32_t x = 0; x < info.Width; ++x)
        {
            const std::uint8_t* pixel = pixels.Row(row) + 3 * x;
            frame.insert(frame.end(), {pixel[0], pixel[1], pixel[2], 0});
        }
    return frame;
}

void Webcam(Session& session, Words& words, Object& answer)
{
    const std::string_view what = Word(words, "frame or fail");
    Require(what == "frame" || what == "fail", "it is webcam frame FILE or webcam fail");
    if (what == "fail")
    {
        RequireEnd(words);
        session.Machine.TheWebcam.Fails = true;
        return;
    }
    const std::string name(Word(words, "the name of a file"));
    RequireEnd(words);
    answer.Raw("taken", session.Machine.TheWebcam.Complete(ReadFrame(name)) ? "true" : "false");
}
}

std::span<const Command> WebcamCommands()
{
    static constexpr std::array commands = {
        Command{"capture", false, CaptureDevices},
        Command{"webcam", false, Webcam},
    };
    return commands;
}
}
