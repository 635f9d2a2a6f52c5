// SPDX-License-Identifier: Zlib
// Tornanti: E minor, 144 beats a minute. Electric guitars on both sides of a sequencer; the riff climbs through the
// flattened fifth like a road through its hairpins, the chorus opens over C and D.
#include "assets/sound/Tracks.h"

#include "assets/common/Numbers.h"
#include "assets/sound/score/Studio.h"
#include "assets/sound/synth/Analog.h"
#include "assets/sound/synth/Cymbals.h"
#include "assets/sound/synth/Drums.h"
#include "assets/sound/synth/Keys.h"
#include "assets/sound/synth/Plucked.h"

namespace assets::sound
{
namespace
{
constexpr auto VerseChords = "Em | Em | C | D | Em | G | Am | B7";
constexpr auto ChorusChords = "C | D | Em | Em | C | D | G | B7";

Score Form()
{
    return Score({.Bpm = 144}, {{"intro", 8, "Em"},
                                {"riff 1", 8, "Em"},
                                {"verse 1", 8, VerseChords},
                                {"chorus 1", 8, ChorusChords},
                                {"riff 2", 4, "Em"},
                                {"verse 2", 8, VerseChords},
                                {"chorus 2", 8, ChorusChords},
                                {"break", 8, "Am9 | Am9 | Cmaj7 | Cmaj7 | Gadd9 | D | B7sus4 | B7"},
                                {"chorus 3", 8, ChorusChords},
                                {"finish", 5, "Em | Em | C D | Em | Em"}});
}

constexpr auto RiffTune = R"(f
    e2e> e2s e2s g2e e2s e2s a2e e2s e2s bb2e> a2e | e2e> e2s e2s g2e e2s e2s b2e a2e g2e f#2e |
    e2e> e2s e2s g2e e2s e2s a2e e2s e2s bb2e> a2e | e2e> e2s e2s c3e c3s c3s d3e d3s d3s b2e d3e)";

Line Lead(const Score& score)
{
    Line line = score.Melody("verse 1", R"(mf
        rq b4e d5e e5q. d5e_ | g5e e5e d5q b4q_ rq | rq c5e e5e g5q._ e5e | f#5e e5e d5q a4q_ rq |
        rq b4e d5e e5e g5e e5e d5e | b5q._ a5e g5q d5q | c6q._ b5e a5q e5q | d#5q f#5q a5q_ b5q)");
    line += score.Melody("verse 2", R"(mf
        rq b4e d5e e5q. g5e_ | a5e g5e e5q d5q_ rq | rq c5e e5e g5q._ a5e | f#5e a5e d5q f#5q_ rq |
        rq b5e a5e g5e e5e g5e a5e | b5q._ a5e g5q d5q | e5e a5e c6e b5e a5e g5e e5e c5e | d#5e f#5e a5e b5e d#6h_)");
    const auto chorus = R"(f
        e5q.> g5q. e5q | f#5q.> a5q. f#5q | g5q.> b5q._ a5q | b5h. a5e g5e |
        g5q.> e5q. g5q | a5q.> f#5q. d5q | b5q._ a5e g5q d5q | d#5h f#5q a5q_)";
    for (const char* section : {"chorus 1", "chorus 2"})
        line += score.Melody(section, chorus);
    line += score.Melody("chorus 3", R"(ff
        e5q.> g5q. c6q_ | a5q.> f#5q. a5q | b5q.> g5q. b5q | e6h._ d6e b5e |
        c6q.> g5q. e5q | d6q.>_ a5q. f#5q | b5q._ d6e b5q g5q | f#5q a5q b5q d#6q_)");
    line += score.Melody("finish", "ff e6w_ | ~h. rq | g5q. f#5e a5q b5q | e5w_ | ~w");
    return line;
}

// Both guitars.
Line Riffs(const Score& score)
{
    Line line = score.Melody("riff 1", std::string(RiffTune) + "|" + RiffTune) + score.Melody("riff 2", RiffTune);
    line += score.Melody("finish", R"(ff
        e2e> e2s e2s g2e e2s e2s a2e e2s e2s bb2e> a2e | e2e> e2s e2s g2e e2s e2s b2e a2e g2e f#2e |
        c3e> c3s c3s c3e c3s c3s d3e> d3s d3s d3e f#3e | e2w> | ~w)");
    return line;
}

// What is damped with the ball of the hand.
Line Chugs(const Score& score)
{
    constexpr int LowE = 40;
    Line line;
    for (const char* verse : {"verse 1", "verse 2"})
        line += score.Bass(verse, "1.111.111.111.11 | 1.111.111.1.1.11", LowE);
    line += score.Bass("intro", ". | . | . | . | 1............... | . | 1............... | ........1.1.1.11", LowE);
    return line;
}

// What rings.
Line Open(const Score& score)
{
    constexpr int LowE = 40;
    Line line;
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Bass(chorus, R"(
            1-----1-----1--- | 1-----1-----1-1- | 1-----1-----1--- | 1-----1---1-1-1- |
            1-----1-----1--- | 1-----1-----1-1- | 1-----1-----1--- | 1-----1-1-1-1-1-)",
                           LowE);
    line += score.Bass(
        "break", ". | . | . | . | 1--------------- | 1--------------- | 1--------------- | 1-------1---1-1-", LowE);
    return line;
}

// The sequencer: sixteenths that slide and bite.
Line Sequence(const Score& score)
{
    constexpr auto Turn = R"(mf
        e2s e2s e3s> e2s g2s e2s d3s_ e2s e2s> e2s g2s_ a2s e2s bb2s> a2s_ g2s |
        e2s e2s e3s> e2s g2s e2s d3s_ e2s b2s> e2s a2s_ g2s e2s f#2s> g2s_ d2s)";
    const std::string four = std::string(Turn) + "|" + Turn;
    Line line = score.Melody("intro", four + "|" + four) + score.Melody("riff 1", four + "|" + four);
    line += score.Melody("riff 2", four) + score.Melody("finish", Turn);
    for (const char* verse : {"verse 1", "verse 2"})
        line += score.Bass(verse, "118151811.815831 | 118151811.81538<", 40);
    Brighten(line, 0, score.EndOf("intro"), -1.6, 1.0);
    Brighten(line, score.StartOf("verse 2"), score.EndOf("verse 2"), -0.6, 0.8);
    return line;
}

Line Bass(const Score& score)
{
    Line line = Moved(score.Melody("riff 1", std::string(RiffTune) + "|" + RiffTune), -12) +
                Moved(score.Melody("riff 2", RiffTune), -12);
    constexpr int Low = 28;
    line += score.Bass("intro", ". | . | . | . | 1.1.1.1.1.1.1.1. | % | 1.1.1.1.1.1.1.1. | 1.1.1.1.1.......", Low);
    for (const char* verse : {"verse 1", "verse 2"})
        line += score.Bass(verse, "1.111.1.1.111.5. | 1.111.1.1.111.8. | 1.111.1.1.111.5. | 1.111.1.1.1.5.<.", Low);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Bass(chorus, R"(
            1.1.1.1.1.1.1.5. | 1.1.1.1.1.1.1.<. | 1.1.1.1.1.1.8.5. | 1.1.1.1.1.8.5.3. |
            1.1.1.1.1.1.1.5. | 1.1.1.1.1.1.5.<. | 1.1.1.1.8.1.5.3. | 1.1.8.1.5.1.8.<.)",
                           Low);
    line += score.Bass("break", R"(
        1--------------- | 1-----------5-<- | 1--------------- | 1-----------5-8- |
        1--------------- | 1--------------- | 1.1.1.1.1.1.1.1. | 1.1.1.1.1111111<)",
                       Low);
    line += Moved(score.Melody("finish", R"(ff
        e2e> e2s e2s g2e e2s e2s a2e e2s e2s bb2e> a2e | e2e> e2s e2s g2e e2s e2s b2e a2e g2e f#2e |
        c3e> c3s c3s c3e c3s c3s d3e> d3s d3s d3e f#3e | e2w> | ~h rh)"),
                  -12);
    return line;
}

Line Arpeggio(const Score& score)
{
    const Range range{64, 83, 4};
    Line line;
    line += score.Arpeggio("chorus 2", "0123210301232103", range);
    line += score.Arpeggio("break",
                           "0.1.2.3.2.1.3.2. | 0.1.2.3.4.3.2.1. | 0.1.2.3.2.1.3.2. | 0.1.2.3.4.3.2.1. | "
                           "0123212301232123 | 0123432101234321 | 0123432101234321 | 0123456543234567",
                           range);
    line += score.Arpeggio("chorus 3", "0123456543210123 | 0213243546342312", range);
    Brighten(line, score.StartOf("break"), score.EndOf("break"), -1.5, 0.8);
    return line;
}

Kit Drums(const Score& score)
{
    Kit kit;
    score.Drums(kit, "intro", R"(
        kick    X...X...X...X... | % | % | X...X...X...X..x | X...X...X...X... | % | X...X...X...X... | X...X...........
        hat     . | . | ..x...x...x...x. | ..x...x...x.x.x. | x.x.x.x.x.x.x.x. | x.x.x.x.x.x.xoxo | xoxoxoxoxoxoxoxo | xoxoxoxo........
        clap    . | . | . | . | ....X.......X... | % | ....X.......X... | ....X...........
        snare   . | . | . | . | . | . | . | ........x.xxXXXX)");
    for (const char* riff : {"riff 1", "riff 2"})
        score.Drums(kit, riff, R"(
        kick    X.xxX..xX.xxX..x | X.xxX...X.xxX.x. | X.xxX..xX.xxX..x | X.x.X.xxX.x.X.xx
        snare   ....X.......X... | ....X.......X..o | ....X.......X... | ....X..o....X.xX
        open    ..x...x...x...x.
        hat     x...x...x...x...
        crash   X............... | . | . | .)");
    for (const char* verse : {"verse 1", "verse 2"})
        score.Drums(kit, verse, R"(
        kick    X...X...X...X... | X...X...X...X.x. | X...X...X...X... | X...X..xX...X.x.
        snare   ....X.......X... | ....X.......X... | ....X.......X... | ....X.......X..o | ....X.......X... | ....X.......X... | ....X.......X... | ....X..xX.xxXxXX
        hat     xoooxoooxoooxooo
        open    ..x...x...x...x.
        tom     . | . | . | . | . | . | . | .........x......)");
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        score.Drums(kit, chorus, R"(
        kick    X...X.x.X...X.x. | X...X.x.X..xX.x. | X...X.x.X...X.x. | X...X.xxX...X.xx
        snare   ....X.......X... | ....X.......X..o | ....X.......X... | ....X..o....X.X. | ....X.......X... | ....X.......X..o | ....X.......X... | ....X...X.x.XXXX
        clap    ....X.......X...
        ride    x.x.x.x.x.x.x.x.
        open    ..x...x...x...x.
        tom     . | . | . | ..............x. | . | . | . | .........x.x....
        floor   . | . | . | ...............x | . | . | . | ...........x....
        crash   X............... | . | X............... | . | X............... | . | x............... | .)");
    score.Drums(kit, "break", R"(
        kick    X............... | ..........x..... | X............... | ..........x..... | X.........X..... | X.........X.x... | X...X...X...X... | X.X.X.X.XXXXXXXX
        rim     ........x....... | ........x......x | ........x....... | ........x...x... | . | . | . | .
        snare   . | . | . | . | ........X....... | ........X....x.x | x...x...x...x... | x.x.x.x.xxxxrrrr
        hat     . | . | o...o...o...o... | o...o...o...o... | o.o.x.o.o.o.x.o. | o.o.x.o.o.o.x.oo | . | .
        tom     . | ............x... | . | ............x.x. | . | ............x... | . | .
        floor   . | ..............x. | . | . | . | ..............xx | . | .
        crash   X............... | . | . | . | x............... | . | . | .)");
    Grow(kit["snare"], score.EndOf("break") - 8, score.EndOf("break"), 0.3, 1.0);
    score.Drums(kit, "finish", R"(
        kick    X.xxX..xX.xxX..x | X.xxX...X.xxX.x. | X.x.X.x.X.x.X.xx | X............... | .
        snare   ....X.......X... | ....X.......X..o | ....X..XX..xXXXX | X............... | .
        open    ..x...x...x...x. | ..x...x...x...x. | ..x...x......... | . | .
        tom     . | . | .........xx..... | . | .
        crash   X............... | . | X.......X....... | X............... | .)");
    kit["crash"] += score.Marks({"intro", "verse 1", "verse 2"});
    kit["swell"] = score.Marks({"riff 1", "chorus 1", "chorus 2", "break"}, 4);
    kit["riser"] = score.Marks({"riff 1", "chorus 3"}, 16);
    kit["impact"] = score.Marks({"intro", "riff 1", "chorus 1", "break", "chorus 3"});
    kit["impact"].Notes.push_back({score.EndOf("finish") - 8, 1, 60, 60, 0.9, 0});
    return kit;
}

std::map<std::string, Drum> Sounds()
{
    return {
        {"kick",
         {Kick({.Hz = 50, .From = 260, .Sweep = 0.022, .Ring = 0.24, .Click = 0.9, .Drive = 2.4}),
          {.Loud = -21.5, .Loose = 0, .Touch = 0.03}}},
        {"snare",
         {Snare(
              {.Hz = 192, .Body = 1.0, .BodyRing = 0.12, .Wires = 0.85, .WiresRing = 0.2, .Tone = 2200, .Drive = 2.2}),
          {.Loud = -21.5, .Room = 0.16, .Loose = 0.001}}},
        {"rim", {Rim(), {.Loud = -31, .Room = 0.4}}},
        {"clap", {Clap(0.14), {.Loud = -26.5, .Room = 0.2}}},
        {"hat", {Hat(0.04), {.Loud = -35, .Pan = 0.2, .Loose = 0.001, .Touch = 0.12}}},
        {"open", {Hat(0.16), {.Loud = -32.5, .Pan = 0.2, .Room = 0.08}}},
        {"ride", {Ride(), {.Loud = -35, .Pan = -0.3, .Room = 0.08}}},
        {"tom", {Tom(0.32), {.Loud = -23.5, .Pan = -0.3, .Room = 0.25}, 54}},
        {"floor", {Tom(0.4), {.Loud = -23.5, .Pan = 0.3, .Room = 0.25}, 46}},
        {"crash", {Crash(1.7), {.Loud = -29, .Pan = -0.2, .Room = 0.25}}},
        {"swell", {Swell(), {.Loud = -31, .Room = 0.25}}},
        {"riser", {Riser(), {.Loud = -29, .Room = 0.25}}},
        {"impact", {Impact(), {.Loud = -25, .Room = 0.25}}},
    };
}

// Root, fifth and octave on three strings.
Instrument PowerChord(const PluckedSettings& settings)
{
    return [string = Plucked(settings)](const Tone& tone, Stereo& out)
    {
        constexpr double Strings[] = {0, 7, 12};
        std::uint32_t number = 0;
        for (const double semitones : Strings)
        {
            Tone each = tone;
            each.Hz *=
                std::exp2(semitones / 12) * (1 + 0.0012 * (HashUnit(static_cast<int>(number), 4, tone.Seed) - 0.5));
            each.FromHz = each.Hz;
            each.Start += 0.004 * number;
            each.Seed += ++number;
            string(each, out);
        }
    };
}

// An amplifier at its limit, and the closed box of its loudspeaker.
void Amplify(Stereo& guitar, double gain)
{
    CutLow(guitar, 95);
    Bell(guitar, 750, 0.7, 5);
    Drive(guitar, gain, 0.15);
    Drive(guitar, 6, 0.05);
    CutLow(guitar, 90);
    Bell(guitar, 420, 1.0, -3);
    Bell(guitar, 2300, 1.1, 3.5);
    CutHigh(guitar, 5200);
    CutHigh(guitar, 6500);
}

void RecordGuitars(Studio& studio, const Score& score)
{
    const PluckedSettings ringing{.Ring = 5, .Damp = 0.05, .Softness = 0.3, .Pick = 0.12, .Edge = 2600, .Grain = 0.35};
    const PluckedSettings damped{.Ring = 0.32, .Damp = 0.03, .Softness = 0.42, .Pick = 0.1, .Edge = 2200, .Grain = 0.4};
    Line riffs, chugs = Chugs(score);
    for (const Note& note : Riffs(score).Notes)
        (note.Length < 0.3 ? chugs : riffs).Notes.push_back(note); // sixteenths are damped
    const Line open = Open(score);
    // Played twice, once for either side: no two takes are alike.
    for (const double side : {-0.85, 0.85})
    {
        const auto amplify = [](Stereo& s) { Amplify(s, 30); };
        studio.Record(riffs, PowerChord(ringing),
                      {.Loud = -22, .Pan = side, .Room = 0.06, .Pump = 1.5, .Touch = 0.1, .Treat = amplify});
        studio.Record(chugs, PowerChord(damped),
                      {.Loud = -24.5, .Pan = side, .Room = 0.06, .Pump = 1.5, .Touch = 0.1, .Treat = amplify});
        studio.Record(open, PowerChord(ringing),
                      {.Loud = -24, .Pan = side, .Room = 0.08, .Pump = 2, .Touch = 0.1, .Treat = amplify});
    }
}
}

Stereo Tornanti()
{
    const Score score = Form();
    const double beat = score.Seconds(1);
    Studio studio(score, {.Seconds = 1.8, .Size = 1.0, .Before = 0.02, .Damp = 5500, .Low = 260},
                  {.Left = beat * 0.75, .Right = beat * 0.5, .Feedback = 0.38, .Low = 400, .High = 4500});
    const Kit kit = Drums(score);
    studio.PumpWith(kit.at("kick"), 0.15);
    studio.Record(kit, Sounds());
    RecordGuitars(studio, score);

    studio.Record(Bass(score),
                  Analog({.Voices = 2,
                          .Detune = 4,
                          .Pulse = 0.3,
                          .PulseWidth = 0.4,
                          .Sub = 0.3,
                          .Cutoff = 520,
                          .Track = 0.3,
                          .Sweep = 1.8,
                          .Resonance = 0.2,
                          .Drive = 3,
                          .Amp = {0.003, 0.4, 0.8, 0.05},
                          .Filter = {0.002, 0.15, 0.25, 0.1}}),
                  {.Loud = -21.5,
                   .Pump = 5,
                   .Loose = 0.001,
                   .Touch = 0.04,
                   .Treat = [](Stereo& s)
                   {
                       Drive(s, 6, 0.1);
                       CutLow(s, 36);
                       Bell(s, 1100, 0.8, 3);
                       CutHigh(s, 5000);
                   }});
    studio.Record(Sequence(score),
                  Analog({.Cutoff = 330,
                          .Track = 0.2,
                          .Sweep = 3.1,
                          .Resonance = 0.86,
                          .Touch = 3,
                          .Glide = 0.05,
                          .Drive = 1.6,
                          .Amp = {0.002, 0.3, 0.5, 0.03},
                          .Filter = {0.001, 0.14, 0.05, 0.05}}),
                  {.Loud = -25,
                   .Pan = 0,
                   .Room = 0.08,
                   .Echo = 0.1,
                   .Pump = 5,
                   .Loose = 0,
                   .Touch = 0.05,
                   .Treat =
                       [](Stereo& s)
                   {
                       Drive(s, 9, 0.1);
                       CutLow(s, 130);
                   },
                   .Ride = {{0, 3}, {score.EndOf("intro"), 3}, {score.EndOf("intro") + 1, -3}}});

    Line pads = score.Held("break", {52, 74, 5});
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        pads += score.Held(chorus, {52, 74, 4});
    studio.Record(pads,
                  Analog({.Voices = 7,
                          .Detune = 16,
                          .Width = 1,
                          .Cutoff = 1700,
                          .Track = 0.3,
                          .Sweep = 0.6,
                          .Resonance = 0.1,
                          .Drive = 0.5,
                          .Amp = {0.06, 0.6, 0.85, 0.35},
                          .Filter = {0.3, 1.0, 0.6, 0.4}}),
                  {.Loud = -26.5,
                   .Room = 0.22,
                   .Pump = 6,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 200);
                       Bell(s, 500, 0.9, -2);
                   }});
    studio.Record(
        Arpeggio(score),
        Analog({.Voices = 2,
                .Detune = 7,
                .Width = 0.6,
                .Cutoff = 1700,
                .Sweep = 1.8,
                .Resonance = 0.3,
                .Amp = {0.002, 0.2, 0.15, 0.1},
                .Filter = {0.001, 0.14, 0.05, 0.1}}),
        {.Loud = -28, .Pan = 0.2, .Room = 0.18, .Echo = 0.3, .Pump = 4, .Treat = [](Stereo& s) { CutLow(s, 300); }});
    Line bells = score.Melody("break", R"(mp
        e5h. c6q | b5h g5h | e5q. g5q. b5q | a5h. g5q | b5q. d6q. b5q | a5q. f#5q. d5q | e5q. f#5q. a5q | b5h d#6h)");
    studio.Record(
        bells,
        Metal(
            {.Ratio = 3.5, .Depth = 1.2, .DepthTime = 0.6, .Chime = 0.1, .ChimeRatio = 7, .Amp = {0.002, 1.6, 0, 0.8}}),
        {.Loud = -23, .Room = 0.4, .Echo = 0.35});

    const Line lead = Lead(score);
    const AnalogSettings voice{.Voices = 2,
                               .Detune = 6,
                               .Pulse = 0.25,
                               .PulseWidth = 0.3,
                               .Cutoff = 2600,
                               .Track = 0.6,
                               .Sweep = 0.8,
                               .Resonance = 0.15,
                               .Vibrato = 24,
                               .Scoop = 0.4,
                               .Glide = 0.1,
                               .Amp = {0.008, 0.5, 0.85, 0.12},
                               .Filter = {0.01, 0.5, 0.6, 0.2}};
    const auto amplify = [](Stereo& s)
    {
        Drive(s, 14, 0.2);
        CutLow(s, 220);
        Bell(s, 1500, 0.9, 2);
        CutHigh(s, 5500);
    };
    studio.Record(lead, Analog(voice), {.Loud = -21.3, .Room = 0.2, .Echo = 0.28, .Pump = 1, .Treat = amplify});
    Line second;
    for (const Note& note : score.Below(lead, 3).Notes)
        if (note.Start >= score.StartOf("chorus 2"))
            second.Notes.push_back(note);
    studio.Record(second, Analog(voice),
                  {.Loud = -25, .Pan = 0.35, .Room = 0.24, .Echo = 0.2, .Pump = 1, .Late = 0.005, .Treat = amplify});
    return studio.Master({{0, 0},
                          {score.StartOf("verse 1") - 0.5, 0},
                          {score.StartOf("verse 1"), -1},
                          {score.StartOf("chorus 1") - 0.5, -1},
                          {score.StartOf("chorus 1"), 0.5},
                          {score.StartOf("riff 2"), 0},
                          {score.StartOf("verse 2"), -1},
                          {score.StartOf("chorus 2") - 0.5, -0.5},
                          {score.StartOf("chorus 2"), 0.6},
                          {score.StartOf("break"), -1.5},
                          {score.StartOf("chorus 3") - 0.5, 0},
                          {score.StartOf("chorus 3"), 1},
                          {score.EndOf("finish") - 6, 0},
                          {score.EndOf("finish") + 6, -30}});
}
}
