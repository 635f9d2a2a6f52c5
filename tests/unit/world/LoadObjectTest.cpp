// SPDX-License-Identifier: Zlib
#include "world/LoadObject.h"
#include "tests/support/Messages.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

namespace
{
const std::string Header = "3DM - VER 1.0.0\r\n";

struct LoadObject : testing::Test
{
    support::TempFolder Folder;
    support::Messages Messages;
    render::Scene Scene;

    std::int16_t Load(const std::string& text)
    {
        Folder.Write("data/obj/car.3dm", text);
        return world::LoadObject(Scene, Messages, Folder.Files(), "data\\obj\\car.3dm").Current;
    }

    // One message box, of an error in LoadObject.
    void ExpectError(const std::string& title, const std::string& text) const
    {
        ASSERT_EQ(Messages.Boxes.size(), 1u);
        EXPECT_EQ(Messages.Boxes[0].Icon, base::Icon::Critical);
        EXPECT_EQ(Messages.Boxes[0].Title, title);
        EXPECT_EQ(Messages.Boxes[0].Text, text + " in LoadObject");
    }
    void ExpectNoError() const
    {
        for (const support::Box& box : Messages.Boxes)
            ADD_FAILURE() << box.Title << ": " << box.Text;
    }
};
}

TEST_F(LoadObject, EveryCommandActsOnTheCurrentRecord)
{
    Folder.Write("data/obj/tex.bmp", support::Bitmap(2, 2, 1, 2, 3));
    EXPECT_EQ(Load(Header + "MakeTexture,<path>tex.bmp\r\n"
                            "MakeObj,1,2,3,0.5,0.25,2,1,1,7.5\r\n"
                            "SetObjR,4.5\r\n"
                            "EditObjSfere,0,1,2,3,0.75\r\n"
                            "AddSfereLink,0,1,2,3\r\nAddSfereLink,0,4,5,6\r\n"
                            "EditObjMesh,0,2,3,197121\r\n"
                            "EditObjMesh,1,2,2,-1,<path>tex.bmp\r\n"
                            "EditObjMeshPt,0,1,2,0.5,1.5,2.5,-7,8\r\n"),
              0);
    ExpectNoError();
    const render::Obj& object = Scene.Objects.At(0);
    EXPECT_EQ(object.X, 1.0f);
    EXPECT_EQ(object.Y, 2.0f);
    EXPECT_EQ(object.Z, 3.0f);
    EXPECT_EQ(object.AngleA, 0.5f);
    EXPECT_EQ(object.AngleB, 0.25f);
    EXPECT_EQ(object.Visible, 1);
    EXPECT_EQ(object.Mass, 7.5f);
    EXPECT_EQ(object.Radius, 4.5f);
    ASSERT_EQ(object.Sfere.size(), 1u);
    EXPECT_EQ(object.Sfere[0].Z, 3.0f);
    EXPECT_EQ(object.Sfere[0].R, 0.75f);
    ASSERT_EQ(object.Sfere[0].Links.size(), 2u);
    EXPECT_EQ(object.Sfere[0].Links[1].M, 4);
    EXPECT_EQ(object.Sfere[0].Links[1].J, 6);
    ASSERT_EQ(object.Mesh.size(), 2u);
    EXPECT_EQ(object.Mesh[0].Colour, 197121);
    EXPECT_EQ(object.Mesh[0].Col.R, 1);
    EXPECT_EQ(object.Mesh[0].Col.G, 2);
    EXPECT_EQ(object.Mesh[0].Col.B, 3);
    EXPECT_EQ(object.Mesh[0].Pts.At(1, 2).Y, 1.5f);
    EXPECT_EQ(object.Mesh[0].Pts.At(1, 2).U, -7);
    EXPECT_EQ(object.Mesh[0].Pts.At(1, 2).V, 8);
    EXPECT_EQ(object.Mesh[1].Colour, -1);
    EXPECT_EQ(object.Mesh[1].TexIndex, 0);
    EXPECT_EQ(Scene.Textures.Size(), 1);
    EXPECT_EQ(Scene.Textures.At(0).Path, "data\\obj\\tex.bmp");
}

TEST_F(LoadObject, PolylinesTakeTheirPoints)
{
    EXPECT_EQ(Load(Header + "MakePoly,2,65535,1\nEditPolyPt,1,4,5,6\n"), 0);
    ExpectNoError();
    const render::Poly& poly = Scene.Polys.At(0);
    EXPECT_EQ(poly.Visible, 1);
    EXPECT_EQ(poly.Col.R, 255);
    EXPECT_EQ(poly.Col.G, 255);
    EXPECT_EQ(poly.Col.B, 0);
    ASSERT_EQ(poly.Pts.size(), 2u);
    EXPECT_EQ(poly.Pts[1].Y, 5.0f);
}

TEST_F(LoadObject, LinesAndCommasAreInterchangeable)
{
    EXPECT_EQ(Load(Header + "MakeObj\n1\n2\n3\n0,0\n0,1\n1\n5\nEditObjSfere\n0\n1,2,3\n4"), 0);
    EXPECT_EQ(Load("3DM - VER 1.0.0,MakeObj,1,2,3,0,0,0,1,1,5,EditObjSfere,0,1,2,3,4"), 1);
    ExpectNoError();
    EXPECT_EQ(Scene.Objects.At(0).Sfere[0].R, 4.0f);
    EXPECT_EQ(Scene.Objects.At(1).Sfere[0].R, 4.0f);
    EXPECT_EQ(Scene.Objects.At(0).Mass, Scene.Objects.At(1).Mass);
}

TEST_F(LoadObject, WrongFirstFieldShowsOneMessageAndBuildsNothing)
{
    EXPECT_EQ(Load("3DM - VER 2.0.0\nMakeObj,0,0,0,0,0,0,0,1,1\n"), -1);
    ExpectError("Errore 514", "Formato file non supportato");
    EXPECT_EQ(Scene.Objects.Size(), 0);
}

TEST_F(LoadObject, TheFirstFieldIsComparedAsAWhole)
{
    EXPECT_EQ(Load("3dm - ver 1.0.0\n"), -1);
    EXPECT_EQ(Load("3DM - VER 1.0.0 \n"), -1);
    EXPECT_EQ(Messages.Boxes.size(), 2u);
}

TEST_F(LoadObject, HeaderAloneCreatesNothing)
{
    EXPECT_EQ(Load("3DM - VER 1.0.0"), -1);
    EXPECT_EQ(Load(Header), -1);
    EXPECT_EQ(Load(" \"3DM - VER 1.0.0\""), -1);
    ExpectNoError();
    EXPECT_EQ(Scene.Objects.Size(), 0);
}

TEST_F(LoadObject, UnknownKeywordKeepsWhatStandsBefore)
{
    EXPECT_EQ(Load(Header + "MakeObj,0,0,0,0,0,0,0,1,1\nFoo,1\nMakeObj,0,0,0,0,0,0,0,1,1\n"), 0);
    ExpectError("Errore 514", "'Foo' non è un'istruzione non valida");
    EXPECT_EQ(Scene.Objects.Size(), 1);
}

TEST_F(LoadObject, KeywordsAreCaseSensitive)
{
    Load(Header + "makeobj,0,0,0,0,0,0,0,1,1\n");
    ExpectError("Errore 514", "'makeobj' non è un'istruzione non valida");
}

TEST_F(LoadObject, AnEmptyLineIsAnEmptyKeyword)
{
    Load(Header + "\r\nMakeObj,0,0,0,0,0,0,0,1,1\r\n");
    ExpectError("Errore 514", "'' non è un'istruzione non valida");
}

TEST_F(LoadObject, MissingFilesAndFolders)
{
    Folder.Write("data/obj/other.3dm", "");
    EXPECT_EQ(world::LoadObject(Scene, Messages, Folder.Files(), "data\\obj\\none.3dm").Current, -1);
    EXPECT_EQ(world::LoadObject(Scene, Messages, Folder.Files(), "data\\none\\none.3dm").Current, -1);
    ASSERT_EQ(Messages.Boxes.size(), 2u);
    EXPECT_EQ(Messages.Boxes[0].Title, "Errore 53");
    EXPECT_EQ(Messages.Boxes[0].Text, "Impossibile trovare il file in LoadObject");
    EXPECT_EQ(Messages.Boxes[1].Title, "Errore 76");
    EXPECT_EQ(Messages.Boxes[1].Text, "Impossibile trovare il percorso in LoadObject");
}

TEST_F(LoadObject, AnEmptyFileEndsTooEarly)
{
    EXPECT_EQ(Load(""), -1);
    ExpectError("Errore 62", "Input oltre la fine del file");
}

TEST_F(LoadObject, ACutOffCommandEndsTooEarly)
{
    EXPECT_EQ(Load(Header + "MakeObj,1,2,3"), -1);
    ExpectError("Errore 62", "Input oltre la fine del file");
    EXPECT_EQ(Scene.Objects.Size(), 0);
}

TEST_F(LoadObject, MalformedAndLargeNumbers)
{
    EXPECT_EQ(Load(Header + "MakeObj,x,2,3,0,0,0,0,1,1\n"), -1);
    ExpectError("Errore 13", "Tipo non corrispondente");
    Messages.Boxes.clear();
    EXPECT_EQ(Load(Header + "MakeObj,1,2,3,0,0,32768,0,1,1\n"), -1);
    ExpectError("Errore 6", "Overflow");
    Messages.Boxes.clear();
    EXPECT_EQ(Load(Header + "MakeObj,1,2,3,0,0,0,0,256,1\n"), -1);
    ExpectError("Errore 6", "Overflow");
    EXPECT_EQ(Scene.Objects.Size(), 0);
}

TEST_F(LoadObject, EditingBeforeAnyObjectIsAnIndexError)
{
    for (const char* command : {"EditObjSfere,0,0,0,0,1", "SetObjR,1", "AddSfereLink,0,0,0,0", "EditObjMesh,0,2,2,0",
                                "EditObjMeshPt,0,0,0,0,0,0,0,0", "EditPolyPt,0,0,0,0"})
    {
        Messages.Boxes.clear();
        EXPECT_EQ(Load(Header + command), -1) << command;
        ExpectError("Errore 9", "Indice non compreso nell'intervallo");
    }
}

TEST_F(LoadObject, IndicesOutsideTheirListsAreIndexErrors)
{
    const std::string object = Header + "MakeObj,0,0,0,0,0,1,1,1,1\nEditObjMesh,0,2,3,0\n";
    for (const char* command :
         {"EditObjSfere,1,0,0,0,1", "EditObjSfere,-1,0,0,0,1", "AddSfereLink,1,0,0,0", "EditObjMesh,1,2,2,0",
          "EditObjMesh,-1,2,2,0", "EditObjMeshPt,1,0,0,0,0,0,0,0", "EditObjMeshPt,0,2,0,0,0,0,0,0",
          "EditObjMeshPt,0,0,3,0,0,0,0,0", "EditObjMeshPt,0,-1,0,0,0,0,0,0", "EditPolyPt,0,0,0,0",
          "EditObjMesh,0,0,2,0", "EditObjMesh,0,2,-1,0"})
    {
        Messages.Boxes.clear();
        Load(object + command);
        ExpectError("Errore 9", "Indice non compreso nell'intervallo");
        EXPECT_FALSE(HasFailure()) << command;
    }
}

TEST_F(LoadObject, NegativeCountsTakeNoSlot)
{
    for (const char* command :
         {"MakeObj,0,0,0,0,0,-1,0,1,1", "MakeObj,0,0,0,0,0,0,-1,1,1", "MakePoly,0,0,1", "MakePoly,-1,0,1"})
    {
        Messages.Boxes.clear();
        EXPECT_EQ(Load(Header + command), -1) << command;
        ExpectError("Errore 9", "Indice non compreso nell'intervallo");
    }
    EXPECT_EQ(Scene.Objects.Count, 0);
    EXPECT_EQ(Scene.Polys.Count, 0);
}

TEST_F(LoadObject, HugeListsAreRefusedBeforeTheyTakeMemory)
{
    EXPECT_EQ(Load(Header + "MakePoly,2147483647,0,1\n"), -1);
    ExpectError("Errore 7", "Memoria esaurita");
    Messages.Boxes.clear();
    EXPECT_EQ(Load(Header + "MakeObj,0,0,0,0,0,1,0,1,1\nEditObjMesh,0,32767,32767,0\n"), 0);
    ExpectError("Errore 7", "Memoria esaurita");
}

TEST_F(LoadObject, TheWholeSceneHasALimit)
{
    // Each grid is below the limit of a list, together they are above that of the scene.
    std::string text = Header + "MakeObj,0,0,0,0,0,20,0,1,1\n";
    for (int mesh = 0; mesh < 20; ++mesh)
        text += "EditObjMesh," + std::to_string(mesh) + ",2000,1600,0\n";
    EXPECT_EQ(Load(text), 0);
    ExpectError("Errore 7", "Memoria esaurita");
    EXPECT_LE(Scene.Bytes, render::MostBytes);
}

TEST_F(LoadObject, ANegativeShadeConsumesOneMoreField)
{
    Folder.Write("data/obj/tex.bmp", support::Bitmap(1, 1, 0, 0, 0));
    const std::string object = Header + "MakeObj,0,0,0,0,0,1,0,1,1\n";
    EXPECT_EQ(Load(object + "EditObjMesh,0,2,2,-5,<path>tex.bmp\nSetObjR,1\n"), 0);
    ExpectNoError();
    EXPECT_EQ(Scene.Objects.At(0).Mesh[0].Colour, -5);
    EXPECT_EQ(Load(object + "EditObjMesh,0,2,2,0,<path>tex.bmp\n"), 1);
    ExpectError("Errore 514", "'<path>tex.bmp' non è un'istruzione non valida");
}

TEST_F(LoadObject, ATextureIsLoadedOnceForItsPath)
{
    Folder.Write("data/obj/tex.bmp", support::Bitmap(1, 1, 0, 0, 0));
    Load(Header + "MakeTexture,<path>tex.bmp\nMakeTexture,data\\obj\\tex.bmp\nMakeTexture,<path>TEX.bmp\n"
                  "MakeObj,0,0,0,0,0,1,0,1,1\nEditObjMesh,0,2,2,-1,data\\obj\\TEX.bmp\n");
    ExpectNoError();
    EXPECT_EQ(Scene.Textures.Size(), 2); // the letter case counts
    EXPECT_EQ(Scene.Objects.At(0).Mesh[0].TexIndex, 1);
}

TEST_F(LoadObject, AFailingTextureIsReportedAndTheModelGoesOn)
{
    EXPECT_EQ(Load(Header + "MakeObj,0,0,0,0,0,1,0,1,1\nEditObjMesh,0,2,2,-1,<path>none.bmp\nSetObjR,3\n"), 0);
    ASSERT_EQ(Messages.Boxes.size(), 1u);
    EXPECT_EQ(Messages.Boxes[0].Text, "Impossibile trovare il file in LoadPicArray2D");
    EXPECT_EQ(Scene.Objects.At(0).Radius, 3.0f);
}

TEST_F(LoadObject, PathMarksAreReplacedEverywhereInAField)
{
    Load(Header + "MakeTexture,<path>x<path>\n");
    EXPECT_EQ(Scene.Textures.At(0).Path, "data\\obj\\xdata\\obj\\");
}

TEST_F(LoadObject, APathWithoutAFolderStandsForItself)
{
    Folder.Write("car.3dm", Header + "MakeTexture,<path>x\n");
    world::LoadObject(Scene, Messages, Folder.Files(), "car.3dm");
    EXPECT_EQ(Scene.Textures.At(0).Path, "car.3dmx");
}

TEST_F(LoadObject, LaterEditsBelongToTheLastObject)
{
    EXPECT_EQ(Load(Header + "MakeObj,0,0,0,0,0,0,0,1,1\nSetObjR,1\nMakeObj,0,0,0,0,0,0,0,1,1\nSetObjR,2\n"), 1);
    EXPECT_EQ(Scene.Objects.At(0).Radius, 1.0f);
    EXPECT_EQ(Scene.Objects.At(1).Radius, 2.0f);
}

TEST_F(LoadObject, EditObjSfereEmptiesTheLinks)
{
    Load(Header + "MakeObj,0,0,0,0,0,0,1,1,1\nEditObjSfere,0,0,0,0,1\nAddSfereLink,0,0,0,0\nEditObjSfere,0,0,0,0,2\n");
    EXPECT_EQ(Scene.Objects.At(0).Sfere[0].Links.size(), 0u);
}

TEST_F(LoadObject, TheUndamagedCopyIsKeptOnceTheModelIsComplete)
{
    Load(Header + "MakeObj,0,0,0,0,0,1,0,1,1\nEditObjMesh,0,2,2,0\nEditObjMeshPt,0,1,0,7,8,9,0,0\n"
                  "MakeObj,0,0,0,0,0,1,0,1,1\nEditObjMesh,0,1,1,0\nEditObjMeshPt,0,0,0,4,5,6,0,0\n");
    ExpectNoError();
    EXPECT_EQ(Scene.Objects.At(0).Mesh[0].Undamaged.At(1, 0).Y, 8.0f);
    EXPECT_EQ(Scene.Objects.At(1).Mesh[0].Undamaged.At(0, 0).Y, 5.0f);
}

TEST_F(LoadObject, TheUndamagedCopyIsKeptAlsoAfterAnError)
{
    Load(Header + "MakeObj,0,0,0,0,0,1,0,1,1\nEditObjMesh,0,2,2,0\nEditObjMeshPt,0,1,0,7,8,9,0,0\nFoo\n");
    ExpectError("Errore 514", "'Foo' non è un'istruzione non valida");
    EXPECT_EQ(Scene.Objects.At(0).Mesh[0].Undamaged.At(1, 0).Y, 8.0f);
}

TEST_F(LoadObject, BinaryBytesAreAFormatError)
{
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 37 & 255);
    EXPECT_EQ(Load(bytes), -1);
    ExpectError("Errore 514", "Formato file non supportato");
    Messages.Boxes.clear();
    EXPECT_EQ(Load(Header + bytes), -1);
    ASSERT_EQ(Messages.Boxes.size(), 1u);
    EXPECT_EQ(Messages.Boxes[0].Title, "Errore 514");
}

TEST_F(LoadObject, ObjectsBeyondThe16BitIndexOverflow)
{
    std::string text = Header;
    for (int i = 0; i < 32769; ++i)
        text += "MakeObj,0,0,0,0,0,0,0,1,1\n";
    EXPECT_EQ(Load(text), 32767);
    ExpectError("Errore 6", "Overflow");
}
