// SPDX-License-Identifier: Zlib
// The race run: started, suspended and resumed; the menu around it.
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
struct RaceRun : testing::Test, support::LoadedForm
{
    static constexpr std::int16_t Esc = 27;
};

TEST_F(RaceRun, StartHidesTheMenuAndRunsBothTimers)
{
    StartRace();
    for (const char* name : {"cSTART", "cOPZIONI", "cCREDIT", "cEXIT", "cSTART2", "cOPZIONI2", "cCREDIT2", "cEXIT2",
                             "imgLogo", "imgLogoBG"})
        EXPECT_EQ(Control(name).Visible, base::False) << name;
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::True);
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::True);
    EXPECT_FALSE(Window().CursorShown);
    EXPECT_EQ(Game().Scene.Pics.At(Game().Hud.Webcam).Visible, 0);
}

TEST_F(RaceRun, EscSuspendsAndContinuaResumesTheSameRace)
{
    StartRace();
    Pass(1000);
    EXPECT_EQ(Game().Race.GameTime, 1000);
    PressAndRelease(Esc);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::False);
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::False);
    EXPECT_TRUE(Window().CursorShown);
    EXPECT_EQ(Control("cSTART").Caption, "Continua");
    EXPECT_EQ(Control("cSTART2").Caption, "Continua");
    EXPECT_EQ(Control("cSTART").Visible, base::True);
    EXPECT_EQ(Control("cSTART2").Visible, base::True);
    Pass(7000);
    EXPECT_EQ(Game().Race.GameTime, 1000); // the clock stands while the menu shows
    Form.Click("cSTART");
    Pass(25);
    EXPECT_EQ(Game().Race.GameTime, 1025);
    EXPECT_EQ(Control("cSTART").Caption, "Continua");
}

TEST_F(RaceRun, StartingTwiceChangesNothing)
{
    StartRace();
    Pass(130);
    const std::uint32_t measured = Game().Run.FpsLastTime;
    const std::int32_t ticks = Game().Timers.RenderT.Ticks;
    Form.Race().StartProcess();
    EXPECT_EQ(Game().Run.FpsLastTime, measured);
    EXPECT_EQ(Game().Timers.RenderT.Ticks, ticks);
}

TEST_F(RaceRun, StoppingInTheMenuChangesNothing)
{
    Load();
    Machine.Boxes.clear();
    Window().ShowCursor(false);
    Form.Race().StopProcess();
    EXPECT_FALSE(Window().CursorShown);
}

TEST_F(RaceRun, ResumingEndsAPause)
{
    StartRace();
    Pass(100);
    PressAndRelease(80);
    EXPECT_EQ(Label(&shell::Hud::Pause).Visible, 1);
    PressAndRelease(Esc);
    Form.Click("cSTART");
    EXPECT_EQ(Label(&shell::Hud::Pause).Visible, 0);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::True);
}

TEST_F(RaceRun, TheTitleFlickersAsGiven)
{
    Load();
    const auto shown = [](int c)
    { return c <= 20 || (c >= 22 && c <= 27) || (c >= 34 && c <= 36) || (c >= 38 && c <= 40) || c >= 42; };
    // The counter runs 0 … 61, then 1 … 61: one cycle of 62 ticks, the following of 61.
    int c = 0;
    for (int tick = 0; tick < 200; ++tick)
    {
        const base::Flag before = Control("imgLogo").Visible;
        Pass(100);
        const base::Flag expected = c == 61 ? before : base::ToFlag(shown(c));
        ASSERT_EQ(Control("imgLogo").Visible, expected) << "tick " << tick << " counter " << c;
        c = c == 61 ? 1 : c + 1;
        ASSERT_EQ(Game().Run.Blink, c);
    }
}

TEST_F(RaceRun, AStrangeCounterHidesTheTitle)
{
    Load();
    Game().Run.Blink = 70;
    Form.Panels().Menu.tmrLogo_Timer();
    EXPECT_EQ(Control("imgLogo").Visible, base::False);
    EXPECT_EQ(Game().Run.Blink, 71);
}

TEST_F(RaceRun, TheTitleRestsDuringTheRace)
{
    StartRace();
    Pass(1000);
    EXPECT_EQ(Game().Run.Blink, 0);
    EXPECT_EQ(Control("imgLogo").Visible, base::False);
}

TEST_F(RaceRun, PanelsOpenAndCloseWithTheirButtons)
{
    Load();
    const char* const steps[][3] = {{"cOPZIONI", "panelOption", "cOptOK"},
                                    {"cCREDIT", "panelCredits", "cCreditOK"},
                                    {"cCtrOpt", "panelCtrOpt", "cCtrOptOK"}};
    for (const auto& [open, panel, close] : steps)
    {
        EXPECT_EQ(Control(panel).Visible, base::False);
        EXPECT_TRUE(Form.Click(open));
        EXPECT_EQ(Control(panel).Visible, base::True);
        EXPECT_TRUE(Form.Click(close));
        EXPECT_EQ(Control(panel).Visible, base::False);
    }
}

TEST_F(RaceRun, TheControlsFrameShowsOneSubFrame)
{
    Load();
    const auto shown = [this]
    {
        std::string names;
        for (const char* name : {"panelCtrMov", "panelCtrCam", "panelCtrOth"})
            if (Control(name).Visible != base::False)
                names += name;
        return names;
    };
    Form.Click("cCtrOpt");
    EXPECT_EQ(shown(), "panelCtrMov");
    Form.Click("cCtrOth");
    EXPECT_EQ(shown(), "panelCtrOth");
    Form.Click("cCtrCam");
    EXPECT_EQ(shown(), "panelCtrCam");
    Form.Click("cCtrMov");
    EXPECT_EQ(shown(), "panelCtrMov");
    Form.Click("cCtrOth");
    Form.Click("cCtrOptOK");
    Form.Click("cCtrOpt");
    EXPECT_EQ(shown(), "panelCtrMov");
}

TEST_F(RaceRun, CreditsNameTheGameAndItsAuthors)
{
    Load();
    std::string captions;
    const std::int16_t panel = Form.Controls().IndexOf(Control("panelCredits"));
    for (const forms::Control& control : Form.Controls().Controls)
        if (control.Parent == panel)
            captions += control.Caption + "|";
    EXPECT_EQ(captions, "Crediti|Velkar|Realizzato da|Velkar Team|OK|");
}

TEST_F(RaceRun, UnknownControlsHaveNoHandler)
{
    Load();
    EXPECT_FALSE(Form.Click("cNIENTE"));
    EXPECT_FALSE(Form.Click("cCtrKey", 11));
    EXPECT_FALSE(Form.Click("imgLogo"));
}
}
