// SPDX-License-Identifier: Zlib
// tools/drive/Session.h: what the commands of a script act on: the headless machine and the game that runs on it.
#pragma once
#include "platform/headless/Machine.h"
#include "shell/Application.h"
#include "tools/drive/Json.h"
#include "tools/drive/Words.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace drive
{
// Thrown by a command that cannot be carried out: the answer's "error". Nothing has changed then.
struct Refusal
{
    std::string Why;
};

enum class Writing
{
    Anew,
    Append
};
// Writes a file, relative to the working directory; false where it cannot.
using FileWriter = std::function<bool(const std::string& path, std::string_view bytes, Writing mode)>;
bool WriteToDisk(const std::string& path, std::string_view bytes, Writing mode);

// The most that one command may ask for, so that no script keeps the driver for ever.
struct Limits
{
    std::uint32_t Ticks = 1'000'000;         // of a game command: seven hours of race
    std::uint32_t Frames = 100'000;          // of a render command
    std::uint32_t Milliseconds = 86'400'000; // of a run command: a day
    std::uint32_t Buffers = 100'000;         // of a wave command: over an hour of sound
};

struct Session
{
    Session(base::Files files, FileWriter writer, Limits limits)
        : Machine(std::move(files)), Writer(std::move(writer)), Most(limits)
    {
    }

    shell::Form1* Form() { return Application ? Application->Main() : nullptr; }
    bool Ended() { return Application && Application->Ended(); }
    // The clock goes on; what is due on the way fires when it is due.
    void Pass(std::uint32_t milliseconds);
    // The clock goes on 25 ms, then one simulation tick if GameT is enabled; of a loaded game.
    void Step(base::PhaseClock* clock = nullptr);

    headless::Machine Machine; // outlives the windows of the application
    std::unique_ptr<shell::Application> Application;
    FileWriter Writer;
    Limits Most;
    std::vector<double> Draws; // the scripted draws, also those given before load
};

struct Command
{
    std::string_view Name;
    bool NeedsGame;
    void (*Run)(Session& session, Words& words, Object& answer);
};
// The commands by subject; each has a file of its own.
std::span<const Command> LifeCommands();  // set-up, load, unload
std::span<const Command> InputCommands(); // controls, keys, characters
std::span<const Command> TimeCommands();  // ticks and the clock
std::span<const Command> FileCommands();  // pictures
std::span<const Command> WebcamCommands();
std::span<const Command> SoundCommands(); // the wave device and the music player
std::span<const Command> FieldCommands(); // peek, poke, checksum

// ---- What commands are parsed with; each throws a Refusal ----

void Require(bool condition, std::string_view why);
void RequireEnd(Words& words);
std::string_view Word(Words& words, std::string_view what); // a word that must be there

template <std::integral Whole> Whole Number(Words& words, std::string_view what, Whole least, Whole most)
{
    const std::optional<Whole> number = ParseWhole<Whole>(Word(words, what));
    Require(number && *number >= least && *number <= most, std::string(what) + " must be a whole number from " +
                                                               std::to_string(least) + " to " + std::to_string(most));
    return *number;
}

// The last word of a command, or 1.
inline std::uint32_t Times(Words& words, std::uint32_t most)
{
    const std::uint32_t times = words.AtEnd() ? 1 : Number<std::uint32_t>(words, "the number of times", 0, most);
    RequireEnd(words);
    return times;
}
}
