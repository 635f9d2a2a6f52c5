// SPDX-License-Identifier: Zlib
#include "render/PicArray.h"

#include "tests/support/Messages.h"
#include "tests/support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <utility>

using render::PicArray2D;
using render::PicInfo;
using support::BitmapHeader;

namespace
{
struct LoadPic : testing::Test
{
    support::TempFolder Folder;
    support::Messages Messages;
    PicInfo Info;
    PicArray2D Pixels;

    bool Load(const std::string& bytes)
    {
        Folder.Write("a.bmp", bytes);
        return render::LoadPicArray2D(Messages, Folder.Files(), "a.bmp", Info, Pixels);
    }
    void ExpectError(int number, const std::string& text) const
    {
        ASSERT_EQ(Messages.Boxes.size(), 1u);
        EXPECT_EQ(Messages.Boxes[0].Icon, base::Icon::Critical);
        EXPECT_EQ(Messages.Boxes[0].Title, "Errore " + std::to_string(number));
        EXPECT_EQ(Messages.Boxes[0].Text, text + " in LoadPicArray2D");
    }
    void ExpectEmpty() const
    {
        EXPECT_TRUE(Pixels.Empty());
        EXPECT_EQ(Info.Width, 0);
        EXPECT_EQ(Info.Height, 0);
    }
};

// Two rows of one pixel each and a padding byte.
const std::string TwoRows("\1\2\3\0\4\5\6\0", 8);
}

TEST(WidthBytes, RowsArePaddedToFourBytes)
{
    support::Messages messages;
    const int expected[][2] = {{1, 4}, {2, 8}, {3, 12}, {4, 12}, {5, 16}, {0, 0}};
    for (const auto& pair : expected)
        EXPECT_EQ(render::WidthBytes(messages, pair[0]), pair[1]) << pair[0];
    EXPECT_TRUE(messages.Boxes.empty());
}

TEST(WidthBytes, OverflowIsReportedWithoutTheBlank)
{
    support::Messages messages;
    EXPECT_EQ(render::WidthBytes(messages, std::numeric_limits<std::int32_t>::max()), 0);
    ASSERT_EQ(messages.Boxes.size(), 1u);
    EXPECT_EQ(messages.Boxes[0].Title, "Errore 6");
    EXPECT_EQ(messages.Boxes[0].Text, "Overflowin WidthBytes");
    EXPECT_EQ(render::WidthBytes(messages, std::numeric_limits<std::int32_t>::min()), 0);
    EXPECT_EQ(messages.Boxes.size(), 2u);
    EXPECT_EQ(render::WidthBytes(messages, 715827881), 2147483644); // the widest that fits
    EXPECT_EQ(messages.Boxes.size(), 2u);
}

TEST(MakePicArray2D, FillsTheHeaderAndClearsThePixels)
{
    support::Messages messages;
    render::PicHeader header;
    header.biWidth = 5;
    header.biHeight = 3;
    header.biClrUsed = 9;
    PicArray2D pixels;
    pixels.Bytes = {1, 2, 3};
    render::MakePicArray2D(messages, header, pixels);
    EXPECT_EQ(header.biSize, 40);
    EXPECT_EQ(header.biWidth, 5);
    EXPECT_EQ(header.biHeight, 3);
    EXPECT_EQ(header.biPlanes, 1);
    EXPECT_EQ(header.biBitCount, 24);
    EXPECT_EQ(header.biCompression, 0);
    EXPECT_EQ(header.biClrUsed, 0);
    EXPECT_EQ(sizeof(header), 40u);
    EXPECT_EQ(pixels.Rows, 3);
    EXPECT_EQ(pixels.RowBytes, 16);
    EXPECT_EQ(pixels.Bytes, std::vector<std::uint8_t>(48, 0));
}

TEST(MakePicArray2D, ASizeThatCannotBeIsReported)
{
    support::Messages messages;
    PicArray2D pixels;
    for (const std::int32_t width : {0, -4})
    {
        render::PicHeader header;
        header.biWidth = width;
        header.biHeight = 3;
        render::MakePicArray2D(messages, header, pixels);
        EXPECT_TRUE(pixels.Empty());
        EXPECT_EQ(messages.Boxes.back().Text, "Indice non compreso nell'intervallo in MakePicArray2D");
    }
    render::PicHeader header;
    header.biWidth = header.biHeight = 100000;
    render::MakePicArray2D(messages, header, pixels);
    EXPECT_TRUE(pixels.Empty());
    EXPECT_EQ(messages.Boxes.back().Text, "Memoria esaurita in MakePicArray2D");
}

TEST_F(LoadPic, RowsStayInFileOrder)
{
    ASSERT_TRUE(Load(BitmapHeader(1, 2) + TwoRows));
    EXPECT_EQ(Info.Width, 1);
    EXPECT_EQ(Info.Height, 2);
    EXPECT_EQ(Info.RowBytes, 4);
    EXPECT_EQ(Info.Planes, 1);
    EXPECT_EQ(Info.BitCount, 24);
    EXPECT_EQ(Pixels.Rows, 2);
    EXPECT_EQ(Pixels.Row(0)[0], 1); // the bottom row, blue
    EXPECT_EQ(Pixels.Row(1)[2], 6); // red of the row above
    EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(LoadPic, TheDataOffsetIsNotUsedSoSuchAFileLoadsShifted)
{
    std::string bytes = BitmapHeader(1, 2);
    bytes[10] = 58;
    ASSERT_TRUE(Load(bytes + std::string("\x9\x9\x9\x9", 4) + TwoRows));
    EXPECT_EQ(Pixels.Row(0)[0], 9); // the four bytes between header and pixels
    EXPECT_EQ(Pixels.Row(1)[0], 1);
}

TEST_F(LoadPic, PlanesAndBitsAreTakenAsTheyStand)
{
    std::string bytes = BitmapHeader(1, 2);
    bytes[26] = 2;
    bytes[28] = 8;
    bytes[29] = 1;
    ASSERT_TRUE(Load(bytes + TwoRows));
    EXPECT_EQ(Info.Planes, 2);
    EXPECT_EQ(Info.BitCount, 264);
}

// More rows than are read at a time.
TEST_F(LoadPic, EveryByteOfALargeFileStandsInItsPlace)
{
    constexpr int Width = 501, Height = 333, RowBytes = 1504;
    std::string rows(static_cast<std::size_t>(RowBytes) * Height, '\0');
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = static_cast<char>(i * 7 + i / 251);
    ASSERT_TRUE(Load(BitmapHeader(Width, Height) + rows + "behind"));
    ASSERT_EQ(Pixels.Rows, Height);
    ASSERT_EQ(Pixels.RowBytes, RowBytes);
    EXPECT_TRUE(std::equal(rows.begin(), rows.end(), Pixels.Bytes.begin(), Pixels.Bytes.end(),
                           [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; }));

    const std::size_t present = rows.size() - 100'000; // the end is missing, in the middle of a row
    EXPECT_FALSE(Load(BitmapHeader(Width, Height) + rows.substr(0, present)));
    ExpectError(62, "Input oltre la fine del file");
    ASSERT_EQ(Pixels.Bytes.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        ASSERT_EQ(Pixels.Bytes[i], i < present ? static_cast<std::uint8_t>(rows[i]) : 0) << i;
}

TEST(PicArray2D, RowsAreAddedToWhatWasReserved)
{
    PicArray2D pixels;
    pixels.Allocate(2, 4);
    pixels.Reserve(3, 8);
    EXPECT_TRUE(pixels.Empty());
    EXPECT_EQ(pixels.Rows, 0);
    const std::uint8_t* const first = pixels.AddRows(1).data();
    EXPECT_EQ(first, pixels.Row(0));
    pixels.Row(0)[7] = 9;
    const std::span<std::uint8_t> more = pixels.AddRows(2);
    EXPECT_EQ(more.size(), 16u);
    EXPECT_EQ(more.data(), pixels.Row(1));
    EXPECT_EQ(first, pixels.Row(0)); // nothing was moved
    EXPECT_EQ(pixels.Rows, 3);
    EXPECT_EQ(pixels.Row(0)[7], 9);
    EXPECT_EQ(more[15], 0);
    for (const auto& [rows, rowBytes] : {std::pair{0, 4}, {4, 0}, {16384, 100000}})
        EXPECT_THROW(pixels.Reserve(rows, rowBytes), base::RuntimeError);
}

TEST_F(LoadPic, AMissingFileIsError53)
{
    Pixels.Allocate(1, 4);
    EXPECT_FALSE(render::LoadPicArray2D(Messages, Folder.Files(), "none.bmp", Info, Pixels));
    ExpectError(53, "Impossibile trovare il file");
    ExpectEmpty();
}

TEST_F(LoadPic, AHeaderCutShortIsError62)
{
    EXPECT_FALSE(Load(BitmapHeader(1, 2).substr(0, 53)));
    ExpectError(62, "Input oltre la fine del file");
    ExpectEmpty();
}

TEST_F(LoadPic, MissingRowsAreBlack)
{
    EXPECT_FALSE(Load(BitmapHeader(1, 3) + TwoRows.substr(0, 5)));
    ExpectError(62, "Input oltre la fine del file");
    ASSERT_EQ(Pixels.Rows, 3);
    EXPECT_EQ(Pixels.Row(0)[2], 3);
    EXPECT_EQ(Pixels.Row(1)[0], 4);
    EXPECT_EQ(Pixels.Row(1)[1], 0);
    EXPECT_EQ(Pixels.Row(2)[0], 0);
    EXPECT_EQ(Info.Height, 3);
}

TEST_F(LoadPic, SizesOutsideThePossibleAreError9)
{
    const std::int32_t sizes[][2] = {
        {0, 2}, {1, 0}, {-1, 2}, {1, -2}, {16385, 1}, {1, 16385}, {std::numeric_limits<std::int32_t>::max(), 1}};
    for (const auto& size : sizes)
    {
        Messages.Boxes.clear();
        EXPECT_FALSE(Load(BitmapHeader(size[0], size[1]) + TwoRows));
        ExpectError(9, "Indice non compreso nell'intervallo");
        ExpectEmpty();
    }
}

// A claim of 805 MB behind a tiny file must not be paid for.
TEST_F(LoadPic, AClaimOutOfProportionIsError7)
{
    EXPECT_FALSE(Load(BitmapHeader(16384, 16384) + TwoRows));
    ExpectError(7, "Memoria esaurita");
    ExpectEmpty();
}

TEST_F(LoadPic, ALargeClaimWithinProportionKeepsItsBlackRows)
{
    EXPECT_FALSE(Load(BitmapHeader(4096, 4096) + TwoRows)); // 48 MB
    ExpectError(62, "Input oltre la fine del file");
    EXPECT_EQ(Pixels.Rows, 4096);
}

TEST(PicArrayKill, TheSharedPixelsStayWithTheirOwner)
{
    const auto picture = std::make_shared<const render::Picture>();
    render::PicReference reference = picture;
    render::PicArrayKill(reference);
    EXPECT_EQ(reference, nullptr);
    EXPECT_EQ(picture.use_count(), 1);
    render::PicArrayKill(reference); // once more does no harm
}
