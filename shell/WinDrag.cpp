// SPDX-License-Identifier: Zlib
#include "shell/WinDrag.h"

namespace shell
{
void DragStart(Drag& drag, platform::Window& window, bool fullScreen)
{
    drag.Active = !fullScreen;
    if (!drag.Active)
        return;
    drag.Cursor = window.CursorPosition();
    drag.Window = window.Position();
}

void DragMove(const Drag& drag, platform::Window& window)
{
    if (!drag.Active)
        return;
    const platform::Point cursor = window.CursorPosition();
    window.Move({drag.Window.X + cursor.X - drag.Cursor.X, drag.Window.Y + cursor.Y - drag.Cursor.Y});
}
}
