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

// How far a body may go before it is put into the grid anew, and its neighbours are looked up again.
float Leeway(float radius)
{
    return 0.125f + std::fabs(radius) / 64.0f;
}

// Holds the disc as long as it goes no farther than the leeway, by more than any rounding.
Disc Widened(const Disc& disc)
{
    return {disc.X, disc.Z, disc.Radius + 1.0625f * Leeway(disc.Radius)};
}

bool IsWithin(const Disc& wide, const Disc& disc)
{
    return wide.Radius == Widened(disc).Radius &&
           std::fabs(static_cast<double>(wide.X) - disc.X) + std::fabs(static_cast<double>(wide.Z) - disc.Z) <=
               static_cast<double>(Leeway(disc.Radius));
}

// The walk over the pairs, row by row: a row is a body with all that come after it. In the grid a body covers all where
// it may go within its leeway; so whoever may touch a body was found when either of the two was looked around last, and
// is noted in the row of the first of them. Two that nothing has happened to stand apart, and are not noted.
struct PairWalk
{
    Simulation& Sim;
    TickScratch& Scratch = Sim.Scratch;
    const std::vector<render::Obj>& Objects = Sim.Scene.Objects.Items;

    std::int32_t FirstRow = 0; // of those that are still to be walked

    // The body stands where it did not stand before. True where the grid has it elsewhere now.
    bool Place(std::size_t body)
    {
        const render::Obj& object = Objects[body];
        Scratch.Shapes[body].Forget(object);
        if (!Scratch.Rest.IsBody(body))
        {
            Scratch.Grid.Remove(body);
            return true;
        }
        const Disc disc = {object.X, object.Z, object.Radius};
        if (IsWithin(Scratch.Grid.At(body), disc))
            return false;
        Scratch.Grid.Put(body, Widened(disc));
        return true;
    }

    void Note(std::int32_t a, std::int32_t b)
    {
        Scratch.Marks.MarkFor(static_cast<std::size_t>(std::min(a, b)), std::max(a, b));
    }

    // Finds whom the body may touch, of the rows that are still to be walked.
    void LookAround(std::int32_t body)
    {
        Scratch.Grid.Look(Scratch.Grid.At(static_cast<std::size_t>(body)), {FirstRow, LastBody()}, Scratch.Found);
    }

    // Of two that have stirred the first notes both.
    void NoteAtFirst(std::int32_t body)
    {
        LookAround(body);
        for (const std::int32_t found : Scratch.Found.Bodies())
            if (found > body || !Scratch.Rest.IsStirred(static_cast<std::size_t>(found)))
                Note(body, found);
    }

    // The body meets the rows behind the present one, and its own, from where it is now.
    void NoteAgain(std::int32_t body)
    {
        LookAround(body);
        for (const std::int32_t found : Scratch.Found.Bodies())
            if (found != body)
                Note(body, found);
    }

    // Lists who of the row may touch its body: those above `after`.
    void ListRow(std::size_t body, std::int32_t after)
    {
        Scratch.Grid.Look(Scratch.Grid.At(body), {after + 1, LastBody()}, Scratch.Row);
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

    // The body was pushed. True where others may be near it than those that were found around it.
    bool Pushed(std::size_t body)
    {
        const bool wasStirred = Scratch.Rest.IsStirred(body);
        Scratch.Rest.Stir(body);
        return Place(body) || !wasStirred;
    }

    void WalkRow(std::size_t body)
    {
        if (!Scratch.Marks.Take(body, Scratch.Row))
            ListRow(body, static_cast<std::int32_t>(body));
        for (std::size_t n = 0; n < Scratch.Row.Bodies().size();)
        {
            const std::int32_t other = Scratch.Row.Bodies()[n++];
            const auto second = static_cast<std::size_t>(other);
            if (!CollidePair(body, second))
                continue;
            const bool isElsewhere = Pushed(body);
            if (Pushed(second))
                NoteAgain(other);
            if (!isElsewhere)
                continue;
            ListRow(body, other);
            n = 0;
        }
    }

    std::int32_t LastBody() const { return static_cast<std::int32_t>(Objects.size()) - 1; }

    // For another number of objects.
    void MakeRoom()
    {
        Scratch.Grid.Reset(Objects.size());
        Scratch.Shapes.resize(Objects.size());
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
            NoteAtFirst(body);
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
