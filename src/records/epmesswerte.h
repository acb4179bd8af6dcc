// The run of a final test as the store keeps it: the steps that it walks through, a row of measured
// values for each that was judged, and with the head how the last run went.
#pragma once

#include <QString>

#include <optional>

#include "records/messwerte.h"
#include "session/session.h"
#include "store/recordset.h"

/// Name of a final-test recipe; empty when there is none.
QString epRezeptname(Schlüssel rezeptID);
/// Its steps in their order: Prüfschritt, Drehzahl (1/min), Leistung (W), Prüfart, SSCode (load
/// line), MessSchritte (complete results).
Recordset epSchritte(Schlüssel rezeptID);
/// Of the head; empty when there is none.
QString epSeriennummer(Schlüssel protokollID);

/// The rows of a test, numbered steps in their order.
Recordset epMesswerte(Schlüssel protokollID);
bool hatEPMesswerte(Schlüssel protokollID);
void epMesswerteLöschen(Schlüssel protokollID);
/// The rows go, and what is kept with the head of the run that they came from.
void epLaufVerwerfen(Schlüssel protokollID);

/// What a row keeps of its judgement: the class may be another one by the time it is printed.
struct EPUrteil {
    QString klasse;
    std::optional<double> zulP; ///< permissible deviation of power, W; nothing: not judged
    std::optional<double> zulN; ///< of speed, 1/min; likewise
    QString wort;               ///< Toleranz; empty: not judged
};
/// One more row, the texts as the boxes show them. Raises what the store raises.
void epMesswertSpeichern(Schlüssel protokollID, const SchrittTexte &schritt,
                         const EPUrteil &urteil);

/// A run begins: with the head go recipe, number of steps, direction, working standard, time. Until
/// it ends it counts as stopped.
void epLaufBeginnen(Schlüssel protokollID, Schlüssel rezeptID, int schritte);
/// It has ended, `dauer` s after it began; worked through or stopped.
void epLaufBeenden(Schlüssel protokollID, int dauer, bool vollständig);

/// The last run of a test, for a line about it.
struct EPLauf {
    int schritte = 0;         ///< that have a row
    int außerToleranz = 0;    ///< of these
    int unbeurteilt = 0;      ///< of these
    std::optional<int> dauer; ///< s; nothing where it is not known
    bool abgebrochen = false; ///< not worked through; of rows without a known run, not told
    int geplant = 0;          ///< steps that the recipe had; 0 where it is not known
};
/// Nothing for a test that has no rows and was never run.
std::optional<EPLauf> letzterEPLauf(Schlüssel protokollID);
