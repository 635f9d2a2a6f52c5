#include "tools/drive/Json.h"
#include "tools/race/Escape.h"
#include "tools/race/Format.h"

#include <algorithm>

namespace race
{
namespace
{
std::string Place(const Spot& spot)
{
    return Fixed(spot.X, 1) + " " + Fixed(spot.Z, 1);
}

std::string Row(const Attempt& attempt)
{
    return std::string(attempt.IsFromLap ? "lap" : "map") + "," + Fixed(attempt.From.X, 1) + "," +
           Fixed(attempt.From.Z, 1) + "," + Fixed(attempt.Heading, 3) + "," + Fixed(attempt.Margin, 2) + "," +
           Fixed(attempt.Nearest.X, 1) + "," + Fixed(attempt.Nearest.Z, 1) + "," +
           (attempt.Left ? Fixed(*attempt.Left, 2) : "") + "\n";
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
    if (attempt.Left)
        put("left", *attempt.Left);
    else
        object.Raw("left", "null");
    return object.Finish();
}
}

std::string EscapeTable(std::span<const Attempt> attempts)
{
    std::string text;
    for (const Attempt& attempt : attempts)
        text +=
            std::string(attempt.IsFromLap ? "lap " : "map ") + Place(attempt.From) + ": " +
            (attempt.Left ? "LEFT after " + Fixed(*attempt.Left, 1) + " s at " + Place(attempt.Nearest)
                          : "stayed, " + Fixed(attempt.Margin, 1) + " from the border at " + Place(attempt.Nearest)) +
            "\n";
    const auto left =
        std::count_if(attempts.begin(), attempts.end(), [](const Attempt& a) { return a.Left.has_value(); });
    return text + std::to_string(attempts.size()) + " attempts, " + std::to_string(left) + " left the map\n";
}

std::string EscapeCsv(std::span<const Attempt> attempts)
{
    std::string csv = "from,x,z,heading,margin,nearest_x,nearest_z,left\n";
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
