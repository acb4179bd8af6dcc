// A sheet that is entered by hand under the head of a protocol: the working standard on the left,
// the values on the right. The sheets derived from it say which fields there are, each a row and a
// column of its table, and what their ends look like.
#pragma once

#include <vector>

#include "platform/text.h"
#include "records/blatt.h"
#include "session/screens.h"
#include "ui_pruefblatt.h"

class QGridLayout;

class Prüfblatt : public Screen {
  public:
    Inhalt inhalt() const { return mArt.inhalt; }

    /// As leaving without saving, without a word: at the end of the process.
    void stillVerlassen();

    /// Shows these values; fields without one stay as they are. A text that should be a date and
    /// is none is told.
    void eintragen(const Blatt &werte);

    // Once, with the protocol that the sheet belongs to
    /// A head that was made for this sheet.
    void beginnen(Schlüssel protokollID, const QString &name);
    /// A head that was there; its sheet is shown if it has one. `titel` is its number and name.
    void fortsetzen(Schlüssel protokollID, const QString &titel);

  protected:
    struct Art {
        Inhalt inhalt;
        platform::Text titel;
        const char *löschen, *verlassen, *speichern; ///< tags of the failure boxes
        platform::Text gelöscht;                     ///< title of the box
        QString normalFehlt;                         ///< text of the box, in German
        const char *gespeichert, *bestätigung;       ///< text and title of the box, in English
        bool erstSchließen;                          ///< before the box
    };
    explicit Prüfblatt(const Art &art);

    void Form_Load() override;
    void Form_Unload() override;

    // The right half is built from left to right and from top to bottom.
    QGridLayout &raster() { return *ui.gridWerte; }
    /// A field, behind those before it.
    QLineEdit *textfeld(const QString &name, const QString &spalte);
    /// One of a table; the two heads of its place say what it means.
    QLineEdit *wertfeld(const QString &name, int stufe, const QString &spalte,
                        const platform::Text &kopf, const platform::Text &nebenkopf);
    /// Words in both languages, which name a field.
    QLabel *text(const platform::Text &worte, QWidget *feld = nullptr);
    /// Once all fields are there: Tab and Enter go through them and on to the buttons.
    void reihen();
    QPushButton *pbok() { return ui.pbok; }

    Schlüssel protokollID() const { return mProtokollID; }
    /// Is to be left with nothing measured: by deleting it.
    virtual void leerAblegen();
    /// Is left without saving, under a head that was there before.
    virtual void vorhandenesVerlassen() {}

  private:
    struct Feld {
        QWidget *feld;
        int stufe;
        QString spalte;
        platform::Text bedeutung;
    };

    void öffnen(Schlüssel protokollID, const QString &titel);
    void datumZeigen(const QString &text);
    Blatt werte() const;
    bool gemessen() const;
    void speichern();
    /// Deletes the sheet, and a head on which nothing else hangs. Raises what fails.
    void verwerfen() const { blattLöschen(mArt.inhalt, mProtokollID); }
    /// Closes the sheet; nothing of it is left to be cleared away.
    void schließen();
    void verlassen();

    void pbok_Click();
    void pbDelete_Click();
    void pbexit_Click();

    Ui::Prüfblatt ui;
    Art mArt;
    std::vector<Feld> mFelder;
    std::vector<std::pair<QLabel *, platform::Text>> mTexte;
    Schlüssel mProtokollID = 0; ///< 0 until it is chosen
    bool mNeu = false;          ///< the head was made for this sheet
    bool mbGespeichert = false; ///< or deleted: closing clears nothing away
};
