// SPDX-License-Identifier: Zlib
#include "shell/panels/MenuPictures.h"

#include "base/Numbers.h"
#include "shell/forms/Scale.h"

#include <algorithm>

namespace panels
{
namespace
{
constexpr std::int32_t LargestSide = 4096; // pixels: what scaling may cost
}

render::Picture LoadOptionalPicture(base::MessageSink& messages, const base::Files& files, const std::string& path)
{
    render::Picture picture;
    if (!files.Exists(path))
        return picture;
    if (!render::LoadPicArray2D(messages, files, path, picture.Info, picture.Pixels))
        return {};
    if (picture.Info.Width > LargestSide || picture.Info.Height > LargestSide)
        return {};
    return picture;
}

forms::Image FitPicture(const render::Picture& picture, platform::Size box, bool covers, bool seeThrough)
{
    if (picture.Info.Width <= 0 || picture.Info.Height <= 0)
        return {};
    const double across = static_cast<double>(box.Width) / picture.Info.Width;
    const double down = static_cast<double>(box.Height) / picture.Info.Height;
    const double factor = covers ? std::max(across, down) : std::min(across, down);
    const auto side = [factor](std::int32_t length)
    { return std::clamp(base::RoundEven(length * factor), 1, LargestSide); };
    return forms::Scale(picture, side(picture.Info.Width), side(picture.Info.Height), seeThrough);
}

void MenuPictures::Load(base::MessageSink& messages, const base::Files& files)
{
    LogoFile = LoadOptionalPicture(messages, files, "data\\images\\logo.bmp");
    BackgroundFile = LoadOptionalPicture(messages, files, "data\\images\\menu.bmp");
}

void MenuPictures::ScaleTo(platform::Size logoBox, platform::Size client)
{
    Logo = FitPicture(LogoFile, logoBox, false, true);
    Background = FitPicture(BackgroundFile, client, true, false);
}
}
