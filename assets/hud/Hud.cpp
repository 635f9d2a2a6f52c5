// SPDX-License-Identifier: Zlib
#include "assets/hud/Hud.h"

#include "assets/hud/Arrow.h"
#include "assets/hud/Font.h"
#include "assets/hud/Glass.h"
#include "assets/hud/Icon.h"
#include "assets/hud/Inside.h"
#include "assets/hud/MenuPictures.h"
#include "assets/hud/Sprites.h"
#include "assets/hud/Trophy.h"

namespace assets::hud
{
void BuildHud(const std::string& root)
{
    WriteFont(root + "/data/fonts/Font_01");
    WriteGlass(root + "/data/textures");
    WriteSprites(root + "/data/sprites");
    WriteInside(root + "/data/images/inside.bmp");
    WriteMenuPictures(root + "/data/images");
    WriteCup(root + "/data/models");
    WriteArrow(root + "/data/models");
    WriteIcon(root + "/program/win32/velkar.ico");
}
}
