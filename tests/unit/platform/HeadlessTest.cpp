// SPDX-License-Identifier: Zlib
#include "platform/headless/Machine.h"
#include "tests/support/HeardEvents.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace
{
struct Headless : testing::Test
{
    headless::Machine Machine{base::Files()};
    support::HeardEvents Heard;
    std::unique_ptr<platform::Window> Window = Machine.MakeWindow(Heard, {4, 2});

    base::Bitmap Screenshot() { return static_cast<headless::Window&>(*Window).Screenshot(); }
};
}

TEST_F(Headless, TheClockMovesOnlyWhenTold)
{
    EXPECT_EQ(Machine.TickCount(), 0u);
    Machine.Clock += 25;
    EXPECT_EQ(Machine.TickCount(), 25u);
}

TEST_F(Headless, MessageBoxesAreRecordedUpToALimit)
{
    Window->ShowMessage(base::Icon::Exclamation, "Velkar", "uno");
    ASSERT_EQ(Machine.Boxes.size(), 1u);
    EXPECT_EQ(Machine.Boxes[0].Icon, base::Icon::Exclamation);
    EXPECT_EQ(Machine.Boxes[0].Title, "Velkar");
    EXPECT_EQ(Machine.Boxes[0].Text, "uno");
    for (std::size_t i = 0; i < headless::Machine::MostBoxes; ++i)
        Window->ShowMessage(base::Icon::Critical, "", "");
    EXPECT_EQ(Machine.Boxes.size(), headless::Machine::MostBoxes);
    EXPECT_EQ(Machine.UnrecordedBoxes, 1u);
}

TEST_F(Headless, PaintsOnceWhenShownAndAgainAfterAResize)
{
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 0);
    Window->Show(true);
    Machine.PumpEvents();
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 1);
    EXPECT_EQ(Heard.Resizes, 0);
    Window->SetClientSize({4, 2}); // the size it has
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 1);
    Window->SetClientSize({6, 2});
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 2);
    EXPECT_EQ(Heard.Resizes, 1);
}

TEST_F(Headless, FullScreenCoversTheDisplayAndGivesTheOldPlaceBack)
{
    Window->Move({30, 40});
    Window->SetFullScreen(true);
    EXPECT_EQ(Window->ClientSize().Width, Machine.Display.Width);
    EXPECT_EQ(Window->Position().X, 0);
    Window->Move({1, 1});
    Window->SetClientSize({9, 9});
    Window->SetFullScreen(false);
    EXPECT_EQ(Window->ClientSize().Width, 4);
    EXPECT_EQ(Window->ClientSize().Height, 2);
    EXPECT_EQ(Window->Position().X, 30);
    EXPECT_EQ(Window->Position().Y, 40);
}

TEST_F(Headless, SizesAreKeptWithinReason)
{
    Window->SetClientSize({-5, 2'000'000'000});
    EXPECT_EQ(Window->ClientSize().Width, 1);
    EXPECT_EQ(Window->ClientSize().Height, 4096);
}

TEST_F(Headless, ShowsThePresentedPictureStretchedToTheNearestPixel)
{
    EXPECT_EQ(Screenshot().Bytes, std::vector<std::uint8_t>(24, 0)); // black before the first
    // Two columns and one row: (1, 2, 3) and (4, 5, 6), padded to 8 bytes.
    const std::array<std::uint8_t, 8> bits = {1, 2, 3, 4, 5, 6, 0, 0};
    Window->Present({bits.data(), 8, 2, 1});
    const std::vector<std::uint8_t> row = {1, 2, 3, 1, 2, 3, 4, 5, 6, 4, 5, 6};
    std::vector<std::uint8_t> both = row;
    both.insert(both.end(), row.begin(), row.end());
    EXPECT_EQ(Screenshot().Bytes, both);
    Window->SetClientSize({1, 1});
    EXPECT_EQ(Screenshot().Bytes, (std::vector<std::uint8_t>{1, 2, 3, 0}));
}

TEST_F(Headless, APictureWithoutPixelsOrWithOtherRowsIsNotTaken)
{
    const std::array<std::uint8_t, 16> bits = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
    for (const base::ConstSurface& picture : {base::ConstSurface{nullptr, 8, 2, 2},
                                              {bits.data(), 0, 0, 1},
                                              {bits.data(), 8, 2, 0},
                                              {bits.data(), -8, 2, 1},
                                              {bits.data(), 6, 2, 2},   // not padded
                                              {bits.data(), 12, 2, 1}}) // longer than padded
        Window->Present(picture);
    EXPECT_EQ(Screenshot().Bytes, std::vector<std::uint8_t>(24, 0));
}

TEST_F(Headless, TheClipboardIsTheMachines)
{
    Window->SetClipboardText("testo");
    EXPECT_EQ(Machine.Clipboard, "testo");
    Machine.Clipboard = "altro";
    EXPECT_EQ(Window->ClipboardText(), "altro");
}

TEST_F(Headless, AWindowThatIsGoneHearsNothing)
{
    Window->Show(true);
    Window.reset();
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Paints, 0);
}

// ---- Sound ----

namespace
{
struct HeadlessSound : Headless
{
    std::unique_ptr<platform::WaveOut> Wave = Machine.MakeWaveOut(Heard);
    std::unique_ptr<platform::MusicPlayer> Music = Machine.MakeMusicPlayer(Heard);
    platform::WaveHandle Handle = platform::NoWave;
    std::array<std::uint8_t, 8> Bytes = {1, 2, 3, 4, 5, 6, 7, 8};

    platform::WaveHeader Header(std::int32_t user) const
    {
        return {std::span(Bytes).subspan(static_cast<std::size_t>(user) * 4, 4), user};
    }
    void Open()
    {
        EXPECT_TRUE(Wave->Notify(true));
        EXPECT_EQ(Wave->Open(Handle, {2, 11025, 16}), 0);
    }
};
}

TEST_F(HeadlessSound, TheBufferThatWasQueuedLongestIsFinished)
{
    Open();
    EXPECT_EQ(Wave->Write(Handle, Header(1)), 0);
    EXPECT_EQ(Wave->Write(Handle, Header(0)), 0);
    EXPECT_TRUE(Machine.Wave->FinishBuffer());
    EXPECT_EQ(Heard.Done, std::vector<std::int32_t>{1});
    EXPECT_TRUE(Machine.Wave->FinishBuffer());
    EXPECT_FALSE(Machine.Wave->FinishBuffer());
    EXPECT_EQ(Heard.Done, (std::vector<std::int32_t>{1, 0}));
}

TEST_F(HeadlessSound, WhatIsQueuedIsKeptWhileItRecords)
{
    Open();
    Wave->Write(Handle, Header(1));
    EXPECT_EQ(Machine.Wave->Written, "");
    Machine.Wave->Records = true;
    Wave->Write(Handle, Header(0));
    Wave->Write(Handle, Header(1));
    EXPECT_EQ(Machine.Wave->Written, "\1\2\3\4\5\6\7\10");
}

TEST_F(HeadlessSound, AResetReturnsTheQueueWithLaterEvents)
{
    Open();
    Wave->Write(Handle, Header(0));
    Wave->Write(Handle, Header(1));
    EXPECT_EQ(Wave->Reset(Handle), 0);
    EXPECT_TRUE(Heard.Done.empty());
    EXPECT_EQ(Wave->Close(Handle), 0);
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Done, (std::vector<std::int32_t>{0, 1}));
    Machine.PumpEvents();
    EXPECT_EQ(Heard.Done.size(), 2u);
}

TEST_F(HeadlessSound, NobodyIsToldWithoutAskingForIt)
{
    EXPECT_EQ(Wave->Open(Handle, {2, 11025, 16}), 0);
    Wave->Write(Handle, Header(0));
    EXPECT_TRUE(Machine.Wave->FinishBuffer());
    EXPECT_TRUE(Wave->Notify(true));
    EXPECT_TRUE(Wave->Notify(false));
    Wave->Write(Handle, Header(0));
    EXPECT_TRUE(Machine.Wave->FinishBuffer());
    EXPECT_TRUE(Heard.Done.empty());
}

TEST_F(HeadlessSound, CallsWithoutADeviceFailWithCode5)
{
    EXPECT_EQ(Wave->PrepareHeader(platform::NoWave, Header(0)), 5);
    EXPECT_EQ(Wave->Write(platform::NoWave, Header(0)), 5);
    EXPECT_EQ(Wave->Reset(platform::NoWave), 5);
    EXPECT_EQ(Wave->UnprepareHeader(platform::NoWave, Header(0)), 5);
    EXPECT_EQ(Wave->Close(platform::NoWave), 5);
    Open();
    Wave->Close(Handle);
    EXPECT_EQ(Wave->Write(Handle, Header(0)), 5); // no longer good
}

TEST_F(HeadlessSound, AScriptedCodeIsReturnedOnceAndNothingElseDone)
{
    Open();
    Machine.Calls.ReturnNext("waveOutWrite", 33);
    EXPECT_EQ(Wave->Write(Handle, Header(0)), 33);
    EXPECT_FALSE(Machine.Wave->FinishBuffer());
    EXPECT_EQ(Wave->Write(Handle, Header(0)), 0);
    Machine.Calls.ReturnNext("waveOutOpen", 4);
    platform::WaveHandle other = platform::NoWave;
    EXPECT_EQ(Wave->Open(other, {2, 11025, 16}), 4);
    EXPECT_EQ(other, platform::NoWave);
    Machine.Calls.ReturnNext("SetWindowLongA", 0);
    EXPECT_FALSE(Wave->Notify(true));
    EXPECT_TRUE(headless::ScriptedCalls::IsCall("waveOutReset"));
    EXPECT_FALSE(headless::ScriptedCalls::IsCall("waveOut"));
}

TEST_F(HeadlessSound, TheMusicEndsWhenToldWithTheNumberOfItsPlay)
{
    Music->Open("a.mp3");
    Music->Play(7);
    EXPECT_EQ(Machine.Music->File, "a.mp3");
    EXPECT_TRUE(Machine.Music->Playing);
    Machine.Music->Finish(1);
    EXPECT_FALSE(Machine.Music->Playing);
    EXPECT_EQ(Heard.Media, (std::vector<std::pair<std::uint32_t, std::int32_t>>{{7, 1}}));
    Music->Play(8);
    Music->Close();
    EXPECT_FALSE(Machine.Music->Playing);
    EXPECT_TRUE(Machine.Music->File.empty());
}

TEST_F(HeadlessSound, DevicesThatAreGoneAreForgotten)
{
    Wave.reset();
    Music.reset();
    EXPECT_EQ(Machine.Wave, nullptr);
    EXPECT_EQ(Machine.Music, nullptr);
    Machine.PumpEvents();
}
