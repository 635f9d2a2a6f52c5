// SPDX-License-Identifier: Zlib
// audio/WaveOut.h: the calls to the wave device, each reporting its own failure as a critical box "Errore CODE in
// CALL", title "Errore"; those that go over the four buffers as "CALL(0)" to "CALL(3)". A call that fails stops
// nothing: the loops go on with the next buffer. Codes are those of platform/Sound.h. Runs on the window's thread; a
// box is answered before the call returns.
#pragma once
#include "audio/EngineSound.h"
#include "base/Trapped.h"

namespace audio
{
// What the calls act on and report to; borrowed for the call.
struct Stream
{
    EngineSound& Engine; // its handle says whether the device is open
    platform::WaveOut& Device;
    base::MessageSink& Messages;
};

void WaveOutOpen(Stream& stream);            // the handle is NoWave after a failure
void WaveOutPrepareHeader(Stream& stream);   // all four
void WaveOutWrite(Stream& stream);           // queues all four, as they are
void WaveOutReset(Stream& stream);           // stops; what is queued comes back, and is not filled once it is closed
void WaveOutUnprepareHeader(Stream& stream); // all four
void WaveOutClose(Stream& stream);           // the handle is NoWave afterwards, closed or not

// The race begins: open, prepare, write. Nothing where the device is open already.
void StartStream(Stream& stream);
// The race ends or is suspended: reset, unprepare, close. Nothing where it is closed.
void StopStream(Stream& stream);

// Buffer 0 to 3 has come back: while the device is open it is filled and queued again. No window procedure, for all its
// name: whoever is notified of the buffer calls it.
void EngineWndProc(Stream& stream, std::int32_t bufferIndex);
}
