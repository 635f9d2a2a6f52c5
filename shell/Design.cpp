#include "shell/Design.h"

#include <iterator>

namespace shell
{
namespace
{
using forms::Control;
using forms::Kind;
using forms::Look;

constexpr const char* Entries[] = {"cSTART", "cOPZIONI", "cCREDIT", "cEXIT"};
constexpr const char* EntryCaptions[] = {"Avvia partita", "Opzioni", "Crediti", "Esci"};

constexpr ActionRow Actions[] = {
    {"panelCtrMov", "Accelera:", "", "cCtrKey", 6, "38", "Freccia su"},
    {"panelCtrMov", "Freno/Retromarcia:", "", "cCtrKey", 7, "40", "Freccia giù"},
    {"panelCtrMov", "Gira a sinistra:", "", "cCtrKey", 8, "37", "Freccia sinistra"},
    {"panelCtrMov", "Gira a destra:", "", "cCtrKey", 9, "39", "Freccia destra"},
    {"panelCtrMov", "Freno a mano:", "", "cCtrKey", 10, "32", "Spazio"},
    {"panelCtrCam", "Guarda indietro:", "", "cCtrKey", 2, "66", "B"},
    {"panelCtrCam", "Giocatore precedente:", "", "cCtrKey", 3, "34", "Pag giù"},
    {"panelCtrCam", "Giocatore successivo:", "", "cCtrKey", 4, "33", "Pag su"},
    {"panelCtrCam", "Cambia visuale:", "(solo per la guida)", "cCtrKey", 5, "67", "C"},
    {"panelCtrCam", "Seleziona visuale:", "", "dCtrKey", 4, "", "1 - 7"},
    {"panelCtrOth", "Apri menu:", "", "dCtrKey", 0, "", "ESC"},
    {"panelCtrOth", "Apri console:", "", "dCtrKey", 1, "", "\\"},
    {"panelCtrOth", "Chiudi console:", "", "dCtrKey", 2, "", "ESC"},
    {"panelCtrOth", "Pausa:", "", "dCtrKey", 3, "", "P"},
    {"panelCtrOth", "Pilota automatico:", "(solo a gara completa)", "cCtrKey", 0, "17", "CTRL"},
    {"panelCtrOth", "Cambia musica:", "(solo a gara completa)", "cCtrKey", 1, "9", "Tab"},
};

struct Designer
{
    forms::Form& Form;

    std::int16_t Add(Kind kind, const char* name, std::int16_t parent, const char* caption, Look look = Look::Plain,
                     std::int16_t index = -1)
    {
        Control control;
        control.Type = kind;
        control.Name = name;
        control.Index = index;
        control.Parent = parent;
        control.Caption = caption;
        control.Style = look;
        return Form.Add(std::move(control));
    }

    std::int16_t AddHidden(Kind kind, const char* name, std::int16_t parent)
    {
        const std::int16_t made = Add(kind, name, parent, "");
        At(made).Visible = base::False;
        return made;
    }

    void AddOk(const char* name, std::int16_t parent) { At(Add(Kind::Button, name, parent, "OK")).IsDefault = true; }

    Control& AddBox(Kind kind, const char* name, std::int16_t parent, std::string text)
    {
        Control& box = At(Add(kind, name, parent, ""));
        box.Text = std::move(text);
        return box;
    }

    Control& At(std::int16_t index) { return Form.Controls[static_cast<std::size_t>(index)]; }

    void Menu()
    {
        Add(Kind::Picture, "imgLogoBG", -1, "");
        Add(Kind::Picture, "imgLogo", -1, "");
        for (std::size_t i = 0; i < std::size(Entries); ++i)
        {
            const std::string twin = std::string(Entries[i]) + "2";
            Add(Kind::Label, twin.c_str(), -1, EntryCaptions[i], Look::Shadow);
        }
        for (std::size_t i = 0; i < std::size(Entries); ++i)
            Add(Kind::Label, Entries[i], -1, EntryCaptions[i], Look::Entry);
    }

    void Options()
    {
        const std::int16_t panel = AddHidden(Kind::Frame, "panelOption", -1);
        Add(Kind::Label, "lblOption", panel, "Opzioni", Look::Heading);
        Add(Kind::Button, "cGameOpt", panel, "Opzioni di gioco");
        Add(Kind::Button, "cVidOpt", panel, "Opzioni video");
        Add(Kind::Button, "cAudOpt", panel, "Opzioni audio");
        Add(Kind::Button, "cCtrOpt", panel, "Controlli");
        AddOk("cOptOK", panel);
    }

    void GameOptions()
    {
        const std::int16_t panel = AddHidden(Kind::Frame, "panelGameOpt", -1);
        Add(Kind::Label, "lblGameOpt", panel, "Opzioni di gioco", Look::Heading);
        Add(Kind::Label, "lblLap", panel, "Numero giri:");
        AddBox(Kind::TextBox, "txtLap", panel, "5");
        AddOk("cGameOptOK", panel);
    }

    void VideoOptions()
    {
        const std::int16_t panel = AddHidden(Kind::Frame, "panelVidOpt", -1);
        Add(Kind::Label, "lblVidOpt", panel, "Opzioni video", Look::Heading);
        Add(Kind::Label, "lblFreq", panel, "Frequenza fotogrammi:");
        AddBox(Kind::TextBox, "txtFreq", panel, "20");
        Add(Kind::Label, "lblRes", panel, "Risoluzione:");
        Control& resolution = AddBox(Kind::ComboBox, "txtRes", panel, "600x312");
        resolution.Items = {"320x240", "640x480", "600x312", "800x600", "1024x768"};
        Add(Kind::Label, "lblFilter", panel, "Filtro texture:");
        Add(Kind::Label, "lblTxtFilter", panel, "anisotropico", Look::Choice);
        Add(Kind::Label, "lblEffects", panel, "Qualità effetti:");
        Add(Kind::Label, "lblEffQ", panel, "alta", Look::Choice);
        Add(Kind::CheckBox, "chkFS", panel, "Schermo intero");
        At(Add(Kind::CheckBox, "chkWebcam", panel, "Abilita webcam")).Value = 1;
        Add(Kind::Button, "cCamConfig", panel, "configura...");
        AddOk("cVidOptOK", panel);
    }

    void AudioOptions()
    {
        const std::int16_t panel = AddHidden(Kind::Frame, "panelAudOpt", -1);
        Add(Kind::Label, "lblAudOpt", panel, "Opzioni audio", Look::Heading);
        At(Add(Kind::CheckBox, "chkMusic", panel, "Musica")).Value = 1;
        Add(Kind::Label, "lblMusVol", panel, "Volume musica:");
        Add(Kind::Picture, "picMusVol", panel, "");
        Add(Kind::Label, "lblEffVol", panel, "Volume effetti:");
        Add(Kind::Picture, "picEffVol", panel, "");
        AddOk("cAudOptOK", panel);
    }

    void WebcamOptions()
    {
        const std::int16_t panel = AddHidden(Kind::Frame, "panelWebcam", -1);
        Add(Kind::Label, "lblWebcam", panel, "Webcam", Look::Heading);
        Add(Kind::Picture, "picWebcam", panel, "");
        Add(Kind::Label, "lblCamState", panel, "", Look::Note);
        Add(Kind::Label, "lblCamClick", panel, "Fai clic");
        Add(Kind::Label, "cStartCamConf", panel, "qui", Look::Link);
        Add(Kind::Label, "lblCamLeave", panel, ", poi esci dal");
        Add(Kind::Label, "lblCamWait", panel,
            "campo visivo per qualche secondo per portare a termine la configurazione", Look::Paragraph);
        AddOk("cWebcamOK", panel);
    }

    void Credits()
    {
        const std::int16_t panel = AddHidden(Kind::Frame, "panelCredits", -1);
        Add(Kind::Label, "lblCredits", panel, "Crediti", Look::Heading);
        Add(Kind::Label, "lblProduct", panel, "Velkar", Look::Entry);
        Add(Kind::Label, "lblMadeBy", panel, "Realizzato da", Look::Note);
        Add(Kind::Label, "lblAuthors", panel, "Velkar Team");
        AddOk("cCreditOK", panel);
    }

    void Controls()
    {
        const std::int16_t panel = AddHidden(Kind::Frame, "panelCtrOpt", -1);
        Add(Kind::Label, "lblCtrOpt", panel, "Controlli", Look::Heading);
        Add(Kind::Button, "cCtrMov", panel, "Movimento", Look::Tab);
        Add(Kind::Button, "cCtrCam", panel, "Visuale", Look::Tab);
        Add(Kind::Button, "cCtrOth", panel, "Altro", Look::Tab);
        for (const char* name : {"panelCtrMov", "panelCtrCam", "panelCtrOth"})
            AddHidden(Kind::Frame, name, panel);
        Form.Get("panelCtrMov").Visible = base::True;
        Form.Get("cCtrMov").Value = 1;
        for (std::size_t i = 0; i < std::size(Actions); ++i)
            Row(Actions[i], static_cast<std::int16_t>(i));
        Add(Kind::TextBox, "txtRecKey", panel, ""); // takes the next key; has no place of its own
        AddOk("cCtrOptOK", panel);
    }

    void Row(const ActionRow& row, std::int16_t number)
    {
        const std::int16_t panel = Form.IndexOf(Form.Get(row.Panel));
        Add(Kind::Label, "lblAction", panel, row.Caption, Look::Plain, number);
        if (*row.Remark != '\0')
            Add(Kind::Label, "lblRemark", panel, row.Remark, Look::Note, number);
        const bool isFixed = std::string_view(row.Key) == "dCtrKey";
        const std::int16_t key =
            Add(Kind::Label, row.Key, panel, row.KeyCaption, isFixed ? Look::FixedKey : Look::Key, row.KeyIndex);
        At(key).Tag = row.Tag;
    }
};
}

std::span<const ActionRow> ActionRows()
{
    return Actions;
}

std::span<const char* const> MenuEntries()
{
    return Entries;
}

void MakeControls(forms::Form& form)
{
    Designer designer{form};
    designer.Menu();
    designer.Options();
    designer.GameOptions();
    designer.VideoOptions();
    designer.AudioOptions();
    designer.WebcamOptions();
    designer.Credits();
    designer.Controls();
}
}
