// SPDX-License-Identifier: Zlib
// shell/Sound.h: what is heard: the engine of the followed car, as long as the race runs, and the music, from start-up
// to the end. Owns the sound devices, whose events come to it on the window's thread.
#pragma once
#include "audio/WaveOut.h"
#include "platform/Platform.h"
#include "shell/Game.h"

#include <memory>

namespace shell
{
class Sound final : private platform::WaveEvents, private platform::MusicEvents
{
public:
    // Makes the devices; opens nothing yet. All outlive this.
    Sound(Game& game, platform::Platform& platform, platform::Window& window);

    // Loads sample and track list and draws the first track. False where the module failed; that was not said.
    bool InitAudio();
    // cancel: set where the audio was never ready, which refuses the closing.
    void CloseAudio(bool& cancel);

    // The wave stream of the race; nothing where the audio is not ready.
    void StartEngine();
    void StopEngine();
    // Pitch and loudness of the car that the camera follows. Once a tick, before anything moves.
    void SetEngineSound();

    void SetMusic(bool on);
    void SkipTrack(); // on to the next piece
    // The music control's notification: code 1, a piece has ended or is skipped.
    void MMC_Done(std::int32_t notifyCode);

    // Of the music device.
    void MediaDone(std::uint32_t number, std::int32_t code) override;

private:
    void WaveDone(std::int32_t user) override;
    void LoadAudio();
    void SetMediaCommand(const char* command);
    void ShowNotice();
    audio::Stream MakeStream() { return {Engine, *WaveOut, Messages}; }

    const base::Files& Files;
    base::MessageSink& Messages;
    std::unique_ptr<platform::WaveOut> WaveOut;
    std::unique_ptr<platform::MusicPlayer> Music;
    Game& TheGame; // the followed car, the notice of the display, the draws
    audio::EngineSound& Engine;
    audio::Soundtrack& Soundtrack;
    AudioSettings& Settings;
    RunState& Run;
};
}
