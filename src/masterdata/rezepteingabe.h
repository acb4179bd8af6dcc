// A new recipe: first its name and tolerance, then its steps one by one, each stored at once. From
// the moment the name is saved the recipe exists, so leaving decides whether it stays. The screens
// derived from it say what a tolerance is and what is told.
#pragma once

#include "masterdata/rezeptwahl.h"
#include "masterdata/schritteditor.h"
#include "session/screens.h"
#include "ui_rezepteingabe.h"

class Rezepteingabe : public Screen {
  protected:
    struct Art {
        const Rezeptart &schritte;
        Rezepttabellen tabellen;
        frm liste; ///< where a finished recipe is shown
        bool kopierbar;
        platform::Text ersterHinweis, speichern, vergeben, verwerfen, verwerfenTitel;
        struct Kennungen {
            const char *aktivieren, *name, *vergeben, *verlassen, *liste, *anzeigen, *freigeben,
                *navigation, *neu, *speichern, *einfügen, *löschen, *erster, *letzter, *nächster,
                *voriger, *drehzahl, *leistung, *anzahl;
        } kennung; ///< of the failure boxes
    };
    explicit Rezepteingabe(const Art &art);

    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload() override;
    void Form_Unload() override;

    virtual void beschriften();
    /// All that can be picked, into the box.
    virtual void toleranzenFüllen() = 0;
    // These raise what fails.
    /// Answers the key.
    virtual Schlüssel anlegen(const QString &name, const QString &toleranz) = 0;
    /// Gives the recipe up that stands in the session, which has steps or not, with values in the
    /// fields or not.
    virtual void verwerfen(bool schritte, bool eingabe) = 0;

    void txtRezName_Change();
    /// Shows the stored steps when the screen is activated next.
    void gitterAktualisieren();
    void neuenSchrittFreigeben();
    /// A field was left with a value that is accepted.
    virtual void angenommen(const QWidget *) { fnc_SpeichernFreigeben(); }
    bool speichernMöglich();
    void fnc_SpeichernFreigeben();

    Ui::Rezepteingabe ui;
    Schritteditor mEditor;

  private:
    // Name and tolerance
    void fnc_RezeptnameSpeichern();
    bool fnc_RezeptnameVorhanden();
    void schritteFreigeben();

    // Leaving
    void pbok_Click();
    bool verlassen();
    bool fnc_FrageVerwerfen();
    void fnc_RezeptlisteAktualisieren();

    // The step at hand. What ends in a failure box answers false.
    void schritteVerdrahten();
    void typOderZeile();
    void aktualisieren();
    bool neuerSchritt() const;
    void gitterZeigen(int zeile);
    void gitterGelesen();
    void gitterNachFehler();
    void fnc_SchrittAnzeigen();
    void hinweisNeuerSchritt();
    void fnc_NeuerSchritt();
    void pbSave_Click();
    void pbEinfuegen_Click();
    void pbLoeschen_Click();

    // Moving
    void fnc_NavigationFreigeben();
    void schrittWählen(int zeile);
    void gespeichertenZeigen();
    void DBGridRez_RowColChange();

    /// What the fields of the step hold.
    enum class Stand {
        Gesperrt, ///< nothing: no recipe name is saved
        Neu,      ///< a new step
        Nichts,   ///< nothing; a new step may be begun
        Gespeichert,
    };

    const Art mArt;
    Stand mStand = Stand::Gesperrt;
    bool mSpeicherbar = false; ///< all fields of the step hold text
    bool mBewegbar = false;    ///< among the stored steps
    bool mKopierbar = false;   ///< another recipe may go in: there has been no step yet
    bool mFertigbar = false;   ///< the grid shows the steps as they are stored, one at least
    bool mbKopiert = false;    ///< back from the copy, to be shown at the activation
    bool mbFertig = false;     ///< closes by pbok
};
