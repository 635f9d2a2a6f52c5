// SPDX-License-Identifier: Zlib
// A refill takes no memory.
#include "audio/WaveOut.h"
#include "tests/support/Allocations.h"
#include "tests/support/Messages.h"

#include <gtest/gtest.h>

namespace
{
struct Accepting final : platform::WaveOut
{
    bool Notify(bool) override { return true; }
    std::int32_t Open(platform::WaveHandle& handle, const platform::WaveFormat&) override { return handle = 0; }
    std::int32_t PrepareHeader(platform::WaveHandle, const platform::WaveHeader&) override { return 0; }
    std::int32_t Write(platform::WaveHandle, const platform::WaveHeader&) override { return 0; }
    std::int32_t Reset(platform::WaveHandle) override { return 0; }
    std::int32_t UnprepareHeader(platform::WaveHandle, const platform::WaveHeader&) override { return 0; }
    std::int32_t Close(platform::WaveHandle) override { return 0; }
};

TEST(Allocation, NoneInARefill)
{
    audio::EngineSound engine;
    engine.Table.fill(100);
    engine.Step = 0.4f;
    engine.Gain = 20;
    Accepting device;
    support::Messages messages;
    audio::Stream stream{engine, device, messages};
    audio::StartStream(stream);
    const std::size_t before = support::Allocations();
    for (int k = 0; k < 400; ++k)
        audio::EngineWndProc(stream, k % 4);
    EXPECT_EQ(support::Allocations() - before, 0u);
    EXPECT_EQ(engine.Buffers[0], 2000 & 0xFF);
    EXPECT_EQ(engine.Buffers[1], 2000 >> 8);
}
}
