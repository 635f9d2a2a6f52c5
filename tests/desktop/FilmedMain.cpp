// SPDX-License-Identifier: Zlib
// velkar-filmed FORMAT URL: the desktop program with another source in place of its webcam: a film, or "lavfi" and the
// description of a synthetic one.
#include "program/RunSdl.h"

#include <cstdio>

int main(int count, char** words)
{
    if (count == 3)
        return program::RunSdl(words[0], {words[1], words[2]});
    std::fprintf(stderr, "usage: velkar-filmed FORMAT URL\n");
    return 2;
}
