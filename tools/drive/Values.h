// SPDX-License-Identifier: Zlib
// tools/drive/Values.h: any value of the game as a thing that can be shown, set and entered by name or index, by way of
// the field tables (base/Fields.h). A field added to a table is reachable here without another line.
#pragma once
#include "base/Fields.h"
#include "render/SceneFields.h"
#include "render/SlotList.h"
#include "shell/forms/Control.h"
#include "tools/drive/Json.h"
#include "tools/drive/Words.h"

#include <array>
#include <concepts>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace drive
{
// One step of a path: a name, or an index where the name is empty.
struct Step
{
    std::string_view Name;
    std::size_t Index = 0;
    bool IsIndex() const { return Name.empty(); }
};

enum class Outcome
{
    Done,
    NoSuchPath,
    NotOneValue, // a record or an array cannot be set
    ReadOnly,    // a count, a length or a derived copy
    BadValue     // the text is no value of the field's type
};

struct Kind;

// A value and what it is. Some values live only while they are visited.
struct Value
{
    void* At; // null where a pointer in a record leads nowhere
    const Kind* Of;
    bool Writable = true; // as far as is known where it stands
};
using Visit = std::function<Outcome(const Value&)>;

// What can be asked of a value, given by its address.
struct Kind
{
    void (*Append)(std::string& json, void* at);
    // Null where there is not one number or text to set.
    Outcome (*Set)(void* at, std::string_view text);
    // Visits what one step leads to, or nothing.
    Outcome (*Enter)(void* at, const Step& step, const Visit& visit);
};
template <class T> Value ValueOf(T& value, bool writable = true);

// ---- Views: records that exist only for the paths ----

// A value under a name that it has nowhere else. Value is a reference for what lives elsewhere.
template <class T> struct Named
{
    std::string_view Name;
    T Value;
    bool Writable = true;
};
template <class T> Named(const char*, T&&) -> Named<T>;
template <class T> Named(const char*, T&&, bool) -> Named<T>;

// All fields of a record.
template <class Record> struct All
{
    Record& Fields;
};
template <class Record> All(Record&) -> All<Record>;

// Several of the above as one record.
template <class... Parts> struct Merged
{
    std::tuple<Parts...> Of;
    explicit Merged(Parts... parts) : Of(std::move(parts)...) {}
};

// The controls of a form by name, arrays of them by index.
struct ControlsView
{
    forms::Form& Form;
};

// ---- What kind of thing a value is ----

template <class T> inline constexpr bool IsMerged = false;
template <class... Parts> inline constexpr bool IsMerged<Merged<Parts...>> = true;
template <class T> inline constexpr bool IsNamed = false;
template <class T> inline constexpr bool IsNamed<Named<T>> = true;

// One value; an enumeration is shown and set as its number, whichever it is.
template <class T>
concept Scalar = std::is_arithmetic_v<T> || std::is_enum_v<T> || std::same_as<T, std::string>;

// Records that are shown as an array of their fields.
template <class T> inline constexpr bool IsTuple = std::same_as<T, render::SfereLink>;

// The elements of a list; overloads say what a list is.
template <class T> std::span<T> Elements(std::vector<T>& list)
{
    return list;
}
template <class T> std::span<T> Elements(render::SlotList<T>& list)
{
    return list.Items;
}
template <class T, std::size_t N> std::span<T> Elements(std::array<T, N>& list)
{
    return list;
}
template <class T> std::span<T> Elements(std::span<T>& list)
{
    return list;
}
inline std::vector<std::span<render::MeshPt>> Elements(render::PointGrid& grid)
{
    std::vector<std::span<render::MeshPt>> rows;
    const auto cols = static_cast<std::size_t>(grid.Cols);
    for (std::size_t i = 0; i < static_cast<std::size_t>(grid.Rows); ++i)
        rows.push_back(std::span(grid.Points).subspan(i * cols, cols));
    return rows;
}
template <class T>
concept Listed = requires(T& list)
{
    Elements(list);
};

// Whether a record has a field of its table at all: a control has what its kind has.
template <class T> bool HasField(const T&, std::string_view)
{
    return true;
}
inline bool HasField(const forms::Control& control, std::string_view name)
{
    return name == "Caption" ? forms::HasCaption(control.Type)
           : name == "Text"  ? forms::HasText(control.Type)
           : name == "Value" ? forms::HasValue(control.Type)
                             : true;
}

// Calls visit(name, value, writable) for each field.
template <class T, class Visit> void ForEachMember(T& record, Visit&& visit)
{
    if constexpr (IsMerged<T>)
    {
        const auto part = [&](auto& one)
        {
            if constexpr (IsNamed<std::remove_cvref_t<decltype(one)>>)
                visit(one.Name, one.Value, one.Writable);
            else
                ForEachMember(one.Fields, visit);
        };
        std::apply([&](auto&... parts) { (part(parts), ...); }, record.Of);
    }
    else
        base::ForEachField(record,
                           [&](const auto& field, auto& member)
                           {
                               if (HasField(record, field.Name))
                                   visit(field.Name, member, std::remove_cvref_t<decltype(field)>::Writable);
                           });
}

// ---- Showing ----

// The control array of that name, by index; null where an index is not used.
using ControlArray = std::vector<forms::Control*>;
ControlArray ControlArrayOf(forms::Form& form, std::string_view name);

void AppendControls(std::string& json, ControlsView& controls);
void Append(std::string& json, const Value& value);

template <class T> void AppendAs(std::string& json, void* at)
{
    T& value = *static_cast<T*>(at);
    bool first = true;
    const auto separate = [&]
    {
        json += first ? "" : ", ";
        first = false;
    };
    if constexpr (std::same_as<T, std::string>)
        AppendText(json, value);
    else if constexpr (std::is_enum_v<T>)
        AppendNumber(json, static_cast<std::underlying_type_t<T>>(value));
    else if constexpr (Scalar<T>)
        AppendNumber(json, value);
    else if constexpr (std::same_as<T, ControlsView>)
        AppendControls(json, value);
    else if constexpr (Listed<T>)
    {
        json += '[';
        for (auto& element : Elements(value))
        {
            separate();
            Append(json, ValueOf(element));
        }
        json += ']';
    }
    else
    {
        json += IsTuple<T> ? '[' : '{';
        ForEachMember(value,
                      [&]([[maybe_unused]] std::string_view name, auto& member, bool)
                      {
                          separate();
                          if constexpr (!IsTuple<T>)
                          {
                              AppendText(json, name);
                              json += ": ";
                          }
                          Append(json, ValueOf(member));
                      });
        json += IsTuple<T> ? ']' : '}';
    }
}

// ---- Setting ----

template <class T> Outcome SetNumber(T& value, std::string_view text)
{
    Words words(text);
    const std::string_view word = words.Next();
    std::optional<T> number;
    if constexpr (std::integral<T>)
        number = ParseWhole<T>(word);
    else
        number = ParseFloat(word);
    if (!number || !words.AtEnd())
        return Outcome::BadValue;
    value = *number;
    return Outcome::Done;
}

// Texts are set to the text as it is.
template <Scalar T> Outcome SetAs(void* at, std::string_view text)
{
    if constexpr (std::same_as<T, std::string>)
    {
        static_cast<T*>(at)->assign(text);
        return Outcome::Done;
    }
    else if constexpr (std::is_enum_v<T>)
    {
        auto number = static_cast<std::underlying_type_t<T>>(*static_cast<T*>(at));
        const Outcome outcome = SetNumber(number, text);
        *static_cast<T*>(at) = static_cast<T>(number);
        return outcome;
    }
    else
        return SetNumber(*static_cast<T*>(at), text);
}

// ---- Entering ----

Outcome EnterControls(ControlsView& controls, const Step& step, const Visit& visit);

template <class T>
Outcome EnterAs([[maybe_unused]] void* at, [[maybe_unused]] const Step& step, [[maybe_unused]] const Visit& visit)
{
    if constexpr (std::same_as<T, ControlsView>)
        return EnterControls(*static_cast<T*>(at), step, visit);
    else if constexpr (Listed<T>)
    {
        auto elements = Elements(*static_cast<T*>(at));
        const bool has = step.IsIndex() && step.Index < elements.size();
        return has ? visit(ValueOf(elements[step.Index])) : Outcome::NoSuchPath;
    }
    else if constexpr (Scalar<T>)
        return Outcome::NoSuchPath;
    else
    {
        Outcome outcome = Outcome::NoSuchPath;
        std::size_t index = 0;
        bool found = false;
        ForEachMember(*static_cast<T*>(at),
                      [&](std::string_view name, auto& member, bool writable)
                      {
                          const bool meant = IsTuple<T> ? step.IsIndex() && index == step.Index : name == step.Name;
                          ++index;
                          if (found || !meant)
                              return;
                          found = true;
                          outcome = visit(ValueOf(member, writable));
                      });
        return outcome;
    }
}

template <class T> inline constexpr Kind KindOf = {AppendAs<T>, nullptr, EnterAs<T>};
template <Scalar T> inline constexpr Kind KindOf<T> = {AppendAs<T>, SetAs<T>, EnterAs<T>};

template <class T> Value ValueOf(T& value, bool writable)
{
    if constexpr (std::is_pointer_v<T>)
        return value == nullptr ? Value{nullptr, nullptr} : ValueOf(*value, writable);
    else
    {
        return {&value, &KindOf<T>, writable};
    }
}
}
