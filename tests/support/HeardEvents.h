// SPDX-License-Identifier: Zlib
// tests/support/HeardEvents.h: a listener of a window and its devices that keeps count.
#pragma once
#include "platform/Platform.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace support
{
struct HeardEvents final : platform::WindowEvents, platform::WaveEvents, platform::MusicEvents
{
    int Resizes = 0, Paints = 0;
    std::vector<std::int32_t> Done;
    std::vector<std::pair<std::uint32_t, std::int32_t>> Media;
    std::function<void(std::int32_t)> OnDone = [](std::int32_t) {};

    void Resized() override { ++Resizes; }
    void Paint() override { ++Paints; }
    void WaveDone(std::int32_t user) override
    {
        Done.push_back(user);
        OnDone(user);
    }
    void MediaDone(std::uint32_t number, std::int32_t code) override { Media.emplace_back(number, code); }
};
}
