// console/Properties.h: what "\get" and "\set" can name, as fields of the records' own tables (base/Fields.h).
#pragma once
#include "base/Fields.h"
#include "base/Numbers.h"
#include "console/ShowNumber.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace console
{
struct Property
{
    std::string_view Name;  // as answers write it; typed in any case
    std::string_view Field; // its name in the record's table
    bool ReadOnly = false;
};

// Null where there is none. word: in lower case.
const Property* FindPlayerProperty(std::string_view word);
const Property* FindCameraProperty(std::string_view word); // of the camera record: not the texture filter

inline void Convert(double value, float& field)
{
    field = base::ToSingle(value);
}
inline void Convert(double value, std::int16_t& field)
{
    field = base::ToInt16(value);
}
inline void Convert(double value, std::uint8_t& field)
{
    field = base::ToByte(value);
}

// Sets the field of that name, converted to its type; RuntimeError 6 where the value does not fit.
template <base::Described Record> void SetField(Record& record, std::string_view name, double value)
{
    base::VisitField(record, name,
                     [&](const auto& field, auto& member)
                     {
                         if constexpr (std::remove_cvref_t<decltype(field)>::Writable &&
                                       requires { Convert(value, member); })
                             Convert(value, member);
                     });
}

// The value of the field of that name as an answer shows it.
template <base::Described Record> std::string ShowField(const Record& record, std::string_view name)
{
    std::string shown;
    base::VisitField(record, name,
                     [&](const auto&, const auto& member)
                     {
                         if constexpr (requires { ShowNumber(member); })
                             shown = ShowNumber(member);
                     });
    return shown;
}
}
