#include "world/Collision.h"

#include "base/Math.h"
#include "world/Cars.h"
#include "world/Driving.h"

#include <algorithm>
#include <bit>
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

// The first pair of spheres that touch.
struct Contact
{
    std::size_t A = 0, B = 0;
    double Distance = 0.0, Reach = 0.0;
};

struct Impact
{
    double V = 0.0, K = 0.0, Strength = 0.0; // Strength = V x K
};

bool Collides(const render::Obj& object)
{
    return object.Free == 0 && !object.Sfere.empty();
}

bool AreNear(const render::Obj& a, const render::Obj& b)
{
    const double reach = static_cast<double>(a.Radius) + b.Radius;
    return render::Dist3D(a.X, a.Y, a.Z, b.X, b.Y, b.Z) < reach && std::isfinite(reach);
}

render::Point3 Centre(const render::Obj& object, const render::Rotation& rotation, const render::Sfera& sphere)
{
    return render::RotatePoint(rotation, {object.X, object.Y, object.Z}, {sphere.X, sphere.Y, sphere.Z});
}

// The object's rotation. Most objects never turn: their sines and cosines are found once.
render::Rotation RotationOf(const render::Obj& object, KnownRotation& known)
{
    // By their bits: -0 is not 0 here, and what is no number is itself.
    const auto same = [](float a, float b)
    { return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b); };
    if (!same(object.AngleA, known.AngleA) || !same(object.AngleB, known.AngleB))
        known = {object.AngleA, object.AngleB, render::MakeRotation(object.AngleA, object.AngleB)};
    return known.Rotation;
}

bool FindContact(const render::Obj& i, const render::Rotation& turnI, const render::Obj& j,
                 const render::Rotation& turnJ, std::vector<render::Point3>& centres, Contact& contact)
{
    centres.clear();
    for (const render::Sfera& sphere : j.Sfere)
        centres.push_back(Centre(j, turnJ, sphere));
    for (std::size_t a = 0; a < i.Sfere.size(); ++a)
    {
        const render::Point3 p = Centre(i, turnI, i.Sfere[a]);
        for (std::size_t b = 0; b < centres.size(); ++b)
        {
            const render::Point3& q = centres[b];
            const double distance = render::Dist3D(p.X, p.Y, p.Z, q.X, q.Y, q.Z);
            const double reach = static_cast<double>(i.Sfere[a].R) + j.Sfere[b].R;
            if (distance < reach && std::isfinite(reach))
            {
                contact = {a, b, distance, reach};
                return true;
            }
        }
    }
    return false;
}

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

// One ordered pair of objects with spheres. True where they touched, and so have moved.
bool CollidePair(Simulation& sim, std::size_t first, std::size_t second)
{
    const render::Obj& a = sim.Scene.Objects.Items[first];
    const render::Obj& b = sim.Scene.Objects.Items[second];
    if (!AreNear(a, b))
        return false;
    TickScratch& scratch = sim.Scratch;
    Contact contact;
    if (!FindContact(a, RotationOf(a, scratch.Rotations[first]), b, RotationOf(b, scratch.Rotations[second]),
                     scratch.Centres, contact))
        return false;

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

// Which player drives each object, and which objects can touch at all. Neither changes while the pairs are walked.
void ListBodies(Simulation& sim)
{
    TickScratch& scratch = sim.Scratch;
    scratch.CarOf.assign(sim.Scene.Objects.Items.size(), -1);
    for (std::int16_t index = sim.Race.NumPlayers(); index-- > 0;)
    {
        const std::int16_t object = FindPlayer(sim.Race, index)->Obj;
        if (sim.Scene.Objects.Has(object))
            scratch.CarOf[static_cast<std::size_t>(object)] = index;
    }
    scratch.Rotations.resize(sim.Scene.Objects.Items.size());
    scratch.Bodies.clear();
    for (std::size_t object = 0; object < sim.Scene.Objects.Items.size(); ++object)
        if (Collides(sim.Scene.Objects.Items[object]))
            scratch.Bodies.push_back(static_cast<std::int16_t>(object));
}
}

void CollidePlain(Simulation& sim)
{
    ListBodies(sim);
    const std::vector<std::int16_t>& bodies = sim.Scratch.Bodies;
    for (std::size_t a = 0; a < bodies.size(); ++a)
        for (std::size_t b = a + 1; b < bodies.size(); ++b)
            CollidePair(sim, static_cast<std::size_t>(bodies[a]), static_cast<std::size_t>(bodies[b]));
}

void Collide(Simulation& sim)
{
    ListBodies(sim);
    const std::vector<std::int16_t>& bodies = sim.Scratch.Bodies;
    std::vector<Footprint>& footprints = sim.Scratch.Footprints;
    std::vector<std::uint8_t>& rows = sim.Scratch.Rows;
    NearStrips& strips = sim.Scratch.Strips;
    Settled& rest = sim.Scratch.Rest;
    const auto object = [&](std::size_t body) { return static_cast<std::size_t>(bodies[body]); };
    const auto place = [&](std::size_t body)
    {
        const render::Obj& placed = sim.Scene.Objects.Items[object(body)];
        strips.Remove(body, footprints[body]);
        footprints[body] = FootprintOf(placed.X, placed.Z, placed.Radius);
        strips.Add(body, footprints[body]);
    };
    const auto markRows = [&](std::size_t stirred)
    {
        strips.Look(footprints[stirred], NearStrips::BeforeAll);
        for (std::size_t row = strips.Next(NearStrips::BeforeAll); row <= stirred; row = strips.Next(row))
            rows[row] = 1;
    };

    rest.Compare(sim.Scene.Objects.Items, bodies, sim.Scratch.CarOf);
    rows.assign(bodies.size(), 0);
    if (rest.IsOtherList())
    {
        strips.Reset(bodies.size());
        footprints.assign(bodies.size(), {});
    }
    for (std::size_t body = 0; body < bodies.size(); ++body)
        if (rest.IsStirred(body))
            place(body);
    for (std::size_t body = 0; body < bodies.size(); ++body)
        if (rest.IsStirred(body))
            markRows(body);
    for (std::size_t a = 0; a < bodies.size(); ++a)
    {
        if (rows[a] == 0)
            continue;
        strips.Look(footprints[a], a);
        for (std::size_t b = strips.Next(a); b < bodies.size(); b = strips.Next(b))
            if ((rest.IsStirred(a) || rest.IsStirred(b)) && CollidePair(sim, object(a), object(b)))
            {
                // Both have moved: a meets the rest of its row from where it is now, b the rows after it and its own.
                rest.Stir(a);
                rest.Stir(b);
                place(a);
                place(b);
                markRows(b);
                strips.Look(footprints[a], b);
            }
    }
}
}
