// SPDX-License-Identifier: Zlib
// base/Fields.h: the description of records, name by name, that the driver and the console read and write through.
// A record states its fields once, beside itself:
//     template <> struct base::FieldsOf<Sfera>
//     {
//         static constexpr auto Table = std::make_tuple(
//             Field{"R", &Sfera::R}, Derived{"NumLinks", [](const Sfera& sphere) { return CountOf(sphere.Links); }});
//     };
// The order of the table is the order in which tools show the fields and sum them up.
#pragma once
#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace base
{
template <class Record> struct FieldsOf; // specialised beside each record

// Each kind of entry has a Name, says whether tools may write it, and finds its value in a record: Of yields a
// reference to what the record stores, or a value that it computes.

// A member that tools read and write.
template <class Record, class Member> struct Field
{
    std::string_view Name;
    Member Record::*Pointer;
    static constexpr bool Writable = true;

    auto& Of(Record& record) const { return record.*Pointer; }
    auto& Of(const Record& record) const { return record.*Pointer; }
};
template <class Record, class Member> Field(const char*, Member Record::*) -> Field<Record, Member>;

// A member that the record's own procedures keep right: tools only read it.
template <class Record, class Member> struct Fixed : Field<Record, Member>
{
    static constexpr bool Writable = false;
};
template <class Record, class Member> Fixed(const char*, Member Record::*) -> Fixed<Record, Member>;

// A member of a member under a name of its own, as the red of a record's colour: tools read and write it.
template <class Record, class Outer, class Member> struct Part
{
    std::string_view Name;
    Outer Record::*Whole;
    Member Outer::*Pointer;
    static constexpr bool Writable = true;

    auto& Of(Record& record) const { return record.*Whole.*Pointer; }
    auto& Of(const Record& record) const { return record.*Whole.*Pointer; }
};
template <class Record, class Outer, class Member>
Part(const char*, Outer Record::*, Member Outer::*) -> Part<Record, Outer, Member>;

// What the record does not store but can tell, as the length of a list: tools only read it. Find takes the record and
// returns a value.
template <class Find> struct Derived
{
    std::string_view Name;
    Find Of;
    static constexpr bool Writable = false;
};
template <class Find> Derived(const char*, Find) -> Derived<Find>;

// The length of a list that a 16-bit count can tell: whoever fills the list sees to that.
template <class List> constexpr std::int16_t CountOf(const List& list)
{
    return static_cast<std::int16_t>(list.size());
}

template <class Record>
concept Described = requires
{
    FieldsOf<std::remove_const_t<Record>>::Table;
};

// Calls visit(field, value) for every field in table order. The value may be changed where the record stores it; a
// derived one is a copy that ends with the call.
template <Described Record, class Visit> void ForEachField(Record& record, Visit&& visit)
{
    const auto show = [&](const auto& field)
    {
        auto&& value = field.Of(record);
        visit(field, value);
    };
    std::apply([&](const auto&... field) { (show(field), ...); }, FieldsOf<std::remove_const_t<Record>>::Table);
}

// Calls visit(field, value) for the field of that name; false when there is none.
template <Described Record, class Visit> bool VisitField(Record& record, std::string_view name, Visit&& visit)
{
    bool found = false;
    ForEachField(record,
                 [&](const auto& field, auto& value)
                 {
                     if (!found && field.Name == name)
                     {
                         found = true;
                         visit(field, value);
                     }
                 });
    return found;
}
}
