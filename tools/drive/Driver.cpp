// SPDX-License-Identifier: Zlib
#include "tools/drive/Driver.h"

#include "base/RuntimeError.h"

#include <exception>

namespace drive
{
namespace
{
const Command* FindCommand(std::string_view name)
{
    for (const std::span<const Command> subject : {LifeCommands(), InputCommands(), TimeCommands(), FileCommands(),
                                                   SoundCommands(), WebcamCommands(), FieldCommands()})
        for (const Command& command : subject)
            if (command.Name == name)
                return &command;
    return nullptr;
}

std::string_view IconName(base::Icon icon)
{
    return icon == base::Icon::Critical ? "critical" : icon == base::Icon::Exclamation ? "exclamation" : "information";
}

// The boxes shown while the command ran, as a field of their own; then there are none.
void TakeMessages(headless::Machine& machine, Object& answer)
{
    std::string list;
    for (const headless::Box& box : machine.Boxes)
    {
        Object message;
        AppendText(message.Field("icon"), IconName(box.Icon));
        AppendText(message.Field("title"), box.Title);
        AppendText(message.Field("text"), box.Text);
        list += (list.empty() ? "" : ", ") + message.Finish();
    }
    answer.Raw("messages", "[" + list + "]");
    if (machine.UnrecordedBoxes > 0)
        AppendNumber(answer.Field("unrecorded"), machine.UnrecordedBoxes);
    machine.Boxes.clear();
    machine.UnrecordedBoxes = 0;
}

// Carries a command out. What went wrong, or nothing.
std::string Execute(Session& session, std::string_view line, Object& answer)
{
    try
    {
        Require(!session.Ended(), "the game has ended");
        Words words(line);
        const std::string_view name = words.Next();
        const Command* command = FindCommand(name);
        Require(command != nullptr, "there is no command " + std::string(name));
        Require(!command->NeedsGame || session.Form() != nullptr, "the game is not loaded yet");
        command->Run(session, words, answer);
        session.Machine.PumpEvents();
        return {};
    }
    catch (const Refusal& refusal)
    {
        return refusal.Why;
    }
    catch (const base::RuntimeError& error)
    {
        return "error " + std::to_string(error.Number) + ": " + error.Description;
    }
    catch (const std::exception& error)
    {
        return std::string("error: ") + error.what();
    }
}
}

std::string Driver::Answer(std::string_view line)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (Words(line).AtEnd() || line.starts_with('#'))
        return {};
    const bool endedBefore = TheSession.Ended();
    Object answer;
    const std::string error = Execute(TheSession, line, answer);
    if (!endedBefore && TheSession.Ended())
        answer.Raw("ended", "true");
    return Finish(answer, error);
}

std::string Driver::Refuse(std::string_view why)
{
    Object answer;
    return Finish(answer, why);
}

std::string Driver::Finish(Object& answer, std::string_view error)
{
    if (!error.empty())
    {
        AppendText(answer.Field("error"), error);
        Errors = true;
    }
    TakeMessages(TheSession.Machine, answer);
    return answer.Finish();
}
}
