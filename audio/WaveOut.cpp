// SPDX-License-Identifier: Zlib
#include "audio/WaveOut.h"

#include <string>
#include <string_view>

namespace audio
{
namespace
{
using platform::NoWave;

void Report(Stream& stream, std::int32_t code, std::string_view call)
{
    if (code == platform::WaveSuccess)
        return;
    std::string text = "Errore " + std::to_string(code);
    text += " in ";
    text += call;
    stream.Messages.ShowMessage(base::Icon::Critical, "Errore", text);
}

void ReportOf(Stream& stream, std::int32_t code, std::string_view call, std::int32_t k)
{
    std::string text(call);
    text += '(';
    text += std::to_string(k);
    text += ')';
    Report(stream, code, text);
}

using HeaderCall = std::int32_t (platform::WaveOut::*)(platform::WaveHandle, const platform::WaveHeader&);

void ForEachBuffer(Stream& stream, HeaderCall call, const char* name)
{
    for (std::int32_t k = 0; k < BufferCount; ++k)
        ReportOf(stream, (stream.Device.*call)(stream.Engine.Handle, HeaderOf(stream.Engine, k)), name, k);
}
}

void WaveOutOpen(Stream& stream)
{
    const std::int32_t code = stream.Device.Open(stream.Engine.Handle, StreamFormat);
    if (code != platform::WaveSuccess)
        stream.Engine.Handle = NoWave;
    Report(stream, code, "WaveOutOpen");
}

void WaveOutPrepareHeader(Stream& stream)
{
    ForEachBuffer(stream, &platform::WaveOut::PrepareHeader, "WaveOutPrepareHeader");
}

void WaveOutWrite(Stream& stream)
{
    ForEachBuffer(stream, &platform::WaveOut::Write, "WaveOutWrite");
}

void WaveOutReset(Stream& stream)
{
    Report(stream, stream.Device.Reset(stream.Engine.Handle), "WaveOutReset");
}

void WaveOutUnprepareHeader(Stream& stream)
{
    ForEachBuffer(stream, &platform::WaveOut::UnprepareHeader, "WaveOutUnprepareHeader");
}

void WaveOutClose(Stream& stream)
{
    const std::int32_t code = stream.Device.Close(stream.Engine.Handle);
    stream.Engine.Handle = NoWave;
    Report(stream, code, "WaveOutClose");
}

void StartStream(Stream& stream)
{
    if (stream.Engine.Handle != NoWave)
        return;
    // Deliberate: after a failed open the buffers are prepared and queued all the same, each with its own message.
    WaveOutOpen(stream);
    WaveOutPrepareHeader(stream);
    WaveOutWrite(stream);
}

void StopStream(Stream& stream)
{
    if (stream.Engine.Handle == NoWave)
        return;
    WaveOutReset(stream);
    WaveOutUnprepareHeader(stream);
    WaveOutClose(stream);
}

void EngineWndProc(Stream& stream, std::int32_t bufferIndex)
{
    if (stream.Engine.Handle == NoWave || bufferIndex < 0 || bufferIndex >= BufferCount)
        return;
    FillEngineBuffer(stream.Engine, bufferIndex);
    // Deliberate: nobody asks whether this worked.
    stream.Device.Write(stream.Engine.Handle, HeaderOf(stream.Engine, bufferIndex));
}
}
