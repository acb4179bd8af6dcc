// A list of recipes in which a person searches, with the specification and the steps of the one
// that the box names.
#pragma once

#include "controls/schrittgitter.h"
#include "controls/suchmaske.h"
#include "records/rezept.h"

class QLabel;
class QTableView;

class Rezepttafel : public Suchmaske {
  protected:
    struct Tafel {
        QComboBox *feld;
        QListView *liste;
        QLabel *anzahl, *toleranz;
        QTableView *schritte;
        std::vector<Schrittgitter::Spalte> spalten = Schrittgitter::ordentlich;
        Rezepttabellen tabellen = ordentlicheRezepte;
        platform::Text zähler = {"Rezeptanzahl: ", "Number Of Recipes: "};
    };
    /// Called once. The handlers as of sucheVerdrahten.
    void verdrahten(const Tafel &tafel, const Handler &geändert, const Handler &bestätigt);
    /// All names, and how many there are. The text of the box stays. Raises what fails.
    void namenLesen();
    void anzahlZeigen();
    void zeigen(const QString &toleranz, const Recordset &schritte);
    void leeren() { zeigen({}, {}); }
    /// As Suchmaske.
    bool rezeptFestlegen() { return nameFestlegen({"Rezepte", "Recipes"}); }

    Schrittgitter mGitter;

  private:
    Tafel mTafel{};
};
