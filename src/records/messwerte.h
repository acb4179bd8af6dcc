// What a measurement reads from the store and writes to it.
#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

#include "session/pruefart.h"
#include "store/recordset.h"

/// A row of the uncertainty tables: applies up to `grenze` (W or 1/min). What the table leaves open
/// is nothing, not 0.
struct Unsicherheit {
    std::optional<double> grenze;
    std::optional<double> wert; ///< %; in the first row for power W
};
using Unsicherheiten = std::vector<Unsicherheit>;

/// A step as its boxes show it, under the number format of the session.
struct SchrittTexte {
    QString soll_n;             ///< 1/min
    QString soll_P;             ///< W
    QString ist_n_torvena;      ///< 1/min, of the working standard
    QString ist_P_torvena;      ///< W, of the working standard
    QString ist_n_ergom;        ///< 1/min, as read off the ergometer
    QString ist_D_torvena = {}; ///< N m, of the working standard
    QString prüfschritt = {};
    int prüfart = Prüfart::Keine;
    double rezeptDrehzahl = 0; ///< of the recipe's step, uncorrected, 1/min
};

/// What is stored with a step. Kept from step to step: a verdict that fails half-way leaves the
/// rest as the step before left it.
struct Urteil {
    bool ohne = false; ///< MU_ohne
    QString mit;       ///< MU_mit: "ja", "nein", "yes", "no" or "?"
    double muProz = 0; ///< MU_Proz, uncertainty in %
};

/// The step name of free input; it makes a new row each time.
inline const QString freierSchritt = QStringLiteral("FR");

/// The steps of a recipe in the order of the list: Prüfschritt, Drehzahl, Leistung, Prüfart.
Recordset messSchritte(int rezeptID);

/// The stored rows of a protocol: numbered steps in their order, then the free ones by time.
Recordset protokollMesswerte(int protokollID);

Unsicherheiten unsicherheitLeistung();
Unsicherheiten unsicherheitDrehzahl();

/// Overwrites the row of a step that is there; inserts otherwise, and for a free step always. An
/// overwritten row keeps its set-points, unless its power is not the step's or its speed lies more
/// than a tenth from the step's: then it is the row of another recipe and takes those of the step.
/// Raises what the store raises.
void messwertSpeichern(int protokollID, const SchrittTexte &schritt, const Urteil &urteil);
