// SPDX-License-Identifier: Zlib
// tests/support/SmallWorld.h: a run-time tree of a few kilobytes in a folder of its own: three cars on a plain of
// 200 x 200 units, three checkpoints, a repair box, everything that start-up reads.
#pragma once
#include "tests/support/TempFolder.h"

namespace support
{
class SmallWorld : public TempFolder
{
public:
    SmallWorld();
    void Remove(const std::string& path) const;
};
}
