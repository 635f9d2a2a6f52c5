// SPDX-License-Identifier: Zlib
#include "tools/preview/DrivenLines.h"

#include "base/Numbers.h"
#include "base/ReadNumber.h"
#include "tools/preview/Failure.h"

#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <optional>
#include <string>

namespace preview
{
namespace
{
constexpr std::string_view Header = "tick,car,x,z,speed,heading,damage";
constexpr std::size_t Columns = 7;
constexpr double MostCars = 32767;

struct Row
{
    double Tick = 0;
    int Car = 0;
    Spot At;
};

// What is wrong with it, or nothing.
std::string ReadRow(std::string_view line, Row& row)
{
    std::array<double, Columns> values{};
    for (std::size_t i = 0; i < Columns; ++i)
    {
        const bool isLast = i + 1 == Columns;
        const std::size_t end = line.find(',');
        if ((end == std::string_view::npos) != isLast)
            return "there must be seven columns";
        const std::string_view word = line.substr(0, end);
        const std::optional<double> value = base::ReadNumber(word, base::DataSeparator);
        if (!value || !std::isfinite(*value))
            return Quoted(word) + " is no number";
        values[i] = *value;
        if (!isLast)
            line.remove_prefix(end + 1);
    }
    if (values[1] < 0 || values[1] > MostCars || std::floor(values[1]) != values[1])
        return "a car is a whole number from 0";
    row = {values[0], base::RoundEven(values[1]), {values[2], values[3]}};
    return {};
}

std::string_view WithoutReturn(std::string_view line)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

// The lines by car, as they grow.
class Collector
{
public:
    void Take(const Row& row)
    {
        const auto [found, isNew] = Cars.try_emplace(row.Car);
        Growing& car = found->second;
        if (isNew || row.Tick <= car.LastTick)
            car.Line.Drives.emplace_back();
        car.Line.Car = row.Car;
        car.LastTick = row.Tick;
        car.Line.Drives.back().push_back(row.At);
    }

    std::vector<DrivenLine> Lines() const
    {
        std::vector<DrivenLine> lines;
        for (const auto& [number, car] : Cars)
            lines.push_back(car.Line);
        return lines;
    }

private:
    struct Growing
    {
        DrivenLine Line;
        double LastTick = 0;
    };
    std::map<int, Growing> Cars;
};
}

std::vector<DrivenLine> ReadDrivenLines(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    std::string line;
    if (!in || std::filesystem::is_directory(file))
        throw Failure{"cannot read " + file.string()};
    if (!std::getline(in, line) || WithoutReturn(line) != Header)
        throw Failure{file.string() + ":1: the first line must be " + std::string(Header)};
    Collector collector;
    for (int number = 2; std::getline(in, line); ++number)
    {
        Row row;
        if (const std::string wrong = ReadRow(WithoutReturn(line), row); !wrong.empty())
            throw Failure{file.string() + ":" + std::to_string(number) + ": " + wrong};
        collector.Take(row);
    }
    std::vector<DrivenLine> lines = collector.Lines();
    if (lines.empty())
        throw Failure{file.string() + " has no line below its header"};
    return lines;
}
}
