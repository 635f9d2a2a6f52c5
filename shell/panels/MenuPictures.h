// SPDX-License-Identifier: Zlib
// shell/panels/MenuPictures.h: the pictures of the menu, scaled once for a size of the window.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "platform/Platform.h"
#include "shell/forms/Paint.h"

namespace panels
{
struct MenuPictures
{
    render::Picture LogoFile, BackgroundFile; // empty where the file is missing
    forms::Image Logo, Background;

    // A missing file is no error; one that cannot be read is reported.
    void Load(base::MessageSink& messages, const base::Files& files);
    // The logo fits into the box, the background covers the client area.
    void ScaleTo(platform::Size logoBox, platform::Size client);
};

// An optional picture of the game's own: empty where the file is missing or unreadable.
render::Picture LoadOptionalPicture(base::MessageSink& messages, const base::Files& files, const std::string& path);
// Scaled into the box with its proportions kept; covers: it fills the box and its longer side is cut when drawn
// centred.
forms::Image FitPicture(const render::Picture& picture, platform::Size box, bool covers, bool seeThrough);
}
