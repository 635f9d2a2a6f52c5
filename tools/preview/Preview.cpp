// SPDX-License-Identifier: Zlib
#include "tools/preview/Preview.h"

#include "base/RuntimeError.h"
#include "platform/FindData.h"
#include "tools/preview/Failure.h"
#include "tools/preview/LapSheet.h"
#include "tools/preview/MapPicture.h"
#include "tools/preview/Png.h"
#include "tools/preview/Turntable.h"

#include <exception>
#include <ostream>

namespace preview
{
namespace
{
constexpr int Failed = 1, Misused = 2;

Canvas DrawMapOf(const Arguments& arguments)
{
    std::vector<DrivenLine> lines;
    if (!arguments.Lines.empty())
        lines = ReadDrivenLines(arguments.Lines); // before the game: it takes longer to load
    LoadedGame game(arguments.Root);
    return DrawMap(game.State(), arguments.Scale, lines);
}

Canvas DrawLapOf(const Arguments& arguments)
{
    LoadedGame game(arguments.Root);
    return DrawLap(game, arguments);
}

void Make(Arguments arguments, const std::filesystem::path& executable)
{
    if (arguments.Root.empty())
        arguments.Root = platform::FindData(executable);
    const Canvas picture = arguments.What == Subject::Turntable ? DrawTurntable(arguments)
                           : arguments.What == Subject::Map     ? DrawMapOf(arguments)
                                                                : DrawLapOf(arguments);
    WritePng(arguments.Out, picture.View());
}

int Complain(std::ostream& complaints, const std::string& why, int status)
{
    complaints << "velkar-preview: " << why << '\n';
    if (status == Misused)
        complaints << "velkar-preview --help says what there is.\n";
    return status;
}
}

int Run(std::span<const std::string_view> words, const std::filesystem::path& executable, std::ostream& out,
        std::ostream& complaints)
{
    try
    {
        const Arguments arguments = ParseArguments(words);
        if (arguments.What == Subject::Help)
            out << HelpText();
        else
            Make(arguments, executable);
        return 0;
    }
    catch (const Misuse& misuse)
    {
        return Complain(complaints, misuse.Why, Misused);
    }
    catch (const Failure& failure)
    {
        return Complain(complaints, failure.Why, Failed);
    }
    catch (const base::RuntimeError& error)
    {
        return Complain(complaints, error.Description, Failed);
    }
    catch (const std::exception& error)
    {
        return Complain(complaints, error.what(), Failed);
    }
}
}
