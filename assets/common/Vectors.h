// SPDX-License-Identifier: Zlib
// assets/common/Vectors.h: places and directions on a plane and in space. The owner of a place says its unit and axes.
#pragma once

namespace assets
{
// On a picture, or on the ground seen from above (then Y is north).
struct Point
{
    double X = 0, Y = 0;
};

// From p to the nearest point of the segment from a to b, which may be one point.
double SegmentDistance(Point a, Point b, Point p);

// Y is up.
struct Vec3
{
    double X = 0, Y = 0, Z = 0;
};

inline Vec3 operator+(Vec3 a, Vec3 b)
{
    return {a.X + b.X, a.Y + b.Y, a.Z + b.Z};
}
inline Vec3 operator-(Vec3 a, Vec3 b)
{
    return {a.X - b.X, a.Y - b.Y, a.Z - b.Z};
}
inline Vec3 operator*(Vec3 a, double k)
{
    return {a.X * k, a.Y * k, a.Z * k};
}
double Dot(Vec3 a, Vec3 b);
Vec3 Cross(Vec3 a, Vec3 b);
Vec3 Unit(Vec3 a); // of a zero vector: straight up
}
