// SPDX-License-Identifier: Zlib
// platform/Worker.h: a thread of its own, with what it and its owner need to talk: a lock, a notification and a wish to
// stop. The owner makes, starts, stops and destroys it on one thread; Notify, Locked and IsStopped may be called on
// any; the two waits belong to the body.
#pragma once
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>

namespace platform
{
class Worker
{
public:
    using Clock = std::chrono::steady_clock;

    // `wake` is called after each notification, on the notifier's thread and without the lock: for a body that waits
    // for something of the system's instead of calling Wait.
    explicit Worker(std::function<void()> wake = {}) : Wake(std::move(wake)) {}
    // Stops. Whatever the body uses must still be there: a Worker is the last member of its owner.
    ~Worker() { Stop(); }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    // Runs the body on the thread, once. It must not throw, and should return soon after the worker is stopped.
    void Start(std::function<void()> body);
    // Ends every wait, and returns when the body has. May be called again, which does nothing, and without a
    // start.
    void Stop();
    // Whether the body should return.
    bool IsStopped() const { return Stopped; }

    // Changes what is shared, under the lock, and has every wait look again.
    template <class Change> void Notify(Change&& change)
    {
        {
            const std::lock_guard hold(Lock);
            change();
        }
        WakeAll();
    }

    // Reads or changes what is shared, under the lock, without notifying anybody.
    template <class Access> decltype(auto) Locked(Access&& access)
    {
        const std::lock_guard hold(Lock);
        return access();
    }

    // The body waits until `ready` holds, which is evaluated under the lock, and then runs `then` under the same lock.
    // False: stopped, and `then` has not run.
    template <class Ready, class Then> bool Wait(Ready&& ready, Then&& then)
    {
        std::unique_lock hold(Lock);
        Changed.wait(hold, [&] { return Stopped || ready(); });
        if (Stopped)
            return false;
        then();
        return true;
    }

    // The body sleeps; a stop ends it early, a notification does not. False: stopped.
    bool SleepUntil(Clock::time_point time);

private:
    void WakeAll();

    std::function<void()> Wake; // may be empty
    std::mutex Lock;            // of all that owner and body share
    std::condition_variable Changed;
    std::atomic<bool> Stopped = false; // written under the lock
    std::thread Thread;
};
}
