// SPDX-License-Identifier: Zlib
// assets/sound/score/Line.h: notes in musical time.
#pragma once
#include <vector>

namespace assets::sound
{
struct Note
{
    double Start = 0, Length = 1;  // quarter notes from the beginning of the piece
    double Key = 69, FromKey = 69; // 69 is a4, 440 Hz; FromKey differs where the note is slid into
    double Force = 0.75;           // 0 .. 1
    double Bright = 0;             // octaves by which filters open further
};

// What one player plays. Notes may overlap and need no order.
struct Line
{
    std::vector<Note> Notes;

    Line& operator+=(const Line& other)
    {
        Notes.insert(Notes.end(), other.Notes.begin(), other.Notes.end());
        return *this;
    }
};

inline Line operator+(Line a, const Line& b)
{
    return a += b;
}
}
