// SPDX-License-Identifier: Zlib
// tools/drive/Checksum.h: one number for all that the simulation reads and writes, field by field through the field
// tables: cars, objects, particles with their sprites, zones, race, camera, held keys, generator, ground texels. Two
// runs that differ in one of them by one bit have different sums for all practical purposes.
#pragma once
#include "shell/Game.h"

#include <cstdint>
#include <span>

namespace drive
{
// Not cryptographic; eight bytes a step.
class Digest
{
public:
    void Word(std::uint64_t value);
    void Bytes(std::span<const std::uint8_t> bytes); // with their number
    std::uint64_t Value() const;

private:
    std::uint64_t Sum = 0x9E3779B97F4A7C15u;
};

std::uint64_t Checksum(const shell::Game& game);
// The same but for the ground texels, which are most of the bytes: for a sum after every tick of a race.
std::uint64_t TickChecksum(const shell::Game& game);
}
