// SPDX-License-Identifier: Zlib
// Stands in a file of its own: where the compiler sees both halves at once it takes malloc and delete for a wrong pair.
#include "tests/support/Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{
std::atomic<std::size_t> Count{0}, Bytes{0};
}

std::size_t support::Allocations()
{
    return Count;
}

std::size_t support::AllocatedBytes()
{
    return Bytes;
}

void* operator new(std::size_t size)
{
    ++Count;
    Bytes += size;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    ++Count;
    Bytes += size;
    return std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
