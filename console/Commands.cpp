// SPDX-License-Identifier: Zlib
// Running a line, and the commands that touch no property.
#include "console/Commands.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "console/Texts.h"

#include <iterator>

namespace console
{
namespace
{
Reply ShowTopic(Console& console, const Topic* topic, const char* unknown)
{
    if (topic == nullptr)
        Fail(unknown);
    // Deliberate: the tab width stays for the answers that follow.
    if (topic->TabWidth != 0)
        console.Scene.Labels.At(console.Line).TabWidth = topic->TabWidth;
    return std::string(topic->Text);
}

Reply List(Console& console, const Words& words)
{
    if (words.Has(1))
        return ShowTopic(console, FindObject(words.At(1, NoObject)), BadObject);
    return std::string(AllObjects);
}

Reply Help(Console& console, const Words& words)
{
    if (words.Has(1))
        return ShowTopic(console, FindCommand(words.At(1, NoSuchCommand)), NoSuchCommand);
    return std::string(AllCommands);
}

Reply ToggleInformation(Console& console, const Words&)
{
    std::uint8_t& visible = console.Scene.Labels.At(console.Information).Visible;
    visible = visible == 0 ? 1 : 0;
    return {};
}

struct Command
{
    std::string_view Name;
    Reply (*Run)(Console& console, const Words& words);
};

constexpr Command CommandsByName[] = {
    {"\\set", Set}, {"\\get", Get}, {"\\lst", List}, {"\\inf", ToggleInformation}, {"\\help", Help},
};

Reply Run(Console& console, const Words& words)
{
    const std::string_view name = words.At(0, BadCommand);
    for (const Command& command : CommandsByName)
        if (command.Name == name)
            return command.Run(console, words);
    Fail(BadCommand);
}

// What the line gives; where it fails, why.
Reply ReplyTo(Console& console, std::string_view line)
{
    try
    {
        return Run(console, Words(line));
    }
    catch (const base::RuntimeError& error)
    {
        return error.Description;
    }
}
}

std::int16_t PlayerIndex(const world::Race& race, double number)
{
    const std::int16_t index = base::ToInt16(number);
    if (world::FindPlayer(race, index) == nullptr)
        Fail(BadIndex);
    return index;
}

void ExecConsoleCommand(Console& console, std::string_view line)
{
    if (!console.Scene.Labels.Has(console.Line))
        return; // the display was never made: there is nothing to type into
    const Reply reply = ReplyTo(console, line);
    render::Label2D& label = console.Scene.Labels.At(console.Line);
    label.Visible = reply ? 1 : 0;
    if (reply)
        label.Text = *reply;
}
}
