#include "hud/Hud.h"
#include "hud/Font.h"
#include "hud/Glass.h"
#include "hud/Icon.h"
#include "hud/Inside.h"
#include "hud/MenuPictures.h"
#include "hud/Models.h"
#include "hud/Sprites.h"

namespace assets
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
