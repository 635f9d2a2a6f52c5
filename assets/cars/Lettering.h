// SPDX-License-Identifier: Zlib
// assets/cars/Lettering.h: words and numbers as areas, for painting on a body. Lengths are metres on the car.
#pragma once
#include "typeface/Typeface.h"

#include <string_view>
#include <vector>

namespace assets::cars
{
class Lettering
{
public:
    // `weight` and `slant` as in typeface/Typeface.h; `height` of a capital letter; the text is centred on (0, 0), x to
    // the right and y up, in the same unit.
    Lettering(std::string_view text, double height, double weight, double slant = 0);
    // Whether the point lies on the ink, fattened by `border`.
    bool Inside(double x, double y, double border = 0) const;

private:
    std::vector<typeface::Segment> Strokes;
    double Scale, CentreX, CentreY;
};
}
