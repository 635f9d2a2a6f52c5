// SPDX-License-Identifier: Zlib
// tests/support/FourBuffers.h: a wave device's four buffers of 512 stereo frames, as the game queues them.
#pragma once
#include "platform/Sound.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace support
{
struct FourBuffers
{
    static constexpr platform::WaveFormat Format = {2, 11025, 16};
    platform::WaveHandle Handle = platform::NoWave;
    std::array<std::uint8_t, 4 * 2048> Bytes = {};

    platform::WaveHeader Header(std::int32_t user) const
    {
        return {std::span(Bytes).subspan(static_cast<std::size_t>(user) * 2048, 2048), user};
    }
    // Opens the device and queues all four.
    void Start(platform::WaveOut& wave)
    {
        ASSERT_TRUE(wave.Notify(true));
        ASSERT_EQ(wave.Open(Handle, Format), 0);
        for (const int k : {0, 1, 2, 3})
            EXPECT_EQ(wave.PrepareHeader(Handle, Header(k)), 0);
        for (const int k : {0, 1, 2, 3})
            EXPECT_EQ(wave.Write(Handle, Header(k)), 0);
    }
};
}
