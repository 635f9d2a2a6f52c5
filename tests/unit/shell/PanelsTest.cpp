// SPDX-License-Identifier: Zlib
// The panels of the main window under mouse and keys: where an event goes while the menu, a panel, a race or the
// rebinding box has it.
#include "shell/forms/Boxes.h"
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
constexpr std::int16_t Backspace = 8, Tab = 9, Enter = 13, Esc = 27, Space = 32, Down = 40, BKey = 66;

struct Panels : testing::Test, support::LoadedForm
{
    platform::Point MiddleOf(std::string_view name, std::int16_t index = -1)
    {
        const forms::Rect place = Form.Controls().PlaceOf(Control(name, index));
        return {place.X + place.W / 2, place.Y + place.H / 2};
    }
    void ClickAt(platform::Point at)
    {
        Form.MouseMove(0, at);
        Form.MouseDown(1, at);
        Form.MouseUp(1, at);
    }
    // As a keyboard does it: the key, its character, the release.
    void TypeKey(std::int16_t code)
    {
        Form.KeyDown(code);
        Form.KeyPress(static_cast<std::uint8_t>(code));
        Form.KeyUp(code);
    }
    void Type(std::string_view text)
    {
        for (const char c : text)
            TypeKey(c);
    }
    bool IsShown(std::string_view name) { return Control(name).Visible != base::False; }
    std::string Focus()
    {
        const std::int16_t focus = Form.Controls().Focus;
        return focus < 0 ? "" : Form.Controls().Controls[static_cast<std::size_t>(focus)].Name;
    }
};

TEST_F(Panels, LapsAreTypedAndConfirmedByKeysAlone)
{
    Load();
    TypeKey(Down);
    TypeKey(Down);
    TypeKey(Enter);
    ASSERT_TRUE(IsShown("panelOption"));
    TypeKey(Tab);
    TypeKey(Enter);
    ASSERT_TRUE(IsShown("panelGameOpt"));
    EXPECT_EQ(Focus(), "txtLap");
    Type("12");
    EXPECT_EQ(Control("txtLap").Text, "12");
    TypeKey(Backspace);
    TypeKey(Enter);
    EXPECT_FALSE(IsShown("panelGameOpt"));
    EXPECT_EQ(Game().Race.Laps, 1);
    TypeKey(Esc);
    EXPECT_FALSE(IsShown("panelOption"));
    TypeKey(Esc); // the plain menu stays
    EXPECT_TRUE(IsShown("cSTART"));
    EXPECT_TRUE(Machine.Boxes.empty());
}

TEST_F(Panels, AWrongTextStaysAndIsToldOnce)
{
    Load();
    Form.Click("cGameOpt");
    Type("cento");
    Form.KeyDown(Enter);
    Form.KeyDown(Enter); // repeats
    Form.KeyUp(Enter);
    EXPECT_EQ(Machine.Boxes.size(), 1u);
    EXPECT_TRUE(IsShown("panelGameOpt"));
    EXPECT_EQ(Control("txtLap").Text, "cento");
    EXPECT_EQ(Focus(), "txtLap");
    Type("7"); // over it
    EXPECT_EQ(Control("txtLap").Text, "7");
}

TEST_F(Panels, TypedTextIsSeenAtOnce)
{
    Load();
    Form.Click("cGameOpt");
    const std::vector<std::uint8_t> before = Window().Screenshot().Bytes;
    TypeKey('7');
    const std::vector<std::uint8_t> typed = Window().Screenshot().Bytes;
    EXPECT_NE(typed, before);
    Form.Paint();
    EXPECT_EQ(Window().Screenshot().Bytes, typed);
}

TEST_F(Panels, TheMouseChoosesAResolution)
{
    Load();
    Form.Click("cVidOpt");
    const forms::Control& box = Control("txtRes");
    const forms::Rect place = Form.Controls().PlaceOf(box);
    const forms::Rect button = forms::DropButton(box, place);
    ClickAt({button.X + button.W / 2, button.Y + button.H / 2});
    const forms::ListPlace list = forms::PlaceList(box, place, {600, 312}, 0);
    const forms::Rect row = list.Row(0);
    ClickAt({row.X + 5, row.Y + 5});
    EXPECT_EQ(box.Text, "320x240");
    ClickAt(MiddleOf("chkFS"));
    EXPECT_EQ(Control("chkFS").Value, 1);
    ClickAt(MiddleOf("chkFS"));
    ClickAt(MiddleOf("chkWebcam")); // there is no webcam
    EXPECT_EQ(Control("chkWebcam").Value, 0);
    ClickAt(MiddleOf("cVidOptOK"));
    EXPECT_FALSE(IsShown("panelVidOpt"));
    EXPECT_EQ(Game().Screen.ScreenW, 320);
    EXPECT_EQ(Window().ClientSize().Height, 240);
}

TEST_F(Panels, APanelIsDraggedByWhatDoesNotReact)
{
    Load();
    Form.Click("cVidOpt");
    Window().Move({100, 50});
    for (const char* name : {"txtFreq", "txtRes", "chkFS", "chkWebcam", "lblTxtFilter", "cVidOptOK"})
    {
        Machine.Cursor = {400, 300};
        Form.MouseDown(1, MiddleOf(name));
        Machine.Cursor = {437, 280};
        Form.MouseMove(1, {1, 1});
        Form.MouseUp(1, {1, 1});
        EXPECT_EQ(Window().Position().X, 100) << name;
    }
    Machine.Cursor = {400, 300};
    Form.MouseDown(1, MiddleOf("lblVidOpt"));
    Machine.Cursor = {437, 280};
    Form.MouseMove(1, MiddleOf("lblVidOpt"));
    EXPECT_EQ(Window().Position().X, 137);
}

TEST_F(Panels, EscClosesAPanelOverARaceAndDoesNothingInItsMenu)
{
    StartRace();
    Pass(200);
    TypeKey(Esc);
    ASSERT_TRUE(IsShown("cSTART"));
    TypeKey(Esc);
    EXPECT_TRUE(IsShown("cSTART"));
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::False);
    Form.Click("cOPZIONI");
    Form.Click("cGameOpt");
    Form.KeyDown(Esc);
    Form.KeyDown(Esc); // held: one panel at a time
    EXPECT_FALSE(IsShown("panelGameOpt"));
    EXPECT_TRUE(IsShown("panelOption"));
    Form.KeyUp(Esc);
    TypeKey(Esc);
    EXPECT_FALSE(IsShown("panelOption"));
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::False);
}

TEST_F(Panels, ARaceTakesTheKeysFromEveryControl)
{
    Load();
    Form.Click("cGameOpt");
    EXPECT_EQ(Focus(), "txtLap");
    Form.Click("cSTART");
    TypeKey('7');
    TypeKey(Tab);
    EXPECT_EQ(Control("txtLap").Text, "5");
    EXPECT_EQ(Game().Camera.View, 6);
}

TEST_F(Panels, ABindingIsChangedByKeysAlone)
{
    for (const std::int16_t key : {Enter, Space})
    {
        Load();
        Form.Click("cCtrOpt");
        while (Focus() != "cCtrKey")
            PressAndRelease(Tab);
        const std::int16_t index = Form.Controls().Controls[static_cast<std::size_t>(Form.Controls().Focus)].Index;
        Form.KeyDown(key);
        EXPECT_EQ(Control("cCtrKey", index).Caption, "</>");
        Form.KeyDown(key); // still held: not the key that is meant
        EXPECT_EQ(Control("cCtrKey", index).Caption, "</>");
        Form.KeyUp(key);
        PressAndRelease(BKey);
        EXPECT_EQ(Control("cCtrKey", index).Caption, "B");
        EXPECT_EQ(Game().Bindings.Bindings[static_cast<std::size_t>(index)], BKey);
        EXPECT_TRUE(IsShown("panelCtrOpt"));
    }
}

TEST_F(Panels, TheRebindingBoxTakesEscAndTab)
{
    Load();
    Form.Click("cCtrOpt");
    for (const std::int16_t key : {Esc, Tab})
    {
        ClickAt(MiddleOf("cCtrKey", 6));
        TypeKey(key);
        EXPECT_EQ(Game().Bindings.Bindings[6], key);
        EXPECT_TRUE(IsShown("panelCtrOpt"));
    }
}

TEST_F(Panels, PressingAnythingElseGivesTheBindingUp)
{
    Load();
    Form.Click("cCtrOpt");
    ClickAt(MiddleOf("cCtrKey", 6));
    EXPECT_EQ(Control("cCtrKey", 6).Caption, "</>");
    Form.MouseMove(0, MiddleOf("cCtrKey", 7)); // pointing alone does not
    EXPECT_EQ(Control("cCtrKey", 6).Caption, "</>");
    ClickAt(MiddleOf("cCtrKey", 7));
    EXPECT_EQ(Control("cCtrKey", 6).Caption, "Freccia su");
    EXPECT_EQ(Control("cCtrKey", 7).Caption, "</>");
    ClickAt(MiddleOf("lblCtrOpt"));
    EXPECT_EQ(Control("cCtrKey", 7).Caption, "Freccia giù");
}

TEST_F(Panels, TheClipboardIsTheWindows)
{
    Load();
    Form.Click("cGameOpt");
    Machine.Clipboard = "42\r\n";
    Form.KeyPress(22);
    EXPECT_EQ(Control("txtLap").Text, "42");
    Form.KeyPress(1);
    Form.KeyPress(24);
    EXPECT_EQ(Machine.Clipboard, "42");
    EXPECT_EQ(Control("txtLap").Text, "");
}

TEST_F(Panels, AnOpenListFollowsTheWindowsSize)
{
    Load();
    Form.Click("cVidOpt");
    PressAndRelease(Tab);
    PressAndRelease(115);
    for (const platform::Size size : {platform::Size{240, 200}, {1600, 900}, {320, 240}})
    {
        Window().SetClientSize(size);
        Machine.PumpEvents();
        const base::Bitmap shown = Window().Screenshot();
        EXPECT_EQ(shown.Width, size.Width);
        EXPECT_EQ(Form.Controls().Client.Width, size.Width);
    }
    PressAndRelease(Down);
    PressAndRelease(Enter);
    EXPECT_EQ(Control("txtRes").Text, "800x600");
}
}
