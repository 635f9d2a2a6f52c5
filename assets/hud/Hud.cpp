#include "hud/Hud.h"
#include "hud/Font.h"
#include "hud/Glass.h"

namespace Assets
{
void BuildHud(const std::string& root)
{
    WriteFont(root + "/data/fonts/Font_01");
    WriteGlass(root + "/data/textures");
}
}
