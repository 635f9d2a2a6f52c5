// The list of a combo box.
#include "platform/Keys.h"
#include "shell/forms/Boxes.h"
#include "shell/forms/Interaction.h"

#include <algorithm>

namespace forms
{
namespace
{

// The item that the text is; -1 another text.
std::int32_t ItemOf(const Control& box)
{
    const auto found = std::find(box.Items.begin(), box.Items.end(), box.Text);
    return found == box.Items.end() ? -1 : static_cast<std::int32_t>(found - box.Items.begin());
}

// From no item the first step goes to the nearer end.
std::int32_t Stepped(const Control& box, std::int32_t item, int step)
{
    const auto last = static_cast<std::int32_t>(box.Items.size()) - 1;
    if (item < 0)
        return step > 0 ? 0 : last;
    return std::clamp(item + step, 0, last);
}
}

void Interaction::OpenList(Control& box)
{
    if (box.Items.empty())
        return;
    TheMarks.List = {TheForm.IndexOf(box), -1, 0};
    TheMarks.Hot = -1;
    ShowItem(box, ItemOf(box));
    Owner.Changed();
}

void Interaction::CloseList()
{
    if (!IsListOpen())
        return;
    TheMarks.List = {};
    Owner.Changed();
}

// Other items, or another size of the window, may have come in between.
void Interaction::FitList()
{
    const Control& box = *Of(TheMarks.List.Owner);
    const auto items = static_cast<std::int32_t>(box.Items.size());
    if (items == 0 || !IsAvailable(box))
        return CloseList();
    const ListPlace list = PlaceList(box, TheForm.PlaceOf(box), TheForm.Client, TheMarks.List.First);
    TheMarks.List.Item = std::min(TheMarks.List.Item, items - 1);
    TheMarks.List.First = std::clamp(TheMarks.List.First, 0, items - list.Rows);
}

// Highlights an item and scrolls as little as can be to where it is seen.
void Interaction::ShowItem(const Control& box, std::int32_t item)
{
    const ListPlace list = PlaceList(box, TheForm.PlaceOf(box), TheForm.Client, TheMarks.List.First);
    TheMarks.List.Item = item;
    if (item >= 0)
        TheMarks.List.First = std::clamp(TheMarks.List.First, std::max(0, item - list.Rows + 1), item);
    FitList();
}

void Interaction::Choose(Control& box, std::int32_t item)
{
    if (item >= 0 && static_cast<std::size_t>(item) < box.Items.size())
        box.Text = box.Items[static_cast<std::size_t>(item)];
    SelectAll(TheMarks.Edit, box.Text);
    CloseList();
    TextEdited();
}

void Interaction::StepItem(Control& box, int step)
{
    if (!box.Items.empty())
        Choose(box, Stepped(box, ItemOf(box), step));
}

// False: the key means what it means without a list.
bool Interaction::ListKey(std::int16_t code)
{
    Control& box = *Of(TheMarks.List.Owner);
    const bool isArrow = code == platform::KeyUp || code == platform::KeyDown;
    if (isArrow && !Alt)
    {
        ShowItem(box, Stepped(box, TheMarks.List.Item, code == platform::KeyDown ? 1 : -1));
        Owner.Changed();
        return true;
    }
    if (code == platform::KeyEnter && TheMarks.List.Item >= 0)
        Choose(box, TheMarks.List.Item);
    else if (code == platform::KeyEnter || code == platform::KeyEsc || code == platform::KeyF4 || isArrow)
        CloseList();
    else
    {
        if (code == platform::KeyTab)
            CloseList();
        return false;
    }
    Hold(code);
    return true;
}
}
