// What a measurement reads from the store and writes to it.
#pragma once

#include "bewertung.h"
#include "recordset.h"

/// The step name of free input; it makes a new row each time.
inline const QString freierSchritt = QStringLiteral("FR");

/// The steps of a recipe in the order of the list: Prüfschritt, Drehzahl, Leistung, Prüfart.
Recordset messSchritte(int rezeptID);

/// The stored rows of a protocol: numbered steps in their order, then the free ones by time.
Recordset protokollMesswerte(int protokollID);

struct ToleranzZeile {
    QString bezeichnung;
    Spezifikation spezifikation; ///< GrenzAbw rounded to a whole number, halves to even
};
/// False, leaving `zeile` alone, when the specification is gone.
bool toleranzLesen(int toleranzID, ToleranzZeile &zeile);

Unsicherheiten unsicherheitLeistung();
Unsicherheiten unsicherheitDrehzahl();

struct Messwert {
    int protokollID = 0;
    QString prüfschritt;
    SchrittTexte texte;
    QString ist_D_torvena; // N m
    Urteil urteil;
    double schrittDrehzahl = 0; ///< of the recipe's step, uncorrected, 1/min
};
/// Overwrites the row of a step that is there; inserts otherwise, and for a free step always. An
/// overwritten row keeps its set-points, unless its power is not the step's or its speed lies more
/// than a tenth from the step's: then it is the row of another recipe and takes those of the step.
/// Raises what the store raises.
void messwertSpeichern(const Messwert &wert);

/// A protocol with no measured values and no sheet has no content.
bool protokollHatMesswerte(int protokollID);
bool protokollHatBlätter(int protokollID);
void protokollkopfLöschen(int protokollID);
