// SPDX-License-Identifier: Zlib
// world/PointsAndPlayers.h: point-list files and player files (formats: docs/formats.md). Each reports its own errors
// in a message box.
#pragma once
#include "base/Files.h"
#include "base/Trapped.h"
#include "world/Race.h"

#include <cstdint>
#include <string>

namespace world
{
// Replaces the list by the complete records of the file, also before an error; returns their number, 32767 at most
// (RuntimeError 6 beyond). Without any the list holds its stand-in.
std::int16_t LoadTargets(base::MessageSink& messages, const base::Files& files, const std::string& path,
                         TargetList& list);
// Appends a player bound to the object. Returns its index; -1, and no player, after an error (RuntimeError 6 beyond
// 32767 players).
std::int16_t MakePlayer(base::MessageSink& messages, const base::Files& files, const std::string& path,
                        std::int16_t object, Race& race);
}
