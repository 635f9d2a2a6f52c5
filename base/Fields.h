// base/Fields.h: the description of records, name by name, that the driver and the console read and write through.
// A record states its fields once, beside itself:
//     template <> struct base::FieldsOf<Target>
//     {
//         static constexpr auto Table = std::make_tuple(Field{"X", &Target::X}, Field{"R", &Target::R});
//     };
// A derived copy or a count is a Fixed field: tools read it and never write it.
#pragma once
#include <string_view>
#include <tuple>
#include <utility>

namespace base
{
template <class Record> struct FieldsOf; // specialised beside each record

template <class Record, class Member> struct Field
{
    std::string_view Name;
    Member Record::*Pointer;
    static constexpr bool Writable = true;
};
template <class Record, class Member> Field(const char*, Member Record::*) -> Field<Record, Member>;

template <class Record, class Member> struct Fixed
{
    std::string_view Name;
    Member Record::*Pointer;
    static constexpr bool Writable = false;
};
template <class Record, class Member> Fixed(const char*, Member Record::*) -> Fixed<Record, Member>;

template <class Record>
concept Described = requires
{
    FieldsOf<std::remove_const_t<Record>>::Table;
};

// Calls visit(field, member) for every field in table order.
template <Described Record, class Visit> void ForEachField(Record& record, Visit&& visit)
{
    std::apply([&](const auto&... field) { (visit(field, record.*(field.Pointer)), ...); },
               FieldsOf<std::remove_const_t<Record>>::Table);
}

// Calls visit(field, member) for the field of that name; false when there is none.
template <Described Record, class Visit> bool VisitField(Record& record, std::string_view name, Visit&& visit)
{
    bool found = false;
    ForEachField(record,
                 [&](const auto& field, auto& member)
                 {
                     if (!found && field.Name == name)
                     {
                         found = true;
                         visit(field, member);
                     }
                 });
    return found;
}
}
