// SPDX-License-Identifier: Zlib
// Luci sul lago: A minor, later B minor, 110 beats a minute. The hook is the rising 3 + 3 + 2 of the chorus.
#include "assets/sound/Tracks.h"

#include "assets/sound/score/Studio.h"
#include "assets/sound/synth/Analog.h"
#include "assets/sound/synth/Cymbals.h"
#include "assets/sound/synth/Drums.h"
#include "assets/sound/synth/Keys.h"

namespace assets::sound
{
namespace
{
constexpr auto VerseChords = "Am9 | Fmaj7 | Dm9 | Em7 | Am9 | Fmaj7 | Dm9 | E7sus4 E7";
constexpr auto ChorusChords = "Fmaj9 | G6 | Em7 | Am9 | Dm9 | G7sus4 G | Cadd9 | E7/G#";

Score Form()
{
    return Score({.Bpm = 110}, {{"intro", 8, VerseChords},
                                {"verse 1", 8, VerseChords},
                                {"chorus 1", 8, ChorusChords},
                                {"verse 2", 8, VerseChords},
                                {"chorus 2", 8, "Fmaj9 | G6 | Em7 | Am9 | Dm9 | G7sus4 G | Cadd9 | C7/E"},
                                {"bridge", 6, "Bbmaj7 | C6 | Am7 | Dm9 | Bbmaj7 C6 | D7sus4 D7"},
                                {"chorus 3", 8, ChorusChords, 2},
                                {"coda", 5, "Fmaj9 | G6 | Cadd9 | Cadd9 | Cadd9", 2}});
}

Line Lead(const Score& score)
{
    Line line;
    line += score.Melody("verse 1", "mp e5q. d5e c5q b4q  | c5h rq a4e c5e | d5q. e5e f5q e5q | d5h rq. b4e |"
                                    "mf c5q. d5e e5q g5q_ | a5h g5e e5e_ c5q | d5q. e5e f5e e5e d5q | e5h g#4q b4q");
    line += score.Melody("chorus 1", "f  c5q. e5q. a5q_  | b5q. a5q. g5q   | g5q. e5q. d5q | e5h rq c5e d5e |"
                                     "   f5q. e5q. d5q   | d5q. g5q._ b5q  | c6h._ b5e g5e | e5q. g#5q. b5q");
    line += score.Melody("verse 2", "mf e5q. d5e c5e d5e e5q | f5q. e5e c5h | d5q. e5e f5e g5e a5q_ | g5h e5q d5q |"
                                    "   c5q. d5e e5q a5q_    | c6q. b5e a5q e5q | f5q. g5e a5q. f5e | e5q b4q g#5h_");
    line += score.Melody("chorus 2", "f  c5q. e5q. a5q_ | b5q. a5q. g5q  | g5q. e5q. d5q | e5q. c5e e5q g5q_ |"
                                     "   a5q. f5q. d5q  | d5q. g5q._ b5q | c6h._ b5e g5e | g5q. e5q. c5q");
    line += score.Melody("bridge", "mp d5h. f5q | e5h. g5q | c5h. e5q | f5h e5q d5q | mf f5q. a5e_ g5q. e5e |"
                                   "   f g5h f#5h_");
    line += score.Melody("chorus 3", "ff c5q. e5q. a5q_ | b5q. a5q. g5q  | g5q. e5q. d5q | e5q. c5e e5q g5q_ |"
                                     "   a5q. f5q. d5q  | d5q. g5q._ b5q | c6h._ b5e g5e | e5q. g#5q. b5q_");
    line += score.Melody("coda", "f c6q. b5q. a5q_ | b5q. a5q. g5q | mf e5q. d5q. g4q_ | c5w | ~w");
    return line;
}

// The choruses in two parts, and a high answer in the second verse.
Line SecondVoice(const Score& score, const Line& lead)
{
    Line sung;
    for (const Note& note : lead.Notes)
        if ((note.Start >= score.StartOf("chorus 2") && note.Start < score.EndOf("chorus 2")) ||
            note.Start >= score.StartOf("chorus 3"))
            sung.Notes.push_back(note);
    return score.Below(sung, 3);
}

Line Bells(const Score& score)
{
    Line line;
    line += score.Melody("intro", "mf e6w | rw | rw | rw | mp e6q. c6q. b5q | a5w | f6q. e6q. d6q | e6h g#6q b5q");
    line += score.Melody("verse 1", "rw | rh e6e c6e a5q | rw | rh g5e b5e e6q | rw | rw | rw | rh rq b5q");
    line += score.Melody("verse 2", "rw | rh a6e e6e c6q | rw | rq e6e g6e b6h | rw | rh rq c7q | rw | rq e6e d6e b5h");
    line += score.Melody("bridge", "p d6e f6e a6e f6e d6e f6e a6e c7e | e6e g6e c7e g6e e6e g6e c7e e7e |"
                                   "  c6e e6e g6e e6e c6e e6e g6e a6e | mp d6e f6e a6e f6e e6e a6e f6e e6e |"
                                   "  d6e f6e a6e d7e e6e g6e c7e e7e | mf g6e a6e d7e a6e f#6e a6e d7e f#7e");
    line += score.Melody("coda", "rw | rw | mp g6e e6e d6e c6e g6e e6e d6e c6e | e7w | ~w");
    return line;
}

Line Arpeggio(const Score& score)
{
    const Range range{60, 79, 4};
    Line line = score.Arpeggio("intro", "0.2.1.3.2.1.3.2. | 0.2.1.3.4.3.1.2.", range);
    line += score.Arpeggio("verse 1", "0.2.1.3.2.1.3.2. | 0.2.1.3.4.3.1.2.", range);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Arpeggio(chorus, "0123456543210123 | 0213243546342312", range);
    line += score.Arpeggio("verse 2", "0.213.2.0.314.3. | 0.213.2.4.532.1.", range);
    line +=
        score.Arpeggio("coda", "0123456543210123 | 0123456543210123 | 0.1.2.3.4.3.2.1. | 0.1.2.3.4.5.6... | .", range);
    Brighten(line, 0, score.EndOf("intro"), -2.6, 0.3);
    Brighten(line, score.EndOf("coda") - 8, score.EndOf("coda"), 0, -2);
    return line;
}

Line Bass(const Score& score)
{
    constexpr int Low = 28;
    Line line = score.Bass("intro",
                           "1--------------- | % | % | % |"
                           "1--------------- | 1--------------- | 1--------------- | 1-------1---5-<-",
                           Low);
    line += score.Bass("verse 1", "1-1-1-1-1-1-8-5- | 1-1-1-1-1-8-1-5- | 1-1-1-1-1-1-8-5- | 1-1-1-1-1-8-5-<-", Low);
    line += score.Bass("verse 2", "1-1-118-1-1-8-5- | 1-1-118-1-8-1-5- | 1-1-118-1-1-8-5- | 1-1-118-1-8-5-<-", Low);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Bass(chorus,
                           "1.11.118.11.118. | 1.11.118.11.115. | 1.11.118.11.118. | 1.11.118.11.5.<. |"
                           "1.11.118.11.118. | 1.11.115.1.11.8. | 1.11.118.11.118. | 1.11.118.115.8.<",
                           Low);
    line += score.Bass("bridge",
                       "1--------------- | 1-------------5- | 1--------------- | 1-------8-----<- |"
                       "1-------1------- | 1-1-1-1-1-1-1-<-",
                       Low);
    line += score.Bass(
        "coda", "1.11.118.11.118. | 1.11.118.11.5.<. | 1-------8---5--- | 1--------------- | --------........", Low);
    return line;
}

Kit Drums(const Score& score)
{
    Kit kit;
    score.Drums(kit, "intro", R"(
        kick    X............... | . | . | . | X...X...X...X... | % | % | X...X...X.......
        hat     . | . | . | . | o.x.o.x.o.x.o.x. | o.x.o.x.o.x.o.xo | o.x.o.x.o.x.o.x. | o.x.o.x.........
        snare   . | . | . | . | . | . | . | ........x.x.xoXx)");
    for (const char* verse : {"verse 1", "verse 2"})
        score.Drums(kit, verse, R"(
        kick    X.....x.X....... | X.....x.X..x.... | X.....x.X....... | X.....x.X.x.....
        hat     x.o.x.o.x.o.x.o. | x.o.x.o.x.o.x.oo | x.o.x.o.x.o.x.o. | x.o.xoo.x.o.x...)");
    score.Drums(kit, "verse 1", R"(
        snare   ....X.......X... | % | % | ....X.......X..o | ....X.......X... | % | % | ....X...x..xxrXX)");
    score.Drums(kit, "verse 2", R"(
        snare   ....X.......X... | % | % | ....X.......X..o | ....X.......X... | ....X..o....X..o | % | ....X.......XxXX
        tom     . | . | . | . | . | . | . | ........XxX.....
        floor   . | . | . | . | . | . | . | ...........x....)");
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        score.Drums(kit, chorus, R"(
        kick    X...X...X...X... | X...X...X...X..x | X...X...X...X... | X...X...X..xX...
        clap    ....X.......X...
        snare   ....X.......X... | ....X.......X..o | ....X.......X... | ....X..o....X.o. | ....X.......X... | ....X.......X..o | ....X.......X... | ....X...x.x.x...
        hat     xoooxooxxoooxoox | xoooxooxxoooxooo
        open    ..x...x...x...x.
        ride    x...o...x...o...
        tom     . | . | . | . | . | . | . | .........x.x....
        floor   . | . | . | . | . | . | . | .............xXX
        crash   X............... | . | . | . | x............... | . | . | .)");
    // The bridge holds its breath; the snare calls the last chorus.
    score.Drums(kit, "bridge", R"(
        kick    X............... | ..........x..... | X............... | ..........x.x... | X.......X....... | X...X...X...X...
        tom     ............x... | ............x.x. | ............x... | ........x...x.x. | ......x.......x. | .
        floor   ..............x. | . | ..............x. | ..............x. | . | .
        snare   . | . | . | . | x.......x.....x. | x.x.x.x.xxxxrrrr)");
    Grow(kit["snare"], score.EndOf("bridge") - 8, score.EndOf("bridge"), 0.3, 1.0);
    score.Drums(kit, "coda", R"(
        kick    X...X...X...X... | X...X...X...X..x | X............... | X............... | .
        snare   ....X.......X... | ....X...x.x.xxXX | . | . | .
        clap    ....X.......X... | ....X........... | . | . | .
        hat     xoooxooxxoooxoox | xoooxooxxooo.... | . | . | .
        open    ..x...x...x...x. | ..x...x......... | . | . | .
        floor   . | . | ..x.....x...x... | . | .
        crash   X............... | . | X............... | x............... | .)");
    kit["crash"] += score.Marks({"intro", "verse 1", "verse 2", "bridge"});
    // What announces the next section.
    kit["swell"] = score.Marks({"verse 1", "chorus 1", "verse 2", "chorus 2"}, 4);
    kit["riser"] = score.Marks({"chorus 1", "chorus 3"}, 8);
    kit["impact"] = score.Marks({"intro", "chorus 1", "bridge", "chorus 3"});
    return kit;
}

// The sound of the decade: a big room on the snare that is gone at once.
void Gate(Stereo& snare)
{
    Stereo wet = Room(snare, {.Seconds = 0.9, .Size = 0.55, .Before = 0.006, .Damp = 7500, .Low = 160});
    Compress(wet, -34, 3, 0.002, 0.05);
    snare.Add(wet, 0.9, 0.9);
    Bell(snare, 210, 1, 2);
}

std::map<std::string, Drum> Sounds()
{
    return {
        {"kick",
         {Kick({.Hz = 47, .From = 210, .Ring = 0.34, .Click = 0.5, .Drive = 2}),
          {.Loud = -22.5, .Loose = 0, .Touch = 0.03}}},
        {"snare",
         {Snare({.Hz = 178, .Body = 1.0, .Wires = 0.9, .WiresRing = 0.24, .Tone = 2000}),
          {.Loud = -21, .Room = 0.16, .Loose = 0.002, .Treat = Gate}}},
        {"clap", {Clap(0.16), {.Loud = -26, .Room = 0.3, .Late = 0.004}}},
        {"hat", {Hat(0.055), {.Loud = -34, .Pan = 0.22, .Loose = 0.002, .Touch = 0.15}}},
        {"open", {Hat(0.24), {.Loud = -33, .Pan = 0.22, .Room = 0.1}}},
        {"ride", {Ride(), {.Loud = -36, .Pan = -0.35, .Room = 0.1}}},
        {"tom", {Tom(0.38), {.Loud = -23.5, .Pan = -0.3, .Room = 0.4}, 57}},
        {"floor", {Tom(0.45), {.Loud = -23.5, .Pan = 0.35, .Room = 0.4}, 49}},
        {"crash", {Crash(1.9), {.Loud = -30, .Pan = -0.15, .Room = 0.35}}},
        {"swell", {Swell(), {.Loud = -30, .Room = 0.3}}},
        {"riser", {Riser(), {.Loud = -30, .Room = 0.3}}},
        {"impact", {Impact(), {.Loud = -25, .Room = 0.3}}},
    };
}
}

Stereo LuciSulLago()
{
    const Score score = Form();
    const double beat = score.Seconds(1);
    Studio studio(score, {.Seconds = 2.6, .Size = 1.15, .Before = 0.03, .Damp = 4800, .Low = 240},
                  {.Left = beat * 0.75, .Right = beat * 0.75, .Feedback = 0.42, .Low = 350, .High = 4200});
    const Kit kit = Drums(score);
    studio.PumpWith(kit.at("kick"), 0.26);
    studio.Record(kit, Sounds());

    studio.Record(Bass(score),
                  Analog({.Voices = 2,
                          .Detune = 5,
                          .Pulse = 0.35,
                          .PulseWidth = 0.42,
                          .Sub = 0.55,
                          .Cutoff = 420,
                          .Track = 0.3,
                          .Sweep = 2.2,
                          .Resonance = 0.28,
                          .Drive = 1.8,
                          .Amp = {0.003, 0.5, 0.75, 0.07},
                          .Filter = {0.002, 0.22, 0.12, 0.1}}),
                  {.Loud = -21.5,
                   .Pump = 7,
                   .Loose = 0.0015,
                   .Touch = 0.04,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 34);
                       Bell(s, 900, 0.8, 2);
                   }});

    Line pads = score.Held("intro", {50, 72, 5});
    for (const char* section : {"verse 1", "chorus 1", "verse 2", "chorus 2", "bridge", "chorus 3", "coda"})
        pads += score.Held(section, {50, 72, 5});
    Brighten(pads, 0, score.EndOf("intro"), -1.3, 0);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        Brighten(pads, score.StartOf(chorus), score.EndOf(chorus), 0.9, 1.1);
    studio.Record(
        pads,
        Analog({.Voices = 7,
                .Detune = 14,
                .Width = 0.95,
                .Cutoff = 1100,
                .Track = 0.3,
                .Sweep = 0.7,
                .Resonance = 0.12,
                .Drive = 0.5,
                .Amp = {0.16, 0.8, 0.85, 0.9},
                .Filter = {0.5, 1.5, 0.5, 0.8}}),
        {.Loud = -26,
         .Room = 0.3,
         .Pump = 5,
         .Treat =
             [](Stereo& s)
         {
             CutLow(s, 150);
             Bell(s, 420, 0.9, -2.5);
             Chorus(s, 0.7, 0.5);
         },
         .Ride = {
             {0, 3}, {16, 2}, {score.EndOf("intro"), 0}, {score.EndOf("coda") - 4, 0}, {score.EndOf("coda"), -2}}});

    Line stabs;
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        stabs += score.Comp(chorus, "x--.....x--..... | ..x--.....x--... ", {57, 76, 4});
    studio.Record(
        stabs,
        Analog({.Voices = 3,
                .Detune = 9,
                .Width = 0.7,
                .Pulse = 0.4,
                .PulseWidth = 0.3,
                .PulseDrift = 0.1,
                .Cutoff = 900,
                .Sweep = 2.3,
                .Resonance = 0.2,
                .Scoop = 0.2,
                .Amp = {0.008, 0.5, 0.6, 0.22},
                .Filter = {0.02, 0.35, 0.25, 0.2}}),
        {.Loud = -27.5, .Pan = 0, .Room = 0.28, .Echo = 0.12, .Pump = 2, .Treat = [](Stereo& s) { CutLow(s, 220); }});

    studio.Record(Arpeggio(score),
                  Analog({.Voices = 2,
                          .Detune = 6,
                          .Width = 0.5,
                          .Pulse = 0.5,
                          .PulseWidth = 0.35,
                          .Cutoff = 1500,
                          .Sweep = 1.9,
                          .Resonance = 0.35,
                          .Amp = {0.002, 0.22, 0.18, 0.12},
                          .Filter = {0.001, 0.16, 0.05, 0.1}}),
                  {.Loud = -28.5,
                   .Pan = -0.4,
                   .Room = 0.18,
                   .Echo = 0.3,
                   .Pump = 4,
                   .Treat = [](Stereo& s) { CutLow(s, 260); },
                   .Ride = {{0, 5}, {16, 1}, {score.StartOf("verse 1"), 1}, {score.StartOf("verse 1") + 4, -2}}});

    studio.Record(Bells(score),
                  Metal({.Ratio = 3.5,
                         .Depth = 1.3,
                         .DepthTime = 0.5,
                         .Chime = 0.12,
                         .ChimeRatio = 7,
                         .Amp = {0.002, 1.4, 0.0, 0.7}}),
                  {.Loud = -27.5, .Pan = 0.3, .Room = 0.4, .Echo = 0.35});

    const Line lead = Lead(score);
    AnalogSettings voice{.Voices = 3,
                         .Detune = 7,
                         .Width = 0.35,
                         .Pulse = 0.45,
                         .PulseWidth = 0.4,
                         .PulseDrift = 0.08,
                         .Sub = 0.12,
                         .Cutoff = 1700,
                         .Track = 0.6,
                         .Sweep = 1.1,
                         .Resonance = 0.22,
                         .Vibrato = 17,
                         .Glide = 0.09,
                         .Drive = 1.2,
                         .Amp = {0.012, 0.6, 0.8, 0.16},
                         .Filter = {0.01, 0.7, 0.45, 0.2}};
    studio.Record(lead, Analog(voice),
                  {.Loud = -20.5,
                   .Room = 0.24,
                   .Echo = 0.26,
                   .Pump = 1.5,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 200);
                       Bell(s, 2600, 0.8, 1.5);
                   }});
    voice.Cutoff = 1300;
    studio.Record(
        SecondVoice(score, lead), Analog(voice),
        {.Loud = -25.5, .Pan = -0.3, .Room = 0.3, .Echo = 0.2, .Pump = 1.5, .Late = 0.006, .Treat = [](Stereo& s) {
             CutLow(s, 220);
         }});
    return studio.Master({{0, 0},
                          {score.StartOf("chorus 1") - 0.5, -1.2},
                          {score.StartOf("chorus 1"), 0.3},
                          {score.StartOf("verse 2") - 0.5, 0.3},
                          {score.StartOf("verse 2"), -1},
                          {score.StartOf("chorus 2") - 0.5, -0.8},
                          {score.StartOf("chorus 2"), 0.5},
                          {score.StartOf("bridge"), -1.5},
                          {score.StartOf("chorus 3") - 0.5, 0},
                          {score.StartOf("chorus 3"), 1},
                          {score.EndOf("coda") - 4, 0},
                          {score.EndOf("coda") + 4, -24}});
}
}
