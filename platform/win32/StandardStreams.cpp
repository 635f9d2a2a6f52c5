// SPDX-License-Identifier: Zlib
#include "platform/StandardStreams.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>

namespace platform
{
void KeepBytes()
{
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}
}
