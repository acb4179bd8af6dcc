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
    QString ssCode = {};       ///< line to the ergometer
    QString messSchritte = {}; ///< number of six-round measurements
};

/// A further column of a table of steps, and what a step has there.
struct Schrittspalte {
    const char *name;
    QString Schritt::*wert;
    bool anzahl = false; ///< a number that rounds to 1 at least
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
    /// Besides the first five columns of Rezepte those named are written and read. All names stay
    /// valid. The keys stand in the table with this sign, 1 or -1, and callers give them without.
    explicit Schrittliste(const char *tabelle, std::vector<Schrittspalte> weitere = {},
                          int vorzeichen = 1)
        : mTabelle(tabelle), mWeitere(std::move(weitere)), mVorzeichen(vorzeichen) {}

    // What fails is raised; TypeMismatch, before anything is written, for a step that lacks a
    // number, a type or a count.
    int größteNummer(Schlüssel rezeptID) const; ///< 0 without steps
    bool vorhanden(Schlüssel rezeptID, int nummer) const;
    void anlegen(Schlüssel rezeptID, const Schritt &schritt) const;
    void ändern(Schlüssel rezeptID, const Schritt &schritt) const;
    /// The step gets its number; those from there on move up by one.
    void einfügen(Schlüssel rezeptID, const Schritt &schritt) const;
    /// The steps behind it move down by one. A statement that fails is skipped.
    void löschen(Schlüssel rezeptID, int nummer) const;

    // For a grid: Prüfschritt, Drehzahl, Leistung, the type in words as Messart, further columns.

    /// The steps of a recipe in their order.
    Recordset lesen(Schlüssel rezeptID, const platform::Text &leistung = Prüfart::leistungText,
                    const platform::Text &drehzahl = Prüfart::drehzahlText) const;
    /// All rows whose key has this sign, as the table gives them.
    Recordset alle() const;
    /// The row on which the cursor stands, numbers in the number format of the session.
    Schritt schrittAus(const Recordset &rows) const;

  private:
    QString spalten() const;
    int execute(const char *sql, const std::vector<QVariant> &params) const;
    Schlüssel schlüssel(Schlüssel rezeptID) const { return mVorzeichen * rezeptID; }
    void vollständigVerlangen(const Schritt &schritt) const;
    void umnummerieren(Schlüssel rezeptID, const Umnummerierung &nummer) const;

    const char *mTabelle;
    std::vector<Schrittspalte> mWeitere;
    int mVorzeichen;
};

inline constexpr int größteAnzahl = 9999; ///< of six-round measurements
/// Whether the text is a number that counts at least one.
enum class Anzahlprüfung { KeineZahl, Keine, Gültig };
Anzahlprüfung anzahlPrüfen(const QString &text);
