// SPDX-License-Identifier: Zlib
#include "shell/Sound.h"

#include "base/Numbers.h"
#include "render/Primitives.h"
#include "world/Driving.h"

namespace shell
{
namespace
{
constexpr const char* SamplePath = "data\\sounds\\engine_01.pcm";
constexpr float FirstStep = 0.1f;
}

Sound::Sound(Game& game, platform::Platform& platform, platform::Window& window)
    : Files(platform.DataFiles()), Messages(window), WaveOut(platform.MakeWaveOut(*this)),
      Music(platform.MakeMusicPlayer(*this)), TheGame(game), Engine(game.Engine), Soundtrack(game.Soundtrack),
      Settings(game.Audio), Run(game.Run)
{
}

bool Sound::InitAudio()
{
    // Deliberate: the box of the module that failed says all that is said.
    return base::Attempted([this] { LoadAudio(); });
}

void Sound::LoadAudio()
{
    audio::LoadSample(Engine, Files, SamplePath);
    Engine.Handle = platform::NoWave;
    Engine.Step = FirstStep;
    Settings.EffectsVolume = 1;
    audio::ListFiles(Files, audio::SoundtrackFolder, audio::SoundtrackPatterns, Soundtrack.TrackList);
    const double last = static_cast<double>(Soundtrack.TrackList.size() - 1);
    Soundtrack.TrackIndex = base::ToInt16(TheGame.Random.Next() * last);
    Run.AudioReady = base::True;
    if (TheGame.Screen.SingleThread)
        return;
    Run.OldWndProc = WaveOut->Notify(true);
    if (!Run.OldWndProc)
        Messages.ShowMessage(base::Icon::Critical, "Errore", "Errore durante il subclassing della finestra!");
}

void Sound::CloseAudio(bool& cancel)
{
    if (Run.AudioReady != base::True)
    {
        cancel = true;
        return;
    }
    if (Run.OldWndProc)
        WaveOut->Notify(false);
    SetMediaCommand("close");
}

void Sound::StartEngine()
{
    if (Run.AudioReady != base::True)
        return;
    audio::Stream stream = MakeStream();
    audio::StartStream(stream);
}

void Sound::StopEngine()
{
    if (Run.AudioReady != base::True)
        return;
    audio::Stream stream = MakeStream();
    audio::StopStream(stream);
}

// Of the followed car, not of the user's own.
void Sound::SetEngineSound()
{
    const world::Player* viewed = world::FindPlayer(TheGame.Race, TheGame.Camera.ViewPlayer);
    if (viewed == nullptr)
        return;
    audio::SetSpeed(Engine, world::EngineNote(viewed->Speed), viewed->Speed, Settings.EffectsFactor);
}

void Sound::WaveDone(std::int32_t user)
{
    if (Run.Ended)
        return;
    audio::Stream stream = MakeStream();
    audio::EngineWndProc(stream, user);
}

void Sound::SetMediaCommand(const char* command)
{
    audio::SetCommand(Soundtrack.Media, *Music, Files, command);
}

void Sound::SetMusic(bool on)
{
    if (on == (Soundtrack.MusicOn != base::False))
        return;
    if (on)
    {
        SetMediaCommand("");
        SkipTrack(); // Deliberate: so the first one is that after the random start.
    }
    else
        SetMediaCommand("close");
    Soundtrack.MusicOn = base::ToFlag(on);
}

void Sound::SkipTrack()
{
    Soundtrack.Unplayable = 0;
    MMC_Done(platform::MediaSuccessful);
}

void Sound::MediaDone(std::uint32_t number, std::int32_t code)
{
    if (!Run.Ended)
        MMC_Done(audio::NotifyCodeOf(Soundtrack, number, code));
}

void Sound::MMC_Done(std::int32_t notifyCode)
{
    if (audio::NextTrack(Soundtrack, *Music, Files, notifyCode))
        ShowNotice();
}

// The title of a track that begins is faded in and out over the race.
void Sound::ShowNotice()
{
    Run.NoticeTime = TheGame.Race.GameTime;
    render::Scene& scene = TheGame.Scene;
    const std::int16_t label = TheGame.Hud.Notice;
    if (!scene.Labels.Has(label))
        return;
    const std::string& name = Soundtrack.TrackList[static_cast<std::size_t>(Soundtrack.TrackIndex)];
    render::SetLabelText(scene, label, audio::StripExtension(name));
    scene.Labels.At(label).Fade = 0;
    scene.Labels.At(label).Visible = 1;
}
}
