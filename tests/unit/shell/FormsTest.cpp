// SPDX-License-Identifier: Zlib
// The records of a form.
#include "base/RuntimeError.h"
#include "shell/forms/Control.h"

#include <gtest/gtest.h>

namespace
{
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
}
