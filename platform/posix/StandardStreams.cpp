// SPDX-License-Identifier: Zlib
#include "platform/StandardStreams.h"

namespace platform
{
void KeepBytes()
{
    // They are kept here.
}
}
