// What the two report screens have in common, over working and over archived protocols: choice of a
// protocol and of its pages, and the run that stages and prints them.
#pragma once

#include "platform/text.h"
#include "protocols/berichtsmaschine.h"
#include "protocols/berichtsseiten.h"
#include "session/screens.h"
#include "ui_berichtsmaske.h"

class Berichtsmaske : public Screen {
  protected:
    /// In what the screens differ. Characters of an entry count from 0.
    struct Art {
        Bestand bestand;
        platform::Text titel;
        int nummerAb;       ///< where the number starts
        int seitenNummerAb; ///< where it is looked for when the pages are enabled
        const char *klasseTag, *druckTag;
    };
    explicit Berichtsmaske(const Art &art);

    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;

    /// Fills cmbBericht.
    virtual void fnc_ProtokollListe() = 0;
    /// A page beside the cover sheet was printed.
    virtual void gedruckt() {}
    /// Before the first page of a run to PDF files.
    virtual void pdfVorbereiten(Schlüssel) {}
    /// cmbBericht shows another text.
    virtual void auswahlGeändert() {}
    /// The list without a first entry, or with `erster` as its text.
    void eintragen(const QStringList &einträge, bool ersterGewählt);
    void fnc_SeitenFreigeben();
    void seitenSperren();
    Schlüssel nummer(int ab) const;

    Ui::Berichtsmaske ui;
    bool mbKeineProtokolle = false;

  private:
    void wählbar(const Seitenausgabe &seite, bool ja);
    void fnc_GeräteKlasse();
    void OKButton_Click();
    void drucken();
    void seiteDrucken(const Seitenausgabe &seite);
    void pbSichern_Click();
    void abschließen();

    Art mArt;
    Berichtsmaschine Crt1;
    std::int16_t mnGeräteKlasse = 0; ///< 0 unknown, 1 medical, 2 stationary
    bool mbSichern = false;          ///< the run goes to PDF files
};

/// The name in an entry: what stands behind its last hyphen, one blank where that is nothing.
QString berichtsname(const QString &eintrag);
