// The steps of one recipe under the hands of a person: the fields of the step at hand, the grid,
// and the table behind both. The screen that owns it wires the events and says what may be pressed;
// a Rezeptart says in what its editor differs from the others.
#pragma once

#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "controls/kuerzelfeld.h"
#include "controls/schrittgitter.h"
#include "masterdata/rezeptart.h"
#include "session/sprache.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;
class QWidget;

/// English captions that the screens of editors have in common.
inline constexpr Beschriftung schrittEnglisch[] = {
    {"lbToleranz", "S&pecification:"},
    {"FrSchritt", "Test Step"},
    {"lbSchritt", "Test step:"},
    {"lbDrehzahl", "Spee&d:"},
    {"lbDrehzahlEinheit", "rpm"},
    {"lbLeistung", "Po&wer:"},
    {"lbPrArt", "&Type:"},
    {"pbEinfuegen", "&Insert"},
    {"pbLoeschen", "De&lete"},
    {"FrSchritte", "Test Steps Of The Recipe"},
    {"pbFirst#tip", "First test step"},
    {"pbNext#tip", "Next test step"},
    {"pbok", "&OK"},
    {"pbexit", "&Cancel"},
};

class Schritteditor {
  public:
    struct Felder {
        QLabel *nummer;
        QLineEdit *drehzahl, *leistung;
        QComboBox *prüfart; ///< without it every step is a speed measurement
        QTableView *gitter;
        std::vector<std::pair<QLineEdit *, QString Schritt::*>> weitere = {};
    };

    explicit Schritteditor(const Rezeptart &art) : mArt(art) {}
    /// Called once, before everything else. `angenommen` follows a value that a field was left
    /// with, and in a new recipe the type that a key has picked.
    void verbinden(const Felder &felder, std::function<void(const QWidget *feld)> angenommen);
    /// Heads of the grid and types to pick, in the language of the session.
    void beschriften();

    // The step at hand
    int nummer() const { return mNummer; } ///< 0 for none
    void nummerZeigen(int nummer);
    Schritt schritt() const;
    /// Whether no field but the number holds text.
    bool fnc_EingabeLeer() const;
    void leeren();
    /// The step of the current row into the fields. False, and nothing done, without rows.
    bool zeigen();

    // Fields
    Kürzelfeld &typ() { return mTyp; }
    void betreten(const QWidget *feld);
    /// Whether the field holds another text than when it was entered or filled.
    bool geändert(const QWidget *feld) const;
    /// Checks speed, power or count. False when it is refused and has the keyboard back.
    bool verlassen(const QWidget *feld);
    /// The next leaving of the speed is not checked.
    void einmalUngeprüft() { mUngeprüft = true; }

    // The step at hand and the table. False, or nothing, after a box that told why.
    bool fnc_SchrittPrüfen(); ///< complete, and its torque permissible
    bool vollständig() const; ///< all that a step needs is there
    bool zulässig() const;    ///< complete and permissible, without a box
    std::optional<bool> vorhanden() const;
    bool anlegen() const;
    bool fnc_SchrittÄndern() const;

    // These raise what fails.
    int größteNummer() const; ///< 0 without steps
    /// Puts a step with the values of the fields before the one shown, and stands on it.
    void einfügen();
    /// Deletes the step shown and stands on the one that has taken its number, or on the last.
    /// False when there was none: the fields are empty now.
    bool löschen();
    /// Reads the steps anew and stands on the row, from 0, or on the nearest there is.
    void lesen(int zeile);
    /// What a failed statement has left. False when that cannot be read either, which is not told.
    bool nachFehlerLesen();

    Schrittgitter &gitter() { return mGitter; }
    const Schrittgitter &gitter() const { return mGitter; }

  private:
    struct Wertfeld {
        QLineEdit *feld;
        const Wertmeldungen *meldungen;
        Wertprüfung (*prüfung)(const QString &, const Schrittgrenzen &);
    };
    void füllen(const Schritt &schritt);
    bool wertAnnehmen(const Wertfeld &wert);
    bool anzahlAnnehmen(QLineEdit *feld);
    void zurückgeben(QLineEdit *feld, const QString &text) const;
    Fehlendes fehlendes() const;
    bool fnc_DrehmomentPrüfen() const;
    Recordset liste() const;

    const Rezeptart &mArt;
    Felder mFelder{};
    Schrittgitter mGitter;
    Kürzelfeld mTyp;
    std::function<void(const QWidget *)> mAngenommen;
    std::map<const QWidget *, QString> mVorher; ///< texts at focus
    int mNummer = 0;
    bool mUngeprüft = false;
};

/// The names of all specifications into a box that stands on none. False when they cannot be read,
/// which is told.
bool fnc_Fill_CmbToleranz(QComboBox *feld);
