// SPDX-License-Identifier: Zlib
// The desktop program.
#include "program/RunSdl.h"

int main(int, char** words)
{
    return program::RunSdl(words[0], {});
}
