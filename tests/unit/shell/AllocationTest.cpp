// No tick and no frame allocates. Counted by replacing the program's allocation functions.
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{
std::atomic<long> Allocations{0};
}

// Not inlined: the compiler would take the pair of malloc and delete for a mistake.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++Allocations;
    if (void* memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace
{
struct Allocation : testing::Test, support::LoadedForm
{
    // The machine keeps what it was shown; its own memory settles with the first frames.
    void Warm()
    {
        StartRace();
        Label(&shell::Hud::Debug).Visible = 1;
        Form.KeyDown(38);
        Pass(6000);
    }
};

TEST_F(Allocation, TheCounterCounts)
{
    const long before = Allocations;
    auto some = std::make_unique<int>(3);
    EXPECT_EQ(*some, 3);
    EXPECT_EQ(Allocations - before, 1);
}

TEST_F(Allocation, NoneInAGameTick)
{
    Warm();
    const long before = Allocations;
    for (int tick = 0; tick < 400; ++tick)
    {
        Machine.Clock += 25;
        Form.GameT_Tick();
    }
    EXPECT_EQ(Allocations - before, 0);
    EXPECT_GT(Player(0).Speed, 1); // a real race went on
}

TEST_F(Allocation, NoneInAFrame)
{
    Warm();
    const long before = Allocations;
    for (int tick = 0; tick < 40; ++tick)
    {
        Machine.Clock += 50;
        Form.RenderT_Tick();
    }
    EXPECT_EQ(Allocations - before, 0);
}

TEST_F(Allocation, NoneInTheKeysOfARace)
{
    Warm();
    const long before = Allocations;
    for (const int code : {38, 40, 37, 39, 32, 66, 33, 34, 67, 49, 55, 80, 80})
        PressAndRelease(code);
    EXPECT_EQ(Allocations - before, 0);
}
}
