// SPDX-License-Identifier: Zlib
// Compares two 24-bit bitmap files byte by byte.
//   compare-pictures EXPECTED ACTUAL DIFFERENCE [TOLERANCE]
// TOLERANCE: how far a channel may be off (default 0). On a difference says how many pixels differ, the first of them
// and the largest distance, and writes a picture of the distances (brightened) to DIFFERENCE. Exit status 0 alike, 1
// not.
#include "base/BitmapFile.h"
#include "base/Files.h"
#include "render/PicArray.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{
struct ToStandardError final : base::MessageSink
{
    void ShowMessage(base::Icon, const std::string& title, const std::string& text) override
    {
        std::fprintf(stderr, "%s: %s\n", title.c_str(), text.c_str());
    }
};

struct Difference
{
    long Pixels = 0;
    int Largest = 0, FirstX = -1, FirstRow = -1;
};

// Fills `shown` with the distances, eight times brighter.
Difference Compare(const render::Picture& a, const render::Picture& b, int tolerance, render::PicArray2D& shown)
{
    Difference difference;
    for (int row = 0; row < a.Info.Height; ++row)
        for (int x = 0; x < a.Info.Width; ++x)
        {
            int worst = 0;
            for (int channel = 0; channel < 3; ++channel)
            {
                const int at = 3 * x + channel;
                const int distance = std::abs(a.Pixels.Row(row)[at] - b.Pixels.Row(row)[at]);
                shown.Row(row)[at] = static_cast<std::uint8_t>(std::min(255, 8 * distance));
                worst = std::max(worst, distance);
            }
            difference.Largest = std::max(difference.Largest, worst);
            if (worst > tolerance && difference.Pixels++ == 0)
            {
                difference.FirstX = x;
                difference.FirstRow = row;
            }
        }
    return difference;
}
}

int main(int count, char** words)
{
    if (count < 4)
    {
        std::fprintf(stderr, "usage: compare-pictures EXPECTED ACTUAL DIFFERENCE [TOLERANCE]\n");
        return 2;
    }
    const base::Files files(std::filesystem::current_path());
    ToStandardError messages;
    render::Picture expected, actual;
    if (!render::LoadPicArray2D(messages, files, words[1], expected.Info, expected.Pixels) ||
        !render::LoadPicArray2D(messages, files, words[2], actual.Info, actual.Pixels))
        return 1;
    if (expected.Info.Width != actual.Info.Width || expected.Info.Height != actual.Info.Height)
    {
        std::printf("expected %d x %d, got %d x %d\n", expected.Info.Width, expected.Info.Height, actual.Info.Width,
                    actual.Info.Height);
        return 1;
    }
    render::PicArray2D shown;
    shown.Allocate(actual.Info.Height, actual.Info.RowBytes);
    const Difference difference = Compare(expected, actual, count > 4 ? std::atoi(words[4]) : 0, shown);
    if (difference.Pixels == 0)
        return 0;
    std::printf("%ld pixels differ, the first at column %d, row %d from the bottom; the largest distance is %d\n",
                difference.Pixels, difference.FirstX, difference.FirstRow, difference.Largest);
    std::ofstream(words[3], std::ios::binary) << base::BitmapFile(actual.Info.Width, actual.Info.Height, shown.Bytes);
    std::printf("expected: %s\nactual:   %s\ndistance: %s\n", words[1], words[2], words[3]);
    return 1;
}
