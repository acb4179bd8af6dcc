// The steps of a recipe in one of the tables that hold them. Their numbers run from 1 without gaps,
// and inserting and deleting keep them so, row by row: an update that is not reached leaves what
// was done so far.
#pragma once

#include <QString>

#include <vector>

#include "session/pruefart.h"
#include "session/session.h"
#include "store/recordset.h"

struct Schritt {
    int nummer = 0;
    QString drehzahl; ///< 1/min, as it stands on the screen
    QString leistung; ///< W, as it stands on the screen
    int prüfart = 0;
};

/// One number that becomes another.
struct Umnummerierung {
    int von;
    int nach;
    bool operator==(const Umnummerierung &) const = default;
};
/// Makes room for a new step: from the greatest number down, so that no two share one on the way.
std::vector<Umnummerierung> platzSchaffen(int nummer, int größte);
/// Closes the gap that a deleted step left: from the smallest number up.
std::vector<Umnummerierung> lückeSchließen(int nummer, int größte);

class Schrittliste {
  public:
    /// The table has the columns of Rezepte; its name stays valid.
    explicit Schrittliste(const char *tabelle) : mTabelle(tabelle) {}

    // What fails is raised; TypeMismatch, before anything is written, for a step that lacks a
    // number or a type.
    int größteNummer(Schlüssel rezeptID) const; ///< 0 without steps
    bool vorhanden(Schlüssel rezeptID, int nummer) const;
    void anlegen(Schlüssel rezeptID, const Schritt &schritt) const;
    void ändern(Schlüssel rezeptID, const Schritt &schritt) const;
    /// The step gets its number; those from there on move up by one.
    void einfügen(Schlüssel rezeptID, const Schritt &schritt) const;
    /// The steps behind it move down by one. A statement that fails is skipped.
    void löschen(Schlüssel rezeptID, int nummer) const;

  private:
    int execute(const char *sql, const std::vector<QVariant> &params) const;
    void umnummerieren(Schlüssel rezeptID, const Umnummerierung &schritt) const;

    const char *mTabelle;
};

// Lists for the grid of an editor: Prüfschritt, Drehzahl, Leistung and the type as it is shown.

/// The steps of a stored recipe in their order; the type stands in Messart, in these words.
Recordset gespeicherteSchritte(Schlüssel rezeptID,
                               const platform::Text &leistung = Prüfart::leistungText,
                               const platform::Text &drehzahl = Prüfart::drehzahlText);
/// All rows of the working copy as the table gives them; the type stands in Messwerte.
Recordset kopierteSchritte();

/// The row on which the recordset stands, numbers in the number format of the session.
Schritt schrittAus(const Recordset &rows);
