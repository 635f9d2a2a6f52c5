// SPDX-License-Identifier: Zlib
// The same script draws the same pictures whoever walks the ground.
#include "render/RenderFrame.h"
#include "tools/drive/Driver.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
struct Race
{
    drive::Driver Driver;

    explicit Race(const char* root) : Driver(base::Files(root))
    {
        for (const char* line : {"random seed 3", "load"})
            Tell(line);
    }

    // Refused commands fail the test. The answer.
    std::string Tell(const std::string& line)
    {
        const std::string answer = Driver.Answer(line);
        EXPECT_FALSE(Driver.HadErrors()) << line << ": " << answer;
        return answer;
    }
    shell::Game& Game() { return Driver.State().Form()->State(); }

    // Whatever the machine has, this many bands and their walkers.
    void WalkWith(std::int16_t threads)
    {
        shell::Game& game = Game();
        game.Screen.ThreadCount = threads;
        render::ApplyResolution(Driver.State().Form()->Window(), game.Screen, game.Camera, 600, 312);
    }
};

// Frames and depths of a second of race in every filter and several views.
std::vector<std::vector<std::uint8_t>> Frames(const char* root, std::int16_t threads)
{
    Race race(root);
    race.WalkWith(threads);
    race.Tell("click cSTART");
    race.Tell("poke players[0].Control 1");
    race.Tell("poke timers.GameT.Elapsed 3000");
    std::vector<std::vector<std::uint8_t>> frames;
    for (int i = 0; i < 12; ++i)
    {
        race.Tell("poke settings.TxtFilter " + std::to_string(i % 3));
        race.Tell("poke camera.View " + std::to_string(i % 4));
        race.Tell("run 150");
        frames.push_back(race.Game().Screen.Frame.Bytes);
    }
    return frames;
}

struct SameFrames : testing::TestWithParam<const char*>
{
};
}

TEST_P(SameFrames, OnOneThreeAndSixteenThreads)
{
    const auto one = Frames(GetParam(), 1);
    const auto three = Frames(GetParam(), 3), sixteen = Frames(GetParam(), 16);
    ASSERT_EQ(one.size(), 12u);
    for (std::size_t i = 0; i < one.size(); ++i)
    {
        EXPECT_TRUE(one[i] == three[i]) << "frame " << i << " differs on 3 threads";
        EXPECT_TRUE(one[i] == sixteen[i]) << "frame " << i << " differs on 16 threads";
    }
    EXPECT_FALSE(one[0] == one[11]) << "nothing moved";
}

INSTANTIATE_TEST_SUITE_P(Worlds, SameFrames, testing::Values(VELKAR_SMALL, VELKAR_ROOT),
                         [](const auto& world) { return world.index == 0 ? "Small" : "Shipped"; });
