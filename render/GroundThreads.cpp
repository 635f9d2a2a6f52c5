// SPDX-License-Identifier: Zlib
#include "render/GroundThreads.h"

#include <system_error>
#include <utility>

namespace render
{
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

GroundThreads::Pass::Pass(GroundThreads& threads, BandJob job, std::span<const Band> bands)
    : Threads(threads), Job(std::move(job)), Bands(bands)
{
    if (Threads.Helpers.empty())
        return;
    {
        const std::lock_guard lock(Threads.Mutex);
        Threads.Current = this;
        ++Threads.Passes;
    }
    Threads.PassBegan.notify_all();
}

void GroundThreads::Pass::DrawBands(StopCheck check)
{
    for (std::size_t i = NextBand.fetch_add(1, std::memory_order_relaxed); i < Bands.size();
         i = NextBand.fetch_add(1, std::memory_order_relaxed))
        Job(Bands[i], check);
}

bool GroundThreads::Pass::Finish(std::chrono::milliseconds limit)
{
    if (std::exchange(IsOpen, false))
    {
        const StopCheck::Clock::time_point deadline = StopCheck::Clock::now() + limit;
        DrawBands(StopCheck(Stop, deadline));
        std::unique_lock lock(Threads.Mutex);
        Threads.Current = nullptr; // a helper that has not woken by now is not needed
        const auto haveLeft = [this] { return Threads.Active == 0; };
        if (!Threads.HelperLeft.wait_until(lock, deadline, haveLeft))
        {
            Stop.store(true, std::memory_order_relaxed);
            Threads.HelperLeft.wait(lock, haveLeft);
        }
    }
    return !Stop.load(std::memory_order_relaxed);
}

bool GroundThreads::Run(BandJob job, std::span<const Band> bands, std::chrono::milliseconds limit)
{
    return Pass(*this, std::move(job), bands).Finish(limit);
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
        pass.DrawBands(StopCheck(pass.Stop));
        lock.lock();
        if (--Active == 0)
            HelperLeft.notify_one();
    }
}
}
