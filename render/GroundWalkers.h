// render/GroundWalkers.h: the threads of the ground pass. They are made with the resolution and sleep between frames;
// the calling thread walks bands with them. Run never returns while anybody still draws.
#pragma once
#include "render/Screen.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace render
{
// Asked before every row: whether the pass may still draw. Every walker has its own and all share the wish to stop.
// Each also keeps the time, because the system may leave the calling thread waiting; the clock is read now and then.
class WalkGate
{
public:
    using Clock = std::chrono::steady_clock;
    // Without a deadline only the wish to stop counts.
    explicit WalkGate(std::atomic<bool>& stop, Clock::time_point deadline = Clock::time_point::max())
        : Stop(stop), Deadline(deadline)
    {
    }

    bool MayGoOn()
    {
        if (Asked++ % RowsPerLook == 0 && Clock::now() >= Deadline)
            Stop.store(true, std::memory_order_relaxed);
        return !Stop.load(std::memory_order_relaxed);
    }

private:
    static constexpr std::uint32_t RowsPerLook = 16;
    std::atomic<bool>& Stop;
    Clock::time_point Deadline;
    std::uint32_t Asked = 0;
};

// The work of one band; called from several threads at once, each with another band.
struct BandWalk
{
    virtual ~BandWalk() = default;
    virtual void Walk(const Band& band, WalkGate& gate) const = 0;
};

class GroundWalkers
{
public:
    // helpers: threads beside the calling one; where the system refuses a thread there are fewer.
    explicit GroundWalkers(int helpers);
    ~GroundWalkers();
    GroundWalkers(const GroundWalkers&) = delete;
    GroundWalkers& operator=(const GroundWalkers&) = delete;

    // Walks every band. After the limit the walkers are asked to stop; false then, and what is drawn stays.
    bool Run(const BandWalk& walk, std::span<const Band> bands, std::chrono::milliseconds limit);

private:
    void Help();
    void WalkBands();

    // The frame's work; written only while no helper is active.
    const BandWalk* Work = nullptr;
    std::span<const Band> Bands;
    std::atomic<std::size_t> NextBand{0};
    std::atomic<bool> Stop{false};
    WalkGate::Clock::time_point Deadline;

    // The hand-over.
    std::mutex Mutex;
    std::condition_variable Wake, Done;
    std::uint64_t Round = 0; // counts the frames, so that a helper joins each one once
    bool Open = false;       // whether a helper may still join
    bool Quit = false;
    int Active = 0; // helpers at work
    std::vector<std::thread> Helpers;
};
}
