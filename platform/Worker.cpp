// SPDX-License-Identifier: Zlib
#include "platform/Worker.h"

namespace platform
{
void Worker::Start(std::function<void()> body)
{
    Thread = std::thread(std::move(body));
}

void Worker::Stop()
{
    if (!Stopped)
        Notify([this] { Stopped = true; });
    if (Thread.joinable())
        Thread.join();
}

void Worker::WakeAll()
{
    Changed.notify_all();
    if (Wake)
        Wake();
}

bool Worker::SleepUntil(Clock::time_point time)
{
    std::unique_lock hold(Lock);
    return !Changed.wait_until(hold, time, [this] { return Stopped.load(); });
}
}
