// SPDX-License-Identifier: Zlib
#include "platform/Worker.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace
{
using platform::Worker;
using namespace std::chrono_literals;

// Adds up the numbers it is given, one at a time.
struct Adder
{
    std::optional<int> Next; // both under the worker's lock
    int Sum = 0;
    Worker Adding;

    Adder()
    {
        Adding.Start([this] { Work(); });
    }
    void Work()
    {
        const auto take = [this] { Sum += *std::exchange(Next, {}); };
        while (Adding.Wait([this] { return Next.has_value(); }, take))
            Adding.Notify([] {}); // there is room for another
    }
    // False: the one before has not been taken yet.
    bool Offer(int number)
    {
        const bool free = Adding.Locked([this] { return !Next.has_value(); });
        if (free)
            Adding.Notify([&] { Next = number; });
        return free;
    }
    void Give(int number)
    {
        while (!Offer(number))
            std::this_thread::yield();
    }
    int Total()
    {
        while (Adding.Locked([this] { return Next.has_value(); }))
            std::this_thread::yield();
        return Adding.Locked([this] { return Sum; });
    }
};
}

TEST(Worker, RunsItsBodyOnAThreadOfItsOwn)
{
    std::thread::id id;
    {
        Worker worker;
        std::atomic<bool> done = false;
        worker.Start(
            [&]
            {
                id = std::this_thread::get_id();
                done = true;
            });
        while (!done)
            std::this_thread::yield();
    }
    EXPECT_NE(id, std::thread::id());
    EXPECT_NE(id, std::this_thread::get_id());
}

TEST(Worker, EveryNotificationIsSeen)
{
    Adder adder;
    for (int number = 1; number <= 1000; ++number)
        adder.Give(number);
    EXPECT_EQ(adder.Total(), 1000 * 1001 / 2);
}

TEST(Worker, AStopEndsAWait)
{
    std::atomic<bool> waited = true, ran = false;
    Worker worker;
    worker.Start([&] { waited = worker.Wait([] { return false; }, [&] { ran = true; }); });
    EXPECT_FALSE(worker.IsStopped());
    worker.Stop();
    EXPECT_TRUE(worker.IsStopped());
    EXPECT_FALSE(waited);
    EXPECT_FALSE(ran);
    worker.Stop(); // nothing more
}

TEST(Worker, AStoppedOneTakesNothingThatIsReady)
{
    int taken = 0;
    Worker worker;
    worker.Start(
        [&]
        {
            while (worker.Wait([] { return true; }, [&] { ++taken; }))
            {
            }
        });
    while (worker.Locked([&] { return taken < 100; }))
        std::this_thread::yield();
    worker.Stop();
    const int last = taken;
    EXPECT_GE(last, 100);
    EXPECT_FALSE(worker.Wait([] { return true; }, [&] { ++taken; }));
    EXPECT_EQ(taken, last);
}

TEST(Worker, AStopEndsASleepAndANotificationDoesNot)
{
    std::atomic<bool> slept = true;
    Worker worker;
    const auto begin = Worker::Clock::now();
    worker.Start([&] { slept = worker.SleepUntil(begin + 1h); });
    for (int i = 0; i < 100; ++i)
        worker.Notify([] {});
    EXPECT_TRUE(slept);
    worker.Stop();
    EXPECT_FALSE(slept);
    EXPECT_LT(Worker::Clock::now() - begin, 10min);
}

TEST(Worker, SleepsUntilTheTime)
{
    std::atomic<bool> slept = false, done = false;
    Worker worker;
    const auto time = Worker::Clock::now() + 20ms;
    worker.Start(
        [&]
        {
            slept = worker.SleepUntil(time);
            done = true;
        });
    while (!done)
        std::this_thread::yield();
    EXPECT_TRUE(slept);
    EXPECT_GE(Worker::Clock::now(), time);
}

TEST(Worker, WakesABodyThatWaitsElsewhere)
{
    std::mutex lock;
    std::condition_variable changed;
    int wakes = 0; // under that lock, not the worker's
    const auto wake = [&]
    {
        {
            const std::lock_guard hold(lock);
            ++wakes;
        }
        changed.notify_all();
    };
    Worker worker(wake);
    std::atomic<int> seen = 0;
    worker.Start(
        [&]
        {
            std::unique_lock hold(lock);
            while (!worker.IsStopped())
            {
                changed.wait(hold, [&] { return wakes > seen; });
                seen = wakes;
            }
        });
    worker.Notify([] {});
    while (seen < 1)
        std::this_thread::yield();
    worker.Stop(); // hangs where it does not wake
    EXPECT_EQ(wakes, 2);
    worker.Stop(); // has nobody to wake
    EXPECT_EQ(wakes, 2);
}

TEST(Worker, MayBeDestroyedWithoutAStart)
{
    const Worker never;
    EXPECT_FALSE(never.IsStopped());
}

TEST(Worker, MayBeDestroyedWhileItIsNotifiedAndAtWork)
{
    for (int round = 0; round < 40; ++round)
    {
        Adder adder;
        std::atomic<bool> quits = false;
        std::vector<std::thread> others;
        for (int i = 0; i < 3; ++i)
            others.emplace_back(
                [&]
                {
                    while (!quits)
                        adder.Offer(1);
                });
        for (int number = 0; number < 20; ++number)
            adder.Offer(number);
        if (round % 2 == 0)
            adder.Adding.Stop(); // under way; otherwise at the end of the block
        quits = true;
        for (std::thread& other : others)
            other.join();
    }
}
