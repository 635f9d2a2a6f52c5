#include "render/GroundWalkers.h"

#include <system_error>

namespace render
{
GroundWalkers::GroundWalkers(int helpers)
{
    try
    {
        for (int i = 0; i < helpers; ++i)
            Helpers.emplace_back([this] { Help(); });
    }
    catch (const std::system_error&)
    {
        // The system has no more threads: fewer walkers draw the same picture.
    }
}

GroundWalkers::~GroundWalkers()
{
    {
        const std::lock_guard lock(Mutex);
        Quit = true;
    }
    Wake.notify_all();
    for (std::thread& helper : Helpers)
        helper.join();
}

bool GroundWalkers::Run(const BandWalk& walk, std::span<const Band> bands, std::chrono::milliseconds limit)
{
    const WalkGate::Clock::time_point deadline = WalkGate::Clock::now() + limit;
    {
        const std::lock_guard lock(Mutex);
        Work = &walk;
        Bands = bands;
        Deadline = deadline;
        NextBand.store(0, std::memory_order_relaxed);
        Stop.store(limit.count() <= 0, std::memory_order_relaxed);
        Open = true;
        ++Round;
    }
    if (!Helpers.empty())
        Wake.notify_all();
    WalkBands();

    std::unique_lock lock(Mutex);
    Open = false; // a helper that has not woken by now is not needed
    const auto nobodyDraws = [this] { return Active == 0; };
    if (!Done.wait_until(lock, deadline, nobodyDraws))
    {
        Stop.store(true, std::memory_order_relaxed);
        Done.wait(lock, nobodyDraws);
    }
    return !Stop.load(std::memory_order_relaxed);
}

void GroundWalkers::Help()
{
    std::uint64_t seen = 0;
    std::unique_lock lock(Mutex);
    while (true)
    {
        Wake.wait(lock, [&] { return Quit || (Open && Round != seen); });
        if (Quit)
            return;
        seen = Round;
        ++Active;
        lock.unlock();
        WalkBands();
        lock.lock();
        if (--Active == 0)
            Done.notify_one();
    }
}

void GroundWalkers::WalkBands()
{
    WalkGate gate(Stop, Deadline);
    for (std::size_t i = NextBand.fetch_add(1, std::memory_order_relaxed); i < Bands.size();
         i = NextBand.fetch_add(1, std::memory_order_relaxed))
        Work->Walk(Bands[i], gate);
}
}
