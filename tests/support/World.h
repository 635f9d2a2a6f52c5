// SPDX-License-Identifier: Zlib
// A small world for tests, benchmarks and fuzzers of the simulation: everything a tick reads and writes, and cars to
// put into it.
#pragma once
#include "render/Primitives.h"
#include "world/Tick.h"

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <memory>
#include <vector>

namespace support
{
// A finish that nobody shows.
struct NoFinish final : world::FinishSink
{
    void Finished(const std::string&) override {}
};

struct World
{
    render::Scene Scene;
    world::Race Race;
    render::Camera Camera;
    world::HeldKeys Keys;
    world::RaceAssets Assets;
    base::Random Random;
    world::TickScratch Scratch;
    float EffQuality = 1.0f;
    bool WebcamOn = false;
    float Shake = 0.0f;
    bool InBox = false;

    World() { Random.Script = {0.75}; }

    world::Simulation Sim()
    {
        return {Scene, Race, Camera, Keys, Assets, Random, Scratch, EffQuality, WebcamOn, Shake, InBox};
    }
    // The next step of the race, by Collide or CollidePlain.
    void Tick(void (*step)(world::Simulation&, world::FinishSink&) = world::GameTick)
    {
        NoFinish finish;
        world::Simulation sim = Sim();
        // Stops as the timer does that the game takes it from.
        Race.GameTime = std::min(Race.GameTime, std::numeric_limits<std::int32_t>::max() - 25) + 25;
        step(sim, finish);
    }

    render::Obj& Object(std::int32_t index) { return Scene.Objects.At(index); }
    world::Player& Player(std::int32_t index) { return Race.Players.at(static_cast<std::size_t>(index)); }

    // An object with one sphere of that radius at its centre; its bounding radius is the same.
    std::int16_t AddBall(float x, float z, float radius, float mass)
    {
        const std::int16_t object = render::MakeObj(Scene, {x, 0, z, 0, 0}, 0, 1, 1, mass);
        render::SetObjR(Scene, object, radius);
        render::EditObjSfere(Scene, object, 0, {0, 0, 0}, radius);
        return object;
    }

    // A car of mass 1 on a ball of radius 1, driven by the user when it is the first. Top speed 4, in reverse 1.
    std::int16_t AddCar(float x, float z, float angle = 0)
    {
        world::Player player;
        player.Obj = AddBall(x, z, 1, 1);
        Object(player.Obj).AngleA = angle;
        player.MaxSpeed = player.CurMaxSpeed = 4.0f;
        player.MaxSpeedR = player.CurMaxSpeedR = 1.0f;
        player.WRS = player.CurWRS = 0.0625f;
        player.Acceleration = player.CurAcceleration = 0.25f;
        player.Brake = player.CurBrake = 0.5f;
        player.Deceleration = player.CurDeceleration = 0.03125f;
        player.Control = Race.Players.empty() ? 0 : 1;
        Race.Players.push_back(player);
        return static_cast<std::int16_t>(Race.NumPlayers() - 1);
    }

    void SetCheckpoints(std::initializer_list<world::Target> list) { Race.Map.Checkpoints.Items = list; }

    void SetGround(std::int32_t width, std::int32_t height, float scale, std::uint8_t value)
    {
        Scene.Ground.Width = width;
        Scene.Ground.Height = height;
        Scene.Ground.GroundScale = scale;
        Scene.Ground.Sharp.Pixels.Allocate(height, base::PaddedRow(width));
        for (std::uint8_t& byte : Scene.Ground.Sharp.Pixels.Bytes)
            byte = value;
    }
    // The blue byte of a ground texel.
    int Texel(std::int32_t column, std::int32_t row) { return *TexelAt(column, row); }
    const std::uint8_t* TexelAt(std::ptrdiff_t column, std::int32_t row)
    {
        return Scene.Ground.Sharp.Pixels.Row(row) + column * 3;
    }

    static render::PicReference MakePicture()
    {
        auto picture = std::make_shared<render::Picture>();
        picture->Info.Width = picture->Info.Height = 1;
        picture->Pixels.Allocate(1, 4);
        return picture;
    }
    void MakePictures()
    {
        Assets.Smoke = MakePicture();
        Assets.Water = MakePicture();
        Assets.FireRed = MakePicture();
        Assets.FireYellow = MakePicture();
    }
};
}
