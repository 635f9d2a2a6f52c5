// SPDX-License-Identifier: Zlib
// platform/StandardStreams.h: standard input and output as they are on every system.
#pragma once

namespace platform
{
// Bytes as they are, both ways: Windows would end lines with two of them.
void KeepBytes();
}
