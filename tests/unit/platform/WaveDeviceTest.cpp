// SPDX-License-Identifier: Zlib
// The rules of the wave calls, on a device that only writes down what it is asked for.
#include "platform/WaveDevice.h"

#include <gmock/gmock.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

class Recorder final : public platform::WaveDevice
{
public:
    bool Notify(bool) override { return true; }

    std::vector<std::string> Calls;
    std::array<SlotState, platform::MostWaveBuffers> Slots;
    std::int32_t Code = platform::WaveSuccess; // of every call

    void Return(std::size_t slot) { Slots[slot].Queued = false; }
    std::vector<std::string> Take() { return std::exchange(Calls, {}); }

private:
    std::int32_t Record(std::string call)
    {
        Calls.push_back(std::move(call));
        return Code;
    }
    std::int32_t OpenDevice(const platform::WaveFormat& format) override
    {
        Slots = {};
        return Record("open " + std::to_string(format.Channels));
    }
    SlotState StateOf(std::size_t slot) const override { return Slots[slot]; }
    std::int32_t PrepareSlot(std::size_t slot, std::span<const std::uint8_t> data) override
    {
        Slots[slot].Prepared = true;
        return Record("prepare " + std::to_string(slot) + " of " + std::to_string(data.size()));
    }
    std::int32_t WriteSlot(std::size_t slot, std::span<const std::uint8_t> data) override
    {
        Slots[slot].Queued = true;
        return Record("write " + std::to_string(slot) + " of " + std::to_string(data.size()));
    }
    std::int32_t UnprepareSlot(std::size_t slot) override
    {
        Slots[slot].Prepared = false;
        return Record("unprepare " + std::to_string(slot));
    }
    std::int32_t ResetDevice() override
    {
        for (SlotState& slot : Slots)
            slot.Queued = false;
        return Record("reset");
    }
    std::int32_t CloseDevice() override { return Record("close"); }
};

struct WaveDevice : testing::Test
{
    Recorder Device;
    platform::WaveHandle Handle = platform::NoWave;
    std::array<std::uint8_t, 8> Bytes = {};

    platform::WaveHeader Header(std::int32_t user) const { return {Bytes, user}; }
    void Open()
    {
        ASSERT_EQ(Device.Open(Handle, {2, 11025, 16}), platform::WaveSuccess);
        Device.Calls.clear();
    }
};

TEST_F(WaveDevice, CallsInOrderReachTheDevice)
{
    EXPECT_EQ(Device.Open(Handle, {2, 11025, 16}), 0);
    EXPECT_EQ(Device.PrepareHeader(Handle, Header(3)), 0);
    EXPECT_EQ(Device.Write(Handle, Header(3)), 0);
    EXPECT_EQ(Device.Reset(Handle), 0);
    EXPECT_EQ(Device.UnprepareHeader(Handle, Header(3)), 0);
    EXPECT_EQ(Device.Close(Handle), 0);
    EXPECT_THAT(Device.Take(),
                ElementsAre("open 2", "prepare 3 of 8", "write 3 of 8", "reset", "unprepare 3", "close"));
}

TEST_F(WaveDevice, AHandleIsGoodWhileItIsOpenAndNeverAgain)
{
    for (const bool opened : {false, true})
    {
        if (opened)
        {
            Open();
            EXPECT_EQ(Device.Close(Handle), 0);
            Device.Calls.clear();
        }
        EXPECT_EQ(Device.PrepareHeader(Handle, Header(0)), platform::WaveInvalidHandle);
        EXPECT_EQ(Device.Write(Handle, Header(0)), platform::WaveInvalidHandle);
        EXPECT_EQ(Device.UnprepareHeader(Handle, Header(0)), platform::WaveInvalidHandle);
        EXPECT_EQ(Device.Reset(Handle), platform::WaveInvalidHandle);
        EXPECT_EQ(Device.Close(Handle), platform::WaveInvalidHandle);
        EXPECT_THAT(Device.Take(), IsEmpty());
    }
    const platform::WaveHandle former = Handle;
    Open();
    EXPECT_NE(Handle, former);
    EXPECT_EQ(Device.Reset(former), platform::WaveInvalidHandle);
}

TEST_F(WaveDevice, AnOpenThatFailsGivesNoHandle)
{
    Device.Code = platform::WaveBadDevice;
    EXPECT_EQ(Device.Open(Handle, {2, 11025, 16}), platform::WaveBadDevice);
    EXPECT_EQ(Handle, platform::NoWave);
    EXPECT_EQ(Device.Reset(Handle), platform::WaveInvalidHandle);
}

TEST_F(WaveDevice, BuffersHaveNumbersFromNothingUpToTheirMost)
{
    Open();
    for (const std::int32_t user : {-1, platform::MostWaveBuffers})
    {
        EXPECT_EQ(Device.PrepareHeader(Handle, Header(user)), platform::WaveInvalidParameter);
        EXPECT_EQ(Device.Write(Handle, Header(user)), platform::WaveInvalidParameter);
        EXPECT_EQ(Device.UnprepareHeader(Handle, Header(user)), platform::WaveInvalidParameter);
    }
    EXPECT_THAT(Device.Take(), IsEmpty());
    EXPECT_EQ(Device.PrepareHeader(Handle, Header(platform::MostWaveBuffers - 1)), 0);
}

TEST_F(WaveDevice, OnlyAPreparedBufferIsQueued)
{
    Open();
    EXPECT_EQ(Device.Write(Handle, Header(0)), platform::WaveUnprepared);
    EXPECT_THAT(Device.Take(), IsEmpty());
    EXPECT_EQ(Device.UnprepareHeader(Handle, Header(0)), 0); // does no harm
}

TEST_F(WaveDevice, AQueuedBufferIsLeftAloneUntilItComesBack)
{
    Open();
    EXPECT_EQ(Device.PrepareHeader(Handle, Header(1)), 0);
    EXPECT_EQ(Device.Write(Handle, Header(1)), 0);
    Device.Calls.clear();
    EXPECT_EQ(Device.PrepareHeader(Handle, Header(1)), platform::WaveStillPlaying);
    EXPECT_EQ(Device.Write(Handle, Header(1)), platform::WaveStillPlaying);
    EXPECT_EQ(Device.UnprepareHeader(Handle, Header(1)), platform::WaveStillPlaying);
    EXPECT_EQ(Device.Close(Handle), platform::WaveStillPlaying);
    EXPECT_THAT(Device.Take(), IsEmpty());
    Device.Return(1);
    EXPECT_EQ(Device.Write(Handle, Header(1)), 0);
    Device.Return(1);
    EXPECT_EQ(Device.Close(Handle), 0);
}

TEST_F(WaveDevice, ADeviceThatDoesNotCloseStaysOpen)
{
    Open();
    Device.Code = 7;
    EXPECT_EQ(Device.Close(Handle), 7);
    Device.Code = platform::WaveSuccess;
    EXPECT_EQ(Device.Reset(Handle), 0);
    EXPECT_EQ(Device.Close(Handle), 0);
}
}
