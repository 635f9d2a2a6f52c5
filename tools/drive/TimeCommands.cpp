// SPDX-License-Identifier: Zlib
// Ticks, the clock, and what both cost.
#include "base/PhaseClock.h"
#include "tools/drive/Session.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace drive
{
namespace
{
void AnswerGameTime(Session& session, Object& answer)
{
    if (shell::Form1* form = session.Form())
        AppendNumber(answer.Field("GameTime"), form->State().Race.GameTime);
}

void Game(Session& session, Words& words, Object& answer)
{
    const std::uint32_t times = Times(words, session.Most.Ticks);
    for (std::uint32_t i = 0; i < times && !session.Ended(); ++i)
        session.Step();
    AnswerGameTime(session, answer);
}

void Render(Session& session, Words& words, Object&)
{
    const std::uint32_t times = Times(words, session.Most.Frames);
    shell::Form1& form = *session.Form();
    for (std::uint32_t i = 0; i < times && !session.Ended(); ++i)
    {
        const shell::TickTimer& timer = form.State().Timers.RenderT;
        session.Machine.Clock += static_cast<std::uint32_t>(std::max(timer.interval, 0));
        if (timer.Enabled != base::False)
            form.Race().RenderT_Tick();
    }
}

void Run(Session& session, Words& words, Object& answer)
{
    const auto milliseconds = Number<std::uint32_t>(words, "the number of milliseconds", 0, session.Most.Milliseconds);
    RequireEnd(words);
    session.Pass(milliseconds);
    AnswerGameTime(session, answer);
}

void Draw(Session& session, Words& words, Object&)
{
    RequireEnd(words);
    session.Form()->Race().Draw();
}

void AnswerPhases(const base::PhaseClock& clock, std::uint32_t times, Object& answer)
{
    std::string& json = answer.Field("microseconds");
    const char* separator = "{";
    for (const base::PhaseClock::Phase& phase : clock.Phases())
    {
        const std::chrono::duration<float, std::micro> mean = phase.Time / static_cast<float>(times);
        json += separator;
        AppendText(json, phase.Name);
        json += ": ";
        AppendNumber(json, mean.count());
        separator = ", ";
    }
    json += clock.Phases().empty() ? "{}" : "}";
}

// The answer differs from run to run; what the game does is what "game" does, and a frame is drawn and shown.
void Measure(Session& session, Words& words, Object& answer)
{
    const std::string_view what = Word(words, "frame or tick");
    Require(what == "frame" || what == "tick", "a frame or a tick is measured");
    const bool isTick = what == "tick";
    const std::uint32_t times = Times(words, isTick ? session.Most.Ticks : session.Most.Frames);
    base::PhaseClock clock;
    for (std::uint32_t i = 0; i < times && !session.Ended(); ++i)
    {
        if (isTick)
            session.Step(&clock);
        else
            session.Form()->Race().ShowFrame(&clock);
    }
    AnswerPhases(clock, std::max(times, 1u), answer);
}

void Place(Session& session, Words& words, Object&)
{
    RequireEnd(words);
    session.Form()->Race().PlaceCamera();
}
}

std::span<const Command> TimeCommands()
{
    static constexpr std::array commands = {
        Command{"game", true, Game}, Command{"render", true, Render}, Command{"run", true, Run},
        Command{"draw", true, Draw}, Command{"place", true, Place},   Command{"measure", true, Measure},
    };
    return commands;
}
}
