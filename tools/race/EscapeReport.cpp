// SPDX-License-Identifier: Zlib
#include "tools/drive/Json.h"
#include "tools/race/Escape.h"
#include "tools/race/Format.h"

namespace race
{
namespace
{
std::string Place(const Spot& spot)
{
    return Fixed(spot.X, 1) + " " + Fixed(spot.Z, 1);
}

std::string Outcome(const Attempt& attempt)
{
    if (attempt.Left)
        return "LEFT after " + Fixed(*attempt.Left, 1) + " s at " + Place(attempt.Nearest);
    return "stayed, " + Fixed(attempt.Margin, 1) + " from the border at " + Place(attempt.Nearest) + ", " +
           (attempt.Back ? "back after " + Fixed(*attempt.Back, 1) + " s" : "NOT BACK");
}

std::string Row(const Attempt& attempt)
{
    return std::string(attempt.IsFromLap ? "lap" : "map") + "," + Fixed(attempt.From.X, 1) + "," +
           Fixed(attempt.From.Z, 1) + "," + Fixed(attempt.Heading, 3) + "," + Fixed(attempt.Margin, 2) + "," +
           Fixed(attempt.Nearest.X, 1) + "," + Fixed(attempt.Nearest.Z, 1) + "," +
           (attempt.Left ? Fixed(*attempt.Left, 2) : "") + "," + (attempt.Back ? Fixed(*attempt.Back, 2) : "") + "\n";
}

std::string Json(const Attempt& attempt)
{
    drive::Object object;
    const auto put = [&](std::string_view name, double value)
    { drive::AppendNumber(object.Field(name), static_cast<float>(value)); };
    drive::AppendText(object.Field("from"), attempt.IsFromLap ? "lap" : "map");
    put("x", attempt.From.X);
    put("z", attempt.From.Z);
    put("heading", attempt.Heading);
    put("margin", attempt.Margin);
    put("nearestX", attempt.Nearest.X);
    put("nearestZ", attempt.Nearest.Z);
    const auto putKnown = [&](std::string_view name, const std::optional<double>& value)
    {
        if (value)
            put(name, *value);
        else
            object.Raw(name, "null");
    };
    putKnown("left", attempt.Left);
    putKnown("back", attempt.Back);
    return object.Finish();
}
}

std::string EscapeTable(std::span<const Attempt> attempts)
{
    std::string text;
    int left = 0, lost = 0;
    for (const Attempt& attempt : attempts)
    {
        text += std::string(attempt.IsFromLap ? "lap " : "map ") + Place(attempt.From) + ": " + Outcome(attempt) + "\n";
        left += attempt.Left ? 1 : 0;
        lost += !attempt.Left && !attempt.Back ? 1 : 0;
    }
    return text + std::to_string(attempts.size()) + " attempts, " + std::to_string(left) + " left the map, " +
           std::to_string(lost) + " did not come back\n";
}

std::string EscapeCsv(std::span<const Attempt> attempts)
{
    std::string csv = "from,x,z,heading,margin,nearest_x,nearest_z,left,back\n";
    for (const Attempt& attempt : attempts)
        csv += Row(attempt);
    return csv;
}

std::string EscapeJson(std::span<const Attempt> attempts)
{
    std::string list;
    for (const Attempt& attempt : attempts)
        list += (list.empty() ? "" : ",\n ") + Json(attempt);
    drive::Object object;
    object.Raw("attempts", "[" + list + "]");
    return object.Finish() + "\n";
}
}
