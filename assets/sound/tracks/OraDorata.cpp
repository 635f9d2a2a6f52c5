// SPDX-License-Identifier: Zlib
// Ora dorata: E flat major, 92 beats a minute. A bossa nova for the last light; its bridge wanders to G flat and finds
// home over a chain of fifths, the guitar then improvises over the first strain.
#include "assets/sound/Tracks.h"

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
constexpr auto StrainChords = "Ebmaj9 | Ebmaj9 | Am7b5 D7b9 | Gm9 | Abmaj7 | Gm7 C7b9 | Fm9 | Bb13";
constexpr auto ClosingChords = "Ebmaj9 | Ebmaj9 | Am7b5 D7b9 | Gm9 | Abmaj7 | Gm7 C7b9 | Fm9 Bb13 | Eb69";

Score Form()
{
    return Score({.Bpm = 92, .Swing = 0.52},
                 {{"intro", 4, "Ebmaj9 | Cm9 | Fm9 | Bb9sus4 Bb7b9"},
                  {"strain 1", 8, StrainChords},
                  {"strain 2", 8, ClosingChords},
                  {"bridge", 8, "Abm9 | Db13 | Gbmaj9 | Gbmaj9 | Fm9 | Bb13 | Gm7 C7b9 | Fm9 Bb13"},
                  {"solo", 8, StrainChords},
                  {"strain 3", 8, ClosingChords},
                  {"coda", 5, "Abmaj7 | Gm7 C7b9 | Fm9 Bb13 | Ebmaj9 | Ebmaj9"}});
}

Line Whistled(const Score& score)
{
    Line line = score.Melody("strain 1", R"(mf
        g5q. f5e d5q. bb4e | c5e d5e f5q_ g5h | g5q. eb5e d5e eb5e f#5q_ | a5q. g5e d5h |
        eb5e g5e bb5q_ c6q bb5e g5e | f5q. d5e e5e g5e bb5e db6e_ | c6q. ab5e g5e f5e eb5q | d5e g5q. f5h)");
    line += score.Melody("strain 2", R"(mf
        g5q. f5e d5q. bb4e | c5e d5e f5q_ bb5h_ | c6q. a5e f#5e g5e a5q_ | bb5q. a5e d5h_ |
        eb5e g5e bb5q_ c6q d6e c6e | bb5q. g5e e5e g5e bb5e db6e_ | c6q. ab5e g5e f5e d5e f5e | eb5q. f5e g5h_)");
    line += score.Melody("strain 3", R"(f
        g5q. f5e d5q. bb4e | c5e d5e f5q_ bb5h_ | c6q. a5e f#5e a5e c6e eb6e_ | d6q. c6e bb5q a5q |
        c6e bb5e g5q_ c6q eb6e d6e_ | d6q. bb5e g5e bb5e e5e g5e | ab5q. c6e d6e c6e bb5e f5e | g5q. f5e eb5h_)");
    line += score.Melody("coda", R"(mf
        eb5e g5e bb5q_ c6q bb5e g5e | f5q. d5e e5e g5e bb5e db6e_ | mp c6q. ab5e g5q f5q | g5w_ | ~w)");
    return line;
}

// A soft horn takes the bridge and answers in the last strain.
Line Horn(const Score& score)
{
    Line line = score.Melody("bridge", R"(mf
        bb5q. ab5e eb5h_ | bb5e ab5e f5q ab5e bb5q. | ab5h_ f5q db5q | rq bb4e db5e f5e ab5e bb5q_ |
        f c6q. bb5e ab5q g5q | g5q. f5e d5h_ | bb5q. g5e e5e g5e db6q_ | c6q ab5e g5e f5q d5q)");
    line += score.Melody("strain 3", R"(mp
        rh rq d5q | rh d5e eb5e f5q | rw | rh rq d5e f5e | g5h_ eb5h | rw | rw | rq bb4e c5e bb4h)");
    return line;
}

// Written out as a hand would find it: runs, and rests to breathe in.
Line Solo(const Score& score)
{
    Line line = score.Melody("intro", R"(mp
        re bb4e d5e f5e g5q. d5e | eb5q. d5e bb4h | re c5e eb5e g5e ab5q. g5e | f5e eb5e c5e eb5e d5e cb5e ab4q)");
    line += score.Melody("solo", R"(f
        re bb4e d5s eb5s f5e g5e bb5e d6e c6e | bb5q. g5e f5e d5e bb4q |
        c6e a5e g5e eb5e f#5e a5e c6e eb6e | d6q. bb5e a5e f5e d5q |
        re c5e eb5e g5e ab5s bb5s c6e eb6e g6e | f6e d6e bb5e g5e e5e g5e bb5e db6e |
        c6q. ab5e g5s ab5s g5s f5s eb5q | d5e f5e g5e bb5e c6e bb5e g5e d5e)");
    line += score.Melody("coda", "p rw | rw | rw | rq bb4e d5e f5e g5e bb5e d6e | g6h. rq");
    return line;
}

constexpr Range Hand{52, 71, 4};

// The thumb keeps the beat with the bass; the fingers lie before it and behind it.
Line Guitar(const Score& score)
{
    constexpr auto Clave = "x-.x--.x-.x-.x-. | .x-.x-.x--.x-.x-";
    Line line = score.Comp("intro", "x--.x-.x-.x-.x-. | .x-.x-.x--.x-.x-", Hand);
    for (const char* section : {"strain 1", "strain 2", "bridge", "solo", "strain 3"})
        line += score.Comp(section, Clave, Hand);
    line += score.Comp("coda", "x-.x--.x-.x-.x-. | .x-.x-.x--.x-.x- | x-.x--.x-.x-.x-. | x--------------- | .", Hand);
    return Strummed(score, line, 0.005);
}

Line Piano(const Score& score)
{
    const Range range{55, 75, 4};
    Line line = score.Comp("intro", "X-------....x--- | x-------........ | x-------....x--- | x-------x-------", range);
    line += score.Comp("strain 2", "......x--....x-- | ..x--.......x---", range);
    line += score.Comp("bridge", "x------.......x- | ....x---........", range);
    line += score.Comp("solo", "..x-....x-...x-. | ....x--.....x-..", range);
    line += score.Comp("strain 3", "......x--....x-- | ..x--.......x---", range);
    line += score.Comp("coda", "x------......x-- | % | x------.x------- | x--------------- | x---------------", range);
    return line;
}

Line Bass(const Score& score)
{
    constexpr int Low = 28;
    Line line = score.Bass("intro", "1----15-----51-- | 1----15-----5--< | 1----15-----51-- | 1----15-8---5-<-", Low);
    for (const char* strain : {"strain 1", "solo"})
        line += score.Bass(strain, R"(
            1----15-----51-- | 1----15-----5-<- | 1----1-<1----1-< | 1----15-----3-<- |
            1----15-----51-- | 1----1-<1----1-< | 1----15-----51-- | 1----15-----5-<-)",
                           Low);
    for (const char* strain : {"strain 2", "strain 3"})
        line += score.Bass(strain, R"(
            1----15-----51-- | 1----15-----5-<- | 1----1-<1----1-< | 1----15-----3-<- |
            1----15-----51-- | 1----1-<1----1-< | 1----1-<1----1-> | 1----15-8---5-<-)",
                           Low);
    line += score.Bass("bridge", R"(
        1----15-----51-- | 1----15-----5-<- | 1----15-----51-- | 1----15-----5-<- |
        1----15-----51-- | 1----15-----5->- | 1----1-<1----1-< | 1----1-<1----1-<)",
                       Low);
    line += score.Bass("coda", R"(
        1----15-----5-<- | 1----1-<1----1-< | 1----1-<1----1-> | 1--------------- | --------........)",
                       Low);
    return line;
}

Kit Drums(const Score& score)
{
    Kit kit;
    score.Drums(kit, "intro", R"(
        kick    X..xx..xx..xx..x | % | % | X..xx..xx.......
        shaker  xoxoxoxoxoxoxoxo
        rim     . | . | x..x..x...x..x.. | x..x..x.....x.x.
        crash   X............... | . | . | .
        snare   . | . | . | ..........o.x.xx)");
    for (const char* section : {"strain 1", "strain 2", "bridge", "solo", "strain 3"})
        score.Drums(kit, section, R"(
        kick    X..xx..xx..xx..x
        rim     x..x..x...x..x.. | ..x..x...x..x..x
        shaker  xoxoxoxoxoxoxoxo)");
    for (const char* section : {"strain 2", "solo", "strain 3"})
        score.Drums(kit, section, R"(
        hat     x.o.x.o.x.o.x.o.
        conga   ......xx......x. | ..x...xx..x...xx
        tumba   ..........x....x)");
    score.Drums(kit, "bridge", R"(
        ride    x.o.x.oox.o.x.o.
        tumba   ..........x....x
        snare   . | . | . | ............o.xx | . | . | . | ....x..o..x.xxXX)");
    for (const char* section : {"solo", "strain 3"})
        score.Drums(kit, section, R"(
        snare   ....x..o.o..x..o | ....x..o....x.o. | ....x..o.o..x..o | ....x..o..o.x.oo
        ride    x.x.x.x.x.x.x.x.
        tamb    ....x.......x...)");
    score.Drums(kit, "coda", R"(
        kick    X..xx..xx..xx..x | X..xx..xx..xx..x | X..xx..xX.....x. | X............... | .
        rim     x..x..x...x..x.. | ..x..x...x..x..x | x..x..x......... | . | .
        shaker  xoxoxoxoxoxoxoxo | % | xoxoxoxox....... | . | .
        tom     . | . | ..........x.x... | . | .
        floor   . | . | ..............x. | . | .
        crash   . | . | . | x............... | .)");
    kit["crash"] += score.Marks({"strain 1", "bridge", "solo", "strain 3"});
    kit["swell"] = score.Marks({"bridge", "solo", "strain 3"}, 3);
    return kit;
}

std::map<std::string, Drum> Sounds()
{
    return {
        {"kick",
         {Kick({.Hz = 56, .From = 120, .Sweep = 0.03, .Ring = 0.24, .Click = 0.35, .Drive = 1.3}),
          {.Loud = -25, .Loose = 0.002, .Touch = 0.06}}},
        {"snare",
         {Snare({.Hz = 195, .Body = 0.6, .BodyRing = 0.08, .Wires = 0.9, .WiresRing = 0.14, .Tone = 3200}),
          {.Loud = -27, .Pan = 0.1, .Room = 0.25, .Loose = 0.004, .Touch = 0.12}}},
        {"rim", {Rim(), {.Loud = -27, .Pan = 0.3, .Room = 0.3, .Loose = 0.003}}},
        {"hat", {Hat(0.04), {.Loud = -35, .Pan = 0.5, .Room = 0.06, .Loose = 0.003, .Touch = 0.15}}},
        {"ride", {Ride(), {.Loud = -34, .Pan = -0.5, .Room = 0.12, .Loose = 0.003, .Touch = 0.1}}},
        {"shaker", {Shaker(), {.Loud = -33.5, .Pan = -0.6, .Room = 0.12, .Loose = 0.003, .Touch = 0.2}}},
        {"tamb", {Tambourine(), {.Loud = -37, .Pan = 0.6, .Room = 0.2}}},
        {"conga", {Conga(), {.Loud = -28, .Pan = 0.45, .Room = 0.22, .Touch = 0.12}, 58}},
        {"tumba", {Conga(), {.Loud = -28, .Pan = 0.25, .Room = 0.22, .Touch = 0.12}, 51}},
        {"tom", {Tom(0.3), {.Loud = -26, .Pan = -0.4, .Room = 0.3}, 55}},
        {"floor", {Tom(0.38), {.Loud = -26, .Pan = 0.4, .Room = 0.3}, 48}},
        {"crash", {Crash(1.8), {.Loud = -32, .Pan = -0.3, .Room = 0.35}}},
        {"swell", {Swell(), {.Loud = -34, .Room = 0.35}}},
    };
}

void RecordBass(Studio& studio, const Score& score)
{
    const Line bass = Bass(score);
    studio.Record(bass, Plucked({.Ring = 1.8, .Damp = 0.09, .Softness = 0.46, .Pick = 0.2, .Edge = 900, .Grain = 0.15}),
                  {.Loud = -24,
                   .Loose = 0.004,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 50);
                       Bell(s, 750, 0.8, 4);
                       Compress(s, -26, 2.5, 0.01, 0.15);
                   }});
    studio.Record(bass,
                  Analog({.Cutoff = 220,
                          .Track = 0.6,
                          .Sweep = 0.8,
                          .Amp = {0.006, 0.7, 0.6, 0.09},
                          .Filter = {0.003, 0.2, 0.2, 0.1}}),
                  {.Loud = -25, .Pump = 1.5, .Loose = 0.004, .Treat = [](Stereo& s) { CutLow(s, 34); }});
}

void RecordGuitars(Studio& studio, const Score& score)
{
    const auto wood = [](Stereo& s)
    {
        CutLow(s, 120);
        Bell(s, 220, 1.1, 2);
        Bell(s, 2800, 0.8, 2);
        Compress(s, -27, 2.2, 0.01, 0.15);
    };
    studio.Record(Guitar(score),
                  Plucked({.Ring = 2.2, .Damp = 0.1, .Softness = 0.4, .Pick = 0.2, .Edge = 2300, .Grain = 0.2}),
                  {.Loud = -24.5, .Pan = -0.65, .Room = 0.22, .Loose = 0.005, .Touch = 0.1, .Treat = wood});
    studio.Record(Solo(score),
                  Plucked({.Ring = 2.6, .Damp = 0.14, .Softness = 0.38, .Pick = 0.22, .Edge = 2600, .Grain = 0.2}),
                  {.Loud = -21.5,
                   .Pan = 0.15,
                   .Room = 0.3,
                   .Echo = 0.16,
                   .Treat = [wood](Stereo& s)
                   {
                       Drive(s, 3);
                       wood(s);
                   }});
}

void RecordKeys(Studio& studio, const Score& score)
{
    studio.Record(Piano(score),
                  Metal({.Ratio = 1, .Depth = 1.5, .DepthTime = 0.6, .Chime = 0.12, .ChimeRatio = 14, .Tremolo = 0.4}),
                  {.Loud = -26,
                   .Pan = 0.35,
                   .Room = 0.26,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 140);
                       Chorus(s, 0.6, 0.5);
                   }});
    Line strings = score.Held("strain 2", {55, 77, 5});
    for (const char* section : {"bridge", "strain 3", "coda"})
        strings += score.Held(section, {55, 77, 5});
    strings = Yielding(strings, Whistled(score) + Horn(score));
    studio.Record(strings,
                  Analog({.Voices = 7,
                          .Detune = 13,
                          .Width = 1,
                          .Cutoff = 1300,
                          .Track = 0.4,
                          .Sweep = 0.6,
                          .Resonance = 0.1,
                          .Drive = 0.5,
                          .Amp = {0.22, 0.8, 0.85, 0.7},
                          .Filter = {0.5, 1.2, 0.6, 0.6}}),
                  {.Loud = -27,
                   .Room = 0.35,
                   .Treat =
                       [](Stereo& s)
                   {
                       CutLow(s, 180);
                       Chorus(s, 0.6, 0.4);
                   },
                   .Ride = {{0, -1}, {score.StartOf("bridge"), 1}, {score.EndOf("bridge"), 0}}});
}

void RecordTunes(Studio& studio, const Score& score)
{
    const Line tune = Whistled(score);
    studio.Record(tune, Whistle({.Breath = 0.08, .Octave = 0.2, .Vibrato = 20}),
                  {.Loud = -20.5, .Pan = -0.1, .Room = 0.34, .Echo = 0.22, .Loose = 0.006});
    Line second;
    for (const Note& note : score.Below(tune, 3).Notes)
        if (note.Start >= score.StartOf("strain 3"))
            second.Notes.push_back(note);
    studio.Record(second, Whistle({.Breath = 0.08, .Octave = 0.2, .Vibrato = 16}),
                  {.Loud = -25.5, .Pan = 0.5, .Room = 0.36, .Echo = 0.18, .Loose = 0.006, .Late = 0.01});
    studio.Record(Horn(score),
                  Analog({.Voices = 2,
                          .Detune = 5,
                          .Width = 0.3,
                          .Cutoff = 620,
                          .Track = 0.7,
                          .Sweep = 1.5,
                          .Resonance = 0.1,
                          .Touch = 2,
                          .Vibrato = 15,
                          .Scoop = 0.3,
                          .Glide = 0.09,
                          .Amp = {0.03, 0.4, 0.85, 0.14},
                          .Filter = {0.06, 0.5, 0.55, 0.15}}),
                  {.Loud = -21,
                   .Pan = 0.12,
                   .Room = 0.34,
                   .Echo = 0.2,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 180);
                       Bell(s, 1300, 0.9, 2);
                   }});
}
}

Stereo OraDorata()
{
    const Score score = Form();
    const double beat = score.Seconds(1);
    Studio studio(score, {.Seconds = 2.1, .Size = 1.05, .Before = 0.024, .Damp = 5200, .Low = 240},
                  {.Left = beat * 0.75, .Right = beat * 0.5, .Feedback = 0.34, .Low = 350, .High = 4000});
    const Kit kit = Drums(score);
    studio.PumpWith(kit.at("kick"), 0.16);
    studio.Record(kit, Sounds());
    RecordBass(studio, score);
    RecordGuitars(studio, score);
    RecordKeys(studio, score);
    RecordTunes(studio, score);
    return studio.Master({{0, 0.5},
                          {score.StartOf("strain 1"), -0.8},
                          {score.StartOf("strain 2"), -0.3},
                          {score.StartOf("bridge"), 0.2},
                          {score.StartOf("solo"), 0},
                          {score.StartOf("strain 3"), 0.8},
                          {score.EndOf("coda") - 6, 0.5},
                          {score.EndOf("coda") + 4, -24}});
}
}
