// SPDX-License-Identifier: Zlib
// compare_answers [--accept] SCRIPT EXPECTED ANSWERS: judges what velkar-drive answered to a script. The expected file
// runs parallel to the script: its line n is the answer to the script's line n, or "*" where any answer will do; where
// the script has a comment or an empty line it may say anything. --accept writes the expected file from the answers.
#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace
{
using Lines = std::vector<std::string>;

bool Read(const char* path, Lines& lines)
{
    std::ifstream in(path, std::ios::binary);
    for (std::string line; std::getline(in, line);)
    {
        if (line.ends_with('\r'))
            line.pop_back();
        lines.push_back(line);
    }
    if (!in.eof())
        std::cerr << "cannot read " << path << '\n';
    return in.eof();
}

bool IsAnswered(std::string_view scriptLine)
{
    return !scriptLine.starts_with('#') && scriptLine.find_first_not_of(" \t") != std::string_view::npos;
}

const std::string& LineOr(const Lines& lines, std::size_t at, const std::string& otherwise)
{
    return at < lines.size() ? lines[at] : otherwise;
}

// The script's own comments with the answers between them.
Lines Parallel(const Lines& script, const Lines& answers)
{
    static const std::string none;
    Lines expected;
    std::size_t next = 0;
    for (const std::string& line : script)
        expected.push_back(IsAnswered(line) ? LineOr(answers, next++, none) : line);
    return expected;
}

// How many lines differ; each is told with the command.
int Differences(const Lines& script, const Lines& expected, const Lines& answers)
{
    static const std::string none = "(nothing)";
    int different = 0;
    std::size_t next = 0;
    for (std::size_t i = 0; i < script.size(); ++i)
    {
        if (!IsAnswered(script[i]))
            continue;
        const std::string& wanted = LineOr(expected, i, none);
        const std::string& given = LineOr(answers, next++, none);
        if (wanted == given || (wanted == "*" && &given != &none))
            continue;
        ++different;
        std::cout << "line " << i + 1 << ": " << script[i] << "\n  expected " << wanted << "\n  answered " << given
                  << '\n';
    }
    if (answers.size() != next)
    {
        ++different;
        std::cout << next << " commands, but " << answers.size() << " answers\n";
    }
    return different;
}
}

int main(int count, char** arguments)
{
    const bool accept = count == 5 && std::string_view(arguments[1]) == "--accept";
    if (count != 4 && !accept)
    {
        std::cerr << "usage: compare_answers [--accept] SCRIPT EXPECTED ANSWERS\n";
        return 2;
    }
    char** files = arguments + (accept ? 2 : 1);
    Lines script, expected, answers;
    if (!Read(files[0], script) || !Read(files[2], answers))
        return 2;
    if (accept)
    {
        std::ofstream out(files[1], std::ios::binary);
        for (const std::string& line : Parallel(script, answers))
            out << line << '\n';
        return out ? 0 : 2;
    }
    return Read(files[1], expected) && Differences(script, expected, answers) == 0 ? 0 : 1;
}
