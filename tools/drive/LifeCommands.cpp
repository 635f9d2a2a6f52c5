// SPDX-License-Identifier: Zlib
// Set-up, start and end of the game.
#include "tools/drive/Session.h"

#include <array>
#include <limits>

namespace drive
{
namespace
{
constexpr int MostProcessors = 128;
// On the virtual clock a frame takes no time: no ground pass is cut short, however slow the machine.
constexpr std::int32_t NoGroundLimit = 3'600'000; // milliseconds
constexpr std::uint32_t SplashTime = 1000;        // milliseconds

void RequireBeforeLoad(const Session& session)
{
    Require(!session.Application, "the game is loaded already");
}

void Processors(Session& session, Words& words, Object&)
{
    RequireBeforeLoad(session);
    const int number = Number(words, "the number of processors", 1, MostProcessors);
    RequireEnd(words);
    session.Machine.Processors = number;
}

void UseSeed(Session& session, Words& words)
{
    words.Next(); // "seed"
    const auto seed = Number<std::uint64_t>(words, "the seed", 0, std::numeric_limits<std::uint64_t>::max());
    RequireEnd(words);
    session.Draws.clear();
    session.Machine.Seed = seed; // what start-up seeds the generator with
    if (shell::Form1* form = session.Form())
        form->State().Random.Seed(seed);
}

void UseDraws(shell::Form1& form, const std::vector<double>& draws)
{
    form.State().Random.Script = draws;
    form.State().Random.ScriptNext = 0;
}

void Random(Session& session, Words& words, Object&)
{
    if (Words ahead = words; ahead.Next() == "seed")
        return UseSeed(session, words);
    std::vector<double> draws;
    do
    {
        const std::optional<double> draw = ParseDouble(Word(words, "a draw"));
        Require(draw && *draw >= 0 && *draw <= 1, "a draw must be a number from 0 to 1");
        draws.push_back(*draw);
    } while (!words.AtEnd());
    session.Draws = draws;
    if (shell::Form1* form = session.Form())
        UseDraws(*form, draws);
}

void Load(Session& session, Words& words, Object&)
{
    RequireBeforeLoad(session);
    RequireEnd(words);
    session.Application = std::make_unique<shell::Application>(session.Machine);
    session.Application->Start(session.Draws);
    session.Machine.PumpEvents();
    if (shell::Form1* form = session.Form())
        form->State().Screen.GroundLimit = NoGroundLimit;
    session.Pass(SplashTime);
}

void Unload(Session& session, Words& words, Object& answer)
{
    RequireEnd(words);
    answer.Raw("closed", session.Form()->CloseAsked() ? "true" : "false");
}
}

std::span<const Command> LifeCommands()
{
    static constexpr std::array commands = {
        Command{"processors", false, Processors},
        Command{"random", false, Random},
        Command{"load", false, Load},
        Command{"unload", true, Unload},
    };
    return commands;
}
}
