// SPDX-License-Identifier: Zlib
#include "tools/drive/Values.h"

#include <algorithm>

namespace drive
{
ControlArray ControlArrayOf(forms::Form& form, std::string_view name)
{
    ControlArray array;
    for (forms::Control& control : form.Controls)
    {
        if (control.Name != name || control.Index < 0)
            continue;
        const auto index = static_cast<std::size_t>(control.Index);
        array.resize(std::max(array.size(), index + 1));
        array[index] = &control;
    }
    return array;
}

void AppendControls(std::string& json, ControlsView& controls)
{
    std::vector<std::string_view> names;
    for (const forms::Control& control : controls.Form.Controls)
        if (std::find(names.begin(), names.end(), control.Name) == names.end())
            names.push_back(control.Name);
    json += '{';
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        json += i == 0 ? "" : ", ";
        AppendText(json, names[i]);
        json += ": ";
        if (forms::Control* alone = controls.Form.Find(names[i]))
            Append(json, ValueOf(*alone));
        else
        {
            ControlArray array = ControlArrayOf(controls.Form, names[i]);
            Append(json, ValueOf(array));
        }
    }
    json += '}';
}

Outcome EnterControls(ControlsView& controls, const Step& step, const Visit& visit)
{
    if (forms::Control* alone = controls.Form.Find(step.Name))
        return visit(ValueOf(*alone));
    ControlArray array = ControlArrayOf(controls.Form, step.Name);
    return array.empty() ? Outcome::NoSuchPath : visit(ValueOf(array));
}
}
