// What a layout can show of a staged page: every column of the stage table and of the protocol's
// head, as texts in the language and number format of the session, and what is reckoned from them.
// docs/layouts.md lists the fields.
#pragma once

#include "records/bericht.h"
#include "records/toleranz.h"
#include "windows/layout.h"

#include <optional>

/// The stage table that a layout reads: the first of its sections that names one. Raises
/// LayoutBroken without any.
QString gelesen(const platform::Layout &layout);

/// Raises NoCurrentRecord when the table has no rows, or rows of another protocol than this.
platform::LayoutData berichtsdaten(const QString &stufentabelle, Bestand bestand,
                                   Schlüssel protokollID);

/// The verdicts of a stored row and the numbers that they were given by.
struct Ergebniszeile {
    bool leistung = true;
    double ergometer = 0;         ///< W or 1/min
    double normal = 0;            ///< the same quantity of the working standard
    std::optional<double> grenze; ///< permissible deviation, W or 1/min
    std::optional<double> muProz; ///< expanded uncertainty, % of `ergometer`
    QString ohne, mit;            ///< ja, nein, yes, no; ?
};
/// Whether the row was judged by another limit than the specification that the head names gives, as
/// after a change of the specification between two sittings. 1e-9 W or 1/min are no difference. A
/// row without limit, and a head without specification, name none to differ.
bool andereGrenze(const Ergebniszeile &zeile, const std::optional<Spezifikation> &kopf);
/// Expanded uncertainty, W or 1/min. Nothing where none is stored, and at 0 W, where the stored
/// number is no share of anything.
std::optional<double> unsicherheit(const Ergebniszeile &zeile);
/// Whether the verdicts follow from the numbers of their own row, by the decision rule of
/// measure/bewertung.h. At a limit both sides count as following, within 1e-9 W or 1/min: so no
/// verdict is doubted that was given from the same numbers. A row without verdicts claims nothing.
bool urteilFolgt(const Ergebniszeile &zeile);
