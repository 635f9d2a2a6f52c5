// SPDX-License-Identifier: Zlib
// shell/panels/Panel.h: what every panel is made of: controls that it adds to the window's form, keeps by index, places
// for a size of the client area, and knows the handlers of. A panel touches the records that its constructor is given,
// and asks for everything else through the functions it is given. All run on the window's thread.
#pragma once
#include "base/Trapped.h"
#include "shell/forms/Interaction.h"
#include "shell/panels/Actions.h"
#include "shell/panels/Layout.h"

#include <cstdint>
#include <functional>
#include <string>

namespace panels
{
// What all panels of a window share. Borrowed: whoever makes the panels keeps it longer than they live.
struct Board
{
    forms::Form& Form;
    Actions& Does;
    forms::Interaction& Input; // moves the focus
    base::MessageSink& Messages;
    std::function<void()> Repaint; // shows the window anew, at once
};

class Panel
{
public:
    virtual ~Panel() = default;
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    // Places every control for a client area of that size.
    virtual void Place(platform::Size client) = 0;

    // The frame, and with it all that is on it.
    void Show() { At(Frame).Visible = base::True; }
    void Hide() { At(Frame).Visible = base::False; }
    // The frame alone: over the whole client area.
    void Cover(platform::Size client) { At(Frame).Place = {0, 0, client.Width, client.Height}; }

protected:
    // Adds a hidden frame over the whole window; what is added later stands on it.
    Panel(Board& board, const char* frame);
    // Without a frame: on the form itself.
    explicit Panel(Board& board) : On(board) {}

    // Each adds a control behind those already there, which is also the order of painting, and gives its index.
    std::int16_t Add(forms::Kind kind, const char* name, const char* caption, forms::Look look = forms::Look::Plain);
    std::int16_t Label(const char* name, const char* caption, forms::Look look = forms::Look::Plain);
    std::int16_t Heading(const char* name, const char* caption);
    std::int16_t Button(const char* name, const char* caption, forms::Look look = forms::Look::Plain);
    std::int16_t OK(const char* name); // what Enter and Esc click
    std::int16_t Box(forms::Kind kind, const char* name, const char* text);
    std::int16_t Check(const char* name, const char* caption, bool ticked);
    std::int16_t Picture(const char* name);

    forms::Control& At(std::int16_t control) { return On.Form.Controls[static_cast<std::size_t>(control)]; }
    const forms::Control& At(std::int16_t control) const { return const_cast<Panel*>(this)->At(control); }
    // Says in a message why the text of a box is refused; the text waits to be typed over. Always false: not taken.
    bool Refuse(std::int16_t box, const char* why);

    Board& On;
    std::int16_t Frame = -1; // what controls are added to; -1 the form
};
}
