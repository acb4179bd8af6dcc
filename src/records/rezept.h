// Recipes as the database tells them, and the recipe of the session.
#pragma once

#include <QStringList>

#include "session/auswahl.h"
#include "store/recordset.h"

/// The tables of one kind of recipes; both have the column RezeptID.
struct Rezepttabellen {
    const char *namen;    ///< RezeptID and RezName
    const char *schritte; ///< as for a Schrittliste
    int vorzeichen;       ///< 1 or -1, of their keys in the working copy that all kinds share
};
inline constexpr Rezepttabellen ordentlicheRezepte{"Rezeptnamen", "Rezepte", 1};

/// In no order.
QStringList rezeptnamen(const Rezepttabellen &tabellen = ordentlicheRezepte);
/// Letters count without regard to case.
bool rezeptnameVergeben(const QString &name, const Rezepttabellen &tabellen = ordentlicheRezepte);
/// The key alone, also of a recipe without a specification. Raises NoCurrentRecord.
Schlüssel rezeptSchlüssel(const QString &name, const Rezepttabellen &tabellen = ordentlicheRezepte);
/// Steps first, then the name. Protocols that were measured with it are not looked at.
void rezeptLöschen(Schlüssel rezeptID, const Rezepttabellen &tabellen = ordentlicheRezepte);

/// Head of a recipe with its specification. Raises NoCurrentRecord when there is no such recipe or
/// its specification was deleted.
RezeptKopf rezeptKopf(const QString &name);

bool rezepteVorhanden();

/// A new recipe without steps; answers its key. Raises NoCurrentRecord unless there is exactly one
/// specification of this name, and Overflow, with nothing written, when the session cannot hold the
/// key.
Schlüssel rezeptAnlegen(const QString &name, const QString &toleranz);
/// Gives the recipe the first specification of this name. Raises NoCurrentRecord when there is no
/// such one, or no such recipe.
void rezeptToleranzÄndern(Schlüssel rezeptID, const QString &toleranz);

/// Prüfschritt, Drehzahl, Leistung, Messart in the order of the steps; Messart in the language of
/// the session.
Recordset rezeptSchritte(Schlüssel rezeptID);

/// Puts the recipe that the desktop shows back in force, as the database tells it now, or as it
/// was chosen when that cannot be read, which is raised. One that is gone, or whose specification
/// is, is no longer chosen.
void sitzungsrezeptEinsetzen();
