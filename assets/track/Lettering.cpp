// SPDX-License-Identifier: Zlib
#include "assets/track/Lettering.h"

#include "assets/common/Shapes.h"

#include <array>
#include <string>

namespace assets::track
{
namespace
{
// Each letter: strokes separated by '/', points as two hexadecimal-like digits on a 7 wide, 9 high grid ("xy").
struct Shape
{
    char Letter;
    const char* Strokes;
};
constexpr std::array<Shape, 39> Shapes{{
    {'A', "00 27 37 50/13 43"},
    {'B', "00 07 37 46 45 34 04/34 43 41 30 00"},
    {'C', "46 37 17 06 01 10 30 41"},
    {'D', "00 07 27 45 42 20 00"},
    {'E', "47 07 00 40/04 34"},
    {'F', "47 07 00/04 34"},
    {'G', "46 37 17 06 01 10 30 41 43 23"},
    {'H', "00 07/40 47/04 44"},
    {'I', "20 27"},
    {'J', "37 31 20 10 01"},
    {'K', "00 07/47 04 40"},
    {'L', "07 00 40"},
    {'M', "00 07 23 47 40"},
    {'N', "00 07 40 47"},
    {'O', "10 01 06 17 37 46 41 30 10"},
    {'P', "00 07 37 46 44 33 03"},
    {'Q', "10 01 06 17 37 46 41 30 10/22 40"},
    {'R', "00 07 37 46 44 33 03/23 40"},
    {'S', "46 37 17 06 05 14 34 43 41 30 10 01"},
    {'T', "07 47/27 20"},
    {'U', "07 01 10 30 41 47"},
    {'V', "07 20 47"},
    {'W', "07 10 24 30 47"},
    {'X', "00 47/07 40"},
    {'Y', "07 24 47/24 20"},
    {'Z', "07 47 00 40"},
    {'0', "10 01 06 17 37 46 41 30 10"},
    {'1', "15 27 20"},
    {'2', "06 17 37 46 44 00 40"},
    {'3', "07 47 24 34 43 41 30 10 01"},
    {'4', "30 37 02 42"},
    {'5', "47 07 04 34 43 41 30 10 01"},
    {'6', "46 37 17 06 01 10 30 41 43 34 04"},
    {'7', "07 47 10"},
    {'8', "14 05 06 17 37 46 45 34 14 03 01 10 30 41 43 34"},
    {'9', "01 10 30 41 46 37 17 06 04 13 43"},
    {'-', "13 33"},
    {'.', "20 20"},
    {'\'', "27 25"},
}};
constexpr double Advance = 5.4 / 7; // in letter heights

const char* StrokesOf(char letter)
{
    for (const Shape& shape : Shapes)
        if (shape.Letter == letter)
            return shape.Strokes;
    return "";
}
}

std::vector<std::vector<Point>> Letters(std::string_view text)
{
    std::vector<std::vector<Point>> strokes;
    double left = 0;
    for (const char letter : text)
    {
        const std::string_view code = StrokesOf(letter);
        std::vector<Point> stroke;
        for (std::size_t i = 0; i + 1 < code.size(); i += 3)
        {
            stroke.push_back({left + (code[i] - '0') / 7.0, (code[i + 1] - '0') / 7.0});
            if (i + 2 >= code.size() || code[i + 2] == '/')
            {
                strokes.push_back(stroke);
                stroke.clear();
            }
        }
        left += Advance;
    }
    return strokes;
}

double LettersWidth(std::string_view text)
{
    return text.empty() ? 0 : static_cast<double>(text.size()) * Advance - (Advance - 4.0 / 7);
}

void PaintText(Canvas& canvas, std::string_view text, Point middle, double height, double thickness, Rgb colour,
               double opacity, double stretch)
{
    const double left = middle.X - LettersWidth(text) * height * stretch / 2;
    for (std::vector<Point> stroke : Letters(text))
    {
        for (Point& p : stroke)
            p = {left + p.X * height * stretch, middle.Y + (p.Y - 0.5) * height};
        Stroke(canvas, stroke, thickness, colour, opacity);
    }
}
}
