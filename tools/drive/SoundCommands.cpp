// SPDX-License-Identifier: Zlib
// The part of the sound devices: buffers that are finished, calls that fail, music that ends.
#include "tools/drive/Session.h"

#include <array>
#include <limits>

namespace drive
{
namespace
{
constexpr std::size_t ChunkBytes = 1u << 20; // kept until written to the file

constexpr std::int32_t LeastCode = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t MostCode = std::numeric_limits<std::int32_t>::max();

void FailCall(Session& session, Words& words)
{
    words.Next(); // "fail"
    const std::string call(Word(words, "the name of a call"));
    Require(headless::ScriptedCalls::IsCall(call), "there is no call of that name");
    const std::int32_t code = Number(words, "the code", LeastCode, MostCode);
    RequireEnd(words);
    session.Machine.Calls.ReturnNext(call, code);
}

// While it lives, what the game queues is kept.
struct Recording
{
    explicit Recording(headless::WaveOut& device) : Device(device)
    {
        Device.Written.clear();
        Device.Records = true;
    }
    ~Recording() { Device.Records = false; }
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    headless::WaveOut& Device;
};

void AppendBytes(Session& session, const std::string& name, std::string& bytes)
{
    Require(session.Writer(name, bytes, Writing::Append), "the file cannot be written");
    bytes.clear();
}

void Wave(Session& session, Words& words, Object& answer)
{
    if (Words ahead = words; ahead.Next() == "fail")
        return FailCall(session, words);
    const auto times = Number<std::uint32_t>(words, "the number of buffers", 0, session.Most.Buffers);
    const std::string name(Word(words, "the name of a file"));
    RequireEnd(words);
    Require(session.Form() != nullptr && session.Machine.Wave != nullptr, "the game is not loaded yet");

    Recording recording(*session.Machine.Wave);
    std::string& written = recording.Device.Written;
    AppendBytes(session, name, written); // a file that cannot be written changes nothing
    std::uint32_t played = 0;
    for (std::uint32_t i = 0; i < times && recording.Device.FinishBuffer(); ++i)
    {
        ++played;
        if (written.size() >= ChunkBytes)
            AppendBytes(session, name, written);
    }
    AppendBytes(session, name, written);
    AppendNumber(answer.Field("played"), played);
}

void Media(Session& session, Words& words, Object&)
{
    const std::string_view what = Word(words, "done or fail");
    Require(what == "done" || what == "fail", "the music is done, or fails");
    const std::int32_t code =
        what == "done" ? Number(words, "the code", 0, MostCode) : std::int32_t{platform::MediaUnplayable};
    RequireEnd(words);
    Require(session.Machine.Music != nullptr, "there is no music player");
    session.Machine.Music->Finish(code);
}
}

std::span<const Command> SoundCommands()
{
    static constexpr std::array commands = {
        Command{"wave", false, Wave},
        Command{"media", true, Media},
    };
    return commands;
}
}
