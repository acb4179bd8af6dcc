// Recipes of the final test. Their class is a text of their own, no reference to a specification.
#pragma once

#include <optional>

#include "records/rezept.h"
#include "records/schrittliste.h"

inline constexpr Rezepttabellen endprüfrezepte{"EP_Rezeptnamen", "EP_Rezepte", -1};

/// What a step has here besides.
inline const std::vector<Schrittspalte> epSchrittspalten{
    {"SSCode", &Schritt::ssCode}, {"MessSchritte", &Schritt::messSchritte, true}};

struct EPRezept {
    Schlüssel rezeptID = 0;
    QString name;
    QString klasse; ///< text of its tolerance class
};

// All raise what fails.

/// Letters of the name count without regard to case.
std::optional<EPRezept> epRezept(const QString &name);
std::optional<EPRezept> epRezept(Schlüssel rezeptID);
/// The only recipe, or the one that was used last; nothing when neither is clear.
std::optional<EPRezept> epRezeptVorgewählt();
/// Prüfschritt, Drehzahl, Leistung, SSCode, MessSchritte in the order of the steps.
Recordset epRezeptSchritte(Schlüssel rezeptID);

/// A new recipe without steps; answers its key. Raises Overflow, with nothing written, when the
/// session cannot hold the key.
Schlüssel epRezeptAnlegen(const QString &name, const QString &klasse);
/// Raises NoCurrentRecord when there is no such recipe.
void epKlasseÄndern(Schlüssel rezeptID, const QString &klasse);
/// Gives up a new final-test recipe that has no steps by its number. What goes is the ordinary
/// recipe that has the same number; the name of the final-test recipe stays, without steps. The
/// recipe of the session follows.
void epRezeptVerwerfen(Schlüssel rezeptID);

/// The line that puts this power on the ergometer, "W150[13]"; empty for all but one to three
/// digits.
QString fnc_SSCodeVorschlag(const QString &leistung);
