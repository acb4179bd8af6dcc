// What the two screens over the archive have in common: lists and dates that narrow each other, the
// rows that are left, and their order.
#pragma once

#include "platform/text.h"
#include "recall/filterkette.h"
#include "recall/listen.h"
#include "session/screens.h"
#include "ui_filtermaske.h"

class Filtermaske : public Screen {
  protected:
    /// In what the screens differ.
    struct Art {
        Filterart filter;
        platform::Text titel;
        platform::Text von;    ///< label of the first date
        const char *listenTag; ///< of what fails in dates and list
        std::vector<platform::Text> köpfe;
        std::vector<int> breiten; ///< of the columns, pixels; 0 takes the rest
    };
    explicit Filtermaske(Art art);

    void Form_Load() override;
    bool Form_QueryUnload() override;

    /// Fills the list of a position, by its filler of the screen.
    virtual void füllen(int position) = 0;
    /// Reads the rows that are left.
    virtual void fnc_Abfrage() = 0;

    void fnc_FillCombos();
    void listeFüllen(int position);
    void fnc_SetDates();
    /// Everything is shown again.
    void zurücksetzen();
    void zeigen(int anzahl, Trefferliste::Leser leser);
    bool gefiltertNachDatum() const { return mKette.inGebrauch(datumsfilter); }

    Ui::Filtermaske ui;
    Filterkette mKette;
    Trefferliste dataSort;

  private:
    struct Liste {
        QLabel *beschriftung;
        Filterfeld *feld;
    };
    void verdrahten();
    void beschriften();
    void gewählt(int position);
    void cmbKunde_Click();
    void dtp_Change(QDateEdit *dtp);
    void abfragen();
    void sortieren(bool aufsteigend);

    Art mArt;
    std::array<Liste, datumsfilter> mListen;
    std::array<Auswahlliste, datumsfilter> mAuswahl;
    std::array<int, datumsfilter> mGewählt{}; ///< entry that the list shows, -1 for none
    QDate mAltDatum; ///< of the picker that has the keyboard, before it was changed
};
