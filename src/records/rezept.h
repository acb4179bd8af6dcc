// A recipe as the database tells it, and the recipe of the session.
#pragma once

#include <QString>

#include "session/auswahl.h"
#include "store/recordset.h"

/// Head of a recipe with its specification. Raises NoCurrentRecord when there is no such recipe or
/// its specification was deleted.
RezeptKopf rezeptKopf(const QString &name);

bool rezepteVorhanden();

/// The key alone, also of a recipe without a specification. Raises NoCurrentRecord.
Schlüssel rezeptSchlüssel(const QString &name);

/// Prüfschritt, Drehzahl, Leistung, Messart in the order of the steps; Messart in the language of
/// the session.
Recordset rezeptSchritte(Schlüssel rezeptID);

/// Steps first, then the name. Protocols that were measured with it are not looked at.
void rezeptLöschen(Schlüssel rezeptID);

/// Puts the recipe that the desktop shows back in force, as the database tells it now, or as it
/// was chosen when that cannot be read. One that is gone, or whose specification is, is no longer
/// chosen.
void sitzungsrezeptEinsetzen();
