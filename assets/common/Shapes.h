// SPDX-License-Identifier: Zlib
// assets/common/Shapes.h: filled shapes and lines on a canvas or a mask. Units: pixels; edges are anti-aliased, and
// what lies outside the picture is cut off.
#pragma once
#include "assets/common/Canvas.h"
#include "assets/common/Vectors.h"

#include <functional>
#include <span>

namespace assets
{
// What a shape does with each pixel it touches: (x, y, coverage above 0, at most 1).
using Cover = std::function<void(int, int, double)>;

// The general forms call `put` once for every touched pixel of a width x height area.
void CoverPolygon(int width, int height, std::span<const Point> outline, const Cover& put); // odd-even inside
// `softness` is the width of the edge, at least 1.
void CoverDisc(int width, int height, Point centre, double radius, double softness, const Cover& put);
// Round joints and ends; a line thinner than a pixel pales instead.
void CoverStroke(int width, int height, std::span<const Point> line, double thickness, bool closed, const Cover& put);

// Painted over what is there.
void FillPolygon(Canvas& canvas, std::span<const Point> outline, Rgb colour, double opacity = 1);
void FillRect(Canvas& canvas, double x, double y, double width, double height, Rgb colour, double opacity = 1);
void FillDisc(Canvas& canvas, Point centre, double radius, Rgb colour, double opacity = 1, double softness = 1);
void FillEllipse(Canvas& canvas, Point centre, double radiusX, double radiusY, Rgb colour, double opacity = 1);
void Stroke(Canvas& canvas, std::span<const Point> line, double thickness, Rgb colour, double opacity = 1,
            bool closed = false);

// The larger of what is there and the coverage times `value`.
void FillPolygon(Mask& mask, std::span<const Point> outline, double value = 1);
void FillDisc(Mask& mask, Point centre, double radius, double value = 1, double softness = 1);
void Stroke(Mask& mask, std::span<const Point> line, double thickness, double value = 1, bool closed = false);
}
