// SPDX-License-Identifier: Zlib
// velkar-race [OPTION VALUE]…: races over seeds and variations, without a window, and what they show.
#include "platform/FindData.h"
#include "platform/StandardStreams.h"
#include "tools/race/Arguments.h"
#include "tools/race/Batches.h"
#include "tools/race/Escape.h"

#include <algorithm>
#include <iostream>
#include <thread>

namespace
{
constexpr int Failed = 1, Misused = 2;

// True where nothing is to be written.
bool Write(const std::string& path, const std::string& text)
{
    if (path.empty() || drive::WriteToDisk(path, text, drive::Writing::Anew))
        return true;
    std::cerr << "velkar-race: cannot write " << path << '\n';
    return false;
}

int Jobs(const race::Arguments& arguments)
{
    return arguments.Jobs > 0 ? arguments.Jobs : static_cast<int>(std::max(std::thread::hardware_concurrency(), 1u));
}

int Race(const race::Arguments& arguments, const std::string& root)
{
    race::Trace trace;
    const std::vector<race::Batch> batches =
        race::RunBatches(arguments, root, Jobs(arguments), arguments.Trace.empty() ? nullptr : &trace);
    const std::string& complaints = batches.front().Races.front().Complaints;
    if (!complaints.empty())
        std::cerr << "velkar-race: loading the map answered " << complaints << '\n';
    bool isWell = complaints.empty();
    for (const race::Batch& batch : batches)
        for (const race::RaceResult& race : batch.Races)
            if (race.IsCutOff)
            {
                std::cerr << "velkar-race: seed " << race.Seed << ", " << Describe(batch.Changes) << ": cut off after "
                          << arguments.LimitSeconds() << " s, not every car has finished\n";
                isWell = false;
            }
    std::cout << TableOf(batches);
    const bool written = Write(arguments.Csv, CsvOf(batches)) && Write(arguments.Json, JsonOf(batches)) &&
                         Write(arguments.Trace, trace.Csv());
    return isWell && written ? 0 : Failed;
}

int Escape(const race::Arguments& arguments, const std::string& root)
{
    race::Trace trace;
    const race::Settings changes = arguments.Variations().front();
    const std::vector<race::Attempt> attempts =
        race::TryToEscape({root, arguments.FirstSeed, arguments.Laps, changes}, arguments.Escapes,
                          arguments.EscapeSeconds, Jobs(arguments), arguments.Trace.empty() ? nullptr : &trace);
    std::cout << EscapeTable(attempts);
    const bool stayed =
        std::none_of(attempts.begin(), attempts.end(), [](const race::Attempt& a) { return a.Left.has_value(); });
    const bool written = Write(arguments.Csv, EscapeCsv(attempts)) && Write(arguments.Json, EscapeJson(attempts)) &&
                         Write(arguments.Trace, trace.Csv());
    return stayed && written ? 0 : Failed;
}

int Run(int count, char** words)
{
    const race::Arguments arguments = race::ParseArguments({words + 1, words + count});
    if (arguments.Help)
    {
        std::cout << race::HelpText();
        return 0;
    }
    const std::string root =
        arguments.Root.empty() ? platform::FindData(platform::ExecutablePath(words[0])).string() : arguments.Root;
    return arguments.Escapes > 0 ? Escape(arguments, root) : Race(arguments, root);
}
}

int main(int count, char** words)
{
    platform::KeepBytes();
    try
    {
        return Run(count, words);
    }
    catch (const race::Misuse& misuse)
    {
        std::cerr << "velkar-race: " << misuse.Why << "\nvelkar-race --help tells what there is.\n";
    }
    catch (const drive::Refusal& refusal)
    {
        std::cerr << "velkar-race: " << refusal.Why << '\n';
    }
    return Misused;
}
