// SPDX-License-Identifier: Zlib
#include "tools/drive/Walk.h"

#include "world/Race.h"

#include <gtest/gtest.h>

namespace
{
using drive::Outcome;

// Two meshes' worth of everything a path can lead through.
struct Walk : testing::Test
{
    render::SlotList<render::Obj> Objects;
    std::vector<world::Player> Players{2};
    std::array<std::int16_t, 3> Bindings = {17, 9, 66};
    std::string Clipboard = "testo";
    render::Particle Particle;
    std::int16_t Count = 5;

    Walk()
    {
        Objects.Add();
        render::Obj& object = Objects.At(0);
        object.X = 0.1f;
        object.Sfere.resize(1);
        object.Sfere[0].Links = {{20, 1, 2}, {3, 4, 5}};
        object.Mesh.resize(1);
        object.Mesh[0].Pts = {2, 3, std::vector<render::MeshPt>(6)};
        object.Mesh[0].Pts.At(1, 2).U = 77;
    }

    Outcome Follow(std::string_view path, const drive::Visit& use)
    {
        const auto steps = drive::ParsePath(path);
        if (!steps)
            return Outcome::NoSuchPath;
        drive::Merged roots(drive::Named{"objects", Objects}, drive::Named{"players", Players},
                            drive::Named{"keys", drive::Merged(drive::Named{"Bindings", Bindings})},
                            drive::Named{"particle", Particle}, drive::Named{"clipboard", Clipboard},
                            drive::Named{"Count", Count, false});
        return drive::Follow(drive::ValueOf(roots), *steps, use);
    }

    std::string Peek(std::string_view path)
    {
        std::string json;
        return Follow(path, drive::Reader(json)) == Outcome::Done ? json : "no such path";
    }
    Outcome Poke(std::string_view path, std::string_view text) { return Follow(path, drive::Writer(text)); }
};
}

TEST_F(Walk, ReadsScalarsThroughListsAndRecords)
{
    EXPECT_EQ(Peek("objects[0].X"), "0.1");
    EXPECT_EQ(Peek("objects[0].Mesh[0].Pts[1][2].U"), "77");
    EXPECT_EQ(Peek("keys.Bindings[2]"), "66");
    EXPECT_EQ(Peek("clipboard"), "\"testo\"");
}

TEST_F(Walk, ReadsWholeRecordsAndArrays)
{
    EXPECT_EQ(Peek("keys"), R"({"Bindings": [17, 9, 66]})");
    EXPECT_EQ(Peek("objects[0].Mesh[0].Pts[1][2]"), R"({"X": 0, "Y": 0, "Z": 0, "U": 77, "V": 0})");
    EXPECT_EQ(Peek("objects[0].Sfere[0]"),
              R"({"X": 0, "Y": 0, "Z": 0, "R": 0, "NumLinks": 2, "Links": [[20, 1, 2], [3, 4, 5]]})");
}

TEST_F(Walk, LinksAreTriples)
{
    EXPECT_EQ(Peek("objects[0].Sfere[0].Links[1]"), "[3, 4, 5]");
    EXPECT_EQ(Peek("objects[0].Sfere[0].Links[1][2]"), "5");
    EXPECT_EQ(Peek("objects[0].Sfere[0].Links[1][3]"), "no such path");
    EXPECT_EQ(Peek("objects[0].Sfere[0].Links[1].M"), "no such path");
}

TEST_F(Walk, WhatDoesNotExistIsNoPath)
{
    for (const char* path :
         {"", "objects[1].X", "objects[-1].X", "objects[4294967296].X", "objects[0]X", "objects[0].", "objects[0",
          "objects.X", "objects[0].x", "objects[0].X.Y", "objects[0].X[0]", "[0]", ".objects", "nothing", "objects[]",
          "objects[0].Mesh[0].Pts[2][0]", "objects[0].Mesh[0].Pts[0][3]", "keys.Bindings[3]", "objects [0]"})
        EXPECT_EQ(Peek(path), "no such path") << path;
}

TEST_F(Walk, SetsNumbersAndTexts)
{
    EXPECT_EQ(Poke("players[1].Speed", "-0.25"), Outcome::Done);
    EXPECT_EQ(Players[1].Speed, -0.25f);
    EXPECT_EQ(Poke("players[1].Lap", " 7 "), Outcome::Done);
    EXPECT_EQ(Players[1].Lap, 7);
    EXPECT_EQ(Poke("objects[0].Mesh[0].Pts[0][1].V", "-3"), Outcome::Done);
    EXPECT_EQ(Objects.At(0).Mesh[0].Pts.At(0, 1).V, -3);
    EXPECT_EQ(Poke("objects[0].Sfere[0].Links[0][1]", "9"), Outcome::Done);
    EXPECT_EQ(Objects.At(0).Sfere[0].Links[0].I, 9);
    EXPECT_EQ(Poke("clipboard", " due  parole "), Outcome::Done);
    EXPECT_EQ(Clipboard, " due  parole ");
    EXPECT_EQ(Poke("clipboard", ""), Outcome::Done);
    EXPECT_EQ(Clipboard, "");
}

TEST_F(Walk, CountsAreWhatTheListsHold)
{
    EXPECT_EQ(Peek("objects[0].NumMesh"), "1");
    EXPECT_EQ(Peek("objects[0].NumSfere"), "1");
    EXPECT_EQ(Peek("objects[0].Mesh[0].Rows"), "2");
    EXPECT_EQ(Peek("objects[0].Mesh[0].Cols"), "3");
    Objects.At(0).Sfere.resize(7);
    Objects.At(0).Sfere[0].Links.clear();
    EXPECT_EQ(Peek("objects[0].NumSfere"), "7");
    EXPECT_EQ(Peek("objects[0].Sfere[0].NumLinks"), "0");
}

TEST_F(Walk, PartsOfAColourAreFieldsOfTheRecord)
{
    EXPECT_EQ(Poke("objects[0].Mesh[0].ColG", "200"), Outcome::Done);
    EXPECT_EQ(Objects.At(0).Mesh[0].Col, (base::Rgb{0, 200, 0}));
    EXPECT_EQ(Peek("objects[0].Mesh[0].ColG"), "200");
    EXPECT_EQ(Poke("objects[0].Mesh[0].ColG", "256"), Outcome::BadValue);
    EXPECT_EQ(Peek("objects[0].Mesh[0].Col"), "no such path");
}

TEST_F(Walk, EnumerationsAreShownAndSetAsAnyNumber)
{
    EXPECT_EQ(Poke("particle.Kind", "-7"), Outcome::Done);
    EXPECT_EQ(Peek("particle.Kind"), "-7");
    EXPECT_EQ(Poke("particle.Kind", "2147483648"), Outcome::BadValue);
    EXPECT_EQ(Poke("particle.Kind", "3"), Outcome::Done);
    EXPECT_EQ(Particle.Kind, render::Fire);
}

TEST_F(Walk, AValueOutsideTheFieldsTypeChangesNothing)
{
    for (const char* text : {"32768", "-32769", "1.5", "", "x", "1 2", "NaN"})
        EXPECT_EQ(Poke("players[0].Lap", text), Outcome::BadValue) << text;
    EXPECT_EQ(Players[0].Lap, 0);
    for (const char* text : {"256", "-1"})
        EXPECT_EQ(Poke("players[0].Control", text), Outcome::BadValue) << text;
    EXPECT_EQ(Players[0].Control, 0);
    for (const char* text : {"1e39", "", "x", "1 2"})
        EXPECT_EQ(Poke("players[0].Speed", text), Outcome::BadValue) << text;
    EXPECT_EQ(Players[0].Speed, 0.0f);
}

TEST_F(Walk, CountsAndWholeRecordsCannotBeSet)
{
    EXPECT_EQ(Poke("Count", "4"), Outcome::ReadOnly);
    EXPECT_EQ(Poke("objects[0].NumMesh", "4"), Outcome::ReadOnly);
    EXPECT_EQ(Poke("objects[0].Mesh[0].Rows", "1"), Outcome::ReadOnly);
    EXPECT_EQ(Poke("objects[0].Sfere[0].NumLinks", "1"), Outcome::ReadOnly);
    EXPECT_EQ(Poke("objects[0]", "1"), Outcome::NotOneValue);
    EXPECT_EQ(Poke("players", "1"), Outcome::NotOneValue);
    EXPECT_EQ(Poke("objects[0].Sfere[0].Links[0]", "1"), Outcome::NotOneValue);
    EXPECT_EQ(Count, 5);
}
