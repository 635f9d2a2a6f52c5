// SPDX-License-Identifier: Zlib
// Tarantella a tavoletta: G minor, later A minor, six eighths at 152 beats a minute. A tarantella over the drums of
// another century: a running theme, a sunny one in B flat, and a refrain of long notes over a bass that descends.
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
constexpr auto ThemeChords = "Gm | Gm | Cm | Gm | D7 | D7 | Gm | D7 | Gm | Gm | Cm | Gm | Cm | Gm | D7 | Gm";
constexpr auto SunnyChords = "Bb | Bb | F7 | Bb | Eb | Bb | C7 | F7 | Bb | Bb | F7 | D7 | Gm | Eb | Cm6 | D7";
constexpr auto RefrainChords = "Gm | Gm | F | F | Eb | Eb | D7 | D7 | Cm | Cm | Gm/Bb | Gm/Bb | Am7b5 | D7 | Gm | D7";

// A bar is three quarters, counted as two beats of three eighths.
Score Form()
{
    return Score(
        {.Bpm = 228, .BarBeats = 3},
        {{"intro", 8, "Gm | Gm | Gm | Gm | Eb | F | D7 | D7"},
         {"theme 1", 16, ThemeChords},
         {"sunny 1", 16, SunnyChords},
         {"theme 2", 16, ThemeChords},
         {"refrain 1", 16, RefrainChords},
         {"sunny 2", 16, SunnyChords},
         {"break", 16, "Eb | Eb | Gm | Gm | Cm | Cm | D7 | D7 | Ebmaj7 | F | Gm | Gm | Cm6 | Cm6 | D7sus4 | E7"},
         {"refrain 2", 16, RefrainChords, 2},
         {"theme 3", 16, ThemeChords, 2},
         {"coda", 9, "Cm | Gm | D7 | Gm | Cm | Gm | D7 | Gm | Gm", 2}});
}

constexpr auto ThemeTune = R"(f
    g5q a5e bb5q> a5e | g5e f#5e g5e d5q. | eb5q> f5e g5q eb5e | d5e c5e bb4e g4q. |
    f#5q> g5e a5q f#5e | eb5e d5e c5e a4q. | bb4e c5e d5e g5q d5e | a5e g5e f#5e d5q. |
    g5q a5e bb5q> c6e | d6e c6e bb5e g5q. | c6q> bb5e g5e eb5e g5e | bb5e a5e g5e d5q. |
    eb5e g5e c6e eb6q> d6e | d6e bb5e g5e d5e g5e bb5e | a5e c6e bb5e a5e g5e f#5e | g5q d5e g5q.)";

constexpr auto SunnyTune = R"(mf
    f5q. d5q f5e | bb5q. a5q bb5e | c6q bb5e a5q f5e | d5h. |
    g5q. eb5q g5e | f5q d5e bb4q d5e | e5q f5e g5q e5e | f5q. a5q c6e |
    f d6q. bb5q d6e | c6q bb5e a5q bb5e | a5q. f5q a5e | f#5q. a5q d6e |
    d6q c6e bb5q g5e | bb5q a5e g5q eb5e | c5q d5e eb5q g5e | f#5q. a5q d5e)";

constexpr auto RefrainTune = R"(f
    bb5q. a5q. | g5q. d5q._ | a5q. g5q. | f5q. c5q._ |
    g5q. f5q eb5e | bb5h._ | a5q. f#5q g5e | a5h. |
    c6q. bb5q. | g5q. eb5q. | d6q._ c6q. | bb5q. g5q. |
    eb6q._ c6q a5e | d6q. a5q f#5e | g5h. | rq. f#5e a5e c6e)";

Line Mandolin(const Score& score)
{
    Line line = score.Melody("intro", R"(f
        g4e> d5e g5e d5e bb4e d5e | g4e> d5e bb5e d5e g5e d5e | g4e> d5e g5e d5e bb4e d5e |
        g4e> d5e c6e bb5e a5e f#5e | eb5e> g5e bb5e g5e eb5e g5e | f5e> a5e c6e a5e f5e a5e |
        ff d5e f#5e a5e c6e a5e f#5e | d6q.> d5q.>)");
    line += score.Melody("theme 1", ThemeTune) + score.Melody("theme 2", ThemeTune);
    // Round the other tune of the second sunny part.
    line += score.Melody("sunny 2", R"(mp
        rq. bb4e d5e f5e | rq. f5e d5e bb4e | rq. c5e eb5e a5e | rq. f5e bb5e f5e |
        rq. eb5e g5e bb5e | rq. f5e d5e bb4e | rq. g5e e5e c5e | rq. a4e c5e f5e |
        mf rq. d5e f5e bb5e | rq. bb5e f5e d5e | rq. c5e f5e a5e | rq. f#5e a5e c6e |
        rq. d5e g5e bb5e | rq. g5e bb5e eb6e | rq. eb5e g5e c6e | a5e c6e a5e f#5e a5e d6e)");
    line += score.Melody("refrain 2", RefrainTune);
    line += score.Melody("theme 3", R"(ff
        g5e a5e bb5e d6e> bb5e a5e | g5e f#5e g5e d5e g5e bb5e | c6e bb5e c6e eb6e> c6e g5e |
        d6e c6e bb5e g5e a5e bb5e | a5e f#5e g5e a5e> bb5e c6e | eb6e> d6e c6e a5e f#5e d5e |
        bb5e a5e bb5e g5e d5e g5e | f#5e g5e a5e d6e> c6e a5e | g5e a5e bb5e d6e> bb5e c6e |
        d6e c6e bb5e g5q. | c6e d6e eb6e> d6e c6e g5e | bb5e c6e d6e c6e bb5e g5e |
        eb6q> d6e c6q eb6e | d6q> c6e bb5q g5e | a5e bb5e c6e a5e f#5e d5e | g5q d5e g5q.)");
    line += score.Melody("coda", R"(ff
        eb5e g5e c6e eb6q> d6e | d6e bb5e g5e d5e g5e bb5e | a5e c6e bb5e a5e g5e f#5e | g5q d5e g5q. |
        c6q. eb6q. | d6q. bb5q. | a5e> bb5e c6e a5e f#5e d5e | g5h.> | ~h.)");
    return line;
}

// Short notes are struck once, long ones tremble.
Line Plectrum(const Line& line)
{
    Line struck, held;
    for (const Note& note : line.Notes)
        (note.Length < 0.6 ? struck : held).Notes.push_back(note);
    return struck + Tremolo(held, 0.25);
}

// The second mandolin joins the tune when it comes back.
Line SecondMandolin(const Score& score, const Line& tune)
{
    Line sung;
    for (const Note& note : tune.Notes)
        if ((note.Start >= score.StartOf("theme 2") && note.Start < score.EndOf("theme 2")) ||
            note.Start >= score.StartOf("refrain 2"))
            sung.Notes.push_back(note);
    return score.Below(sung, 3);
}

// The accordion: the sunny tune, then chords on the light eighths.
Line Accordion(const Score& score)
{
    Line line = score.Melody("sunny 1", SunnyTune);
    line += Moved(score.Melody("theme 3", ThemeTune), -12);
    const Range range{58, 77, 4};
    line += score.Comp("theme 2", "..x.x...x.x.", range) + score.Comp("refrain 2", "..x.x...x.x.", range);
    line += score.Comp("coda", "..x.x...x.x. | % | % | x-..........", range);
    return line;
}

Line Trumpet(const Score& score)
{
    Line line = score.Melody("refrain 1", RefrainTune) + score.Melody("sunny 2", SunnyTune);
    line += score.Melody("refrain 2", R"(ff
        d6q. c6q. | bb5q. g5q._ | c6q. bb5q. | a5q. f5q._ |
        bb5q. a5q g5e | eb6h._ | c6q. a5q bb5e | d6h._ |
        eb6q. d6q. | c6q. g5q. | d6q._ eb6q. | d6q. bb5q. |
        c6q. a5q eb5e | a5q. f#5q d5e | bb5h._ | rq. a5e c6e d6e)");
    line += score.Melody("coda", "f rh. | rh. | rh. | rh. | g5q. c6q. | bb5q. d6q. | c6q. a5q f#5e | d6h._ | ~h.");
    return line;
}

Line Brass(const Score& score)
{
    const Range range{55, 74, 4};
    Line line = score.Comp(
        "intro", "X-.......... | . | . | ......x.x.x. | X-.......... | % | X---X---X--- | X-....X-....", range);
    line += score.Comp("theme 2", R"(. | ......x.x.x. | . | ......x-.... | . | ......x.x.x. | . | X-....X-.... |
                                     . | ......x.x.x. | . | ......x-.... | X---X---X--- | % | X-....X-.... | X-..........)",
                       range);
    for (const char* refrain : {"refrain 1", "refrain 2"})
        line += score.Comp(refrain, "x-....x..... | ....x.x.....", range);
    line += score.Comp("theme 3", R"(X-.......... | ......x.x.x. | X-.......... | ......x.x.x.)", range);
    line += score.Comp("coda", ". | . | . | X-.......... | X---X---X--- | % | X-....X-.... | X----------- | .", range);
    return line;
}

Line Flute(const Score& score)
{
    return score.Melody("break", R"(mp
        g5h. | bb5q._ g5q f5e | d5h._ | ~q. bb4e d5e g5e | eb5h. | g5q. eb5q c5e | d5h. | ~q. a4e d5e f#5e |
        mf g5q. d5q._ | a5q. c6q._ | bb5q. d6q._ | d6q. bb5q. | c6q. eb6q._ | d6q c6e a5q g5e |
        f g5q. a5q. | e5q. g#5e b5e d6e)");
}

Line Bass(const Score& score)
{
    constexpr int Low = 29;
    Line line = score.Bass("intro", "1----------- | % | % | % | 1----------- | % | 1---1---1--- | 1-....1-....", Low);
    for (const char* theme : {"theme 1", "theme 2", "theme 3"})
        line += score.Bass(theme, "1---..5---.. | 1---..5---1. | 1---..5---.. | 1---..5-3-<.", Low);
    for (const char* sunny : {"sunny 1", "sunny 2"})
        line += score.Bass(sunny, "1---..5---.. | 1---..5---.. | 1---..5---.. | 1---5.8-5-<.", Low);
    for (const char* refrain : {"refrain 1", "refrain 2"})
        line += score.Bass(refrain, "1.1.1.1.1.1. | 1.1.1.1.1.5. | 1.1.1.1.1.1. | 1.1.1.8.5.<.", Low);
    line += score.Bass("break", R"(
        1----------- | % | % | 1-----5---<- | 1----------- | % | % | 1-----5---<- |
        1-----1----- | % | % | % | 1---1---1--- | % | 1.1.1.1.1.1. | 1.1.1.1.1.<.)",
                       Low);
    line += score.Bass("coda", R"(
        1---..5---.. | % | 1---5.8-5-<. | 1-.......... | 1---1---1--- | % | 1-....1-.... | 1----------- | ------......)",
                       Low);
    return line;
}

constexpr Range Hand{55, 74, 4};

// Strummed on the light eighths; where three stand against two, all of them lean the same way.
Line Guitar(const Score& score)
{
    Line line;
    for (const char* theme : {"theme 1", "theme 2", "theme 3"})
        line += score.Comp(theme, R"(..x.x...x.x. | % | % | ..x.x...x.xx | ..x.x...x.x. | % | % | x---x---x---)", Hand);
    for (const char* sunny : {"sunny 1", "sunny 2"})
        line += score.Comp(sunny, "x-..x.x-..x. | % | % | x-..x.x-x.x.", Hand);
    for (const char* refrain : {"refrain 1", "refrain 2"})
        line += score.Comp(refrain, "x.xxx.x.xxx. | x.xxx.x.x.x.", Hand);
    line += score.Comp("break",
                       ". | . | . | . | x----------- | % | % | % | x-----x----- | % | % | % | x---x---x--- | % | "
                       "x.x.x.x.x.x. | x.xxx.x.xxxx",
                       Hand);
    line += score.Comp("coda",
                       "..x.x...x.x. | % | x---x---x--- | x-.......... | x---x---x--- | % | x-....x-.... | "
                       "x----------- | .",
                       Hand);
    return Strummed(score, line, 0.006);
}

// Sixteenths that whirl under the refrain.
Line Whirl(const Score& score)
{
    const Range range{62, 81, 4};
    Line line = score.Arpeggio("refrain 1", "0.1.2.3.2.1. | 0.1.2.4.3.2.", range);
    line += score.Arpeggio("break",
                           R"(0.....2..... | 1.....3..... | 0.....2..... | 1.....3..... | 0...1...2... | 3...2...1... |
        0...1...2... | 3...2...1... | 0.1.2.3.2.1. | 0.1.2.4.3.2. | 0.1.2.3.2.1. | 0.1.2.4.3.2. | 012321012321 |
        012343212343 | 012345432123 | 012345678765)",
                           range);
    line += score.Arpeggio("refrain 2", "012321234321 | 012343234565", range);
    Brighten(line, score.StartOf("break"), score.EndOf("break"), -2, 0.6);
    return line;
}

Kit Drums(const Score& score)
{
    Kit kit;
    score.Drums(kit, "intro", R"(
        kick    X........... | X........... | X.....x..... | X.....x..... | X.....X..... | % | X...X...X... | X.....X.....
        tamb    X.o.o.x.o.o. | % | % | % | X.ooxox.ooxo | % | X...X...X... | X.....X.....
        conga   x.oxoox.oxoo | % | % | % | xxoxooxxoxoo | % | . | .
        snare   . | . | . | . | ......x..... | ......x..... | x...x...x... | X.xxxxXxXXXX)");
    for (const char* theme : {"theme 1", "theme 2", "theme 3"})
        score.Drums(kit, theme, R"(
        kick    X.........x. | X........... | X.........x. | X...x.......
        snare   ......X..... | ......X...o. | ......X..... | ......X.o.o. | ......X..... | ......X...o. | ......X..... | ......X.xxXX
        tamb    x.o.o.x.o.o. | % | % | x.o.oox.o.oo)");
    score.Drums(kit, "theme 1", "hat     x...x.x...x.");
    for (const char* theme : {"theme 2", "theme 3"})
        score.Drums(kit, theme, R"(
        hat     x.x.x.x.x.x. | x.x.x.x.xxx.
        open    ....x.....x.
        conga   ....xo....xo | ....xo..xoxo
        crash   X........... | . | . | . | . | . | . | . | X........... | . | . | . | . | . | . | .)");
    for (const char* sunny : {"sunny 1", "sunny 2"})
        score.Drums(kit, sunny, R"(
        kick    X.....x..... | X.....x...x. | X.....x..... | X.....x.x...
        rim     ......x..... | ......x...x. | ......x..... | ......x.x...
        shaker  xoxoxoxoxoxo
        conga   ..o.xx..o.x. | ..o.xx..oxx.
        snare   . | . | . | . | . | . | . | ......x.x.xx | . | . | . | . | . | . | . | x.x.xxXxXXXX)");
    score.Drums(kit, "sunny 2", R"(
        tamb    ......X.....
        hat     x.o.x.x.o.x.)");
    for (const char* refrain : {"refrain 1", "refrain 2"})
        score.Drums(kit, refrain, R"(
        kick    X.....X..... | X.....X...x. | X.....X..... | X.....X.x.x.
        snare   ......X..... | ......X...o. | ......X..... | ......X..oo. | ......X..... | ......X...o. | ......X..... | x.x.x.X.XxXX
        clap    ......X.....
        open    ....x.....x.
        tamb    x.ooxox.ooxo
        ride    x.x.x.x.x.x.
        tom     . | . | . | ........x... | . | . | . | . | . | . | . | ........x... | . | . | . | .
        floor   . | . | . | ..........x. | . | . | . | . | . | . | . | ..........x. | . | . | . | .
        crash   X........... | . | . | . | X........... | . | . | .)");
    score.Drums(kit, "break", R"(
        kick    X........... | . | X........... | . | X........... | . | X........... | ......x...x. | X.....x..... | % | % | % | X.....X..... | % | X.X.X.X.X.X. | XXXXXXXXXXXX
        conga   x.oxoox.oxoo | x.oxoox.oxxo | x.oxoox.oxoo | xxoxooxxoxxX
        tamb    ......x..... | % | % | % | % | % | % | % | x.ooxox.ooxo | % | % | % | % | % | x.x.x.x.x.x. | .
        tom     . | . | . | ........x.x. | . | . | . | x.x...x.x... | . | . | . | ......x.x.x. | . | . | . | .
        floor   . | . | . | . | . | . | . | ....x.....x. | . | . | . | . | ......X..... | % | . | .
        snare   . | . | . | . | . | . | . | . | . | . | . | . | x.x.x.x.x.x. | % | x.xxx.xxxxxx | xxxxxxrrrrrr)");
    Grow(kit["snare"], score.EndOf("break") - 12, score.EndOf("break"), 0.3, 1.0);
    score.Drums(kit, "coda", R"(
        kick    X.........x. | X........... | X.....X.X.x. | X........... | X...X...X... | % | X.....X..... | X........... | .
        snare   ......X..... | ......X...o. | x.x.x.X.XxXX | X........... | X...X...X... | % | X.....XxXXXX | X........... | .
        tamb    x.ooxox.ooxo | % | % | X........... | X...X...X... | % | . | . | .
        open    ....x.....x. | % | % | . | . | . | . | . | .
        tom     . | . | . | ..x.x.x..... | . | . | . | . | .
        floor   . | . | . | ........x.x. | . | . | . | . | .
        crash   X........... | . | . | . | X........... | . | . | X........... | .)");
    kit["crash"] += score.Marks({"intro", "theme 1", "sunny 1", "sunny 2", "break"});
    kit["swell"] = score.Marks({"theme 2", "refrain 1", "refrain 2", "theme 3"}, 3);
    kit["riser"] = score.Marks({"refrain 2"}, 12);
    kit["impact"] = score.Marks({"intro", "refrain 1", "break", "refrain 2"});
    return kit;
}

std::map<std::string, Drum> Sounds()
{
    return {
        {"kick",
         {Kick({.Hz = 52, .From = 230, .Sweep = 0.024, .Ring = 0.2, .Click = 0.8, .Drive = 2}),
          {.Loud = -22, .Loose = 0, .Touch = 0.04}}},
        {"snare",
         {Snare({.Hz = 196, .Body = 0.9, .BodyRing = 0.08, .Wires = 0.85, .WiresRing = 0.13, .Tone = 2500}),
          {.Loud = -22, .Pan = 0.06, .Room = 0.18, .Loose = 0.002, .Touch = 0.08}}},
        {"rim", {Rim(), {.Loud = -30, .Pan = 0.2, .Room = 0.3}}},
        {"clap", {Clap(0.11), {.Loud = -26.5, .Room = 0.22}}},
        {"hat", {Hat(0.035), {.Loud = -35, .Pan = 0.4, .Loose = 0.002, .Touch = 0.15}}},
        {"open", {Hat(0.12), {.Loud = -32.5, .Pan = 0.4, .Room = 0.08}}},
        {"ride", {Ride(), {.Loud = -36, .Pan = -0.5, .Room = 0.08}}},
        {"tamb", {Tambourine(), {.Loud = -31.5, .Pan = -0.5, .Room = 0.16, .Loose = 0.003, .Touch = 0.15}}},
        {"shaker", {Shaker(), {.Loud = -36, .Pan = 0.6, .Room = 0.1, .Touch = 0.2}}},
        {"conga", {Conga(), {.Loud = -29, .Pan = 0.25, .Room = 0.22, .Loose = 0.003, .Touch = 0.12}, 55}},
        {"tom", {Tom(0.28), {.Loud = -23.5, .Pan = -0.45, .Room = 0.28}, 55}},
        {"floor", {Tom(0.34), {.Loud = -23.5, .Pan = 0.45, .Room = 0.28}, 47}},
        {"crash", {Crash(1.5), {.Loud = -29.5, .Pan = 0.25, .Room = 0.28}}},
        {"swell", {Swell(), {.Loud = -31, .Room = 0.28}}},
        {"riser", {Riser(), {.Loud = -29, .Room = 0.25}}},
        {"impact", {Impact(), {.Loud = -25, .Room = 0.28}}},
    };
}

void RecordBass(Studio& studio, const Score& score)
{
    const Line bass = Bass(score);
    studio.Record(
        bass,
        Plucked({.Ring = 1.4, .Damp = 0.05, .Softness = 0.4, .Pick = 0.09, .Edge = 1700, .Grain = 0.25, .Snap = 0.6}),
        {.Loud = -24.5,
         .Pump = 1.5,
         .Loose = 0.002,
         .Treat = [](Stereo& s)
         {
             Drive(s, 8, 0.1);
             CutLow(s, 60);
             Bell(s, 900, 0.8, 3);
             CutHigh(s, 5000);
         }});
    studio.Record(bass,
                  Analog({.Sub = 0.25,
                          .Cutoff = 300,
                          .Track = 0.5,
                          .Sweep = 1.4,
                          .Drive = 1.6,
                          .Amp = {0.003, 0.4, 0.75, 0.05},
                          .Filter = {0.002, 0.12, 0.25, 0.08}}),
                  {.Loud = -23, .Pump = 3.5, .Loose = 0.002, .Treat = [](Stereo& s) { CutLow(s, 36); }});
}

// One hand on either side: no two takes are alike.
void RecordGuitars(Studio& studio, const Score& score)
{
    const Line strums = Guitar(score);
    for (const double side : {-0.8, 0.8})
        studio.Record(strums,
                      Plucked({.Ring = 1.4, .Damp = 0.06, .Softness = 0.26, .Pick = 0.12, .Edge = 3800, .Grain = 0.35}),
                      {.Loud = -27.5,
                       .Pan = side,
                       .Room = 0.14,
                       .Loose = 0.006,
                       .Touch = 0.15,
                       .Treat = [](Stereo& s)
                       {
                           CutLow(s, 200);
                           HighShelf(s, 3500, 2);
                           Compress(s, -28, 2.5, 0.005, 0.1);
                       }});
}

void RecordMandolins(Studio& studio, const Score& score)
{
    const PluckedSettings mandolin{.Ring = 1.3,
                                   .Damp = 0.07,
                                   .Softness = 0.2,
                                   .Pick = 0.11,
                                   .Edge = 4400,
                                   .Grain = 0.3,
                                   .Course = 2,
                                   .Detune = 6,
                                   .Width = 0.5};
    const auto wood = [](Stereo& s)
    {
        Drive(s, 4);
        CutLow(s, 240);
        Bell(s, 520, 1.2, 2);
        HighShelf(s, 4000, 1.5);
        Compress(s, -26, 2.5, 0.006, 0.1);
    };
    const Line tune = Mandolin(score);
    studio.Record(Plectrum(tune), Plucked(mandolin),
                  {.Loud = -21, .Pan = -0.12, .Room = 0.24, .Echo = 0.1, .Loose = 0.002, .Touch = 0.1, .Treat = wood});
    studio.Record(Plectrum(SecondMandolin(score, tune)), Plucked(mandolin),
                  {.Loud = -25,
                   .Pan = 0.6,
                   .Room = 0.28,
                   .Echo = 0.08,
                   .Loose = 0.003,
                   .Touch = 0.1,
                   .Late = 0.006,
                   .Treat = wood});
}

void RecordWinds(Studio& studio, const Score& score)
{
    studio.Record(Accordion(score),
                  Analog({.Voices = 3,
                          .Detune = 12,
                          .Width = 0.8,
                          .Pulse = 1,
                          .PulseWidth = 0.2,
                          .Cutoff = 2800,
                          .Resonance = 0.1,
                          .Amp = {0.02, 0.2, 0.9, 0.06}}),
                  {.Loud = -23.5,
                   .Pan = 0.15,
                   .Room = 0.22,
                   .Echo = 0.06,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 240);
                       Bell(s, 1100, 1, 2);
                       CutHigh(s, 7000);
                   }});
    const AnalogSettings brass{.Voices = 3,
                               .Detune = 6,
                               .Width = 0.4,
                               .Cutoff = 900,
                               .Track = 0.6,
                               .Sweep = 2.0,
                               .Resonance = 0.14,
                               .Touch = 2,
                               .Vibrato = 16,
                               .Scoop = 0.4,
                               .Glide = 0.07,
                               .Drive = 1.3,
                               .Amp = {0.014, 0.3, 0.85, 0.09},
                               .Filter = {0.03, 0.35, 0.6, 0.1}};
    const auto bright = [](Stereo& s)
    {
        CutLow(s, 200);
        Bell(s, 1500, 0.9, 1.5);
        HighShelf(s, 3500, 2);
    };
    studio.Record(Trumpet(score), Analog(brass), {.Loud = -21.5, .Room = 0.26, .Echo = 0.2, .Treat = bright});
    AnalogSettings section = brass;
    section.Voices = 5;
    section.Width = 0.95;
    section.Vibrato = 6;
    studio.Record(Brass(score), Analog(section), {.Loud = -25, .Room = 0.26, .Touch = 0.06, .Treat = bright});
    studio.Record(Flute(score), Whistle({.Breath = 0.09, .Octave = 0.22}),
                  {.Loud = -20.5, .Pan = -0.15, .Room = 0.4, .Echo = 0.3});
}

void RecordStrings(Studio& studio, const Score& score)
{
    Line strings = score.Held("break", {52, 76, 5});
    for (const char* section : {"refrain 1", "sunny 2", "refrain 2"})
        strings += score.Held(section, {55, 79, 5});
    Grow(strings, score.StartOf("break"), score.EndOf("break"), 0.5, 0.85);
    studio.Record(strings,
                  Analog({.Voices = 7,
                          .Detune = 15,
                          .Width = 1,
                          .Cutoff = 1700,
                          .Track = 0.4,
                          .Sweep = 0.6,
                          .Resonance = 0.1,
                          .Drive = 0.5,
                          .Amp = {0.09, 0.6, 0.85, 0.35},
                          .Filter = {0.3, 1.0, 0.6, 0.4}}),
                  {.Loud = -25.5,
                   .Room = 0.3,
                   .Pump = 4,
                   .Treat = [](Stereo& s)
                   {
                       CutLow(s, 190);
                       Bell(s, 450, 0.9, -2);
                   }});
    studio.Record(
        Whirl(score),
        Analog({.Voices = 2,
                .Detune = 7,
                .Width = 0.8,
                .Pulse = 0.4,
                .PulseWidth = 0.35,
                .Cutoff = 1600,
                .Sweep = 1.8,
                .Resonance = 0.3,
                .Amp = {0.002, 0.16, 0.15, 0.08},
                .Filter = {0.001, 0.12, 0.05, 0.08}}),
        {.Loud = -27.5, .Pan = 0.1, .Room = 0.2, .Echo = 0.28, .Pump = 3, .Treat = [](Stereo& s) { CutLow(s, 280); }});
}
}

Stereo TarantellaATavoletta()
{
    const Score score = Form();
    const double eighth = score.Seconds(0.5);
    Studio studio(score, {.Seconds = 1.6, .Size = 0.95, .Before = 0.018, .Damp = 5800, .Low = 260},
                  {.Left = eighth * 3, .Right = eighth * 2, .Feedback = 0.32, .Low = 400, .High = 4500});
    const Kit kit = Drums(score);
    studio.PumpWith(kit.at("kick"), 0.14);
    studio.Record(kit, Sounds());
    RecordBass(studio, score);
    RecordGuitars(studio, score);
    RecordMandolins(studio, score);
    RecordWinds(studio, score);
    RecordStrings(studio, score);
    return studio.Master({{0, 1},
                          {score.StartOf("theme 1"), 0.5},
                          {score.StartOf("sunny 1"), 0.2},
                          {score.StartOf("theme 2"), 0},
                          {score.StartOf("refrain 1") - 0.5, 0},
                          {score.StartOf("refrain 1"), 0.6},
                          {score.StartOf("sunny 2"), -0.5},
                          {score.StartOf("break"), -1},
                          {score.EndOf("break") - 12, -1},
                          {score.StartOf("refrain 2"), 0.8},
                          {score.EndOf("coda") - 6, 0.5},
                          {score.EndOf("coda") + 6, -30}});
}
}
