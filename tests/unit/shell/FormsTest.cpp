// The records of a form and the painting of its canvas.
#include "base/RuntimeError.h"
#include "shell/forms/Paint.h"

#include <gtest/gtest.h>

namespace
{
using forms::Canvas;
using forms::Control;
using forms::Form;
using forms::Kind;

Control Make(const char* name, std::int16_t parent, forms::Rect place)
{
    Control control;
    control.Name = name;
    control.Parent = parent;
    control.Place = place;
    return control;
}

Form TwoFrames()
{
    Form form;
    form.Add(Make("behind", -1, {0, 0, 50, 50}));
    Control outer = Make("outer", -1, {10, 20, 100, 80});
    outer.Type = Kind::Frame;
    form.Add(outer);
    Control inner = Make("inner", 1, {5, 5, 50, 50});
    inner.Type = Kind::Frame;
    form.Add(inner);
    form.Add(Make("leaf", 2, {1, 2, 10, 10}));
    return form;
}

TEST(Form, PlacesAddUpThroughTheFrames)
{
    Form form = TwoFrames();
    const forms::Rect place = form.PlaceOf(form.Get("leaf"));
    EXPECT_EQ(place.X, 16);
    EXPECT_EQ(place.Y, 27);
}

TEST(Form, AHiddenFrameHidesWhatItHolds)
{
    Form form = TwoFrames();
    EXPECT_TRUE(form.IsShown(form.Get("leaf")));
    form.Get("outer").Visible = base::False;
    EXPECT_FALSE(form.IsShown(form.Get("leaf")));
    EXPECT_TRUE(form.IsShown(form.Get("behind")));
}

TEST(Form, TheTopmostShownControlIsFound)
{
    Form form = TwoFrames();
    EXPECT_EQ(form.At(16, 27)->Name, "leaf");
    EXPECT_EQ(form.At(26, 37)->Name, "inner"); // one pixel beyond the leaf
    EXPECT_EQ(form.At(5, 5)->Name, "behind");
    EXPECT_EQ(form.At(200, 200), nullptr);
    form.Get("inner").Visible = base::False;
    EXPECT_EQ(form.At(16, 27)->Name, "outer");
}

TEST(Form, NamesAndIndicesMustFit)
{
    Form form;
    Control key = Make("cCtrKey", -1, {});
    key.Index = 3;
    form.Add(key);
    EXPECT_NE(form.Find("cCtrKey", 3), nullptr);
    EXPECT_EQ(form.Find("cCtrKey"), nullptr);
    EXPECT_EQ(form.Find("cctrkey", 3), nullptr);
    EXPECT_THROW(form.Get("cCtrKey", 4), base::RuntimeError);
}

// The three channels of a pixel, y downward.
std::array<int, 3> At(Canvas& canvas, std::int32_t x, std::int32_t y)
{
    const std::uint8_t* pixel = canvas.At(x, y);
    return {pixel[2], pixel[1], pixel[0]};
}

using Rgb = std::array<int, 3>;

TEST(Paint, RowsLieBottomUpAndPadded)
{
    Canvas canvas;
    canvas.Resize(5, 3);
    EXPECT_EQ(canvas.RowBytes, 16);
    EXPECT_EQ(canvas.Bytes.size(), 48u);
    forms::Fill(canvas, {0, 0, 5, 1}, {1, 2, 3});
    EXPECT_EQ(canvas.Bytes[32], 3); // the top row comes last
    EXPECT_EQ(canvas.Bytes[0], 0);
}

TEST(Paint, FillsAreClippedAndMixed)
{
    Canvas canvas;
    canvas.Resize(8, 8);
    forms::Fill(canvas, {-5, -5, 100, 7}, {200, 100, 50});
    EXPECT_EQ(At(canvas, 7, 1), (Rgb{200, 100, 50}));
    EXPECT_EQ(At(canvas, 0, 2), (Rgb{0, 0, 0}));
    forms::Fill(canvas, {0, 0, 1, 1}, {0, 0, 0}, 128);
    EXPECT_NEAR(At(canvas, 0, 0)[0], 100, 1);
    forms::Fill(canvas, {50, 50, 10, 10}, {9, 9, 9});
}

TEST(Paint, RoundedBoxesKeepTheirCornersFree)
{
    Canvas canvas;
    canvas.Resize(40, 40);
    forms::FillRounded(canvas, {4, 4, 32, 32}, 10, {255, 255, 255});
    EXPECT_EQ(At(canvas, 4, 4), (Rgb{0, 0, 0}));
    EXPECT_EQ(At(canvas, 20, 4), (Rgb{255, 255, 255}));
    EXPECT_EQ(At(canvas, 20, 20), (Rgb{255, 255, 255}));
    EXPECT_EQ(At(canvas, 3, 20), (Rgb{0, 0, 0}));
}

TEST(Paint, OutlinesAreHollow)
{
    Canvas canvas;
    canvas.Resize(60, 50);
    forms::OutlineRounded(canvas, {4, 4, 50, 40}, 6, 1, {255, 255, 255});
    int lit = 0;
    for (std::int32_t x = 0; x < 60; ++x)
        lit += At(canvas, x, 24)[0] > 0 ? 1 : 0;
    EXPECT_EQ(lit, 2);
    EXPECT_EQ(At(canvas, 4, 24), (Rgb{255, 255, 255}));
    EXPECT_EQ(At(canvas, 53, 24), (Rgb{255, 255, 255}));
    EXPECT_EQ(At(canvas, 30, 4), (Rgb{255, 255, 255}));
    EXPECT_EQ(At(canvas, 30, 43), (Rgb{255, 255, 255}));
}

ModBitmap::Picture Checker(std::int32_t width, std::int32_t height)
{
    ModBitmap::Picture picture;
    picture.Info.Width = width;
    picture.Info.Height = height;
    picture.Pixels.Allocate(height, (width * 3 + 3) / 4 * 4);
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x)
            picture.Pixels.Row(y)[3 * x + 2] = (x + y) % 2 == 0 ? 200 : 0;
    return picture;
}

TEST(Scale, BlackCanBeSeenThrough)
{
    const forms::Image keyed = forms::Scale(Checker(4, 4), 4, 4, true);
    ASSERT_EQ(keyed.Pixels.size(), 16u);
    EXPECT_EQ(keyed.Pixels[1].A + keyed.Pixels[0].A, 255);
    const forms::Image opaque = forms::Scale(Checker(4, 4), 4, 4, false);
    for (const forms::Image::Pixel& pixel : opaque.Pixels)
        EXPECT_EQ(pixel.A, 255);
}

TEST(Scale, ShrinkingAverages)
{
    const forms::Image small = forms::Scale(Checker(64, 64), 8, 8, false);
    for (const forms::Image::Pixel& pixel : small.Pixels)
        EXPECT_NEAR(pixel.R, 100, 6);
    const forms::Image keyed = forms::Scale(Checker(64, 64), 8, 8, true);
    for (const forms::Image::Pixel& pixel : keyed.Pixels)
    {
        EXPECT_EQ(pixel.R, 200); // black has no part in the colour
        EXPECT_NEAR(pixel.A, 128, 8);
    }
}

TEST(Scale, NothingGivesNothing)
{
    EXPECT_EQ(forms::Scale({}, 10, 10, true).Width, 0);
    EXPECT_EQ(forms::Scale(Checker(2, 2), 0, 10, true).Width, 0);
    EXPECT_EQ(forms::Scale(Checker(1, 1), 3, 2, false).Pixels.size(), 6u);
}

TEST(Paint, TheFrameIsStretchedToTheCanvas)
{
    Canvas canvas;
    canvas.Resize(6, 4);
    const ModBitmap::Picture picture = Checker(3, 2);
    forms::Stretch(canvas, {0, 0, canvas.Width, canvas.Height}, 3, 2, picture.Pixels.RowBytes,
                   picture.Pixels.Bytes.data());
    EXPECT_EQ(At(canvas, 0, 0)[0], 0); // source row 1, the top one
    EXPECT_EQ(At(canvas, 1, 1)[0], 0);
    EXPECT_EQ(At(canvas, 2, 0)[0], 200);
    EXPECT_EQ(At(canvas, 0, 3)[0], 200);
    EXPECT_EQ(At(canvas, 5, 3)[0], 200);
}

TEST(Paint, TextStaysInItsRectangle)
{
    for (const forms::Align align : {forms::Align::Left, forms::Align::Centre, forms::Align::Right})
    {
        Canvas canvas;
        canvas.Resize(200, 60);
        forms::DrawText(canvas, {50, 20, 80, 20}, "Freno/Retromarcia: Freccia", 15, 1, {255, 255, 255}, align);
        int inside = 0, outside = 0;
        for (std::int32_t y = 0; y < 60; ++y)
            for (std::int32_t x = 0; x < 200; ++x)
                if (At(canvas, x, y)[0] > 0)
                    ++(x >= 49 && x <= 131 && y >= 18 && y <= 42 ? inside : outside);
        EXPECT_GT(inside, 50);
        EXPECT_EQ(outside, 0);
    }
}

TEST(Paint, AlignmentMovesTheText)
{
    const auto firstColumn = [](forms::Align align)
    {
        Canvas canvas;
        canvas.Resize(100, 30);
        forms::DrawText(canvas, {0, 0, 100, 30}, "OK", 14, 1, {255, 255, 255}, align);
        for (std::int32_t x = 0; x < 100; ++x)
            for (std::int32_t y = 0; y < 30; ++y)
                if (At(canvas, x, y)[0] > 0)
                    return x;
        return 100;
    };
    EXPECT_LT(firstColumn(forms::Align::Left), 4);
    EXPECT_NEAR(firstColumn(forms::Align::Centre), 40, 6);
    EXPECT_GT(firstColumn(forms::Align::Right), 70);
}
}
