// common/Canvas.h: a float picture to paint on, and the writer of the game's bitmaps.
// Pixel (0, 0) is the bottom left one, as in the game's bitmaps; pixel (x, y) covers x .. x + 1, y .. y + 1.
// Colours are display values 0 to 1. Coordinates may lie outside the picture; what falls outside is cut off.
#pragma once
#include "common/Numbers.h"
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace assets
{
struct Rgb
{
    double R = 0, G = 0, B = 0;
};

inline Rgb operator+(Rgb a, Rgb b)
{
    return {a.R + b.R, a.G + b.G, a.B + b.B};
}
inline Rgb operator*(Rgb a, Rgb b)
{
    return {a.R * b.R, a.G * b.G, a.B * b.B};
}
inline Rgb operator*(Rgb a, double k)
{
    return {a.R * k, a.G * k, a.B * k};
}
inline Rgb Mix(Rgb a, Rgb b, double t)
{
    return {Lerp(a.R, b.R, t), Lerp(a.G, b.G, t), Lerp(a.B, b.B, t)};
}
// 0xRRGGBB, as one reads it in a paint program.
constexpr Rgb Hex(unsigned code)
{
    return {((code >> 16) & 255u) / 255.0, ((code >> 8) & 255u) / 255.0, (code & 255u) / 255.0};
}

struct Point
{
    double X = 0, Y = 0;
};

// One picture point. A is the coverage: 0 nothing painted yet, 1 wholly painted.
struct Pixel
{
    float R = 0, G = 0, B = 0, A = 0;
};

struct Canvas
{
    int Width = 0, Height = 0;
    std::vector<Pixel> Pixels;

    Canvas(int width, int height) : Width(width), Height(height), Pixels(Count(width, height)) {} // see-through
    Canvas(int width, int height, Rgb fill);

    bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < Width && y < Height; }
    // Must be inside.
    Pixel& At(int x, int y) { return Pixels[Index(x, y)]; }
    const Pixel& At(int x, int y) const { return Pixels[Index(x, y)]; }
    Rgb Colour(int x, int y) const;
    void Set(int x, int y, Rgb colour);
    // Paints over what is there with this opacity (0 to 1). Outside: nothing.
    void Blend(int x, int y, Rgb colour, double opacity);
    // Multiplies the colour that is there, faded by `amount`. For shadows and light.
    void Shade(int x, int y, Rgb factor, double amount = 1);

private:
    static std::size_t Count(int width, int height)
    {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
    std::size_t Index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) + static_cast<std::size_t>(x);
    }
};

// A grey picture: coverage, shadow or distance maps.
struct Mask
{
    int Width = 0, Height = 0;
    std::vector<float> Values;

    Mask(int width, int height, float fill = 0)
        : Width(width), Height(height), Values(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill)
    {
    }
    float& At(int x, int y)
    {
        return Values[static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) + static_cast<std::size_t>(x)];
    }
    float At(int x, int y) const
    {
        return Values[static_cast<std::size_t>(y) * static_cast<std::size_t>(Width) + static_cast<std::size_t>(x)];
    }
};

// What a shape does with each pixel it touches: (x, y, coverage 0 to 1).
using Cover = std::function<void(int, int, double)>;

// Shapes. Edges are anti-aliased. The general forms call `put` once for every touched pixel of a width x height area.
void CoverPolygon(int width, int height, std::span<const Point> outline, const Cover& put); // odd-even inside
void CoverDisc(int width, int height, Point centre, double radius, double softness, const Cover& put);
void CoverStroke(int width, int height, std::span<const Point> line, double thickness, bool closed, const Cover& put);

void FillPolygon(Canvas& canvas, std::span<const Point> outline, Rgb colour, double opacity = 1);
void FillRect(Canvas& canvas, double x, double y, double width, double height, Rgb colour, double opacity = 1);
// `softness` is the width of the edge in pixels, at least 1.
void FillDisc(Canvas& canvas, Point centre, double radius, Rgb colour, double opacity = 1, double softness = 1);
void FillEllipse(Canvas& canvas, Point centre, double radiusX, double radiusY, Rgb colour, double opacity = 1);
// A line of this thickness with round joints and ends.
void Stroke(Canvas& canvas, std::span<const Point> line, double thickness, Rgb colour, double opacity = 1,
            bool closed = false);

// The larger of what is there and the coverage times `value`.
void FillPolygon(Mask& mask, std::span<const Point> outline, double value = 1);
void FillDisc(Mask& mask, Point centre, double radius, double value = 1, double softness = 1);
void Stroke(Mask& mask, std::span<const Point> line, double thickness, double value = 1, bool closed = false);

// Three box passes, close to a Gaussian of this radius (standard deviation, pixels). `wrap` joins the edges.
void Blur(Mask& mask, double radius, bool wrap = false);
void Blur(Canvas& canvas, double radius, bool wrapX = false, bool wrapY = false);

// The picture at another size, each new pixel the mean of what it covers.
Canvas Resized(const Canvas& canvas, int width, int height);
// Paints `picture` with its lower left corner at (x, y), respecting its coverage.
void Paste(Canvas& canvas, const Canvas& picture, int x, int y, double opacity = 1);
Canvas FlippedX(const Canvas& canvas);

// How pixels become bytes. Black (0, 0, 0) is see-through in the game, so painted pixels never become it.
enum class Black
{
    Avoid, // every pixel is painted: the darkest byte triple written is (1, 1, 1)
    Key,   // coverage below one half becomes black, the rest avoids it
    Keep   // bytes exactly as they come
};
// 24-bit uncompressed bottom-up bitmap; makes the folders on the way. `dither` spreads the rounding error of smooth
// gradients. Throws std::runtime_error with the path when the file cannot be written.
void WriteBmp(const std::string& path, const Canvas& canvas, Black black = Black::Avoid, bool dither = false);
// Grey bytes 0 to 255 (three equal channels).
void WriteBmp(const std::string& path, const Mask& mask);
}
