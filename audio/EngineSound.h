// audio/EngineSound.h: the engine's sound, made from a short recorded loop: the step through the loop is the pitch, the
// gain the loudness. Four buffers of 16-bit stereo at 11025 Hz go round between here and the wave device. Everything
// runs on the window's thread.
#pragma once
#include "base/Fields.h"
#include "base/Files.h"
#include "platform/Sound.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace audio
{
inline constexpr std::int32_t LoopLength = 1024; // source samples
inline constexpr std::int32_t BufferCount = 4;
inline constexpr std::int32_t FramesPerBuffer = 512;
inline constexpr std::int32_t BufferBytes = FramesPerBuffer * 4;
inline constexpr platform::WaveFormat StreamFormat = {2, 11025, 16};

struct EngineSound
{
    // -128 to 127. Only the loop is ever played, so only the loop is kept; a shorter file ends in silence.
    std::array<std::int16_t, LoopLength> Table{};
    float ReadPosition = 0; // in the table; goes on from race to race
    float Step = 0;         // source samples a frame
    std::int16_t Gain = 0;  // what each sample is multiplied by
    platform::WaveHandle Handle = platform::NoWave;
    std::array<std::uint8_t, BufferCount * BufferBytes> Buffers{};
};

// The first LoopLength bytes of a headerless file of unsigned 8-bit samples. RuntimeError where it cannot be read.
void LoadSample(EngineSound& engine, const base::Files& files, std::string_view path);
// Makes the next 512 frames into buffer 0 to 3 and moves the read position on. Another index does nothing.
void FillEngineBuffer(EngineSound& engine, std::int32_t bufferIndex);
// The bytes of buffer 0 to 3 as the device takes them.
platform::WaveHeader HeaderOf(const EngineSound& engine, std::int32_t bufferIndex);
}

template <> struct base::FieldsOf<audio::EngineSound>
{
    using E = audio::EngineSound;
    static constexpr auto Table =
        std::make_tuple(Field{"Step", &E::Step}, Field{"Gain", &E::Gain}, Field{"ReadPosition", &E::ReadPosition});
};
