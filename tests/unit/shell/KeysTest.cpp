// SPDX-License-Identifier: Zlib
// Keys of the race and the changing of their bindings.
#include "shell/panels/KeyNames.h"
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

namespace
{
constexpr std::int16_t Esc = 27, Up = 38, Down = 40, Backslash = 220, PKey = 80, CKey = 67, PageUp = 33, PageDown = 34,
                       Ctrl = 17, Enter = 13;

struct Keys : testing::Test, support::LoadedForm
{
    bool IsConsoleOpen() { return Label(&shell::Hud::Console).Visible != 0; }
    void Bind(std::int16_t index, std::int16_t code)
    {
        Form.Click("cCtrKey", index);
        PressAndRelease(code);
    }
};

TEST_F(Keys, HeldKeysSetAndClearTheirFlags)
{
    StartRace();
    const std::pair<std::int16_t, base::Flag world::HeldKeys::*> keys[] = {
        {38, &world::HeldKeys::KeyAccel}, {40, &world::HeldKeys::KeyBrake},     {37, &world::HeldKeys::KeyLeft},
        {39, &world::HeldKeys::KeyRight}, {32, &world::HeldKeys::KeyHandbrake}, {66, &world::HeldKeys::KeyLookBack}};
    for (const auto& [code, flag] : keys)
    {
        Form.KeyDown(code);
        EXPECT_EQ(Game().Keys.*flag, -1) << code;
        Form.KeyDown(code); // repeats
        EXPECT_EQ(Game().Keys.*flag, -1) << code;
        Form.KeyUp(code);
        EXPECT_EQ(Game().Keys.*flag, 0) << code;
    }
}

TEST_F(Keys, NothingIsHeldInTheMenu)
{
    Load();
    Form.KeyDown(Up);
    EXPECT_EQ(Game().Keys.KeyAccel, 0);
    PressAndRelease(CKey);
    PressAndRelease(49 + 3);
    EXPECT_EQ(Game().Camera.View, 0);
    PressAndRelease(PKey);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::False);
    PressAndRelease(Backslash);
    EXPECT_FALSE(IsConsoleOpen());
}

TEST_F(Keys, AKeyReleasedInTheMenuStaysHeldUntilPressedAgain)
{
    StartRace();
    Form.KeyDown(Up);
    PressAndRelease(Esc);
    Form.KeyUp(Up);
    EXPECT_EQ(Game().Keys.KeyAccel, -1);
    Form.Click("cSTART");
    EXPECT_EQ(Game().Keys.KeyAccel, -1);
    PressAndRelease(Up);
    EXPECT_EQ(Game().Keys.KeyAccel, 0);
}

TEST_F(Keys, EscOpensTheMenuOrOnlyClosesTheConsole)
{
    StartRace();
    PressAndRelease(Backslash);
    ASSERT_TRUE(IsConsoleOpen());
    PressAndRelease(Esc);
    EXPECT_FALSE(IsConsoleOpen());
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::True);
    PressAndRelease(Esc);
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::False);
    EXPECT_EQ(Control("cSTART").Visible, base::True);
}

TEST_F(Keys, TheConsoleTakesAllKeysAndRecalls)
{
    StartRace();
    Game().Run.LastCommand = "\\get game time";
    Label(&shell::Hud::Console).Text = "Comando non valido";
    PressAndRelease(Backslash);
    EXPECT_EQ(Label(&shell::Hud::Console).Text, "\\");
    Form.KeyDown(Up);
    EXPECT_EQ(Game().Keys.KeyAccel, 0);
    Form.KeyUp(Up);
    EXPECT_EQ(Label(&shell::Hud::Console).Text, "\\get game time");
    for (const std::int16_t code : {PKey, CKey, PageUp, std::int16_t{51}, Backslash})
        PressAndRelease(code);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::True);
    EXPECT_EQ(Game().Camera.View, 0);
    EXPECT_EQ(Game().Camera.ViewPlayer, 0);
    EXPECT_EQ(Label(&shell::Hud::Console).Text, "\\get game time");
    PressAndRelease(Esc);
    EXPECT_EQ(Label(&shell::Hud::Console).Text, "\\get game time");
}

TEST_F(Keys, CharactersReachTheConsoleOfAShownRaceAlone)
{
    const auto type = [this](std::string_view text)
    {
        for (const char c : text)
            Form.KeyPress(static_cast<std::uint8_t>(c));
    };
    StartRace();
    std::string& line = Label(&shell::Hud::Console).Text;
    type("abc\r"); // closed
    EXPECT_EQ(line, "\\");
    Form.KeyDown(Backslash);
    type("\\"); // the key that opens types its own character first
    Form.KeyUp(Backslash);
    type("abc");
    EXPECT_EQ(line, "\\abc");
    Game().Timers.RenderT.Enabled = base::False;
    type("d");
    EXPECT_EQ(line, "\\abc");
    Game().Timers.RenderT.Enabled = base::True;
    type("d");
    EXPECT_EQ(line, "\\abcd");
    EXPECT_TRUE(Form.CloseAsked());
    EXPECT_NO_THROW(type("e")); // everything is released
}

TEST_F(Keys, TheConsoleHasTheWindowsClipboardAndTheClock)
{
    StartRace();
    PressAndRelease(Backslash);
    Machine.Clipboard = "set game time 7000";
    Form.KeyPress(22);
    Form.KeyPress(3);
    EXPECT_EQ(Machine.Clipboard, "\\set game time 7000");
    Machine.Clock += 10;
    Form.KeyPress(13);
    EXPECT_EQ(Game().Timers.GameT.Elapsed, 7000);
    Machine.Clock += 15;
    Form.RunTimers();
    EXPECT_EQ(Game().Race.GameTime, 7015); // only what passed since it was set
}

TEST_F(Keys, AKeyHeldWhenTheConsoleOpensStaysHeld)
{
    StartRace();
    Form.KeyDown(Up);
    PressAndRelease(Backslash);
    Form.KeyUp(Up);
    EXPECT_EQ(Game().Keys.KeyAccel, -1);
}

TEST_F(Keys, PlayersAreSteppedThroughBothWaysRound)
{
    StartRace();
    PressAndRelease(PageDown);
    EXPECT_EQ(Game().Camera.ViewPlayer, 2);
    PressAndRelease(PageUp);
    EXPECT_EQ(Game().Camera.ViewPlayer, 0);
    PressAndRelease(PageUp);
    EXPECT_EQ(Game().Camera.ViewPlayer, 1);
    PressAndRelease(PageDown);
    EXPECT_EQ(Game().Camera.ViewPlayer, 0);
    Form.KeyDown(PageUp); // only the release acts
    EXPECT_EQ(Game().Camera.ViewPlayer, 0);
}

TEST_F(Keys, ViewsAreChosenAndCycled)
{
    StartRace();
    for (std::int16_t code = 49; code <= 55; ++code)
    {
        PressAndRelease(code);
        EXPECT_EQ(Game().Camera.View, code - 49);
    }
    PressAndRelease(48);
    PressAndRelease(56);
    EXPECT_EQ(Game().Camera.View, 6);
    PressAndRelease(54); // view 5
    PressAndRelease(CKey);
    EXPECT_EQ(Game().Camera.View, 0);
    PressAndRelease(CKey);
    PressAndRelease(CKey);
    EXPECT_EQ(Game().Camera.View, 2);
    PressAndRelease(CKey);
    EXPECT_EQ(Game().Camera.View, 0);
}

TEST_F(Keys, PauseTogglesTheSimulationAlone)
{
    StartRace();
    PressAndRelease(PKey);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::False);
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::True);
    EXPECT_EQ(Label(&shell::Hud::Pause).Visible, 1);
    PressAndRelease(PKey);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::True);
    EXPECT_EQ(Label(&shell::Hud::Pause).Visible, 0);
}

TEST_F(Keys, TheAutopilotWaitsForTheFinish)
{
    StartRace();
    PressAndRelease(Ctrl);
    EXPECT_EQ(Player(0).Control, 0);
    Game().Race.RaceOver = base::True;
    PressAndRelease(Ctrl);
    EXPECT_EQ(Player(0).Control, 1);
    PressAndRelease(Ctrl);
    EXPECT_EQ(Player(0).Control, 0);
}

TEST_F(Keys, TheAutopilotKeyIsTakenBeforeTheFinishToo)
{
    StartRace();
    Bind(0, PKey);
    PressAndRelease(PKey);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::True);
}

TEST_F(Keys, ABindingTakesAFixedKeyOver)
{
    Load();
    Bind(6, PKey);
    Form.Click("cSTART");
    Form.KeyDown(PKey);
    EXPECT_EQ(Game().Keys.KeyAccel, -1);
    Form.KeyUp(PKey);
    EXPECT_EQ(Game().Keys.KeyAccel, 0);
    EXPECT_EQ(Game().Timers.GameT.Enabled, base::True);
}

TEST_F(Keys, OfTwoActionsOnOneKeyTheFirstActs)
{
    Load();
    Bind(7, Up); // brake on the accelerator's key
    Bind(5, PageUp);
    Form.Click("cSTART");
    Form.KeyDown(Up);
    EXPECT_EQ(Game().Keys.KeyAccel, -1);
    EXPECT_EQ(Game().Keys.KeyBrake, 0);
    PressAndRelease(PageUp); // next player comes before change view
    EXPECT_EQ(Game().Camera.ViewPlayer, 1);
    EXPECT_EQ(Game().Camera.View, 0);
}

TEST_F(Keys, RebindingTakesTheNextKey)
{
    Load();
    Form.Click("cCtrKey", 10);
    EXPECT_EQ(Control("cCtrKey", 10).Caption, "</>");
    Form.KeyDown(0); // no key at all
    EXPECT_EQ(Control("cCtrKey", 10).Caption, "</>");
    PressAndRelease(186);
    EXPECT_EQ(Control("cCtrKey", 10).Caption, "<186>");
    EXPECT_EQ(Control("cCtrKey", 10).Tag, "186");
    EXPECT_EQ(Game().Bindings.Bindings[10], 186);
    PressAndRelease(65); // the box has let go
    EXPECT_EQ(Game().Bindings.Bindings[10], 186);
}

TEST_F(Keys, AKeyActsAtOnceAfterItWasBound)
{
    StartRace();
    Form.Click("cCtrKey", 6);
    Form.KeyDown(65);
    EXPECT_EQ(Game().Keys.KeyAccel, 0);
    Form.KeyDown(65);
    EXPECT_EQ(Game().Keys.KeyAccel, -1);
    Form.KeyUp(65);
    EXPECT_EQ(Game().Keys.KeyAccel, 0);
}

TEST_F(Keys, LeavingTheBoxKeepsTheOldKey)
{
    Load();
    Form.Click("cCtrKey", 10);
    Form.Click("cCtrOptOK");
    EXPECT_EQ(Control("cCtrKey", 10).Caption, "Spazio");
    EXPECT_EQ(Game().Bindings.Bindings[10], 32);
    PressAndRelease(65);
    EXPECT_EQ(Game().Bindings.Bindings[10], 32);
}

TEST_F(Keys, ClickingAnotherBindingRestoresTheFirst)
{
    Load();
    Form.Click("cCtrKey", 8);
    Form.Click("cCtrKey", 9);
    EXPECT_EQ(Control("cCtrKey", 8).Caption, "Freccia sinistra");
    EXPECT_EQ(Control("cCtrKey", 9).Caption, "</>");
    PressAndRelease(68);
    EXPECT_EQ(Control("cCtrKey", 8).Caption, "Freccia sinistra");
    EXPECT_EQ(Control("cCtrKey", 9).Caption, "D");
}

TEST_F(Keys, EveryKeyCanBeTaken)
{
    Load();
    for (const std::int16_t code : {Esc, Up, Down, Enter, Backslash})
    {
        Form.Click("cCtrKey", 6);
        Form.KeyDown(code);
        Form.KeyDown(code); // repeats
        Form.KeyUp(code);
        EXPECT_EQ(Game().Bindings.Bindings[6], code);
        EXPECT_EQ(Control("cCtrKey", 6).Caption, panels::KeyName(code));
    }
    EXPECT_EQ(Control("panelCtrOpt").Visible, base::False); // no key has clicked anything
}

TEST_F(Keys, FixedKeysExplainThemselves)
{
    Load();
    for (std::int16_t index = 0; index < 5; ++index)
        EXPECT_TRUE(Form.Click("dCtrKey", index));
    ASSERT_EQ(Machine.Boxes.size(), 5u);
    EXPECT_EQ(Machine.Boxes[0].Icon, base::Icon::Information);
    EXPECT_EQ(Machine.Boxes[0].Title, "Opzioni");
    EXPECT_EQ(Machine.Boxes[0].Text, "Non è possibile modificare il tasto associato a questa azione");
    EXPECT_FALSE(Form.Click("dCtrKey", 5));
}

TEST_F(Keys, CaptionsAreTheNamesOfTheTags)
{
    Load();
    for (std::int16_t index = 0; index < 11; ++index)
        EXPECT_EQ(Control("cCtrKey", index).Caption,
                  panels::KeyName(static_cast<std::int16_t>(std::stoi(Control("cCtrKey", index).Tag))));
}

TEST_F(Keys, OnlyElevenBindingsExist)
{
    Load();
    const auto before = Game().Bindings.Bindings;
    for (const std::int16_t index : {std::int16_t{11}, std::int16_t{-1}, std::int16_t{32767}})
        Form.Panels().Keys.ReadKeyBinding(index);
    EXPECT_EQ(Game().Bindings.Bindings, before);
    Control("cCtrKey", 3).Tag = "non un numero";
    Form.Panels().Keys.ReadKeyBinding(3);
    EXPECT_EQ(Game().Bindings.Bindings[3], 0);
}

TEST_F(Keys, ArrowsAndEnterWorkTheMenu)
{
    Load();
    PressAndRelease(Enter); // nothing chosen yet
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::False);
    PressAndRelease(Down);
    PressAndRelease(Down);
    PressAndRelease(Enter);
    EXPECT_EQ(Control("panelOption").Visible, base::True);
    PressAndRelease(Up); // the last of the panel
    PressAndRelease(Enter);
    EXPECT_EQ(Control("panelOption").Visible, base::False);
    PressAndRelease(Down);
    Form.KeyDown(Enter);
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::True);
    Form.KeyDown(Enter); // repeats
    Form.KeyUp(Enter);
    EXPECT_EQ(Game().Timers.RenderT.Enabled, base::True);
}
}
