// SPDX-License-Identifier: Zlib
// tests/support/Allocations.h: counts the memory that a test program asks for. Link Allocations.cpp into the program.
#pragma once
#include <cstddef>

namespace support
{
std::size_t Allocations();    // calls of operator new since the program began, on every thread
std::size_t AllocatedBytes(); // what they asked for; what was given back counts as well
}
