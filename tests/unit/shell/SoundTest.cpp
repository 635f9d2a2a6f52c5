// SPDX-License-Identifier: Zlib
// What is heard: start-up, the race, the music and its options.
#include "tests/support/LoadedForm.h"

#include <gmock/gmock.h>

#include <limits>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

struct Sound : testing::Test, support::LoadedForm
{
    audio::EngineSound& Engine() { return Game().Engine; }
    audio::Soundtrack& Music() { return Game().Soundtrack; }
    shell::AudioSettings& Options() { return Game().Audio; }
    render::Label2D& Title() { return Label(&shell::Hud::Notice); }
    std::string Playing() { return Machine.Music->Playing ? Machine.Music->File.filename().string() : ""; }

    void Tracks(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            World.Write(std::string("soundtracks/") + name, "");
    }
    // Start-up with the first draw of the generator.
    void LoadWith(double draw)
    {
        Game().Random.Script = {draw};
        Load();
    }
    std::vector<std::string> Texts()
    {
        std::vector<std::string> texts;
        for (const headless::Box& box : Machine.Boxes)
            texts.push_back(box.Title + ": " + box.Text);
        return texts;
    }
    void Tick()
    {
        Machine.Clock += 25;
        Form.Race().GameT_Tick();
    }
    int QueuedSample(std::size_t buffer)
    {
        const std::span<const std::uint8_t> bytes = Machine.Wave->Queued.at(buffer).Data;
        return static_cast<std::int16_t>(bytes[0] | bytes[1] << 8);
    }
};

// ---- Start-up ----

TEST_F(Sound, StartUpLoadsTheSampleAndOpensNothing)
{
    Load();
    EXPECT_EQ(Game().Run.AudioReady, -1);
    EXPECT_THAT(Engine().Table, testing::Each(16));
    EXPECT_EQ(Engine().Handle, platform::NoWave);
    EXPECT_EQ(Engine().Step, 0.1f);
    EXPECT_EQ(Engine().Gain, 0);
    EXPECT_EQ(Options().EffectsVolume, 1);
    EXPECT_EQ(Options().EffectsFactor, 25);
    EXPECT_TRUE(Machine.Wave->Queued.empty());
}

TEST_F(Sound, AMissingSampleEndsTheProgram)
{
    World.Remove("data/sounds/engine_01.pcm");
    Form.Form_Load();
    EXPECT_TRUE(Form.Ended());
    EXPECT_THAT(Texts(), ElementsAre("Velkar: Si è verificato un errore durante l'inizializzazione del modulo audio"
                                     "\r\nL'applicazione verrà chiusa"));
    EXPECT_EQ(Machine.Boxes[0].Icon, base::Icon::Critical);
    EXPECT_EQ(Game().Run.AudioReady, 0);
}

TEST_F(Sound, AFailedReplacementGoesOnWithoutRefills)
{
    Machine.Calls.ReturnNext("SetWindowLongA", 0);
    StartRace();
    EXPECT_THAT(Texts(), ElementsAre("Errore: Errore durante il subclassing della finestra!"));
    EXPECT_EQ(Machine.Boxes[0].Icon, base::Icon::Critical);
    EXPECT_FALSE(Game().Run.OldWndProc);
    EXPECT_EQ(Game().Run.AudioReady, -1);
    ASSERT_EQ(Machine.Wave->Queued.size(), 4u);
    Machine.Wave->FinishBuffer();
    EXPECT_EQ(Machine.Wave->Queued.size(), 3u);
}

TEST_F(Sound, ASingleThreadReplacesNothing)
{
    Game().Screen.SingleThread = true;
    StartRace();
    EXPECT_THAT(Texts(), IsEmpty());
    Machine.Wave->FinishBuffer();
    EXPECT_EQ(Machine.Wave->Queued.size(), 3u);
}

// ---- The race ----

TEST_F(Sound, TheRaceQueuesFourSilentBuffersThatGoRound)
{
    StartRace();
    ASSERT_EQ(Machine.Wave->Queued.size(), 4u);
    for (std::size_t k = 0; k < 4; ++k)
    {
        EXPECT_EQ(Machine.Wave->Queued[k].User, static_cast<std::int32_t>(k));
        EXPECT_EQ(QueuedSample(k), 0);
    }
    Tick();
    for (int k = 0; k < 6; ++k)
        EXPECT_TRUE(Machine.Wave->FinishBuffer());
    ASSERT_EQ(Machine.Wave->Queued.size(), 4u);
    EXPECT_EQ(Machine.Wave->Queued.front().User, 2);
    EXPECT_EQ(QueuedSample(0), 16 * 125);
}

TEST_F(Sound, StandstillAndReverse)
{
    StartRace();
    Tick();
    EXPECT_EQ(Engine().Step, 0.2f);
    EXPECT_EQ(Engine().Gain, 125);
    Player(0).Speed = -1;
    Tick();
    EXPECT_EQ(Engine().Step, 0.5f);
    EXPECT_EQ(Engine().Gain, 150);
}

TEST_F(Sound, TheSoundIsThatOfTheCarThatIsWatched)
{
    StartRace();
    Player(2).Speed = 2;
    Tick();
    EXPECT_EQ(Engine().Gain, 125);
    Game().Camera.ViewPlayer = 2;
    Tick();
    EXPECT_EQ(Engine().Gain, 175);
    for (const int nobody : {-1, 3, 32767})
    {
        Game().Camera.ViewPlayer = static_cast<std::int16_t>(nobody);
        Tick();
        EXPECT_EQ(Engine().Gain, 175);
    }
}

TEST_F(Sound, AGainRoundsHalvesToEvenAndKeepsItsFormerValueWhereItDoesNotFit)
{
    StartRace();
    Options().EffectsFactor = 25;
    Player(0).Speed = 0.25f; // 131.25
    Tick();
    EXPECT_EQ(Engine().Gain, 131);
    Options().EffectsFactor = 2;
    Player(0).Speed = 0.25f; // 10.5
    Tick();
    EXPECT_EQ(Engine().Gain, 10);
    Options().EffectsFactor = 2500;
    Player(0).Speed = 8; // 32500
    Tick();
    EXPECT_EQ(Engine().Gain, 32500);
    Player(0).Speed = 9; // 35000
    Tick();
    EXPECT_EQ(Engine().Gain, 32500);
    EXPECT_FLOAT_EQ(Engine().Step, 1.212f); // the pitch follows
    Player(0).Speed = std::numeric_limits<float>::infinity();
    Tick();
    EXPECT_EQ(Engine().Gain, 32500);
}

TEST_F(Sound, TheMenuClosesTheDeviceAndWhatComesBackIsLeftAlone)
{
    StartRace();
    Tick();
    Machine.Wave->FinishBuffer();
    const float position = Engine().ReadPosition;
    EXPECT_GT(position, 0);
    Form.Race().StopProcess();
    EXPECT_EQ(Engine().Handle, platform::NoWave);
    Machine.PumpEvents();
    EXPECT_EQ(Engine().ReadPosition, position);
    EXPECT_TRUE(Machine.Wave->Queued.empty());
    Form.Race().StartProcess(); // the phase and what lies in the buffers stay
    EXPECT_EQ(Engine().ReadPosition, position);
    ASSERT_EQ(Machine.Wave->Queued.size(), 4u);
    EXPECT_EQ(QueuedSample(0), 16 * 125);
    EXPECT_EQ(QueuedSample(1), 0);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(Sound, StartingTwiceOpensOnce)
{
    StartRace();
    const platform::WaveHandle handle = Engine().Handle;
    Form.Race().StartProcess();
    EXPECT_EQ(Engine().Handle, handle);
    EXPECT_EQ(Machine.Wave->Queued.size(), 4u);
    Form.Race().StopProcess();
    Form.Race().StopProcess();
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(Sound, AFailedOpenYieldsNineBoxesAndTheRaceGoesOn)
{
    Machine.Calls.ReturnNext("waveOutOpen", 2);
    StartRace();
    EXPECT_EQ(Texts().size(), 9u);
    EXPECT_EQ(Texts().front(), "Errore: Errore 2 in WaveOutOpen");
    EXPECT_EQ(Texts().back(), "Errore: Errore 5 in WaveOutWrite(3)");
    Machine.Boxes.clear();
    Pass(500);
    EXPECT_GT(Game().Race.GameTime, 400);
    Form.Race().StopProcess(); // nothing is open, nothing to close
    EXPECT_THAT(Texts(), IsEmpty());
    Form.Race().StartProcess();
    EXPECT_NE(Engine().Handle, platform::NoWave);
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(Sound, BeforeTheAudioIsReadyNothingIsOpenedAndClosingIsRefused)
{
    Load();
    Game().Run.AudioReady = 0;
    Form.Race().StartProcess();
    EXPECT_EQ(Engine().Handle, platform::NoWave);
    EXPECT_FALSE(Form.Form_Unload());
    EXPECT_FALSE(Form.Ended());
}

// ---- Music ----

TEST_F(Sound, TheMusicBeginsAtStartUpWithTheTrackAfterTheRandomOne)
{
    Tracks({"a.mp3", "b.wma", "c.mp3"});
    LoadWith(0.5); // round(0.5 × 2) is 1
    EXPECT_THAT(Music().TrackList, ElementsAre("a.mp3", "c.mp3", "b.wma"));
    EXPECT_EQ(Music().TrackIndex, 2);
    EXPECT_EQ(Music().MusicOn, -1);
    EXPECT_EQ(Music().Media.Command, "play");
    EXPECT_EQ(Music().Media.FileName, "soundtracks\\b.wma");
    EXPECT_EQ(Machine.Music->File, World.Path / "soundtracks" / "b.wma");
    EXPECT_TRUE(Machine.Music->Playing);
    EXPECT_EQ(Title().Text, "b");
    EXPECT_EQ(Title().Visible, 1);
    EXPECT_EQ(Title().Fade, 0);
}

TEST_F(Sound, TheRandomStartRoundsHalvesToEven)
{
    Tracks({"a.mp3", "b.mp3"});
    LoadWith(0.5); // 0.5 × 1 goes to 0, and the next is b
    EXPECT_EQ(Playing(), "b.mp3");
}

TEST_F(Sound, TheRandomStartMayBeTheLastTrack)
{
    Tracks({"a.mp3", "b.mp3", "c.mp3"});
    LoadWith(0.99);
    EXPECT_EQ(Playing(), "a.mp3");
}

TEST_F(Sound, AnEmptyFolderIsSilenceAndStaysOn)
{
    Load();
    EXPECT_THAT(Music().TrackList, ElementsAre(""));
    EXPECT_EQ(Music().MusicOn, -1);
    EXPECT_EQ(Music().Media.Command, "close");
    EXPECT_EQ(Title().Visible, 0);
    Form.Audio().MMC_Done(1);
    EXPECT_EQ(Playing(), "");
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(Sound, EachTrackThatEndsStartsTheNext)
{
    Tracks({"a.mp3", "b.mp3", "c.mp3"});
    LoadWith(0);
    EXPECT_EQ(Playing(), "b.mp3");
    Machine.Music->Finish(4);
    EXPECT_EQ(Music().Media.FileName, "soundtracks\\b.mp3");
    Machine.Music->Finish(1);
    EXPECT_EQ(Playing(), "c.mp3");
    Form.Audio().MediaDone(Machine.Music->Number - 1, 1); // of the track before: too late
    EXPECT_EQ(Playing(), "c.mp3");
    Machine.Music->Finish(1);
    EXPECT_EQ(Playing(), "a.mp3");
}

TEST_F(Sound, UnplayableFilesArePassedOverOnceWithoutABox)
{
    Tracks({"a.mp3", "b.mp3", "c.mp3"});
    LoadWith(0);
    Machine.Music->Finish(platform::MediaUnplayable);
    EXPECT_EQ(Playing(), "c.mp3");
    Machine.Music->Finish(platform::MediaUnplayable);
    EXPECT_EQ(Playing(), "a.mp3");
    Machine.Music->Finish(platform::MediaUnplayable);
    EXPECT_EQ(Playing(), "");
    EXPECT_THAT(Texts(), IsEmpty());
    Form.Click("cSTART");
    Form.KeyDown(9); // asked for by hand, the round begins anew
    EXPECT_EQ(Playing(), "b.mp3");
    Machine.Music->Finish(platform::MediaUnplayable);
    EXPECT_EQ(Playing(), "c.mp3");
}

TEST_F(Sound, TheMusicKeySkipsWhenItGoesDown)
{
    Tracks({"a.mp3", "b.mp3", "c.mp3"});
    LoadWith(0);
    Form.KeyDown(9);
    EXPECT_EQ(Playing(), "b.mp3"); // not in the menu
    Form.Click("cSTART");
    Form.KeyDown(9);
    EXPECT_EQ(Playing(), "c.mp3");
    Form.KeyUp(9);
    EXPECT_EQ(Playing(), "c.mp3");
    PressAndRelease(220); // the console is open
    Form.KeyDown(9);
    EXPECT_EQ(Playing(), "c.mp3");
    PressAndRelease(27);
    Game().Bindings.Bindings[shell::KeyBindings::Accelerate] = 9; // the held keys are asked first
    Form.KeyDown(9);
    EXPECT_EQ(Playing(), "c.mp3");
    EXPECT_EQ(Game().Keys.KeyAccel, -1);
}

TEST_F(Sound, TheMusicKeyDoesNothingWhileTheMusicIsOff)
{
    Tracks({"a.mp3", "b.mp3"});
    LoadWith(0);
    Control("chkMusic").Value = 0;
    Form.Click("cAudOptOK");
    Form.Click("cSTART");
    Form.KeyDown(9);
    EXPECT_EQ(Playing(), "");
}

TEST_F(Sound, UntickedClosesTickedPlaysTheFollowingOne)
{
    Tracks({"a.mp3", "b.mp3", "c.mp3"});
    LoadWith(0);
    Form.Click("cAudOpt");
    Control("chkMusic").Value = 0;
    EXPECT_EQ(Playing(), "b.mp3"); // the OK decides
    Form.Click("cAudOptOK");
    EXPECT_EQ(Playing(), "");
    EXPECT_EQ(Music().MusicOn, 0);
    EXPECT_EQ(Music().Media.Command, "close");
    Machine.Music->Finish(1);
    EXPECT_EQ(Playing(), "");
    Control("chkMusic").Value = 1;
    Form.Click("cAudOptOK");
    EXPECT_EQ(Playing(), "c.mp3");
    EXPECT_EQ(Music().MusicOn, -1);
    Form.Click("cAudOptOK"); // nothing to change
    EXPECT_EQ(Playing(), "c.mp3");
}

TEST_F(Sound, ClosingTheWindowClosesTheMusic)
{
    Tracks({"a.mp3"});
    Load();
    EXPECT_TRUE(Form.Form_Unload());
    EXPECT_EQ(Music().Media.Command, "close");
    EXPECT_EQ(Playing(), "");
    Machine.Music->Finish(1); // nobody listens any more
    EXPECT_EQ(Playing(), "");
}

// ---- The title ----

TEST_F(Sound, TheTitleFadesInAndOutOverTheRace)
{
    Tracks({"Lago di notte.mp3"});
    StartRace();
    EXPECT_EQ(Title().Text, "Lago di notte");
    struct Moment
    {
        std::int32_t Time;
        float Fade;
    };
    for (const Moment& moment : {Moment{0, 0.0f}, Moment{750, 0.5f}, Moment{1500, 1.0f}, Moment{3499, 1.0f},
                                 Moment{3500, 1.0f}, Moment{4250, 0.5f}, Moment{4999, 1.0f / 1500}})
    {
        Game().Race.GameTime = moment.Time;
        Form.Race().RenderT_Tick();
        EXPECT_FLOAT_EQ(Title().Fade, moment.Fade) << moment.Time;
        EXPECT_EQ(Title().Visible, 1) << moment.Time;
    }
    Game().Race.GameTime = 5000;
    Form.Race().RenderT_Tick();
    EXPECT_EQ(Title().Visible, 0);

    Game().Race.GameTime = 60000; // another track, another title
    Form.KeyDown(9);
    EXPECT_EQ(Title().Visible, 1);
    EXPECT_EQ(Game().Run.NoticeTime, 60000);
    Game().Race.GameTime = 60750;
    Form.Race().RenderT_Tick();
    EXPECT_FLOAT_EQ(Title().Fade, 0.5f);
}

TEST_F(Sound, ANameWithoutADotWouldBeShownWhole)
{
    Tracks({"x.mp3"});
    Load();
    Music().TrackList = {"senza punto"};
    Form.Audio().MMC_Done(1);
    EXPECT_EQ(Title().Text, "senza punto");
}

// ---- The volume ----

TEST_F(Sound, TheSliderSetsAPercentageFrom20To100)
{
    Load();
    struct Move
    {
        std::int32_t X;
        float Volume;
        std::int16_t Bar;
    };
    for (const Move& move : {Move{0, 20, 20}, Move{-50, 20, 20}, Move{39, 20, 20}, Move{100, 50, 50}, Move{150, 75, 75},
                             Move{200, 100, 100}, Move{999, 100, 100}})
    {
        Form.Panels().AudioOptions.picEffVol_MouseMove(move.X, 200);
        EXPECT_EQ(Options().EffectsVolume, move.Volume) << move.X;
        EXPECT_EQ(Control("picEffVol").Value, move.Bar) << move.X;
        EXPECT_EQ(Options().EffectsFactor, 25) << "before the OK";
    }
    Form.Panels().AudioOptions.picEffVol_MouseMove(10, 0); // no width, no place
    EXPECT_EQ(Options().EffectsVolume, 100);
}

// Deliberate: 1 at start-up, a percentage later.
TEST_F(Sound, TheFactorJumpsFrom25ToBetween500And2500)
{
    Load();
    EXPECT_EQ(Options().EffectsFactor, 25);
    Form.Panels().AudioOptions.picEffVol_MouseMove(0, 200);
    Form.Click("cAudOptOK");
    EXPECT_EQ(Options().EffectsFactor, 500);
    Form.Panels().AudioOptions.picEffVol_MouseMove(200, 200);
    Form.Click("cAudOptOK");
    EXPECT_EQ(Options().EffectsFactor, 2500);
    Options().EffectsVolume = 20.5f; // 512.5
    Form.Click("cAudOptOK");
    EXPECT_EQ(Options().EffectsFactor, 512);
}

TEST_F(Sound, AFactorThatDoesNotFitIsAnOverflow)
{
    Load();
    Form.Click("cAudOpt");
    Options().EffectsVolume = 1e6f;
    Form.Click("cAudOptOK");
    EXPECT_THAT(Texts(), ElementsAre("Errore 6: Overflow in cAudOptOK_Click"));
    EXPECT_EQ(Options().EffectsFactor, 25);
}

// Deliberate: the stored volume is taken as a share, so the bar is full again after a move.
TEST_F(Sound, ThePanelOpensWithFullBars)
{
    Load();
    Form.Click("cAudOpt");
    EXPECT_EQ(Control("panelAudOpt").Visible, -1);
    EXPECT_EQ(Control("picEffVol").Value, 100);
    EXPECT_EQ(Control("picMusVol").Value, 100);
    Form.Panels().AudioOptions.picEffVol_MouseMove(100, 200);
    EXPECT_EQ(Control("picEffVol").Value, 50);
    Form.Click("cAudOptOK");
    EXPECT_EQ(Control("panelAudOpt").Visible, 0);
    Form.Click("cAudOpt");
    EXPECT_EQ(Control("picEffVol").Value, 100);
}

TEST_F(Sound, AVolumeThatIsNoNumberDrawsAnEmptyBar)
{
    Load();
    Options().EffectsVolume = std::numeric_limits<float>::quiet_NaN();
    Form.Click("cAudOpt");
    EXPECT_EQ(Control("picEffVol").Value, 0);
    Form.Click("cAudOptOK");
    EXPECT_THAT(Texts(), ElementsAre("Errore 6: Overflow in cAudOptOK_Click"));
}

TEST_F(Sound, TheSliderFollowsTheLeftButton)
{
    Load();
    Form.Click("cOPZIONI");
    Form.Click("cAudOpt");
    const forms::Rect place = Form.Controls().PlaceOf(Control("picEffVol"));
    const auto at = [&](int quarter) {
        return platform::Point{place.X + place.W * quarter / 4, place.Y + place.H / 2};
    };
    Form.MouseMove(0, at(1));
    EXPECT_EQ(Options().EffectsVolume, 1);
    Form.MouseDown(1, at(2));
    Form.MouseMove(1, at(2));
    EXPECT_NEAR(Options().EffectsVolume, 50, 1);
    Form.MouseMove(1, {place.X + 5 * place.W, place.Y - 40}); // beyond the box while the button stays down
    EXPECT_EQ(Options().EffectsVolume, 100);
    Form.MouseUp(1, at(2));
    Form.MouseMove(0, at(1));
    EXPECT_EQ(Options().EffectsVolume, 100);
}
}
