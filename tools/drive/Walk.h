// tools/drive/Walk.h: peek and poke: following a path through records by their field tables (base/Fields.h). A field
// added to a table is reachable here without another line.
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
using Steps = std::span<const Step>;

// "players[0].Speed" as steps; nothing where the text is no path. The names point into the text.
std::optional<std::vector<Step>> ParsePath(std::string_view path);

enum class Outcome
{
    Done,
    NoSuchPath,
    NotOneValue, // a record or an array cannot be set
    ReadOnly,    // a count, a length or a derived copy
    BadValue     // the text is no value of the field's type
};

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

// ---- Reading ----

// The control array of that name, by index; null where an index is not used.
using ControlArray = std::vector<forms::Control*>;
ControlArray ControlArrayOf(forms::Form& form, std::string_view name);

template <class T> void AppendValue(std::string& json, T& value);

template <class List> void AppendArray(std::string& json, List&& elements)
{
    json += '[';
    bool first = true;
    for (auto& element : elements)
    {
        json += first ? "" : ", ";
        first = false;
        AppendValue(json, element);
    }
    json += ']';
}

void AppendControls(std::string& json, ControlsView& controls);

template <class T> void AppendValue(std::string& json, T& value)
{
    if constexpr (std::same_as<T, std::string>)
        AppendText(json, value);
    else if constexpr (std::is_enum_v<T>)
        AppendNumber(json, static_cast<std::underlying_type_t<T>>(value));
    else if constexpr (Scalar<T>)
        AppendNumber(json, value);
    else if constexpr (std::same_as<T, ControlsView>)
        AppendControls(json, value);
    else if constexpr (std::is_pointer_v<T>)
    {
        if (value == nullptr)
            json += "null";
        else
            AppendValue(json, *value);
    }
    else if constexpr (Listed<T>)
        AppendArray(json, Elements(value));
    else
    {
        json += IsTuple<T> ? '[' : '{';
        bool first = true;
        ForEachMember(value,
                      [&]([[maybe_unused]] std::string_view name, auto& member, bool)
                      {
                          json += first ? "" : ", ";
                          first = false;
                          if constexpr (!IsTuple<T>)
                          {
                              AppendText(json, name);
                              json += ": ";
                          }
                          AppendValue(json, member);
                      });
        json += IsTuple<T> ? ']' : '}';
    }
}

struct Reader
{
    std::string& Json;

    template <class T> Outcome operator()(T& value, bool) const
    {
        AppendValue(Json, value);
        return Outcome::Done;
    }
};

// ---- Writing ----

struct Writer
{
    std::string_view Text; // as written behind the path

    template <class T> Outcome operator()(T& value, bool writable) const
    {
        if constexpr (!Scalar<T>)
            return Outcome::NotOneValue;
        else if (!writable)
            return Outcome::ReadOnly;
        else if constexpr (std::same_as<T, std::string>)
        {
            value.assign(Text);
            return Outcome::Done;
        }
        else if constexpr (std::is_enum_v<T>)
        {
            auto number = static_cast<std::underlying_type_t<T>>(value);
            const Outcome outcome = SetNumber(number);
            value = static_cast<T>(number);
            return outcome;
        }
        else
            return SetNumber(value);
    }

private:
    template <class T> Outcome SetNumber(T& value) const
    {
        Words words(Text);
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
};

// ---- Following a path ----

template <class T, class Use> Outcome Follow(T& value, bool writable, Steps rest, const Use& use);

template <class T, class Use> Outcome FollowIndex(T& value, bool writable, Steps rest, const Use& use)
{
    const std::size_t index = rest[0].Index;
    if constexpr (IsTuple<T>)
    {
        std::size_t at = 0;
        Outcome outcome = Outcome::NoSuchPath;
        ForEachMember(value,
                      [&](std::string_view, auto& member, bool open)
                      {
                          if (at++ == index)
                              outcome = Follow(member, writable && open, rest.subspan(1), use);
                      });
        return outcome;
    }
    else if constexpr (Listed<T>)
    {
        auto elements = Elements(value);
        return index < elements.size() ? Follow(elements[index], writable, rest.subspan(1), use) : Outcome::NoSuchPath;
    }
    else
        return Outcome::NoSuchPath;
}

template <class Use> Outcome FollowControl(ControlsView& controls, Steps rest, const Use& use)
{
    if (forms::Control* alone = controls.Form.Find(rest[0].Name))
        return Follow(*alone, true, rest.subspan(1), use);
    ControlArray array = ControlArrayOf(controls.Form, rest[0].Name);
    return array.empty() ? Outcome::NoSuchPath : Follow(array, true, rest.subspan(1), use);
}

template <class T, class Use> Outcome FollowName(T& value, bool writable, Steps rest, const Use& use)
{
    if constexpr (std::same_as<T, ControlsView>)
        return FollowControl(value, rest, use);
    else if constexpr (Scalar<T> || Listed<T> || IsTuple<T>)
        return Outcome::NoSuchPath;
    else
    {
        Outcome outcome = Outcome::NoSuchPath;
        bool found = false;
        ForEachMember(value,
                      [&](std::string_view name, auto& member, bool open)
                      {
                          if (found || name != rest[0].Name)
                              return;
                          found = true;
                          outcome = Follow(member, writable && open, rest.subspan(1), use);
                      });
        return outcome;
    }
}

// Hands the value at the end of the path to use(value, writable).
template <class T, class Use> Outcome Follow(T& value, bool writable, Steps rest, const Use& use)
{
    if constexpr (std::is_pointer_v<T>)
        return value == nullptr ? Outcome::NoSuchPath : Follow(*value, writable, rest, use);
    else if (rest.empty())
        return use(value, writable);
    else
        return rest[0].IsIndex() ? FollowIndex(value, writable, rest, use) : FollowName(value, writable, rest, use);
}
}
