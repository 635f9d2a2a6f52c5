// audio/WaveOut.h: the calls to the wave device, each reporting its own failure as "Errore CODE in CALL". A call that
// fails stops nothing: the loops go on with the next buffer.
#pragma once
#include "audio/EngineSound.h"
#include "base/Trapped.h"

namespace audio
{
// What the calls act on and report to.
struct Stream
{
    EngineSound& Engine;
    platform::WaveOut& Device;
    base::MessageSink& Messages;
};

void WaveOutOpen(Stream& stream); // the handle is NoWave after a failure
void WaveOutPrepareHeader(Stream& stream);
void WaveOutWrite(Stream& stream); // queues all four, as they are
void WaveOutReset(Stream& stream);
void WaveOutUnprepareHeader(Stream& stream);
void WaveOutClose(Stream& stream); // the handle is NoWave afterwards, closed or not

// The race begins, the race ends: the calls above in their order, where the device is closed, or open.
void StartStream(Stream& stream);
void StopStream(Stream& stream);

// A buffer has come back: while the device is open it is filled and queued again.
void EngineWndProc(Stream& stream, std::int32_t bufferIndex);
}
