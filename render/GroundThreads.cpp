// SPDX-License-Identifier: Zlib
#include "render/GroundThreads.h"

#include <system_error>

namespace render
{
// One call of Run: its bands are taken one by one by whoever is free.
struct GroundThreads::Pass
{
    const BandJob& Job;
    std::span<const Band> Bands;
    StopCheck::Clock::time_point Deadline;
    std::atomic<std::size_t> NextBand{0};
    std::atomic<bool> Stop{false};

    void DrawBands()
    {
        StopCheck check(Stop, Deadline);
        for (std::size_t i = NextBand.fetch_add(1, std::memory_order_relaxed); i < Bands.size();
             i = NextBand.fetch_add(1, std::memory_order_relaxed))
            Job(Bands[i], check);
    }
};

void GroundThreads::Resize(int helpers)
{
    if (helpers == Wanted)
        return;
    End();
    Wanted = helpers;
    try
    {
        for (int i = 0; i < helpers; ++i)
            Helpers.emplace_back([this] { Help(); });
    }
    catch (const std::system_error&)
    {
        // The system has no more threads: fewer draw the same picture.
    }
}

void GroundThreads::End()
{
    {
        const std::lock_guard lock(Mutex);
        Quit = true;
    }
    PassBegan.notify_all();
    for (std::thread& helper : Helpers)
        helper.join();
    Helpers.clear();
    Quit = false;
}

bool GroundThreads::Run(const BandJob& job, std::span<const Band> bands, std::chrono::milliseconds limit)
{
    Pass pass{job, bands, StopCheck::Clock::now() + limit};
    {
        const std::lock_guard lock(Mutex);
        Current = &pass;
        ++Passes;
    }
    if (!Helpers.empty())
        PassBegan.notify_all();
    pass.DrawBands();

    std::unique_lock lock(Mutex);
    Current = nullptr; // a helper that has not woken by now is not needed
    HelperLeft.wait(lock, [this] { return Active == 0; });
    return !pass.Stop.load(std::memory_order_relaxed);
}

void GroundThreads::Help()
{
    std::uint64_t seen = 0;
    std::unique_lock lock(Mutex);
    while (true)
    {
        PassBegan.wait(lock, [&] { return Quit || (Current != nullptr && Passes != seen); });
        if (Quit)
            return;
        seen = Passes;
        Pass& pass = *Current;
        ++Active;
        lock.unlock();
        pass.DrawBands();
        lock.lock();
        if (--Active == 0)
            HelperLeft.notify_one();
    }
}
}
