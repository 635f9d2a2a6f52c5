// SPDX-License-Identifier: Zlib
// The wave device on real wave-out calls and a real window. Needs a sound device that keeps time.
#include "tests/support/FourBuffers.h"
#include "tests/support/WinDesktop.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

struct WinWaveOut : testing::Test, support::WinDesktop, support::FourBuffers
{
    void Stop()
    {
        EXPECT_EQ(Wave->Reset(Handle), 0);
        for (const int k : {0, 1, 2, 3})
            EXPECT_EQ(Wave->UnprepareHeader(Handle, Header(k)), 0);
        EXPECT_EQ(Wave->Close(Handle), 0);
    }
};

using WinWithoutSound = WinWaveOut;

TEST_F(WinWaveOut, BuffersComeBackInOrderAndGoRound)
{
    Heard.OnDone = [this](std::int32_t user) { EXPECT_EQ(Wave->Write(Handle, Header(user)), 0); };
    const auto begin = std::chrono::steady_clock::now();
    Start(*Wave);
    ASSERT_TRUE(Await([this] { return Heard.Done.size() >= 32; }));
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    for (std::size_t i = 0; i < 32; ++i)
        EXPECT_EQ(Heard.Done[i], static_cast<std::int32_t>(i % 4));
    EXPECT_GT(passed.count(), 32 * 512 / 11025.0 * 0.7); // not faster than the sound, but for what the device holds
    Heard.OnDone = [](std::int32_t) {};
    Stop();
}

TEST_F(WinWaveOut, AResetReturnsWhatIsQueuedWithLaterEvents)
{
    Start(*Wave);
    EXPECT_EQ(Wave->Close(Handle), platform::WaveStillPlaying);
    EXPECT_EQ(Wave->UnprepareHeader(Handle, Header(3)), platform::WaveStillPlaying);
    EXPECT_EQ(Wave->PrepareHeader(Handle, Header(3)), platform::WaveStillPlaying);
    EXPECT_EQ(Wave->Write(Handle, Header(3)), platform::WaveStillPlaying);
    Stop();
    EXPECT_THAT(Heard.Done, IsEmpty());
    Wait(100);
    EXPECT_THAT(Heard.Done, ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(Wave->Write(Handle, Header(0)), platform::WaveInvalidHandle);
}

TEST_F(WinWaveOut, WhatCameBackBeforeTheDeviceOpenedAgainIsNotTold)
{
    Start(*Wave);
    Stop();
    const platform::WaveHandle former = Handle;
    Start(*Wave);
    Pump();
    EXPECT_LT(Heard.Done.size(), 4u); // the messages of the first four are here; hardly a new one
    EXPECT_NE(Handle, former);
    EXPECT_EQ(Wave->Reset(former), platform::WaveInvalidHandle);
    ASSERT_TRUE(Await([this] { return Heard.Done.size() >= 4; }));
    Wait(300);
    EXPECT_THAT(Heard.Done, ElementsAre(0, 1, 2, 3));
    Stop();
}

TEST_F(WinWaveOut, ADeviceThatWouldNotCloseGivesWayToTheNext)
{
    Start(*Wave);
    EXPECT_EQ(Wave->Close(Handle), platform::WaveStillPlaying);
    Start(*Wave);
    Stop();
}

TEST_F(WinWaveOut, TheCallersBufferIsFreeAfterWrite)
{
    Start(*Wave);
    std::fill(Bytes.begin(), Bytes.end(), std::uint8_t{0xFF});
    EXPECT_EQ(Wave->Write(Handle, Header(0)), platform::WaveStillPlaying);
    ASSERT_TRUE(Await([this] { return Heard.Done.size() >= 4; }));
    EXPECT_EQ(Wave->Write(Handle, {std::span(Bytes).first(512), 2}), 0); // less than before
    EXPECT_EQ(Wave->Write(Handle, {Bytes, 1}), platform::WaveInvalidParameter);
    ASSERT_TRUE(Await([this] { return Heard.Done.size() >= 5; }));
    EXPECT_EQ(Heard.Done.back(), 2);
    Stop();
}

TEST_F(WinWaveOut, TheWindowsOwnProcedureHearsEverythingToo)
{
    const LONG_PTR own = GetWindowLongPtrA(Window, GWLP_WNDPROC);
    Start(*Wave);
    EXPECT_NE(GetWindowLongPtrA(Window, GWLP_WNDPROC), own);
    EXPECT_TRUE(Wave->Notify(true)); // again
    ASSERT_TRUE(Await([this] { return Heard.Done.size() >= 4; }));
    EXPECT_EQ(std::count(Messages.begin(), Messages.end(), MM_WOM_DONE), 4);
    EXPECT_EQ(SendMessageA(Window, WM_APP + 1, 0, 0), 0);
    EXPECT_EQ(Messages.back(), WM_APP + 1u);
    Stop();
    EXPECT_TRUE(Wave->Notify(false));
    EXPECT_EQ(GetWindowLongPtrA(Window, GWLP_WNDPROC), own);
}

TEST_F(WinWaveOut, TheProcedureIsGivenBackAtTheEnd)
{
    const LONG_PTR own = GetWindowLongPtrA(Window, GWLP_WNDPROC);
    Start(*Wave); // and never stopped
    Wave.reset();
    EXPECT_EQ(GetWindowLongPtrA(Window, GWLP_WNDPROC), own);
    Wait(100);
    EXPECT_THAT(Heard.Done, IsEmpty());
}

TEST_F(WinWaveOut, NobodyIsToldWithoutAskingForIt)
{
    Start(*Wave);
    EXPECT_TRUE(Wave->Notify(false));
    Stop();
    Wait(100);
    EXPECT_THAT(Heard.Done, IsEmpty());
}

TEST_F(WinWaveOut, AStrangersMessageIsNoBuffer)
{
    ASSERT_TRUE(Wave->Notify(true));
    WAVEHDR strange = {};
    PostMessageA(Window, MM_WOM_DONE, 0, 0);
    PostMessageA(Window, MM_WOM_DONE, 0, 0x1234);
    PostMessageA(Window, MM_WOM_DONE, 0, reinterpret_cast<LPARAM>(&strange));
    Pump();
    EXPECT_THAT(Heard.Done, IsEmpty());
    EXPECT_EQ(std::count(Messages.begin(), Messages.end(), MM_WOM_DONE), 3);
}

TEST_F(WinWaveOut, CallsOutOfOrderAreRefused)
{
    EXPECT_EQ(Wave->PrepareHeader(platform::NoWave, Header(0)), platform::WaveInvalidHandle);
    EXPECT_EQ(Wave->Reset(platform::NoWave), platform::WaveInvalidHandle);
    EXPECT_EQ(Wave->Close(platform::NoWave), platform::WaveInvalidHandle);
    ASSERT_EQ(Wave->Open(Handle, Format), 0);
    EXPECT_EQ(Wave->Write(Handle, Header(0)), platform::WaveUnprepared);
    EXPECT_EQ(Wave->PrepareHeader(Handle, {Bytes, -1}), platform::WaveInvalidParameter);
    EXPECT_EQ(Wave->PrepareHeader(Handle, {Bytes, platform::MostWaveBuffers}), platform::WaveInvalidParameter);
    EXPECT_EQ(Wave->UnprepareHeader(Handle, Header(0)), 0);
    EXPECT_EQ(Wave->Close(Handle), 0);
}

TEST_F(WinWithoutSound, OpeningFailsAndMusicIsSilent)
{
    EXPECT_TRUE(Wave->Notify(true));
    EXPECT_EQ(Wave->Open(Handle, Format), platform::WaveBadDevice);
    EXPECT_EQ(Handle, platform::NoWave);
    EXPECT_EQ(Wave->Write(Handle, Header(0)), platform::WaveInvalidHandle);
    Music->Open("any.mp3");
    Music->Play(1);
    Wait(500);
    EXPECT_THAT(Heard.Media, IsEmpty());
}
}
