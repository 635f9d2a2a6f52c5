// Changing a key: a click on a binding gives the focus to the box that takes the next key.
#include "base/Numbers.h"
#include "shell/Form1.h"
#include "shell/KeyNames.h"

#include <charconv>

namespace shell
{
namespace
{
// The whole number that a tag holds; 0 where it holds none that fits.
std::int16_t CodeOf(const std::string& tag)
{
    std::int16_t code = 0;
    const auto [end, error] = std::from_chars(tag.data(), tag.data() + tag.size(), code);
    return error == std::errc{} && end == tag.data() + tag.size() ? code : std::int16_t{0};
}
}

void Form1::ReadKeyBinding(std::int16_t index)
{
    const forms::Control* key = TheForm.Find("cCtrKey", index);
    if (key != nullptr && index >= 0 && static_cast<std::size_t>(index) < TheGame.Bindings.Bindings.size())
        TheGame.Bindings.Bindings[static_cast<std::size_t>(index)] = CodeOf(key->Tag);
}

bool Form1::RecordsKey() const
{
    return TheForm.Focus >= 0 && TheForm.Controls[static_cast<std::size_t>(TheForm.Focus)].Name == "txtRecKey";
}

void Form1::cCtrKey_Click(std::int16_t index)
{
    TheGame.Run.RebindIndex = index;
    TheForm.Get("cCtrKey", index).Caption = "</>";
    TheForm.Focus = TheForm.IndexOf(TheForm.Get("txtRecKey"));
}

void Form1::dCtrKey_Click(std::int16_t)
{
    TheWindow->ShowMessage(base::Icon::Information, "Opzioni",
                           "Non è possibile modificare il tasto associato a questa azione");
}

void Form1::txtRecKey_KeyDown(std::int16_t code)
{
    if (code <= 0)
        return;
    const std::int16_t index = TheGame.Run.RebindIndex;
    TheForm.Get("cCtrKey", index).Tag = std::to_string(code);
    ReadKeyBinding(index);
    txtRecKey_LostFocus();
}

void Form1::txtRecKey_LostFocus()
{
    TheForm.Focus = -1;
    if (forms::Control* key = TheForm.Find("cCtrKey", TheGame.Run.RebindIndex))
        key->Caption = KeyName(CodeOf(key->Tag));
}
}
