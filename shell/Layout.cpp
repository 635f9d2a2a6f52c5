// Where the controls stand: everything is a share of the client area, from 240 x 200 to a whole screen.
#include "base/Numbers.h"
#include "shell/Design.h"
#include "shell/forms/Paint.h"

#include <algorithm>
#include <initializer_list>

namespace shell
{
namespace
{
using forms::Align;
using forms::Control;
using forms::Rect;

constexpr const char* Frames[] = {"panelOption", "panelVidOpt", "panelCredits", "panelCtrOpt"};

std::int32_t Part(std::int32_t whole, double share)
{
    return base::RoundEven(whole * share);
}

struct Layout
{
    forms::Form& Form;
    platform::Size Client;
    std::int32_t Text = 0, Row = 0, Gap = 0; // letter size, line of a panel, space between groups

    Layout(forms::Form& form, platform::Size client) : Form(form), Client(client)
    {
        Text = std::clamp(std::min(client.Width / 36, client.Height / 20), 10, 24);
        Row = Text * 8 / 5;
        Gap = std::max(3, Text / 2);
    }

    void Place(const char* name, std::int16_t index, Rect place, std::int32_t size, Align align = Align::Left)
    {
        Control* control = Form.Find(name, index);
        if (control == nullptr)
            return;
        control->Place = place;
        control->TextSize = size;
        control->TextAlign = align;
    }

    Rect Centred(std::int32_t y, std::int32_t width, std::int32_t height) const
    {
        return {(Client.Width - width) / 2, y, width, height};
    }

    std::int32_t CardWidth(std::int32_t letters) const { return std::min(Client.Width - 4 * Text, Text * letters); }
    std::int32_t HeadingHeight() const { return Text * 2; }
    std::int32_t ButtonHeight() const { return Row + 2; }
    // The first row of contents that are so high together.
    std::int32_t Top(std::int32_t height) const { return std::max(0, (Client.Height - height) / 2); }

    void Menu()
    {
        Place("imgLogoBG", -1, {0, 0, Client.Width, Client.Height}, 0);
        Place("imgLogo", -1, Centred(Part(Client.Height, 0.07), Part(Client.Width, 0.76), Part(Client.Height, 0.34)),
              0);
        const std::int32_t size = std::clamp(std::min(Part(Client.Height, 0.072), Client.Width / 9), 13, 52);
        const std::int32_t step = size * 3 / 2, offset = std::max(1, size / 14);
        std::int32_t y = Part(Client.Height, 0.49);
        for (const char* entry : MenuEntries())
        {
            const Rect place = Centred(y, std::min(Client.Width, size * 8), step);
            const std::string twin = std::string(entry) + "2";
            Place(entry, -1, place, size, Align::Centre);
            Place(twin.c_str(), -1, {place.X + offset, place.Y + offset, place.W, place.H}, size, Align::Centre);
            y += step;
        }
    }

    void Options()
    {
        const std::int32_t width = CardWidth(18);
        std::int32_t y = Top(HeadingHeight() + 3 * Gap + 2 * ButtonHeight());
        Place("lblOption", -1, Centred(y, width, HeadingHeight()), Text * 4 / 3, Align::Centre);
        y += HeadingHeight() + Gap;
        Place("cCtrOpt", -1, Centred(y, width, ButtonHeight()), Text, Align::Centre);
        y += ButtonHeight() + 2 * Gap;
        Place("cOptOK", -1, Centred(y, width / 2, ButtonHeight()), Text, Align::Centre);
    }

    void Credits()
    {
        const std::int32_t width = CardWidth(20);
        std::int32_t y = Top(HeadingHeight() + 6 * Gap + 4 * Row + ButtonHeight());
        Place("lblCredits", -1, Centred(y, width, HeadingHeight()), Text * 4 / 3, Align::Centre);
        y += HeadingHeight() + 2 * Gap;
        Place("lblProduct", -1, Centred(y, width, 2 * Row), Text * 2, Align::Centre);
        y += 2 * Row + Gap;
        Place("lblMadeBy", -1, Centred(y, width, Row), Text * 9 / 10, Align::Centre);
        y += Row;
        Place("lblAuthors", -1, Centred(y, width, Row), Text * 6 / 5, Align::Centre);
        y += Row + 3 * Gap;
        Place("cCreditOK", -1, Centred(y, width / 2, ButtonHeight()), Text, Align::Centre);
    }

    void Controls()
    {
        const std::int32_t width = CardWidth(31), left = (Client.Width - width) / 2;
        const bool narrow = width < Text * 29; // remarks then stand under their actions
        const std::int32_t rows = 6 * Row + (narrow ? Row : 0);
        std::int32_t y = Top(HeadingHeight() + 3 * Gap + 2 * ButtonHeight() + rows);
        Place("lblCtrOpt", -1, {left, y, width, HeadingHeight()}, Text * 4 / 3, Align::Centre);
        y += HeadingHeight() + Gap;
        const std::int32_t space = Gap / 2, tab = (width - 2 * space) / 3;
        std::int32_t x = left;
        for (const char* name : {"cCtrMov", "cCtrCam", "cCtrOth"})
        {
            Place(name, -1, {x, y, tab, ButtonHeight()}, Text, Align::Centre);
            x += tab + space;
        }
        y += ButtonHeight() + Gap;
        for (const char* name : {"panelCtrMov", "panelCtrCam", "panelCtrOth"})
        {
            Place(name, -1, {left, y, width, rows}, Text);
            Rows(name, width, narrow);
        }
        y += rows + Gap;
        Place("cCtrOptOK", -1, Centred(y, width / 3, ButtonHeight()), Text, Align::Centre);
    }

    void Rows(std::string_view panel, std::int32_t width, bool narrow)
    {
        const std::int32_t key = std::min(width * 2 / 5, Text * 9), inset = std::max(1, Row / 12);
        std::int32_t y = 0;
        std::int16_t number = -1;
        for (const ActionRow& row : ActionRows())
        {
            ++number;
            if (row.Panel != panel)
                continue;
            const std::int32_t room = width - key - Gap;
            const std::int32_t small = Text * 17 / 20;
            const std::int32_t caption = forms::MeasureText(row.Caption, Text, 1);
            Place("lblAction", number, {0, y, narrow ? room : std::min(room, caption), Row - inset}, Text);
            Place(row.Key, row.KeyIndex, {width - key, y + inset, key, Row - 2 * inset}, Text, Align::Centre);
            const std::int32_t behind = caption + Gap;
            if (narrow)
                Place("lblRemark", number, {0, y + Row - inset, room, Row / 2 + inset}, small);
            else
                Place("lblRemark", number, {behind, y, room - behind, Row}, small);
            y += Row + (narrow && *row.Remark != '\0' ? Row / 2 : 0);
        }
    }
};
}

void LayoutPanels(forms::Form& form, platform::Size client)
{
    for (const char* name : Frames)
        form.Get(name).Place = {0, 0, client.Width, client.Height};
}

void LayoutControls(forms::Form& form, platform::Size client)
{
    LayoutPanels(form, client);
    Layout layout(form, client);
    layout.Menu();
    layout.Options();
    layout.Credits();
    layout.Controls();
}
}
