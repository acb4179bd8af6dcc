// The head of a final test, one a serial number: whose device, what was entered by hand. All values
// are texts as they were typed.
#pragma once

#include <QString>
#include <QVariant>

#include <optional>
#include <utility>
#include <vector>

#include "session/session.h"

/// Columns of EP and what goes into them; Null where nothing was entered.
using EPKopf = std::vector<std::pair<QString, QVariant>>;

/// The head of this serial number, which counts without regard to case. Nothing for an empty one.
/// Raises what the store raises, as all of these.
std::optional<Schlüssel> epMitSeriennummer(const QString &serienNr);

/// Writes a new head and answers its key. Raises Overflow, with nothing written, when the session
/// cannot hold the key.
Schlüssel epEinfügen(const EPKopf &kopf);
/// Writes over the columns that are given. Raises NoCurrentRecord when there is no such head.
void epÄndern(const QString &serienNr, const EPKopf &kopf);

/// The type of the device that was entered last; empty without one.
QString letzterEPGerätetyp();

/// The recipe that a test is saved with is the one used last, and the other one no longer.
void epRezeptBenutzt(Schlüssel neu, Schlüssel alt);
