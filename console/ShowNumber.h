// SPDX-License-Identifier: Zlib
// console/ShowNumber.h: numbers as an Italian system writes them: a comma, no blanks, "-" in front. Zero is "0", also
// where it is negative; what is no number is "Non un numero", the infinities "Infinito" and "-Infinito".
#pragma once
#include <cstdint>
#include <string>

namespace console
{
// The shortest general form with up to 7 significant digits and a comma: "12,5", "0,0001", "1E-05", "1,5E+07".
std::string ShowNumber(float value);
std::string ShowNumber(std::int32_t value);
// The same, rounded to 3 decimals, halves to the even neighbour.
std::string ShowCoordinate(float value);
}
