// SPDX-License-Identifier: Zlib
// CollidePlain of world/Collision.h: nothing is kept, left out or known from before.
#include "world/Collision.h"
#include "world/Impact.h"

#include <cmath>

namespace world
{
namespace
{
bool CollidesPlain(const render::Obj& object)
{
    return object.Free == 0 && !object.Sfere.empty();
}

bool AreNearPlain(const render::Obj& a, const render::Obj& b)
{
    const double reach = static_cast<double>(a.Radius) + b.Radius;
    return render::Dist3D(a.X, a.Y, a.Z, b.X, b.Y, b.Z) < reach && std::isfinite(reach);
}

render::Point3 CentrePlain(const render::Obj& object, const render::Rotation& rotation, const render::Sfera& sphere)
{
    return render::RotatePoint(rotation, {object.X, object.Y, object.Z}, {sphere.X, sphere.Y, sphere.Z});
}

bool FindContactPlain(const render::Obj& i, const render::Obj& j, Contact& contact)
{
    const render::Rotation turnI = render::MakeRotation(i.AngleA, i.AngleB);
    const render::Rotation turnJ = render::MakeRotation(j.AngleA, j.AngleB);
    for (std::size_t a = 0; a < i.Sfere.size(); ++a)
        for (std::size_t b = 0; b < j.Sfere.size(); ++b)
        {
            const render::Point3 p = CentrePlain(i, turnI, i.Sfere[a]);
            const render::Point3 q = CentrePlain(j, turnJ, j.Sfere[b]);
            const double distance = render::Dist3D(p.X, p.Y, p.Z, q.X, q.Y, q.Z);
            const double reach = static_cast<double>(i.Sfere[a].R) + j.Sfere[b].R;
            if (distance < reach && std::isfinite(reach))
            {
                contact = {a, b, distance, reach};
                return true;
            }
        }
    return false;
}
}

void CollidePlain(Simulation& sim)
{
    ListCars(sim);
    const std::vector<render::Obj>& objects = sim.Scene.Objects.Items;
    for (std::size_t a = 0; a < objects.size(); ++a)
        for (std::size_t b = a + 1; b < objects.size(); ++b)
        {
            Contact contact;
            if (CollidesPlain(objects[a]) && CollidesPlain(objects[b]) && AreNearPlain(objects[a], objects[b]) &&
                FindContactPlain(objects[a], objects[b], contact))
                Strike(sim, a, b, contact);
        }
}
}
