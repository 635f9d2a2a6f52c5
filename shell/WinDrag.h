// SPDX-License-Identifier: Zlib
// shell/WinDrag.h: dragging the borderless window by any point of its client area. Screen pixels.
#pragma once
#include "platform/Platform.h"

namespace shell
{
struct Drag
{
    bool Active = false;
    platform::Point Cursor, Window; // where both were when the drag began
};

// Keeps where cursor and window are. Does nothing while the window fills the screen.
void DragStart(Drag& drag, platform::Window& window, bool fullScreen);
// Moves the window as far as the cursor has moved since.
void DragMove(const Drag& drag, platform::Window& window);
}
