// SPDX-License-Identifier: Zlib
// assets/hud/Inside.h: what is seen behind the driver in the webcam's inset.
#pragma once
#include <string>

namespace assets::hud
{
// 107 x 80: the rear of the cabin, seen from the dashboard.
void WriteInside(const std::string& path);
}
