#include "platform/StandardStreams.h"

#ifdef _WIN32
#include <cstdio>

#include <fcntl.h>
#include <io.h>
#endif

namespace platform
{
void KeepBytes()
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
}
}
