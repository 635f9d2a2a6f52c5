// SPDX-License-Identifier: Zlib
// Lines typed into the running game, each with the answer that it shows.
#include "base/Text.h"
#include "tests/support/LoadedForm.h"

#include <gtest/gtest.h>

#include <span>

namespace
{
struct Row
{
    const char* Line;   // without its backslash, which opening types
    const char* Answer; // null: the console closes and keeps the line
};
constexpr const char* Closes = nullptr;

struct Answers : testing::Test, support::LoadedForm
{
    Answers() { StartRace(); }

    void Type(std::string_view text)
    {
        for (std::size_t at = 0; at < text.size();)
            Form.KeyPress(base::NextCode(text, at));
    }
    // In order, one after another, on the same race.
    void Check(std::span<const Row> rows)
    {
        for (const Row& row : rows)
        {
            if (!IsOpen())
                PressAndRelease(220);
            Form.KeyPress(8); // an answer gives way to a new line
            Type(row.Line);
            Form.KeyPress(13);
            const std::string line = std::string("\\") + row.Line;
            EXPECT_EQ(Label(&shell::Hud::Console).Text, row.Answer == Closes ? line : row.Answer) << line;
            EXPECT_EQ(IsOpen(), row.Answer != Closes) << line;
            EXPECT_EQ(Game().Run.LastCommand, line);
        }
        EXPECT_TRUE(Machine.Boxes.empty()); // no failure is a message box
    }
    bool IsOpen() { return Label(&shell::Hud::Console).Visible != 0; }
};

TEST_F(Answers, ToUnknownCommands)
{
    constexpr Row rows[] = {
        {"quit", "Comando non valido"},      {" ", "Comando non valido"},      {"x", "Comando non valido"},
        {"\\", "Comando non valido"},        {"\\set", "Comando non valido"},  {"sets", "Comando non valido"},
        {"se", "Comando non valido"},        {"set\t", "Comando non valido"},  {" set", "Comando non valido"},
        {"exit now", "Comando non valido"},  {"helpme", "Comando non valido"}, {"è", "Comando non valido"},
        {"set,camera", "Comando non valido"}};
    Check(rows);
}

TEST_F(Answers, ToHelp)
{
    constexpr Row rows[] = {{"help", "SET Imposta il valore di una proprietà di un oggetto\r\n"
                                     "GET Visualizza il valore di una proprietà di un oggetto\r\n"
                                     "LST Visualizza la lista degli oggetti e delle proprietà\r\n"
                                     "INF Visualizza informazioni generiche\r\n\r\n"
                                     "Digitare help seguito dal nome del comando per\r\n"
                                     "visualizzarne la descrizione dettagliata"},
                            {"help set", "SET oggetto prop valore\r\n\r\nimposta il valore di prop di oggetto"},
                            {"HELP GET", "GET oggetto prop\r\n\r\nvisualizza il valore di prop di oggetto"},
                            {"help lst", "LST [oggetto]\r\n\r\nvisualizza gli oggetti o le proprietà di oggetto"},
                            {"help inf", "INF\r\n\r\nvisualizza/nasconde informazioni"},
                            {"help inf and more", "INF\r\n\r\nvisualizza/nasconde informazioni"},
                            {"help help", "Comando non trovato"},
                            {"help \\set", "Comando non trovato"},
                            {"help ", "Comando non trovato"},
                            {"help  set", "Comando non trovato"},
                            {"help quit", "Comando non trovato"}};
    Check(rows);
}

TEST_F(Answers, ToLists)
{
    constexpr Row rows[] = {
        {"lst", "UserPlayer\r\nPlayer x\r\nCamera\r\nGame"},
        {"lst userplayer", "Giocatore controllato dall'utente"},
        {"lst player", "MaxSpeed\tVelocità massima\r\nMaxSpeedR\tVelocità massima retromarcia\r\n"
                       "Acceleration\tAccelerazione\r\nBrake\tDecelerazione frenata\r\n"
                       "Deceleration\tDecelerazione attrito\r\nWRS\tFattore di sterzata\r\nDamage\tDanno\r\n"
                       "Control\tControllo user/cpu\r\nPosition\tPosizione (x z)\r\n"
                       "Speed\tVelocità (sola lettura)"},
        {"LST Camera", "MinZoom\tZoom minimo\r\nZoom\tZoom corrente\r\nRadius\tDistanza dall'oggetto osservato\r\n"
                       "Target\tGiocatore osservato\r\nTxtFilter\tFiltro texture"},
        {"lst game", "Time\tTempo di gioco in millisecondi"},
        {"lst game time", "Time\tTempo di gioco in millisecondi"},
        {"lst player 0", "MaxSpeed\tVelocità massima\r\nMaxSpeedR\tVelocità massima retromarcia\r\n"
                         "Acceleration\tAccelerazione\r\nBrake\tDecelerazione frenata\r\n"
                         "Deceleration\tDecelerazione attrito\r\nWRS\tFattore di sterzata\r\nDamage\tDanno\r\n"
                         "Control\tControllo user/cpu\r\nPosition\tPosizione (x z)\r\n"
                         "Speed\tVelocità (sola lettura)"},
        {"lst ", "Oggetto non valido"},
        {"lst  player", "Oggetto non valido"},
        {"lst foo", "Oggetto non valido"},
        {"lst maxspeed", "Oggetto non valido"}};
    Check(rows);
}

TEST_F(Answers, ToGettingAPlayer)
{
    constexpr Row rows[] = {{"get", "Oggetto non specificato"},
                            {"get ", "Oggetto non valido"},
                            {"get foo", "Oggetto non valido"},
                            {"get  player 0 speed", "Oggetto non valido"},
                            {"get userplayer", "Oggetto non valido"},
                            {"get userplayer 0", "Oggetto non valido"},
                            {"get player", "Indice non specificato"},
                            {"get player ", "Parametro non valido"},
                            {"get player x", "Parametro non valido"},
                            {"get player  0 speed", "Parametro non valido"},
                            {"get player speed", "Parametro non valido"},
                            {"get player 0", "Proprietà non specificata"},
                            {"get player 9", "Proprietà non specificata"},
                            {"get player 99999", "Proprietà non specificata"},
                            {"get player 0 ", "Proprietà non valida"},
                            {"get player 0 foo", "Proprietà non valida"},
                            {"get player 9 foo", "Proprietà non valida"},
                            {"get player 99999 foo", "Proprietà non valida"},
                            {"get player 0 curmaxspeed", "Proprietà non valida"},
                            {"get player 0 obj", "Proprietà non valida"},
                            {"get player 3 speed", "Indice non valido"},
                            {"get player -1 speed", "Indice non valido"},
                            {"get player 32767 maxspeed", "Indice non valido"},
                            {"get player 32768 maxspeed", "Overflow"},
                            {"get player -40000 position", "Overflow"},
                            {"get player 1e400 wrs", "Overflow"},
                            {"get player 0 maxspeed", "Player(0).MaxSpeed = 5"},
                            {"get player 1 maxspeed", "Player(1).MaxSpeed = 4"},
                            {"get player 0 maxspeedr", "Player(0).MaxSpeedR = 1"},
                            {"get player 0 acceleration", "Player(0).Acceleration = 0,03"},
                            {"get player 2 acceleration", "Player(2).Acceleration = 0,02"},
                            {"get player 0 brake", "Player(0).Brake = 0,06"},
                            {"get player 0 deceleration", "Player(0).Deceleration = 0,004"},
                            {"get player 0 wrs", "Player(0).WRS = 0,06"},
                            {"get player 0 damage", "Player(0).Damage = 0"},
                            {"get player 0 control", "Player(0).Control = 0"},
                            {"get player 1 control", "Player(1).Control = 1"},
                            {"get player 0 speed", "Player(0).Speed = 0"},
                            {"get player 0 position", "Player(0).Position = (50; 20)"},
                            {"get player 1 position", "Player(1).Position = (58; 20)"},
                            {"GET Player 2 POSITION", "Player(2).Position = (42; 20)"},
                            {"get player 0 speed and more", "Player(0).Speed = 0"},
                            {"get player 0.5 position", "Player(0).Position = (50; 20)"},
                            {"get player 0,51 position", "Player(1).Position = (58; 20)"},
                            {"get player 1.5 position", "Player(2).Position = (42; 20)"},
                            {"get player 2.5 position", "Player(2).Position = (42; 20)"},
                            {"get player -0.5 position", "Player(0).Position = (50; 20)"},
                            {"get player +1 position", "Player(1).Position = (58; 20)"},
                            {"get player 2e0 position", "Player(2).Position = (42; 20)"},
                            {"get player 10e-1 position", "Player(1).Position = (58; 20)"},
                            {"get player 0001 position", "Player(1).Position = (58; 20)"}};
    Check(rows);
}

TEST_F(Answers, ToSettingAPlayer)
{
    constexpr Row rows[] = {{"set", "Oggetto non specificato"},
                            {"set ", "Oggetto non valido"},
                            {"set foo", "Oggetto non valido"},
                            {"set  player 0 damage 1", "Oggetto non valido"},
                            {"set player", "Indice non specificato"},
                            {"set player ", "Parametro non valido"},
                            {"set player x", "Parametro non valido"},
                            {"set player damage 1", "Parametro non valido"},
                            {"set player 9", "Indice non valido"},
                            {"set player 3", "Indice non valido"},
                            {"set player 3 foo", "Indice non valido"},
                            {"set player -1", "Indice non valido"},
                            {"set player -1 damage x", "Indice non valido"},
                            {"set player 99999", "Overflow"},
                            {"set player 0", "Proprietà non specificata"},
                            {"set player 0 ", "Proprietà non valida"},
                            {"set player 0 foo", "Proprietà non valida"},
                            {"set player 0 foo 1", "Proprietà non valida"},
                            {"set player 0 speed", "Proprietà non valida"},
                            {"set player 0 speed 10", "Proprietà non valida"},
                            {"set player 0 curmaxspeed 1", "Proprietà non valida"},
                            {"set player 0 max speed 1", "Proprietà non valida"},
                            {"set player 0 maxspeed", "Valore non specificato"},
                            {"set player 0 maxspeed ", "Parametro non valido"},
                            {"set player 0 maxspeed x", "Parametro non valido"},
                            {"set player 0 maxspeed  7", "Parametro non valido"},
                            {"set player 0 maxspeedr", "Valore non specificato"},
                            {"set player 0 acceleration", "Valore non specificato"},
                            {"set player 0 brake", "Valore non specificato"},
                            {"set player 0 deceleration", "Valore non specificato"},
                            {"set player 0 wrs", "Valore non specificato"},
                            {"set player 0 damage", "Valore non specificato"},
                            {"set player 0 control", "Valore non specificato"},
                            {"set player 0 control cpu", "Parametro non valido"},
                            {"set player 0 position", "Valore non specificato"},
                            {"set player 0 position 1", "Valore non specificato"},
                            {"set player 0 position x", "Valore non specificato"},
                            {"set player 0 position 1e99", "Valore non specificato"},
                            {"set player 0 position x 1", "Parametro non valido"},
                            {"set player 0 position 1 x", "Parametro non valido"},
                            {"set player 0 position 1e99 x", "Parametro non valido"},
                            {"set player 0 position 1;2", "Valore non specificato"},
                            {"set player 0 position 1e39 1", "Overflow"},
                            {"set player 0 position 1 -1e39", "Overflow"},
                            {"get player 0 position", "Player(0).Position = (50; 20)"},
                            {"set player 0 maxspeed 12.5", Closes},
                            {"get player 0 maxspeed", "Player(0).MaxSpeed = 12,5"},
                            {"set player 0 maxspeedr 2,25", Closes},
                            {"get player 0 maxspeedr", "Player(0).MaxSpeedR = 2,25"},
                            {"Set Player 0 Acceleration 0.05", Closes},
                            {"get player 0 acceleration", "Player(0).Acceleration = 0,05"},
                            {"set player 0 brake .1", Closes},
                            {"get player 0 brake", "Player(0).Brake = 0,1"},
                            {"set player 0 deceleration 1e-3", Closes},
                            {"get player 0 deceleration", "Player(0).Deceleration = 0,001"},
                            {"set player 0 wrs ,07", Closes},
                            {"get player 0 wrs", "Player(0).WRS = 0,07"},
                            {"set player 0 damage 1", Closes},
                            {"get player 0 damage", "Player(0).Damage = 1"},
                            {"set player 0 damage 0 and more", Closes},
                            {"get player 0 damage", "Player(0).Damage = 0"},
                            {"set player 0 control 1", Closes},
                            {"get player 0 control", "Player(0).Control = 1"},
                            {"set player 0 position 12.3456 -7,5", Closes},
                            {"get player 0 position", "Player(0).Position = (12,346; -7,5)"},
                            {"set player 0 position 1 2 3", Closes},
                            {"get player 0 position", "Player(0).Position = (1; 2)"}};
    Check(rows);
}

TEST_F(Answers, ToTheUserPlayer)
{
    constexpr Row rows[] = {{"set userplayer", "Indice non specificato"},
                            {"set userplayer ", "Parametro non valido"},
                            {"set userplayer x", "Parametro non valido"},
                            {"set userplayer 3", "Indice non valido"},
                            {"set userplayer -1", "Indice non valido"},
                            {"set userplayer 40000", "Overflow"},
                            {"set userplayer 2", Closes},
                            {"set userplayer 1.5 2", Closes},
                            {"SET USERPLAYER 0", Closes}};
    Check(rows);
    EXPECT_EQ(Game().Race.UserPlayer, 0);
}

TEST_F(Answers, ToTheCamera)
{
    constexpr Row rows[] = {{"get camera", "Proprietà non specificata"},
                            {"get camera ", "Proprietà non valida"},
                            {"get camera foo", "Proprietà non valida"},
                            {"get camera viewplayer", "Proprietà non valida"},
                            {"get camera view", "Proprietà non valida"},
                            {"get camera minzoom", "Camera.MinZoom = 156"},
                            {"get camera zoom", "Camera.Zoom = 312"},
                            {"get camera radius", "Camera.Radius = 14"},
                            {"get camera target", "Camera.Target = 0"},
                            {"get camera txtfilter", "Camera.TxtFilter = 2"},
                            {"GET CAMERA TXTFILTER 1", "Camera.TxtFilter = 2"},
                            {"set camera", "Proprietà non specificata"},
                            {"set camera ", "Proprietà non valida"},
                            {"set camera foo 1", "Proprietà non valida"},
                            {"set camera target", "Proprietà non valida"},
                            {"set camera target 1", "Proprietà non valida"},
                            {"set camera viewplayer 1", "Proprietà non valida"},
                            {"set camera minzoom", "Valore non specificato"},
                            {"set camera minzoom x", "Parametro non valido"},
                            {"set camera zoom", "Valore non specificato"},
                            {"set camera zoom ", "Parametro non valido"},
                            {"set camera zoom x", "Parametro non valido"},
                            {"set camera zoom 1e39", "Overflow"},
                            {"set camera radius", "Valore non specificato"},
                            {"set camera radius x", "Parametro non valido"},
                            {"set camera txtfilter ", "Parametro non valido"},
                            {"set camera txtfilter x", "Parametro non valido"},
                            {"set camera txtfilter 32768", "Overflow"},
                            {"set camera txtfilter -32769", "Overflow"},
                            {"set camera minzoom 1", Closes},
                            {"get camera zoom", "Camera.Zoom = 312"},
                            {"set camera zoom 2.5", Closes},
                            {"get camera zoom", "Camera.Zoom = 2,5"},
                            {"SET CAMERA ZOOM 3,5", Closes},
                            {"get camera zoom", "Camera.Zoom = 3,5"},
                            {"set camera zoom 0.1", Closes},
                            {"get camera zoom", "Camera.Zoom = 1"},
                            {"set camera zoom 2", Closes},
                            {"set camera minzoom 5", Closes},
                            {"get camera minzoom", "Camera.MinZoom = 5"},
                            {"get camera zoom", "Camera.Zoom = 5"},
                            {"set camera radius 30", Closes},
                            {"get camera radius", "Camera.Radius = 30"},
                            {"set camera radius -1e-5", Closes},
                            {"get camera radius", "Camera.Radius = -1E-05"},
                            {"set camera txtfilter", Closes},
                            {"get camera txtfilter", "Camera.TxtFilter = 0"},
                            {"set camera txtfilter", Closes},
                            {"get camera txtfilter", "Camera.TxtFilter = 1"},
                            {"set camera txtfilter", Closes},
                            {"get camera txtfilter", "Camera.TxtFilter = 2"},
                            {"set camera txtfilter 7", Closes},
                            {"get camera txtfilter", "Camera.TxtFilter = 7"},
                            {"set camera txtfilter 0.5", Closes},
                            {"get camera txtfilter", "Camera.TxtFilter = 0"},
                            {"set camera txtfilter 1,5", Closes},
                            {"get camera txtfilter", "Camera.TxtFilter = 2"}};
    Check(rows);
}

TEST_F(Answers, ToTheGame)
{
    constexpr Row rows[] = {{"get game", "Proprietà non specificata"},
                            {"get game ", "Proprietà non valida"},
                            {"get game foo", "Proprietà non valida"},
                            {"get game gametime", "Proprietà non valida"},
                            {"get game time", "Game.Time = 0"},
                            {"get game time now", "Game.Time = 0"},
                            {"set game", "Proprietà non specificata"},
                            {"set game ", "Proprietà non valida"},
                            {"set game foo", "Proprietà non valida"},
                            {"set game foo 1", "Proprietà non valida"},
                            {"set game time", "Valore non specificato"},
                            {"set game time ", "Parametro non valido"},
                            {"set game time 1:30", "Parametro non valido"},
                            {"set game time 2147483648", "Overflow"},
                            {"set game time -2147483649", "Overflow"},
                            {"set game time 5000.5", Closes}};
    Check(rows);
    EXPECT_EQ(Game().Timers.GameT.Elapsed, 5000);
    Pass(25); // the next tick takes the clock from the timer
    constexpr Row later[] = {{"get game time", "Game.Time = 5025"}, {"set game time 0", Closes}};
    Check(later);
    Pass(1000);
    constexpr Row again[] = {{"GET GAME TIME", "Game.Time = 1000"}};
    Check(again);
}

TEST_F(Answers, ToNumbersInEveryForm)
{
    constexpr Row rows[] = {{"set player 0 damage 0x10", "Parametro non valido"},
                            {"set player 0 damage 1.2.3", "Parametro non valido"},
                            {"set player 0 damage 1.000,5", "Parametro non valido"},
                            {"set player 0 damage 1,,5", "Parametro non valido"},
                            {"set player 0 damage --1", "Parametro non valido"},
                            {"set player 0 damage +-1", "Parametro non valido"},
                            {"set player 0 damage .", "Parametro non valido"},
                            {"set player 0 damage ,", "Parametro non valido"},
                            {"set player 0 damage -", "Parametro non valido"},
                            {"set player 0 damage +", "Parametro non valido"},
                            {"set player 0 damage e5", "Parametro non valido"},
                            {"set player 0 damage 1e", "Parametro non valido"},
                            {"set player 0 damage 1e+", "Parametro non valido"},
                            {"set player 0 damage 1e1,5", "Parametro non valido"},
                            {"set player 0 damage 1d3", "Parametro non valido"},
                            {"set player 0 damage inf", "Parametro non valido"},
                            {"set player 0 damage nan", "Parametro non valido"},
                            {"set player 0 damage infinito", "Parametro non valido"},
                            {"set player 0 damage 1%", "Parametro non valido"},
                            {"set player 0 damage 1\t", "Parametro non valido"},
                            {"set player 0 damage 1'000", "Parametro non valido"},
                            {"set player 0 damage ²", "Parametro non valido"},
                            {"set player 0 damage 3.4028235e38", Closes},
                            {"get player 0 damage", "Player(0).Damage = 3,402823E+38"},
                            {"set player 0 damage 3.4028236e38", "Overflow"},
                            {"set player 0 damage -3.5e38", "Overflow"},
                            {"set player 0 damage 1e39", "Overflow"},
                            {"set player 0 damage 1e400", "Overflow"},
                            {"set player 0 damage 1e99999999999999999999", "Overflow"},
                            {"set player 0 damage 1e-400", Closes},
                            {"get player 0 damage", "Player(0).Damage = 0"},
                            {"set player 0 damage -0", Closes},
                            {"get player 0 damage", "Player(0).Damage = 0"},
                            {"set player 0 damage 1E-05", Closes},
                            {"get player 0 damage", "Player(0).Damage = 1E-05"},
                            {"set player 0 damage 0,0001", Closes},
                            {"get player 0 damage", "Player(0).Damage = 0,0001"},
                            {"set player 0 damage 0,00009", Closes},
                            {"get player 0 damage", "Player(0).Damage = 9E-05"},
                            {"set player 0 damage 1e-45", Closes},
                            {"get player 0 damage", "Player(0).Damage = 1,401298E-45"},
                            {"set player 0 damage 9999999", Closes},
                            {"get player 0 damage", "Player(0).Damage = 9999999"},
                            {"set player 0 damage 10000000", Closes},
                            {"get player 0 damage", "Player(0).Damage = 1E+07"},
                            {"set player 0 damage 12345678", Closes},
                            {"get player 0 damage", "Player(0).Damage = 1,234568E+07"},
                            {"set player 0 damage 3.14159265358979", Closes},
                            {"get player 0 damage", "Player(0).Damage = 3,141593"},
                            {"set player 0 damage 262144.25", Closes},
                            {"get player 0 damage", "Player(0).Damage = 262144,2"},
                            {"set player 0 damage 262144.75", Closes},
                            {"get player 0 damage", "Player(0).Damage = 262144,8"},
                            {"set player 0 damage 1.", Closes},
                            {"get player 0 damage", "Player(0).Damage = 1"},
                            {"set player 0 damage +2,5E+1", Closes},
                            {"get player 0 damage", "Player(0).Damage = 25"},
                            {"set player 0 control 300", "Overflow"},
                            {"set player 0 control 256", "Overflow"},
                            {"set player 0 control 255.5", "Overflow"},
                            {"set player 0 control -1", "Overflow"},
                            {"set player 0 control -0.6", "Overflow"},
                            {"set player 0 control 255", Closes},
                            {"get player 0 control", "Player(0).Control = 255"},
                            {"set player 0 control 254,5", Closes},
                            {"get player 0 control", "Player(0).Control = 254"},
                            {"set player 0 control -0.5", Closes},
                            {"get player 0 control", "Player(0).Control = 0"},
                            {"set player 0 control 1,5", Closes},
                            {"get player 0 control", "Player(0).Control = 2"},
                            {"set player 0 position 0.0625 0.1875", Closes},
                            {"get player 0 position", "Player(0).Position = (0,062; 0,188)"},
                            {"set player 0 position -0,0004 1e7", Closes},
                            {"get player 0 position", "Player(0).Position = (0; 1E+07)"}};
    Check(rows);
}

TEST_F(Answers, ToInformation)
{
    constexpr Row shown[] = {{"inf", Closes}};
    Check(shown);
    EXPECT_EQ(Label(&shell::Hud::Debug).Visible, 1);
    constexpr Row hidden[] = {{"INF please", Closes}};
    Check(hidden);
    EXPECT_EQ(Label(&shell::Hud::Debug).Visible, 0);
}
}
