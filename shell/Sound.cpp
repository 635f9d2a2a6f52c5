// What is heard: the engine of the followed car and the music, from start-up to the end.
#include "base/Numbers.h"
#include "render/Primitives.h"
#include "shell/Form1.h"
#include "world/Driving.h"

#include <cmath>

namespace shell
{
namespace
{
constexpr const char* SamplePath = "data\\sounds\\engine_01.pcm";
constexpr float FirstStep = 0.1f;
}

bool Form1::InitAudio()
{
    try
    {
        LoadAudio();
        return true;
    }
    catch (...)
    {
        return false; // Deliberate: the module's own box says all that is said.
    }
}

void Form1::LoadAudio()
{
    audio::EngineSound& engine = TheGame.Engine;
    audio::Soundtrack& soundtrack = TheGame.Soundtrack;
    const base::Files& files = ThePlatform.DataFiles();
    audio::LoadSample(engine, files, SamplePath);
    engine.Handle = platform::NoWave;
    engine.Step = FirstStep;
    TheGame.Audio.EffectsVolume = 1;
    audio::ListFiles(files, audio::SoundtrackFolder, audio::SoundtrackPatterns, soundtrack.TrackList);
    const double last = static_cast<double>(soundtrack.TrackList.size() - 1);
    soundtrack.TrackIndex = base::ToInt16(TheGame.Random.Next() * last);
    TheGame.Run.AudioReady = base::True;
    if (TheGame.Screen.SingleThread != 0)
        return;
    TheGame.Run.OldWndProc = TheWaveOut->Notify(true) ? 1 : 0;
    if (TheGame.Run.OldWndProc == 0)
        TheWindow->ShowMessage(base::Icon::Critical, "Errore", "Errore durante il subclassing della finestra!");
}

void Form1::CloseAudio(bool& cancel)
{
    if (TheGame.Run.AudioReady != base::True)
    {
        cancel = true;
        return;
    }
    if (TheGame.Run.OldWndProc != 0)
        TheWaveOut->Notify(false);
    SetMediaCommand("close");
}

// Pitch and loudness of the car that the camera follows, not of the user's own.
void Form1::SetEngineSound()
{
    const world::Player* viewed = world::FindPlayer(TheGame.Race, TheGame.Camera.ViewPlayer);
    if (viewed == nullptr)
        return;
    const float speed = viewed->Speed;
    audio::EngineSound& engine = TheGame.Engine;
    engine.Step = static_cast<float>(world::EngineNote(speed));
    // A gain that 16 bits cannot hold keeps its former value.
    const std::int32_t gain = base::RoundEven((std::fabs(speed) + 5.0) * TheGame.Audio.EffectsFactor);
    if (base::Wrap16(gain) == gain)
        engine.Gain = static_cast<std::int16_t>(gain);
}

void Form1::WaveDone(std::int32_t user)
{
    if (HasEnded)
        return;
    audio::Stream stream = MakeStream();
    audio::EngineWndProc(stream, user);
}

void Form1::SetMediaCommand(const char* command)
{
    audio::SetCommand(TheGame.Soundtrack.Media, *TheMusic, ThePlatform.DataFiles(), command);
}

void Form1::MediaDone(std::uint32_t number, std::int32_t code)
{
    if (!HasEnded)
        MMC_Done(audio::NotifyCodeOf(TheGame.Soundtrack, number, code));
}

// The title of a track that begins is faded in and out over the race.
void Form1::MMC_Done(std::int32_t notifyCode)
{
    audio::Soundtrack& soundtrack = TheGame.Soundtrack;
    if (!audio::NextTrack(soundtrack, *TheMusic, ThePlatform.DataFiles(), notifyCode))
        return;
    TheGame.Run.NoticeTime = TheGame.Race.GameTime;
    render::Scene& scene = TheGame.Scene;
    const std::int16_t label = TheGame.Hud.Notice;
    if (!scene.Labels.Has(label))
        return;
    const std::string& name = soundtrack.TrackList[static_cast<std::size_t>(soundtrack.TrackIndex)];
    render::SetLabelText(scene, label, audio::StripExtension(name));
    scene.Labels.At(label).Fade = 0;
    scene.Labels.At(label).Visible = 1;
}
}
