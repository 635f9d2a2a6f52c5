// SPDX-License-Identifier: Zlib
#include "assets/sound/score/Studio.h"

#include "assets/common/Numbers.h"
#include "assets/sound/synth/Loudness.h"
#include "base/Numbers.h"

#include <stdexcept>

namespace assets::sound
{
namespace
{
constexpr double Tail = 6;      // seconds for the last echoes
constexpr double Loudest = -16; // LUFS of a finished piece
// Decibels. The encoder adds a little on top, and the engine of a race is added to it all: both fit into full scale.
constexpr double Ceiling = -6;
constexpr double SilentBelow = -64; // decibels
constexpr double MiddleBelow = 150; // Hz: what carries the piece stays between the loudspeakers
constexpr double Apart = 3;         // decibels by which everything above stands further apart

double HzOf(double key)
{
    return 440 * std::exp2((key - 69) / 12);
}

void Scale(Stereo& sound, double factor)
{
    for (std::size_t i = 0; i < sound.Size(); ++i)
        sound.Put(i, sound.Left[i] * factor, sound.Right[i] * factor);
}

// Ends shortly after the last sound that can be heard.
void Trim(Stereo& sound)
{
    std::size_t end = sound.Size();
    const double silent = Decibels(SilentBelow);
    while (end > 0 && std::abs(sound.Left[end - 1]) < silent && std::abs(sound.Right[end - 1]) < silent)
        --end;
    constexpr std::size_t Fade = Rate / 2;
    for (std::size_t i = end - std::min(end, Fade); i < end; ++i)
    {
        const double left = static_cast<double>(end - i) / Fade;
        sound.Put(i, sound.Left[i] * left, sound.Right[i] * left);
    }
    end = std::min(sound.Size(), end + Rate / 10);
    sound.Left.resize(end);
    sound.Right.resize(end);
}
}

Studio::Studio(const Score& score, const RoomSettings& room, const DelaySettings& echo)
    : Music(score), Reverb(room), Delay(echo), MixBus(Frames(score.Seconds(score.Beats()) + Tail)),
      RoomBus(MixBus.Size()), EchoBus(MixBus.Size()), Pushed(MixBus.Size())
{
}

void Studio::PumpWith(const Line& strokes, double seconds)
{
    for (const Note& note : strokes.Notes)
    {
        const std::size_t start = Frames(Music.Seconds(note.Start));
        for (std::size_t i = 0; i < Frames(seconds) && start + i < Pushed.size(); ++i)
        {
            const double part = static_cast<double>(i) / (seconds * Rate);
            const double down = SmoothStep(1, 0.1, part) * std::min(1.0, static_cast<double>(i) / 150);
            Pushed[start + i] = std::max(Pushed[start + i], static_cast<float>(down));
        }
    }
}

Stereo Studio::Played(const Line& line, const Instrument& instrument, const Strip& strip)
{
    Stereo part(MixBus.Size());
    ++PartCount;
    int index = 0;
    for (const Note& note : line.Notes)
    {
        const double early = strip.Loose * (2 * HashUnit(index, 1, PartCount) - 1);
        const double start = std::max(0.0, Music.Seconds(note.Start) + strip.Late + early);
        const double length = Music.Seconds(note.Start + note.Length) - Music.Seconds(note.Start);
        const double force = note.Force * (1 + strip.Touch * (2 * HashUnit(index, 2, PartCount) - 1));
        instrument({start, length, HzOf(note.Key), HzOf(note.FromKey), std::clamp(force, 0.0, 1.0), note.Bright,
                    Hash(index, 3, PartCount)},
                   part);
        ++index;
    }
    return part;
}

void Studio::Follow(Stereo& part, double pump, const std::vector<RidePoint>& ride) const
{
    std::size_t point = 0;
    double last = 0, gain = 1;
    for (std::size_t i = 0; i < part.Size(); ++i)
    {
        double decibels = -pump * Pushed[i];
        if (!ride.empty())
        {
            const double now = static_cast<double>(i) / Rate;
            while (point + 1 < ride.size() && Music.Seconds(ride[point + 1].Beat) <= now)
                ++point;
            const RidePoint& a = ride[point];
            const RidePoint& b = ride[std::min(point + 1, ride.size() - 1)];
            const double from = Music.Seconds(a.Beat), to = Music.Seconds(b.Beat);
            decibels += Lerp(a.Decibels, b.Decibels, to > from ? Clamp01((now - from) / (to - from)) : 0);
        }
        if (decibels == 0)
            continue;
        if (decibels != last)
            gain = Decibels(last = decibels);
        part.Put(i, part.Left[i] * gain, part.Right[i] * gain);
    }
}

void Studio::Record(const Line& line, const Instrument& instrument, const Strip& strip)
{
    Stereo part = Played(line, instrument, strip);
    if (strip.Treat)
        strip.Treat(part);
    const double loudness = Loudness(part);
    if (loudness < -70)
        throw std::runtime_error("a part that plays nothing");
    Scale(part, Decibels(strip.Loud - loudness));
    Follow(part, strip.Pump, strip.Ride);
    // Equal power: what moves aside stays as loud.
    const double turn = (strip.Pan + 1) * Pi / 4;
    const double left = std::cos(turn) * std::sqrt(2.0), right = std::sin(turn) * std::sqrt(2.0);
    MixBus.Add(part, left, right);
    if (strip.Room > 0)
        RoomBus.Add(part, left * strip.Room, right * strip.Room);
    if (strip.Echo > 0)
        EchoBus.Add(part, left * strip.Echo, right * strip.Echo);
}

void Studio::Record(const Kit& kit, const std::map<std::string, Drum>& drums)
{
    for (const auto& [name, line] : kit)
    {
        const auto drum = drums.find(name);
        if (drum == drums.end())
            throw std::runtime_error("no drum: " + name);
        Record(Moved(line, drum->second.Key - 60), drum->second.Sound, drum->second.Channel);
    }
}

Stereo Studio::Master(const std::vector<RidePoint>& ride)
{
    const Stereo echoes = Echo(EchoBus, Delay);
    MixBus.Add(echoes, 1, 1);
    RoomBus.Add(echoes, 0.25, 0.25); // echoes stand in the same room
    MixBus.Add(Room(RoomBus, Reverb), 1, 1);
    CutLow(MixBus, 26);
    Widen(MixBus, MiddleBelow, Apart);
    Follow(MixBus, 0, ride);
    Scale(MixBus, Decibels(Loudest - Loudness(MixBus)));
    // Glue: the loud passages draw a little nearer to the others.
    Compress(MixBus, -18, 1.9, 0.012, 0.18);
    Drive(MixBus, 5, 0); // like tape: the tips of the drums grow round, and little is left to the limiter
    Stereo piece = MixBus;
    double gain = Loudest - Loudness(piece);
    for (int turn = 0; turn < 3; ++turn)
    {
        piece = MixBus;
        Scale(piece, Decibels(gain));
        Limit(piece, Ceiling);
        gain += Loudest - Loudness(piece);
    }
    Trim(piece);
    MixBus = RoomBus = EchoBus = Stereo();
    return piece;
}

void Brighten(Line& line, double from, double to, double octavesFrom, double octavesTo)
{
    for (Note& note : line.Notes)
        if (note.Start >= from && note.Start < to)
            note.Bright += Lerp(octavesFrom, octavesTo, (note.Start - from) / (to - from));
}

void Grow(Line& line, double from, double to, double forceFrom, double forceTo)
{
    for (Note& note : line.Notes)
        if (note.Start >= from && note.Start < to)
            note.Force = Lerp(forceFrom, forceTo, (note.Start - from) / (to - from));
}

Line Tremolo(const Line& line, double strokeBeats)
{
    Line strokes;
    for (const Note& note : line.Notes)
    {
        const int count = note.Length < 0.5 - 1e-9 ? 1 : base::RoundEven(note.Length / strokeBeats);
        for (int i = 0; i < count; ++i)
        {
            Note stroke = note;
            stroke.Start += i * note.Length / count;
            stroke.Length = note.Length / count;
            // The first stroke speaks, the others follow, swelling toward the middle of the note.
            if (i > 0)
                stroke.Force *= 0.62 + 0.16 * std::sin(Pi * i / count) + (i % 2 == 0 ? 0.06 : 0);
            strokes.Notes.push_back(stroke);
        }
    }
    return strokes;
}

Line Yielding(Line chords, const Line& melody)
{
    for (const Note& sung : melody.Notes)
        for (Note& held : chords.Notes)
        {
            const double from = std::max(sung.Start, held.Start);
            const double to = std::min(sung.Start + sung.Length, held.Start + held.Length);
            if (to - from >= 0.9 && Wrap(base::RoundEven(sung.Key - held.Key), 12) == 1)
                held.FromKey = ++held.Key;
        }
    return chords;
}

Line Moved(Line line, double semitones)
{
    for (Note& note : line.Notes)
    {
        note.Key += semitones;
        note.FromKey += semitones;
    }
    return line;
}

Line Strummed(const Score& score, Line line, double between)
{
    const double beatsASecond = 1 / score.Seconds(1);
    std::size_t first = 0;
    for (int stroke = 0; first < line.Notes.size(); ++stroke)
    {
        std::size_t last = first;
        while (last < line.Notes.size() && line.Notes[last].Start == line.Notes[first].Start)
            ++last;
        const bool up = base::RoundEven(line.Notes[first].Start * 4) % 2 != 0;
        for (std::size_t i = first; i < last; ++i)
        {
            const std::size_t order = up ? last - 1 - i : i - first;
            line.Notes[i].Start += static_cast<double>(order) * between * beatsASecond;
            line.Notes[i].Force *= up ? 0.85 : 1;
        }
        first = last;
    }
    return line;
}
}
