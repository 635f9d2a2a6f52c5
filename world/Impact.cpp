// SPDX-License-Identifier: Zlib
#include "world/Impact.h"

#include "base/Math.h"
#include "world/Cars.h"
#include "world/Driving.h"

#include <algorithm>
#include <cmath>

namespace world
{
namespace
{
constexpr double LeastRatio = 0.2, MostRatio = 5.0; // of two masses
constexpr int FirstCabinSphere = 6;                 // a hit from here up may break the glass
constexpr int GlassMesh = 20;
constexpr float MostShake = 4.0f;

// One of the two that touch.
struct Body
{
    render::Obj& Object;
    world::Player* Player; // null where it is no car
    std::int32_t Index;    // of the player
};

struct Impact
{
    double V = 0.0, K = 0.0, Strength = 0.0; // Strength = V x K
};

// Mass of j to mass of i.
double MassRatio(const render::Obj& i, const render::Obj& j)
{
    const double ratio = static_cast<double>(j.Mass) / i.Mass;
    return std::isnan(ratio) ? 1.0 : std::clamp(ratio, LeastRatio, MostRatio);
}

Impact ImpactOf(const Body& i, const Body& j, double ratio, double half)
{
    Impact impact;
    if (i.Player != nullptr && j.Player != nullptr)
    {
        impact.K = std::fabs(base::Atan(half) / render::HalfPi);
        impact.V = std::fabs(static_cast<double>(i.Player->Speed) + j.Player->Speed);
    }
    else if (i.Player != nullptr)
    {
        impact.K = base::Atan(ratio) / render::HalfPi;
        impact.V = std::fabs(i.Player->Speed);
    }
    else if (j.Player != nullptr)
    {
        impact.K = base::Atan(1.0 / ratio) / render::HalfPi;
        impact.V = std::fabs(j.Player->Speed);
    }
    impact.Strength = impact.V * impact.K;
    return impact;
}

// Every point that the sphere links is pressed in, computed from where it was when the model was loaded.
void Dent(render::Obj& object, const render::Sfera& sphere, base::Random& random)
{
    for (const render::SfereLink& link : sphere.Links)
    {
        if (link.M < 0 || static_cast<std::size_t>(link.M) >= object.Mesh.size())
            continue;
        render::ObjMesh& mesh = object.Mesh[static_cast<std::size_t>(link.M)];
        if (!mesh.Pts.Has(link.I, link.J) || !mesh.Undamaged.Has(link.I, link.J))
            continue;
        const render::MeshPt& whole = mesh.Undamaged.At(link.I, link.J);
        render::MeshPt& point = mesh.Pts.At(link.I, link.J);
        point.X = Single(whole.X * (0.95 - 0.15 * random.Next()));
        point.Y = Single(whole.Y * (0.95 - 0.15 * random.Next()));
        point.Z = Single(whole.Z * (0.95 - 0.15 * random.Next()));
    }
}

void BreakGlass(render::Obj& car, std::int16_t texture)
{
    if (texture < 0 || car.Mesh.size() <= GlassMesh)
        return;
    render::ObjMesh& glass = car.Mesh[GlassMesh];
    glass.TexIndex = texture;
    if (glass.Colour >= 0)
        glass.Colour = -1;
}

// What the blow does to one of the two. glassForce: above 1 it breaks the glass.
void Suffer(Simulation& sim, const Body& body, std::size_t sphere, double k, double ratio, double glassForce)
{
    if (body.Player == nullptr) // knocked over
    {
        // Deliberate: the same ratio for both.
        body.Object.AngleB = Single(body.Object.AngleB + sim.Random.Next() * std::min(ratio, 1.0));
        return;
    }
    body.Player->Speed = Single(body.Player->Speed * (1.0 - k));
    ApplyDamage(*body.Player);
    Dent(body.Object, body.Object.Sfere[sphere], sim.Random);
    if (sphere >= FirstCabinSphere && glassForce > 1.0)
        BreakGlass(body.Object, sim.Assets.BrokenGlassTexture);
}

// The lighter one is pushed farther. Two at one place part along x.
void Separate(render::Obj& i, render::Obj& j, double push, double ratio)
{
    const double d = render::Dist2D(i.X, i.Z, j.X, j.Z);
    const double dx = static_cast<double>(i.X) - j.X;
    const double dz = static_cast<double>(i.Z) - j.Z;
    const double px = d > 0.0 ? dx / d * push : push;
    const double pz = d > 0.0 ? dz / d * push : 0.0;
    i.X = Single(i.X + px * ratio);
    i.Z = Single(i.Z + pz * ratio);
    j.X = Single(j.X - px / ratio);
    j.Z = Single(j.Z - pz / ratio);
}

// The lighter one turns farther.
void TurnAside(render::Obj& i, render::Obj& j, double half, double ratio)
{
    i.AngleA = Single(i.AngleA - (ratio >= 1.0 ? half : ratio * half));
    j.AngleA = Single(j.AngleA + (ratio >= 1.0 ? half / ratio : half));
}

bool IsUser(const Simulation& sim, const Body& body)
{
    return body.Player != nullptr && body.Index == sim.Race.UserPlayer;
}

void Shake(Simulation& sim, const Body& i, const Body& j, double strength)
{
    if (sim.WebcamOn && (IsUser(sim, i) || IsUser(sim, j)))
        sim.Shake = std::min(Single(strength * 40.0), MostShake);
}

Body BodyOf(Simulation& sim, std::size_t object)
{
    const std::int16_t index = sim.Scratch.CarOf[object];
    return {sim.Scene.Objects.Items[object], FindPlayer(sim.Race, index), index};
}
}

void ListCars(Simulation& sim)
{
    std::vector<std::int16_t>& carOf = sim.Scratch.CarOf;
    std::vector<std::int32_t>& cars = sim.Scratch.Cars;
    carOf.assign(sim.Scene.Objects.Items.size(), -1);
    cars.clear();
    for (std::int16_t index = 0; index < sim.Race.NumPlayers(); ++index)
    {
        const std::int16_t object = FindPlayer(sim.Race, index)->Obj;
        if (!sim.Scene.Objects.Has(object) || carOf[static_cast<std::size_t>(object)] >= 0)
            continue;
        carOf[static_cast<std::size_t>(object)] = index;
        cars.push_back(object);
    }
}

bool Strike(Simulation& sim, std::size_t first, std::size_t second, const Contact& contact)
{
    const Body i = BodyOf(sim, first);
    const Body j = BodyOf(sim, second);
    const double ratio = MassRatio(i.Object, j.Object);
    const double half = render::WrapAngle(static_cast<double>(i.Object.AngleA) - j.Object.AngleA) / 2.0;
    const Impact impact = ImpactOf(i, j, ratio, half);
    if (!std::isfinite(impact.Strength))
        return false;
    for (const Body* body : {&i, &j})
        if (body->Player != nullptr)
            body->Player->Damage = Single(body->Player->Damage + impact.Strength);

    Suffer(sim, i, contact.A, impact.K, ratio, ratio * impact.Strength);
    Suffer(sim, j, contact.B, impact.K, ratio, impact.Strength / ratio);
    Separate(i.Object, j.Object, (contact.Reach - contact.Distance) * (impact.V + 1.0), ratio);
    TurnAside(i.Object, j.Object, half, ratio);
    Shake(sim, i, j, impact.Strength);
    return true;
}
}
