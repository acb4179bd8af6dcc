// Numbers and heads of the protocols under work: what the dialogs ask the store and write there,
// without a widget. "This session" is the selection in session.h and the date in auswahl.h.
#pragma once

#include <QString>
#include <QStringList>

#include "records/protokollinhalt.h"

/// One above the highest number of working tables and archive. Nothing reserves it: it is taken
/// when its head is written. Raises Overflow when the numbers are used up.
Schlüssel nächsteProtokollNr();

/// Heads without measured values of the chosen customer and unit, as "12 - name".
QStringList leereProtokolle();

/// All heads of the chosen customer and unit that are not archived, as "12 - name".
QStringList offeneProtokolle();

/// Those entries that bear this number.
QStringList mitNummer(QStringList einträge, Schlüssel nummer);

/// The number that leads an entry; 0 when none does that a protocol could have.
Schlüssel protokollNrAus(const QString &eintrag);

struct LetztesProtokoll {
    Schlüssel nummer = 0;     ///< the highest that has measured values; 0 when none has
    bool fortsetzbar = false; ///< made today, by the clock, with all the settings of this session
    QString name;
};
LetztesProtokoll letztesProtokollPrüfen();

/// Writes the head of a new protocol with the settings of this session; nothing that was left under
/// its number stays in the working tables. Raises DuplicateKey when the number has been taken
/// meanwhile.
void kopfAnlegen(Schlüssel nummer, const QString &name);

/// The same for a protocol that begins with this sheet, without what only a measurement knows:
/// direction, specification, method. A safety sheet has its row at once.
void blattkopfAnlegen(Schlüssel nummer, const QString &name, Inhalt blatt);

/// Gives an existing head direction, specification and method of this session; customer, unit and
/// standard stay. False when there is no such head.
bool kopfNachführen(Schlüssel nummer);
