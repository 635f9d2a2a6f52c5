// SPDX-License-Identifier: Zlib
// Limonata sul molo: D major, 116 beats a minute, sixteenths that swing. The verse rocks between two chords, the chorus
// sings over eight and turns to the minor subdominant near its end; the bridge is a lament over a falling bass.
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
constexpr auto VerseChords = "Em9 | A13 | Em9 | A13 | Em9 | A13 | F#m7 | B7";
constexpr auto ChorusChords = "Dmaj9 | Bm7 | Gmaj7 | A13 | F#m7 B7 | Em9 | Gm6 | A7sus4 A7";

Score Form()
{
    return Score({.Bpm = 116, .Swing = 0.56}, {{"intro", 4, "Em9 | A13"},
                                               {"verse 1", 8, VerseChords},
                                               {"lift 1", 4, "Gmaj7 | F#m7 | Em7 | A9sus4 A7"},
                                               {"chorus 1", 8, ChorusChords},
                                               {"verse 2", 8, VerseChords},
                                               {"chorus 2", 8, ChorusChords},
                                               {"bridge", 8,
                                                "Bm | F#7/A# | Bm/A | Em/G | Bm/F# | F#7 | Gmaj7 | "
                                                "A7sus4 A7"},
                                               {"chorus 3", 8, ChorusChords},
                                               {"coda", 5, "Dmaj9 | Gm6 | D69 | D69 | D69"}});
}

constexpr auto ChorusTune = R"(f
    f#5e f#5e e5e f#5q a5q.> | b5q a5e f#5q. e5q | d5e d5e e5e f#5q b5q.> | a5q. f#5e e5h |
    c#5e e5e f#5e a5q f#5e d#5q | e5q. f#5e g5h | bb5q.> a5e g5e e5q. | d5e e5e a4q c#5q e5q)";

// The nylon guitar tells the first verse, the mandolin sings the choruses and the lament.
Line Nylon(const Score& score)
{
    Line line = score.Melody("verse 1", R"(mf
        rq b4e d5e e5e d5q b4e | f#5e e5q c#5e rh | rq b4e d5e e5e g5q f#5e | e5h. rq |
        rq g5e f#5e e5e d5q b4e | c#5e e5q f#5e rq a5e f#5e | a5q. f#5e e5q c#5q | d#5e f#5q a5e f#5q d#5q)");
    line += score.Melody("lift 1", R"(f
        b4e d5e f#5e b5q. a5q | a4e c#5e e5e a5q. f#5q | g4e b4e d5e g5q. e5q | d5q e5q c#5q e5q)");
    return line;
}

Line Mandolin(const Score& score)
{
    Line line = score.Melody("chorus 1", ChorusTune) + score.Melody("chorus 2", ChorusTune);
    line += score.Melody("bridge", R"(mp
        f#5h. d5q | e5h c#5h | d5q. c#5e b4h | g5h. b5q | mf f#5q. e5e d5q b4q | a#4q c#5q e5q f#5q |
        f b5h. a5e g5e | g5q e5q c#5q e5q)");
    line += score.Melody("chorus 3", R"(ff
        f#5e f#5e e5e f#5q a5q.> | b5q a5e f#5q. e5q | d5e d5e e5e f#5q b5q.> | a5q. f#5e e5q a5e b5e |
        c#6e b5e a5e f#5q a5e b5q | b5q. a5e g5h | bb5q.> a5e g5e e5q. | d5e e5e f#5q e5q a5q)");
    line += score.Melody("coda", "f f#5q. e5e d5h | mf bb4q. d5e e5q g5q | f#5q. a5e d6h_ | ~w | ~h rh");
    return line;
}

Line Whistled(const Score& score)
{
    Line line = score.Melody("verse 2", R"(mf
        rq b5e d6e e6e_ d6q b5e | c#6e_ a5q f#5e rh | rq b5e d6e e6e_ g6q_ f#6e | e6h._ rq |
        rq g6e f#6e e6e d6q b5e | c#6e e6q_ f#6e rq a5e c#6e | a6q._ f#6e e6q c#6q | d#6e f#6q_ a6e f#6q d#6q)");
    line += score.Melody("chorus 3", R"(mf
        rw | rh a5e b5e d6q | rw | rq c#6e b5e a5h | rw | rh g5e a5e b5q | d6h._ bb5q | a5h c#6q_ e6q)");
    line += score.Melody("coda", "mp a5h f#5h | g5h bb5q d6q_ | a5h f#6h_ | ~w | ~h rh");
    return line;
}

Line Brass(const Score& score)
{
    const Range range{58, 76, 4};
    Line line = score.Comp("intro", "X--............. | . | . | ............x.X.", range);
    line += score.Comp("lift 1", "x-----.....x.x.. | x-----.....x.x.. | x-----.....x.x.. | x-----..X-----..", range);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Comp(chorus,
                           R"(. | ..........x.X... | . | ......x.x..X-.. . | . | ..........x.X... | X------.....x... |
                                      x---....X-----..)",
                           range);
    line += score.Comp(
        "verse 2",
        ". | ......x..x...... | . | ......x..xx..... | . | ......x..x...... | x---.......x.x.. | X-----....x.X...",
        range);
    line += score.Comp("coda", "X---......x.x... | X------......... | X---......x.x.X. | X------------... | .", range);
    return line;
}

Line Bass(const Score& score)
{
    constexpr int Low = 28;
    Line line = score.Bass("intro", ". | . | 1-.1..8.7-5..1.> | 1-.1..8.5.6.7.5<", Low);
    for (const char* verse : {"verse 1", "verse 2"})
        line += score.Bass(verse, R"(
            1-.1..8.7-5..1.> | 1-.1..8.5.6.7.<. | 1-.1..8.7-5..1.> | 1-..1.8.8.5.67.< |
            1-.1..8.7-5..1.> | 1-.1..8.5.6.7.<. | 1-.1..8.7-5.1.<. | 1-.18..5.3.5.7.<)",
                           Low);
    line += score.Bass("lift 1", "1--1..5.8---..<. | 1--1..5.8---..<. | 1--1..5.8---..<. | 1-1.1-1.1-1.5-<.", Low);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Bass(chorus, R"(
            1-.1..5.8-.5.3.> | 1-.1..5.8-.5.7.> | 1-.1..5.8-.5.3.< | 1-.1..8.5.6.7.<. |
            1-.1..8<1-.1..3< | 1-.1..8.7-5..3.< | 1--1..5.6-.8.6.> | 1-.1..8.1-.18.5<)",
                           Low);
    line += score.Bass("bridge", R"(
        1-----..1-...... | 1-----..1-...... | 1-----..1-...... | 1-----..1---..<. |
        1-----..1-.1.... | 1-----..1-.1..<. | 1-.1..8.7-.5..1. | 1-1.1-1.1-1.5.<.)",
                       Low);
    line += score.Bass(
        "coda", "1-.1..5.8-.5.3.> | 1--1..5.6-.8.6.< | 1-.1..5.8-.5.3.5 | 1--------------- | --------........", Low);
    return line;
}

constexpr Range Hand{55, 74, 4};

// Sixteenths of the right hand: the strokes that sound, and those between them on damped strings.
Line Guitar(const Score& score)
{
    Line line = score.Comp("intro", "x-.x..x.xx..x.x. | x-.x..x.x..xx.xx", Hand);
    for (const char* verse : {"verse 1", "verse 2"})
        line += score.Comp(verse, "x-.x..x.xx..x.x. | x-.x..x.x..xx.xx | x-.x..x.xx..x.x. | x-.x..x.xx.xx.x.", Hand);
    line += score.Comp("lift 1", "x---..x---..x.x. | x---..x---..x.x. | x---..x---..x.x. | x-x.x-x.x-x.x-..", Hand);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Comp(chorus, "..x-..x-..x-.xx- | ..x-..x-..x-x.x-", Hand);
    line += score.Comp("bridge", "x-------........ | % | % | % | % | % | x-.x..x.xx..x.x. | x-x.x-x.x-x.x-..", Hand);
    line += score.Comp(
        "coda", "..x-..x-..x-.xx- | x-----......x.x. | ..x-..x-..x-x.x- | x--------------- | --------........", Hand);
    return Strummed(score, line, 0.007);
}

Line Scratches(const Score& score)
{
    Line line = score.Comp("intro", ".ox.oo.o..oo.o.o | .ox.oo.o.oo..o..", Hand);
    for (const char* verse : {"verse 1", "verse 2"})
        line += score.Comp(verse, ".ox.oo.o..oo.o.o | .ox.oo.o.oo..o.. | .ox.oo.o..oo.o.o | .ox.oo.o..o..o.o", Hand);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Comp(chorus, "oo..oo..oo..o..o | oo..oo..oo..oo..", Hand);
    for (Note& note : line.Notes)
        note.Length = 0.05;
    return Strummed(score, line, 0.005);
}

Line Piano(const Score& score)
{
    const Range range{52, 72, 4};
    Line line;
    for (const char* verse : {"verse 1", "verse 2"})
        line += score.Comp(verse, "x----------x--.. | ..x---.....x-x--", range);
    line += score.Held("lift 1", range) + score.Held("bridge", range);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        line += score.Comp(chorus, "x-----x---..x-.. | x-----x---....x-", range);
    line += score.Comp(
        "coda", "x-----x---..x-.. | x-------........ | x-----x---....x- | x--------------- | --------------..", range);
    return line;
}

Kit Drums(const Score& score)
{
    Kit kit;
    score.Drums(kit, "intro", R"(
        shaker  xoxoxoxoxoxoxoxo
        conga   ......xx......x.
        tumba   ..........x....x
        kick    X............... | . | X..x..x...X..x.. | X..x..x...X.....
        snare   . | . | ............X..o | ........x.xoXxXX
        hat     . | . | x.x.x.x.x.x.x.x. | x.x.x.x.........)");
    for (const char* verse : {"verse 1", "verse 2"})
        score.Drums(kit, verse, R"(
        kick    X..x..x...X..x.. | X..x..x...X.x... | X..x..x...X..x.. | X..x..xx..X.x...
        snare   ....X..o.o..X..o | ....X..o.o..X.o. | ....X..o.o..X..o | ....X..o.o..X.oo | ....X..o.o..X..o | ....X..o.o..X.o. | ....X..o.o..X..o | ....X..o.oX.XxXx
        hat     xoxoxoxoxoxoxo.. | xoxoxoxoxoxoxoxo | xoxoxoxoxoxoxo.. | xoxoxoxoxo......
        open    ..............x. | . | ..............x. | .
        shaker  o.x.o.x.o.x.o.x.)");
    score.Drums(kit, "verse 2", R"(
        conga   ......xx......x. | ...x..xx..x..x..
        tumba   ..........x....x | ........x.......
        bell    x...x...x...x...)");
    score.Drums(kit, "lift 1", R"(
        kick    X..x....X....... | % | % | X...X...X...X...
        snare   ............X... | ............X... | ............X... | x.x.x.x.xxxxXXXX
        rim     ....x........... | % | % | .
        hat     x.x.x.x.x.x.x.x. | % | % | .
        tamb    ....x.......x...)");
    Grow(kit["snare"], score.EndOf("lift 1") - 4, score.EndOf("lift 1"), 0.4, 1.0);
    for (const char* chorus : {"chorus 1", "chorus 2", "chorus 3"})
        score.Drums(kit, chorus, R"(
        kick    X...X...X...X... | X...X...X...X..x | X...X...X...X... | X...X...X.x.X...
        snare   ....X..o....X..o | ....X....o..X... | ....X..o....X..o | ....X..o.o..X.oo | ....X..o....X..o | ....X....o..X... | ....X..o....X..o | ....X..xX..xX.xX
        clap    ....X.......X...
        hat     xo.oxo.oxo.oxo.o
        open    ..x...x...x...x.
        tamb    x.oox.oox.oox.oo
        tom     . | . | . | . | . | . | . | .........x......
        floor   . | . | . | . | . | . | . | ..........x..x..
        crash   X............... | . | . | . | x............... | . | . | .)");
    score.Drums(kit, "bridge", R"(
        kick    X.........x..... | % | % | % | % | X.........x.x... | X..x..x...X..x.. | X...X...X...X...
        rim     ....x.......x..x | ....x.......x... | ....x.......x..x | ....x.......x.x. | ....x.......x..x | ....x.......x... | . | .
        conga   x..x..xx..x..xX. | x..x..xx..x.X.x. | x..x..xx..x..xX. | x..x..xx..xxX.x. | x..x..xx..x..xX. | x..x..xx..x.X.x. | x..x..xx..x..xX. | .
        tumba   ..x.....x..x.... | ..x.....x.....xx
        shaker  xoxoxoxoxoxoxoxo
        snare   . | . | . | . | . | . | ....X..o....X..o | x.x.x.x.xxxxrrrr
        hat     . | . | . | . | . | . | x.x.x.x.x.x.x.x. | .)");
    Grow(kit["snare"], score.EndOf("bridge") - 4, score.EndOf("bridge"), 0.35, 1.0);
    score.Drums(kit, "coda", R"(
        kick    X...X...X...X... | X.....x......... | X...X...X...X... | X............... | .
        snare   ....X..o....X..o | ....X.......X..o | ....X..o....X.xX | . | .
        clap    ....X.......X... | . | ....X.......X... | . | .
        hat     xo.oxo.oxo.oxo.o | x.x.x.x.x.x.x.x. | xo.oxo.oxo.oxo.o | . | .
        open    ..x...x...x...x. | . | ..x...x...x..... | . | .
        tamb    x.oox.oox.oox.oo | . | x.oox.oox.oox... | . | .
        crash   X............... | . | . | X............... | .)");
    kit["crash"] += score.Marks({"intro", "verse 1", "verse 2", "bridge"});
    kit["swell"] = score.Marks({"chorus 1", "chorus 2", "chorus 3"}, 3);
    return kit;
}

std::map<std::string, Drum> Sounds()
{
    return {
        {"kick",
         {Kick({.Hz = 54, .From = 150, .Sweep = 0.028, .Ring = 0.22, .Click = 0.7, .Drive = 1.6}),
          {.Loud = -23, .Loose = 0.001, .Touch = 0.05}}},
        {"snare",
         {Snare({.Hz = 205, .Body = 0.8, .BodyRing = 0.09, .Wires = 0.8, .WiresRing = 0.15, .Tone = 2600}),
          {.Loud = -22, .Pan = 0.05, .Room = 0.18, .Loose = 0.003, .Touch = 0.1}}},
        {"rim", {Rim(), {.Loud = -31, .Pan = 0.1, .Room = 0.3}}},
        {"clap", {Clap(0.12), {.Loud = -27, .Room = 0.25, .Late = 0.003}}},
        {"hat", {Hat(0.045), {.Loud = -33.5, .Pan = 0.3, .Loose = 0.003, .Touch = 0.15}}},
        {"open", {Hat(0.22), {.Loud = -33, .Pan = 0.3, .Room = 0.1}}},
        {"shaker", {Shaker(), {.Loud = -36, .Pan = -0.45, .Room = 0.1, .Touch = 0.2}}},
        {"tamb", {Tambourine(), {.Loud = -36, .Pan = -0.4, .Room = 0.15, .Touch = 0.15}}},
        {"bell", {Cowbell(), {.Loud = -37, .Pan = 0.5, .Room = 0.15}}},
        {"conga", {Conga(), {.Loud = -27, .Pan = -0.35, .Room = 0.2, .Touch = 0.12}, 58}},
        {"tumba", {Conga(), {.Loud = -27, .Pan = -0.15, .Room = 0.2, .Touch = 0.12}, 52}},
        {"tom", {Tom(0.3), {.Loud = -24, .Pan = -0.3, .Room = 0.3}, 55}},
        {"floor", {Tom(0.36), {.Loud = -24, .Pan = 0.3, .Room = 0.3}, 47}},
        {"crash", {Crash(1.6), {.Loud = -30, .Pan = 0.2, .Room = 0.3}}},
        {"swell", {Swell(), {.Loud = -33, .Room = 0.3}}},
    };
}

void RecordRhythm(Studio& studio, const Score& score)
{
    const Line bass = Bass(score);
    studio.Record(
        bass,
        Plucked({.Ring = 1.6, .Damp = 0.05, .Softness = 0.42, .Pick = 0.09, .Edge = 1500, .Grain = 0.2, .Snap = 0.7}),
        {.Loud = -24,
         .Pump = 1.5,
         .Loose = 0.003,
         .Treat = [](Stereo& s)
         {
             CutLow(s, 55);
             Bell(s, 800, 0.8, 3);
             Compress(s, -26, 3, 0.006, 0.12);
         }});
    // The same notes as a finger would give them the ground.
    studio.Record(bass,
                  Analog({.Sub = 0,
                          .Cutoff = 240,
                          .Track = 0.6,
                          .Sweep = 1.0,
                          .Amp = {0.004, 0.5, 0.7, 0.06},
                          .Filter = {0.002, 0.15, 0.2, 0.1}}),
                  {.Loud = -23.5, .Pump = 2.5, .Loose = 0.003, .Treat = [](Stereo& s) { CutLow(s, 34); }});

    const auto cut = [](Stereo& s)
    {
        Drive(s, 4);
        CutLow(s, 220);
        Bell(s, 3400, 0.8, 2);
        Compress(s, -28, 2.5, 0.004, 0.1);
    };
    studio.Record(Guitar(score),
                  Plucked({.Ring = 1.8, .Damp = 0.07, .Softness = 0.28, .Pick = 0.1, .Edge = 3200, .Grain = 0.3}),
                  {.Loud = -25.5, .Pan = 0.55, .Room = 0.14, .Echo = 0.05, .Treat = cut});
    studio.Record(Scratches(score),
                  Plucked({.Ring = 0.12, .Damp = 0.035, .Softness = 0.4, .Pick = 0.1, .Edge = 2600, .Grain = 0.9}),
                  {.Loud = -36, .Pan = 0.55, .Room = 0.1, .Touch = 0.25, .Treat = cut});
    studio.Record(Piano(score),
                  Metal({.Ratio = 1, .Depth = 1.7, .DepthTime = 0.5, .Chime = 0.10, .ChimeRatio = 14, .Tremolo = 0.22}),
                  {.Loud = -27,
                   .Pan = -0.5,
                   .Room = 0.2,
                   .Pump = 1,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 140);
                       Chorus(s, 0.5, 0.4);
                   }});
}
}

Stereo LimonataSulMolo()
{
    const Score score = Form();
    const double beat = score.Seconds(1);
    Studio studio(score, {.Seconds = 1.5, .Size = 0.85, .Before = 0.018, .Damp = 6000, .Low = 260},
                  {.Left = beat * 0.5, .Right = beat * 0.75, .Feedback = 0.3, .Low = 400, .High = 4000});
    const Kit kit = Drums(score);
    studio.PumpWith(kit.at("kick"), 0.16);
    studio.Record(kit, Sounds());
    RecordRhythm(studio, score);

    studio.Record(Nylon(score),
                  Plucked({.Ring = 2.4, .Damp = 0.12, .Softness = 0.42, .Pick = 0.22, .Edge = 2400, .Grain = 0.2}),
                  {.Loud = -22,
                   .Pan = -0.08,
                   .Room = 0.26,
                   .Echo = 0.14,
                   .Treat = [](Stereo& s)
                   {
                       Drive(s, 3);
                       Bell(s, 220, 1.2, 2.5);
                       Bell(s, 3000, 0.8, 2);
                       Compress(s, -26, 2.5, 0.01, 0.15);
                   }});
    const PluckedSettings mandolin{.Ring = 1.5,
                                   .Damp = 0.08,
                                   .Softness = 0.22,
                                   .Pick = 0.11,
                                   .Edge = 4200,
                                   .Grain = 0.3,
                                   .Course = 2,
                                   .Detune = 6,
                                   .Width = 0.35};
    const auto wood = [](Stereo& s)
    {
        Drive(s, 3);
        CutLow(s, 240);
        Bell(s, 520, 1.2, 2);
        Bell(s, 1600, 1, -3);
        HighShelf(s, 4000, 2);
        Compress(s, -26, 2.5, 0.008, 0.12);
    };
    const Line tune = Mandolin(score);
    studio.Record(Tremolo(tune, 0.125), Plucked(mandolin),
                  {.Loud = -22, .Pan = 0.08, .Room = 0.26, .Echo = 0.12, .Loose = 0.003, .Touch = 0.1, .Treat = wood});
    Line second; // from the second chorus on in two parts
    for (const Note& note : score.Below(tune, 3).Notes)
        if (note.Start >= score.StartOf("chorus 2"))
            second.Notes.push_back(note);
    studio.Record(Tremolo(second, 0.125), Plucked(mandolin),
                  {.Loud = -26,
                   .Pan = -0.45,
                   .Room = 0.3,
                   .Echo = 0.1,
                   .Loose = 0.004,
                   .Touch = 0.1,
                   .Late = 0.008,
                   .Treat = wood});
    studio.Record(Whistled(score), Whistle({}), {.Loud = -23.5, .Pan = -0.12, .Room = 0.34, .Echo = 0.2});

    studio.Record(Brass(score),
                  Analog({.Voices = 4,
                          .Detune = 8,
                          .Width = 0.7,
                          .Cutoff = 650,
                          .Track = 0.4,
                          .Sweep = 2.4,
                          .Resonance = 0.12,
                          .Touch = 2,
                          .Vibrato = 8,
                          .Scoop = 0.6,
                          .Drive = 1.4,
                          .Amp = {0.018, 0.3, 0.8, 0.08},
                          .Filter = {0.035, 0.25, 0.55, 0.1}}),
                  {.Loud = -24.5,
                   .Pan = -0.1,
                   .Room = 0.26,
                   .Touch = 0.06,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 180);
                       HighShelf(s, 3000, 2);
                   }});
    // The accordion of the lament, reeds a little apart.
    Line reeds = score.Held("bridge", {55, 74, 4});
    Grow(reeds, score.StartOf("bridge"), score.EndOf("bridge"), 0.6, 0.85);
    studio.Record(Yielding(reeds, tune),
                  Analog({.Voices = 3,
                          .Detune = 13,
                          .Width = 0.6,
                          .Pulse = 1,
                          .PulseWidth = 0.22,
                          .Cutoff = 2600,
                          .Resonance = 0.1,
                          .Amp = {0.07, 0.3, 0.9, 0.12}}),
                  {.Loud = -27,
                   .Pan = 0.25,
                   .Room = 0.28,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 260);
                       Bell(s, 1100, 1, 2);
                       CutHigh(s, 6500);
                   }});
    Line organ =
        score.Held("chorus 2", {57, 74, 4}) + score.Held("chorus 3", {57, 74, 4}) + score.Held("coda", {57, 74, 4});
    studio.Record(Yielding(organ, tune), Organ({.Turning = 6.2}),
                  {.Loud = -29.5, .Pan = -0.3, .Room = 0.2, .Pump = 1.5, .Treat = [](Stereo& s) { CutLow(s, 200); }});
    return studio.Master({{0, 1},
                          {score.StartOf("verse 1"), -1},
                          {score.StartOf("lift 1"), -1},
                          {score.StartOf("chorus 1") - 0.5, -0.5},
                          {score.StartOf("chorus 1"), 0.6},
                          {score.StartOf("verse 2") - 0.5, 0.6},
                          {score.StartOf("verse 2"), -0.8},
                          {score.StartOf("chorus 2") - 0.5, -0.8},
                          {score.StartOf("chorus 2"), 0.8},
                          {score.StartOf("bridge") - 0.5, 0.8},
                          {score.StartOf("bridge"), -1.5},
                          {score.EndOf("bridge") - 8, -1.5},
                          {score.StartOf("chorus 3"), 1},
                          {score.EndOf("coda") - 4, 0.5},
                          {score.EndOf("coda") + 4, -24}});
}
}
