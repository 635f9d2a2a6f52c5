// SPDX-License-Identifier: Zlib
#include "tools/preview/Legend.h"

#include "base/Numbers.h"
#include "typeface/Typeface.h"

#include <vector>

namespace preview
{
namespace
{
constexpr double LegendSize = 14; // of letters
constexpr double EntryGap = 18, EntryHeight = 22, Swatch = 12, TextGap = 6, LegendMargin = 8;

struct Layout
{
    std::vector<Spot> Places; // of the entries, from the legend's top
    double Height = 0;
};

Layout LayOut(std::span<const LegendEntry> entries, double width)
{
    Layout layout;
    Spot pen{LegendMargin, LegendMargin};
    for (const LegendEntry& entry : entries)
    {
        const double length = Swatch + TextGap + typeface::Width(entry.Text, LegendSize);
        if (pen.X > LegendMargin && pen.X + length > width - LegendMargin)
            pen = {LegendMargin, pen.Y + EntryHeight};
        layout.Places.push_back(pen);
        pen.X += length + EntryGap;
    }
    layout.Height = pen.Y + EntryHeight + LegendMargin;
    return layout;
}
}

Canvas WithLegend(const Canvas& picture, std::span<const LegendEntry> entries)
{
    const Layout layout = LayOut(entries, picture.Width());
    Canvas result(picture.Width(), picture.Height() + base::RoundEven(layout.Height), Paper);
    result.Paste(picture.View(), 0, 0);
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        const double left = layout.Places[i].X, top = picture.Height() + layout.Places[i].Y;
        result.Fill({left, top + 2}, {left + Swatch, top + 2 + Swatch}, {entries[i].Colour, 1});
        result.Write({left + Swatch + TextGap, top}, LegendSize, Lettering, entries[i].Text);
    }
    return result;
}
}
