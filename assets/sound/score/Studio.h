// SPDX-License-Identifier: Zlib
// assets/sound/score/Studio.h: where a score is played, mixed and mastered.
#pragma once
#include "assets/sound/score/Score.h"
#include "assets/sound/synth/Effects.h"
#include "assets/sound/synth/Tone.h"

namespace assets::sound
{
struct RidePoint
{
    double Beat, Decibels;
};

// One channel of the desk.
struct Strip
{
    double Loud = -24;                    // LUFS of the part by itself
    double Pan = 0;                       // -1 left .. 1 right
    double Room = 0;                      // share given to the reverberation
    double Echo = 0;                      // share given to the echoes
    double Pump = 0;                      // decibels by which the bass drum pushes it down
    double Loose = 0.004;                 // seconds by which notes come early or late
    double Touch = 0.07;                  // share by which their force differs
    double Late = 0;                      // seconds, all of them
    std::function<void(Stereo&)> Treat{}; // effects of the channel's own
    std::vector<RidePoint> Ride{};        // the fader's way, straight between the points
};

struct Drum
{
    Instrument Sound;
    Strip Channel{};
    double Key = 60;
};

class Studio
{
public:
    Studio(const Score& score, const RoomSettings& room, const DelaySettings& echo);

    // The strokes that push other parts down, and how long these take to come back.
    void PumpWith(const Line& strokes, double seconds);
    void Record(const Line& line, const Instrument& instrument, const Strip& strip);
    // Every drum of the kit must have its sound.
    void Record(const Kit& kit, const std::map<std::string, Drum>& drums);
    // The finished piece at -16 LUFS, no peak above -6 dB, the silence at its end cut off; `ride` is the way of the
    // last fader. The studio is empty after it.
    Stereo Master(const std::vector<RidePoint>& ride = {});

private:
    Stereo Played(const Line& line, const Instrument& instrument, const Strip& strip);
    void Follow(Stereo& part, double pump, const std::vector<RidePoint>& ride) const;

    const Score& Music;
    RoomSettings Reverb;
    DelaySettings Delay;
    Stereo MixBus, RoomBus, EchoBus;
    std::vector<float> Pushed; // 0: free, 1: pushed down fully
    std::uint32_t PartCount = 0;
};

// Opens (or closes) the filters of the notes between two beats, evenly.
void Brighten(Line& line, double from, double to, double octavesFrom, double octavesTo);
// The same with the force of the strokes.
void Grow(Line& line, double from, double to, double forceFrom, double forceTo);
// Notes of at least half a beat as quick strokes of a plectrum.
Line Tremolo(const Line& line, double strokeBeats);
// Long chords that leave the melody room: a tone that would rub a semitone below it steps up to it.
Line Yielding(Line chords, const Line& melody);
Line Moved(Line line, double semitones);
// Chords as a hand strikes them: lower strings first, every other stroke upward. Seconds between strings.
Line Strummed(const Score& score, Line line, double between);
}
