// SPDX-License-Identifier: Zlib
// console/Properties.h: what "\get" and "\set" can name: fields of the records, by their own tables (base/Fields.h).
// The position of a car is none: it is two numbers of another record (Get.cpp, Set.cpp).
#pragma once
#include "console/Console.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace console
{
// The record that a property is a field of.
enum class Record
{
    Player,
    Camera,
    Screen,
    Race
};

struct Property
{
    std::string_view Name; // as answers write it; typed in any case
    Record In = Record::Player;
    bool ReadOnly = false;
    std::string_view Other = {}; // its name in the record's table, where that is not the one above
    std::int16_t Choices = 0;    // above 0: "\set" without a value takes the next of so many, from 0 round again

    constexpr std::string_view Field() const { return Other.empty() ? Name : Other; }
};

// Of "player x", "camera", "game". Null where there is none. word: in lower case.
const Property* FindPlayerProperty(std::string_view word);
const Property* FindCameraProperty(std::string_view word);
const Property* FindGameProperty(std::string_view word);

// In the two below, player is the index of the one meant, which must be there; nothing where the property is not a
// player's.

// The value as an answer shows it.
std::string ShowProperty(const Console& console, const Property& property, std::int16_t player = -1);
// Sets it, converted to the field's type; RuntimeError 6 where the value does not fit, and nothing has changed then.
void SetProperty(const Console& console, const Property& property, double value, std::int16_t player = -1);
// What comes after the present value of a property with choices. RuntimeError 6 after the largest 16-bit number.
double NextChoice(const Console& console, const Property& property);
}
