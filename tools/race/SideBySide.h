// SPDX-License-Identifier: Zlib
// tools/race/SideBySide.h: a piece of work for each number of a row, several at a time.
#pragma once
#include <algorithm>
#include <atomic>
#include <cstddef>
#include <exception>
#include <functional>
#include <thread>
#include <vector>

namespace race
{
// Calls body(0) … body(count - 1), each once, on that many threads. When one throws no further one is begun, and the
// exception of the lowest number that threw is thrown here, whatever the number of threads.
inline void SideBySide(std::size_t count, int jobs, const std::function<void(std::size_t)>& body)
{
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> failed = false;
    std::vector<std::exception_ptr> errors(count);
    const auto work = [&]
    {
        // What is taken is done: whatever failed, everything before it is done too.
        while (!failed)
        {
            const std::size_t i = next++;
            if (i >= count)
                return;
            try
            {
                body(i);
            }
            catch (...)
            {
                errors[i] = std::current_exception();
                failed = true;
            }
        }
    };
    std::vector<std::thread> threads;
    for (std::size_t i = 1; i < std::min(count, static_cast<std::size_t>(std::max(jobs, 1))); ++i)
        threads.emplace_back(work);
    work();
    for (std::thread& thread : threads)
        thread.join();
    for (const std::exception_ptr& error : errors)
        if (error)
            std::rethrow_exception(error);
}
}
