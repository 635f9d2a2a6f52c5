// SPDX-License-Identifier: Zlib
#include "tools/preview/Preview.h"
#include "base/Pixels.h"
#include "tests/support/SmallWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <png.h>

#include <cstdlib>
#include <sstream>
#include <vector>

namespace
{
using testing::HasSubstr;

struct Ending
{
    int Status = 0;
    std::string Out, Complaints;
};

Ending Call(const std::vector<std::string>& words)
{
    const std::vector<std::string_view> views(words.begin(), words.end());
    std::ostringstream out, complaints;
    const int status = preview::Run(views, "velkar-preview", out, complaints);
    return {status, out.str(), complaints.str()};
}

// A PNG file as it is read back: pixels of red, green and blue, the top row first.
struct Picture
{
    int Width = 0, Height = 0;
    std::vector<std::uint8_t> Bytes;

    explicit Picture(const std::filesystem::path& file)
    {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        if (png_image_begin_read_from_file(&image, file.string().c_str()) == 0)
        {
            ADD_FAILURE() << file << " is no PNG file: " << image.message;
            return;
        }
        image.format = PNG_FORMAT_RGB;
        Bytes.resize(PNG_IMAGE_SIZE(image));
        EXPECT_NE(png_image_finish_read(&image, nullptr, Bytes.data(), 0, nullptr), 0) << image.message;
        Width = static_cast<int>(image.width);
        Height = static_cast<int>(image.height);
    }

    base::Rgb At(int x, int y) const
    {
        const std::uint8_t* pixel = &Bytes.at(static_cast<std::size_t>(y * Width + x) * 3);
        return {pixel[0], pixel[1], pixel[2]};
    }
    // Pixels of a rectangle that are nearly of that colour.
    int Count(base::Rgb colour, int left, int top, int width, int height, int tolerance = 30) const
    {
        int count = 0;
        for (int y = top; y < top + height; ++y)
            for (int x = left; x < left + width; ++x)
            {
                const base::Rgb at = At(x, y);
                if (std::abs(at.R - colour.R) <= tolerance && std::abs(at.G - colour.G) <= tolerance &&
                    std::abs(at.B - colour.B) <= tolerance)
                    ++count;
            }
        return count;
    }
};

struct PreviewTest : testing::Test
{
    support::TempFolder Folder;
    std::string Out = (Folder.Path / "out.png").string();

    // Nothing is left but what the test put there.
    void ExpectNothingWritten(std::ptrdiff_t files = 0) const
    {
        const std::filesystem::directory_iterator begin(Folder.Path);
        EXPECT_EQ(std::distance(begin, std::filesystem::directory_iterator()), files);
    }
};

// A pillar of two crossing flat-coloured sheets, 2 high: to be seen from everywhere.
constexpr const char* Pillar = "3DM - VER 1.0.0\n"
                               "MakeObj,0,0,0,0,0,2,0,0,1\n"
                               "SetObjR,3\n"
                               "EditObjMesh,0,2,2,65280\n"
                               "EditObjMeshPt,0,0,0,-1,0,-1,0,0\nEditObjMeshPt,0,0,1,-1,2,-1,0,0\n"
                               "EditObjMeshPt,0,1,0,1,0,1,0,0\nEditObjMeshPt,0,1,1,1,2,1,0,0\n"
                               "EditObjMesh,1,2,2,65280\n"
                               "EditObjMeshPt,1,0,0,-1,0,1,0,0\nEditObjMeshPt,1,0,1,-1,2,1,0,0\n"
                               "EditObjMeshPt,1,1,0,1,0,-1,0,0\nEditObjMeshPt,1,1,1,1,2,-1,0,0\n";
}

TEST_F(PreviewTest, HelpIsPrintedAndNothingElseDone)
{
    const Ending ending = Call({"map", "--help"});
    EXPECT_EQ(ending.Status, 0);
    EXPECT_THAT(ending.Out, HasSubstr("usage: velkar-preview turntable"));
    EXPECT_EQ(ending.Complaints, "");
}

TEST_F(PreviewTest, WrongCommandLinesEndWithTwo)
{
    const std::vector<std::pair<std::vector<std::string>, const char*>> wrong = {
        {{}, "which picture"},
        {{"film"}, "there is no picture 'film'"},
        {{"map"}, "--out FILE.png is missing"},
        {{"map", "--out"}, "--out needs a value"},
        {{"map", "--out", ""}, "--out needs a value"},
        {{"map", "here", "--out", Out}, "'here' is too much"},
        {{"map", "--out", Out, "--scale", "0"}, "--scale must be"},
        {{"map", "--out", Out, "--scale", "two"}, "not 'two'"},
        {{"map", "--out", Out, "--places", "3"}, "there is no option '--places' here"},
        {{"turntable", "--out", Out}, "which model"},
        {{"turntable", "a.3dm", "b.3dm", "--out", Out}, "'b.3dm' is too much"},
        {{"turntable", "a.3dm", "--out", Out, "--views", "chase"}, "--views must be a whole number"},
        {{"turntable", "a.3dm", "--out", Out, "--views", "1.5"}, "--views must be a whole number"},
        {{"turntable", "a.3dm", "--out", Out, "--size", "300"}, "WIDTHxHEIGHT"},
        {{"turntable", "a.3dm", "--out", Out, "--size", "300x9999"}, "--size must be"},
        {{"lap", "--out", Out, "--views", "chase,,side"}, "there is no view ''"},
        {{"lap", "--out", Out, "--views", "7"}, "there is no view '7'"},
        {{"lap", "--out", Out, "--places", "0"}, "--places must be"},
        {{"lap", "--out", Out, "--tile", "-5"}, "--tile must be"},
    };
    for (const auto& [words, complaint] : wrong)
    {
        const Ending ending = Call(words);
        EXPECT_EQ(ending.Status, 2) << complaint;
        EXPECT_THAT(ending.Complaints, HasSubstr(complaint));
        EXPECT_EQ(ending.Out, "");
    }
    ExpectNothingWritten();
}

TEST_F(PreviewTest, ATurntableShowsTheModelInEveryTile)
{
    Folder.Write("pillar.3dm", Pillar);
    const std::string model = (Folder.Path / "pillar.3dm").string();
    const Ending ending = Call({"turntable", model, "--out", Out, "--views", "6", "--size", "100x80", "--root", "."});
    ASSERT_EQ(ending.Status, 0) << ending.Complaints;
    const Picture picture(Out);
    ASSERT_EQ(picture.Width, 6 + 3 * 106);
    ASSERT_EQ(picture.Height, 6 + 4 * 98);
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column)
        {
            const int left = 6 + column * 106, top = 6 + row * 98;
            EXPECT_GT(picture.Count({0, 235, 0}, left, top, 100, 80), 250) << row << " " << column;
            EXPECT_EQ(picture.Count({0, 235, 0}, left, top, 2, 80), 0) << "cut off " << row << " " << column;
            EXPECT_EQ(picture.Count({0, 235, 0}, left, top, 100, 2), 0) << "cut off " << row << " " << column;
        }
}

TEST_F(PreviewTest, ModelsThatAreMissingOrBrokenAreRefused)
{
    const Ending missing = Call({"turntable", "no_such.3dm", "--out", Out, "--root", Folder.Path.string()});
    EXPECT_EQ(missing.Status, 1);
    EXPECT_THAT(missing.Complaints, HasSubstr("there is no model no_such.3dm"));
    ExpectNothingWritten();

    Folder.Write("broken.3dm", "3DM - VER 1.0.0\nMakeObj,0,0\n");
    // Found below the root.
    const Ending broken = Call({"turntable", "broken.3dm", "--out", Out, "--root", Folder.Path.string()});
    EXPECT_EQ(broken.Status, 1);
    EXPECT_THAT(broken.Complaints, HasSubstr("Errore"));
    Folder.Write("empty.3dm", "3DM - VER 1.0.0\n");
    const Ending empty = Call({"turntable", "empty.3dm", "--out", Out, "--root", Folder.Path.string()});
    EXPECT_EQ(empty.Status, 1);
    EXPECT_THAT(empty.Complaints, HasSubstr("nothing to show"));
    ExpectNothingWritten(2);
}

TEST_F(PreviewTest, TheMapShowsACheckpointsCircleWhereItStands)
{
    const Ending ending = Call({"map", "--out", Out, "--scale", "2", "--root", VELKAR_SMALL});
    ASSERT_EQ(ending.Status, 0) << ending.Complaints;
    const Picture picture(Out);
    EXPECT_EQ(picture.Width, 400);
    EXPECT_GT(picture.Height, 400); // the legend
    // Checkpoint 1 is at (150, 150) with radius 10; z = 200 is the top row.
    constexpr base::Rgb yellow = {255, 222, 64};
    constexpr int x = 300, y = 100, radius = 20;
    EXPECT_GT(picture.Count(yellow, x + radius - 1, y - 3, 2, 6), 8);
    EXPECT_GT(picture.Count(yellow, x - 3, y - radius - 1, 6, 2), 8);
    EXPECT_EQ(picture.Count(yellow, x + radius + 3, y - 3, 10, 6), 0);
    // The line to checkpoint 2, below it at (150, 100).
    EXPECT_GT(picture.Count(yellow, x - 1, y + 50, 2, 1, 80), 0);
    // Its number, in the middle.
    EXPECT_GT(picture.Count(yellow, x - 8, y - 8, 16, 16), 5);
}

TEST_F(PreviewTest, TheMapShowsWhatWasDriven)
{
    Folder.Write("lines.csv", "tick,car,x,z,speed,heading,damage\n0,0,10,180,1,0,0\n1,0,90,180,1,0,0\n");
    const std::string lines = (Folder.Path / "lines.csv").string();
    const Ending ending = Call({"map", "--out", Out, "--scale", "2", "--lines", lines, "--root", VELKAR_SMALL});
    ASSERT_EQ(ending.Status, 0) << ending.Complaints;
    EXPECT_GT(Picture(Out).Count({240, 240, 240}, 30, 38, 140, 4), 100);
}

TEST_F(PreviewTest, BrokenLinesAndWorldsLeaveTheOldPictureAlone)
{
    Folder.Write("out.png", "the old one");
    Folder.Write("lines.csv", "tick,car,x,z,speed,heading,damage\n0,0,10\n");
    const std::string lines = (Folder.Path / "lines.csv").string();
    const Ending broken = Call({"map", "--out", Out, "--lines", lines, "--root", VELKAR_SMALL});
    EXPECT_EQ(broken.Status, 1);
    EXPECT_THAT(broken.Complaints, HasSubstr("lines.csv:2: there must be seven columns"));
    const Ending missing = Call({"map", "--out", Out, "--root", (Folder.Path / "nowhere").string()});
    EXPECT_EQ(missing.Status, 1);
    EXPECT_THAT(missing.Complaints, HasSubstr("the game does not load:\n  Errore"));
    ExpectNothingWritten(2);
    EXPECT_EQ(Folder.Files().Read("out.png"), "the old one");
}

TEST_F(PreviewTest, APictureThatCannotBeWrittenIsSaid)
{
    const std::string out = (Folder.Path / "no_folder" / "out.png").string();
    const Ending ending = Call({"map", "--out", out, "--root", VELKAR_SMALL});
    EXPECT_EQ(ending.Status, 1);
    EXPECT_THAT(ending.Complaints, HasSubstr("cannot write"));
    ExpectNothingWritten();
}

TEST_F(PreviewTest, ALapHasARowAPlaceAndAColumnAView)
{
    const Ending ending = Call({"lap", "--out", Out, "--places", "3", "--views", "chase,6", "--size", "200x100",
                                "--tile", "100", "--root", VELKAR_SMALL});
    ASSERT_EQ(ending.Status, 0) << ending.Complaints;
    const Picture picture(Out);
    EXPECT_EQ(picture.Width, 6 + 2 * 106);
    EXPECT_EQ(picture.Height, 6 + 3 * 68);
    // The car, flat red, before the camera that follows it.
    for (int row = 0; row < 3; ++row)
        EXPECT_GT(picture.Count({230, 0, 0}, 6, 6 + row * 68, 100, 50), 5) << row;
}

TEST_F(PreviewTest, TheComputerDrivesTheLapAndGivesItUpWhereItCannot)
{
    const support::SmallWorld world;
    const std::vector<std::string> words = {"lap",    "--out",  Out,     "--places",   "2",      "--views",
                                            "driver", "--size", "64x64", "--computer", "--root", world.Path.string()};
    const Ending ending = Call(words);
    EXPECT_EQ(ending.Status, 0) << ending.Complaints;
    world.Write("data/maps/map_01/points.txt", "50,0,90,12\r\n150,0,90,0\r\n");
    const Ending stuck = Call(words);
    EXPECT_EQ(stuck.Status, 1);
    EXPECT_THAT(stuck.Complaints, HasSubstr("the computer does not get round"));
}
