// SPDX-License-Identifier: Zlib
// render/GroundThreads.h: the threads of the ground pass. They sleep between frames; the calling thread draws bands
// with them, at once or when it is done with something else. The picture is the same for any number of them.
#pragma once
#include "render/Bands.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace render
{
// Whether a pass must end, asked before every row. Each thread has a check of its own, and all of a pass share the
// flag: the first that finds the time over stops the others.
class StopCheck
{
public:
    using Clock = std::chrono::steady_clock;
    // Without a deadline only the flag counts.
    explicit StopCheck(std::atomic<bool>& stop, Clock::time_point deadline = Clock::time_point::max())
        : Stop(stop), Deadline(deadline)
    {
    }

    bool MustStop()
    {
        if (Rows++ % RowsPerLook == 0 && Clock::now() >= Deadline)
            Stop.store(true, std::memory_order_relaxed);
        return Stop.load(std::memory_order_relaxed);
    }

private:
    static constexpr std::uint32_t RowsPerLook = 16; // the clock is read now and then only
    std::atomic<bool>& Stop;
    Clock::time_point Deadline;
    std::uint32_t Rows = 0;
};

// Draws one band, or the part of it until the check says stop; called from several threads at once, each with another
// band. What it captures must fit a std::function without memory of its own: one pointer or two.
using BandJob = std::function<void(const Band& band, StopCheck& check)>;

// Milliseconds that nothing takes.
inline constexpr std::chrono::milliseconds NoLimit = std::chrono::hours(24);

class GroundThreads
{
public:
    explicit GroundThreads(int helpers = 0) { Resize(helpers); }
    ~GroundThreads() { End(); }
    GroundThreads(const GroundThreads&) = delete;
    GroundThreads& operator=(const GroundThreads&) = delete;

    // helpers: threads beside the calling one, at least 0. Where the system refuses a thread there are fewer. Nothing
    // happens where that many were asked for before.
    void Resize(int helpers);

    // Threads beside the calling one.
    std::size_t HelperCount() const { return Helpers.size(); }

    // A job that the helpers are at from now on; the calling thread goes its own way until it finishes it. One at a
    // time. Borrows the bands.
    class Pass
    {
    public:
        Pass(GroundThreads& threads, BandJob job, std::span<const Band> bands);
        ~Pass() { Finish({}); }
        Pass(const Pass&) = delete;
        Pass& operator=(const Pass&) = delete;

        // Draws the bands that are left with the helpers, and returns when nobody draws any more. After the limit
        // (from now) the check of every thread says stop, what is drawn stays, and false is returned. Once only; one
        // that nobody finishes has no time left.
        bool Finish(std::chrono::milliseconds limit);

    private:
        friend GroundThreads;
        void DrawBands(StopCheck check);

        GroundThreads& Threads;
        BandJob Job;
        std::span<const Band> Bands;
        bool IsOpen = true;
        std::atomic<std::size_t> NextBand{0}; // bands are taken one by one by whoever is free
        std::atomic<bool> Stop{false};
    };

    // Both at once.
    bool Run(BandJob job, std::span<const Band> bands, std::chrono::milliseconds limit);

private:
    void Help();
    void End();

    int Wanted = 0; // helpers asked for
    std::vector<std::thread> Helpers;

    // Guards everything below.
    std::mutex Mutex;
    std::condition_variable PassBegan, HelperLeft;
    Pass* Current = nullptr;  // the pass that helpers may join
    std::uint64_t Passes = 0; // counted, so that a helper joins each one once
    int Active = 0;           // helpers at work
    bool Quit = false;
};
}
