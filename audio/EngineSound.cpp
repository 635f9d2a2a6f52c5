// SPDX-License-Identifier: Zlib
#include "audio/EngineSound.h"

#include "base/Numbers.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace audio
{
namespace
{
constexpr float LoopEnd = 1023.0f;
constexpr double IdleSpeed = 5.0; // added to every speed, so that an engine at rest is heard

// Silence outside the table, where only a read position set by hand can lie.
std::int16_t SampleAt(const EngineSound& engine, float position)
{
    const std::int32_t index = base::RoundEven(position);
    return index >= 0 && index < LoopLength ? engine.Table[static_cast<std::size_t>(index)] : std::int16_t{0};
}

void PutLittle(std::uint8_t* at, std::int16_t value)
{
    const auto bits = static_cast<std::uint16_t>(value);
    at[0] = static_cast<std::uint8_t>(bits & 0xFF);
    at[1] = static_cast<std::uint8_t>(bits >> 8);
}
}

void LoadSample(EngineSound& engine, const base::Files& files, std::string_view path)
{
    const std::string bytes = files.Read(path);
    engine.Table.fill(0);
    const std::size_t count = std::min(bytes.size(), engine.Table.size());
    for (std::size_t i = 0; i < count; ++i)
        engine.Table[i] = static_cast<std::int16_t>(static_cast<std::uint8_t>(bytes[i]) - 128);
}

void SetSpeed(EngineSound& engine, double note, float speed, std::int16_t factor)
{
    engine.Step = static_cast<float>(note);
    const std::int32_t gain = base::RoundEven((std::fabs(speed) + IdleSpeed) * factor);
    if (base::Wrap16(gain) == gain)
        engine.Gain = static_cast<std::int16_t>(gain);
}

void FillEngineBuffer(EngineSound& engine, std::int32_t bufferIndex)
{
    if (bufferIndex < 0 || bufferIndex >= BufferCount)
        return;
    std::uint8_t* frame = engine.Buffers.data() + static_cast<std::ptrdiff_t>(bufferIndex) * BufferBytes;
    for (std::int32_t j = 0; j < FramesPerBuffer; ++j, frame += 4)
    {
        const std::int16_t sample = SampleAt(engine, engine.ReadPosition);
        // Deliberate: past the end the position becomes 0, whatever it was too far. (A position that is no number
        // begins anew as well.)
        const float next = engine.ReadPosition + engine.Step;
        engine.ReadPosition = next <= LoopEnd ? next : 0.0f;
        // Deliberate: a product beyond 16 bits wraps; a loud engine distorts.
        const std::int16_t value = base::Wrap16(std::int32_t{sample} * engine.Gain);
        PutLittle(frame, value);
        PutLittle(frame + 2, value);
    }
}

platform::WaveHeader HeaderOf(const EngineSound& engine, std::int32_t bufferIndex)
{
    const std::span<const std::uint8_t> all = engine.Buffers;
    return {all.subspan(static_cast<std::size_t>(bufferIndex) * BufferBytes, BufferBytes), bufferIndex};
}
}
