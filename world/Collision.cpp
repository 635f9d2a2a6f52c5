// SPDX-License-Identifier: Zlib
#include "world/Collision.h"

#include "world/Impact.h"

#include <algorithm>
#include <cmath>

namespace world
{
namespace
{
bool AreNear(const render::Obj& a, const render::Obj& b)
{
    const double reach = static_cast<double>(a.Radius) + b.Radius;
    return render::Dist3D(a.X, a.Y, a.Z, b.X, b.Y, b.Z) < reach && std::isfinite(reach);
}

// How far a body may go before its neighbours are looked up again: they are looked up around it with twice as much.
float Leeway(const Disc& disc)
{
    return 0.125f + std::fabs(disc.Radius) / 64.0f;
}

Disc Widened(const Disc& disc)
{
    return {disc.X, disc.Z, disc.Radius + 2.0f * Leeway(disc)};
}

// Whether what was found around one place holds around the other.
bool IsWithinLeeway(const Disc& from, const Disc& to)
{
    return std::fabs(static_cast<double>(from.X) - to.X) + std::fabs(static_cast<double>(from.Z) - to.Z) <=
           static_cast<double>(Leeway(from));
}

// The walk over the pairs, row by row: a row is a body with all that come after it. The rows that are walked are
// marked: those of every stirred body and of whoever may touch one that comes later.
struct PairWalk
{
    Simulation& Sim;
    TickScratch& Scratch = Sim.Scratch;
    const std::vector<render::Obj>& Objects = Sim.Scene.Objects.Items;

    std::int32_t FirstRow = 0; // of those that are still to be walked

    Disc DiscOf(std::size_t body) const { return {Objects[body].X, Objects[body].Z, Objects[body].Radius}; }

    // The body stands where it did not stand before.
    void Place(std::size_t body)
    {
        Scratch.Shapes[body].Forget(Objects[body]);
        if (Scratch.Rest.IsBody(body))
            Scratch.Grid.Put(body, DiscOf(body));
        else
            Scratch.Grid.Remove(body);
    }

    void MarkRows(std::size_t body)
    {
        const Disc disc = DiscOf(body);
        const auto number = static_cast<std::int32_t>(body);
        Scratch.MarkedAround[body] = disc;
        Scratch.Marks.Mark(body);
        Scratch.Grid.Look(Widened(disc), {FirstRow, number - 1}, Scratch.Found);
        for (const std::int32_t found : Scratch.Found.Bodies())
        {
            const auto row = static_cast<std::size_t>(found);
            if (Scratch.Rest.IsStirred(row)) // will look for itself
                Scratch.Marks.Mark(row);
            else
                Scratch.Marks.MarkFor(row, number);
        }
    }

    // Lists who of the row may touch its body: those above `after`.
    void ListRow(std::size_t body, std::int32_t after)
    {
        Scratch.Grid.Look(Widened(DiscOf(body)), {after + 1, static_cast<std::int32_t>(Objects.size()) - 1},
                          Scratch.Row);
        Scratch.Row.Sort();
    }

    // True where the two touched, and so have moved.
    bool CollidePair(std::size_t first, std::size_t second)
    {
        if (!AreNear(Objects[first], Objects[second]))
            return false;
        Shape& i = Scratch.Shapes[first];
        Shape& j = Scratch.Shapes[second];
        i.Take(Objects[first]);
        j.Take(Objects[second]);
        Contact contact;
        return FindContact(i, j, contact) && Strike(Sim, first, second, contact);
    }

    // The second of a pair was pushed: it meets the rows between the two, and its own, from where it is now.
    void Pushed(std::size_t body)
    {
        const bool isMarked = Scratch.Rest.IsStirred(body);
        Scratch.Rest.Stir(body);
        Place(body);
        if (!isMarked || !IsWithinLeeway(Scratch.MarkedAround[body], DiscOf(body)))
            MarkRows(body);
    }

    void WalkRow(std::size_t body)
    {
        Disc listed = DiscOf(body);
        // One that has not stirred stands apart from all others that have not.
        if (!Scratch.Marks.Take(body, Scratch.Row) || Scratch.Rest.IsStirred(body))
            ListRow(body, static_cast<std::int32_t>(body));
        for (std::size_t n = 0; n < Scratch.Row.Bodies().size();)
        {
            const std::int32_t other = Scratch.Row.Bodies()[n++];
            if (!CollidePair(body, static_cast<std::size_t>(other)))
                continue;
            const bool isWhole = Scratch.Rest.IsStirred(body); // otherwise those that are not stirred were left out
            Scratch.Rest.Stir(body);
            Place(body);
            Pushed(static_cast<std::size_t>(other));
            if (isWhole && IsWithinLeeway(listed, DiscOf(body)))
                continue;
            listed = DiscOf(body);
            ListRow(body, other);
            n = 0;
        }
    }

    // For another number of objects.
    void MakeRoom()
    {
        Scratch.Grid.Reset(Objects.size());
        Scratch.Shapes.resize(Objects.size());
        Scratch.MarkedAround.resize(Objects.size());
        Scratch.Marks.Reset(Objects.size());
        Scratch.Row.Reserve(Objects.size());
        Scratch.Found.Reserve(Objects.size());
    }

    void Walk()
    {
        ListCars(Sim);
        Scratch.Rest.Compare(Objects, Scratch.Cars);
        if (Scratch.Rest.IsOtherList())
            MakeRoom();
        Scratch.Marks.Begin();
        for (const std::int32_t body : Scratch.Rest.StirredAtFirst())
            Place(static_cast<std::size_t>(body));
        for (const std::int32_t body : Scratch.Rest.StirredAtFirst())
            if (Scratch.Rest.IsBody(static_cast<std::size_t>(body)))
                MarkRows(static_cast<std::size_t>(body));
        for (std::size_t row = Scratch.Marks.Next(0); row < Objects.size(); row = Scratch.Marks.Next(row + 1))
        {
            FirstRow = static_cast<std::int32_t>(row) + 1;
            WalkRow(row);
        }
    }
};
}

void Collide(Simulation& sim)
{
    PairWalk{sim}.Walk();
}
}
