#include "shell/OptionNames.h"

namespace shell
{
std::string FilterName(std::int16_t txtFilter)
{
    switch (txtFilter)
    {
    case 0:
        return "nessuno";
    case 1:
        return "lineare";
    case 2:
        return "anisotropico";
    default:
        return {};
    }
}

// The bounds are singles, as the setting is.
std::string QualityName(float effQuality)
{
    if (effQuality == 0.0f)
        return "nessuno";
    if (effQuality <= 0.3f)
        return "bassa";
    if (effQuality <= 0.5f)
        return "media";
    return effQuality <= 1.0f ? "alta" : "";
}

std::int16_t NextFilter(std::int16_t txtFilter)
{
    return static_cast<std::int16_t>((txtFilter + 1) % 3);
}

float NextQuality(float effQuality)
{
    if (effQuality == 0.0f)
        return 0.3f;
    if (effQuality <= 0.3f)
        return 0.5f;
    if (effQuality <= 0.5f)
        return 1.0f;
    return effQuality <= 1.0f ? 0.0f : effQuality;
}
}
