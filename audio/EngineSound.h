// SPDX-License-Identifier: Zlib
// audio/EngineSound.h: the engine's sound, made from a short recorded loop: the step through the loop is the pitch, the
// gain the loudness. Four buffers of 16-bit stereo at 11025 Hz go round between here and the wave device: WaveOut.h
// hands them over, this fills them. Everything runs on the window's thread.
//
// The law of the sound, from the speed of a car in world units a tick, negative backwards:
//     Step = the note of its gear (world::EngineNote), 0.2 at rest, in source samples a frame
//     Gain = (|speed| + 5) x factor, rounded to the nearest whole number, halves to the even one
#pragma once
#include "base/Fields.h"
#include "base/Files.h"
#include "platform/Sound.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace audio
{
inline constexpr std::int32_t LoopLength = 1024;                 // source samples
inline constexpr std::int32_t BufferCount = 4;                   // told apart as 0 to 3
inline constexpr std::int32_t FramesPerBuffer = 512;             // 46 milliseconds
inline constexpr std::int32_t BufferBytes = FramesPerBuffer * 4; // left and right, low byte first
inline constexpr platform::WaveFormat StreamFormat = {2, 11025, 16};

// Pitch and gain last until they are set again: a buffer takes those of the moment when it is filled.
struct EngineSound
{
    // -128 to 127. Only the loop is ever played, so only the loop is kept; a shorter file ends in silence.
    std::array<std::int16_t, LoopLength> Table{};
    float ReadPosition = 0; // in the table, 0 to 1023; goes on from race to race
    float Step = 0;         // source samples a frame, 0.2 to about 1 in a race; any other is played as it stands
    std::int16_t Gain = 0;  // what each sample is multiplied by; beyond 255 loud samples wrap
    platform::WaveHandle Handle = platform::NoWave; // of the device while a race sounds; WaveOut.h opens and closes it
    // One after another, as the device plays them. A queued one is the device's to read: it must not move.
    std::array<std::uint8_t, BufferCount * BufferBytes> Buffers{};
};

// The first LoopLength bytes of a headerless file of unsigned 8-bit samples. RuntimeError where it cannot be read; the
// table is as before then.
void LoadSample(EngineSound& engine, const base::Files& files, std::string_view path);

// Sets pitch and gain by the law above. note: of the gear at that speed. factor: of the loudness, 25 at first and 500
// to 2500 as the player chooses it. A gain that 16 bits cannot hold, or that is no number, keeps its former value;
// the pitch follows all the same.
void SetSpeed(EngineSound& engine, double note, float speed, std::int16_t factor);

// Makes the next 512 frames into buffer 0 to 3 and moves the read position on. Another index does nothing.
void FillEngineBuffer(EngineSound& engine, std::int32_t bufferIndex);
// The bytes of buffer 0 to 3 as the device takes them; borrowed from the engine.
platform::WaveHeader HeaderOf(const EngineSound& engine, std::int32_t bufferIndex);
}

template <> struct base::FieldsOf<audio::EngineSound>
{
    using E = audio::EngineSound;
    static constexpr auto Table =
        std::make_tuple(Field{"Step", &E::Step}, Field{"Gain", &E::Gain}, Field{"ReadPosition", &E::ReadPosition});
};
