// SPDX-License-Identifier: Zlib
// shell/panels/KeyNames.h: the Italian display names of the keys.
#pragma once
#include <cstdint>
#include <string>

namespace panels
{
// The name of a virtual-key code; "<186>" for one without a name.
std::string KeyName(std::int16_t code);
}
